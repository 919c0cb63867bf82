// A dialog control on a window, and a system that notes what its dialogs are given and answers as it is told.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "dialogs/open_save_dialog.h"
#include "memory/memory_platform.h"
#include "tests/basic/error_of.h"

class Noting_Dialogs : public platform::File_Dialog {
 public:
  platform::File_Dialog_Record Given;
  std::string Shown;  ///< "open " and "save "
  bool Chosen = false;
  std::function<void(platform::File_Dialog_Record& record)> Answer = [](platform::File_Dialog_Record&) {};

  bool Show_Open(platform::File_Dialog_Record& record) override { return Show("open ", record); }
  bool Show_Save(platform::File_Dialog_Record& record) override { return Show("save ", record); }

 private:
  bool Show(const char* kind, platform::File_Dialog_Record& record) {
    Shown += kind;
    Given = record;
    Answer(record);
    return Chosen;
  }
};

class Dialog_World : public ::testing::Test {
 protected:
  Dialog_World() { Window.Load(); }

  /// The user chooses a file.
  void Choose(const std::string& path, const std::string& title) {
    System.Chosen = true;
    System.Answer = [=](platform::File_Dialog_Record& record) {
      record.File.replace(0, path.size(), path);
      record.File_Title.replace(0, title.size(), title);
    };
  }

  memory::Memory_Platform Platform;
  toolkit::Form Window{Platform.Backend(), "Settings_Frm"};
  Noting_Dialogs System;
  dialogs::OpenSaveDialog Dialog1{Window, "Dialog1", System};
};

/// A text in which "^" stands for NUL.
inline std::string With_Nuls(std::string text) {
  std::replace(text.begin(), text.end(), '^', '\0');
  return text;
}
