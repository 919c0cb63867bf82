// The user of the windows in the contract cases: real input on Windows, the in-memory window system's hands natively.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/message_box.h"
#include "toolkit/form.h"
#include "toolkit/item_list.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

enum class Pressed_Key { Tab, Enter, Escape, Space, F9, Alt_O, Up, Down, Left, Right, Page_Down, Home, End };

class User {
 public:
  virtual ~User() = default;

  // The pointer goes to the middle of a control (nullptr: to the window's ground at its lower right corner) first.

  virtual void Press(toolkit::Form& window, toolkit::Control* control, toolkit::Mouse_Button button) = 0;
  virtual void Move(toolkit::Form& window, toolkit::Control* control) = 0;
  virtual void Release(toolkit::Form& window, toolkit::Control* control, toolkit::Mouse_Button button) = 0;
  virtual void Press_Key(Pressed_Key key) = 0;
  virtual void Type(char letter) = 0;

  /// Pastes a text from the clipboard into the box, which has the focus, in place of its selection.
  virtual void Paste(toolkit::Text_Box& box, const std::string& text) = 0;

  void Click(toolkit::Form& window, toolkit::Control* control) {
    Press(window, control, toolkit::Mouse_Button::Left);
    Release(window, control, toolkit::Mouse_Button::Left);
  }

  // The parts of the system's own controls, which the user sees: an item of a list (from 0 on), one of a drop-down list
  // that is opened for it, a tab (from 1 on), the place of a slider's thumb.

  virtual void Click_Item(toolkit::List_Box& list, int item) = 0;
  virtual void Choose_Item(toolkit::Combo_Box& box, int item) = 0;
  virtual void Click_Tab(toolkit::Tab_Strip& strip, int tab) = 0;
  virtual void Drag_Thumb(toolkit::Slider& slider, int to) = 0;

  /// The items that the window system shows in a list, from the first to the last.
  virtual std::vector<std::string> Shown_Items(toolkit::Item_List& list) = 0;

  /// Answers the next message box when it has been open for a while, after `meanwhile`.
  virtual void Answer(platform::Box_Answer answer, std::function<void()> meanwhile) = 0;

  /// Chooses the item at a place of the next menu (from 1 on; 0: none) when it has been open for a while.
  virtual void Choose(int place, int number, std::function<void()> meanwhile) = 0;

  /// Lets events be served for that long.
  virtual void Wait(std::int64_t milliseconds) = 0;
};
