// Which errors may end the program. Each has a cause in the world that the program doesn't catch, on purpose: an error
// without such a cause is a fault of the program.
#pragma once

#include <string>

#include "watcher.h"

namespace monkey {

/// What is gone by the time that the program has ended.
struct Last_Seen {
  int view_year = 0;
  double left = 0, top = 0;  // of the calendar, in twips
};

/// Of a running program.
Last_Seen See_Last(const play::World& world);

/// What in this world, as an ending program leaves it, may have ended it with the error that the action has brought up;
/// empty if nothing may.
std::string Cause_Of_End(play::World& world, const Last_Seen& seen, const Brought_Up& brought);

}  // namespace monkey
