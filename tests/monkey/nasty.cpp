#include "nasty.h"

#include "basic/text.h"

namespace monkey {

namespace {

constexpr std::string_view pieces[] = {
    "a",    "Dentist", " at nine", " ",          "  ",   "\"",     "\"\"",
    "&",    "&&",      "\r\n",     "\n",         "\r",   "=",      ",",
    "/",    "\t",      "\xE4",     "\x80\xFF",   "\x01", "\x1A",   "'",
    "9999", ".",       "...",      "5/3/2004=x", "&\"",  "\"\r\n", "abcdefghijklmnop",
    "%",    "\\",      "1",        "-"};

constexpr std::string_view bad_files[] = {
    "junk",
    "\r\n",
    "\"5/3/2004=good\"\r\n\r\n\"6/3/2004=behind an empty line\"\r\n",
    "\"x=y\"\r\n",
    "\"5/3/2004\"\r\n",
    "\"5/3/2004=never closed",
    "5/3/2004=no quotes, and a comma\r\n",
    "\"99999/3/2004=too large\"\r\n",
    "\"40/3/2004=behind the last box\"\r\n",
    "\"0/3/2004=before the first\"\r\n",
    "   \"5/3/2004=blanks before\"   \r\n   ",
    "\"5/3/9999=a\"\r\n\"5/3/2004=b\"\r\n\"5/3/2004=two lines of a day, and more\"\r\n\"=\"\r\n",
};

std::string Put_Together(Random& random, int most) {
  std::string text;
  for (int count = random.Below(most + 1); count > 0; --count) text += random.One_Of(pieces);
  return text;
}

/// Up to a day that not every month has.
std::string Date(Random& random, int last_day) {
  static constexpr const char* years[] = {"9999", "2003", "2004", "2004", "2005", "9998"};
  return std::to_string(random.Below(last_day) + 1) + "/" + std::to_string(random.Below(12) + 1) + "/" +
         random.One_Of(years);
}

}  // namespace

std::string Typed_Text(Random& random) {
  if (!random.Once_In(300)) return Put_Together(random, 8);
  std::string text;
  while (text.size() < 65536) text += random.One_Of(pieces);
  return text;
}

std::string Good_File(Random& random) {
  std::string bytes;
  const int last_day = random.Once_In(6) ? 31 : 28;
  for (int count = random.Below(random.Once_In(4) ? 100 : 20); count > 0; --count) {
    const std::string text = basic::Replace_All(Put_Together(random, 5), "\"", "'");
    bytes += "\"" + Date(random, last_day) + "=" + basic::Double_Ampersands(text) + "\"\r\n";
  }
  return bytes;
}

std::string Bad_File(Random& random) { return std::string(random.One_Of(bad_files)); }

}  // namespace monkey
