#include "toolkit/slider.h"

#include <algorithm>
#include <utility>

#include "basic/convert.h"

namespace toolkit {

Slider::Slider(const Container& container, std::string name, int least, int most, Slide direction)
    : Control(container, std::move(name)), Min(least), Max(most), Direction(direction) {
  Value.Keep(least);
}

void Slider::User_Press() {
  value_before_drag_ = Value;
  if (On_Mouse_Down) On_Mouse_Down({Mouse_Button::Left});
}

void Slider::User_Scroll(int value) {
  if (Value == value) return;
  Value.Keep(std::clamp(value, Min, Max));
  if (On_Scroll) On_Scroll();
}

void Slider::User_Release() {
  if (std::exchange(value_before_drag_, Value) != Value && On_Change) On_Change();
}

std::optional<std::string> Slider::Shown_Value() const { return basic::To_Text(Value()); }

void Slider::Changed(Aspect aspect) {
  if (aspect == Aspect::Value) Value.Keep(std::clamp(Value(), Min, Max));
  Control::Changed(aspect);
  if (aspect == Aspect::Value && On_Change) On_Change();
}

int Slider::Page() const { return std::max((Max - Min) / 5, 1); }

std::optional<int> Slider::Place_After(int key) const {
  switch (key) {
    case key_up:
    case key_left: return Value - 1;
    case key_down:
    case key_right: return Value + 1;
    case key_page_up: return Value - Page();
    case key_page_down: return Value + Page();
    case key_home: return Min;
    case key_end: return Max;
    default: return std::nullopt;
  }
}

bool Slider::Key_Down(const Key& key) {
  if (On_Key_Down) On_Key_Down();
  const std::optional<int> to = Place_After(key.Code);
  if (!to) return false;
  const int before = Value;
  Value.Keep(std::clamp(*to, Min, Max));
  if (Value == before) return true;
  Control::Changed(Aspect::Value);
  if (On_Scroll) On_Scroll();
  if (On_Change) On_Change();
  return true;
}

}  // namespace toolkit
