#include "Window.h"

#include "GlfwWindow.h"

#include <utility>

namespace platform {

namespace {
std::unique_ptr<Window> current;
}

Window& window() {
    if (!current) {
        current = std::make_unique<GlfwWindow>();
    }
    return *current;
}

void setWindow(std::unique_ptr<Window> replacement) {
    current = std::move(replacement);
}

} // namespace platform
