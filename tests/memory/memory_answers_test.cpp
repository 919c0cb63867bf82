// Message boxes and popup menus that are answered in advance.
#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "toolkit/form.h"

using memory::Memory_Platform;
using platform::Box_Answer;
using platform::Box_Buttons;
using platform::Box_Icon;
using platform::Menu_Item;

namespace {

class Memory_Answers_Test : public ::testing::Test {
 protected:
  Box_Answer Ask(Box_Buttons buttons) {
    return Platform.Message_Box.Show("Title", "Text", Box_Icon::Question, buttons);
  }
  int Choose(const std::vector<Menu_Item>& items) { return Platform.Menu.Track(Form.Handle(), items); }

  Memory_Platform Platform;
  toolkit::Form Form{Platform.Backend(), "Main_Frm"};
};

const std::vector<Menu_Item> items = {{1, "One"}, {2, "Two", true}, {3, "Three"}};

}  // namespace

TEST_F(Memory_Answers_Test, An_unprepared_box_is_refused_or_gets_its_only_answer) {
  EXPECT_EQ(Ask(Box_Buttons::OK), Box_Answer::OK);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::No);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::Cancel);
}

TEST_F(Memory_Answers_Test, Answers_are_given_in_their_order) {
  Platform.Message_Box.Prepare(Box_Answer::Yes);
  Platform.Message_Box.Prepare(Box_Answer::No);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::Yes);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::No);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::Cancel);
}

TEST_F(Memory_Answers_Test, An_answer_waits_for_a_box_that_has_its_button) {
  Platform.Message_Box.Prepare(Box_Answer::Yes);
  EXPECT_EQ(Ask(Box_Buttons::OK), Box_Answer::OK);
  Platform.Message_Box.Prepare(Box_Answer::Cancel);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::Yes);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::No);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::Cancel);
}

TEST_F(Memory_Answers_Test, An_open_box_serves_events_until_its_answer) {
  bool served = false;
  Platform.Time.Schedule(1000, [&] { served = true; });
  Platform.Message_Box.Prepare(Box_Answer::OK, 1000);
  EXPECT_EQ(Ask(Box_Buttons::OK), Box_Answer::OK);
  EXPECT_TRUE(served);
  EXPECT_EQ(Platform.Time.Elapsed(), 1000);
}

TEST_F(Memory_Answers_Test, Boxes_are_remembered_in_the_order_of_showing) {
  Platform.Message_Box.Prepare(Box_Answer::OK, 1000);
  Platform.Time.Schedule(500, [this] { Ask(Box_Buttons::Yes_No); });
  Ask(Box_Buttons::OK);
  const auto shown = Platform.Message_Box.Take_Shown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].Buttons, Box_Buttons::OK);
  EXPECT_EQ(shown[0].Title, "Title");
  EXPECT_EQ(shown[0].Text, "Text");
  EXPECT_EQ(shown[0].Icon, Box_Icon::Question);
  EXPECT_EQ(shown[1].Answer, Box_Answer::No);
  EXPECT_TRUE(Platform.Message_Box.Take_Shown().empty());
}

TEST_F(Memory_Answers_Test, A_menu_gives_the_chosen_number) {
  Form.Load();
  Platform.Menu.Prepare(3);
  EXPECT_EQ(Choose(items), 3);
  EXPECT_EQ(Choose(items), 0);
}

TEST_F(Memory_Answers_Test, A_grey_or_missing_item_cant_be_chosen) {
  Form.Load();
  Platform.Menu.Prepare(2);
  Platform.Menu.Prepare(9);
  EXPECT_EQ(Choose(items), 0);
  EXPECT_EQ(Choose(items), 0);
}

TEST_F(Memory_Answers_Test, Menus_are_remembered_with_their_windows) {
  Form.Load();
  Choose(items);
  const auto shown = Platform.Menu.Take_Shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].Owner, "Main_Frm");
  EXPECT_EQ(shown[0].Items[1].Text, "Two");
  EXPECT_TRUE(Platform.Menu.Take_Shown().empty());
}

TEST_F(Memory_Answers_Test, A_menu_without_an_owner_is_a_fault) { EXPECT_THROW(Choose(items), std::logic_error); }

namespace {

const std::optional<std::string> cancelled;

/// As a dialog control hands it in.
platform::File_Dialog_Record Empty_Record(std::size_t room_for_title = 260) {
  return {.Title = "Title",
          .Initial_Folder = "",
          .Filter = std::string("Text\0*.txt\0\0", 12),
          .File = std::string(260, '\0'),
          .File_Title = std::string(room_for_title, '\0')};
}

}  // namespace

TEST_F(Memory_Answers_Test, An_unprepared_file_dialog_is_cancelled) {
  platform::File_Dialog_Record record = Empty_Record();
  EXPECT_FALSE(Platform.File_Dialog.Show_Open(record));
  EXPECT_EQ(record.File, std::string(260, '\0'));
}

TEST_F(Memory_Answers_Test, File_dialogs_are_answered_in_their_order_and_remembered) {
  Platform.File_Dialog.Prepare("C:\\Folder\\a.txt");
  Platform.File_Dialog.Prepare(cancelled);
  platform::File_Dialog_Record record = Empty_Record();
  EXPECT_TRUE(Platform.File_Dialog.Show_Save(record));
  EXPECT_STREQ(record.File.c_str(), "C:\\Folder\\a.txt");
  EXPECT_STREQ(record.File_Title.c_str(), "a.txt");
  EXPECT_EQ(record.File.size(), 260U);
  EXPECT_FALSE(Platform.File_Dialog.Show_Open(record));
  const auto shown = Platform.File_Dialog.Take_Shown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_TRUE(shown[0].To_Save);
  EXPECT_EQ(shown[0].Title, "Title");
  EXPECT_EQ(shown[0].Filter, "Text|*.txt");
  EXPECT_EQ(shown[0].Path.value_or(""), "C:\\Folder\\a.txt");
  EXPECT_FALSE(shown[1].To_Save);
  EXPECT_FALSE(shown[1].Path.has_value());
  EXPECT_TRUE(Platform.File_Dialog.Take_Shown().empty());
}

TEST_F(Memory_Answers_Test, A_title_without_room_is_cut_and_a_path_without_it_is_no_choice) {
  Platform.File_Dialog.Prepare("C:\\abc");
  platform::File_Dialog_Record record = Empty_Record(3);
  EXPECT_TRUE(Platform.File_Dialog.Show_Open(record));
  EXPECT_EQ(record.File_Title, std::string("ab\0", 3));
  Platform.File_Dialog.Prepare("C:\\abc");
  record = Empty_Record(0);
  EXPECT_TRUE(Platform.File_Dialog.Show_Open(record));
  EXPECT_EQ(record.File_Title, "");
  Platform.File_Dialog.Prepare("C:\\" + std::string(257, 'x'));
  record = Empty_Record();
  EXPECT_FALSE(Platform.File_Dialog.Show_Open(record));
}

TEST_F(Memory_Answers_Test, An_open_file_dialog_serves_events_and_keeps_the_user_out) {
  bool out = false;
  Platform.Time.Schedule(1000, [&] { out = Platform.Windows_And_Timers.Input.Modal_Open(); });
  Platform.File_Dialog.Prepare(cancelled, 1000);
  platform::File_Dialog_Record record = Empty_Record();
  Platform.File_Dialog.Show_Open(record);
  EXPECT_TRUE(out);
  EXPECT_FALSE(Platform.Windows_And_Timers.Input.Modal_Open());
}
