// The settings and their store together: read once at the start, written key by key when the user changes one.
#pragma once

#include "platform/settings_store.h"
#include "settings/desktop_mode.h"
#include "settings/setting_keys.h"

namespace settings {

class Stored_Settings {
 public:
  explicit Stored_Settings(platform::Settings_Store& store) : Desktop(store), store_(store) {}

  Settings Values{};

  /// The consent to today's desktops, which is in no table and in no configuration file.
  Desktop_Mode Desktop;

  /// Reads the consent and all keys. Throws error 6 or 13 if a stored text doesn't fit its variable: the stored texts
  /// aren't repaired.
  void Load_Settings();

  /// Sets the variable and saves its key.
  template <class Value, class New_Value>
  void Set(Value Settings::*variable, const New_Value& value) {
    Values.*variable = value;
    Save(variable);
  }

  /// The window's left or top edge after the last drag, in twips.
  [[nodiscard]] std::int32_t Manual_Edge(Desktop_Mode::Edge edge) const {
    return Desktop.Manual_Edge(edge, Values.*Manual_Variable(edge));
  }

  /// Stores it. A number beyond 16 bits comes back only with the consent, else as the nearest one.
  void Keep_Manual_Edge(Desktop_Mode::Edge edge, std::int32_t twips);

  /// Saves the text of a key as it stands, and then sets the variable by it. Throws error 6 or 13 at a text that the
  /// variable can't take; it is stored by then.
  void Take_Text(const Setting_Key& key, const std::string& text);

  /// Saves the variable's present value under its key.
  void Save(const Member& variable);

 private:
  static basic::Int16 Settings::*Manual_Variable(Desktop_Mode::Edge edge) {
    return edge == Desktop_Mode::left_edge ? &Settings::Manual_PosX : &Settings::Manual_PosY;
  }

  platform::Settings_Store& store_;
};

}  // namespace settings
