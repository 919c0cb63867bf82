// The one road of the user's input to the windows and controls of the program.
//
// A backend finds the control under the pointer and reports what the user did. What a press, a release, a key or a change of
// activity means is decided here, the same for every window system: which control has the mouse, what counts as a click,
// where the focus goes, and that an open message box keeps the user from all windows.
//
// A handler may unload the window that it belongs to. After each call of one, the window and the control are looked up again
// before they are touched.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/keys.h"

namespace toolkit {

class Backend;
class Form;

class Input {
 public:
  explicit Input(Backend& backend) : backend_(backend) {}
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;
  ~Input() = default;

  // The mouse. `over` is the control under the pointer, nullptr for the window's bare ground; of a move or a release nullopt
  // where the pointer isn't over the window. The place is in twips from the top left of the window's client area.

  /// Makes the window active, gives the control the focus if it takes it (left button), then the press. The control keeps
  /// the mouse until the last button is up: a second button goes to it too, and the same one again begins anew.
  void Press(Form& form, Control* over, const Mouse_Event& event);

  /// The second press of a double-click. Only the left button double-clicks; any other is pressed once more.
  void Press_Twice(Form& form, Control* over, const Mouse_Event& event);

  /// A move of the pointer, with the button that the system reports as held.
  void Move(Form& form, std::optional<Control*> over, const Mouse_Event& event);

  /// A release without a press does nothing. The left one clicks if it comes over the control that was pressed.
  void Release(Form& form, std::optional<Control*> over, const Mouse_Event& event);

  /// The system has given the mouse to something else. A press before that gets no release.
  void Mouse_Lost();

  /// Takes the mouse from whatever control has it, for a menu or a box that opens.
  void Take_Mouse();

  /// The window whose control, or bare ground, has the mouse; nullptr if none has.
  [[nodiscard]] Form* Mouse_Window() const { return held_ != 0 ? pressed_window_ : nullptr; }

  /// Whether the button is held since a press on one of the program's windows.
  [[nodiscard]] bool Holds(Mouse_Button button) const { return (held_ & static_cast<int>(button)) != 0; }

  // Keys.

  /// A key goes down in a window. Returns true if it is used up; otherwise the focused control's own window gets it.
  bool Key_Down(Form& form, const Key& key);

  /// A character typed with Alt, which may be the accelerator of a control. Returns true if it is one.
  bool Accelerator(Form& form, char character);

  void Key_Up(Form& form, const Key& key) const;

  // Activity and focus.

  // A backend may report a change of activity in the middle of the system's work on the windows. The forms hear of it in
  // order when Tell_Of_Activity is called after that work. Of a message box that takes the activity and gives it back they
  // hear nothing.

  /// The window has become active: its focus comes back, or goes to the first control that takes it.
  void Activity_Came(Form& form);
  /// The window is active no longer.
  void Activity_Went(Form& form);
  void Tell_Of_Activity();

  /// After a message box or a menu: tells of what has become of the activity meanwhile, if it isn't as it was.
  void Catch_Up();

  /// The system has given a control the focus.
  void Focus_Came(Control& control);

  /// Moves the focus of the window, and the system's with it if the window is active. nullptr: to the window itself.
  void Move_Focus(Form& form, Control* control);

  /// A control that had the focus can have it no more; the next one that can gets it.
  void Focus_Refused(Form& form);

  /// While one lives, all windows of the program are disabled for the user: a message box or a file dialog is open.
  /// `owner`, if not nullptr, is a window that the system's own box disables and enables by itself.
  class Modal {
   public:
    explicit Modal(Input& input, const Form* owner = nullptr);
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal();

   private:
    void Tell_Windows(const Form* but) const;

    Input& input_;
  };

  [[nodiscard]] bool Modal_Open() const { return modals_ > 0; }

  /// While one lives, a popup menu is open.
  class Menu {
   public:
    explicit Menu(Input& input) : input_(input) { ++input_.menus_; }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;
    ~Menu() { --input_.menus_; }

   private:
    Input& input_;
  };

  /// Whether the user is in the middle of something: a box or a menu is open, or a button is held. What can wait should.
  [[nodiscard]] bool User_Is_Busy() const { return modals_ > 0 || menus_ > 0 || held_ != 0; }

  // From the forms.

  void Add(Form& form) { forms_.push_back(&form); }
  void Remove(Form& form);
  void Remove(const Control& control);

  /// The loaded forms in the order of their loading.
  [[nodiscard]] const std::vector<Form*>& Forms() const { return forms_; }
  [[nodiscard]] bool Is_There(const Form* form) const;
  [[nodiscard]] bool Is_There(const Form* form, const Control* control) const;

 private:
  void Begin_Press(Form& form, Control* over, const Mouse_Event& event, bool twice);
  bool Bring_Up(Form& form, const Control* over);
  static void Let_Go_Of_Space(const Form& form);
  void Hold(Form& form, Control* over, Mouse_Button button, bool twice);
  void Drop_Press();
  bool Focus_Next(Form& form, bool backwards);
  bool Press_Enter(Form& form);
  bool Press_Escape(Form& form);

  Backend& backend_;
  std::vector<Form*> forms_;

  // What is to be told of the windows' activity, and the window that has been told, or will be, that it is active.
  struct Activity {
    Form* form;
    bool came;
  };
  std::vector<Activity> untold_;
  Form* told_active_ = nullptr;

  // What has the mouse. The buttons that it holds are a sum of Mouse_Button numbers.
  Form* pressed_window_ = nullptr;
  Control* pressed_ = nullptr;
  int held_ = 0;
  bool may_click_ = false;

  int modals_ = 0, menus_ = 0;
};

}  // namespace toolkit
