// The table of all stored keys: section, name, default, and the variable that each one fills.
#pragma once

#include <span>
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
};

constexpr const char* application = "Meridex";

std::span<const Setting_Key> All_Keys();

/// The row of a variable.
const Setting_Key& Key_Of(const Member& variable);

}  // namespace settings
