// The values of controls as texts, to be compared and told.
#pragma once

#include <map>
#include <string>

#include "toolkit/form.h"

namespace monkey {

/// What the user has set, or would read there: a tick, whether an option is on, a text, an entry, a place, a ground.
std::string Value_Text(const toolkit::Control& control);

/// The name, with its index in an array.
std::string Indexed_Name(const toolkit::Control& control);

/// The values of all controls of a window, by their names.
std::map<std::string, std::string> Values_Of(const toolkit::Form& window);

}  // namespace monkey
