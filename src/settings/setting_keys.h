// The table of all stored keys: section, name, default, the variable that each one fills, and its name in a
// configuration file.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "settings/settings.h"

namespace settings {

using Member =
    std::variant<basic::Int16 Settings::*, std::int32_t Settings::*, bool Settings::*, std::string Settings::*>;

struct Setting_Key {
  const char* Section;
  const char* Name;
  const char* Default;
  Member Variable;
  const char* Config_Name;  ///< nullptr: no configuration file carries it
};

constexpr const char* application = "Meridex";

std::span<const Setting_Key> All_Keys();

/// The row of a configuration file's key, upper and lower case counting; nullptr if there is none.
const Setting_Key* Key_Of_Config(std::string_view config_name);

/// The row of a variable.
const Setting_Key& Key_Of(const Member& variable);

}  // namespace settings
