#include "tests/win32/shell_thread.h"

#include "platform/desktop_shell.h"

namespace {

constexpr UINT hang = WM_APP;

Shell_Thread& Shell_Of(HWND window) {
  return *reinterpret_cast<Shell_Thread*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

/// Waits while the calendar's windows take what the other thread sends them.
void Wait_For(HANDLE thread) {
  while (MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_SENDMESSAGE) != WAIT_OBJECT_0) {
    MSG message;
    PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
  }
}

}  // namespace

Shell_Thread::Shell_Thread(int back, int text)
    : back_(back), text_(text), made_(CreateEventA(nullptr, TRUE, FALSE, nullptr)),
      hanging_(CreateEventA(nullptr, FALSE, FALSE, nullptr)), go_on_(CreateEventA(nullptr, FALSE, FALSE, nullptr)),
      thread_(CreateThread(nullptr, 0, Run, this, 0, nullptr)) {
  WaitForSingleObject(made_.Get(), INFINITE);
}

Shell_Thread::~Shell_Thread() {
  Go_On();
  PostMessageA(progman_, WM_CLOSE, 0, 0);
  Wait_For(thread_.Get());
}

void Shell_Thread::Hang() {
  PostMessageA(progman_, hang, 0, 0);
  WaitForSingleObject(hanging_.Get(), INFINITE);
}

/// Until it has served one, the system takes it for a thread that hangs.
void Shell_Thread::Go_On() {
  SetEvent(go_on_.Get());
  SendMessageA(progman_, WM_NULL, 0, 0);
}

DWORD Shell_Thread::Run(void* self) {
  auto& shell = *static_cast<Shell_Thread*>(self);
  shell.Make_Windows();
  SetEvent(shell.made_.Get());
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

HWND Shell_Thread::Make(const char* window_class, WNDPROC procedure, const char* title, HWND parent) {
  WNDCLASSA description = {};
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleA(nullptr);
  description.lpszClassName = window_class;
  RegisterClassA(&description);
  const DWORD style = WS_VISIBLE | (parent == nullptr ? WS_POPUP : WS_CHILD);
  return CreateWindowExA(0, window_class, title, style, 0, 0, 1600, 1200, parent, nullptr, description.hInstance,
                         nullptr);
}

void Shell_Thread::Make_Windows() {
  progman_ = Make("Progman", Top_Proc, "Program Manager", nullptr);
  list_ = Make("SysListView32", List_Proc, "", Make("SHELLDLL_DefView", DefWindowProcA, "", progman_));
  for (const HWND window : {progman_, list_})
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

LRESULT Shell_Thread::Top_Proc(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  if (message != hang) return DefWindowProcA(window, message, w, l);
  Shell_Thread& shell = Shell_Of(window);
  SignalObjectAndWait(shell.hanging_.Get(), shell.go_on_.Get(), INFINITE, FALSE);
  return 0;
}

LRESULT Shell_Thread::List_Proc(HWND window, UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case platform::get_text_colour: Sleep(Shell_Of(window).answer_time_); return Shell_Of(window).text_;
    case platform::get_text_back_colour: Sleep(Shell_Of(window).answer_time_); return Shell_Of(window).back_;
    case platform::set_text_back_colour: Shell_Of(window).back_ = static_cast<int>(l); return TRUE;
    default: return DefWindowProcA(window, message, w, l);
  }
}
