#include "exchange/data_files.h"

#include "basic/convert.h"

namespace exchange {

namespace {

constexpr const char* data_filter = "Data File (calendar.dat)|*.dat";
constexpr File_Kind data_out = {"Export Data File", data_filter, ".dat"};
constexpr File_Kind data_in = {"Import Data File", data_filter};
constexpr File_Kind text_out = {"Export Events to Text File", "Text File (*.txt)|*.txt", ".txt"};

}  // namespace

void Data_Files::Export_Data() {
  try {
    if (!transfer_.Choose_Output(data_out)) return;
    if (!event_file_.Exists()) {
      transfer_.Warn("Can't find data file! This could be because you havn't created any events yet?");
      return;
    }
    transfer_.Copy(event_file_.Path(), transfer_.Dialog1.FileName);
    transfer_.Tell_With_File("Successfully exported data file to...");
  } catch (const basic::Run_Error&) {
    transfer_.Warn("Error when exporting data file.");
  }
}

void Data_Files::Export_Text() {
  try {
    if (!transfer_.Choose_Output(text_out)) return;
    lists_.Reload_Overview();
    Write_Text();
    const basic::Int16 count = lists_.Dates().ListCount();
    transfer_.Tell_With_File("Successfully exported " + basic::To_Text(count) + " events to the text file...");
  } catch (const basic::Run_Error&) {
    transfer_.Warn("Error when exporting to text file.");
  }
}

void Data_Files::Write_Text() {
  basic::File_Channel& channel = transfer_.Channel;
  channel.Open_For_Writing(transfer_.Dialog1.FileName);
  std::string line;
  const basic::Int16 count = lists_.Dates().ListCount();
  for (basic::Int16 i = 0; i < count; i += 1) {
    const Dates_Entry entry = Read_Dates_Entry(lists_.Dates().List(i.Value()));
    line.clear();
    dates_.Append_Long_Date(line, entry.Day);
    line += entry.Every_Year ? behind_every_year_date : behind_date;
    line += entry.Text;
    channel.Write_Line(line);
    channel.Write_Line("");
  }
  channel.Close();
}

void Data_Files::Import_Data() {
  try {
    if (!transfer_.Choose_Input(data_in, event_file_.Path())) return;
    if (!event_file_.Put_Back()) throw basic::Run_Error(basic::Error_Number::Path_File_Access);
    const bool meant = !event_file_.Exists() || Replacing_Is_Meant();
    if (!transfer_.Window.Loaded()) return;
    if (meant) transfer_.Copy(transfer_.Dialog1.FileName, event_file_.Path(), event_file_.Saving());
    desk_.Rebuild_Boxes();
    // Said of a refusal too.
    transfer_.Tell_With_File("Successfully imported data file from...");
  } catch (const basic::Run_Error&) {
    transfer_.Warn("Error when importing data file.");
  }
}

bool Data_Files::Replacing_Is_Meant() {
  const std::string question =
      "You already have a working data file. Importing another one will completely overwrite the old one and you will "
      "lose all data. Are you absolutely sure you want to do this?\r\n\r\n"
      "Replace current file 'calendar.dat' modified on " +
      Date_Of_File(event_file_.Path()) + "\r\n\r\nwith new file '" + transfer_.Dialog1.FileTitle + "' modified on " +
      Date_Of_File(transfer_.Dialog1.FileName);
  return transfer_.Ask(question, platform::Box_Icon::Exclamation, platform::Box_Buttons::Yes_No_Cancel) ==
         platform::Box_Answer::Yes;
}

std::string Data_Files::Date_Of_File(const std::string& path) const {
  std::string date;
  dates_.Append_General_Date(date, transfer_.Files.Last_Change(path));
  return date;
}

}  // namespace exchange
