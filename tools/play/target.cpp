#include "target.h"

#include <algorithm>
#include <vector>

#include "text_form.h"
#include "toolkit/item_list.h"
#include "toolkit/tab_strip.h"

namespace play {

namespace {

/// The pieces of a name: the window's, the control's and the place in an array, -1 for none.
struct Name_Parts {
  std::string_view window, control;
  int index = -1;
};

Name_Parts Split(std::string_view name) {
  Name_Parts parts;
  if (name.ends_with(')')) {
    const std::size_t open = name.find('(');
    if (open == std::string_view::npos) throw Cannot_Play("no name: " + std::string(name));
    parts.index = To_Whole(name.substr(open + 1, name.size() - open - 2));
    name = name.substr(0, open);
  }
  const std::size_t point = name.find('.');
  if (point != std::string_view::npos) parts.window = name.substr(0, point);
  parts.control = name.substr(point + 1);
  return parts;
}

bool Has_Items(const toolkit::Control& control) {
  return dynamic_cast<const toolkit::Item_List*>(&control) != nullptr ||
         dynamic_cast<const toolkit::Tab_Strip*>(&control) != nullptr;
}

std::optional<Target> Find_Control(const std::string& name, toolkit::Form& window, const Name_Parts& parts) {
  for (toolkit::Control* const control : window.Controls()) {
    if (control->Name != parts.control) continue;
    if (control->Index == parts.index) return Target{name, &window, control, {}};
    if (control->Index == -1 && Has_Items(*control)) return Target{name, &window, control, parts.index};
  }
  return std::nullopt;
}

/// Whether the item that is named is there.
bool Item_Is_There(const Target& target) {
  if (!target.Item) return true;
  if (const auto* const list = dynamic_cast<const toolkit::Item_List*>(target.Control))
    return *target.Item >= 0 && *target.Item < list->ListCount();
  const auto& tabs = dynamic_cast<const toolkit::Tab_Strip&>(*target.Control).Captions;
  return *target.Item >= 1 && *target.Item <= static_cast<int>(tabs.size());
}

}  // namespace

std::optional<Target> Find_Target(const World& world, const std::string& name) {
  const Name_Parts parts = Split(name);
  std::vector<toolkit::Form*> windows;
  if (parts.window.empty()) {
    if (toolkit::Form* const window = world.Find_Window(name); window != nullptr)
      return Target{name, window, nullptr, {}};
    windows = world.Platform.Windows().From_The_Front();
  } else if (toolkit::Form* const window = world.Find_Window(parts.window); window != nullptr) {
    windows.push_back(window);
  }
  for (toolkit::Form* const window : windows)
    if (auto target = Find_Control(name, *window, parts)) return target;
  return std::nullopt;
}

bool Can_Be_Reached(const World& world, const Target& target) {
  if (!world.Is_There(target.Window, target.Control)) return false;
  if (!target.Window->Visible() || !target.Window->Accepts_Input()) return false;
  if (target.Control == nullptr) return true;
  return target.Control->On_View() && target.Control->Usable() && Item_Is_There(target);
}

std::optional<Target> Reach(const World& world, const std::string& name) {
  auto target = Find_Target(world, name);
  if (target && Can_Be_Reached(world, *target)) return target;
  world.Print("refused " + name);
  return std::nullopt;
}

}  // namespace play
