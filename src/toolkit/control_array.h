// Controls of one kind and name, told apart by an index from 0 on.
#pragma once

#include <memory>
#include <vector>

#include "basic/int16.h"
#include "toolkit/control.h"

namespace toolkit {

template <class Kind>
class Control_Array {
 public:
  Control_Array(const Container& container, const std::string& name, int count) {
    for (int i = 0; i < count; ++i) controls_.push_back(std::make_unique<Kind>(container, name, i));
  }

  /// Throws error 9 for an index outside the array.
  [[nodiscard]] Kind& operator[](basic::Int16 index) const {
    if (index < 0 || index.Value() >= static_cast<int>(controls_.size()))
      throw basic::Run_Error(basic::Error_Number::Subscript_Out_Of_Range);
    return *controls_[static_cast<std::size_t>(index.Value())];
  }

  [[nodiscard]] int Count() const { return static_cast<int>(controls_.size()); }

 private:
  std::vector<std::unique_ptr<Kind>> controls_;
};

}  // namespace toolkit
