// What the stand-in desktop was sent, a line each, in the file that the environment names.
#pragma once

#include <windows.h>

namespace desktop {

/// Appends a line to the file named by MERIDEX_DESKTOP_REPORT; without that name nothing is kept.
void Report(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace desktop
