// A check box. Its click comes from the user and from the program alike: setting the value clicks it.
#pragma once

#include "toolkit/label.h"

namespace toolkit {

class Check_Box : public Control, public Font_Properties {
 public:
  Check_Box(const Container& container, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};
  Property<int> Value{*this, Aspect::Value};  ///< 1 when ticked, else 0

  Property<bool> Held{*this, Aspect::Held};  ///< drawn as pressed down

  /// Turns the tick over; a disabled or hidden box takes no click.
  void User_Click() override;

  void Changed(Aspect aspect) override;

  [[nodiscard]] bool Takes_Focus() const override { return true; }
  [[nodiscard]] bool Double_Clicks() const override { return false; }
  [[nodiscard]] bool Clicks_Before_Release() const override { return true; }
  bool Key_Down(const Key& key) override;
  void Key_Up(const Key& key) override;
  void Show_Held(bool held) override { Held = held; }
  [[nodiscard]] const std::string* Caption_With_Accelerator() const override { return &Caption(); }
  [[nodiscard]] Role Kind() const override { return Role::Check_Box; }
  [[nodiscard]] Button_Marks Marks() const override { return {Value == 1, Held, false}; }
};

}  // namespace toolkit
