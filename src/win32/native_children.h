// The controls of a form that are windows of the system: text boxes, check boxes and buttons.
#pragma once

#include <deque>

#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"
#include "win32/fonts.h"

namespace win32 {

class Native_Children {
 public:
  Native_Children(Fonts& fonts, const Scale& scale) : fonts_(fonts), scale_(scale) {}

  /// Makes the control's window; says no to a control that needs none.
  bool Add(HWND parent, toolkit::Control& control);
  [[nodiscard]] bool Empty() const { return children_.empty(); }

  /// Shows a changed property; says no if the control isn't one of these.
  bool Changed(const toolkit::Control& control, toolkit::Aspect aspect);

  void Focus(const toolkit::Control& control);
  void Remember_Focus(HWND parent);
  /// Gives the focus back to the control that had it, or to the first that takes it; says whether there was one.
  bool Restore_Focus();
  /// Moves the focus to the next or the previous control.
  static bool Next(HWND parent, bool previous);

  /// What a control tells its parent.
  void Command(HWND window, WORD code);
  /// Presses the button that has the focus, if one has.
  bool Press_Button(HWND focus);
  /// The number of the default button, as the system asks for it.
  [[nodiscard]] LRESULT Default_Id() const;
  /// The brush behind a control, which shows its form's ground.
  LRESULT Ground(HDC context, COLORREF colour);

 private:
  struct Child {
    toolkit::Control* Control = nullptr;
    toolkit::Text_Box* Text = nullptr;  ///< one of the three
    toolkit::Check_Box* Check = nullptr;
    toolkit::Command_Button* Button = nullptr;
    HWND Window = nullptr;  ///< goes with its parent
    RECT Place{};
    bool Being_Set = false;  ///< its text is being set by the program
  };

  Child* Find(HWND window);
  void Make_Window(HWND parent, Child& child);
  void Set_Font(const Child& child);
  void Set_Place(Child& child) const;
  static void Set_Text(Child& child);
  static void Text_Edited(const Child& child);

  Fonts& fonts_;
  const Scale& scale_;
  std::deque<Child> children_;  // none ever moves: a handler may add to them
  HWND last_focus_ = nullptr;
  Brush_Owner ground_;
  COLORREF ground_colour_ = 0;
};

}  // namespace win32
