// A frame: a group of controls with a line and a caption around them, which are shown, hidden, enabled and moved together.
#pragma once

#include "toolkit/label.h"

namespace toolkit {

class Frame : public Control, public Font_Properties {
 public:
  Frame(const Container& container, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};
  Property<bool> Bordered{*this, Aspect::Appearance, true};  ///< without it there is neither line nor caption

  /// What lies in it has changed with it.
  void Changed(Aspect aspect) override;

  [[nodiscard]] const std::string* Caption_With_Accelerator() const override { return Bordered ? &Caption() : nullptr; }
  [[nodiscard]] Role Kind() const override { return Role::Group; }
};

}  // namespace toolkit
