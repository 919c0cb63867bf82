#include "monkey.h"

#include <cstdio>
#include <exception>

#include "failed.h"
#include "text_form.h"

namespace monkey {

namespace {

constexpr int actions_that_come_everywhere = 5000;

}  // namespace

bool Monkey::Play(const Limit& limit) {
  try {
    Open_Log();
    Act(actions_.First());
    while (!At_End(limit)) Act(actions_.Next(Present_Situation()));
    Tell();
    if (acted_ >= actions_that_come_everywhere) Check_Reach();
    log_.reset();
    std::remove(log_name_.c_str());
    return true;
  } catch (const std::exception& failure) {
    Report(failure.what());
    return false;
  }
}

bool Monkey::At_End(const Limit& limit) const {
  return limit.micros > 0 ? Elapsed() >= limit.micros : acted_ >= limit.actions;
}

Situation Monkey::Present_Situation() {
  const bool running = world_.State() != nullptr && world_.Find_Window("Main_Frm") != nullptr;
  const auto tooltips = world_.Platform.Store.Get("Meridex", "Settings", "Tooltips", "1");
  return {running, failed_, checks_.In_Trouble(), tooltips == "2", world_.Platform.Time.Now().Seconds()};
}

void Monkey::Act(const std::string& lines) {
  Log(lines);
  ++acted_;
  const auto commands = play::Read_Scenario(lines);
  for (const auto& command : commands)
    if (command.Name == "later") prepared_.insert(Elapsed() + play::To_Micros(command.Words.front()));
  checks_.Before();
  window_checks_.Before();
  settings_checks_.Before();
  watcher_.Before();
  last_seen_ = See_Last(world_);
  player_.Play(commands);
  const Brought_Up brought = watcher_.After(Prepared_Has_Run());
  Check_End(brought);
  Check(lines, brought);
}

bool Monkey::Prepared_Has_Run() {
  const auto still_to_come = prepared_.upper_bound(Elapsed());
  const bool any = still_to_come != prepared_.begin();
  prepared_.erase(prepared_.begin(), still_to_come);
  return any;
}

void Monkey::Check_End(const Brought_Up& brought) {
  if (brought.started) failed_ = false;
  if (!brought.error) return;
  failed_ = world_.Has_Ended();
  const std::string cause = Cause_Of_End(world_, last_seen_, brought);
  const std::string error = "error " + std::to_string(*brought.error);
  if (cause.empty()) throw Failed("the program has ended by " + error + " without a cause");
  ++ends_[error + ", " + cause];
}

void Monkey::Check(const std::string& lines, const Brought_Up& brought) {
  checks_.After(lines, brought);
  window_checks_.After(brought, lines);
  settings_checks_.After(lines, brought, checks_.File_Is_Sound());
}

void Monkey::Tell() const {
  std::printf("%d actions in %.2f hours of virtual time\n%s", acted_, static_cast<double>(Elapsed()) / 3.6e9,
              watcher_.Told().c_str());
  for (const auto& [cause, count] : ends_) std::printf("ended %d times by %s\n", count, cause.c_str());
  std::printf("compared the boxes %d times with %d fresh starts, the stored values %d times, the overview %d times\n",
              checks_.Compared(), checks_.Fresh_Starts(), settings_checks_.Applied(), settings_checks_.Listed());
}

/// A run whose actions come to nothing shows nothing.
void Monkey::Check_Reach() const {
  std::string missed = watcher_.Missed();
  if (checks_.Compared() == 0) missed += " comparisons of the boxes";
  if (settings_checks_.Applied() == 0) missed += " comparisons of the stored values";
  if (settings_checks_.Listed() == 0) missed += " comparisons of the overview";
  if (!missed.empty()) throw Failed("in " + std::to_string(acted_) + " actions there were none of these:" + missed);
}

void Monkey::Open_Log() {
  log_.reset(std::fopen(log_name_.c_str(), "wb"));
  if (log_ == nullptr) throw Failed("can't write " + log_name_);
}

/// Before the lines are played, since that may end the process.
void Monkey::Log(const std::string& lines) {
  std::fprintf(log_.get(), "%s\n", lines.c_str());
  std::fflush(log_.get());
}

void Monkey::Report(const char* why) const {
  std::fprintf(stderr, "seed %u, action %d: %s\nthe way there is in %s\n", seed_, acted_, why, log_name_.c_str());
}

}  // namespace monkey
