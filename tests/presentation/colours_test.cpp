#include "presentation/colours.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

namespace {

class Colours_Test : public ::testing::Test {
 protected:
  Colours_Test() {
    Settings.Today = 1;
    Settings.Normal = 2;
    Settings.Fore = 3;
    Settings.Num = 4;
    Settings.Text = 5;
    Settings.Back = 6;
    Settings.Inactive = 7;
    Settings.Menu_Colour_Source = 1;
    Calendar.Desktop_Back_Colour = 8;
    Calendar.Desktop_Text_Colour = 9;
  }

  void Expect_Title_Row(int colour) {
    for (const toolkit::Label* const label : Made.Title_Row())
      EXPECT_EQ(label->ForeColor(), colour) << label->Name << ' ' << label->Index;
  }

  Fake_Backend Backend;
  presentation::Main_Frm Made{Backend};
  settings::Settings Settings{};
  state::Calendar_State Calendar;
  presentation::Colours Colours{Made, Settings, Calendar};
};

}  // namespace

TEST_F(Colours_Test, Set_Colours_paints_everything) {
  Backend.Active = &Made.Window;
  Colours.Set_Colours();
  for (int i = 0; i < 37; ++i) {
    EXPECT_EQ(Made.Box_Lbl[i].BackColor(), 2);
    EXPECT_EQ(Made.Box_Lbl[i].ForeColor(), 4);
    EXPECT_EQ(Made.Box_Caption_Lbl[i].ForeColor(), 5);
  }
  EXPECT_EQ(Made.Window.BackColor(), 6);
  Expect_Title_Row(3);
}

TEST_F(Colours_Test, Set_Colours_leaves_the_title_row_inactive_while_another_window_is_active) {
  toolkit::Form editor{Backend, "Edit_Frm"};
  for (toolkit::Form* const active : {static_cast<toolkit::Form*>(nullptr), &editor}) {
    Backend.Active = active;
    for (const bool inactive : {false, true}) {
      Calendar.Window_Inactive = inactive;
      Colours.Set_Colours();
      Expect_Title_Row(7);
      EXPECT_EQ(Made.Window.BackColor(), 6);
      EXPECT_EQ(Calendar.Window_Inactive, inactive);
    }
  }
}

TEST_F(Colours_Test, Each_pass_paints_its_own) {
  const auto untouched = Made.Box_Lbl[0].BackColor();
  const auto text = Made.Box_Lbl[0].ForeColor();
  Colours.Colour_Nums();
  EXPECT_EQ(Made.Box_Lbl[36].ForeColor(), 4);
  EXPECT_EQ(Made.Box_Lbl[36].BackColor(), untouched);
  EXPECT_EQ(Made.Box_Caption_Lbl[36].ForeColor(), text);
  Colours.Colour_Texts();
  EXPECT_EQ(Made.Box_Caption_Lbl[36].ForeColor(), 5);
  EXPECT_EQ(Made.Box_Lbl[36].BackColor(), untouched);
  Colours.Colour_Boxes();
  EXPECT_EQ(Made.Box_Lbl[36].BackColor(), 2);
  Expect_Title_Row(text);
}

TEST_F(Colours_Test, The_title_row_takes_the_settings_colours_from_every_source_but_0) {
  for (const int source : {1, 2, -1}) {
    Settings.Menu_Colour_Source = 0;
    Colours.Colour_Menus();
    Settings.Menu_Colour_Source = source;
    Colours.Colour_Menus();
    EXPECT_EQ(Made.Window.BackColor(), 6) << source;
    Expect_Title_Row(3);
  }
}

TEST_F(Colours_Test, The_title_row_takes_the_desktops_colours_from_source_0) {
  Settings.Menu_Colour_Source = 0;
  Colours.Colour_Menus();
  EXPECT_EQ(Made.Window.BackColor(), 8);
  Expect_Title_Row(9);
}

TEST_F(Colours_Test, Icons_without_a_background_make_the_window_dark_grey) {
  Settings.Menu_Colour_Source = 0;
  Calendar.Desktop_Back_Colour = -1;
  Colours.Colour_Menus();
  EXPECT_EQ(Made.Window.BackColor(), 4934475);
  Calendar.Desktop_Back_Colour = -2;
  Colours.Colour_Menus();
  EXPECT_EQ(Made.Window.BackColor(), -2);
  // The settings' colour is never looked at that way.
  Settings.Menu_Colour_Source = 1;
  Settings.Back = -1;
  Colours.Colour_Menus();
  EXPECT_EQ(Made.Window.BackColor(), -1);
}

TEST_F(Colours_Test, Colour_Inactive_paints_the_ten_labels_alone) {
  Colours.Colour_Menus();
  Colours.Colour_Inactive();
  Expect_Title_Row(7);
  EXPECT_EQ(Made.Window.BackColor(), 6);
  EXPECT_EQ(Made.Title_Row().size(), 10U);
}
