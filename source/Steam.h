#pragma once

#include <memory>

/// The store's services: achievements and nothing else. The game runs in full without them.
class SteamServices {
public:
    virtual ~SteamServices() = default;
    virtual bool init() = 0;
    virtual bool hasUserStats() = 0;
    virtual bool hasUser() = 0;
    virtual void runCallbacks() = 0;
    virtual bool setAchievement(const char* name) = 0;
    virtual bool storeStats() = 0;
    virtual void shutdown() = 0;
};

/// The process's store services; an absent stand-in, which fails every call, unless one was set.
SteamServices& steam();
void setSteam(std::unique_ptr<SteamServices> services);
