// The stand-in desktop: a DLL that the starter loads into the calendar's process before the calendar's first instruction.
//
// It lives in the calendar's own process, on a thread of its own, because a window that is moved under one of another
// process isn't drawn everywhere the tests run.
#include <windows.h>

#include <string_view>

#include "desktop_windows.h"
#include "report.h"

namespace {

DWORD calendar_thread = 0;

/// The calendar's thread has no input queue to join until it makes its first window, so this is tried again and again.
void CALLBACK Join_Input(HWND, UINT, UINT_PTR, DWORD) {
  AttachThreadInput(GetCurrentThreadId(), calendar_thread, TRUE);
}

WNDPROC calendar_proc = nullptr;

/// The calendar's own procedure, behind one that takes from the window what it asks for, before it has it.
LRESULT CALLBACK Without_Layers(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_STYLECHANGING && static_cast<int>(w) == GWL_EXSTYLE) {
    auto& style = *reinterpret_cast<STYLESTRUCT*>(l);
    if ((style.styleNew & WS_EX_LAYERED) != 0) desktop::Report("layers refused");
    style.styleNew &= ~static_cast<DWORD>(WS_EX_LAYERED);
  }
  return CallWindowProcA(calendar_proc, window, message, w, l);
}

LRESULT CALLBACK Take_Layers(int code, WPARAM w, LPARAM l) {
  const auto window = reinterpret_cast<HWND>(w);
  char name[32] = "";
  if (code == HCBT_CREATEWND && GetClassNameA(window, name, sizeof name) != 0 &&
      std::string_view(name) == "Meridex_Form")
    calendar_proc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Without_Layers)));
  return CallNextHookEx(nullptr, code, w, l);
}

/// MERIDEX_DESKTOP_LAYERS=refused plays a system that lets none of the calendar's windows be layered.
void Refuse_Layers_If_Told() {
  char text[16] = "";
  GetEnvironmentVariableA("MERIDEX_DESKTOP_LAYERS", text, sizeof text);
  if (std::string_view(text) == "refused") SetWindowsHookExA(WH_CBT, Take_Layers, nullptr, calendar_thread);
}

}  // namespace

/// The thread's procedure; the parameter is the identifier of the calendar's thread.
extern "C" __declspec(dllexport) DWORD WINAPI Run_Shell(void* thread) {
  calendar_thread = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(thread));
  desktop::Make_Desktop_Windows();
  Refuse_Layers_If_Told();
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
