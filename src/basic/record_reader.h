// The records of a text file: the events of calendar.dat and the lines of a pack's settings.
//
// Blanks before a record are skipped. A record that starts with a double quote runs to the closing one, or to the end
// of the bytes if there is none, and may contain commas and line ends; any other record runs to the next comma or line
// end. The next record starts after the next comma or line end. A line end is CR LF, CR or LF.
#pragma once

#include <string_view>

namespace basic {

class Record_Reader {
 public:
  /// The bytes must live for as long as the records that are read from them.
  explicit Record_Reader(std::string_view bytes) : at_(bytes.data()), end_(bytes.data() + bytes.size()) {}

  /// Sets `record` to the next record, without its quotes. Returns false at the end and leaves `record` as it was.
  bool Next(std::string_view& record);

 private:
  [[nodiscard]] const char* Next_Delimiter() const;
  void Pass_Delimiter();

  const char* at_;
  const char* end_;
};

}  // namespace basic
