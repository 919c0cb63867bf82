// A shell's windows on a thread of their own, as the calendar meets them: "Progman", the view in it, the list of icons in
// that. The list answers the messages for its colours, at once, slowly or never.
#pragma once

#include <atomic>

#include "win32/handle.h"

class Shell_Thread {
 public:
  Shell_Thread(int back, int text);
  Shell_Thread(const Shell_Thread&) = delete;
  Shell_Thread& operator=(const Shell_Thread&) = delete;
  /// Ends the shell, whose windows go with all that is in them.
  ~Shell_Thread();

  [[nodiscard]] HWND Progman() const { return progman_; }
  [[nodiscard]] HWND List() const { return list_; }

  /// Each question for a colour is answered after that time, in milliseconds.
  void Answer_After(DWORD milliseconds) { answer_time_ = milliseconds; }

  /// From now on no message is served, until it goes on.
  void Hang();
  void Go_On();

 private:
  static DWORD WINAPI Run(void* self);
  static LRESULT CALLBACK Top_Proc(HWND window, UINT message, WPARAM w, LPARAM l);
  static LRESULT CALLBACK List_Proc(HWND window, UINT message, WPARAM w, LPARAM l);
  static HWND Make(const char* window_class, WNDPROC procedure, const char* title, HWND parent);
  void Make_Windows();

  std::atomic<int> back_, text_;
  std::atomic<DWORD> answer_time_ = 0;
  HWND progman_ = nullptr, list_ = nullptr;
  win32::Handle_Owner made_, hanging_, go_on_, thread_;
};
