// The settings and their store together: read once at the start, written key by key when the user changes one.
#pragma once

#include "platform/settings_store.h"
#include "settings/setting_keys.h"

namespace settings {

class Stored_Settings {
 public:
  explicit Stored_Settings(platform::Settings_Store& store) : store_(store) {}

  Settings Values{};

  /// Reads all keys. Throws error 6 or 13 if a stored text doesn't fit its variable: the stored texts aren't repaired.
  void Load_Settings();

  /// Sets the variable and saves its key.
  template <class Value, class New_Value>
  void Set(Value Settings::*variable, const New_Value& value) {
    Values.*variable = value;
    Save(variable);
  }

  /// Saves the text of a key as it stands, and then sets the variable by it. Throws error 6 or 13 at a text that the
  /// variable can't take; it is stored by then.
  void Take_Text(const Setting_Key& key, const std::string& text);

  /// Saves the variable's present value under its key.
  void Save(const Member& variable);

 private:
  platform::Settings_Store& store_;
};

}  // namespace settings
