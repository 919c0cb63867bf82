// The word on a system whose code page is UTF-8.
#include "win32/code_page.h"

#include <gtest/gtest.h>

#include <map>

#include "win32/win32_platform.h"

namespace {

class Kept_Settings final : public platform::Settings_Store {
 public:
  std::string Get(const std::string&, const std::string& section, const std::string& key,
                  const std::string& default_text) override {
    const auto found = values_.find(section + key);
    return found == values_.end() ? default_text : found->second;
  }
  void Save(const std::string&, const std::string& section, const std::string& key, const std::string& text) override {
    EXPECT_NE(section, "Settings");
    EXPECT_NE(section, "Colours");
    values_[section + key] = text;
  }

 private:
  std::map<std::string, std::string> values_;
};

class Full_Settings final : public platform::Settings_Store {
 public:
  std::string Get(const std::string&, const std::string&, const std::string&,
                  const std::string& default_text) override {
    return default_text;
  }
  void Save(const std::string&, const std::string&, const std::string&, const std::string&) override {
    throw basic::Run_Error(basic::Error_Number::Path_File_Access);
  }
};

bool told = false;

/// Answers the box that is open.
void CALLBACK Answer(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND box = FindWindowA("#32770", "Meridex");
  if (box == nullptr) return;
  KillTimer(nullptr, timer);
  told = true;
  PostMessageA(box, WM_COMMAND, IDOK, 0);
}

/// Whether a start on a system with that code page tells of it.
bool Start_Tells(unsigned code_page) {
  told = false;
  const UINT_PTR timer = SetTimer(nullptr, 0, 50, Answer);
  win32::Win32_Platform platform(GetModuleHandleA(nullptr), code_page);
  bool started = false;
  platform.Run([&] {
    started = true;
    PostQuitMessage(0);
  });
  KillTimer(nullptr, timer);
  EXPECT_TRUE(started);
  return told;
}

class Counted_Boxes final : public platform::Message_Box {
 public:
  platform::Box_Answer Show(const std::string&, const std::string&, platform::Box_Icon,
                            platform::Box_Buttons) override {
    ++Count;
    return platform::Box_Answer::OK;
  }

  int Count = 0;
};

}  // namespace

TEST(Code_Page, Of_UTF8_is_told_once_for_all_starts) {
  Kept_Settings settings;
  Counted_Boxes boxes;
  win32::Warn_Of_Utf8(CP_UTF8, settings, boxes);
  EXPECT_EQ(boxes.Count, 1);
  win32::Warn_Of_Utf8(CP_UTF8, settings, boxes);
  EXPECT_EQ(boxes.Count, 1);
}

TEST(Code_Page, Of_one_or_two_bytes_a_letter_is_nothing_to_tell_of) {
  Kept_Settings settings;
  Counted_Boxes boxes;
  for (const UINT code_page : {1252U, 1250U, 932U}) win32::Warn_Of_Utf8(code_page, settings, boxes);
  EXPECT_EQ(boxes.Count, 0);
}

TEST(Code_Page, Is_told_of_where_no_note_of_it_can_be_stored) {
  Full_Settings settings;
  Counted_Boxes boxes;
  EXPECT_NO_THROW(win32::Warn_Of_Utf8(CP_UTF8, settings, boxes));
  EXPECT_EQ(boxes.Count, 1);
}

TEST(Code_Page, Is_told_of_at_the_first_start_before_the_program_comes) {
  constexpr char section[] = "Software\\Meridex\\System";
  RegDeleteKeyA(HKEY_CURRENT_USER, section);
  EXPECT_FALSE(Start_Tells(1252));
  EXPECT_TRUE(Start_Tells(CP_UTF8));
  EXPECT_FALSE(Start_Tells(CP_UTF8));
  RegDeleteKeyA(HKEY_CURRENT_USER, section);
}
