// The calendar up to its desk on the in-memory platform, without a start, and a window with one page for a tab.
#pragma once

#include <gtest/gtest.h>

#include "calendar/desk.h"
#include "memory/memory_platform.h"
#include "toolkit/frame.h"

class Desk_World : public ::testing::Test {
 protected:
  Desk_World() {
    Platform.Time.Set_Now({basic::Date_Serial(2004, 3, 5), 9 * 3600 * memory::micros_of_a_second});
    Calendar.View_Month = 3;
    Calendar.View_Year = 2004;
    Window.Load();
  }

  void Put(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += '"' + line + "\"\r\n";
    Platform.Files.Put(data_file, bytes);
  }

  std::string File() { return Platform.Files.Bytes(data_file).value_or("no file"); }

  /// The locale that a program takes when it starts.
  void Speak(std::string_view locale) {
    Platform.Locale.Choose(locale);
    Platform.Locale.Enter();
  }

  /// "TITLE: TEXT" of each box since the last call.
  std::vector<std::string> Messages() {
    std::vector<std::string> texts;
    for (const auto& shown : Platform.Message_Box.Take_Shown()) texts.push_back(shown.Title + ": " + shown.Text);
    return texts;
  }

  static constexpr const char* loading_failed = "ERROR: Error loading in data file.";

  const std::string data_file = memory::Memory_Files::Full_Path("calendar.dat");
  memory::Memory_Platform Platform;
  calendar::Dates Dates{Platform.Clock, Platform.Locale};
  basic::File_Channel Channel{Platform.Files};
  state::Calendar_State Calendar;
  settings::Stored_Settings Stored{Platform.Store};
  settings::Registry Registry{Platform.Registry, Platform.Profiles, Platform.Files};
  packs::Set_Wallpaper_Mod Set_Wallpaper{Platform.Registry, Platform.Wallpaper};
  packs::Pack_Lookup Packs{Platform.Files, Channel, Platform.Pictures, Platform.Message_Box, Stored, Set_Wallpaper};
  packs::Wallpaper_Stuff Wallpaper{Packs, Set_Wallpaper, Registry, Platform.Clock, Stored.Values, Calendar};
  events::Event_File Event_File{Platform.Files, Channel, Platform.Message_Box, Calendar, Stored.Desktop};
  presentation::Main_Frm Main_Frm{Platform.Backend()};
  presentation::Placement Placement{Main_Frm, Platform.Screen, Platform.Message_Box, Stored, Calendar};
  presentation::Colours Colours{Main_Frm, Stored.Values, Calendar};
  editor::Edit_Frm Editor{Platform.Backend(), Main_Frm, Event_File, Stored.Values, Calendar, [] {}};
  calendar::Alerts Alerts{Dates, Platform.Message_Box, Main_Frm.Window, Stored.Values, Calendar};
  calendar::Month_Grid Grid{Main_Frm, Placement, Alerts, Dates, Stored.Values, Calendar};
  calendar::Title_Text Title{Main_Frm, Dates, Stored.Values, Calendar};
  calendar::Month_View View{Grid, Title, Event_File, Colours, Dates, Calendar};
  calendar::Compact Compact{Main_Frm, Placement, View, Dates, Stored.Values, Calendar};
  calendar::Edit_Box Edit_Box{Editor, Event_File, Grid, Dates, Platform.Message_Box, Calendar};
  calendar::Desk Desk{View, Grid, Compact, Edit_Box, Placement, Wallpaper, {[] {}, [] {}}};

  toolkit::Form Window{Platform.Backend(), "Settings_Frm"};
  toolkit::Frame Page{Window, "Settings_Fra", 0};
};
