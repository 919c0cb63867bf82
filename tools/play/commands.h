// The commands of the player, in groups: one table each, from a name to what it does.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "world.h"

namespace play {

using Words = std::vector<std::string>;

struct Entry {
  std::string_view Name;
  std::size_t Least, Most;  ///< how many words stand after the name
  void (*Play)(World& world, const Words& words);
};

std::span<const Entry> World_Commands();   ///< what the world is like
std::span<const Entry> Answer_Commands();  ///< what boxes, menus and dialogs will be answered
std::span<const Entry> Mouse_Commands();   ///< the user with the mouse
std::span<const Entry> Key_Commands();     ///< the user with the keys, and with whole controls and windows
std::span<const Entry> Control_Looks();    ///< what windows and controls show
std::span<const Entry> Record_Looks();     ///< what has come of it since the last look
std::span<const Entry> Disk_Looks();       ///< what is stored

}  // namespace play
