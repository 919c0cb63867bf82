#include "toolkit/frame.h"

#include "tests/toolkit/input_world.h"
#include "toolkit/check_box.h"

using toolkit::Bounds;
using toolkit::Check_Box;
using toolkit::Frame;

namespace {

class Frame_Test : public Input_Test {
 protected:
  Frame_Test() {
    Page.Place({1000, 2000, 5000, 4000});
    Group.Place({300, 400, 2000, 1000});
    Inner.Place({50, 60, 700, 200});
    Beside.Place({10, 20, 700, 200});
    Listen(Inner);
    Backend.Take();
  }

  std::string Focus() { return Window.Focused() == nullptr ? "none" : Window.Focused()->Name; }

  Frame Page{Window, "Page_Fra"};
  Frame Group{Page, "Group_Fra"};
  Check_Box Inner{Group, "Inner_Chk"};
  Check_Box Beside{Page, "Beside_Chk"};
  Check_Box Outside{Window, "Outside_Chk"};
};

}  // namespace

TEST_F(Frame_Test, What_lies_in_it_is_placed_from_its_top_left) {
  EXPECT_EQ(Inner.In, &Group);
  EXPECT_EQ(Group.In, &Page);
  EXPECT_EQ(Page.In, nullptr);
  EXPECT_EQ(&Inner.Window, &Window);
  EXPECT_EQ(Inner.In_Twips(), (Bounds{50, 60, 700, 200}));
  EXPECT_EQ(Inner.In_Window(), (Bounds{1350, 2460, 700, 200}));
  EXPECT_EQ(Beside.In_Window(), (Bounds{1010, 2020, 700, 200}));
  EXPECT_EQ(Page.In_Window(), Page.In_Twips());
}

TEST_F(Frame_Test, All_that_lies_in_it_moves_with_it) {
  Page.Left = 0;
  EXPECT_EQ(Inner.In_Window().Left, 350);
  EXPECT_EQ(Backend.Take(), (Words{"Page_Fra bounds", "Group_Fra bounds", "Inner_Chk bounds", "Beside_Chk bounds"}));
}

TEST_F(Frame_Test, All_that_lies_in_it_is_hidden_and_disabled_with_it) {
  EXPECT_TRUE(Inner.On_View());
  EXPECT_TRUE(Inner.Usable());
  Page.Visible = false;
  EXPECT_FALSE(Inner.On_View());
  EXPECT_TRUE(Inner.Visible()) << "of itself it is as before";
  EXPECT_TRUE(Inner.Usable());
  EXPECT_TRUE(Outside.On_View());
  EXPECT_EQ(Backend.Take(),
            (Words{"Page_Fra visible", "Group_Fra visible", "Inner_Chk visible", "Beside_Chk visible"}));
  Page.Visible = true;
  Group.Enabled = false;
  EXPECT_FALSE(Inner.Usable());
  EXPECT_TRUE(Beside.Usable());
}

TEST_F(Frame_Test, A_change_of_its_caption_or_look_is_its_own_affair) {
  Group.Caption = "Options";
  Group.Bordered = false;
  EXPECT_EQ(Backend.Take(), (Words{"Group_Fra caption", "Group_Fra appearance"}));
}

TEST_F(Frame_Test, The_focus_leaves_a_control_whose_frame_hides_or_is_disabled) {
  Window.Set_Focus(Inner);
  Group.Visible = false;
  EXPECT_EQ(Focus(), "Beside_Chk");
  Page.Enabled = false;
  EXPECT_EQ(Focus(), "Outside_Chk");
}

TEST_F(Frame_Test, A_hidden_frame_keeps_its_controls_from_the_tab_key) {
  Window.Set_Focus(Outside);
  Group.Visible = false;
  Words way;
  for (int i = 0; i < 2; ++i) {
    Key_Down(toolkit::key_tab);
    way.push_back(Focus());
  }
  EXPECT_EQ(way, (Words{"Beside_Chk", "Outside_Chk"}));
}

TEST_F(Frame_Test, The_mouse_is_told_the_place_within_the_control) {
  Press(&Inner, Left(1360, 2480));
  Move(&Inner, Left(1361, 2481));
  EXPECT_EQ(Take(), (Words{"Inner_Chk down 1 at 10 20", "Inner_Chk move 1 at 11 21"}));
}

TEST_F(Frame_Test, A_control_of_a_disabled_frame_hears_nothing_of_the_mouse) {
  Group.Enabled = false;
  Press(&Inner, Left(1360, 2480));
  Release(&Inner, Left(1360, 2480));
  Move(&Inner, Left(1360, 2480));
  EXPECT_EQ(Take(), Words{});
  EXPECT_EQ(Inner.Value(), 0);
}

TEST_F(Frame_Test, Its_accelerator_leads_to_the_first_control_after_it) {
  Group.Caption = "&Options";
  EXPECT_TRUE(In.Accelerator(Window, 'o'));
  EXPECT_EQ(Focus(), "Inner_Chk");
  EXPECT_EQ(Take(), Words{}) << "and clicks nothing";
  Group.Bordered = false;
  EXPECT_FALSE(In.Accelerator(Window, 'o')) << "where no caption shows there is no accelerator";
}

TEST_F(Frame_Test, Takes_no_focus_itself) {
  EXPECT_FALSE(Page.Can_Have_Focus());
  Window.Set_Focus(Inner);
  Press(&Page, Left(1000, 2000));
  EXPECT_EQ(Focus(), "Inner_Chk");
}
