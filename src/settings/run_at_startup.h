// The registry entry that starts the program with Windows. It belongs under the current user; one that an earlier
// installation left under the local machine is moved there.
#pragma once

#include "platform/files.h"
#include "settings/registry.h"

namespace settings {

/// The entry's key, the same in both hives, and its name.
constexpr const char* run_key = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
constexpr const char* run_value = "Meridex";

class Run_At_Startup {
 public:
  Run_At_Startup(Registry& registry, platform::Files& files) : registry_(registry), files_(files) {}

  /// Moves the local machine's entry to the current user, where it gets the path of the running executable. An entry
  /// that can't be deleted stays where it is; an empty one is only deleted. Failures are silent.
  void Move_Run_Value();

  /// Returns true if either hive has an entry, whatever its path; the text "BLANK" counts as none.
  bool Run_Value_Is_There();

  /// If `run`, leaves one entry, under the current user, with the path of the running executable; writes nothing if an
  /// entry under the local machine can't be deleted. Otherwise deletes the entry from both hives. Failures are silent.
  void Save_Run_Value(bool run);

 private:
  Registry& registry_;
  platform::Files& files_;
};

}  // namespace settings
