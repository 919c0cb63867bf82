#include "basic/text.h"

#include <algorithm>

namespace basic {

namespace {

char Upper(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; }

}  // namespace

std::string_view Trim_Blanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool Same_Letters(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Upper(x) == Upper(y); });
}

std::string Upper_Case(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Upper);
  return result;
}

std::string Lower_Case(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return result;
}

std::string Replace_All(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  result.reserve(text.size());
  for (;;) {
    const std::size_t at = text.find(what);
    result.append(text.substr(0, at));
    if (at == std::string_view::npos) return result;
    result.append(with);
    text.remove_prefix(at + what.size());
  }
}

std::string Double_Ampersands(std::string_view text) { return Replace_All(text, "&", "&&"); }

std::string Single_Ampersands(std::string_view text) { return Replace_All(text, "&&", "&"); }

Halves Split_At_First(std::string_view text, char separator) {
  const std::size_t at = text.find(separator);
  if (at == std::string_view::npos) throw Run_Error(Error_Number::Invalid_Procedure_Call);
  return {text.substr(0, at), text.substr(at + 1)};
}

}  // namespace basic
