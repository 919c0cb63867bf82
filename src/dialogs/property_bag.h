// Where a control keeps its properties between its lives.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "basic/int16.h"

namespace dialogs {

using Property_Value = std::variant<std::string, bool, basic::Int16, std::int32_t>;

class Property_Bag {
 public:
  virtual ~Property_Bag() = default;

  /// The value that is kept under the name, or the default where there is none.
  virtual Property_Value Read(const std::string& name, const Property_Value& default_value) = 0;

  /// A value that equals the default needn't be kept.
  virtual void Write(const std::string& name, const Property_Value& value, const Property_Value& default_value) = 0;
};

}  // namespace dialogs
