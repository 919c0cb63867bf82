// All reading and writing of calendar.dat. The file is read whole whenever a month is drawn and written whole whenever
// an event changes: in its place, or with the user's consent to today's desktops beside it, so that a power cut leaves
// the old file or the new one.
//
// To change an event, set Selected_Date, call Load_File, then Check_For_Pre. A failure of the file is reported in a
// message box. If it comes after a successful open, the one file number stays taken, so that every later open fails
// with a message of its own until the program is started again.
#pragma once

#include <functional>

#include "basic/file_channel.h"
#include "events/temp_lst.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "settings/desktop_mode.h"
#include "state/calendar_state.h"

namespace events {

/// The event of a day, in the file or in the editor. Each "&" of the text is doubled, as everywhere except in the
/// editor's own text box.
struct Day_Event {
  std::string Text;
  bool Every_Year = false;
};

class Event_File {
 public:
  Event_File(platform::Files& files, basic::File_Channel& channel, platform::Message_Box& message_box,
             const state::Calendar_State& calendar, const settings::Desktop_Mode& desktop);

  /// Called once, at the start, before the file is looked for: ends a save that a power cut has left half done.
  void Recover();

  /// The same before an import. Returns false if the file can't get its name back.
  bool Put_Back() { return files_.Put_Back(path_); }

  /// Throws error 75 if what would be written has nothing of events that weren't read: a power cut has left them under
  /// another name or, with the consent, the last Load_File has failed or has seen no file where one is.
  void Refuse_If_Unread();

  /// How the file is to be written, also by an import.
  [[nodiscard]] basic::Saving Saving() const {
    return desktop_.Modern() ? basic::Saving::Beside : basic::Saving::In_Place;
  }

  /// Fills Temp_Lst from the file. If there is no file, Temp_Lst keeps what it holds.
  void Load_File();

  /// The lines of the last Load_File, and the file's full path, for an import that merges its own into them.
  [[nodiscard]] Temp_List& Temp_Lst() { return temp_lst_; }
  [[nodiscard]] const std::string& Path() const { return path_; }

  /// Returns true if the file exists.
  [[nodiscard]] bool Exists() const { return files_.File_Exists(path_); }

  /// Calls `enter_date` with every line, in file order. A Run_Error that it throws is reported like a failure of the
  /// file and ends the reading. Returns true if there is a file and all of it was read.
  ///
  /// **The file stays open during each call: if `enter_date` shows a message box, any other access to the file
  /// meanwhile fails with its message.**
  bool Load_Dates(const std::function<void(std::string_view line)>& enter_date);

  /// The text of the last line of Selected_Date, "" if there is none. Calls `set_every_year` at each such line that is for
  /// every year: a failure further on is told behind it.
  std::string Get_Message(const std::function<void()>& set_every_year = {});

  /// Replaces the line of Selected_Date by the text, or removes it if the text is empty, and writes the file. If there
  /// is no such line, adds one with the editor's text, whatever `text` is; adds none if the editor's text is empty. The
  /// editor's check box decides whether a written line is for every year. Throws error 5 if it meets a line of Temp_Lst
  /// without "=".
  void Check_For_Pre(const std::string& text, const Day_Event& editor);

 private:
  void Open_For_Writing();
  void Write_ALL();
  void Write_New_Line(const Day_Event& editor);
  void Write_Temp_Lst();

  /// Selected_Date, or its every-year form.
  [[nodiscard]] std::string Key_To_Write(bool of_every_year) const;
  void Report_Failure(const char* text);

  platform::Files& files_;
  basic::File_Channel& channel_;
  platform::Message_Box& message_box_;
  const state::Calendar_State& calendar_;
  const settings::Desktop_Mode& desktop_;
  const std::string path_;
  Temp_List temp_lst_;
  enum class Loaded { All, Not_All, No_File } loaded_ = Loaded::All;  // by the last Load_File
};

}  // namespace events
