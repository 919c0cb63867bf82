// The pixels of what a form's window paints itself.
#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"
#include "win32/dib_picture.h"
#include "win32/painter.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0), white = RGB(255, 255, 255), green = RGB(0, 255, 0), black = RGB(0, 0, 0);
constexpr int side = 100;

// Places are pixels: the scale is one twip a pixel.
class Painted_Kinds : public ::testing::Test {
 protected:
  Painted_Kinds() { Window.BackColor = static_cast<toolkit::Colour>(white); }

  static platform::Shared_Picture One_Colour(int width, int height, COLORREF colour) {
    auto picture = std::make_shared<win32::Dib_Picture>(width, height);
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) picture->Set_Pixel(x, y, static_cast<int>(colour));
    return picture;
  }

  void Paint() {
    const win32::Scale scale{1, 1, 96};
    win32::Painted_List controls;
    for (const toolkit::Control* const control : Window.Controls()) {
      auto painted = win32::Make_Painted_Control(*control);
      painted->Place = scale.Pixels(control->In_Window());
      painted->Shown = control->On_View();
      controls.push_back({control, std::move(painted)});
    }
    win32::Fonts fonts(scale);
    win32::Stock_Pictures pictures(nullptr);
    win32::Themes themes;
    const RECT client = {0, 0, side, side};
    Screen.On_Context([&](HDC to) {
      win32::Painter({fonts, pictures, themes}).Paint(to, client, client, Window, controls);
    });
  }

  [[nodiscard]] COLORREF At(int x, int y) const { return static_cast<COLORREF>(Screen.Pixel(x, y)); }

  /// How many pixels of a row have a colour.
  [[nodiscard]] int In_Row(int y, COLORREF colour) const {
    int count = 0;
    for (int x = 0; x < side; ++x) count += At(x, y) == colour ? 1 : 0;
    return count;
  }

  [[nodiscard]] int In_All(COLORREF colour) const {
    int count = 0;
    for (int y = 0; y < side; ++y) count += In_Row(y, colour);
    return count;
  }

  Fake_Backend Backend;
  toolkit::Form Window{Backend, "Settings_Frm"};
  win32::Dib_Picture Screen{side, side};
};

}  // namespace

TEST_F(Painted_Kinds, An_image_fills_its_place_in_its_frame_within_its_border) {
  toolkit::Frame frame(Window, "Frame");
  frame.Bordered = false;
  frame.Place({10, 20, 80, 70});
  toolkit::Image image(frame, "Image");
  image.Place({5, 5, 30, 20});
  image.Loaded = One_Colour(3, 7, red);
  Paint();
  EXPECT_EQ(In_All(red), 30 * 20);
  EXPECT_EQ(At(15, 25), red);
  EXPECT_EQ(At(44, 44), red);
  image.Fixed_Border = true;
  Paint();
  EXPECT_EQ(In_All(red), 28 * 18);
  frame.Visible = false;
  Paint();
  EXPECT_EQ(In_All(white), side * side);
}

TEST_F(Painted_Kinds, A_picture_box_keeps_its_picture_at_its_size_and_cuts_it_off_at_its_border) {
  toolkit::Picture_Box box(Window, "Box");
  box.Place({10, 10, 30, 20});
  box.Loaded = One_Colour(8, 50, red);
  Paint();
  EXPECT_EQ(In_All(red), 8 * 20);
  EXPECT_EQ(In_All(white), side * side - 8 * 20) << "without a ground what lies behind it is seen";
  box.Opaque = true;
  box.Fixed_Border = true;
  box.BackColor = static_cast<toolkit::Colour>(green);
  Paint();
  EXPECT_EQ(In_All(red), 8 * 18);
  EXPECT_EQ(In_All(green), 28 * 18 - 8 * 18);
}

TEST_F(Painted_Kinds, A_line_leaves_out_its_last_point_and_one_that_inverts_takes_the_opposite) {
  toolkit::Picture_Box box(Window, "Box");
  box.Place({10, 10, 60, 60});
  box.Fixed_Border = true;
  box.Draw({5, 4, 25, 4, static_cast<toolkit::Colour>(red), toolkit::Draw_Mode::Copy, {}});
  box.Draw({0, 8, 100, 8, 0, toolkit::Draw_Mode::Invert, {}});
  Paint();
  EXPECT_EQ(In_Row(15, red), 20);
  EXPECT_EQ(At(16, 15), red);
  EXPECT_EQ(At(36, 15), white);
  EXPECT_EQ(In_Row(19, black), 60) << "58 within the border, and the border";
  box.Draw({0, 8, 100, 8, 0, toolkit::Draw_Mode::Invert, {}});
  Paint();
  EXPECT_EQ(In_Row(19, black), 2);
}

TEST_F(Painted_Kinds, Texts_are_drawn_on_the_picture_until_it_is_cleared) {
  toolkit::Picture_Box box(Window, "Box");
  box.Place({10, 10, 60, 60});
  box.Draw({5, 5, 0, 0, static_cast<toolkit::Colour>(red), toolkit::Draw_Mode::Copy, "50"});
  Paint();
  EXPECT_GT(In_All(red), 5);
  box.Cls();
  Paint();
  EXPECT_EQ(In_All(white), side * side);
}

TEST_F(Painted_Kinds, A_frame_has_a_line_with_a_gap_for_its_caption_unless_it_has_no_border) {
  toolkit::Frame frame(Window, "Frame");
  frame.Place({10, 10, 80, 80});
  Paint();
  const auto marked = [this](int y) { return side - In_Row(y, white); };
  int line = 10;
  while (line < 40 && marked(line) < 60) ++line;
  ASSERT_LT(line, 40) << "the upper line";
  const int whole = marked(line);
  frame.Caption = "View";
  Paint();
  EXPECT_LT(marked(line), whole);
  EXPECT_EQ(At(30, 50), white) << "what lies behind it is seen in it";
  frame.Bordered = false;
  Paint();
  EXPECT_EQ(In_All(white), side * side);
}

TEST_F(Painted_Kinds, A_label_is_grey_when_it_or_what_it_lies_in_is_disabled) {
  toolkit::Frame frame(Window, "Frame");
  frame.Bordered = false;
  frame.Place({0, 0, 100, 100});
  toolkit::Label label(frame, "Label");
  label.Place({10, 10, 80, 30});
  label.Transparent = true;
  label.ForeColor = static_cast<toolkit::Colour>(red);
  label.Caption = "MMMM";
  Paint();
  EXPECT_GT(In_All(red), 10);
  frame.Enabled = false;
  Paint();
  EXPECT_EQ(In_All(red), 0);
  EXPECT_GT(In_All(GetSysColor(COLOR_GRAYTEXT)), 10);
  Window.BackColor = static_cast<toolkit::Colour>(GetSysColor(COLOR_GRAYTEXT));
  Paint();
  EXPECT_GT(In_All(red), 10) << "grey on grey can't be read";
}
