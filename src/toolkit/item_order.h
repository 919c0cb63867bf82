// The order of the texts in a sorted list.
#pragma once

#include <string_view>

namespace toolkit {

/// Whether a text stands before another: signs before digits before letters, letters without regard to case and, unless
/// nothing else tells the texts apart, to accents. Texts are in code page 1252.
bool Sorts_Before(std::string_view a, std::string_view b);

}  // namespace toolkit
