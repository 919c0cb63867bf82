#include "toolkit/tab_strip.h"

#include <algorithm>
#include <utility>

namespace toolkit {

Tab_Strip::Tab_Strip(const Container& container, std::string name, std::vector<std::string> captions)
    : Control(container, std::move(name)), Font_Properties(static_cast<Property_Owner&>(*this)),
      Captions(std::move(captions)) {}

void Tab_Strip::User_Select(int tab) {
  if (On_View() && Usable()) Selected = std::clamp(tab, 1, static_cast<int>(Captions.size()));
}

void Tab_Strip::Changed(Aspect aspect) {
  Control::Changed(aspect);
  if (aspect == Aspect::Value && On_Click) On_Click();
}

bool Tab_Strip::Key_Down(const Key& key) {
  switch (key.Code) {
    case key_left:
    case key_up: User_Select(Selected - 1); return true;
    case key_right:
    case key_down: User_Select(Selected + 1); return true;
    case key_home: User_Select(1); return true;
    case key_end: User_Select(static_cast<int>(Captions.size())); return true;
    default: return false;
  }
}

}  // namespace toolkit
