// The stand-in desktop: a DLL that the starter loads into the calendar's process before the calendar's first instruction.
//
// It lives in the calendar's own process, on a thread of its own, because a window that is moved under one of another
// process isn't drawn everywhere the tests run.
#include <windows.h>

#include "desktop_windows.h"

namespace {

DWORD calendar_thread = 0;

/// The calendar's thread has no input queue to join until it makes its first window, so this is tried again and again.
void CALLBACK Join_Input(HWND, UINT, UINT_PTR, DWORD) {
  AttachThreadInput(GetCurrentThreadId(), calendar_thread, TRUE);
}

}  // namespace

/// The thread's procedure; the parameter is the identifier of the calendar's thread.
extern "C" __declspec(dllexport) DWORD WINAPI Run_Shell(void* thread) {
  calendar_thread = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(thread));
  desktop::Make_Desktop_Windows();
  SetTimer(nullptr, 0, 100, Join_Input);
  if (const HANDLE ready = OpenEventA(EVENT_MODIFY_STATE, FALSE, "meridex-desktop-ready")) {
    SetEvent(ready);
    CloseHandle(ready);
  }
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return 0;
}
