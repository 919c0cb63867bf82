// The event file with the user's consent to today's desktops, on a disk that the power can be taken from.
#pragma once

#include <gtest/gtest.h>

#include <limits>

#include "tests/basic/error_of.h"
#include "tests/events/event_file_world.h"

using Lines = std::vector<std::string>;

inline constexpr const char* backup = "D:\\backup";

class Safe_Saving_World : public Event_File_World {
 public:
  Safe_Saving_World() {
    Desktop.Load();
    Editor.Text = "Tea";
    Put(Old_Lines());
  }

  /// More than the channel gathers before it writes, so that a save is several writes.
  static Lines Old_Lines() {
    Lines lines;
    for (int year = 2001; year <= 2100; ++year)
      lines.push_back("9/3/" + std::to_string(year) + "=" + std::string(2000, 'x'));
    return lines;
  }

  static std::string Old_Content() {
    std::string content;
    for (const std::string& line : Old_Lines()) content += Record(line);
    return content;
  }
  static std::string New_Content() { return Old_Content() + Record("8/3/2004=Tea"); }

  void Save() { Change("8/3/2004", "Tea"); }

  std::map<std::string, std::string>& All_Files() { return Files.Disk.Contents; }

  /// The power is back and the program starts anew: all that is on the disk then.
  std::map<std::string, std::string> After_The_Next_Start() {
    Files.Disk.Steps_To_Power_Cut = std::numeric_limits<int>::max();
    Files.Disk.Cut_Power();
    Event_File_World later;
    later.Desktop.Load();
    later.Files.Disk.Contents = All_Files();
    later.Files.Disk.Read_Only = Files.Disk.Read_Only;
    later.Files.Disk.Held = Files.Disk.Held;
    later.Files.Disk.Replaces = Files.Disk.Replaces;
    later.File.Recover();
    return later.Files.Disk.Contents;
  }
};

class Safe_Saving : public ::testing::Test, public Safe_Saving_World {};

using Replacing = Fake_Disk::Replacing;
inline constexpr Replacing all_ways[] = {Replacing::By_One_Step, Replacing::By_Two_Steps, Replacing::Never};
