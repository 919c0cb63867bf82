#include "memory/memory_profiles.h"

#include <algorithm>
#include <optional>

#include "basic/text.h"
#include "memory/letter_case.h"

namespace memory {

namespace {

using Lines = std::vector<std::string>;
using Line = Lines::const_iterator;

constexpr int int_digits = 9;  // as many as always fit into an int

bool Is_Section(std::string_view line) { return basic::Trim_Blanks(line).starts_with('['); }

bool Is_Section(std::string_view line, std::string_view section) {
  line = basic::Trim_Blanks(line);
  return Is_Section(line) && Same_Name(basic::Trim_Blanks(line.substr(1, line.find(']') - 1)), section);
}

/// The text of an entry's line; nothing if the line isn't that entry's.
std::optional<std::string_view> Text_Of(std::string_view line, std::string_view entry) {
  line = basic::Trim_Blanks(line);
  const std::size_t mark = line.find('=');
  if (line.starts_with(';') || mark == std::string_view::npos) return std::nullopt;
  if (!Same_Name(basic::Trim_Blanks(line.substr(0, mark)), entry)) return std::nullopt;
  return basic::Trim_Blanks(line.substr(mark + 1));
}

/// The lines of a section without its head line; an empty range at the end of the file if there is no such section.
std::pair<Line, Line> Lines_Of(const Lines& lines, std::string_view section) {
  const auto head =
      std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return Is_Section(line, section); });
  if (head == lines.end()) return {lines.end(), lines.end()};
  return {head + 1, std::find_if(head + 1, lines.end(), [](const auto& line) { return Is_Section(line); })};
}

std::optional<std::string_view> Find_Text(const Lines& lines, std::string_view section, std::string_view entry) {
  const auto [first, last] = Lines_Of(lines, section);
  for (auto line = first; line != last; ++line)
    if (const auto text = Text_Of(*line, entry)) return text;
  return std::nullopt;
}

std::string_view Without_Quotes(std::string_view text) {
  const bool quoted = text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
  return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

std::string Memory_Profiles::Get_Text(const std::string& section, const std::string& entry,
                                      const std::string& default_text, unsigned room, const std::string& file) {
  const Lines lines = Read_Lines(file);
  std::string_view text = default_text;
  while (text.ends_with(' ')) text.remove_suffix(1);
  if (const auto found = Find_Text(lines, section, entry)) text = Without_Quotes(*found);
  return std::string(text.substr(0, room == 0 ? 0 : room - 1));
}

int Memory_Profiles::Get_Number(const std::string& section, const std::string& entry, int default_number,
                                const std::string& file) {
  const Lines lines = Read_Lines(file);
  const auto found = Find_Text(lines, section, entry);
  if (!found || found->empty()) return default_number;
  std::string_view text = Without_Quotes(*found);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  int number = 0;
  for (const char digit : text.substr(0, int_digits)) {
    if (digit < '0' || digit > '9') break;
    number = number * 10 + (digit - '0');
  }
  return negative ? -number : number;
}

bool Memory_Profiles::Write_Text(const std::string& section, const std::string& entry, const std::string& text,
                                 const std::string& file) {
  Lines lines = Read_Lines(file);
  const std::string line = entry + "=" + text;
  const auto [first, last] = Lines_Of(lines, section);
  const bool absent = first == lines.end() && (lines.empty() || !Is_Section(lines.back(), section));
  const auto old =
      std::find_if(first, last, [&](const auto& candidate) { return Text_Of(candidate, entry).has_value(); });
  if (absent) {
    lines.push_back("[" + section + "]");
    lines.push_back(line);
  } else if (old != last) {
    lines[static_cast<std::size_t>(old - lines.cbegin())] = line;
  } else {
    Line end = last;
    while (end != first && basic::Trim_Blanks(*(end - 1)).empty()) --end;
    lines.insert(end, line);
  }
  return Write_Lines(lines, file);
}

/// The lines without their ends; none if there is no such file.
Memory_Profiles::Lines Memory_Profiles::Read_Lines(const std::string& file) {
  std::string bytes;
  try {
    files_.Read_Whole(file, bytes);
  } catch (const basic::Run_Error&) {
    return {};
  }
  Lines lines;
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::size_t end = rest.find_first_of("\r\n");
    lines.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(rest.size(), end));
    if (rest.starts_with("\r\n")) rest.remove_prefix(1);
    if (!rest.empty()) rest.remove_prefix(1);
  }
  return lines;
}

bool Memory_Profiles::Write_Lines(const Lines& lines, const std::string& file) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  try {
    return files_.Create(file)->Write(bytes) == bytes.size();
  } catch (const basic::Run_Error&) {
    return false;
  }
}

}  // namespace memory
