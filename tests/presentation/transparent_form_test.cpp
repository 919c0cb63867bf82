#include "presentation/transparent_form.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/label.h"

using presentation::TransparentForm;
using toolkit::Form;
using toolkit::Form_Border;
using toolkit::Pixel_Rect;

namespace {

class Transparent_Form_Test : public ::testing::Test {
 protected:
  std::vector<Pixel_Rect> Cut(Form& form) {
    form.Load();
    TransparentForm(form);
    return Backend.Last_Region.Rects();
  }

  Fake_Backend Backend;  // 15 by 12 twips a pixel; a dialog's frame is 6 pixels wider and 31.25 higher than its inside
};

}  // namespace

TEST_F(Transparent_Form_Test, Leaves_the_visible_controls_alone_of_a_window_without_a_frame) {
  Form form(Backend, "Main_Frm");
  form.Set_Client_Size(1500, 1200);
  toolkit::Label a(form, "A"), b(form, "B"), hidden(form, "Hidden");
  a.Place({150, 120, 300, 240});
  b.Place({600, 120, 300, 240});
  hidden.Place({0, 0, 1500, 1200});
  hidden.Visible = false;
  EXPECT_EQ(Cut(form), (std::vector<Pixel_Rect>{{10, 10, 30, 30}, {40, 10, 60, 30}}));
  EXPECT_EQ(form.Scale, toolkit::Scale_Unit::Pixels);
}

TEST_F(Transparent_Form_Test, Keeps_the_frame_of_a_window_that_has_one) {
  Form form(Backend, "Edit_Frm", Form_Border::Fixed_Dialog);
  form.Set_Client_Size(1500, 1200);
  toolkit::Label a(form, "A");
  a.Place({150, 120, 300, 240});
  // 106 by 131.25 pixels: a border of 3 at the sides and below, and above the controls 28.25 of border and title.
  EXPECT_EQ(Cut(form), (std::vector<Pixel_Rect>{{0, 0, 106, 28},
                                                {0, 28, 3, 38},
                                                {103, 28, 106, 38},
                                                {0, 38, 3, 58},
                                                {13, 38, 33, 58},
                                                {103, 38, 106, 58},
                                                {0, 58, 3, 128},
                                                {103, 58, 106, 128},
                                                {0, 128, 106, 131}}));
}

TEST_F(Transparent_Form_Test, Leaves_a_minimised_window_as_it_is_but_for_its_unit) {
  Form form(Backend, "Main_Frm");
  form.Load();
  Backend.Take();
  Backend.Minimised = true;
  TransparentForm(form);
  EXPECT_EQ(Backend.Take(), Words{});
  EXPECT_EQ(form.Scale, toolkit::Scale_Unit::Pixels);
}
