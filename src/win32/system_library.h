// The system's own libraries, for what the calendar looks up at run time.
#pragma once

#include "win32/handle.h"

namespace win32 {

/// A library of the system, by its name with the extension; none where the system has no such library. One of that name
/// in the program's folder, the current folder or the path isn't taken, and none is by the libraries that it needs in
/// turn.
Library_Owner System_Library(const char* name);

/// From now on the system's own code too looks for libraries in its folder alone, where the system can be told so.
void Keep_To_System_Libraries();

}  // namespace win32
