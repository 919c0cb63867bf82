// What the toolkit relies on of sliders and tabs.
#include "tests/contract/window_world.h"

namespace {

class Slider_And_Tab_Cases : public Window_Cases {
 protected:
  Slider_And_Tab_Cases() {
    Dialog.Move(7500, 1500);
    Dialog.Set_Client_Size(6000, 4200);
    Tabs.Place({150, 150, 5700, 3000});
    On_Page.Place({600, 1500, 1500, 600});
    Across.Place({150, 3450, 4500, 600});
    Tabs.On_Click = [this] { Log += "tab" + std::to_string(Tabs.Selected()) + " "; };
    Listen(On_Page);
    Across.On_Mouse_Down = [this](const Mouse_Event&) { Log += "press "; };
    Across.On_Scroll = [this] { last_scrolled_ = Across.Value; };
    Across.On_Change = [this] { Log += "change" + std::to_string(Across.Value()) + " "; };
    Show(Dialog);
    Take();
  }

  Form Dialog{Backend, "Settings_Frm", Form_Border::Fixed_Dialog};
  toolkit::Tab_Strip Tabs{Dialog, "Tabs", {"First", "Second", "Third && last"}};
  Label On_Page{Dialog, "On_Page"};
  toolkit::Slider Across{Dialog, "Across", 0, 10, toolkit::Slide::Across};
  int last_scrolled_ = -1;
};

}  // namespace

TEST_F(Slider_And_Tab_Cases, A_drag_is_told_when_it_begins_on_its_way_and_when_it_ends) {
  User.Drag_Thumb(Across, 6);
  EXPECT_EQ(Take(), "press change6 ");
  EXPECT_EQ(last_scrolled_, 6);
  EXPECT_EQ(Across.Value(), 6);
  EXPECT_EQ(Dialog.Focused(), &Across);
  User.Drag_Thumb(Across, 2);
  EXPECT_EQ(Take(), "press change2 ");
}

TEST_F(Slider_And_Tab_Cases, The_keys_move_it_by_one_by_a_page_and_to_its_ends) {
  World->Run([&] { Dialog.Set_Focus(Across); });
  User.Wait(50);
  for (const Pressed_Key key : {Pressed_Key::Right, Pressed_Key::Down, Pressed_Key::Left, Pressed_Key::Page_Down,
                                Pressed_Key::End, Pressed_Key::Home})
    User.Press_Key(key);
  EXPECT_EQ(Take(), "change1 change2 change1 change3 change10 change0 ");
}

TEST_F(Slider_And_Tab_Cases, What_the_program_sets_is_where_a_drag_begins) {
  World->Run([&] { Across.Value = 8; });
  EXPECT_EQ(Take(), "change8 ");
  User.Drag_Thumb(Across, 3);
  EXPECT_EQ(Take(), "press change3 ");
}

TEST_F(Slider_And_Tab_Cases, A_slider_ends_at_its_limits) {
  User.Drag_Thumb(Across, 10);
  EXPECT_EQ(Take(), "press change10 ");
  World->Run([&] { Across.Value = 99; });
  EXPECT_EQ(Across.Value(), 10);
}

TEST_F(Slider_And_Tab_Cases, A_click_on_a_tab_turns_to_it_once) {
  User.Click_Tab(Tabs, 3);
  EXPECT_EQ(Take(), "tab3 ");
  EXPECT_EQ(Dialog.Focused(), &Tabs);
  User.Click_Tab(Tabs, 3);
  EXPECT_EQ(Take(), "");
  User.Click_Tab(Tabs, 1);
  EXPECT_EQ(Take(), "tab1 ");
}

TEST_F(Slider_And_Tab_Cases, The_arrows_turn_to_the_next_tab_and_stop_at_the_last) {
  World->Run([&] { Dialog.Set_Focus(Tabs); });
  User.Wait(50);
  for (int i = 0; i < 3; ++i) User.Press_Key(Pressed_Key::Right);
  EXPECT_EQ(Take(), "tab2 tab3 ");
  User.Press_Key(Pressed_Key::Home);
  EXPECT_EQ(Take(), "tab1 ");
}

TEST_F(Slider_And_Tab_Cases, What_lies_on_the_page_of_the_tabs_is_reached_by_the_mouse) {
  User.Click(Dialog, &On_Page);
  EXPECT_EQ(Take(), "On_Pagedown1 On_Pageup1 On_Pageclick ");
}

TEST_F(Slider_And_Tab_Cases, A_tab_that_the_program_selects_is_where_the_keys_go_on) {
  World->Run([&] {
    Tabs.Selected = 2;
    Dialog.Set_Focus(Tabs);
  });
  User.Wait(50);
  User.Press_Key(Pressed_Key::Right);
  EXPECT_EQ(Take(), "tab2 tab3 ");
}
