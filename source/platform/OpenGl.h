#pragma once

namespace platform {

/// Address of an OpenGL function that the system's library does not have from the start, to be
/// converted to the function's type. Needs a current context; null if there is none or the name is
/// unknown.
void (*openGlFunction(const char* name))();

} // namespace platform
