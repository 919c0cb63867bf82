#include "win32/system_library.h"

#include <string>

namespace win32 {

namespace {

constexpr DWORD system_folder_alone = 0x0800;  // LOAD_LIBRARY_SEARCH_SYSTEM32, of the newer systems

HMODULE Kernel() { return GetModuleHandleA("kernel32.dll"); }

/// Whether the manifest says which library of that name is meant: that one the system gives for the bare name alone.
bool Named_By_Manifest(const char* name) {
  constexpr ULONG library_section = 2;  // ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION
  const auto find = Find_Function<BOOL WINAPI(DWORD, const GUID*, ULONG, const char*, ACTCTX_SECTION_KEYED_DATA*)>(
      Kernel(), "FindActCtxSectionStringA");
  ACTCTX_SECTION_KEYED_DATA found = {};
  found.cbSize = sizeof found;
  return find != nullptr && find(0, nullptr, library_section, name, &found) != 0;
}

std::string In_System_Folder(const char* name) {
  char folder[MAX_PATH] = "";
  const UINT length = GetSystemDirectoryA(folder, MAX_PATH);
  return length < MAX_PATH ? std::string(folder, length) + '\\' + name : std::string();
}

}  // namespace

Library_Owner System_Library(const char* name) {
  // A system that knows this function knows the flag.
  if (Find_Function<void()>(Kernel(), "AddDllDirectory") != nullptr)
    return Library_Owner(LoadLibraryExA(name, nullptr, system_folder_alone));
  if (Named_By_Manifest(name)) return Library_Owner(LoadLibraryA(name));
  // With this flag the libraries that it needs are looked for in its own folder first.
  return Library_Owner(LoadLibraryExA(In_System_Folder(name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

void Keep_To_System_Libraries() {
  if (const auto set = Find_Function<BOOL WINAPI(DWORD)>(Kernel(), "SetDefaultDllDirectories"))
    set(system_folder_alone);
  // Before that one there was a function that takes the current folder out of the search.
  else if (const auto leave_out = Find_Function<BOOL WINAPI(const char*)>(Kernel(), "SetDllDirectoryA")) leave_out("");
}

}  // namespace win32
