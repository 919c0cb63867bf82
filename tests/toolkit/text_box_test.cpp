#include "toolkit/text_box.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

namespace {

class Text_Box_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Text_Box_Test() {
    Message.On_Change = [this] {
      ++Changes;
      Text_At_Change = Message.Text;
    };
  }

  toolkit::Text_Box Message{Window, "Message_Txt"};
  int Changes = 0;
  std::string Text_At_Change;
};

}  // namespace

TEST_F(Text_Box_Test, Tells_of_a_text_that_the_program_set_after_showing_it) {
  Words told;
  Message.On_Change = [&] { told = Backend.Take(); };
  Message.Text = "Dentist";
  EXPECT_EQ(told, Words{"Message_Txt caption"});
  EXPECT_EQ(Message.Text(), "Dentist");
}

TEST_F(Text_Box_Test, Tells_nothing_of_the_same_text) {
  Message.Text = "";
  EXPECT_EQ(Changes, 0);
  Message.Text = "Dentist";
  Message.Text = "Dentist";
  EXPECT_EQ(Changes, 1);
  EXPECT_EQ(Text_At_Change, "Dentist");
}

TEST_F(Text_Box_Test, Tells_of_what_the_user_typed_and_shows_it_no_second_time) {
  Message.User_Text("typed");
  EXPECT_EQ(Message.Text(), "typed");
  EXPECT_EQ(Changes, 1);
  EXPECT_EQ(Text_At_Change, "typed");
  EXPECT_EQ(Backend.Take(), Words{});
}

TEST_F(Text_Box_Test, Tells_of_no_change_for_a_selection_or_another_property) {
  Message.Text = "Dentist";
  Changes = 0;
  Backend.Take();
  Message.SelStart = 1;
  Message.SelLength = 3;
  Message.Enabled = false;
  EXPECT_EQ(Changes, 0);
  EXPECT_EQ(Backend.Take(), (Words{"Message_Txt selection", "Message_Txt selection", "Message_Txt enabled"}));
}

TEST_F(Text_Box_Test, Loses_its_selection_with_a_new_text) {
  Message.Text = "Dentist";
  Message.SelStart = 0;
  Message.SelLength = 7;
  Message.Text = "another";
  EXPECT_EQ(Message.SelStart(), 0);
  EXPECT_EQ(Message.SelLength(), 0);
}

TEST_F(Text_Box_Test, Takes_typed_characters_one_behind_the_other) {
  for (const char* const character : {"a", "b", "\r\n", "c"}) Message.User_Character(character);
  EXPECT_EQ(Message.Text(), "ab\r\nc");
  EXPECT_EQ(Message.SelStart(), 5);
  EXPECT_EQ(Changes, 4);
}

TEST_F(Text_Box_Test, Takes_a_typed_character_in_place_of_the_selection) {
  Message.Text = "Dentist";
  Message.SelStart = 1;
  Message.SelLength = 5;
  Message.User_Character("o");
  EXPECT_EQ(Message.Text(), "Dot");
  EXPECT_EQ(Message.SelStart(), 2);
  EXPECT_EQ(Message.SelLength(), 0);
}

TEST_F(Text_Box_Test, Takes_a_typed_character_before_the_text_unless_the_selection_says_otherwise) {
  Message.Text = "b";
  Message.User_Character("a");
  EXPECT_EQ(Message.Text(), "ab");
}

TEST_F(Text_Box_Test, Has_its_selection_behind_the_character_when_the_change_is_told) {
  int start = -1;
  Message.On_Change = [&] { start = Message.SelStart; };
  Message.User_Character("x");
  EXPECT_EQ(start, 1);
}

TEST_F(Text_Box_Test, Keeps_its_selection_within_the_text) {
  Message.Text = "Dentist";
  Message.SelStart = 100;
  EXPECT_EQ(Message.SelStart(), 7);
  Message.SelLength = 100;
  EXPECT_EQ(Message.SelLength(), 0);
  Message.SelStart = 3;
  Message.SelLength = 100;
  EXPECT_EQ(Message.SelLength(), 4);
  Message.SelStart = 5;
  EXPECT_EQ(Message.SelLength(), 2);
  Message.SelStart = -1;
  Message.SelLength = -1;
  EXPECT_EQ(Message.SelStart(), 0);
  EXPECT_EQ(Message.SelLength(), 0);
}

TEST_F(Text_Box_Test, Keeps_its_selection_within_what_the_user_left_of_the_text) {
  Message.Text = "Dentist";
  Message.SelStart = 4;
  Message.SelLength = 3;
  Message.User_Text("De");
  EXPECT_EQ(Message.SelStart(), 2);
  EXPECT_EQ(Message.SelLength(), 0);
  Message.User_Character("n");
  EXPECT_EQ(Message.Text(), "Den");
}

TEST_F(Text_Box_Test, Bears_a_change_that_sets_the_text_again) {
  Message.On_Change = [this] {
    if (++Changes < 5) Message.Text = "set again";
  };
  Message.User_Text("typed");
  EXPECT_EQ(Message.Text(), "set again");
  EXPECT_EQ(Changes, 2);
}

TEST_F(Text_Box_Test, Keeps_every_byte) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  Message.Text = all;
  EXPECT_EQ(Message.Text(), all);
  EXPECT_EQ(Text_At_Change, all);
}

TEST_F(Text_Box_Test, Needs_no_listener) {
  Message.On_Change = nullptr;
  Message.Text = "a";
  Message.User_Character("b");
  EXPECT_EQ(Message.Text(), "ba");
}
