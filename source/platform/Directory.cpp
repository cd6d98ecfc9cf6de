#include "Directory.h"

#include <memory>

#include <dirent.h>
#include <fnmatch.h>
#include <sys/stat.h>

namespace platform {

bool listDirectory(const std::string& pattern, std::vector<std::string>& names) {
    const std::size_t slash = pattern.rfind('/');
    const std::string path = slash == std::string::npos ? "." : pattern.substr(0, slash + 1);
    const std::string wildCard = slash == std::string::npos ? pattern : pattern.substr(slash + 1);

    const auto close = [](DIR* open) { closedir(open); };
    const std::unique_ptr<DIR, decltype(close)> directory(opendir(path.c_str()), close);
    if (!directory) {
        return false;
    }
    while (const dirent* entry = readdir(directory.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && fnmatch(wildCard.c_str(), name.c_str(), 0) == 0) {
            names.push_back(name);
        }
    }
    return true;
}

bool isDirectory(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool makeDirectory(const std::string& path) {
    return mkdir(path.c_str(), 0777) == 0 || isDirectory(path);
}

} // namespace platform
