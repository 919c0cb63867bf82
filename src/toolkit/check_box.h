// A check box. Its click comes from the user and from the program alike: setting the value clicks it.
#pragma once

#include "toolkit/label.h"

namespace toolkit {

class Check_Box : public Control, public Font_Properties {
 public:
  Check_Box(Form& window, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};
  Property<int> Value{*this, Aspect::Value};  ///< 1 when ticked, else 0

  /// The user's click turns the tick over; a disabled or hidden box takes none.
  void User_Click();

  void Changed(Aspect aspect) override;
};

}  // namespace toolkit
