// The events as a CSV file, out and in. An import keeps a copy of the event file and puts it back when anything goes wrong.
#pragma once

#include "calendar/desk.h"
#include "exchange/csv_text.h"
#include "exchange/overview_lists.h"
#include "exchange/transfer.h"

namespace exchange {

class Csv {
 public:
  /// The columns outlive the window.
  Csv(Transfer& transfer, Overview_Lists& lists, events::Event_File& event_file, calendar::Desk& desk,
      const calendar::Dates& dates, Csv_Columns& columns);

  /// Both report all that they have to say in boxes.
  void Export_CSV();
  void Import_CSV();

 private:
  void Write_Rows();

  /// Returns false for a file without the wanted headings, which the user has been told.
  bool Import_Chosen_File();
  bool Read_CSV_Headings(std::string_view line);
  void Read_CSV_Record(std::string_view line);

  void Backup_Data();
  void Restore_Data();
  void Merge_Imported();
  void Undo_Import();

  [[nodiscard]] std::string Backup_Path() const;

  Transfer& transfer_;
  Overview_Lists& lists_;
  events::Event_File& event_file_;
  calendar::Desk& desk_;
  const calendar::Dates& dates_;
  Csv_Columns& columns_;
  bool backed_up_ = false, merged_ = false;  // by the present import
};

}  // namespace exchange
