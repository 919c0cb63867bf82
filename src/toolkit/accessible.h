// What a control tells a screen reader: what it is, its name, its value, its marks and its parts. What every control
// has, such as its place, is read from the control itself; reading.h puts all of it together.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace toolkit {

enum class Role {
  Window,
  Dialog,
  Text,
  Picture,
  Group,
  Push_Button,
  Check_Box,
  Option_Button,
  Text_Box,
  List,
  List_Item,
  Drop_Down,
  Slider,
  Tabs,
  Tab,
  Column_Header,
  Cell,
};

/// How a button is shown.
struct Button_Marks {
  bool Checked = false, Pressed = false, Default = false;
};

class Control;

class Accessible {
 public:
  // What the program may set.

  /// The name, asked only when a reader asks; without it the control is called by what it shows.
  std::function<std::string()> Accessible_Name;
  /// The same for a name that never changes; the text must live as long.
  void Call_It(const char* name) {
    Accessible_Name = [name] { return std::string(name); };
  }
  /// What it is to the user, where that isn't its kind.
  std::optional<Role> Accessible_Role;
  /// The control that speaks for this one too; nullptr: it is heard by itself. Must live as long as this one.
  Control* Heard_With = nullptr;

  // What a kind tells of itself.

  [[nodiscard]] virtual Role Kind() const { return Role::Text; }
  /// The text that it shows as its own; empty if it shows none.
  [[nodiscard]] virtual std::string Shown_Text() const = 0;
  /// What the user has entered or chosen; nullopt for a kind in which he can't.
  [[nodiscard]] virtual std::optional<std::string> Shown_Value() const { return std::nullopt; }
  [[nodiscard]] virtual Button_Marks Marks() const { return {}; }

  // The parts of a list or a strip of tabs, numbered from 0 on.

  [[nodiscard]] virtual int Part_Count() const { return 0; }
  [[nodiscard]] virtual std::string Part_Text(int /*part*/) const { return {}; }
  [[nodiscard]] virtual int Selected_Part() const { return -1; }  ///< -1 for none
  virtual void Select_Part(int /*part*/) {}

 protected:
  ~Accessible() = default;
};

}  // namespace toolkit
