#include "exchange/line_merge.h"

#include <algorithm>
#include <numeric>
#include <span>

#include "basic/convert.h"
#include "basic/text.h"
#include "events/event_line.h"

namespace exchange {

namespace {

constexpr std::string_view before_a_line = "\"", behind_a_line = "\"\r\n";
constexpr std::string_view between_texts = " + ";

/// The day of the date in every year. The year may have fewer than four digits.
std::string In_Every_Year(const std::string& date_key) {
  return date_key.substr(0, date_key.rfind('/') + 1) + basic::To_Text(events::every_year);
}

}  // namespace

Line_Merge::Line_Merge(events::Temp_List& lines, basic::File_Channel& channel, const std::string& path,
                       basic::Saving how)
    : lines_(lines), channel_(channel), path_(path), how_(how) {
  for (basic::Int16 i = 0; i < lines_.Count(); i += 1) Note_Line(i.Value());
}

/// A line keeps its date whatever comes behind it, so each is looked at once.
void Line_Merge::Note_Line(int line) {
  const std::string& text = lines_.Line(line);
  const std::size_t end = text.find('=');
  if (end == std::string::npos) first_without_date_ = std::min(first_without_date_, line);
  else first_of_key_.try_emplace(text.substr(0, end), line);
  records_.append(before_a_line).append(text).append(behind_a_line);
  lengths_.push_back(before_a_line.size() + text.size() + behind_a_line.size());
}

/// The line, or `none`.
int Line_Merge::First_Line_Of(const std::string& date_key) const {
  int first = none;
  for (const std::string& key : {date_key, In_Every_Year(date_key)}) {
    const auto found = first_of_key_.find(key);
    if (found != first_of_key_.end()) first = std::min(first, found->second);
  }
  // A search that goes from line to line doesn't come past one that it can't read.
  if (first_without_date_ < first) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return first;
}

void Line_Merge::Merge(const std::string& date_key, std::string_view text) {
  int line = First_Line_Of(date_key);
  std::size_t start = records_.size();
  if (line == none) {
    line = lines_.Count().Value();
    lines_.Append(std::string(date_key).append("=").append(text));
    Note_Line(line);
  } else {
    start = Start_Of(line);
    Lengthen(line, start, std::string(between_texts).append(text));
  }
  Write_Temp_Lst(line, start);
}

/// From the end, since what stands behind the record is touched anyway.
std::size_t Line_Merge::Start_Of(int record) const {
  return records_.size() - std::accumulate(lengths_.begin() + record, lengths_.end(), std::size_t{0});
}

void Line_Merge::Lengthen(int line, std::size_t start, const std::string& text) {
  std::size_t& length = lengths_[static_cast<std::size_t>(line)];
  lines_.Replace(line, lines_.Line(line) + text);
  records_.insert(start + length - behind_a_line.size(), text);
  length += text.size();
}

/// What stands in the file before the line that has changed stays there: thousands of events come one by one.
void Line_Merge::Write_Temp_Lst(int first_changed, std::size_t start) {
  if (!open_) {
    channel_.Open_For_Writing(path_, how_);
    open_ = true;
    channel_.Write_Records(records_, lengths_);
    return;
  }
  channel_.Go_Back_To(start);
  channel_.Write_Records(std::string_view(records_).substr(start),
                         std::span(lengths_).subspan(static_cast<std::size_t>(first_changed)));
}

void Line_Merge::Close() {
  if (open_) channel_.Close();
}

}  // namespace exchange
