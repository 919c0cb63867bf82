// Any lines as those of calendar.dat, and any days that an import brings: each text comes to the line that a search from the
// first one finds, or behind the last one, and the file holds all lines after each.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exchange/line_merge.h"
#include "fuzz/expect.h"
#include "tests/basic/error_of.h"
#include "tests/basic/fake_disk.h"

namespace {

using Texts = std::vector<std::string>;

const std::string path = "C:\\Meridex\\calendar.dat";

/// The texts between the bytes of that kind.
Texts Split(const std::string& bytes, char between) {
  Texts texts(1);
  for (const char c : bytes) {
    if (c == between) texts.emplace_back();
    else texts.back() += c;
  }
  return texts;
}

std::string As_Written(const Texts& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += '"' + line + "\"\r\n";
  return bytes;
}

/// Goes from line to line. Nothing if one without "=" comes before any of the day.
std::optional<Texts> Merged(Texts lines, const std::string& date, const std::string& text) {
  const std::string every_year = date.substr(0, date.rfind('/') + 1) + "9999";
  for (std::string& line : lines) {
    if (line.find('=') == std::string::npos) return std::nullopt;
    const std::string key = line.substr(0, line.find('='));
    if (key != date && key != every_year) continue;
    line += " + " + text;
    return lines;
  }
  lines.push_back(std::string(date).append("=").append(text));
  return lines;
}

}  // namespace

/// Before the first 0 stand the lines, behind it what comes in: lines of a date, "=" and a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t end = std::min(bytes.find('\0'), size);
  Texts expected = end == 0 ? Texts() : Split(bytes.substr(0, end), '\n');
  events::Temp_List lines;
  for (const std::string& line : expected) lines.Append(line);
  Fake_Disk disk;
  basic::File_Channel channel(disk);
  exchange::Line_Merge merge(lines, channel, path, basic::Saving::In_Place);
  for (const std::string& row : Split(bytes.substr(std::min(end + 1, size)), '\n')) {
    if (row.find('=') == std::string::npos || row.find('/') > row.find('=')) continue;
    const std::string date = row.substr(0, row.find('='));
    const std::string text = row.substr(date.size() + 1);
    const auto merged = Merged(expected, date, text);
    const int error = Error_Of([&] { merge.Merge(date, text); });
    Expect(error == (merged ? 0 : 5), "a line without = ends the merging, where it comes before the day's");
    if (!merged) break;
    expected = *merged;
    Texts present;
    for (int i = 0; i < lines.Count().Value(); ++i) present.push_back(lines.Line(i));
    Expect(present == expected, "the text is where a search from line to line puts it");
  }
  const bool written = disk.Open_For_Writing != 0;
  merge.Close();
  if (written) Expect(disk.Contents[path] == As_Written(expected), "the file holds all lines");
  return 0;
}
