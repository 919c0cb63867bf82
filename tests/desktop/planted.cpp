// A library that stands in the program's folder under the name of one of the system's, and writes a file beside itself
// where it is loaded: NAME.loaded.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void*) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  char path[MAX_PATH] = "";
  GetModuleFileNameA(library, path, MAX_PATH);
  const std::string mark = std::string(path) + ".loaded";
  CloseHandle(CreateFileA(mark.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return TRUE;
}
