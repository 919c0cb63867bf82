#include "presentation/caption_fit.h"

#include <gtest/gtest.h>

#include "presentation/which_style.h"
#include "tests/toolkit/fake_backend.h"

namespace {

// The window's font has 82.5 twips a character here: 8 make 660, 9 make 742.5 and 10 make 825.
class Caption_Fitting_Test : public ::testing::Test {
 protected:
  std::string Fitted(const std::string& text, int box = 0) {
    DotDotDot(Made, text, Made.Box_Caption_Lbl[box], presentation::DDD_Style(Settings, Calendar));
    return Made.Box_Caption_Lbl[box].Caption;
  }

  void Use_Style(int style) {
    Settings.Style = style;
    presentation::Which_Style(Made, style);
  }

  Fake_Backend Backend;
  presentation::Main_Frm Made{Backend};
  settings::Settings Settings{};
  state::Calendar_State Calendar;
};

}  // namespace

TEST_F(Caption_Fitting_Test, Fits_three_lines_in_the_square_style_and_one_in_every_other) {
  Use_Style(1);
  EXPECT_EQ(Fitted("Dentist at nine"), "Dentist \r\nat nine\r\n");
  Use_Style(0);
  EXPECT_EQ(Fitted("Dentist at nine"), "Dentist...");
  Settings.Style = 7;
  EXPECT_EQ(Fitted("Dentist at nine"), "Dentist...");
}

TEST_F(Caption_Fitting_Test, Takes_the_width_from_the_caption_itself) {
  Use_Style(1);
  Made.Box_Caption_Lbl[3].Width = 2000;
  EXPECT_EQ(Fitted("Dentist at nine", 3), "Dentist at nine\r\n\r\n");
  EXPECT_EQ(Fitted("Dentist at nine", 4), "Dentist \r\nat nine\r\n");
  Use_Style(0);
  Use_Style(2);
  EXPECT_EQ(Fitted("1234567890"), "1234567890") << "the small style keeps the thin captions' 870 twips";
}

TEST_F(Caption_Fitting_Test, Fits_alike_in_twips_and_in_pixels) {
  Use_Style(1);
  for (const auto unit : {toolkit::Scale_Unit::Twips, toolkit::Scale_Unit::Pixels}) {
    Made.Window.Scale = unit;
    EXPECT_EQ(Fitted("12345678"), "12345678\r\n\r\n");
    EXPECT_EQ(Fitted("123456 78 9"), "123456 \r\n78 9\r\n");
    EXPECT_EQ(Made.Window.Scale, unit);
  }
}

TEST_F(Caption_Fitting_Test, Measures_in_the_windows_own_font) {
  Use_Style(0);
  Made.Window.FontSize = 16.5;
  EXPECT_EQ(Fitted("12345"), "12345");
  EXPECT_EQ(Fitted("123456"), "12...");
  Made.Box_Caption_Lbl[0].FontSize = 1.0;
  EXPECT_EQ(Fitted("123456"), "12...");
}

TEST_F(Caption_Fitting_Test, Leaves_the_whole_text_in_the_scratch_label) {
  for (const int style : {0, 1, 2}) {
    Use_Style(style);
    for (const char* const text : {"", "Tea", "a text that is far too long && more than that, for every box"}) {
      Fitted(text);
      EXPECT_EQ(Made.DotDotDot_Lbl.Caption(), text) << style;
    }
  }
}

TEST_F(Caption_Fitting_Test, Writes_the_caption_that_it_was_given_alone) {
  Use_Style(1);
  Fitted("Tea", 36);
  for (int i = 0; i < 36; ++i) EXPECT_EQ(Made.Box_Caption_Lbl[i].Caption(), "");
}
