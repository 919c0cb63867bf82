// The user's hands on the in-memory window system: the pointer and the keys, reported as a window system reports them. Where
// the system has controls of its own that work by themselves, such as the text box, it does what they would do.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "memory/memory_windows.h"
#include "toolkit/input.h"
#include "toolkit/item_list.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

namespace memory {

/// What the in-memory window system can't do, and doesn't pretend to.
struct Not_Supported : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A key with the text that it types, if any: "\r\n" for Enter, " " for the space key.
struct Typed_Key {
  toolkit::Key Key;
  std::string_view Text;
};

class Memory_User {
 public:
  Memory_User(Memory_Windows& windows, toolkit::Input& input) : windows_(windows), input_(input) {}

  /// The pointer over a control of a window (nullptr: over its ground), at a place in twips from the control's top left, of
  /// the ground from the window's. A press is meant for the control, wherever the place lies.
  void Press(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);
  void Press_Twice(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);
  void Move(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);
  void Release(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);

  /// A key is pressed in a window and released in the one that is active then. Throws Not_Supported for what the in-memory
  /// text box can't do.
  void Press_Key(toolkit::Form& window, const Typed_Key& key);

  /// The user's click has come to an item of a list, or to a tab (from 1 on).
  static void Pick(toolkit::Control& control, int item);

  /// The user opens a drop-down list and picks an item of it.
  void Choose(toolkit::Combo_Box& box, int item);

  /// The user takes hold of a slider, drags it to a place and lets it go.
  void Slide(toolkit::Slider& slider, int value);

  /// The user replaces the whole text of a box.
  void Type(toolkit::Text_Box& box, const std::string& text);

 private:
  void Begin(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event, bool twice);
  static void Key_In_Text_Box(toolkit::Text_Box& box, const Typed_Key& key);

  Memory_Windows& windows_;
  toolkit::Input& input_;
};

}  // namespace memory
