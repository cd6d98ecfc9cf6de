#pragma once

#include <string>

namespace platform {

/// Shows the page in the user's browser, without waiting for it. Silent if there is none.
void openWebPage(const std::string& address);

} // namespace platform
