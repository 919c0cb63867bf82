// Plays the user of the in-memory window system: reports the pointer and the keys as a window system reports them. For
// the controls that work by themselves on a real system, such as the text box, it does what they would do.
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

/// Thrown for input that the in-memory window system can't play.
struct Not_Supported : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A key and the text that it types, if any: "\r\n" for Enter, " " for the space key.
struct Typed_Key {
  toolkit::Key Key;
  std::string_view Text;
};

class Memory_User {
 public:
  Memory_User(Memory_Windows& windows, toolkit::Input& input) : windows_(windows), input_(input) {}

  /// The pointer is over a control of a window (nullptr: over the bare window), at a place in twips from the top left
  /// of the control or the window. A press always goes to that control, even if the place lies outside it.
  void Press(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);
  void Press_Twice(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);
  void Move(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);
  void Release(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event);

  /// Presses a key in a window, and releases it in the window that is active by then. Throws Not_Supported for what the
  /// in-memory text box can't do.
  void Press_Key(toolkit::Form& window, const Typed_Key& key);

  /// Clicks an item of a list (from 0 on) or a tab (from 1 on).
  static void Pick(toolkit::Control& control, int item);

  /// The user opens a drop-down list and picks the item of that text, if it is there by then.
  void Choose(toolkit::Combo_Box& box, std::string_view item);

  /// Takes hold of a slider, drags it to a value and lets it go.
  void Slide(toolkit::Slider& slider, int value);

  /// Replaces the whole text of a box.
  void Type(toolkit::Text_Box& box, const std::string& text);

 private:
  bool Take_Focus(toolkit::Control& control);
  void Begin(toolkit::Form& window, toolkit::Control* control, const toolkit::Mouse_Event& event, bool twice);
  static void Key_In_Text_Box(toolkit::Text_Box& box, const Typed_Key& key);

  Memory_Windows& windows_;
  toolkit::Input& input_;
};

}  // namespace memory
