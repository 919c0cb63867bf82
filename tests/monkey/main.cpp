// monkey SEED COUNT: plays that many random actions, checks after each, and ends with 0 if all held. What went wrong is
// left as a scenario, monkey_SEED.scn, for meridex-play.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <set>
#include <string>

#include "checks.h"
#include "player.h"
#include "random_actions.h"
#include "text_form.h"

namespace {

class Monkey {
 public:
  explicit Monkey(unsigned seed) : seed_(seed), actions_(seed) {}

  bool Play(int count) {
    try {
      for (int i = 0; i <= count; ++i) Act(i == 0 ? actions_.First() : actions_.Next(Present_Situation()));
      std::printf("compared the boxes %d times with %d fresh starts\n", checks_.Compared(), checks_.Fresh_Starts());
      return true;
    } catch (const std::exception& failure) {
      Keep(failure.what());
      return false;
    }
  }

 private:
  monkey::Situation Present_Situation() {
    const bool running = world_.State() != nullptr && world_.Find_Window("Main_Frm") != nullptr;
    const auto tooltips = world_.Platform.Store.Get("Meridex", "Settings", "Tooltips", "1");
    return {running, checks_.In_Trouble(), tooltips == "2", world_.Platform.Time.Now().Seconds()};
  }

  void Act(const std::string& lines) {
    log_ += lines + "\n";
    ++acted_;
    const auto commands = play::Read_Scenario(lines);
    for (const auto& command : commands)
      if (command.Name == "later") prepared_.insert(Elapsed() + play::To_Micros(command.Words.front()));
    checks_.Before();
    player_.Play(commands);
    const auto still_to_come = prepared_.upper_bound(Elapsed());
    const bool nested = still_to_come != prepared_.begin();
    prepared_.erase(prepared_.begin(), still_to_come);
    checks_.After(lines, nested);
  }

  [[nodiscard]] std::int64_t Elapsed() const { return world_.Platform.Time.Elapsed(); }

  void Keep(const char* why) {
    const std::string name = "monkey_" + std::to_string(seed_) + ".scn";
    std::fprintf(stderr, "seed %u, action %d: %s\nthe way there is in %s\n", seed_, acted_, why, name.c_str());
    if (std::FILE* const file = std::fopen(name.c_str(), "wb")) {
      std::fwrite(log_.data(), 1, log_.size(), file);
      std::fclose(file);
    }
  }

  const unsigned seed_;
  monkey::Random_Actions actions_;
  play::World world_{[](const std::string&) {}};
  play::Player player_{world_};
  monkey::Checks checks_{world_};
  std::string log_;
  int acted_ = -1;                        // the setting of the scene is none
  std::multiset<std::int64_t> prepared_;  // when prepared actions are due
};

}  // namespace

int main(int count, char** words) {
  if (count != 3) {
    std::fputs("usage: monkey SEED COUNT\n", stderr);
    return 2;
  }
  const auto seed = static_cast<unsigned>(std::strtoul(words[1], nullptr, 10));
  const int actions = std::atoi(words[2]);
  std::printf("seed %u, %d actions\n", seed, actions);
  std::fflush(stdout);
  return Monkey(seed).Play(actions) ? 0 : 1;
}
