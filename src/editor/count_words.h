// The count of words that the event editor shows in its title.
#pragma once

#include <cstdint>
#include <string_view>

namespace editor {

/// The number of words between blanks and line ends; tabs are part of a word.
std::int32_t CountWords(std::string_view text);

}  // namespace editor
