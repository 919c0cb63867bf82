// The lines of a text file, one after the other. A line end is CR LF, or one of the two alone; the last line may lack it.
#pragma once

#include <string_view>

namespace basic {

class Line_Reader {
 public:
  /// The bytes must live for as long as the lines that are read from them.
  explicit Line_Reader(std::string_view bytes) : rest_(bytes) {}

  [[nodiscard]] bool At_End() const { return rest_.empty(); }

  /// The next line, without its end. Throws error 62 at the end of the file.
  std::string_view Next();

 private:
  std::string_view rest_;
};

}  // namespace basic
