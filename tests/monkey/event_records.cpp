#include "event_records.h"

#include "basic/serial_day.h"
#include "events/event_line.h"

namespace monkey {

namespace {

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

/// Takes digits off the front; says whether there were as many as wanted.
bool Take_Number(std::string_view& text, std::size_t least, std::size_t most) {
  std::size_t count = 0;
  while (count < text.size() && Is_Digit(text[count])) ++count;
  if (count < least || count > most) return false;
  text.remove_prefix(count);
  return true;
}

bool Take(std::string_view& text, std::string_view what) {
  if (!text.starts_with(what)) return false;
  text.remove_prefix(what.size());
  return true;
}

/// Whether each "&" stands twice.
bool Doubled(std::string_view text) {
  for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 2))
    if (text.substr(at, 2) != "&&") return false;
  return true;
}

/// A double quote, the date, "=", a text without double quotes, a double quote and CR LF. Each "&" of the text is doubled,
/// but in a file with texts that were imported, which come in as they stand.
bool Take_Record(std::string_view& bytes, bool imported) {
  if (!Take(bytes, "\"")) return false;
  Take(bytes, "-");
  if (!Take_Number(bytes, 1, 2) || !Take(bytes, "/") || !Take_Number(bytes, 1, 2) || !Take(bytes, "/")) return false;
  if (!Take_Number(bytes, 4, 4) || !Take(bytes, "=")) return false;
  const std::string_view text = bytes.substr(0, bytes.find('"'));
  bytes.remove_prefix(text.size());
  return (imported || Doubled(text)) && Take(bytes, "\"\r\n");
}

}  // namespace

bool Well_Formed(std::string_view bytes, bool imported) {
  while (!bytes.empty())
    if (!Take_Record(bytes, imported)) return false;
  return true;
}

std::vector<std::string_view> Records(std::string_view bytes) {
  std::vector<std::string_view> records;
  while (!bytes.empty()) {
    const std::size_t end = bytes.find("\"\r\n", 1);
    records.push_back(bytes.substr(1, end - 1));
    bytes.remove_prefix(end + 3);
  }
  return records;
}

bool Days_Exist(std::string_view bytes) {
  for (const std::string_view record : Records(bytes)) {
    const auto event = events::Read_Event_Line(record);
    const basic::Serial_Day serial = basic::Date_Serial(event.Year.Value(), event.Month.Value(), event.Day.Value());
    const basic::Civil_Date civil = basic::Civil_From_Serial(serial);
    if (event.Day != civil.Day || event.Month != civil.Month) return false;
  }
  return true;
}

}  // namespace monkey
