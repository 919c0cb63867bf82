// The system's window, as the services and the toolkit pass it to each other. 0 is no window.
#pragma once

#include <cstdint>

namespace platform {

using Window_Handle = std::uintptr_t;

}  // namespace platform
