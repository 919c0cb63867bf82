#include "presentation/desktop_embedding.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"

using memory::Shell_Chain;
using presentation::Desktop_Embedding;

namespace {

class Desktop_Embedding_Test : public ::testing::Test {
 protected:
  Desktop_Embedding_Test() { Main.Window.Load(); }

  [[nodiscard]] bool Moved() { return Shell.Part_Of_Desktop(Main.Window.Handle()); }

  memory::Memory_Platform Platform;
  memory::Memory_Shell& Shell = Platform.Shell;
  presentation::Main_Frm Main{Platform.Backend()};
  settings::Settings Settings;
  state::Calendar_State State;
  int Splashes = 0;
  Desktop_Embedding Embedding{Shell, Main, Settings, State, [this] { ++Splashes; }};
};

}  // namespace

TEST_F(Desktop_Embedding_Test, The_calendar_moves_to_the_window_that_holds_the_icons) {
  for (const bool worker : {false, true}) {
    Shell.Restart();
    Shell.Set_Chain(Shell_Chain::Icon_List);
    Shell.Set_Worker(worker);
    EXPECT_FALSE(Embedding.Embedded());
    Embedding.No_ShowDesktop_and_IconColours();
    EXPECT_TRUE(Moved()) << worker;
    EXPECT_TRUE(Embedding.Embedded()) << worker;
  }
}

TEST_F(Desktop_Embedding_Test, The_chain_stops_where_a_window_is_missing) {
  for (const bool worker : {false, true})
    for (const Shell_Chain chain : {Shell_Chain::None, Shell_Chain::Progman, Shell_Chain::Def_View}) {
      Shell.Set_Worker(worker);
      Shell.Set_Chain(chain);
      Embedding.No_ShowDesktop_and_IconColours();
      EXPECT_FALSE(Embedding.Embedded());
      EXPECT_FALSE(Embedding.Embed_Again());
    }
  EXPECT_EQ(Shell.Moves(), 0);
}

TEST_F(Desktop_Embedding_Test, Icons_in_a_worker_tell_and_take_their_colours) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Worker(true);
  Shell.Set_Icon_Colours(123, 456);
  Settings.Trans_Icons = 1;
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_EQ(State.Desktop_Back_Colour, 123);
  EXPECT_EQ(State.Desktop_Text_Colour, 456);
  Embedding.Keep_Desktop_Text_Clear();
  EXPECT_EQ(Shell.Icon_Back(), platform::no_colour);
}

TEST_F(Desktop_Embedding_Test, A_calendar_that_is_embedded_is_left_where_it_is) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Embedding.No_ShowDesktop_and_IconColours();
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(Embedding.Embed_Again());
  EXPECT_EQ(Shell.Moves(), 1);
}

TEST_F(Desktop_Embedding_Test, After_a_restart_of_the_shell_it_embeds_itself_again_with_the_new_colours) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Settings.Show_Splash = 1;
  Embedding.No_ShowDesktop_and_IconColours();
  Shell.Restart();
  Shell.Set_Chain(Shell_Chain::None);
  EXPECT_FALSE(Embedding.Embedded());
  EXPECT_FALSE(Embedding.Embed_Again()) << "there is no shell yet";
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(7, 8);
  EXPECT_TRUE(Embedding.Embed_Again());
  EXPECT_TRUE(Moved());
  EXPECT_TRUE(Embedding.Embedded());
  EXPECT_EQ(State.Desktop_Back_Colour, 7);
  EXPECT_EQ(State.Desktop_Text_Colour, 8);
  EXPECT_EQ(Splashes, 1) << "the splash belongs to the start";
}

TEST_F(Desktop_Embedding_Test, A_calendar_without_a_desktop_at_its_start_can_embed_itself_later) {
  Embedding.No_ShowDesktop_and_IconColours();
  Shell.Set_Chain(Shell_Chain::Icon_List);
  EXPECT_TRUE(Embedding.Embed_Again());
  EXPECT_TRUE(Moved());
}

TEST_F(Desktop_Embedding_Test, Icons_that_have_gone_to_another_window_take_the_calendar_along) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Embedding.No_ShowDesktop_and_IconColours();
  Shell.Set_Worker(true);
  EXPECT_FALSE(Embedding.Embedded());
  EXPECT_TRUE(Embedding.Embed_Again());
  EXPECT_TRUE(Moved());
}

TEST_F(Desktop_Embedding_Test, A_window_that_was_made_anew_is_not_embedded_yet) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Embedding.No_ShowDesktop_and_IconColours();
  Main.Window.Unload();
  EXPECT_FALSE(Embedding.Embedded());
  Main.Window.Load();
  EXPECT_FALSE(Embedding.Embedded());
  EXPECT_TRUE(Embedding.Embed_Again());
}

TEST_F(Desktop_Embedding_Test, A_desktop_that_refuses_the_calendar_is_asked_once_and_tells_its_colours) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(123, 456);
  Shell.Refuse_Children(true);
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_FALSE(Embedding.Embedded());
  EXPECT_EQ(State.Desktop_Back_Colour, 123);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(Embedding.Embed_Again());
  EXPECT_EQ(Shell.Moves(), 1);
  Shell.Refuse_Children(false);
  EXPECT_FALSE(Embedding.Embed_Again()) << "it stays so";
  Shell.Restart();
  EXPECT_TRUE(Embedding.Embed_Again()) << "another shell";
}

