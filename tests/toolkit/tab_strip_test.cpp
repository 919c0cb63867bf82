#include "toolkit/tab_strip.h"

#include "tests/toolkit/input_world.h"

using toolkit::Tab_Strip;

namespace {

class Tab_Strip_Test : public Input_Test {
 protected:
  Tab_Strip_Test() {
    Strip.On_Click = [this] { Heard.push_back("tab " + std::to_string(Strip.Selected)); };
    Backend.Take();
  }

  Tab_Strip Strip{Window, "TabStrip1", {"Events", "Style && Position", "Tooltips", "About"}};
};

}  // namespace

TEST_F(Tab_Strip_Test, Counts_its_tabs_from_1_on_and_begins_with_the_first) {
  EXPECT_EQ(Strip.Selected(), 1);
  EXPECT_EQ(Strip.Captions.size(), 4U);
  EXPECT_EQ(Strip.Captions[1], "Style && Position");
}

TEST_F(Tab_Strip_Test, A_tab_that_gets_selected_clicks) {
  Strip.Selected = 3;
  Strip.User_Select(2);
  EXPECT_EQ(Take(), (Words{"tab 3", "tab 2"}));
  EXPECT_EQ(Backend.Take(), (Words{"TabStrip1 value", "TabStrip1 value"}));
}

TEST_F(Tab_Strip_Test, The_tab_that_is_selected_does_not_click_again) {
  Strip.Selected = 1;
  Strip.User_Select(1);
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Tab_Strip_Test, The_user_turns_to_no_tab_that_is_not_there) {
  Strip.User_Select(9);
  EXPECT_EQ(Strip.Selected(), 4);
  Strip.User_Select(0);
  EXPECT_EQ(Strip.Selected(), 1);
}

TEST_F(Tab_Strip_Test, The_user_turns_nothing_in_a_strip_that_is_disabled_or_hidden) {
  Strip.Enabled = false;
  Strip.User_Select(2);
  Strip.Enabled = true;
  Strip.Visible = false;
  Strip.User_Select(2);
  EXPECT_EQ(Strip.Selected(), 1);
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Tab_Strip_Test, The_arrows_and_their_kind_turn_the_tabs) {
  for (const int key :
       {toolkit::key_right, toolkit::key_down, toolkit::key_left, toolkit::key_up, toolkit::key_end, toolkit::key_home})
    EXPECT_TRUE(Strip.Key_Down({key}));
  EXPECT_EQ(Take(), (Words{"tab 2", "tab 3", "tab 2", "tab 1", "tab 4", "tab 1"}));
  EXPECT_TRUE(Strip.Key_Down({toolkit::key_left})) << "used up at the end too";
  EXPECT_EQ(Take(), Words{});
  EXPECT_FALSE(Strip.Key_Down({toolkit::key_enter}));
  EXPECT_FALSE(Strip.Key_Down({toolkit::key_page_down}));
}

TEST_F(Tab_Strip_Test, The_press_and_release_on_it_is_no_click_of_its_own) {
  Press(&Strip, Left(0, 0));
  Release(&Strip, Left(0, 0));
  EXPECT_EQ(Take(), Words{});
  EXPECT_EQ(Window.Focused(), &Strip);
}

TEST_F(Tab_Strip_Test, Bears_a_click_that_closes_the_window) {
  Strip.On_Click = [this] { Window.Unload(); };
  EXPECT_TRUE(Strip.Key_Down({toolkit::key_right}));
  EXPECT_FALSE(Window.Loaded());
}
