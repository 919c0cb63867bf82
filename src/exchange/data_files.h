// The event file itself, saved to another place and replaced from there, and the events as a text to read.
#pragma once

#include "calendar/desk.h"
#include "exchange/overview_lists.h"
#include "exchange/transfer.h"

namespace exchange {

class Data_Files {
 public:
  Data_Files(Transfer& transfer, Overview_Lists& lists, events::Event_File& event_file, calendar::Desk& desk,
             const calendar::Dates& dates)
      : transfer_(transfer), lists_(lists), event_file_(event_file), desk_(desk), dates_(dates) {}

  /// All report all that they have to say in boxes.
  void Export_Data();
  void Import_Data();
  void Export_Text();

 private:
  void Write_Text();
  bool Replacing_Is_Meant();
  [[nodiscard]] std::string Date_Of_File(const std::string& path) const;

  Transfer& transfer_;
  Overview_Lists& lists_;
  events::Event_File& event_file_;
  calendar::Desk& desk_;
  const calendar::Dates& dates_;
};

}  // namespace exchange
