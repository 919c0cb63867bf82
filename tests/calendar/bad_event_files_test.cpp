// The whole program over event files that nobody would write by hand: it must come up, and keep what it can.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/calendar/program_world.h"

namespace {

const std::string path = "C:\\Meridex\\calendar.dat";

class Bad_Event_Files : public ::testing::Test, public Program_World {
 protected:
  /// Starts the program over the file and lets it tick for a while.
  void Start(const std::string& bytes) {
    Platform.Files.Put(path, bytes);
    Program_World::Start();
    Pass(1);
  }

  [[nodiscard]] std::string Caption_Of(int box) {
    for (const toolkit::Control* const control : Window("Main_Frm")->Controls())
      if (control->Name == "Box_Caption_Lbl" && control->Index == box)
        return dynamic_cast<const toolkit::Label&>(*control).Caption;
    return "no such box";
  }

  std::string Press(int key) {
    Platform.Loop.Dispatch([&] { Platform.Backend().Input.Key_Up(*Window("Main_Frm"), {key}); });
    return Messages();
  }
};

constexpr int key_f4 = 115;
constexpr int key_f5 = 116;
constexpr int key_f9 = 120;
const std::string loading_failed = "Error loading in data file.\n";

std::string Record(const std::string& line) { return "\"" + line + "\"\r\n"; }

}  // namespace

TEST_F(Bad_Event_Files, Forty_thousand_records_are_all_shown) {
  std::string bytes;
  for (int i = 0; i < 39'999; ++i) bytes += Record("8/3/2004=x");
  Start(bytes + Record("8/3/2004=last"));
  EXPECT_EQ(Messages(), "");
  EXPECT_EQ(Caption_Of(7), "last\r\n\r\n");
  EXPECT_EQ(Press(key_f4), "");
}

TEST_F(Bad_Event_Files, A_record_of_ten_megabytes_is_fitted_in_every_style) {
  std::string text(10'000'000, 'x');
  Start(Record("8/3/2004=" + text) + Record("9/3/2004=Tea"));
  EXPECT_EQ(Messages(), "");
  EXPECT_EQ(Caption_Of(8), "Tea\r\n\r\n");
  EXPECT_EQ(Caption_Of(7), text + "\r\n\r\n") << "a text without a blank stands whole";
  EXPECT_EQ(Press(key_f9), "");
  EXPECT_EQ(Caption_Of(7), "xxxxx...");
  EXPECT_EQ(Press(key_f9), "");
  EXPECT_EQ(Caption_Of(7), "xxxxxx...");
  for (std::size_t i = 5; i < text.size(); i += 6) text[i] = ' ';
  Start(Record("8/3/2004=" + text));
  EXPECT_EQ(Press(key_f9), "");
  EXPECT_EQ(Caption_Of(7), "xxxxx \r\nxxxxx \r\nxxx...");
}

TEST_F(Bad_Event_Files, Each_byte_alone_as_a_file_is_read_or_refused) {
  for (int byte = 0; byte < 256; ++byte) {
    // Every file of one byte is a record without a date.
    Start(std::string(1, static_cast<char>(byte)));
    EXPECT_EQ(Messages(), loading_failed) << byte;
    EXPECT_EQ(Press(key_f5), loading_failed) << byte;
  }
}

TEST_F(Bad_Event_Files, Each_byte_in_a_text_is_shown) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    if (c == '"') continue;
    Start(Record(std::string("8/3/2004=a") + c + "b") + Record("9/3/2004=Tea"));
    EXPECT_EQ(Messages(), "") << byte;
    EXPECT_EQ(Caption_Of(7), std::string("a") + c + "b\r\n\r\n") << byte;
    EXPECT_EQ(Caption_Of(8), "Tea\r\n\r\n") << byte;
  }
}

TEST_F(Bad_Event_Files, Random_bytes_never_bring_it_down) {
  std::mt19937 numbers(20040305);
  const std::string likely = "0123456789//==\"\"\r\n, &abc";
  for (int i = 0; i < 400; ++i) {
    std::string bytes(numbers() % 200, '\0');
    for (char& c : bytes)
      c = numbers() % 8 == 0 ? static_cast<char>(numbers() % 256) : likely[numbers() % likely.size()];
    Start(bytes);
    Press(key_f4);
    EXPECT_FALSE(Platform.Loop.Quitting());
    EXPECT_EQ(Platform.Files.Bytes(path), bytes);
  }
}
