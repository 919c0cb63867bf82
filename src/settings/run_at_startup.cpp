#include "settings/run_at_startup.h"

namespace settings {

void Run_At_Startup::Move_Run_Value() {
  const Registry_Value none = std::string();
  Registry_Value text, still_there;
  if (registry_.Registry_Get("HKLM", run_key, run_value, "S", none, text) != 0) return;
  registry_.Registry_Delete("HKLM", run_key, run_value);
  // Moved only if it could really be deleted, so that the program never starts twice.
  if (registry_.Registry_Get("HKLM", run_key, run_value, "S", none, still_there) == 0) return;
  if (text == none) return;
  registry_.Registry_Set("HKCU", run_key, run_value, "S", files_.Program_Path());
}

}  // namespace settings
