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

bool Run_At_Startup::Run_Value_Is_There() {
  const Registry_Value blank = std::string("BLANK");
  Registry_Value of_user, of_machine;
  registry_.Registry_Get("HKCU", run_key, run_value, "S", blank, of_user);
  registry_.Registry_Get("HKLM", run_key, run_value, "S", blank, of_machine);
  return of_user != blank || of_machine != blank;
}

void Run_At_Startup::Save_Run_Value(bool run) {
  if (!run) {
    registry_.Registry_Delete("HKCU", run_key, run_value);
    registry_.Registry_Delete("HKLM", run_key, run_value);
    return;
  }
  const Registry_Value none = std::string();
  Registry_Value text;
  if (registry_.Registry_Get("HKLM", run_key, run_value, "S", none, text) == 0) {
    registry_.Registry_Delete("HKLM", run_key, run_value);
    if (registry_.Registry_Get("HKLM", run_key, run_value, "S", none, text) == 0) return;
  }
  registry_.Registry_Set("HKCU", run_key, run_value, "S", files_.Program_Path());
}

}  // namespace settings
