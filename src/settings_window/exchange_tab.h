// The tab "Import\Export": a row of picture buttons for what comes into the calendar, and one for what goes out of it.
#pragma once

#include "exchange/config.h"
#include "exchange/csv.h"
#include "exchange/data_files.h"
#include "toolkit/command_button.h"
#include "toolkit/control_array.h"
#include "toolkit/frame.h"

namespace settings_window {

class Exchange_Tab {
 public:
  Exchange_Tab(toolkit::Frame& page, exchange::Data_Files& data_files, exchange::Config& config, exchange::Csv& csv);

  toolkit::Frame Frame15;
  toolkit::Control_Array<toolkit::Command_Button> Import_Btn;  ///< data file, configuration, CSV file

  toolkit::Frame Frame2;
  toolkit::Control_Array<toolkit::Command_Button> Export_Btn;  ///< data file, configuration, text file, CSV file
};

}  // namespace settings_window
