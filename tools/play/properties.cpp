#include "properties.h"

#include <algorithm>
#include <array>

#include "text_form.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"
#include "toolkit/item_list.h"
#include "toolkit/option_button.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

namespace play {

namespace {

using toolkit::Control;
using toolkit::Form;
using Value = std::optional<std::string>;

std::string In_Form(const std::string& text) { return Quoted(text); }
std::string In_Form(double number) { return Number_Text(number); }
std::string In_Form(int number) { return std::to_string(number); }
std::string In_Form(bool value) { return Truth_Text(value); }
std::string In_Form(toolkit::Pointer pointer) {
  // The program's own shapes are all of the kind of a custom one.
  return std::to_string(std::min(static_cast<int>(pointer), static_cast<int>(toolkit::Pointer::Cross_Hair)));
}
std::string In_Form(toolkit::Alignment alignment) { return std::to_string(static_cast<int>(alignment)); }

/// The property of a control that is of the kind that has it, else nothing.
template <class Kind, class Type>
Value Of(const Control& control, toolkit::Property<Type> Kind::*property) {
  const auto* const known = dynamic_cast<const Kind*>(&control);
  if (known == nullptr) return std::nullopt;
  return In_Form((known->*property)());
}

/// The first of several kinds that have it.
template <class... Properties>
Value Any_Of(const Control& control, Properties... properties) {
  Value value;
  (void)((value = Of(control, properties)) || ...);
  return value;
}

using toolkit::Check_Box;
using toolkit::Command_Button;
using toolkit::Font_Properties;
using toolkit::Frame;
using toolkit::Item_List;
using toolkit::Label;
using toolkit::Option_Button;
using toolkit::Picture_Box;
using toolkit::Slider;
using toolkit::Tab_Strip;
using toolkit::Text_Box;

struct Property_Entry {
  std::string_view name;
  Value (*of_control)(const Control& control);   // nullptr: no control has it
  std::string (*of_window)(const Form& window);  // nullptr: no window has it
};

template <auto Member>
Value Control_Length(const Control& control) {
  return In_Form(control.In_Twips().*Member);
}

template <auto Member>
std::string Window_Property(const Form& window) {
  return In_Form((window.*Member)());
}

/// What a list tells by a function.
template <auto Function>
Value List_Property(const Control& control) {
  const auto* const list = dynamic_cast<const Item_List*>(&control);
  if (list == nullptr) return std::nullopt;
  return In_Form((list->*Function)());
}

Value Text_Property(const Control& control) {
  if (auto text = Any_Of(control, &Text_Box::Text, &Slider::Text)) return text;
  return List_Property<&Item_List::Text>(control);
}

template <auto... Members>
Value Control_Property(const Control& control) {
  return Any_Of(control, Members...);
}

using toolkit::Bounds;

constexpr std::array<Property_Entry, 20> entries{
    {{"Left", Control_Length<&Bounds::Left>, Window_Property<&Form::Left>},
     {"Top", Control_Length<&Bounds::Top>, Window_Property<&Form::Top>},
     {"Width", Control_Length<&Bounds::Width>, Window_Property<&Form::Width>},
     {"Height", Control_Length<&Bounds::Height>, Window_Property<&Form::Height>},
     {"Visible", Control_Property<&Control::Visible>, Window_Property<&Form::Visible>},
     {"Enabled", Control_Property<&Control::Enabled>, Window_Property<&Form::Enabled>},
     {"Caption",
      Control_Property<&Label::Caption, &Check_Box::Caption, &Command_Button::Caption, &Option_Button::Caption,
                       &Frame::Caption>,
      Window_Property<&Form::Caption>},
     {"Text", Text_Property, nullptr},
     {"Value", Control_Property<&Check_Box::Value, &Option_Button::Value, &Slider::Value, &Tab_Strip::Selected>,
      nullptr},
     {"ToolTipText", Control_Property<&Control::ToolTipText>, nullptr},
     {"BackColor", Control_Property<&Label::BackColor, &Picture_Box::BackColor>, Window_Property<&Form::BackColor>},
     {"ForeColor", Control_Property<&Label::ForeColor>, Window_Property<&Form::ForeColor>},
     {"Alignment", Control_Property<&Label::Alignment>, nullptr},
     {"FontBold", Control_Property<&Font_Properties::FontBold>, nullptr},
     {"FontUnderline", Control_Property<&Font_Properties::FontUnderline>, nullptr},
     {"ListCount", List_Property<&Item_List::ListCount>, nullptr},
     {"ListIndex", List_Property<&Item_List::ListIndex>, nullptr},
     {"SelStart", Control_Property<&Text_Box::SelStart>, nullptr},
     {"SelLength", Control_Property<&Text_Box::SelLength>, nullptr},
     {"MousePointer", Control_Property<&Control::MousePointer>, Window_Property<&Form::MousePointer>}}};

bool Is_List_Item(const std::string& property) {
  return property.starts_with("List(") && property.ends_with(')') && property.size() > 6;
}

/// `List(i)`; an empty text where the list has no such item.
std::string List_Item(const Target& target, const std::string& property) {
  const auto* const list = dynamic_cast<const Item_List*>(target.Control);
  if (list == nullptr) throw Cannot_Play(target.Name + " has no " + property);
  const int index = To_Whole(property.substr(5, property.size() - 6));
  return Quoted(index >= 0 && index < list->ListCount() ? list->List(index) : std::string());
}

/// The caption of a tab.
std::string Tab_Text(const Target& target, const Tab_Strip& strip, const std::string& property) {
  const auto place = static_cast<std::size_t>(*target.Item) - 1;
  if (property != "Caption" || place >= strip.Captions.size()) throw Cannot_Play(target.Name + " has no " + property);
  return Quoted(strip.Captions[place]);
}

}  // namespace

void Check_Property(const std::string& property) {
  const bool known =
      std::any_of(entries.begin(), entries.end(), [&](const Property_Entry& entry) { return entry.name == property; });
  if (!known && !Is_List_Item(property)) throw Cannot_Play("no such property: " + property);
}

std::string Property_Text(const Target& target, const std::string& property) {
  Check_Property(property);
  if (Is_List_Item(property)) return List_Item(target, property);
  if (const auto* const strip = dynamic_cast<const Tab_Strip*>(target.Control); target.Item && strip != nullptr)
    return Tab_Text(target, *strip, property);
  for (const Property_Entry& entry : entries) {
    if (entry.name != property) continue;
    if (target.Control == nullptr && entry.of_window != nullptr) return entry.of_window(*target.Window);
    if (target.Control == nullptr || entry.of_control == nullptr) break;
    if (auto value = entry.of_control(*target.Control)) return *value;
  }
  throw Cannot_Play(target.Name + " has no " + property);
}

}  // namespace play
