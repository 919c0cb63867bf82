#include "toolkit/control.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/image.h"

using toolkit::Label;
using toolkit::Scale_Unit;

namespace {

// 15 twips a pixel across, 12 down.
class Control_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Label Box{Window, "Box_Lbl"};
};

}  // namespace

TEST_F(Control_Test, Starts_visible_enabled_alone_and_without_a_size) {
  EXPECT_TRUE(Box.Visible());
  EXPECT_TRUE(Box.Enabled());
  EXPECT_EQ(Box.ToolTipText(), "");
  EXPECT_EQ(Box.Index, -1);
  EXPECT_EQ(Box.In_Twips(), toolkit::Bounds());
}

TEST_F(Control_Test, Reads_its_lengths_in_the_unit_that_the_window_has_now) {
  Box.Place({150, 240, 300, 480});
  EXPECT_EQ(Box.Left, 150.0);
  EXPECT_EQ(Box.Top, 240.0);
  Window.Scale = Scale_Unit::Pixels;
  EXPECT_EQ(Box.Left, 10.0);
  EXPECT_EQ(Box.Top, 20.0);
  EXPECT_EQ(Box.Width, 20.0);
  EXPECT_EQ(Box.Height, 40.0);
  Window.Scale = Scale_Unit::Twips;
  EXPECT_EQ(Box.Width, 300.0);
  EXPECT_EQ(Box.Height, 480.0);
}

TEST_F(Control_Test, Writes_its_lengths_in_the_unit_that_the_window_has_now) {
  Window.Scale = Scale_Unit::Pixels;
  Box.Left = 10;
  Box.Top = 20;
  Box.Width = 20;
  Box.Height = 40;
  EXPECT_EQ(Box.In_Twips(), (toolkit::Bounds{150, 240, 300, 480}));
  Window.Scale = Scale_Unit::Twips;
  Box.Left = 10;
  EXPECT_EQ(Box.In_Twips().Left, 10.0);
}

TEST_F(Control_Test, Keeps_fractions_of_a_pixel) {
  Box.Left = 100;
  Window.Scale = Scale_Unit::Pixels;
  EXPECT_DOUBLE_EQ(Box.Left, 100 / 15.0);
}

TEST_F(Control_Test, Copies_a_length_as_it_reads_and_not_where_it_is_kept) {
  Label other(Window, "Other_Lbl");
  other.Left = 70;
  Box.Left = other.Left;
  EXPECT_EQ(Box.Left, 70.0);
  other.Left = 80;
  EXPECT_EQ(Box.Left, 70.0);
  Box.Top = Box.Left;
  EXPECT_EQ(Box.In_Twips().Top, 70.0);
}

TEST_F(Control_Test, Tells_its_window_once_of_a_new_length_and_of_a_new_place) {
  Box.Left = 150;
  EXPECT_EQ(Backend.Take(), Words{"Box_Lbl bounds"});
  Box.Place({1, 2, 3, 4});
  EXPECT_EQ(Backend.Take(), Words{"Box_Lbl bounds"});
}

TEST_F(Control_Test, Tells_nobody_of_a_length_or_a_place_that_it_has) {
  Box.Place({150, 240, 300, 480});
  Backend.Take();
  Box.Place({150, 240, 300, 480});
  Box.Left = 150;
  Window.Scale = Scale_Unit::Pixels;
  Box.Left = 10;
  Box.Height = 40;
  EXPECT_EQ(Backend.Take(), Words{});
}

TEST_F(Control_Test, Tells_its_window_what_has_changed) {
  Box.Caption = " 5 ";
  Box.Visible = false;
  Box.Enabled = false;
  Box.ToolTipText = "Dentist";
  Box.BackColor = toolkit::white;
  Box.ForeColor = 255;
  Box.FontUnderline = true;
  Box.FontName = "Arial";
  Box.Alignment = toolkit::Alignment::Centre;
  Box.Transparent = true;
  EXPECT_EQ(Backend.Take(), (Words{"Box_Lbl caption", "Box_Lbl visible", "Box_Lbl enabled", "Box_Lbl tool tip",
                                   "Box_Lbl appearance", "Box_Lbl appearance", "Box_Lbl appearance",
                                   "Box_Lbl appearance", "Box_Lbl appearance", "Box_Lbl appearance"}));
}

TEST_F(Control_Test, Tells_nobody_of_a_property_set_to_what_it_is) {
  Box.Caption = "";
  Box.Visible = true;
  Box.FontSize = 8.25;
  Box.FontName = "MS Sans Serif";
  Box.BackColor = toolkit::System_Colour(15);
  EXPECT_EQ(Backend.Take(), Words{});
}

TEST_F(Control_Test, Tells_nobody_while_its_window_is_not_loaded) {
  Window.Unload();
  Backend.Take();
  Box.Caption = " 5 ";
  Box.Left = 15;
  EXPECT_EQ(Backend.Take(), Words{});
  EXPECT_EQ(Box.Caption(), " 5 ") << "but keeps it";
}

TEST_F(Control_Test, Joins_its_window_on_top_and_leaves_it_when_it_goes) {
  {
    const Label later(Window, "Later_Lbl", 3);
    ASSERT_EQ(Window.Controls().size(), 2U);
    EXPECT_EQ(Window.Controls()[0], &Box);
    EXPECT_EQ(Window.Controls()[1], &later);
  }
  EXPECT_EQ(Window.Controls(), std::vector<toolkit::Control*>{&Box});
}

TEST_F(Control_Test, An_image_tells_of_a_new_picture) {
  toolkit::Image image(Window, "Logo_Img");
  EXPECT_EQ(image.Picture(), platform::Stock_Picture::None);
  image.Picture = platform::Stock_Picture::None;
  EXPECT_EQ(Backend.Take(), Words{});
  image.Picture = static_cast<platform::Stock_Picture>(static_cast<int>(platform::Stock_Picture::None) + 1);
  EXPECT_EQ(Backend.Take(), Words{"Logo_Img appearance"});
}
