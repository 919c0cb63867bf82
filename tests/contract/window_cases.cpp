// What the toolkit relies on of a window system, with a user before it: windows, timers, focus, activity, the mouse, message
// boxes and menus.
#include "tests/contract/service_world.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"
#include "toolkit/timer.h"

using platform::Box_Answer;
using platform::Box_Buttons;
using platform::Box_Icon;
using toolkit::Form;
using toolkit::Form_Border;
using toolkit::Label;
using toolkit::Mouse_Button;
using toolkit::Mouse_Event;

namespace {

/// A window with two labels that lie side by side, at the upper left of the screen.
struct Labels_Window {
  Labels_Window(toolkit::Backend& backend, const std::string& name, double left, Form* owner = nullptr)
      : Window(backend, name, Form_Border::None, owner), A(Window, "A"), B(Window, "B") {
    Window.Move(left, 1500);
    Window.Set_Client_Size(4500, 1500);
    A.Place({150, 150, 1500, 900});
    B.Place({2100, 150, 1500, 900});
  }

  Form Window;
  Label A, B;
};

class Window_Cases : public Service_Cases {
 protected:
  Window_Cases() {
    Listen(Main.A);
    Listen(Main.B);
    Main.Window.On_Click = [this] { Log += "ground "; };
    Main.Window.On_Activate = [this] { Log += "+Main "; };
    Main.Window.On_Deactivate = [this] { Log += "-Main "; };
    Main.Window.On_Key_Up = [this](int code) { Log += "key" + std::to_string(code) + " "; };
    Show(Main.Window);
  }

  void Listen(toolkit::Control& control) {
    const auto tell = [this, &control](const char* what, const Mouse_Event& event) {
      Log += control.Name + what + std::to_string(static_cast<int>(event.Button)) + " ";
    };
    control.On_Mouse_Down = [=](const Mouse_Event& event) { tell("down", event); };
    control.On_Mouse_Up = [=](const Mouse_Event& event) { tell("up", event); };
    control.On_Click = [this, &control] { Log += control.Name + "click "; };
    control.On_Double_Click = [this, &control] { Log += control.Name + "twice "; };
  }

  void Show(Form& window) {
    World->Run([&] { window.Show(); });
    User.Wait(100);
  }

  std::string Take() { return std::exchange(Log, {}); }
  bool Active(const Form& window) { return Backend.Active_Form() == &window; }
  Box_Answer Ask(Box_Buttons buttons) {
    Box_Answer answer = Box_Answer::OK;
    World->Run([&] { answer = World->System().Message_Box.Show("Case", "Text", Box_Icon::None, buttons); });
    return answer;
  }
  int Track(const std::vector<platform::Menu_Item>& items) {
    int chosen = -1;
    World->Run([&] { chosen = World->System().Popup_Menu.Track(Main.Window.Handle(), items); });
    return chosen;
  }

  std::string Log;
  toolkit::Backend& Backend = World->Backend();
  ::User& User = World->The_User();
  Labels_Window Main{Backend, "Main_Frm", 1500};
};

class Dialog_Cases : public Window_Cases {
 protected:
  Dialog_Cases() {
    Dialog.Move(7500, 1500);
    Dialog.Set_Client_Size(4500, 2700);
    Text.Place({150, 150, 3000, 900});
    Every.Place({150, 1200, 1500, 300});
    Every.Caption = "Every year";
    Ok.Place({150, 1650, 1200, 330});
    Ok.Caption = "&OK";
    Close.Place({1500, 1650, 1200, 330});
    Close.Caption = "Cancel";
    Ok.Default = true;
    Close.Cancel = true;
    Ok.On_Click = [this] { Log += "ok "; };
    Close.On_Click = [this] { Log += "close "; };
    Every.On_Click = [this] { Log += "every" + std::to_string(Every.Value()) + " "; };
    Show(Dialog);
    Take();
  }

  std::string Focus() { return Dialog.Focused() == nullptr ? "none" : Dialog.Focused()->Name; }

  Form Dialog{Backend, "Edit_Frm", Form_Border::Fixed_Dialog};
  toolkit::Text_Box Text{Dialog, "Text"};
  toolkit::Check_Box Every{Dialog, "Every"};
  toolkit::Command_Button Ok{Dialog, "Ok"}, Close{Dialog, "Close"};
};

}  // namespace

