#include "basic/line_reader.h"

#include <algorithm>

#include "basic/run_error.h"

namespace basic {

std::string_view Line_Reader::Next() {
  if (At_End()) throw Run_Error(Error_Number::Input_Past_End);
  const std::size_t length = std::min(rest_.find_first_of("\r\n"), rest_.size());
  const std::string_view line = rest_.substr(0, length);
  rest_.remove_prefix(length);
  if (rest_.starts_with("\r\n")) rest_.remove_prefix(2);
  else if (!rest_.empty()) rest_.remove_prefix(1);
  return line;
}

}  // namespace basic
