#include "toolkit/control_array.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/toolkit/fake_backend.h"

using toolkit::Control_Array;
using toolkit::Label;

namespace {

class Control_Array_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Control_Array<Label> Box_Lbl{Window, "Box_Lbl", 37};
};

}  // namespace

TEST_F(Control_Array_Test, Makes_controls_of_one_name_told_apart_by_their_index) {
  EXPECT_EQ(Box_Lbl.Count(), 37);
  for (int i = 0; i < 37; ++i) {
    EXPECT_EQ(Box_Lbl[i].Name, "Box_Lbl");
    EXPECT_EQ(Box_Lbl[i].Index, i);
    EXPECT_EQ(Window.Controls()[static_cast<std::size_t>(i)], &Box_Lbl[i]);
  }
}

TEST_F(Control_Array_Test, Throws_error_9_outside_its_places) {
  for (const int index : {-1, 37, 38, -32768, 32767})
    EXPECT_EQ(Error_Of([&] { static_cast<void>(Box_Lbl[index]); }), 9) << index;
}

TEST_F(Control_Array_Test, Throws_overflow_for_an_index_beyond_16_bits) {
  EXPECT_EQ(Error_Of([&] { static_cast<void>(Box_Lbl[32768]); }), 6);
  EXPECT_EQ(Error_Of([&] { static_cast<void>(Box_Lbl[65536]); }), 6) << "which must not wrap to place 0";
}

TEST_F(Control_Array_Test, Of_no_controls_throws_error_9_everywhere) {
  const Control_Array<Label> none(Window, "None_Lbl", 0);
  EXPECT_EQ(none.Count(), 0);
  EXPECT_EQ(Error_Of([&] { static_cast<void>(none[0]); }), 9);
}

TEST_F(Control_Array_Test, Lets_a_constant_array_change_its_controls) {
  const auto& boxes = Box_Lbl;
  boxes[5].Caption = " 5 ";
  EXPECT_EQ(Box_Lbl[5].Caption(), " 5 ");
}
