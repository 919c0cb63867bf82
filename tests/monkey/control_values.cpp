#include "control_values.h"

#include "toolkit/check_box.h"
#include "toolkit/image.h"
#include "toolkit/item_list.h"
#include "toolkit/option_button.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

namespace monkey {

std::string Value_Text(const toolkit::Control& control) {
  if (const auto* const box = dynamic_cast<const toolkit::Check_Box*>(&control)) return std::to_string(box->Value());
  if (const auto* const option = dynamic_cast<const toolkit::Option_Button*>(&control))
    return option->Value() ? "True" : "False";
  if (const auto* const list = dynamic_cast<const toolkit::Item_List*>(&control)) return list->Text();
  if (const auto* const slider = dynamic_cast<const toolkit::Slider*>(&control)) return std::to_string(slider->Value());
  if (const auto* const tabs = dynamic_cast<const toolkit::Tab_Strip*>(&control))
    return std::to_string(tabs->Selected());
  if (const auto* const text = dynamic_cast<const toolkit::Text_Box*>(&control)) return text->Text();
  if (const auto* const picture = dynamic_cast<const toolkit::Picture_Box*>(&control))
    return std::to_string(picture->BackColor());
  if (const auto* const label = dynamic_cast<const toolkit::Label*>(&control)) return label->Caption();
  return {};
}

std::string Indexed_Name(const toolkit::Control& control) {
  return control.Index < 0 ? control.Name : control.Name + "(" + std::to_string(control.Index) + ")";
}

std::map<std::string, std::string> Values_Of(const toolkit::Form& window) {
  std::map<std::string, std::string> values;
  for (const toolkit::Control* const control : window.Controls()) values[Indexed_Name(*control)] = Value_Text(*control);
  return values;
}

}  // namespace monkey
