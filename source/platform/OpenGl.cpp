#include "OpenGl.h"

#include <GLFW/glfw3.h>

namespace platform {

void (*openGlFunction(const char* name))() {
    return glfwGetCurrentContext() != nullptr ? glfwGetProcAddress(name) : nullptr;
}

} // namespace platform
