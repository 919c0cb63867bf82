# What all targets of the tree are built with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(WIN32)
  enable_language(RC)
endif()

add_library(meridex_options INTERFACE)
target_include_directories(meridex_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(meridex_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # GCC 12 takes "text" + text for an overlap once it optimises.
  target_compile_options(meridex_options INTERFACE -Wno-restrict)
endif()

# The standard headers that most sources read, compiled once: the folders take them from this library, and on top of them
# they take nothing, so that a source still says what it includes.
add_library(meridex_common OBJECT ${PROJECT_SOURCE_DIR}/cmake/common.cpp)
target_precompile_headers(meridex_common PRIVATE <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string>
  <string_view> <utility> <vector>)
target_link_libraries(meridex_common PRIVATE meridex_options)

if(MERIDEX_SANITIZE)
  target_compile_options(meridex_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(meridex_options INTERFACE -fsanitize=address,undefined)
endif()
if(MERIDEX_FUZZ)
  target_compile_options(meridex_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  target_link_options(meridex_options INTERFACE -fsanitize=address,undefined)
endif()

if(WIN32)
  # The A-functions throughout: texts are bytes of the system's code page from the file to the screen.
  target_compile_definitions(meridex_options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX __USE_MINGW_ANSI_STDIO=0)
  target_compile_options(meridex_options INTERFACE -ffunction-sections -fdata-sections -fstack-protector-strong)
  target_link_options(meridex_options INTERFACE -static -Wl,--gc-sections -fstack-protector-strong
    -Wl,--dynamicbase,--nxcompat,--enable-reloc-section)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    # That compiler links no library of threads, on which the standard library of this variant stands.
    target_link_libraries(meridex_options INTERFACE stdc++ winpthread)
  endif()
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    target_link_options(meridex_options INTERFACE -Wl,--high-entropy-va)
  else()
    # Structures as those systems know them; what is newer is looked up at run time.
    target_compile_definitions(meridex_options INTERFACE _WIN32_WINNT=0x0400 _WIN32_IE=0x0400)
    target_link_options(meridex_options INTERFACE
      -Wl,--major-subsystem-version=4,--minor-subsystem-version=0,--major-os-version=4,--minor-os-version=0)
  endif()
endif()

# meridex_library(NAME SOURCES... [USES LIBRARIES...]): one library for one folder, the same sources in every build.
function(meridex_library name)
  cmake_parse_arguments(LIB "" "" "USES" ${ARGN})
  add_library(${name} STATIC ${LIB_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PUBLIC meridex_options ${LIB_USES})
  target_precompile_headers(${name} REUSE_FROM meridex_common)
endfunction()
