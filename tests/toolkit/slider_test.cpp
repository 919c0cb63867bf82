#include "toolkit/slider.h"

#include "tests/toolkit/input_world.h"
#include "toolkit/frame.h"

using toolkit::Slider;

namespace {

class Slider_Test : public Input_Test {
 protected:
  Slider_Test() {
    Place.On_Mouse_Down = [this](const Mouse_Event&) { Heard.emplace_back("down"); };
    Place.On_Key_Down = [this] { Heard.emplace_back("key"); };
    Place.On_Scroll = [this] { Heard.push_back("scroll " + std::to_string(Place.Value)); };
    Place.On_Change = [this] { Heard.push_back("change " + std::to_string(Place.Value)); };
  }

  Slider Place{Window, "Place_Sli", -10, 40, toolkit::Slide::Across};
};

}  // namespace

TEST_F(Slider_Test, Stands_at_its_lower_limit_at_first) {
  EXPECT_EQ(Place.Value(), -10);
  EXPECT_EQ(Place.Min, -10);
  EXPECT_EQ(Place.Max, 40);
  EXPECT_EQ(Place.Direction, toolkit::Slide::Across);
  EXPECT_EQ(Place.Text(), "");
}

TEST_F(Slider_Test, The_program_s_setting_changes_and_does_nothing_more) {
  Place.Value = 7;
  Place.Value = 7;
  EXPECT_EQ(Take(), Words{"change 7"});
  EXPECT_EQ(Backend.Take(), Words{"Place_Sli value"});
}

TEST_F(Slider_Test, Never_leaves_its_limits) {
  Place.Value = 41;
  EXPECT_EQ(Place.Value(), 40);
  Place.Value = -1000;
  EXPECT_EQ(Place.Value(), -10);
  EXPECT_EQ(Take(), (Words{"change 40", "change -10"}));
}

TEST_F(Slider_Test, A_drag_is_heard_of_at_its_beginning_at_each_place_and_at_its_end) {
  Place.User_Press();
  Place.User_Scroll(1);
  Place.User_Scroll(1);
  Place.User_Scroll(5);
  EXPECT_EQ(Place.Value(), 5) << "on the way already";
  Place.User_Release();
  EXPECT_EQ(Take(), (Words{"down", "scroll 1", "scroll 5", "change 5"}));
  EXPECT_EQ(Backend.Take(), Words{}) << "the window system knows";
}

TEST_F(Slider_Test, A_drag_that_ends_where_it_began_changes_nothing) {
  Place.Value = 5;
  Take();
  Place.User_Press();
  Place.User_Scroll(9);
  Place.User_Scroll(5);
  Place.User_Release();
  EXPECT_EQ(Take(), (Words{"down", "scroll 9", "scroll 5"}));
  Place.User_Press();
  Place.User_Release();
  EXPECT_EQ(Take(), Words{"down"});
}

TEST_F(Slider_Test, A_drag_ends_at_the_limits) {
  Place.User_Press();
  Place.User_Scroll(99);
  Place.User_Release();
  EXPECT_EQ(Take(), (Words{"down", "scroll 40", "change 40"}));
}

TEST_F(Slider_Test, A_key_moves_and_changes_at_once) {
  EXPECT_EQ(Place.Page(), 10);
  Words heard;
  for (const int key : {toolkit::key_right, toolkit::key_down, toolkit::key_left, toolkit::key_up,
                        toolkit::key_page_down, toolkit::key_page_up, toolkit::key_end, toolkit::key_home}) {
    EXPECT_TRUE(Place.Key_Down({key}));
    Words step = Take();
    ASSERT_EQ(step.size(), 3U);
    EXPECT_EQ(step[0], "key");
    EXPECT_EQ(step[1], "scroll " + std::to_string(Place.Value));
    heard.push_back(step[2]);
  }
  EXPECT_EQ(heard, (Words{"change -9", "change -8", "change -9", "change -10", "change 0", "change -10", "change 40",
                          "change -10"}));
  EXPECT_EQ(Backend.Take(), Words(8, "Place_Sli value")) << "the window system isn't the one that moved it";
}

TEST_F(Slider_Test, A_key_at_the_limit_is_used_up_and_moves_nothing) {
  EXPECT_TRUE(Place.Key_Down({toolkit::key_left}));
  EXPECT_TRUE(Place.Key_Down({toolkit::key_home}));
  Place.Value = 40;
  EXPECT_TRUE(Place.Key_Down({toolkit::key_page_down}));
  EXPECT_EQ(Take(), (Words{"key", "key", "change 40", "key"}));
}

TEST_F(Slider_Test, Is_told_of_other_keys_and_leaves_them_alone) {
  EXPECT_FALSE(Place.Key_Down({toolkit::key_enter}));
  EXPECT_FALSE(Place.Key_Down({toolkit::key_space}));
  EXPECT_EQ(Take(), (Words{"key", "key"}));
}

TEST_F(Slider_Test, A_page_is_a_fifth_of_the_way_and_one_at_least) {
  const Slider narrow(Window, "Narrow_Sli", 1, 4, toolkit::Slide::Down);
  EXPECT_EQ(narrow.Page(), 1);
  EXPECT_EQ(narrow.Value(), 1);
  const Slider wide(Window, "Wide_Sli", 0, 19200, toolkit::Slide::Down);
  EXPECT_EQ(wide.Page(), 3840);
}

TEST_F(Slider_Test, Tells_of_the_text_beside_its_thumb) {
  Place.Text = "25 %";
  EXPECT_EQ(Backend.Take(), Words{"Place_Sli drag tip"});
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Slider_Test, Needs_no_listener) {
  Slider silent(Window, "Silent_Sli", 0, 5, toolkit::Slide::Down);
  silent.User_Press();
  silent.User_Scroll(3);
  silent.User_Release();
  silent.Value = 4;
  EXPECT_TRUE(silent.Key_Down({toolkit::key_down}));
  EXPECT_EQ(silent.Value(), 5);
}
