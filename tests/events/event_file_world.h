// The event file with all that it works on: a disk that can be filled, boxes that are noted, an editor that is told.
#pragma once

#include <string>
#include <vector>

#include "events/event_file.h"
#include "tests/basic/error_of.h"
#include "tests/basic/fake_disk.h"

/// The disk as the calendar sees it, with calendar.dat alone on it.
class Fake_Files : public platform::Files {
 public:
  Fake_Disk Disk;
  std::vector<std::string>* Calls = nullptr;  ///< where the looks for the file are noted

  void Read_Whole(const std::string& path, std::string& buffer) override { Disk.Read_Whole(path, buffer); }
  std::unique_ptr<basic::Output_File> Create(const std::string& path) override { return Disk.Create(path); }
  bool File_Exists(const std::string& path) override {
    if (Calls != nullptr) Calls->emplace_back("look");
    return Disk.Contents.count(path) != 0;
  }
  bool Folder_Exists(const std::string& path) override { return Disk.Contents.count(path) != 0; }
  std::vector<std::string> File_Names(const std::string&) override { return {}; }
  std::vector<std::string> Folder_Names(const std::string&) override { return {}; }
  void Check_Writing(const std::string& path) override { Disk.Check_Writing(path); }
  void Allow_Writing(const std::string& path) override { Disk.Read_Only.erase(path); }
  void Bring_To_Disk(const std::string& path) override { Disk.Bring_To_Disk(path); }
  bool Move_Over(const std::string& from, const std::string& to) override { return Disk.Move_Over(from, to); }
  void Rename(const std::string& from, const std::string& to) override { Disk.Rename(from, to); }
  void Delete(const std::string& path) override { Disk.Delete(path); }
  void Copy(const std::string& from, const std::string& to) override {
    Disk.Create(to)->Write(std::string(Disk.Contents.at(from)));
    if (Disk.Read_Only.contains(from)) Disk.Read_Only.insert(to);
  }
  basic::Moment Last_Change(const std::string& /*path*/) override { return {}; }
  bool Same_Path(const std::string& a, const std::string& b) override { return a == b; }
  std::string Program_Folder() override { return "C:\\Meridex"; }
  std::string Program_Path() override { return "C:\\Meridex\\Meridex.exe"; }
};

class Fake_Message_Box : public platform::Message_Box {
 public:
  std::vector<std::string> Shown;

  platform::Box_Answer Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                            platform::Box_Buttons buttons) override {
    const bool as_failure = icon == platform::Box_Icon::Critical && buttons == platform::Box_Buttons::OK;
    Shown.push_back(title + ": " + text + (as_failure ? "" : " (another icon or other buttons)"));
    return platform::Box_Answer::OK;
  }
};

/// Has the user's consent to today's desktops.
class Consent_Store : public platform::Settings_Store {
 public:
  std::string Get(const std::string&, const std::string&, const std::string& key, const std::string& text) override {
    return key == "Modern" ? "1" : text;
  }
  void Save(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

class Event_File_World {
 public:
  static constexpr const char* path = "C:\\Meridex\\calendar.dat";
  static constexpr const char* loading_failed = "ERROR: Error loading in data file.";
  static constexpr const char* saving_failed = "ERROR: Error saving data file.";

  Fake_Files Files;
  basic::File_Channel Channel{Files};
  Fake_Message_Box Message_Box;
  state::Calendar_State Calendar;
  events::Day_Event Editor;  ///< what the editor holds
  Consent_Store Store;
  settings::Desktop_Mode Desktop{Store};
  events::Event_File File{Files, Channel, Message_Box, Calendar, Desktop};
  std::vector<std::string> Calls;    ///< what a reading for the grid does, in order
  std::vector<std::string> Entered;  ///< the lines that went to the grid

  Event_File_World() {
    Files.Calls = &Calls;
    Calendar.Selected_Date = "8/3/2004";
  }

  /// A reading for the grid.
  void Load_Dates() {
    File.Load_Dates([this](std::string_view line) {
      Calls.emplace_back("enter");
      Entered.emplace_back(line);
      if (Fails_At != 0 && Entered.size() == Fails_At) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
    });
  }
  std::size_t Fails_At = 0;  ///< the line, from 1 on, at which the grid fails

  std::string& Content() { return Files.Disk.Contents[path]; }
  [[nodiscard]] bool Is_There() const { return Files.Disk.Contents.count(path) != 0; }

  void Put(const std::vector<std::string>& lines) {
    Content().clear();
    for (const std::string& line : lines) Content() += Record(line);
  }

  /// A whole change of a day, as the editor and the menu make it.
  void Change(const std::string& date, const std::string& text) {
    Calendar.Selected_Date = date;
    File.Load_File();
    File.Check_For_Pre(text, Editor);
  }

  static std::string Record(const std::string& line) { return "\"" + line + "\"\r\n"; }

  /// The messages since the last call.
  std::vector<std::string> Messages() {
    std::vector<std::string> shown;
    shown.swap(Message_Box.Shown);
    return shown;
  }

  /// Whether the one file number is taken.
  bool Is_Taken() {
    return Error_Of([this] {
             Channel.Open_For_Reading(path);
             Channel.Close();
           }) == 55;
  }
};
