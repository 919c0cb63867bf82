// calendar.dat: every reading and every change of it. It is read whole whenever a month is drawn and written whole
// whenever an event changes.
//
// A change goes: set Selected_Date, Load_File, Check_For_Pre. A failure after a successful open leaves the one file
// number taken, so that all later openings fail with their message until the program is started again.
#pragma once

#include <functional>

#include "basic/file_channel.h"
#include "events/temp_lst.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "state/calendar_state.h"

namespace events {

/// The event of a day, in the file or in the editor. Everywhere but in the editor's own text box each "&" of a text stands
/// twice.
struct Day_Event {
  std::string Text;
  bool Every_Year = false;
};

class Event_File {
 public:
  Event_File(platform::Files& files, basic::File_Channel& channel, platform::Message_Box& message_box,
             const state::Calendar_State& calendar);

  /// Fills Temp_Lst from the file; without a file it keeps what it holds.
  void Load_File();

  /// The lines of the last Load_File, and the file's full path, for an import that merges its own into them.
  [[nodiscard]] Temp_List& Temp_Lst() { return temp_lst_; }
  [[nodiscard]] const std::string& Path() const { return path_; }

  /// Whether there is a file at all.
  [[nodiscard]] bool Exists() const { return files_.File_Exists(path_); }

  /// Hands every line to `enter_date`, in file order. A Run_Error that it throws ends the reading with the file's message.
  /// Returns whether there is a file and all of it was read.
  bool Load_Dates(const std::function<void(std::string_view line)>& enter_date);

  /// The event stored for Selected_Date: the text of the last line that matches, "" if none does, and whether any line
  /// that matches is of every year.
  Day_Event Get_Message();

  /// Replaces the line of Selected_Date by the text, or removes it if the text is empty. If there is no line, adds one with
  /// the text that the editor holds, whatever `text` is; none if that is empty. The editor's tick decides whether a written
  /// line is of every year. Throws error 5 if it meets a line of Temp_Lst without "=".
  void Check_For_Pre(const std::string& text, const Day_Event& editor);

 private:
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
  const std::string path_;
  Temp_List temp_lst_;
};

}  // namespace events
