#include "WebPage.h"

#include <sys/wait.h>
#include <unistd.h>

namespace platform {

// The browser is started by a child that ends at once, so that the system adopts and reaps it: the
// game need never wait for it.
void openWebPage(const std::string& address) {
    const pid_t starter = fork();
    if (starter == 0) {
        setsid();
        if (fork() == 0) {
            execlp("xdg-open", "xdg-open", address.c_str(), static_cast<char*>(nullptr));
        }
        _exit(0);
    }
    if (starter > 0) {
        waitpid(starter, nullptr, 0);
    }
}

} // namespace platform
