// calendar.dat: every reading and every change of it. It is read whole whenever a month is drawn and written whole
// whenever an event changes.
//
// A change goes: set Selected_Date, Load_File, Check_For_Pre. A failure behind a successful open leaves the one file
// number taken, so that all later openings fail with their message until the program is started again.
#pragma once

#include <functional>

#include "basic/file_channel.h"
#include "events/editor_input.h"
#include "events/temp_lst.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "state/calendar_state.h"

namespace events {

class Event_File {
 public:
  Event_File(platform::Files& files, basic::File_Channel& channel, platform::Message_Box& message_box,
             const state::Calendar_State& calendar, Editor_Input& editor);

  /// What Load_Dates begins with, and what it does with every line; the latter may throw Run_Error.
  std::function<void()> Clear_Tooltips;
  std::function<void(std::string_view line)> Enter_Date;

  /// Fills Temp_Lst from the file; without a file it keeps what it holds.
  void Load_File();

  /// Hands every line to Enter_Date, in file order.
  void Load_Dates();

  /// The text stored for Selected_Date, "&" doubled, "" if there is none; the last line that matches counts. With
  /// `set_every_year` a matching line of every year ticks the editor's box.
  std::string Get_Message(bool set_every_year);

  /// Replaces the line of Selected_Date by the text ("&" doubled), or removes it if the text is empty, or adds a line
  /// with the editor's text if there is none. Throws error 5 if it meets a line of Temp_Lst without "=".
  void Check_For_Pre(const std::string& text);

 private:
  void Write_ALL();
  void Write_New_Line();
  void Write_Temp_Lst();

  /// Selected_Date, or its every-year form where the editor's box is ticked.
  [[nodiscard]] std::string Key_To_Write() const;
  void Report_Failure(const char* text);

  platform::Files& files_;
  basic::File_Channel& channel_;
  platform::Message_Box& message_box_;
  const state::Calendar_State& calendar_;
  Editor_Input& editor_;
  const std::string path_;
  Temp_List temp_lst_;
};

}  // namespace events
