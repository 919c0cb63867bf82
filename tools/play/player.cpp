#include "player.h"

#include <algorithm>
#include <array>

#include "basic/run_error.h"

namespace play {

namespace {

struct Group {
  std::span<const Entry> (*entries)();
  bool of_the_user;
};

constexpr std::array<Group, 7> groups{{{World_Commands, false},
                                       {Answer_Commands, false},
                                       {Mouse_Commands, true},
                                       {Key_Commands, true},
                                       {Control_Looks, false},
                                       {Record_Looks, false},
                                       {Disk_Looks, false}}};

struct Found {
  const Entry* entry;
  bool of_the_user;
};

/// A name may stand in two groups with different numbers of words.
Found Find(const Command& command) {
  bool known = false;
  for (const Group& group : groups) {
    for (const Entry& entry : group.entries()) {
      if (entry.Name != command.Name) continue;
      known = true;
      if (command.Words.size() >= entry.Least && command.Words.size() <= entry.Most) return {&entry, group.of_the_user};
    }
  }
  const char* const why = known ? "wrong number of words behind " : "no such command: ";
  throw Scenario_Error(command.Line, why + command.Name);
}

bool Is_Later(const Command& command) { return command.Name == "later"; }

/// The command after `later` and its seconds.
Command Inner(const Command& later) {
  if (later.Words.size() < 2) throw Scenario_Error(later.Line, "later wants seconds and a command");
  return {later.Words[1], Words(later.Words.begin() + 2, later.Words.end()), later.Line};
}

}  // namespace

void Player::Check(const Command& command) {
  if (Is_Later(command)) Check(Inner(command));
  else Find(command);
}

void Player::Play(const std::vector<Command>& commands) {
  for (const Command& command : commands) Check(command);
  for (const Command& command : commands) Play_One(command);
}

void Player::Play_One(const Command& command) {
  try {
    Dispatch(command);
  } catch (const Scenario_Error&) {
    throw;
  } catch (const Cannot_Play& why) {
    throw Scenario_Error(command.Line, why.what());
  } catch (const basic::Run_Error& error) {
    throw Scenario_Error(command.Line, error.what());
  } catch (const memory::Not_Supported& what) {
    throw Scenario_Error(command.Line, what.what());
  } catch (const memory::Endless_Wait&) {
    throw Scenario_Error(command.Line, "the program waits for a time that doesn't come");
  }
}

void Player::Dispatch(const Command& command) {
  const bool later = Is_Later(command);
  const Found found = later ? Found{nullptr, true} : Find(command);
  if (found.of_the_user && world_.Has_Ended()) world_.Print("ended");
  else if (later) Play_Later(command);
  else found.entry->Play(world_, command.Words);
}

void Player::Play_Later(const Command& command) {
  auto& time = world_.Platform.Time;
  time.Schedule(time.Elapsed() + To_Micros(command.Words.front()), [this, inner = Inner(command)] { Play_One(inner); });
}

}  // namespace play
