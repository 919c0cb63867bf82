#include "presentation/day_box.h"

#include <gtest/gtest.h>

#include "presentation/main_frm.h"
#include "tests/basic/error_of.h"
#include "tests/toolkit/fake_backend.h"

namespace {

class Day_Box_Test : public ::testing::Test {
 protected:
  Day_Box_Test() { Settings.Style = 1; }

  Fake_Backend Backend;
  presentation::Main_Frm Made{Backend};
  settings::Settings Settings{};
  state::Calendar_State Calendar;
};

}  // namespace

TEST_F(Day_Box_Test, Is_a_number_and_a_caption_of_the_same_index) {
  EXPECT_EQ(&Made.Box(36).Number, &Made.Box_Lbl[36]);
  EXPECT_EQ(&Made.Box(36).Caption, &Made.Box_Caption_Lbl[36]);
  EXPECT_EQ(Error_Of([&] { static_cast<void>(Made.Box(37)); }), 9);
  EXPECT_EQ(Error_Of([&] { static_cast<void>(Made.Box(-1)); }), 9);
}

TEST_F(Day_Box_Test, A_reset_shows_it_white_and_empty_and_keeps_its_tips_and_underline) {
  const presentation::Day_Box box = Made.Box(3);
  box.Set_Day(5);
  box.Number.BackColor = 255;
  box.Number.ToolTipText = "tip";
  box.Caption.Caption = "text";
  box.Underline(true);
  box.Number.Visible = false;
  box.Caption.Visible = false;
  box.Reset();
  EXPECT_TRUE(box.Number.Visible && box.Caption.Visible);
  EXPECT_EQ(box.Number.BackColor(), 16777215);
  EXPECT_EQ(box.Number.Caption(), "");
  EXPECT_EQ(box.Caption.Caption(), "");
  EXPECT_EQ(box.Number.ToolTipText(), "tip");
  EXPECT_TRUE(box.Number.FontUnderline);
}

TEST_F(Day_Box_Test, Shows_its_day_between_blanks_and_hides_without_one) {
  const presentation::Day_Box box = Made.Box(3);
  box.Set_Day(5);
  box.Hide_If_Empty();
  EXPECT_EQ(box.Number.Caption(), " 5 ");
  EXPECT_TRUE(box.Number.Visible && box.Caption.Visible);
  box.Reset();
  box.Hide_If_Empty();
  EXPECT_FALSE(box.Number.Visible || box.Caption.Visible);
}

TEST_F(Day_Box_Test, Writes_an_event_with_its_tips_where_they_are_in_use) {
  const presentation::Day_Box box = Made.Box(3);
  for (const int mode : {0, 2, 3}) {
    Settings.Tooltips = mode;
    box.Write_Event("Tom && Jane", Settings, Calendar);
    EXPECT_EQ(box.Caption.Caption(), "Tom && Jane\r\n\r\n");
    EXPECT_EQ(box.Number.ToolTipText(), "");
    EXPECT_EQ(box.Caption.ToolTipText(), "");
  }
  Settings.Tooltips = 1;
  box.Write_Event("Tom && Jane", Settings, Calendar);
  EXPECT_EQ(box.Number.ToolTipText(), "Tom & Jane");
  EXPECT_EQ(box.Caption.ToolTipText(), "Tom & Jane");
  EXPECT_FALSE(box.Number.FontUnderline);
}

TEST_F(Day_Box_Test, Loses_all_of_an_event_when_it_is_cleared) {
  const presentation::Day_Box box = Made.Box(3);
  Settings.Tooltips = 1;
  box.Set_Day(5);
  box.Write_Event("Tea", Settings, Calendar);
  box.Underline(true);
  box.Clear_Event();
  EXPECT_EQ(box.Caption.Caption(), "");
  EXPECT_EQ(box.Caption.ToolTipText(), "");
  EXPECT_EQ(box.Number.ToolTipText(), "");
  EXPECT_FALSE(box.Number.FontUnderline);
  EXPECT_EQ(box.Number.Caption(), " 5 ");
}

TEST_F(Day_Box_Test, Clear_Tooltips_empties_the_tips_of_all_boxes_and_captions_and_nothing_else) {
  for (int i = 0; i < presentation::box_count; ++i) {
    Made.Box_Lbl[i].ToolTipText = "box";
    Made.Box_Caption_Lbl[i].ToolTipText = "caption";
    Made.Box_Caption_Lbl[i].Caption = "text";
  }
  Made.Which_Month_Lbl.ToolTipText = "title";
  Made.Clear_Tooltips();
  for (int i = 0; i < presentation::box_count; ++i) {
    EXPECT_EQ(Made.Box_Lbl[i].ToolTipText(), "") << i;
    EXPECT_EQ(Made.Box_Caption_Lbl[i].ToolTipText(), "") << i;
    EXPECT_EQ(Made.Box_Caption_Lbl[i].Caption(), "text") << i;
  }
  EXPECT_EQ(Made.Which_Month_Lbl.ToolTipText(), "title");
}
