// Plays commands in a world, now or later.
#pragma once

#include <vector>

#include "commands.h"
#include "scenario.h"

namespace play {

class Player {
 public:
  explicit Player(World& world) : world_(world) {}

  /// Plays them one after the other. Throws Scenario_Error at one that can't be played: one that doesn't exist or has too
  /// many or too few words before any is played, all others when they are reached.
  void Play(const std::vector<Command>& commands);

 private:
  static void Check(const Command& command);
  void Play_One(const Command& command);
  void Dispatch(const Command& command);
  void Play_Later(const Command& command);

  World& world_;
};

}  // namespace play