TEST_F(Window_Cases, A_window_that_is_shown_is_active_unless_told_otherwise) {
  EXPECT_TRUE(Active(Main.Window));
  EXPECT_EQ(Take(), "+Main ");
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
  EXPECT_EQ(Take(), "");
  Show(other.Window);
  EXPECT_TRUE(Active(other.Window));
  EXPECT_EQ(Take(), "-Main ");
}

TEST_F(Window_Cases, A_press_makes_its_window_active_and_the_other_hears_of_it_first) {
  Labels_Window other(Backend, "Other", 7500);
  Show(other.Window);
  Take();
  other.Window.On_Deactivate = [&] { Log += "-Other "; };
  User.Click(Main.Window, &Main.A);
  EXPECT_TRUE(Active(Main.Window));
  const std::string log = Take();
  EXPECT_NE(log.find("Adown1 Aup1 Aclick "), std::string::npos) << log;
  EXPECT_LT(log.find("-Other "), log.find("Adown1 ")) << log;
  EXPECT_LT(log.find("+Main "), log.find("Adown1 ")) << log;
}

TEST_F(Window_Cases, A_window_that_unloads_when_it_loses_the_activity_is_gone_before_the_press) {
  Labels_Window tip(Backend, "Tip", 7500, &Main.Window);
  tip.Window.On_Deactivate = [&] { tip.Window.Unload(); };
  Show(tip.Window);
  Main.A.On_Mouse_Down = [&](const Mouse_Event&) { Log += tip.Window.Loaded() ? "too early " : "gone "; };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_NE(Take().find("gone "), std::string::npos);
  User.Release(Main.Window, &Main.A, Mouse_Button::Left);
}

TEST_F(Window_Cases, An_owner_becomes_active_when_its_active_window_goes) {
  Labels_Window third(Backend, "Third", 7500);
  Labels_Window tip(Backend, "Tip", 13000, &Main.Window);
  Show(third.Window);
  Show(tip.Window);
  EXPECT_TRUE(Active(tip.Window));
  World->Run([&] { tip.Window.Unload(); });
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
  User.Press_Key(Pressed_Key::F9);
  EXPECT_NE(Take().find("key120 "), std::string::npos);
}

TEST_F(Window_Cases, The_pressed_control_has_the_mouse_until_the_last_button_is_up) {
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  User.Press(Main.Window, &Main.B, Mouse_Button::Right);
  User.Release(Main.Window, &Main.B, Mouse_Button::Left);
  User.Release(Main.Window, &Main.B, Mouse_Button::Right);
  EXPECT_EQ(Take(), "Adown1 Adown2 Aup1 Aup2 ");
}

TEST_F(Window_Cases, Moves_of_a_press_go_to_its_control_also_over_another_window) {
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  double x = 0;
  Main.A.On_Mouse_Move = [&](const Mouse_Event& event) { x = event.X; };
  other.A.On_Mouse_Move = [&](const Mouse_Event&) { Log += "elsewhere "; };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  User.Move(other.Window, &other.A);
  EXPECT_NEAR(x, 6000 + 750, 15) << "twips within the control";
  User.Release(other.Window, &other.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "Adown1 Aup1 ");
}

TEST_F(Window_Cases, A_second_button_over_another_window_goes_to_the_pressed_control) {
  Labels_Window other(Backend, "Other", 7500);
  Listen(other.A);
  World->Run([&] { other.Window.Show(false); });
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  User.Press(other.Window, &other.A, Mouse_Button::Right);
  User.Release(other.Window, &other.A, Mouse_Button::Right);
  User.Release(other.Window, &other.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "Adown1 Adown2 Aup2 Aup1 ");
  EXPECT_TRUE(Active(Main.Window));
}

TEST_F(Window_Cases, A_press_on_the_ground_that_is_released_over_another_window_is_no_click) {
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  Take();
  User.Press(Main.Window, nullptr, Mouse_Button::Left);
  User.Release(other.Window, &other.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "");
}

TEST_F(Window_Cases, Only_the_left_button_clicks) {
  Take();
  for (const auto button : {Mouse_Button::Right, Mouse_Button::Middle}) {
    User.Press(Main.Window, nullptr, button);
    User.Release(Main.Window, nullptr, button);
  }
  EXPECT_EQ(Take(), "");
  User.Click(Main.Window, nullptr);
  EXPECT_EQ(Take(), "ground ");
}

TEST_F(Window_Cases, A_release_without_a_press_reaches_nothing) {
  Take();
  User.Release(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "");
}

