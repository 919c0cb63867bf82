// An option: of those that lie in the same frame, or on the same window, one is on. To turn one on clicks it, whoever does
// it; the others go off without a click.
#pragma once

#include <vector>

#include "toolkit/label.h"

namespace toolkit {

class Option_Button : public Control, public Font_Properties {
 public:
  Option_Button(const Container& container, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};
  Property<bool> Value{*this, Aspect::Value};

  Property<bool> Held{*this, Aspect::Held};  ///< drawn as pressed down

  /// Turns it on, and clicks even if it is on already; a disabled or hidden option takes no click.
  void User_Click() override;

  void Changed(Aspect aspect) override;

  [[nodiscard]] bool Takes_Focus() const override { return true; }
  /// The one that is on, or the first where none is.
  [[nodiscard]] bool Tab_Stop() const override;
  [[nodiscard]] bool Double_Clicks() const override { return false; }
  [[nodiscard]] bool Clicks_Before_Release() const override { return true; }

  /// The arrows go to the next option of the group, Home and End and the pages to its ends, and turn it on.
  bool Key_Down(const Key& key) override;
  void Key_Up(const Key& key) override;
  void Show_Held(bool held) override { Held = held; }
  [[nodiscard]] const std::string* Caption_With_Accelerator() const override { return &Caption(); }
  [[nodiscard]] Role Kind() const override { return Role::Option_Button; }
  [[nodiscard]] Button_Marks Marks() const override { return {Value, Held, false}; }

 private:
  [[nodiscard]] std::vector<Option_Button*> Group() const;
  [[nodiscard]] std::vector<Option_Button*> Group_In_Reach() const;
  void Go_To_Next(bool backwards);
  void Go_To(Option_Button& option);
};

}  // namespace toolkit
