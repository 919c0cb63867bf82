#include "editor/edit_frm.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"

namespace {

using memory::Memory_Files;
using memory::Memory_Platform;

/// The editor between the event file and the calendar's labels, on the in-memory platform.
class Edit_Frm_Test : public ::testing::Test {
 protected:
  Edit_Frm_Test() {
    Settings.Style = 1;
    Settings.Tooltips = 1;
    Calendar.Selected_Date = "10/3/2004";
    Calendar.Current_Box = 9;
  }

  std::string File() { return Platform.Files.Bytes(data_file).value_or("no file"); }

  void Type(const std::string& text) { Editor.Message_Txt.User_Text(text); }

  [[nodiscard]] toolkit::Label& Box() const { return Main_Frm.Box_Lbl[9]; }
  [[nodiscard]] toolkit::Label& Caption() const { return Main_Frm.Box_Caption_Lbl[9]; }

  const std::string data_file = Memory_Files::Full_Path("calendar.dat");
  Memory_Platform Platform;
  settings::Settings Settings{};
  settings::Desktop_Mode Desktop{Platform.Store};
  state::Calendar_State Calendar;
  basic::File_Channel Channel{Platform.Files};
  presentation::Main_Frm Main_Frm{Platform.Backend()};
  events::Event_File Event_File{Platform.Files, Channel, Platform.Message_Box, Calendar, Desktop};
  int Idle_Restarts = 0;
  editor::Edit_Frm Editor{Platform.Backend(), Main_Frm, Event_File, Settings, Calendar, [this] { ++Idle_Restarts; }};
};

}  // namespace

TEST_F(Edit_Frm_Test, An_editor_that_is_not_open_holds_no_text_and_no_tick) {
  Editor.Window.Load();
  Type("left over");
  Editor.Every_Year_Chk.Value = 1;
  EXPECT_EQ(Editor.Content().Text, "left over");
  EXPECT_TRUE(Editor.Content().Every_Year);
  Type("Tom & Jane");
  EXPECT_EQ(Editor.Content().Text, "Tom && Jane");
  Editor.Window.Unload();
  EXPECT_EQ(Editor.Content().Text, "");
  EXPECT_FALSE(Editor.Content().Every_Year);
}

TEST_F(Edit_Frm_Test, Every_opening_starts_from_fresh_controls) {
  Editor.Window.Load();
  Editor.Date_Lbl.Caption = "some day";
  Type("left over");
  Editor.Every_Year_Chk.Value = 1;
  Editor.Window.Unload();
  Editor.Window.Load();
  EXPECT_EQ(Editor.Date_Lbl.Caption(), "");
  EXPECT_EQ(Editor.Message_Txt.Text(), "");
  EXPECT_EQ(Editor.Every_Year_Chk.Value(), 0);
  EXPECT_FALSE(Editor.Apply_Btn.Enabled);
  EXPECT_EQ(Editor.Window.Caption(), "Meridex - 0 Characters - 0 Words.");
}

TEST_F(Edit_Frm_Test, The_client_area_is_in_the_middle_of_the_screen) {
  Editor.Window.Load();
  EXPECT_EQ(Editor.Window.Client_Width(), 4935);
  EXPECT_EQ(Editor.Window.Client_Height(), 3000);
  EXPECT_EQ(Editor.Window.Left() * 2 + Editor.Window.Width(), 1280 * 15);
  EXPECT_EQ(Editor.Window.Top() * 2 + Editor.Window.Height(), 1024 * 15);
}

TEST_F(Edit_Frm_Test, The_setting_alone_at_1_takes_the_enter_key_from_ok_at_each_activation) {
  for (const int setting : {0, 1, 2, -1, 1, 0}) {
    Settings.Carriage_Return = setting;
    Editor.Window.Show();
    Platform.Windows().Activate(nullptr);
    Platform.Windows().Activate(&Editor.Window);
    EXPECT_EQ(Editor.Ok_Btn.Default(), setting != 1) << setting;
    EXPECT_TRUE(Editor.Cancel_Btn.Cancel);
  }
}

TEST_F(Edit_Frm_Test, Each_way_of_closing_tells_of_activity_once) {
  Editor.Window.Show();
  Editor.Cancel_Btn.User_Click();
  EXPECT_EQ(Idle_Restarts, 1);
  Editor.Window.Show();
  Editor.Window.Close_Requested();
  EXPECT_EQ(Idle_Restarts, 2);
  Editor.Window.Show();
  Editor.Ok_Btn.User_Click();
  EXPECT_EQ(Idle_Restarts, 3);
  Editor.Window.Show();
  Editor.Window.System().Input.Key_Down(Editor.Window, {toolkit::key_escape});
  EXPECT_EQ(Idle_Restarts, 4);
  Editor.Window.Unload();
  EXPECT_EQ(Idle_Restarts, 4);
}

