// A slider: a whole number between two limits, which the user drags or moves by keys.
//
// Of the user's drag the program hears when it begins (On_Mouse_Down), at each place on the way (On_Scroll), and when it
// ends in another place (On_Change). A key moves and changes at once; the program's setting only changes.
#pragma once

#include <optional>

#include "toolkit/control.h"

namespace toolkit {

enum class Slide { Across, Down };

class Slider : public Control {
 public:
  Slider(const Container& container, std::string name, int least, int most, Slide direction);

  const int Min, Max;
  const Slide Direction;

  /// Between the limits, whatever it is set to.
  Property<int> Value{*this, Aspect::Value};
  Property<std::string> Text{*this, Aspect::Drag_Tip};  ///< beside the thumb while it is dragged

  std::function<void()> On_Key_Down, On_Scroll, On_Change;

  // The user's drag, in its three steps.

  void User_Press();
  void User_Scroll(int value);
  void User_Release();

  void Changed(Aspect aspect) override;

  [[nodiscard]] bool Takes_Focus() const override { return true; }
  [[nodiscard]] Role Kind() const override { return Role::Slider; }
  [[nodiscard]] std::optional<std::string> Shown_Value() const override;
  [[nodiscard]] bool Double_Clicks() const override { return false; }
  bool Key_Down(const Key& key) override;

  /// How far the Page keys move it.
  [[nodiscard]] int Page() const;

 private:
  [[nodiscard]] std::optional<int> Place_After(int key) const;

  int value_before_drag_ = 0;
};

}  // namespace toolkit
