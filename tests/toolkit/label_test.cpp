#include "toolkit/label.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

namespace {

// A line of ten characters is 825 twips wide, and each line 247.5 twips high.
class Label_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Label_Test() {
    Text.Place({10, 20, 825, 100});
    Backend.Take();
  }

  [[nodiscard]] double Height() const { return Text.In_Twips().Height; }

  toolkit::Label Text{Window, "Text_Lbl"};
};

}  // namespace

TEST_F(Label_Test, Keeps_its_height_unless_it_sizes_itself) {
  Text.Caption = "a caption of more than one line";
  Text.FontSize = 20.0;
  Text.Width = 100;
  EXPECT_EQ(Height(), 100.0);
}

TEST_F(Label_Test, Takes_the_height_of_its_text_when_it_begins_to_size_itself) {
  Text.Caption = "twenty characters...";
  Text.AutoSize = true;
  EXPECT_EQ(Height(), 495.0);
  EXPECT_EQ(Text.In_Twips(), (toolkit::Bounds{10, 20, 825, 495})) << "place and width stay";
}

TEST_F(Label_Test, Follows_its_text_its_font_and_its_width) {
  Text.AutoSize = true;
  EXPECT_EQ(Height(), 247.5) << "one line for no text";
  Text.Caption = "twenty characters...";
  EXPECT_EQ(Height(), 495.0);
  Text.Width = 1650;
  EXPECT_EQ(Height(), 247.5);
  Text.FontBold = true;
  EXPECT_EQ(Height(), 495.0);
  Text.FontSize = 16.5;
  EXPECT_EQ(Height(), 1980.0);
}

TEST_F(Label_Test, Follows_its_width_in_pixels_too) {
  Text.AutoSize = true;
  Text.Caption = "twenty characters...";
  Window.Scale = toolkit::Scale_Unit::Pixels;
  Text.Width = 110;
  EXPECT_EQ(Height(), 247.5);
}

TEST_F(Label_Test, Sizes_itself_once_for_a_change_and_not_for_a_move) {
  Text.AutoSize = true;
  Text.Caption = "twenty characters...";
  Backend.Take();
  Backend.Heights_Measured = 0;
  Text.Left = 500;
  EXPECT_EQ(Backend.Take(), Words{"Text_Lbl bounds"});
  EXPECT_EQ(Backend.Heights_Measured, 0);
  Text.Caption = "twenty characters!!!";
  EXPECT_EQ(Backend.Take(), Words{"Text_Lbl caption"}) << "the height stays";
  Text.Caption = "ten chars.";
  EXPECT_EQ(Backend.Take(), (Words{"Text_Lbl caption", "Text_Lbl bounds"}));
}

TEST_F(Label_Test, Is_as_high_as_its_text_is_drawn_where_ampersands_mark_the_next_character) {
  Text.AutoSize = true;
  Text.Caption = "&&&&&&&&&&&&&&&&&&&&";  // ten are drawn
  EXPECT_EQ(Height(), 247.5);
  Text.Caption = "&t&e&n& &c&h&a&r&s&.";
  EXPECT_EQ(Height(), 247.5);
  Text.Caption = "ten chars.&";
  EXPECT_EQ(Height(), 247.5);
  Text.Caption = "eleven &&&& chars";
  EXPECT_EQ(Height(), 495.0);
}

TEST_F(Label_Test, Counts_each_ampersand_that_it_draws) {
  Text.Mnemonics = false;
  Text.AutoSize = true;
  Text.Caption = "&&&&&&&&&&&&&&&&&&&&";
  EXPECT_EQ(Height(), 495.0);
}
