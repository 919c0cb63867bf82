#include "presentation/which_style.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

using presentation::Main_Frm;
using presentation::Which_Style;
using toolkit::Alignment;
using toolkit::Bounds;

namespace {

struct Expected {
  int style;
  double box_width, box_height, gap;
  double next_left, title_width, window_width, five_rows, six_rows;
};

const Expected styles[] = {
    {0, 1275, 320, 100, 9330, 8735, 9750, 2860, 3280},
    {1, 825, 915, 75, 6030, 5435, 6450, 5735, 6725},
    {2, 375, 285, 75, 2880, 2285, 3300, 2585, 2945},
};

class Which_Style_Test : public ::testing::Test {
 protected:
  /// The main_frm as a text, to tell whether anything moved.
  std::string Picture() {
    std::string picture;
    for (const toolkit::Control* const control : Made.Window.Controls()) {
      const Bounds& place = control->In_Twips();
      for (const double number : {place.Left, place.Top, place.Width, place.Height})
        picture += std::to_string(number) + ' ';
    }
    return picture + std::to_string(Made.Window.Width) + ' ' + std::to_string(Made.Window.Height);
  }

  void Show_Six_Rows(bool six) {
    Made.Box_Lbl[35].Visible = six;
    Made.Box_Lbl[36].Visible = false;
  }

  Fake_Backend Backend;
  Main_Frm Made{Backend};
};

}  // namespace

TEST_F(Which_Style_Test, Lays_out_every_box_by_column_and_row) {
  for (const Expected& expected : styles) {
    Which_Style(Made, expected.style);
    for (int i = 0; i < 37; ++i) {
      const double left = 90 + i % 7 * (expected.box_width + expected.gap);
      const double top = 810 + i / 7 * (expected.box_height + expected.gap);
      EXPECT_EQ(Made.Box_Lbl[i].In_Twips(), (Bounds{left, top, expected.box_width, expected.box_height}))
          << expected.style << ' ' << i;
      EXPECT_EQ(Made.Box_Lbl[i].Alignment(), expected.style == 2 ? Alignment::Centre : Alignment::Left);
    }
  }
}

TEST_F(Which_Style_Test, Puts_captions_into_the_boxes_of_the_thin_and_the_square_style) {
  for (const int style : {2, 0, 1, 0, 2, 1}) {
    Which_Style(Made, style);
    if (style == 2) continue;
    for (int i = 0; i < 37; ++i) {
      const Bounds& box = Made.Box_Lbl[i].In_Twips();
      const Bounds expected =
          style == 0 ? Bounds{box.Left + 360, box.Top + 55, 870, 220} : Bounds{box.Left + 45, box.Top + 270, 735, 600};
      EXPECT_EQ(Made.Box_Caption_Lbl[i].In_Twips(), expected) << style << ' ' << i;
      EXPECT_EQ(Made.Box_Caption_Lbl[i].Alignment(), style == 0 ? Alignment::Left : Alignment::Centre);
    }
  }
}

TEST_F(Which_Style_Test, Parks_captions_of_the_small_style_with_the_size_that_they_have) {
  Which_Style(Made, 0);
  Which_Style(Made, 2);
  for (int i = 0; i < 37; ++i) {
    EXPECT_EQ(Made.Box_Caption_Lbl[i].In_Twips(), (Bounds{9999, 9999, 870, 220})) << i;
    EXPECT_EQ(Made.Box_Caption_Lbl[i].Alignment(), Alignment::Left);
  }
  Which_Style(Made, 1);
  Which_Style(Made, 2);
  EXPECT_EQ(Made.Box_Caption_Lbl[36].In_Twips(), (Bounds{9999, 9999, 735, 600}));
  EXPECT_EQ(Made.Box_Caption_Lbl[36].Alignment(), Alignment::Centre);
}

