// One run of the monkey: it acts, looks, and keeps a scenario of all that it did.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "checks.h"
#include "endings.h"
#include "player.h"
#include "random_actions.h"
#include "settings_checks.h"
#include "watcher.h"
#include "window_checks.h"

namespace monkey {

/// When a run ends: after so many actions, or when so much virtual time has passed, whichever is set.
struct Limit {
  int actions = 0;
  std::int64_t micros = 0;
};

class Monkey {
 public:
  explicit Monkey(unsigned seed) : seed_(seed), actions_(seed, world_) {}

  /// Says whether all held. The way to where it didn't is left as a scenario, monkey_SEED.scn, for meridex-play; also where
  /// the process ends in the midst of an action, or has to be ended.
  bool Play(const Limit& limit);

 private:
  [[nodiscard]] Situation Present_Situation();
  [[nodiscard]] bool At_End(const Limit& limit) const;
  void Act(const std::string& lines);
  [[nodiscard]] bool Prepared_Has_Run();
  void Check_End(const Brought_Up& brought);
  void Check(const std::string& lines, const Brought_Up& brought);
  [[nodiscard]] std::int64_t Elapsed() const { return world_.Platform.Time.Elapsed(); }
  void Open_Log();
  void Log(const std::string& lines);
  void Report(const char* why) const;
  void Tell() const;
  void Check_Reach() const;

  const unsigned seed_;
  play::World world_{[this](const std::string& line) { watcher_.Hear(line); }};
  Random_Actions actions_;
  play::Player player_{world_};
  Watcher watcher_{world_};
  Checks checks_{world_};
  Window_Checks window_checks_{world_};
  Settings_Checks settings_checks_{world_};
  const std::string log_name_ = "monkey_" + std::to_string(seed_) + ".scn";
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> log_{nullptr, std::fclose};
  int acted_ = -1;  // the setting of the scene is none
  bool failed_ = false;
  Last_Seen last_seen_;
  std::map<std::string, int> ends_;       // by an error and its cause
  std::multiset<std::int64_t> prepared_;  // when prepared actions are due
};

}  // namespace monkey
