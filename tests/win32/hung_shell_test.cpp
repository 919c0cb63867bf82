// A shell that is slow or hangs, seen from the calendar.
#include <thread>

#include "presentation/desktop_embedding.h"
#include "tests/win32/shell_thread.h"
#include "tests/win32/window_on_screen.h"

namespace {

class Hung_Shell : public Window_On_Screen {
 protected:
  Hung_Shell() { Main.Window.Load(); }
  ~Hung_Shell() override { Main.Window.Unload(); }

  /// How long the work takes, in milliseconds.
  static DWORD Time_Of(const std::function<void()>& work) {
    const DWORD start = GetTickCount();
    work();
    return GetTickCount() - start;
  }

  [[nodiscard]] bool On_Desktop() const {
    return GetAncestor(win32::To_Window(Main.Window.Handle()), GA_PARENT) == Desktop.Progman();
  }

  platform::Desktop_Shell& Shell = Platform.System().Shell;
  Shell_Thread Desktop{123, 456};
  const platform::Window_Handle Icons = win32::To_Handle(Desktop.List());
  presentation::Main_Frm Main{Backend};
  settings::Settings Settings;
  state::Calendar_State State;
  presentation::Desktop_Embedding Embedding{Shell, Main, Settings, State, [] {}};
  static constexpr DWORD much_longer = 3000;
};

}  // namespace

TEST_F(Hung_Shell, A_question_isnt_waited_for_longer_than_a_moment) {
  Desktop.Hang();
  std::optional<int> answer = 0;
  EXPECT_LT(Time_Of([&] { answer = Shell.Send(Icons, platform::get_text_back_colour, 0, 200); }), much_longer);
  EXPECT_EQ(answer, std::nullopt);
}

TEST_F(Hung_Shell, Painting_isnt_waited_for_longer_than_a_moment) {
  Desktop.Hang();
  EXPECT_LT(Time_Of([&] {
              Shell.Invalidate(Icons);
              EXPECT_FALSE(Shell.Update(Icons, 200));
            }),
            much_longer);
}

TEST_F(Hung_Shell, A_window_that_answers_is_asked_as_ever) {
  Show();
  EXPECT_EQ(Shell.Send(Window.Handle(), WM_GETTEXTLENGTH, 0, 200), lstrlenA(Window.Caption().c_str()));
}

TEST_F(Hung_Shell, A_start_waits_for_a_shell_that_is_slow) {
  Desktop.Answer_After(1500);
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_EQ(State.Desktop_Back_Colour, 123);
  EXPECT_EQ(State.Desktop_Text_Colour, 456);
  EXPECT_TRUE(On_Desktop());
}

// The system takes a thread for hung that has served no message for five seconds.
TEST_F(Hung_Shell, A_start_waits_for_a_shell_that_has_long_been_silent) {
  Desktop.Hang();
  Sleep(5500);
  const std::jthread later([this] {
    Sleep(500);
    Desktop.Go_On();
  });
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_EQ(State.Desktop_Back_Colour, 123);
  EXPECT_TRUE(On_Desktop());
}

TEST_F(Hung_Shell, A_start_beside_a_shell_that_hangs_leaves_the_calendar_beside_it) {
  Desktop.Hang();
  constexpr DWORD at_most = 10'000;
  EXPECT_LT(Time_Of([&] { Embedding.No_ShowDesktop_and_IconColours(); }), at_most + much_longer);
  EXPECT_EQ(State.Desktop_Back_Colour, 0);
  EXPECT_EQ(State.Desktop_Text_Colour, 0);
  EXPECT_FALSE(On_Desktop());
  Desktop.Go_On();
  EXPECT_TRUE(Embedding.Embed_Again());
  EXPECT_TRUE(On_Desktop());
}

TEST_F(Hung_Shell, The_ticks_of_two_seconds_wait_a_moment_in_all) {
  Settings.Trans_Icons = 1;
  Embedding.No_ShowDesktop_and_IconColours();
  ASSERT_TRUE(On_Desktop());
  Desktop.Hang();
  EXPECT_LT(Time_Of([&] {
              for (int tick = 0; tick < 20; ++tick) Embedding.Keep_Desktop_Text_Clear();
            }),
            1000U);
}
