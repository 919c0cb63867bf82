// Names of a scenario for places outside the program.
#pragma once

#include <string>

#include "platform/registry_keys.h"
#include "text_form.h"

namespace play {

/// The application of the settings store.
constexpr const char* application = "Meridex";

/// `HKCU` or `HKLM`.
inline platform::Hive Hive_Of(const std::string& place) {
  if (place == "HKCU") return platform::Hive::Current_User;
  if (place == "HKLM") return platform::Hive::Local_Machine;
  throw Cannot_Play("no such place: " + place);
}

/// `on` or `off`.
inline bool Switch_Of(const std::string& word) {
  if (word != "on" && word != "off") throw Cannot_Play("on or off expected, not " + word);
  return word == "on";
}

}  // namespace play
