// What the calendar relies on of the desktop's shell: what it answers, and what is heard where it doesn't.
#include "tests/contract/service_world.h"

namespace {

using platform::Window_Handle;

constexpr int patience = 1000, short_patience = 100;  // milliseconds

class Shell_Cases : public Service_Cases {
 protected:
  Window_Handle List() {
    const Window_Handle top = Shell.Find_Top_Window("Progman", "Program Manager");
    return Shell.Find_Child(Shell.Find_Child(top, "SHELLDLL_DefView"), "SysListView32");
  }

  platform::Desktop_Shell& Shell = World->System().Shell;
};

}  // namespace

TEST_F(Shell_Cases, The_icons_tell_and_take_their_colours) {
  World->Begin_Shell(123, 456);
  ASSERT_NE(List(), 0U);
  EXPECT_EQ(Shell.Send(List(), platform::get_text_back_colour, 0, patience), 123);
  EXPECT_EQ(Shell.Send(List(), platform::get_text_colour, 0, patience), 456);
  EXPECT_TRUE(Shell.Send(List(), platform::set_text_back_colour, platform::no_colour, patience));
  EXPECT_EQ(Shell.Send(List(), platform::get_text_back_colour, 0, patience), platform::no_colour)
      << "which is an answer too";
  EXPECT_TRUE(Shell.Update(List(), patience));
}

TEST_F(Shell_Cases, A_window_that_is_gone_gives_no_answer) {
  World->Begin_Shell(123, 456);
  const Window_Handle list = List();
  World->End_Shell();
  EXPECT_FALSE(Shell.Exists(list));
  EXPECT_EQ(Shell.Send(list, platform::get_text_back_colour, 0, patience), std::nullopt);
  EXPECT_FALSE(Shell.Update(list, patience));
}

TEST_F(Shell_Cases, A_shell_that_hangs_is_there_but_gives_no_answer) {
  World->Begin_Shell(123, 456);
  World->Hang_Shell();
  ASSERT_TRUE(Shell.Exists(List()));
  EXPECT_EQ(Shell.Send(List(), platform::get_text_back_colour, 0, short_patience), std::nullopt);
  EXPECT_FALSE(Shell.Update(List(), short_patience));
}
