#include "Steam.h"

#include <utility>

namespace {

class AbsentSteam : public SteamServices {
public:
    bool init() override { return false; }
    bool hasUserStats() override { return false; }
    bool hasUser() override { return false; }
    void runCallbacks() override {}
    bool setAchievement(const char*) override { return false; }
    bool storeStats() override { return false; }
    void shutdown() override {}
};

std::unique_ptr<SteamServices>& current() {
    static std::unique_ptr<SteamServices> services = std::make_unique<AbsentSteam>();
    return services;
}

} // namespace

SteamServices& steam() {
    return *current();
}

void setSteam(std::unique_ptr<SteamServices> services) {
    current() = services ? std::move(services) : std::make_unique<AbsentSteam>();
}
