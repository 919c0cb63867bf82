#include "presentation/main_frm.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

using presentation::Main_Frm;
using toolkit::Bounds;
using toolkit::Label;

namespace {

class Main_Frm_Test : public ::testing::Test {
 protected:
  Fake_Backend Backend;
  Main_Frm Made{Backend};
};

void Expect_Font(const Label& label, const std::string& name, double size, bool bold, bool italic) {
  EXPECT_EQ(label.FontName(), name) << label.Name;
  EXPECT_EQ(label.FontSize(), size) << label.Name;
  EXPECT_EQ(label.FontBold(), bold) << label.Name;
  EXPECT_EQ(label.FontItalic(), italic) << label.Name;
  EXPECT_FALSE(label.FontUnderline()) << label.Name;
}

}  // namespace

TEST_F(Main_Frm_Test, Is_made_as_the_square_box) {
  EXPECT_EQ(Made.Window.Width(), 6450);
  EXPECT_EQ(Made.Window.Height(), 6725);
  for (int i = 0; i < 37; ++i) {
    const double left = 90 + i % 7 * 900;
    const double top = 810 + i / 7 * 990;
    EXPECT_EQ(Made.Box_Lbl[i].In_Twips(), (Bounds{left, top, 825, 915})) << i;
    EXPECT_EQ(Made.Box_Caption_Lbl[i].In_Twips(), (Bounds{left + 45, top + 270, 735, 600})) << i;
  }
  for (int i = 0; i < 7; ++i) EXPECT_EQ(Made.Day_Lbl[i].In_Twips(), (Bounds{90.0 + i * 900, 450, 825, 285})) << i;
  EXPECT_EQ(Made.Prev_Month_Lbl.In_Twips(), (Bounds{90, 90, 285, 285}));
  EXPECT_EQ(Made.Next_Month_Lbl.In_Twips(), (Bounds{6030, 90, 285, 285}));
  EXPECT_EQ(Made.Which_Month_Lbl.In_Twips(), (Bounds{495, 90, 5435, 285}));
  EXPECT_EQ(Made.DotDotDot_Lbl.In_Twips(), (Bounds{4410, 6435, 1170, 195}));
  for (const toolkit::Picture_Box* const picture :
       {&Made.Clear_Pic, &Made.File_Pic, &Made.Settings_Pic, &Made.Exit_Pic})
    EXPECT_EQ(picture->In_Twips(), (Bounds{0, 0, 195, 195})) << picture->Name;
}

TEST_F(Main_Frm_Test, Has_37_boxes_and_7_headers) {
  EXPECT_EQ(Made.Box_Lbl.Count(), 37);
  EXPECT_EQ(Made.Box_Caption_Lbl.Count(), 37);
  EXPECT_EQ(Made.Day_Lbl.Count(), 7);
}

TEST_F(Main_Frm_Test, Gives_its_labels_their_fonts) {
  Expect_Font(Made.Box_Lbl[36], "Arial", 9, true, false);
  for (const Label* const label : Made.Title_Row()) Expect_Font(*label, "Arial", 9.75, true, true);
  // These two are measured by the window's own font.
  for (const Label* const label : {&Made.Box_Caption_Lbl[0], &Made.DotDotDot_Lbl})
    Expect_Font(*label, Made.Window.FontName, Made.Window.FontSize, Made.Window.FontBold, Made.Window.FontItalic);
}

TEST_F(Main_Frm_Test, Aligns_texts_left_in_boxes_and_in_the_middle_elsewhere) {
  using toolkit::Alignment;
  EXPECT_EQ(Made.Box_Lbl[0].Alignment(), Alignment::Left);
  EXPECT_EQ(Made.DotDotDot_Lbl.Alignment(), Alignment::Left);
  EXPECT_EQ(Made.Box_Caption_Lbl[0].Alignment(), Alignment::Centre);
  for (const Label* const label : Made.Title_Row()) EXPECT_EQ(label->Alignment(), Alignment::Centre) << label->Name;
}

TEST_F(Main_Frm_Test, Shows_what_lies_under_captions_and_title_row) {
  EXPECT_TRUE(Made.Box_Caption_Lbl[0].Transparent());
  EXPECT_FALSE(Made.Box_Lbl[0].Transparent());
  for (const Label* const label : Made.Title_Row()) EXPECT_TRUE(label->Transparent()) << label->Name;
}

TEST_F(Main_Frm_Test, Borders_boxes_and_title_row_but_not_captions) {
  EXPECT_TRUE(Made.Box_Lbl[0].Fixed_Border());
  EXPECT_FALSE(Made.Box_Caption_Lbl[0].Fixed_Border());
  for (const Label* const label : Made.Title_Row()) EXPECT_TRUE(label->Fixed_Border()) << label->Name;
}

TEST_F(Main_Frm_Test, Takes_the_ampersand_for_a_mark_in_boxes_and_captions_alone) {
  EXPECT_TRUE(Made.Box_Lbl[0].Mnemonics());
  EXPECT_TRUE(Made.Box_Caption_Lbl[0].Mnemonics());
  for (const Label* const label : Made.Title_Row()) EXPECT_FALSE(label->Mnemonics()) << label->Name;
}

TEST_F(Main_Frm_Test, Draws_each_caption_over_its_box) {
  const auto& controls = Made.Window.Controls();
  const auto place_of = [&](const toolkit::Control& control) {
    return std::find(controls.begin(), controls.end(), &control);
  };
  for (int i = 0; i < 37; ++i) EXPECT_LT(place_of(Made.Box_Lbl[i]), place_of(Made.Box_Caption_Lbl[i])) << i;
}

TEST_F(Main_Frm_Test, Shows_all_but_the_scratch_label_and_the_pictures) {
  for (const toolkit::Control* const control : Made.Window.Controls()) {
    const bool hidden = control->Name == "DotDotDot_Lbl" || control->Name.ends_with("_Pic");
    EXPECT_EQ(control->Visible(), !hidden) << control->Name;
  }
}

TEST_F(Main_Frm_Test, Starts_dark_grey) {
  EXPECT_EQ(Made.Window.BackColor(), 0x4B4B4B);
  EXPECT_EQ(Made.Prev_Month_Lbl.Caption(), "<");
  EXPECT_EQ(Made.Next_Month_Lbl.Caption(), ">");
}
