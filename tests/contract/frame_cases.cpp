// What the toolkit relies on where controls lie in frames: places, showing and enabling go down to them.
#include "tests/contract/window_world.h"
#include "toolkit/frame.h"
#include "toolkit/option_button.h"

namespace {

class Frame_Cases : public Window_Cases {
 protected:
  Frame_Cases() {
    Dialog.Move(7500, 1500);
    Dialog.Set_Client_Size(6000, 4200);
    Outer.Place({300, 300, 5400, 3600});
    Inner.Place({300, 300, 4500, 3000});
    Deep.Place({300, 300, 1500, 600});
    Button.Place({300, 1200, 1500, 375});
    const char* const captions[] = {"One", "Two", "Three"};
    for (int i = 0; i < 3; ++i) {
      Options[static_cast<std::size_t>(i)]->Place({2400, 300.0 + 600 * i, 1500, 300});
      Options[static_cast<std::size_t>(i)]->Caption = captions[i];
      Options[static_cast<std::size_t>(i)]->On_Click = [this, i] { Log += "option" + std::to_string(i + 1) + " "; };
    }
    Beside.Place({300, 3900, 1500, 240});
    Beside.On_Click = [this] { Log += "beside "; };
    // In front of the label, and hidden.
    Front.Place({900, 900, 1500, 600});
    Front.Visible = false;
    Cover.Place({0, 0, 1500, 600});
    Listen(Deep);
    Listen(Cover);
    Button.On_Click = [this] { Log += "button "; };
    Show(Dialog);
    Take();
  }

  std::string Focus() { return Dialog.Focused() == nullptr ? "none" : Dialog.Focused()->Name; }

  Form Dialog{Backend, "Settings_Frm", Form_Border::Fixed_Dialog};
  toolkit::Frame Outer{Dialog, "Outer"}, Inner{Outer, "Inner"};
  Label Deep{Inner, "Deep"};
  toolkit::Command_Button Button{Inner, "Button"};
  toolkit::Option_Button One{Inner, "One"}, Two{Inner, "Two"}, Three{Inner, "Three"};
  toolkit::Option_Button Beside{Dialog, "Beside"};  // of another group
  toolkit::Frame Front{Dialog, "Front"};
  Label Cover{Front, "Cover"};
  std::array<toolkit::Option_Button*, 3> Options{&One, &Two, &Three};
};

}  // namespace

TEST_F(Frame_Cases, A_press_reaches_what_lies_in_a_frame_of_a_frame) {
  double x = 0, y = 0;
  Deep.On_Mouse_Down = [&](const Mouse_Event& event) {
    x = event.X;
    y = event.Y;
  };
  User.Click(Dialog, &Deep);
  EXPECT_EQ(Take(), "Deepup1 Deepclick ");
  EXPECT_NEAR(x, 750, 15);
  EXPECT_NEAR(y, 300, 15);
  User.Click(Dialog, &Button);
  EXPECT_EQ(Take(), "button ");
}

TEST_F(Frame_Cases, What_lies_in_a_frame_moves_with_it) {
  World->Run([&] { Outer.Left = 600; });
  User.Wait(100);
  User.Click(Dialog, &Deep);
  EXPECT_EQ(Take(), "Deepdown1 Deepup1 Deepclick ");
  World->Run([&] { Inner.Top = 450; });
  User.Wait(100);
  User.Click(Dialog, &Button);
  EXPECT_EQ(Take(), "button ");
}

TEST_F(Frame_Cases, Under_a_hidden_frame_the_pointer_reaches_what_lies_behind_it) {
  User.Click(Dialog, &Deep);
  EXPECT_EQ(Take(), "Deepdown1 Deepup1 Deepclick ");
  World->Run([&] { Front.Visible = true; });
  User.Wait(600);  // else the next click makes it a double-click
  User.Click(Dialog, &Cover);
  EXPECT_EQ(Take(), "Coverdown1 Coverup1 Coverclick ");
  World->Run([&] { Front.Visible = false; });
  User.Wait(600);
  User.Click(Dialog, &Deep);
  EXPECT_EQ(Take(), "Deepdown1 Deepup1 Deepclick ");
}

