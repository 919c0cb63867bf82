// The entry by which the program starts with Windows. Its place is under the current user; one that an earlier
// installation left under the local machine is moved there.
#pragma once

#include "platform/files.h"
#include "settings/registry.h"

namespace settings {

/// Where the entry lies in either hive, and its name.
constexpr const char* run_key = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
constexpr const char* run_value = "Meridex";

class Run_At_Startup {
 public:
  Run_At_Startup(Registry& registry, platform::Files& files) : registry_(registry), files_(files) {}

  /// Moves the local machine's entry to the current user, where it holds the path of the running executable. Without
  /// the right to delete it, it stays where it is; an empty one only goes. No failure is told.
  void Move_Run_Value();

  /// Whether there is an entry in either place, whatever path it holds; "BLANK" is none.
  bool Run_Value_Is_There();

  /// Writes the entry, with the path of the running executable, under the current user alone; or removes it from both
  /// places. One under the local machine that can't be deleted stays, and then nothing is written. No failure is told.
  void Save_Run_Value(bool run);

 private:
  Registry& registry_;
  platform::Files& files_;
};

}  // namespace settings
