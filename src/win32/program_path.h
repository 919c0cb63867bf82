// Where the program lies.
#pragma once

#include <string>

namespace win32 {

/// The full path of the program's file. Where a folder's name has letters that the system's code page lacks, it is the
/// path's short form, by which every call finds it.
std::string Program_Path();

}  // namespace win32
