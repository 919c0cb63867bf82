// meridex-desktop-start.exe "COMMAND LINE": starts a program with the stand-in desktop in its process and ends with the
// program's exit status; 200 and above are the starter's own failures. The desktop's DLL lies beside the starter.
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

constexpr DWORD patience = 10000;  // milliseconds

int Fail(int status, const char* what) {
  std::fprintf(stderr, "meridex-desktop-start: %s failed (%lu)\n", what, GetLastError());
  return status;
}

/// Runs a procedure in the other process and waits for its end; gives the low half of its result.
bool Call_There(HANDLE process, LPTHREAD_START_ROUTINE procedure, void* parameter, DWORD& result) {
  const HANDLE thread = CreateRemoteThread(process, nullptr, 0, procedure, parameter, 0, nullptr);
  if (thread == nullptr) return false;
  const bool ended = WaitForSingleObject(thread, patience) == WAIT_OBJECT_0;
  GetExitCodeThread(thread, &result);
  CloseHandle(thread);
  return ended;
}

template <class Procedure>
Procedure Address_Of(HMODULE module, const char* name) {
  const FARPROC found = GetProcAddress(module, name);
  Procedure procedure = nullptr;
  std::memcpy(&procedure, &found, sizeof procedure);
  return procedure;
}

/// Loads the DLL in the other process and starts its shell there.
bool Start_Shell(const PROCESS_INFORMATION& started, const char* dll) {
  const std::size_t size = std::strlen(dll) + 1;
  void* const path = VirtualAllocEx(started.hProcess, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
  if (path == nullptr || !WriteProcessMemory(started.hProcess, path, dll, size, nullptr)) return false;
  const HMODULE kernel = GetModuleHandleA("kernel32");
  DWORD low_half = 0;
  if (!Call_There(started.hProcess, Address_Of<LPTHREAD_START_ROUTINE>(kernel, "LoadLibraryA"), path, low_half))
    return false;
  // The thread's result has room for the low half of the DLL's base alone; the upper half is the same as here.
  const HMODULE here = LoadLibraryA(dll);
  if (here == nullptr || low_half == 0) return false;
  const auto base_here = reinterpret_cast<ULONG_PTR>(here);
  const auto shell_here = reinterpret_cast<ULONG_PTR>(Address_Of<LPTHREAD_START_ROUTINE>(here, "Run_Shell"));
  const ULONG_PTR base_there = (base_here & ~static_cast<ULONG_PTR>(0xFFFFFFFFU)) | low_half;
  const auto shell_there = reinterpret_cast<LPTHREAD_START_ROUTINE>(base_there + (shell_here - base_here));
  void* const main_thread = reinterpret_cast<void*>(static_cast<ULONG_PTR>(started.dwThreadId));
  return CreateRemoteThread(started.hProcess, nullptr, 0, shell_there, main_thread, 0, nullptr) != nullptr;
}

std::string Dll_Beside_Starter() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  const std::string starter = path;
  return starter.substr(0, starter.rfind('\\') + 1) + "meridex-desktop.dll";
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return Fail(200, "usage: meridex-desktop-start COMMAND-LINE;");
  const HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, "meridex-desktop-ready");
  STARTUPINFOA how = {};
  how.cb = sizeof how;
  PROCESS_INFORMATION started = {};
  if (!CreateProcessA(nullptr, arguments[1], nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr, nullptr, &how,
                      &started))
    return Fail(201, "starting the program");
  if (!Start_Shell(started, Dll_Beside_Starter().c_str()) || WaitForSingleObject(ready, patience) != WAIT_OBJECT_0) {
    TerminateProcess(started.hProcess, 202);
    return Fail(202, "starting the desktop");
  }
  ResumeThread(started.hThread);
  WaitForSingleObject(started.hProcess, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(started.hProcess, &status);
  return static_cast<int>(status);
}