TEST_F(Window_Cases, A_timer_ticks_until_it_is_stopped_in_its_tick_too) {
  int ticks = 0;
  toolkit::Timer timer(Backend, "Timer", 50);
  timer.On_Tick = [&] {
    if (++ticks == 3) timer.Disable();
  };
  User.Wait(300);
  EXPECT_EQ(ticks, 0);
  timer.Enable();
  User.Wait(1000);
  EXPECT_EQ(ticks, 3);
}

TEST_F(Window_Cases, A_message_box_gives_its_answer_and_keeps_the_user_out_meanwhile) {
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  const auto check = [&] {
    EXPECT_FALSE(Main.Window.Accepts_Input());
    EXPECT_FALSE(other.Window.Accepts_Input());
    EXPECT_TRUE(Backend.Input.Modal_Open());
  };
  User.Answer(Box_Answer::Cancel, check);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::Cancel);
  User.Answer(Box_Answer::No, check);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::No);
  User.Answer(Box_Answer::Yes, check);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::Yes);
  User.Answer(Box_Answer::OK, check);
  EXPECT_EQ(Ask(Box_Buttons::OK), Box_Answer::OK);
  EXPECT_TRUE(Main.Window.Accepts_Input());
  EXPECT_TRUE(other.Window.Accepts_Input());
  Take();
  User.Click(other.Window, nullptr);
  EXPECT_TRUE(Active(other.Window));
}

TEST_F(Window_Cases, The_window_that_was_active_is_so_again_after_a_message_box) {
  User.Answer(Box_Answer::OK, [] {});
  Ask(Box_Buttons::OK);
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
  Take();
  User.Press_Key(Pressed_Key::F9);
  EXPECT_EQ(Take(), "key120 ");
}

TEST_F(Window_Cases, A_box_over_a_window_that_goes_when_it_loses_the_activity_stays_and_so_does_the_window) {
  Labels_Window tip(Backend, "Tip", 7500, &Main.Window);
  tip.Window.On_Deactivate = [&] { tip.Window.Unload(); };
  Show(tip.Window);
  bool open = false;
  User.Answer(Box_Answer::Yes, [&] {
    open = true;
    EXPECT_TRUE(tip.Window.Loaded());
    EXPECT_TRUE(Active(tip.Window));
  });
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::Yes);
  EXPECT_TRUE(open);
  User.Wait(100);
  EXPECT_TRUE(Active(tip.Window));
  User.Click(Main.Window, nullptr);
  EXPECT_FALSE(tip.Window.Loaded());
}

TEST_F(Window_Cases, A_window_that_the_program_disabled_is_active_after_its_message_box) {
  Main.Window.Enabled = false;
  User.Answer(Box_Answer::OK, [] {});
  Ask(Box_Buttons::OK);
  Main.Window.Enabled = true;
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
}

TEST_F(Window_Cases, Timers_tick_under_a_message_box_and_under_a_menu) {
  int ticks = 0;
  toolkit::Timer timer(Backend, "Timer", 50);
  timer.On_Tick = [&] { ++ticks; };
  timer.Enable();
  User.Answer(Box_Answer::OK, [&] { EXPECT_GE(ticks, 2); });
  Ask(Box_Buttons::OK);
  const int before = ticks;
  User.Choose(0, 0, [&] { EXPECT_GE(ticks - before, 2); });
  EXPECT_EQ(Track({{1, "One"}}), 0);
}

TEST_F(Window_Cases, A_message_box_takes_the_mouse) {
  Main.A.On_Mouse_Down = [&](const Mouse_Event&) {
    User.Answer(Box_Answer::OK, [] {});
    Ask(Box_Buttons::OK);
  };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_EQ(Backend.Input.Mouse_Window(), nullptr);
  User.Release(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_EQ(Take().find("Aup"), std::string::npos);
}

TEST_F(Window_Cases, A_menu_takes_the_mouse_and_gives_the_number_of_the_chosen_item) {
  int chosen = -1;
  Main.A.On_Mouse_Down = [&](const Mouse_Event&) {
    User.Choose(2, 22, [] {});
    chosen = Track({{11, "One"}, {22, "Two"}, {33, "Three"}});
  };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Right);
  EXPECT_EQ(chosen, 22);
  User.Release(Main.Window, &Main.A, Mouse_Button::Right);
  EXPECT_EQ(Take().find("Aup"), std::string::npos);
}