TEST_F(Edit_Frm_Test, A_change_of_the_text_counts_it_and_gives_something_to_save) {
  Editor.Window.Load();
  Type("Tom & Jane\r\nat nine");
  EXPECT_EQ(Editor.Window.Caption(), "Meridex - 19 Characters - 5 Words.");
  EXPECT_TRUE(Editor.Apply_Btn.Enabled);
  Editor.Apply_Btn.Enabled = false;
  Editor.Message_Txt.Text = "by the program";
  EXPECT_EQ(Editor.Window.Caption(), "Meridex - 14 Characters - 3 Words.");
  EXPECT_TRUE(Editor.Apply_Btn.Enabled);
  Editor.Apply_Btn.Enabled = false;
  Editor.Every_Year_Chk.User_Click();
  EXPECT_FALSE(Editor.Apply_Btn.Enabled);
}

TEST_F(Edit_Frm_Test, Saving_writes_the_file_shows_the_text_and_silences_the_day) {
  Editor.Window.Load();
  Type("\"Tom\" & Jane");
  Editor.Apply_Btn_Click();
  EXPECT_EQ(File(), "\"10/3/2004='Tom' && Jane\"\r\n");
  EXPECT_EQ(Caption().ToolTipText(), "'Tom' & Jane");
  EXPECT_EQ(Box().ToolTipText(), "'Tom' & Jane");
  EXPECT_EQ(Caption().Caption(), "'Tom' \r\n&& Jane\r\n");
  EXPECT_EQ(Main_Frm.DotDotDot_Lbl.Caption(), "'Tom' && Jane");
  EXPECT_FALSE(Box().FontUnderline);
  EXPECT_TRUE(Calendar.Alerted_Today);
  EXPECT_FALSE(Editor.Window.Loaded());
}

TEST_F(Edit_Frm_Test, Other_tooltip_modes_leave_the_tips_as_they_are) {
  for (const int mode : {0, 2, 3}) {
    Settings.Tooltips = mode;
    Box().ToolTipText = "old";
    Editor.Window.Load();
    Type("new");
    Editor.Apply_Btn_Click();
    EXPECT_EQ(Box().ToolTipText(), "old") << mode;
  }
}

TEST_F(Edit_Frm_Test, Only_a_text_in_the_small_style_of_the_setting_is_underlined) {
  const auto underlined = [this](const std::string& text) {
    Editor.Window.Load();
    Type(text);
    Editor.Apply_Btn_Click();
    return Box().FontUnderline();
  };
  Settings.Style = 2;
  EXPECT_TRUE(underlined("event"));
  EXPECT_FALSE(underlined(""));
  EXPECT_TRUE(underlined(" "));
  Settings.Use_Themes = 1;
  EXPECT_TRUE(underlined("event"));
  Settings.Use_Theme_Style = 1;
  EXPECT_FALSE(underlined("event"));
  Settings.Use_Themes = 2;
  EXPECT_TRUE(underlined("event"));
  Settings.Style = 0;
  EXPECT_FALSE(underlined("event"));
}

TEST_F(Edit_Frm_Test, A_save_that_fails_goes_through_with_all_that_follows) {
  Platform.Files.Put(data_file, "\"1/1/2004=x\"\r\n");
  Platform.Files.Fill_Up(data_file);
  Editor.Window.Load();
  Type("event");
  Editor.Apply_Btn_Click();
  const auto shown = Platform.Message_Box.Take_Shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].Text, "Error saving data file.");
  EXPECT_EQ(File(), "");
  EXPECT_EQ(Caption().Caption(), "event\r\n\r\n");
  EXPECT_TRUE(Calendar.Alerted_Today);
  EXPECT_FALSE(Editor.Window.Loaded());
}

TEST_F(Edit_Frm_Test, A_line_that_is_no_event_ends_the_save_before_anything_is_shown) {
  Platform.Files.Put(data_file, "junk\r\n");
  Editor.Window.Load();
  Type("event");
  EXPECT_THROW(Editor.Apply_Btn_Click(), basic::Run_Error);
  EXPECT_EQ(File(), "junk\r\n");
  EXPECT_EQ(Caption().Caption(), "");
  EXPECT_FALSE(Calendar.Alerted_Today);
}

TEST_F(Edit_Frm_Test, An_empty_text_on_a_day_without_an_event_writes_nothing) {
  Editor.Window.Load();
  Editor.Apply_Btn_Click();
  EXPECT_EQ(File(), "no file");
  EXPECT_TRUE(Calendar.Alerted_Today);
}
