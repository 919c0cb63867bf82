# The 64-bit Windows build by clang, with Debian's mingw-w64 for headers and libraries.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-x64.cmake)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
# That compiler doesn't look where Debian puts the library of this variant.
file(GLOB libraries /usr/lib/gcc/x86_64-w64-mingw32/*-posix)
set(headers ${libraries}/include/c++)
set(CMAKE_CXX_FLAGS_INIT "-stdlib++-isystem ${headers} -isystem ${headers}/x86_64-w64-mingw32")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-L${libraries} -B${libraries}")