TEST_F(Which_Style_Test, Derives_the_header_row_and_the_window) {
  for (const Expected& expected : styles) {
    for (const bool six : {false, true}) {
      Show_Six_Rows(six);
      Which_Style(Made, expected.style);
      for (int i = 0; i < 7; ++i)
        EXPECT_EQ(Made.Day_Lbl[i].In_Twips(),
                  (Bounds{90 + i * (expected.box_width + expected.gap), 450, expected.box_width, 285}));
      EXPECT_EQ(Made.Next_Month_Lbl.In_Twips(), (Bounds{expected.next_left, 90, 285, 285}));
      EXPECT_EQ(Made.Which_Month_Lbl.In_Twips(), (Bounds{495, 90, expected.title_width, 285}));
      EXPECT_EQ(Made.Prev_Month_Lbl.In_Twips(), (Bounds{90, 90, 285, 285}));
      EXPECT_EQ(Made.Window.Width(), expected.window_width);
      EXPECT_EQ(Made.Window.Height(), six ? expected.six_rows : expected.five_rows);
    }
  }
}

TEST_F(Which_Style_Test, Looks_at_box_35_alone_for_the_height) {
  for (const bool last : {false, true}) {
    Made.Box_Lbl[36].Visible = last;
    Made.Box_Lbl[35].Visible = false;
    Which_Style(Made, 1);
    EXPECT_EQ(Made.Window.Height(), 5735);
    Made.Box_Lbl[35].Visible = true;
    Which_Style(Made, 1);
    EXPECT_EQ(Made.Window.Height(), 6725);
  }
}

TEST_F(Which_Style_Test, Gives_hidden_boxes_their_places_too) {
  for (int i = 0; i < 37; ++i) Made.Box_Lbl[i].Visible = false;
  Which_Style(Made, 0);
  EXPECT_EQ(Made.Box_Lbl[36].In_Twips(), (Bounds{90 + 1375, 810 + 5 * 420, 1275, 320}));
  EXPECT_FALSE(Made.Box_Lbl[36].Visible());
}

TEST_F(Which_Style_Test, Turns_every_underline_off) {
  for (const int style : {0, 1, 2}) {
    for (int i = 0; i < 37; ++i) Made.Box_Lbl[i].FontUnderline = true;
    Which_Style(Made, style);
    for (int i = 0; i < 37; ++i) EXPECT_FALSE(Made.Box_Lbl[i].FontUnderline()) << style << ' ' << i;
  }
}

TEST_F(Which_Style_Test, Leaves_boxes_of_any_other_style_as_they_are) {
  for (const int before : {0, 1, 2}) {
    Which_Style(Made, before);
    const std::string picture = Picture();
    Made.Box_Lbl[3].FontUnderline = true;
    for (const int style : {-1, 3, 7, 32767, -32768}) {
      Which_Style(Made, style);
      EXPECT_EQ(Picture(), picture) << before << ' ' << style;
      EXPECT_TRUE(Made.Box_Lbl[3].FontUnderline());
    }
  }
}

TEST_F(Which_Style_Test, Derives_header_row_and_window_of_any_other_style_from_the_boxes_as_they_stand) {
  Made.Box_Lbl[0].Width = 500;
  Made.Box_Lbl[6].Left = 4000;
  Made.Box_Lbl[6].Width = 700;
  Made.Box_Lbl[28].Top = 3000;
  Made.Box_Lbl[28].Height = 100;
  Made.Box_Lbl[35].Visible = false;
  Which_Style(Made, 9);
  EXPECT_EQ(Made.Day_Lbl[6].In_Twips(), (Bounds{4000, 450, 500, 285}));
  EXPECT_EQ(Made.Next_Month_Lbl.In_Twips().Left, 4000 + 500 - 285);
  EXPECT_EQ(Made.Which_Month_Lbl.In_Twips().Width, 4215 - 495 - 100);
  EXPECT_EQ(Made.Window.Width(), 4000 + 700 + 135);
  EXPECT_EQ(Made.Window.Height(), 3000 + 100 + 50);
}

TEST_F(Which_Style_Test, Works_in_twips_whatever_unit_it_finds) {
  Which_Style(Made, 1);
  const std::string in_twips = Picture();
  Which_Style(Made, 0);
  Made.Window.Scale = toolkit::Scale_Unit::Pixels;
  Which_Style(Made, 1);
  EXPECT_EQ(Made.Window.Scale, toolkit::Scale_Unit::Twips);
  EXPECT_EQ(Picture(), in_twips);
}

TEST_F(Which_Style_Test, Tells_nobody_of_what_stays) {
  Which_Style(Made, 1);
  Made.Window.Load();
  Backend.Take();
  Which_Style(Made, 1);
  EXPECT_EQ(Backend.Take(), Words());
}
