// Under the box that tells of a failure which can't be caught, nothing of the program runs on.
#include <exception>

#include "tests/win32/window_on_screen.h"
#include "toolkit/label.h"
#include "toolkit/timer.h"
#include "win32/accessible_object.h"

namespace {

/// A program with a timer, a window that is pressed and closed, and a reader that has hold of that.
class Program : public Window_On_Screen {
 public:
  /// Fails, and ends the process: with status 0 if nothing of the program could be run any more.
  [[noreturn]] static void Fail() {
    Program program;
    program.Call_All();
    if (program.ran_ != all) ExitProcess(unready);
    running = &program;
    SetTimer(nullptr, 0, 10, Look);
    std::terminate();
  }

 private:
  enum { ticked = 1, pressed = 2, closed = 4, read = 8, all = 15, unready = 16 };

  Program() {
    Ground.Place({0, 0, 6000, 4500});
    Ground.On_Mouse_Down = [this](const toolkit::Mouse_Event&) { ran_ |= pressed; };
    Window.On_Close = [this] { ran_ |= closed; };
    Timer.On_Tick = [this] { ran_ |= ticked; };
    Timer.Enable();
    Show();
    win32::Accessibility services;
    if (services.Start()) held_ = static_cast<IAccessible*>(services.Object_Of(Handle(), OBJID_CLIENT));
  }

  void TestBody() override {}

  /// Does what makes each of them run.
  void Call_All() {
    ran_ = 0;
    SendMessageA(FindWindowA("Meridex_Timers", nullptr), WM_TIMER, 1, 0);
    SendMessageA(Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 20));
    SendMessageA(Handle(), WM_LBUTTONUP, 0, MAKELPARAM(20, 20));
    SendMessageA(Handle(), WM_CLOSE, 0, 0);
    long count = 0;
    if (held_->get_accChildCount(&count) == S_OK) ran_ |= read;
  }

  /// The box's own loop calls it.
  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
    if (FindWindowA("#32770", "Meridex") == nullptr) return;
    running->Call_All();
    ExitProcess(static_cast<UINT>(running->ran_));
  }

  inline static Program* running = nullptr;
  toolkit::Label Ground{Window, "Ground"};
  toolkit::Timer Timer{Backend, "Timer1", 600000};
  IAccessible* held_ = nullptr;
  int ran_ = 0;
};

}  // namespace

TEST(Uncaught_FailureDeathTest, Under_its_box_no_timer_no_window_and_no_reader_runs_the_program_on) {
  EXPECT_EXIT(Program::Fail(), ::testing::ExitedWithCode(0), "");
}
