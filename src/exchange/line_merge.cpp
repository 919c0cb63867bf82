#include "exchange/line_merge.h"

#include <algorithm>

#include "basic/convert.h"
#include "basic/text.h"
#include "events/event_line.h"

namespace exchange {

namespace {

constexpr std::string_view around_a_record = "\"\"\r\n";
constexpr std::string_view between_texts = " + ";

/// The day of the date in every year. The year may have fewer than four digits.
std::string In_Every_Year(const std::string& date_key) {
  return date_key.substr(0, date_key.rfind('/') + 1) + basic::To_Text(events::every_year);
}

}  // namespace

Line_Merge::Line_Merge(events::Temp_List& lines, basic::File_Channel& channel, const std::string& path)
    : lines_(lines), channel_(channel), path_(path) {
  for (basic::Int16 i = 0; i < lines_.Count(); i += 1) Note_Key(i.Value());
}

/// A line keeps its date whatever comes behind it, so each is looked at once.
void Line_Merge::Note_Key(int line) {
  const std::string& text = lines_.Line(line);
  const std::size_t end = text.find('=');
  if (end == std::string::npos) first_without_date_ = std::min(first_without_date_, line);
  else first_of_key_.try_emplace(text.substr(0, end), line);
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
  if (line == none) {
    line = lines_.Count().Value();
    lines_.Append(std::string(date_key).append("=").append(text));
    Note_Key(line);
  } else {
    lines_.Replace(line, std::string(lines_.Line(line)).append(between_texts).append(text));
  }
  Write_Temp_Lst(line);
}

/// What stands in the file before the line that has changed stays there: thousands of events come one by one.
void Line_Merge::Write_Temp_Lst(int first_changed) {
  if (open_) {
    channel_.Go_Back_To(starts_[static_cast<std::size_t>(first_changed)]);
  } else {
    channel_.Open_For_Writing(path_);
    open_ = true;
    starts_ = {0};
    first_changed = 0;
  }
  starts_.resize(static_cast<std::size_t>(first_changed) + 1);
  for (basic::Int16 i = first_changed; i < lines_.Count(); i += 1) {
    const std::string& line = lines_.Line(i);
    channel_.Write_Record(line);
    starts_.push_back(starts_.back() + line.size() + around_a_record.size());
  }
  channel_.Write_Out();
}

void Line_Merge::Close() {
  if (open_) channel_.Close();
}

}  // namespace exchange
