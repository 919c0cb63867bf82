// The working copy of the file's lines through which one change passes on its way into the file. It is stale except
// between a reading of the file and the writing that follows it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "basic/int16.h"

namespace events {

/// Lines in file order, counted from 0. The count is a 16-bit number.
class Temp_List {
 public:
  [[nodiscard]] basic::Int16 Count() const { return lines_.size(); }

  [[nodiscard]] const std::string& Line(basic::Int16 index) const { return lines_[Place(index)]; }
  void Replace(basic::Int16 index, std::string line) { lines_[Place(index)] = std::move(line); }

  /// Throws error 6 when the list holds 32767 lines already.
  void Append(std::string_view line);

  /// The lines after it close up.
  void Remove(basic::Int16 index);
  void Clear() { lines_.clear(); }

 private:
  [[nodiscard]] std::size_t Place(basic::Int16 index) const;

  std::vector<std::string> lines_;
};

}  // namespace events
