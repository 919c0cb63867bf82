// The working copy of the event file's lines, in which a change is made before it is written. It is up to date only
// between a reading of the file and the writing that follows it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "basic/int16.h"

namespace events {

/// Lines in file order, numbered from 0. A number without a line throws error 9.
class Temp_List {
 public:
  [[nodiscard]] basic::Int16 Count() const { return lines_.size(); }

  [[nodiscard]] const std::string& Line(basic::Int16 index) const { return lines_[Place(index)]; }
  void Replace(basic::Int16 index, std::string line) { lines_[Place(index)] = std::move(line); }

  /// Throws error 6 if the list already holds 32767 lines.
  void Append(std::string_view line);

  /// The lines after it move up.
  void Remove(basic::Int16 index);
  void Clear() { lines_.clear(); }

 private:
  [[nodiscard]] std::size_t Place(basic::Int16 index) const;

  std::vector<std::string> lines_;
};

}  // namespace events
