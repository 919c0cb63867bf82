#include "events/temp_lst.h"

namespace events {

void Temp_List::Append(std::string_view line) {
  [[maybe_unused]] const basic::Int16 count_with_it = lines_.size() + 1;
  lines_.emplace_back(line);
}

void Temp_List::Remove(basic::Int16 index) { lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(Place(index))); }

std::size_t Temp_List::Place(basic::Int16 index) const {
  if (index < 0 || index >= Count()) throw basic::Run_Error(basic::Error_Number::Subscript_Out_Of_Range);
  return static_cast<std::size_t>(index.Value());
}

}  // namespace events
