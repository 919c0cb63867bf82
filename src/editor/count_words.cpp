#include "editor/count_words.h"

#include <algorithm>
#include <string>

namespace editor {

std::int32_t CountWords(std::string_view text) {
  std::string words(text);
  std::replace_if(
      words.begin(), words.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  std::int32_t count = 0;
  std::size_t blank = words.find(' ');
  if (!words.empty() && blank != 0) count = 1;
  while (blank != std::string::npos) {
    ++count;
    while (blank + 1 < words.size() && words[blank + 1] == ' ') ++blank;
    blank = words.find(' ', blank + 1);
  }
  // A blank at the end was taken for the start of one more word.
  if (!words.empty() && words.back() == ' ') --count;
  return count;
}

}  // namespace editor
