// The merging of imported events into the lines of calendar.dat, one after the other. The file holds all lines after
// each; one that is written beside the old file takes its place when all have come.
#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "basic/file_channel.h"
#include "events/temp_lst.h"

namespace exchange {

class Line_Merge {
 public:
  /// Nobody else may touch the lines, or use the file number, as long as this is at work.
  Line_Merge(events::Temp_List& lines, basic::File_Channel& channel, const std::string& path, basic::Saving how);

  /// The first line of the day, be it dated or of every year, gets the text behind what it has; where there is none, the
  /// event becomes a new line. Then the file is as the lines are. The key is a date such as 5/3/2004. Throws error 5 for a
  /// line without "=" that comes before any of the day, error 6 for more than 32767 lines, and as the channel does; the
  /// file number stays taken.
  void Merge(const std::string& date_key, std::string_view text);

  /// Closes the file, if any event was merged.
  void Close();

 private:
  [[nodiscard]] int First_Line_Of(const std::string& date_key) const;
  void Note_Line(int line);
  [[nodiscard]] std::size_t Start_Of(int record) const;
  void Lengthen(int line, std::size_t start, const std::string& text);
  void Write_Temp_Lst(int first_changed, std::size_t start);

  static constexpr int none = std::numeric_limits<int>::max();

  events::Temp_List& lines_;
  basic::File_Channel& channel_;
  const std::string path_;
  const basic::Saving how_;
  std::unordered_map<std::string, int> first_of_key_;  // the first line of each date as it stands in the lines
  int first_without_date_ = none;
  std::string records_;               // the lines as the file holds them
  std::vector<std::size_t> lengths_;  // of each record
  bool open_ = false;
};

}  // namespace exchange
