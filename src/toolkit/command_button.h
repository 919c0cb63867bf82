// A push button.
#pragma once

#include "platform/stock_picture.h"
#include "toolkit/label.h"

namespace toolkit {

class Command_Button : public Control, public Font_Properties {
 public:
  Command_Button(const Container& container, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};  ///< "&" marks the shortcut
  Property<platform::Stock_Picture> Picture{*this, Aspect::Appearance,
                                            platform::Stock_Picture::None};  ///< above the caption
  Property<bool> Default{*this, Aspect::Default_Button};                     ///< the Enter key presses it
  Property<bool> Cancel{*this, Aspect::Default_Button};                      ///< the Escape key presses it

  Property<bool> Held{*this, Aspect::Held};  ///< drawn as pressed down

  /// A disabled or hidden button takes no click.
  void User_Click() override;

  [[nodiscard]] bool Takes_Focus() const override { return true; }
  [[nodiscard]] bool Double_Clicks() const override { return false; }
  bool Key_Down(const Key& key) override;
  void Key_Up(const Key& key) override;
  void Show_Held(bool held) override { Held = held; }
  [[nodiscard]] const std::string* Caption_With_Accelerator() const override { return &Caption(); }
  [[nodiscard]] Role Kind() const override { return Role::Push_Button; }
  [[nodiscard]] Button_Marks Marks() const override;
};

}  // namespace toolkit
