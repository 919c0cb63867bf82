// Random actions of a user and of the world around the calendar, as lines of a scenario: what went wrong can be played
// again by meridex-play.
#pragma once

#include <string>

#include "window_actions.h"

namespace monkey {

/// What the next action depends on.
struct Situation {
  bool running = false;   ///< the program runs
  bool failed = false;    ///< an error has ended it
  bool trouble = false;   ///< little can be checked before the next start
  bool balloons = false;  ///< a press on a box may be waited for
  int second_of_the_day = 0;
};

class Random_Actions {
 public:
  Random_Actions(std::uint32_t seed, const play::World& world) : random_(seed), windows_(random_, world) {}

  /// Sets the scene and starts the program.
  std::string First();

  /// One action, of one line or a few that belong together.
  std::string Next(const Situation& situation);

 private:
  std::string Of_The_User(bool press);
  std::string Mouse();
  std::string Key();
  std::string Type();
  std::string Menu();
  std::string Window();
  std::string Wait();
  std::string Clock();
  std::string Disk();
  std::string Screen();
  std::string Desktop();
  std::string Consent();
  std::string Restart(bool healed);
  std::string Prepared_Answer();
  std::string Label();
  std::string Control();

  Random random_;
  Window_Actions windows_;
  bool large_ = false;  // the screen is larger than 16 bits hold, and the user has consented
};

}  // namespace monkey
