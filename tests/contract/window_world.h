// Windows for the cases, and what their controls hear of the user.
#pragma once

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
