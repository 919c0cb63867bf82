#include "exchange/csv.h"

#include "basic/convert.h"
#include "basic/text.h"
#include "events/event_line.h"
#include "exchange/line_merge.h"

namespace exchange {

namespace {

constexpr const char* csv_filter = "Comma Separated Values File (*.csv)|*.csv";
constexpr File_Kind csv_out = {"Export Events as CSV File", csv_filter, ".csv"};
constexpr File_Kind csv_in = {"Import Events from CSV File", csv_filter};
constexpr const char* import_failed = "Error when importing from CSV file.";

/// The day and the text of an entry that the import has put into its list.
struct Staged_Entry {
  std::string Date;
  std::string_view Text;
};

Staged_Entry Read_Staged(std::string_view entry) {
  const std::size_t at = entry.find(behind_date);
  if (at == std::string_view::npos) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return {std::string(entry.substr(0, at)), entry.substr(at + behind_date.size())};
}

}  // namespace

Csv::Csv(Transfer& transfer, Overview_Lists& lists, events::Event_File& event_file, calendar::Desk& desk,
         const calendar::Dates& dates, Csv_Columns& columns)
    : transfer_(transfer), lists_(lists), event_file_(event_file), desk_(desk), dates_(dates), columns_(columns) {}

void Csv::Export_CSV() {
  try {
    if (!transfer_.Choose_Output(csv_out)) return;
    lists_.Reload_Overview();
    Write_Rows();
    const basic::Int16 count = lists_.Dates().ListCount();
    transfer_.Tell_With_File("Successfully exported " + basic::To_Text(count) + " events to the CSV file...");
  } catch (const basic::Run_Error&) {
    transfer_.Warn("Error when exporting to CSV file.");
  }
}

void Csv::Write_Rows() {
  basic::File_Channel& channel = transfer_.Channel;
  channel.Open_For_Writing(transfer_.Dialog1.FileName);
  const Written_At_Last rows(channel);
  channel.Write_Line(Heading_Row());
  std::string row, start, end;
  const basic::Int16 count = lists_.Dates().ListCount();
  for (basic::Int16 i = 0; i < count; i += 1) {
    const Dates_Entry entry = Read_Dates_Entry(lists_.Dates().List(i.Value()));
    start.clear();
    dates_.Append_Short_Date(start, entry.Day);
    end.clear();
    dates_.Append_Short_Date(end, Next_Day(entry.Day));
    row.clear();
    Append_Row(row, start, entry.Text, end);
    channel.Write_Line(row);
  }
  channel.Close();
}

void Csv::Import_CSV() {
  backed_up_ = merged_ = false;
  // Without its file nothing may be put in its place, not even the backup.
  if (!event_file_.Put_Back()) return transfer_.Warn(import_failed);
  try {
    Backup_Data();
    if (!transfer_.Choose_Input(csv_in)) return;
    if (Import_Chosen_File()) return;
  } catch (const basic::Run_Error&) {
    // What went wrong isn't told.
  }
  Undo_Import();
}

bool Csv::Import_Chosen_File() {
  lists_.Events().Clear();
  basic::Line_Reader reader(transfer_.Channel.Open_For_Reading(transfer_.Dialog1.FileName));
  if (!Read_CSV_Headings(basic::Lower_Case(reader.Next()))) return false;
  {
    const Busy busy(transfer_.Window.System());
    while (!reader.At_End()) Read_CSV_Record(Next_Record(reader));
  }
  transfer_.Channel.Close();
  Merge_Imported();
  desk_.Rebuild_Month();
  const basic::Int16 count = lists_.Events().ListCount();
  transfer_.Tell_With_File("Successfully imported " + basic::To_Text(count) + " events from the CSV file...");
  return true;
}

bool Csv::Read_CSV_Headings(std::string_view line) {
  if (Find_Columns(line, columns_)) return true;
  transfer_.Ask("Invalid CSV file or missing required headings.", platform::Box_Icon::Critical,
                platform::Box_Buttons::OK);
  return false;
}

void Csv::Read_CSV_Record(std::string_view line) {
  basic::Moment date;
  std::string subject, description;
  for (const Csv_Field& field : Read_Fields(line)) {
    if (field.Column == columns_.Start_Date_Col) date = dates_.Read_Moment(field.Text);
    if (field.Column == columns_.Description_Col) description = field.Text;
    if (field.Column == columns_.Subject_Col) subject = field.Text;
  }
  if (subject.empty() && description.empty()) return;
  std::string entry;
  dates_.Append_Readable_Moment(entry, date);
  entry += behind_date;
  entry += Event_Text(subject, description);
  lists_.Events().Add_Item(std::move(entry));
}

std::string Csv::Backup_Path() const { return transfer_.Files.Program_Folder() + "\\data.bak"; }

void Csv::Backup_Data() {
  if (!event_file_.Exists()) return;
  transfer_.Copy(event_file_.Path(), Backup_Path());
  backed_up_ = true;
}

/// With the consent nothing has changed before all was merged, and an older backup has no place.
void Csv::Restore_Data() {
  const std::string backup = Backup_Path();
  if (event_file_.Saving() == basic::Saving::Beside) {
    if (merged_ && backed_up_) transfer_.Files.Replace(backup, event_file_.Path());
    return;
  }
  if (!transfer_.Files.File_Exists(backup)) return;
  transfer_.Copy(backup, event_file_.Path());
  transfer_.Files.Delete(backup);
}

void Csv::Merge_Imported() {
  event_file_.Load_File();
  event_file_.Refuse_If_Unread();
  const Busy busy(transfer_.Window.System());
  Line_Merge lines(event_file_.Temp_Lst(), transfer_.Channel, event_file_.Path(), event_file_.Saving());
  const toolkit::List_Box& staged = lists_.Events();
  const basic::Int16 count = staged.ListCount();
  for (basic::Int16 i = 0; i < count; i += 1) {
    const Staged_Entry entry = Read_Staged(staged.List(i.Value()));
    const basic::Civil_Date day = basic::Civil_From_Serial(dates_.Read_Moment(entry.Date).Day);
    lines.Merge(events::Date_Key(day.Day, day.Month, day.Year), entry.Text);
  }
  lines.Close();
  merged_ = true;
}

/// What fails here fails the program: there is nothing left to go back to.
void Csv::Undo_Import() {
  transfer_.Channel.Give_Up();
  Restore_Data();
  transfer_.Window.MousePointer = toolkit::Pointer::Default;
  transfer_.Warn(import_failed);
}

}  // namespace exchange
