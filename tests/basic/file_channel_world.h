// The one file number over a disk in memory, as its tests use it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basic/file_channel.h"
#include "tests/basic/error_of.h"
#include "tests/basic/fake_disk.h"

inline const std::string path = R"(C:\Meridex\calendar.dat)";

class File_Channel_Test : public ::testing::Test {
 protected:
  void Write(const std::vector<std::string>& lines) {
    Channel.Open_For_Writing(path);
    for (const std::string& line : lines) Channel.Write_Record(line);
    Channel.Close();
  }

  int Error_Of_Opening() {
    return Error_Of([&] {
      Channel.Open_For_Reading(path);
      Channel.Close();
    });
  }

  std::string& Content() { return Disk.Contents[path]; }

  Fake_Disk Disk;
  basic::File_Channel Channel{Disk};
};

inline std::string Record(const std::string& line) { return "\"" + line + "\"\r\n"; }
