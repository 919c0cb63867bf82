// The word on a system whose code page is UTF-8.
#include "win32/code_page.h"

#include <gtest/gtest.h>

#include <map>

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
