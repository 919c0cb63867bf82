#include "toolkit/tab_strip.h"

#include <algorithm>
#include <utility>

#include "toolkit/accelerator.h"

namespace toolkit {

Tab_Strip::Tab_Strip(const Container& container, std::string name, std::vector<std::string> captions)
    : Control(container, std::move(name)), Font_Properties(static_cast<Property_Owner&>(*this)),
      Captions(std::move(captions)) {}

void Tab_Strip::User_Select(int tab) {
  if (On_View() && Usable()) Selected = std::clamp(tab, 1, static_cast<int>(Captions.size()));
}

std::string Tab_Strip::Part_Text(int part) const { return Without_Marks(Captions[static_cast<std::size_t>(part)]); }

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
