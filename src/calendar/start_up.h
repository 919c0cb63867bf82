// The start of the program: everything that happens before the calendar window is shown, in its one fixed order.
#pragma once

#include "calendar/date_watch.h"
#include "platform/instances.h"
#include "settings/run_at_startup.h"

namespace calendar {

class Start_Up {
 public:
  Start_Up(platform::Instances& instances, settings::Stored_Settings& stored, Desk& desk,
           presentation::Desktop_Embedding& embedding, Date_Watch& date_watch,
           settings::Run_At_Startup& run_at_startup);

  /// Throws Run_Error if a stored setting or the pack can't be used, which ends the program.
  void Load();

 private:
  /// Asks an older instance to close, and takes over the title by which instances find each other.
  void Check_For_Multiple();

  platform::Instances& instances_;
  settings::Stored_Settings& stored_;
  Desk& desk_;
  presentation::Desktop_Embedding& embedding_;
  Date_Watch& date_watch_;
  settings::Run_At_Startup& run_at_startup_;
};

}  // namespace calendar
