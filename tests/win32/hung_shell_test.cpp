// A shell that hangs, seen from the calendar.
#include <future>
#include <thread>

#include "platform/desktop_shell.h"
#include "tests/win32/window_on_screen.h"

namespace {

/// A window of another thread, which doesn't serve its messages until the object goes.
class Hung_Window {
 public:
  Hung_Window() : thread_([this] { Hang(); }) { made_.get_future().wait(); }
  Hung_Window(const Hung_Window&) = delete;
  Hung_Window& operator=(const Hung_Window&) = delete;
  ~Hung_Window() {
    go_.set_value();
    thread_.join();
  }

  [[nodiscard]] platform::Window_Handle Handle() const { return win32::To_Handle(window_); }

 private:
  void Hang() {
    window_ = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    made_.set_value();
    go_.get_future().wait();
    DestroyWindow(window_);
  }

  HWND window_ = nullptr;
  std::promise<void> made_, go_;
  std::thread thread_;
};

class Hung_Shell : public Window_On_Screen {
 protected:
  /// How long the work takes, in milliseconds.
  static DWORD Time_Of(const std::function<void()>& work) {
    const DWORD start = GetTickCount();
    work();
    return GetTickCount() - start;
  }

  platform::Desktop_Shell& Shell = Platform.System().Shell;
  Hung_Window Icons;
  static constexpr DWORD patience = 3000;
};

}  // namespace

TEST_F(Hung_Shell, A_question_isnt_waited_for_longer_than_a_moment) {
  int answer = 0;
  EXPECT_LT(Time_Of([&] { answer = Shell.Send(Icons.Handle(), platform::get_text_back_colour, 0); }), patience);
  EXPECT_EQ(answer, platform::no_colour);
}

TEST_F(Hung_Shell, Painting_isnt_waited_for_longer_than_a_moment) {
  EXPECT_LT(Time_Of([&] {
              Shell.Invalidate(Icons.Handle());
              Shell.Update(Icons.Handle());
            }),
            patience);
}

TEST_F(Hung_Shell, A_window_that_answers_is_asked_as_ever) {
  Show();
  EXPECT_EQ(Shell.Send(Window.Handle(), WM_GETTEXTLENGTH, 0), lstrlenA(Window.Caption().c_str()));
}
