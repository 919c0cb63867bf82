#include "basic/record_reader.h"

#include "basic/find_byte.h"

namespace basic {

bool Record_Reader::Next(std::string_view& record) {
  if (at_ == end_) return false;
  while (at_ != end_ && *at_ == ' ') ++at_;
  if (at_ != end_ && *at_ == '"') {
    const char* const start = at_ + 1;
    const char* const quote = Find_Byte(start, end_, '"');
    record = {start, static_cast<std::size_t>(quote - start)};
    at_ = quote == end_ ? end_ : quote + 1;
    at_ = Next_Delimiter();
  } else {
    const char* const start = at_;
    at_ = Next_Delimiter();
    record = {start, static_cast<std::size_t>(at_ - start)};
  }
  Pass_Delimiter();
  return true;
}

const char* Record_Reader::Next_Delimiter() const {
  const char* at = at_;
  while (at != end_ && *at != '\r' && *at != '\n' && *at != ',') ++at;
  return at;
}

void Record_Reader::Pass_Delimiter() {
  if (at_ == end_) return;
  const bool line_end_of_two = *at_ == '\r' && end_ - at_ > 1 && at_[1] == '\n';
  at_ += line_end_of_two ? 2 : 1;
}

}  // namespace basic