TEST_F(Window_Cases, A_grey_item_is_no_choice) {
  User.Choose(1, 11, [] {});
  EXPECT_EQ(Track({{11, "One", true}, {22, "Two"}}), 0);
}

TEST_F(Dialog_Cases, Tab_moves_the_focus_and_the_text_is_typed_where_it_is) {
  EXPECT_EQ(Focus(), "Text");
  User.Type('a');
  User.Type('b');
  EXPECT_EQ(Text.Text(), "ab");
  User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Every");
  User.Type('c');
  EXPECT_EQ(Text.Text(), "ab");
  for (int i = 0; i < 3; ++i) User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Text");
  User.Type('d');
  EXPECT_EQ(Text.Text(), "d") << "Tab has selected the whole text";
}

TEST_F(Dialog_Cases, Keys_press_the_buttons) {
  User.Press_Key(Pressed_Key::Enter);
  EXPECT_EQ(Take(), "ok ");
  User.Press_Key(Pressed_Key::Escape);
  EXPECT_EQ(Take(), "close ");
  User.Press_Key(Pressed_Key::Tab);
  User.Press_Key(Pressed_Key::Space);
  EXPECT_EQ(Take(), "every1 ");
  User.Press_Key(Pressed_Key::Tab);
  User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Close");
  User.Press_Key(Pressed_Key::Enter);
  User.Press_Key(Pressed_Key::Space);
  EXPECT_EQ(Take(), "close close ");
  User.Press_Key(Pressed_Key::Alt_O);
  EXPECT_EQ(Take(), "ok ");
  EXPECT_EQ(Focus(), "Ok");
}

TEST_F(Dialog_Cases, Enter_makes_a_new_line_where_no_button_takes_it) {
  Ok.Default = false;
  User.Type('a');
  User.Press_Key(Pressed_Key::Enter);
  User.Type('b');
  EXPECT_EQ(Text.Text(), "a\r\nb");
  EXPECT_EQ(Take(), "");
}

TEST_F(Dialog_Cases, A_click_gives_the_focus_and_does_what_the_control_is_for) {
  User.Click(Dialog, &Every);
  EXPECT_EQ(Focus(), "Every");
  EXPECT_EQ(Take(), "every1 ");
  User.Click(Dialog, &Close);
  EXPECT_EQ(Focus(), "Close");
  EXPECT_EQ(Take(), "close ");
  User.Click(Dialog, &Text);
  EXPECT_EQ(Focus(), "Text");
  User.Type('a');
  EXPECT_EQ(Text.Text(), "a");
}

TEST_F(Dialog_Cases, A_button_that_is_left_before_the_release_is_not_clicked) {
  User.Press(Dialog, &Ok, Mouse_Button::Left);
  EXPECT_TRUE(Ok.Held());
  User.Move(Dialog, &Close);
  EXPECT_FALSE(Ok.Held());
  User.Release(Dialog, &Close, Mouse_Button::Left);
  EXPECT_EQ(Take(), "");
}

TEST_F(Dialog_Cases, A_disabled_button_takes_no_click_and_gives_the_focus_on) {
  User.Click(Dialog, &Ok);
  Take();
  World->Run([&] { Ok.Enabled = false; });
  EXPECT_EQ(Focus(), "Close");
  User.Press_Key(Pressed_Key::Enter);
  EXPECT_EQ(Take(), "close ");
}

TEST_F(Dialog_Cases, The_focus_comes_back_with_the_activity_and_a_focused_control_brings_it) {
  User.Press_Key(Pressed_Key::Tab);
  User.Click(Main.Window, &Main.A);
  EXPECT_TRUE(Active(Main.Window));
  World->Run([&] { Dialog.Set_Focus(Text); });
  User.Wait(100);
  EXPECT_TRUE(Active(Dialog));
  User.Type('a');
  EXPECT_EQ(Text.Text(), "a");
  User.Click(Main.Window, &Main.A);
  World->Run([&] { Dialog.Show(); });
  User.Wait(100);
  User.Type('b');
  EXPECT_EQ(Text.Text(), "ab");
}

TEST_F(Dialog_Cases, The_user_is_told_when_the_text_changes_and_the_program_hears_its_own_changes_once) {
  int changes = 0;
  Text.On_Change = [&] { ++changes; };
  World->Run([&] { Text.Text = "by the program"; });
  EXPECT_EQ(changes, 1);
  User.Type('a');
  EXPECT_EQ(changes, 2);
}
