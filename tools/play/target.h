// The window or the control that a word of a scenario names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "world.h"

namespace play {

struct Target {
  std::string Name;  ///< as the scenario gives it
  toolkit::Form* Window = nullptr;
  toolkit::Control* Control = nullptr;  ///< nullptr: the window itself
  std::optional<int> Item;              ///< an item of a list (from 0 on), or a tab (from 1 on)
};

/// A word such as `Ok_Btn`, `Box_Lbl(5)`, `Events_Lst(0)`, `Edit_Frm.Ok_Btn` or `Edit_Frm`. A name that stands in several windows means
/// the one in front, and a window only counts while it is loaded.
std::optional<Target> Find_Target(const World& world, const std::string& name);

/// Whether it is still there, on view and enabled, its window too: what a user's action needs.
bool Can_Be_Reached(const World& world, const Target& target);

/// The same as Find_Target for a user's action: prints that it is refused if the target can't be reached.
std::optional<Target> Reach(const World& world, const std::string& name);

}  // namespace play
