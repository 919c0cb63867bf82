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

 private:
  Registry& registry_;
  platform::Files& files_;
};

}  // namespace settings
