#include "toolkit/text_box.h"

#include <utility>

namespace toolkit {

Text_Box::Text_Box(Form& window, std::string name, int index)
    : Control(window, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Text_Box::User_Text(std::string text) {
  Text.Keep(std::move(text));
  if (On_Change) On_Change();
}

void Text_Box::User_Character(std::string_view character) {
  std::string text = Text;
  const auto start = static_cast<std::size_t>(SelStart());
  text.replace(start, static_cast<std::size_t>(SelLength()), character);
  SelStart = static_cast<int>(start + character.size());
  SelLength = 0;
  User_Text(std::move(text));
}

void Text_Box::Changed(Aspect aspect) {
  if (aspect == Aspect::Caption) {
    SelStart.Keep(0);
    SelLength.Keep(0);
  }
  Control::Changed(aspect);
  if (aspect == Aspect::Caption && On_Change) On_Change();
}

}  // namespace toolkit