TEST_F(Desktop_Embedding_Test, Icons_that_come_later_than_their_shell_are_found_at_the_next_look) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Refuse_Children(true);
  Embedding.No_ShowDesktop_and_IconColours();
  Shell.Refuse_Children(false);
  Shell.Restart();
  for (const Shell_Chain without_icons : {Shell_Chain::Progman, Shell_Chain::Def_View}) {
    Shell.Set_Chain(without_icons);
    EXPECT_FALSE(Embedding.Embed_Again());
  }
  Shell.Set_Chain(Shell_Chain::Icon_List);
  EXPECT_TRUE(Embedding.Embed_Again());
}

TEST_F(Desktop_Embedding_Test, A_start_waits_for_answers_that_take_their_time) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(123, 456);
  Shell.Answer_After(9'000);
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_TRUE(Moved());
  EXPECT_EQ(State.Desktop_Back_Colour, 123);
  EXPECT_EQ(State.Desktop_Text_Colour, 456);
}

TEST_F(Desktop_Embedding_Test, A_start_without_an_answer_leaves_window_and_colours_as_without_a_desktop) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(123, 456);
  Shell.Hang(true);
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_EQ(Shell.Moves(), 0) << "a move would hang too";
  EXPECT_EQ(Shell.Take_Waits(), 10'000) << "one question is enough";
  EXPECT_EQ(State.Desktop_Back_Colour, 0);
  EXPECT_EQ(State.Desktop_Text_Colour, 0);
  Shell.Hang(false);
  EXPECT_TRUE(Embedding.Embed_Again());
  EXPECT_EQ(State.Desktop_Text_Colour, 456);
}

TEST_F(Desktop_Embedding_Test, A_shell_that_answers_the_first_question_alone_gives_neither_colour) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(123, 456);
  Shell.Hang_After(1);
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_EQ(Shell.Moves(), 0);
  EXPECT_EQ(State.Desktop_Back_Colour, 0);
}

TEST_F(Desktop_Embedding_Test, A_later_look_at_a_shell_that_hangs_is_short_and_rare) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Hang(true);
  Settings.Trans_Icons = 1;
  for (int tick = 0; tick < 52; ++tick) {
    EXPECT_FALSE(Embedding.Embed_Again());
    Embedding.Keep_Desktop_Text_Clear();
  }
  EXPECT_EQ(Shell.Take_Waits(), 4 * 200) << "three times, and once more after five seconds";
  EXPECT_EQ(Shell.Moves(), 0);
}

TEST_F(Desktop_Embedding_Test, Icons_that_were_told_but_did_not_answer_are_painted_when_they_go_on) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(123, 456);
  Settings.Trans_Icons = 1;
  Embedding.No_ShowDesktop_and_IconColours();
  Shell.Hang_After(1);
  Embedding.Keep_Desktop_Text_Clear();
  Shell.Hang(false);
  const auto view = Shell.Find_Child(Shell.Find_Top_Window("Progman", "Program Manager"), "SHELLDLL_DefView");
  Shell.Update(Shell.Find_Child(view, "SysListView32"), 200);
  EXPECT_EQ(Shell.Take_Repaints(), 1);
}

TEST_F(Desktop_Embedding_Test, Icons_that_do_not_answer_are_left_alone_for_five_seconds) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Set_Icon_Colours(123, 456);
  Settings.Trans_Icons = 1;
  Embedding.No_ShowDesktop_and_IconColours();
  // The question, the setting and the painting may each be the one that has no answer.
  for (const int answers : {0, 1, 2}) {
    for (int miss = 1; miss <= 3; ++miss) {
      Shell.Set_Icon_Colours(123, 456);
      Shell.Hang_After(answers);
      Embedding.Keep_Desktop_Text_Clear();
      EXPECT_EQ(Shell.Take_Waits(), 200) << answers << ", " << miss;
    }
    Shell.Hang(false);
    Shell.Set_Icon_Colours(123, 456);
    for (int tick = 0; tick < 50; ++tick) Embedding.Keep_Desktop_Text_Clear();
    EXPECT_EQ(Shell.Icon_Back(), 123) << answers;
    Embedding.Keep_Desktop_Text_Clear();
    EXPECT_EQ(Shell.Icon_Back(), platform::no_colour) << answers;
  }
}

TEST_F(Desktop_Embedding_Test, Icons_that_are_only_busy_are_asked_again_on_the_next_tick) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Settings.Trans_Icons = 1;
  Embedding.No_ShowDesktop_and_IconColours();
  for (int busy_twice = 1; busy_twice <= 3; ++busy_twice) {
    Shell.Set_Icon_Colours(123, 456);
    Shell.Hang(true);
    for (int miss = 1; miss <= 2; ++miss) Embedding.Keep_Desktop_Text_Clear();
    Shell.Hang(false);
    Embedding.Keep_Desktop_Text_Clear();
    EXPECT_EQ(Shell.Icon_Back(), platform::no_colour);
  }
}

TEST_F(Desktop_Embedding_Test, A_move_that_failed_is_tried_again) {
  Shell.Set_Chain(Shell_Chain::Icon_List);
  Shell.Fail_Once();
  Embedding.No_ShowDesktop_and_IconColours();
  EXPECT_FALSE(Embedding.Embedded());
  EXPECT_TRUE(Embedding.Embed_Again());
  EXPECT_TRUE(Embedding.Embedded());
}
