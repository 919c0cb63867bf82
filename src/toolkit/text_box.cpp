#include "toolkit/text_box.h"

#include <algorithm>
#include <utility>

namespace toolkit {

Text_Box::Text_Box(const Container& container, std::string name, int index)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Text_Box::User_Text(std::string text) {
  Text.Keep(std::move(text));
  Keep_Selection_Inside();
  if (On_Change) On_Change();
}

void Text_Box::User_Character(std::string_view character) {
  std::string text = Text;
  const auto start = static_cast<std::size_t>(SelStart());
  text.replace(start, static_cast<std::size_t>(SelLength()), character);
  Text.Keep(std::move(text));
  SelStart.Keep(static_cast<int>(start + character.size()));
  SelLength.Keep(0);
  if (On_Change) On_Change();
}

void Text_Box::Changed(Aspect aspect) {
  if (aspect == Aspect::Caption) {
    SelStart.Keep(0);
    SelLength.Keep(0);
  }
  if (aspect == Aspect::Selection) Keep_Selection_Inside();
  Control::Changed(aspect);
  if (aspect == Aspect::Caption && On_Change) On_Change();
}

void Text_Box::Focused_By_Key() {
  SelStart.Keep(0);
  SelLength.Keep(static_cast<int>(Text().size()));
  Control::Changed(Aspect::Selection);
}

void Text_Box::Keep_Selection_Inside() {
  const int size = static_cast<int>(Text().size());
  SelStart.Keep(std::clamp(SelStart(), 0, size));
  SelLength.Keep(std::clamp(SelLength(), 0, size - SelStart()));
}

}  // namespace toolkit