TEST_F(Frame_Cases, A_disabled_frame_lets_nobody_reach_what_lies_in_it) {
  User.Click(Dialog, &Button);
  Take();
  World->Run([&] { Outer.Enabled = false; });
  EXPECT_EQ(Focus(), "Beside");
  for (toolkit::Control* const control :
       {static_cast<toolkit::Control*>(&Button), static_cast<toolkit::Control*>(&One)})
    User.Click(Dialog, control);
  User.Click(Dialog, &Deep);
  EXPECT_EQ(Take(), "");
  EXPECT_FALSE(One.Value());
  World->Run([&] { Outer.Enabled = true; });
  User.Click(Dialog, &Button);
  EXPECT_EQ(Take(), "button ");
}

TEST_F(Frame_Cases, A_hidden_frame_gives_the_focus_on_and_takes_no_keys) {
  User.Click(Dialog, &Button);
  World->Run([&] { Outer.Visible = false; });
  EXPECT_EQ(Focus(), "Beside");
  Take();
  User.Press_Key(Pressed_Key::Space);
  EXPECT_EQ(Take(), "beside ");
  World->Run([&] { Outer.Visible = true; });
  User.Wait(100);
  User.Click(Dialog, &Button);
  EXPECT_EQ(Take(), "button ");
}

TEST_F(Frame_Cases, Of_a_group_of_options_the_mouse_turns_one_on) {
  User.Click(Dialog, &Two);
  EXPECT_EQ(Take(), "option2 ");
  User.Click(Dialog, &Three);
  EXPECT_EQ(Take(), "option3 ");
  EXPECT_FALSE(Two.Value());
  EXPECT_TRUE(Three.Value());
  User.Click(Dialog, &Beside);
  EXPECT_EQ(Take(), "beside ");
  EXPECT_TRUE(Three.Value()) << "it is of another group";
  User.Click(Dialog, &Three);
  EXPECT_EQ(Take(), "option3 ") << "a click is one also where nothing changes";
}

TEST_F(Frame_Cases, The_arrows_go_from_option_to_option_and_round) {
  User.Click(Dialog, &One);
  Take();
  User.Press_Key(Pressed_Key::Down);
  EXPECT_EQ(Take(), "option2 ");
  EXPECT_EQ(Focus(), "Two");
  User.Press_Key(Pressed_Key::Right);
  User.Press_Key(Pressed_Key::Right);
  EXPECT_EQ(Take(), "option3 option1 ");
  User.Press_Key(Pressed_Key::Up);
  EXPECT_EQ(Take(), "option3 ");
  EXPECT_EQ(Focus(), "Three");
  User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Beside") << "the Tab key leaves the group";
}

TEST_F(Frame_Cases, A_window_becomes_an_icon_and_comes_back) {
  World->Run([&] { Dialog.Set_Minimised(true); });
  User.Wait(200);
  EXPECT_TRUE(Dialog.Minimised());
  EXPECT_FALSE(Active(Dialog));
  World->Run([&] { Dialog.Set_Minimised(false); });
  User.Wait(200);
  EXPECT_FALSE(Dialog.Minimised());
  EXPECT_TRUE(Active(Dialog));
  Take();
  User.Click(Dialog, &Button);
  EXPECT_EQ(Take(), "button ");
}

TEST_F(Frame_Cases, A_disabled_window_that_became_an_icon_comes_back_to_where_it_is_told_to_be) {
  World->Run([&] {
    Dialog.Enabled = false;
    Dialog.Set_Minimised(true);
  });
  User.Wait(200);
  World->Run([&] { Dialog.Move(6000, 3000); });
  User.Wait(100);
  EXPECT_TRUE(Dialog.Minimised());
  World->Run([&] {
    Dialog.Set_Minimised(false);
    Dialog.Enabled = true;
  });
  User.Wait(200);
  EXPECT_FALSE(Dialog.Minimised());
  EXPECT_EQ(Dialog.Left(), 6000);
  EXPECT_EQ(Dialog.Top(), 3000);
  Take();
  User.Click(Dialog, &Button);
  EXPECT_EQ(Take(), "button ");
}
