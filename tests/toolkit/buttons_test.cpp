#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"

namespace {

class Check_Box_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Check_Box_Test() {
    Every_Year.On_Click = [this] {
      ++Clicks;
      Value_At_Click = Every_Year.Value;
    };
  }

  toolkit::Check_Box Every_Year{Window, "Every_Year_Chk"};
  int Clicks = 0;
  int Value_At_Click = -1;
};

class Command_Button_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Command_Button_Test() {
    Apply.On_Click = [this] { ++Clicks; };
  }

  toolkit::Command_Button Apply{Window, "Apply_Btn"};
  int Clicks = 0;
};

}  // namespace

TEST_F(Check_Box_Test, Is_clicked_by_the_program_that_sets_its_value) {
  EXPECT_EQ(Every_Year.Value(), 0);
  Every_Year.Value = 1;
  EXPECT_EQ(Clicks, 1);
  EXPECT_EQ(Value_At_Click, 1) << "the click sees the new value";
  Every_Year.Value = 0;
  EXPECT_EQ(Clicks, 2);
}

TEST_F(Check_Box_Test, Is_not_clicked_by_setting_the_value_that_it_has) {
  Every_Year.Value = 0;
  EXPECT_EQ(Clicks, 0);
  Every_Year.Value = 1;
  Every_Year.Value = 1;
  EXPECT_EQ(Clicks, 1);
}

TEST_F(Check_Box_Test, Is_not_clicked_by_another_property) {
  Every_Year.Caption = "Every year";
  Every_Year.Enabled = false;
  EXPECT_EQ(Clicks, 0);
  EXPECT_EQ(Backend.Take(), (Words{"Every_Year_Chk caption", "Every_Year_Chk enabled"}));
}

TEST_F(Check_Box_Test, Turns_over_with_the_user_s_click) {
  Every_Year.User_Click();
  EXPECT_EQ(Every_Year.Value(), 1);
  EXPECT_EQ(Clicks, 1);
  Every_Year.User_Click();
  EXPECT_EQ(Every_Year.Value(), 0);
  EXPECT_EQ(Clicks, 2);
}

TEST_F(Check_Box_Test, Shows_the_tick_before_the_click_is_told) {
  Words told;
  Every_Year.On_Click = [&] { told = Backend.Take(); };
  Every_Year.Value = 1;
  EXPECT_EQ(told, Words{"Every_Year_Chk value"});
}

TEST_F(Check_Box_Test, Takes_no_user_s_click_when_disabled_or_hidden) {
  Every_Year.Enabled = false;
  Every_Year.User_Click();
  Every_Year.Enabled = true;
  Every_Year.Visible = false;
  Every_Year.User_Click();
  EXPECT_EQ(Every_Year.Value(), 0);
  EXPECT_EQ(Clicks, 0);
}

TEST_F(Check_Box_Test, Is_clicked_by_the_program_even_when_disabled) {
  Every_Year.Enabled = false;
  Every_Year.Value = 1;
  EXPECT_EQ(Clicks, 1);
}

TEST_F(Check_Box_Test, Bears_a_click_that_sets_it_back) {
  Every_Year.On_Click = [this] {
    ++Clicks;
    Every_Year.Value = 0;
  };
  Every_Year.Value = 1;
  EXPECT_EQ(Every_Year.Value(), 0);
  EXPECT_EQ(Clicks, 2);
}

TEST_F(Check_Box_Test, Needs_no_listener) {
  Every_Year.On_Click = nullptr;
  Every_Year.Value = 1;
  EXPECT_EQ(Every_Year.Value(), 1);
}

TEST_F(Command_Button_Test, Is_clicked_by_the_user) {
  Apply.User_Click();
  EXPECT_EQ(Clicks, 1);
}

TEST_F(Command_Button_Test, Takes_no_click_when_disabled_or_hidden) {
  Apply.Enabled = false;
  Apply.User_Click();
  Apply.Enabled = true;
  Apply.Visible = false;
  Apply.User_Click();
  EXPECT_EQ(Clicks, 0);
}

TEST_F(Command_Button_Test, Needs_no_listener) {
  Apply.On_Click = nullptr;
  Apply.User_Click();
  EXPECT_EQ(Clicks, 0);
}

TEST_F(Command_Button_Test, Tells_of_its_caption_and_marks) {
  Apply.Caption = "&Apply";
  Apply.Default = true;
  Apply.Cancel = true;
  EXPECT_EQ(Backend.Take(), (Words{"Apply_Btn caption", "Apply_Btn default button", "Apply_Btn default button"}));
}
