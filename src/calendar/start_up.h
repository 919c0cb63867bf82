// The start of the program: everything that the load of the calendar window does, in its one fixed order.
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

  /// The load of the calendar window. Throws Run_Error where a setting or the pack ends the program.
  void Load();

 private:
  /// Closes an older instance and takes its title.
  void Check_For_Multiple();

  platform::Instances& instances_;
  settings::Stored_Settings& stored_;
  Desk& desk_;
  presentation::Desktop_Embedding& embedding_;
  Date_Watch& date_watch_;
  settings::Run_At_Startup& run_at_startup_;
};

}  // namespace calendar
