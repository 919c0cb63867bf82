#include "events/event_file.h"

#include "basic/record_reader.h"
#include "basic/text.h"
#include "events/event_line.h"

namespace events {

namespace {

constexpr const char* loading_failed = "Error loading in data file.";
constexpr const char* saving_failed = "Error saving data file.";

}  // namespace

Event_File::Event_File(platform::Files& files, basic::File_Channel& channel, platform::Message_Box& message_box,
                       const state::Calendar_State& calendar, const settings::Desktop_Mode& desktop)
    : files_(files), channel_(channel), message_box_(message_box), calendar_(calendar), desktop_(desktop),
      path_(files.Program_Folder() + "\\calendar.dat") {}

void Event_File::Recover() {
  if (desktop_.Modern()) files_.Recover(path_);
  else files_.Put_Back(path_);  // before a new file is made in its place
}

void Event_File::Refuse_If_Unread() {
  files_.Refuse_If_Left(path_);
  const bool unread = loaded_ == Loaded::Not_All || (loaded_ == Loaded::No_File && Exists());
  if (desktop_.Modern() && unread) throw basic::Run_Error(basic::Error_Number::Path_File_Access);
}

void Event_File::Open_For_Writing() {
  Refuse_If_Unread();
  channel_.Open_For_Writing(path_, Saving());
}

void Event_File::Load_File() {
  loaded_ = Exists() ? Loaded::Not_All : Loaded::No_File;
  if (loaded_ == Loaded::No_File) return;
  try {
    temp_lst_.Clear();
    basic::Record_Reader reader(channel_.Open_For_Reading(path_));
    std::string_view record;
    while (reader.Next(record)) temp_lst_.Append(record);
    channel_.Close();
    loaded_ = Loaded::All;
  } catch (const basic::Run_Error&) {
    Report_Failure(loading_failed);
  }
}

bool Event_File::Load_Dates(const std::function<void(std::string_view line)>& enter_date) {
  if (!Exists()) return false;
  try {
    basic::Record_Reader reader(channel_.Open_For_Reading(path_));
    std::string_view record;
    while (reader.Next(record)) enter_date(record);
    channel_.Close();
    return true;
  } catch (const basic::Run_Error&) {
    Report_Failure(loading_failed);
    return false;
  }
}

std::string Event_File::Get_Message(const std::function<void()>& set_every_year) {
  std::string found;
  if (!Exists()) return found;
  try {
    const std::string every_year_form = Every_Year_Form(calendar_.Selected_Date);
    basic::Record_Reader reader(channel_.Open_For_Reading(path_));
    std::string_view record;
    while (reader.Next(record)) {
      const auto [date, text] = basic::Split_At_First(record, '=');
      if (date == every_year_form) {
        found = text;
        if (set_every_year) set_every_year();
      } else if (date == calendar_.Selected_Date) {
        found = text;
      }
    }
    channel_.Close();
  } catch (const basic::Run_Error&) {
    Report_Failure(loading_failed);
  }
  return found;
}

void Event_File::Check_For_Pre(const std::string& text, const Day_Event& editor) {
  const std::string every_year_form = Every_Year_Form(calendar_.Selected_Date);
  for (basic::Int16 i = 0; i < temp_lst_.Count(); i += 1) {
    const std::string_view date = basic::Split_At_First(temp_lst_.Line(i), '=').left;
    if (date != every_year_form && date != calendar_.Selected_Date) continue;
    if (text.empty()) temp_lst_.Remove(i);
    else temp_lst_.Replace(i, Key_To_Write(editor.Every_Year) + "=" + text);
    Write_ALL();
    return;
  }
  Write_New_Line(editor);
}

void Event_File::Write_ALL() {
  try {
    Open_For_Writing();
    Write_Temp_Lst();
    channel_.Close();
  } catch (const basic::Run_Error&) {
    Report_Failure(saving_failed);
  }
}

void Event_File::Write_New_Line(const Day_Event& editor) {
  if (editor.Text.empty()) return;
  try {
    Open_For_Writing();
    Write_Temp_Lst();
    channel_.Write_Record(Key_To_Write(editor.Every_Year) + "=" + editor.Text);
    channel_.Close();
  } catch (const basic::Run_Error&) {
    Report_Failure(saving_failed);
  }
}

void Event_File::Write_Temp_Lst() {
  for (basic::Int16 i = 0; i < temp_lst_.Count(); i += 1) channel_.Write_Record(temp_lst_.Line(i));
}

std::string Event_File::Key_To_Write(bool of_every_year) const {
  return of_every_year ? Every_Year_Form(calendar_.Selected_Date) : calendar_.Selected_Date;
}

void Event_File::Report_Failure(const char* text) {
  message_box_.Show("ERROR", text, platform::Box_Icon::Critical, platform::Box_Buttons::OK);
}

}  // namespace events
