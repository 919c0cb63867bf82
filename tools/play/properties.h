// The properties of windows and controls as a scenario names and prints them.
#pragma once

#include <optional>
#include <string>

#include "target.h"

namespace play {

/// The printed value of a property such as `Caption` or `List(2)`. Throws Cannot_Play for a name that is no property, or
/// none of this target.
std::string Property_Text(const Target& target, const std::string& property);

/// Throws Cannot_Play for a name that is no property at all.
void Check_Property(const std::string& property);

}  // namespace play
