#include "target.h"

#include <algorithm>
#include <vector>

#include "text_form.h"

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

toolkit::Control* Find_Control(const toolkit::Form& window, const Name_Parts& parts) {
  const auto& controls = window.Controls();
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const toolkit::Control* control) {
    return control->Name == parts.control && control->Index == parts.index;
  });
  return found == controls.end() ? nullptr : *found;
}

}  // namespace

std::optional<Target> Find_Target(const World& world, const std::string& name) {
  const Name_Parts parts = Split(name);
  std::vector<toolkit::Form*> windows;
  if (parts.window.empty()) {
    if (toolkit::Form* const window = world.Find_Window(name); window != nullptr) return Target{name, window, nullptr};
    windows = world.Platform.Windows().From_The_Front();
  } else if (toolkit::Form* const window = world.Find_Window(parts.window); window != nullptr) {
    windows.push_back(window);
  }
  for (toolkit::Form* const window : windows)
    if (toolkit::Control* const control = Find_Control(*window, parts)) return Target{name, window, control};
  return std::nullopt;
}

bool Can_Be_Reached(const World& world, const Target& target) {
  if (!world.Is_There(target.Window, target.Control)) return false;
  if (!target.Window->Visible() || !target.Window->Accepts_Input()) return false;
  return target.Control == nullptr || (target.Control->Visible && target.Control->Enabled);
}

std::optional<Target> Reach(const World& world, const std::string& name) {
  auto target = Find_Target(world, name);
  if (target && Can_Be_Reached(world, *target)) return target;
  world.Print("refused " + name);
  return std::nullopt;
}

}  // namespace play
