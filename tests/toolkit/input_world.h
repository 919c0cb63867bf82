// A window with two labels that lie apart, and what is heard of the user.
#pragma once

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/input.h"

using toolkit::Form;
using toolkit::Input;
using toolkit::Label;
using toolkit::Mouse_Button;
using toolkit::Mouse_Event;

constexpr Mouse_Event Left(double x, double y) { return {Mouse_Button::Left, x, y}; }
constexpr Mouse_Event Right(double x, double y) { return {Mouse_Button::Right, x, y}; }
constexpr Mouse_Event Middle(double x, double y) { return {Mouse_Button::Middle, x, y}; }

inline std::string In_Words(const char* what, const toolkit::Control& control, const Mouse_Event& event) {
  return control.Name + ' ' + what + ' ' + std::to_string(static_cast<int>(event.Button)) + " at " +
         std::to_string(static_cast<int>(event.X)) + ' ' + std::to_string(static_cast<int>(event.Y));
}

class Input_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Input_Test() {
    A.Place({100, 100, 200, 200});
    B.Place({400, 400, 200, 200});
    Listen(A);
    Listen(B);
    Window.On_Click = [this] { Heard.emplace_back("window click"); };
    Window.Show(false);
    Window.Activate();
    In.Tell_Of_Activity();
    Backend.Take();
  }

  void Listen(toolkit::Control& control) {
    control.On_Mouse_Down = [&](const Mouse_Event& e) { Heard.push_back(In_Words("down", control, e)); };
    control.On_Mouse_Move = [&](const Mouse_Event& e) { Heard.push_back(In_Words("move", control, e)); };
    control.On_Mouse_Up = [&](const Mouse_Event& e) { Heard.push_back(In_Words("up", control, e)); };
    control.On_Click = [&] { Heard.push_back(control.Name + " click"); };
    control.On_Double_Click = [&] { Heard.push_back(control.Name + " double click"); };
  }

  void Press(toolkit::Control* over, const Mouse_Event& event) { In.Press(Window, over, event); }
  void Press_Twice(toolkit::Control* over, const Mouse_Event& event) { In.Press_Twice(Window, over, event); }
  void Move(std::optional<toolkit::Control*> over, const Mouse_Event& event) { In.Move(Window, over, event); }
  void Release(std::optional<toolkit::Control*> over, const Mouse_Event& event) { In.Release(Window, over, event); }
  bool Key_Down(int code) { return In.Key_Down(Window, {code}); }
  void Press_Key(int code) {
    Key_Down(code);
    In.Key_Up(Window, {code});
  }

  Words Take() {
    Words taken;
    taken.swap(Heard);
    return taken;
  }

  Words Heard;
  Input& In = Backend.Input;
  Label A{Window, "A"}, B{Window, "B"};
};
