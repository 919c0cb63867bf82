// Imports of files that are large, broken or unlucky, by the whole program.
#include <chrono>

#include "tests/exchange/exchange_world.h"

namespace {

constexpr const char* headings = "Subject,Start Date,Description\r\n";
constexpr const char* failed = "Error when importing from CSV file.\n";

std::string Done(int count) {
  return "Successfully imported " + std::to_string(count) + " events from the CSV file...\r\n\r\nC:\\Meridex\\in.csv\n";
}

/// Rows of as many days, one after the other.
std::string Rows(int count) {
  std::string rows = headings;
  for (int i = 0; i < count; ++i) {
    const basic::Civil_Date day = basic::Civil_From_Serial(40000 + i);
    rows += "\"Event " + std::to_string(i) + "\",\"" + std::to_string(day.Day) + "/" + std::to_string(day.Month) + "/" +
            std::to_string(day.Year) + "\",\"at nine\"\r\n";
  }
  return rows;
}

using Csv_Program_Test = Exchange_World;

}  // namespace

TEST_F(Csv_Program_Test, Ten_thousand_rows_come_in_in_time) {
  Put("in.csv", Rows(10000));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Import_Csv(), Done(10000));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  const std::string file = File("calendar.dat");
  EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 10000);
  EXPECT_TRUE(file.ends_with("=Event 9999 - at nine\"\r\n"));
}

TEST_F(Csv_Program_Test, Ten_thousand_rows_of_one_day_come_in_in_time) {
  Put("calendar.dat", "\"1/1/2010=first\"\r\n\"2/1/2010=second\"\r\n");
  std::string rows = headings;
  for (int i = 0; i < 10000; ++i) rows += "\"Event\",\"1/1/2010\"\r\n";
  Put("in.csv", rows);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Import_Csv(), Done(10000));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  std::string expected = "\"1/1/2010=first";
  for (int i = 0; i < 10000; ++i) expected += " + Event";
  EXPECT_EQ(File("calendar.dat"), expected + "\"\r\n\"2/1/2010=second\"\r\n");
}

TEST_F(Csv_Program_Test, More_rows_than_a_list_counts_fail_and_leave_the_file) {
  Put("calendar.dat", "\"1/1/2010=first\"\r\n");
  std::string rows = headings;
  for (int i = 0; i < 100'000; ++i) rows += "\"a\",\"2/1/2010\"\r\n";
  Put("in.csv", rows);
  EXPECT_EQ(Import_Csv(), failed);
  EXPECT_EQ(File("calendar.dat"), "\"1/1/2010=first\"\r\n");
}

TEST_F(Csv_Program_Test, As_many_rows_as_a_list_counts_come_in) {
  std::string rows = headings;
  for (int i = 0; i < 32767; ++i) rows += "\"a\",\"1/1/" + std::to_string(2000 + i / 100) + "\"\r\n";
  Put("in.csv", rows);
  EXPECT_EQ(Import_Csv(), Done(32767));
}

TEST_F(Csv_Program_Test, A_field_of_a_megabyte_comes_in_whole) {
  const std::string text(1'000'000, 'x');
  Put("in.csv", headings + ("\"a\",\"2/1/2010\",\"" + text + "\"\r\n"));
  EXPECT_EQ(Import_Csv(), Done(1));
  EXPECT_EQ(File("calendar.dat"), "\"2/1/2010=a - " + text + "\"\r\n");
}

TEST_F(Csv_Program_Test, A_file_of_empty_lines_fails) {
  Put("in.csv", headings + std::string(1'000'000, '\n'));
  EXPECT_EQ(Import_Csv(), failed);
}

TEST_F(Csv_Program_Test, Any_bytes_are_bytes_of_a_text) {
  std::string text;
  for (int code = 1; code < 256; ++code)
    if (std::string_view("\"\r\n|,").find(static_cast<char>(code)) == std::string_view::npos)
      text += static_cast<char>(code);
  Put("in.csv", headings + ("\"a\",\"2/1/2010\",\"" + text + "\"\r\n"));
  EXPECT_EQ(Import_Csv(), Done(1));
  EXPECT_EQ(File("calendar.dat"), "\"2/1/2010=a - " + text + "\"\r\n");
}

TEST_F(Csv_Program_Test, The_old_file_comes_back_from_a_full_disk) {
  const std::string before = "\"1/1/2010=first\"\r\n";
  Put("calendar.dat", before);
  Put("in.csv", Rows(3));
  World.Platform.Files.Fill_Up(Path("calendar.dat"));
  EXPECT_EQ(Import_Csv(), failed);
  EXPECT_EQ(File("calendar.dat"), before);
  EXPECT_EQ(File("data.bak"), "no file");
  Put("calendar.dat", before);
  EXPECT_EQ(Import_Csv(), Done(3)) << "the file number is free";
}

TEST_F(Csv_Program_Test, An_event_file_that_is_too_long_fails_with_its_own_message_first) {
  std::string many;
  for (int i = 0; i < 32768; ++i) many += "\"1/1/2010=x\"\r\n";
  Put("calendar.dat", many);
  Put("in.csv", Rows(1));
  EXPECT_EQ(Import_Csv(), std::string("Error loading in data file.\n") + failed);
  EXPECT_EQ(File("calendar.dat"), many);
}

TEST_F(Csv_Program_Test, Undoing_that_fails_ends_the_program) {
  Put("calendar.dat", "\"1/1/2010=first\"\r\n");
  Put("in.csv", Rows(1));
  (void)Import_Csv();
  World.Platform.Files.Block(Path("calendar.dat"));
  World.Platform.File_Dialog.Prepare(Path("in.csv"));
  toolkit::Control& button = Find("Import_Btn", 2);
  EXPECT_THROW(World.Platform.Loop.Dispatch([&] { button.On_Click(); }), platform::Program_Quit);
  EXPECT_EQ(World.Platform.Loop.Failure(), 75);
  EXPECT_NE(File("data.bak"), "no file");
}

TEST_F(Csv_Program_Test, The_pointer_shows_the_wait_and_no_longer) {
  Put("in.csv", Rows(3));
  EXPECT_FALSE(World.Platform.Windows_And_Timers.Busy());
  (void)Import_Csv();
  EXPECT_FALSE(World.Platform.Windows_And_Timers.Busy());
  Put("in.csv", "broken");
  (void)Import_Csv();
  EXPECT_FALSE(World.Platform.Windows_And_Timers.Busy());
}

TEST_F(Csv_Program_Test, A_failure_gives_the_window_the_default_pointer) {
  toolkit::Form& window = *World.Window("Settings_Frm");
  for (const char* const file : {"broken", "Subject,Start Date,Description\r\n\"a\",\"soon\"\r\n"}) {
    Put("in.csv", file);
    window.MousePointer = toolkit::Pointer::Hourglass;
    (void)Import_Csv();
    EXPECT_EQ(window.MousePointer(), toolkit::Pointer::Default) << file;
  }
}

TEST_F(Csv_Program_Test, The_window_that_goes_under_the_question_ends_the_import_of_a_data_file) {
  Put("calendar.dat", "\"1/1/2010=first\"\r\n");
  Put("in.dat", "\"1/1/2010=second\"\r\n");
  toolkit::Form& window = *World.Window("Settings_Frm");
  World.Platform.Message_Box.Prepare(platform::Box_Answer::Yes, 1'000'000);
  World.Platform.Time.Schedule(World.Platform.Time.Elapsed() + 500'000, [&] { window.Unload(); });
  const std::string messages = Press("Import_Btn", 0, "in.dat");
  EXPECT_EQ(std::count(messages.begin(), messages.end(), '?'), 1);
  EXPECT_EQ(messages.find("Successfully"), std::string::npos);
  EXPECT_EQ(File("calendar.dat"), "\"1/1/2010=first\"\r\n");
}

TEST_F(Csv_Program_Test, The_largest_export_has_a_row_for_each_event) {
  std::string file;
  for (int i = 0; i < 32767; ++i) {
    const basic::Civil_Date day = basic::Civil_From_Serial(30000 + i);
    file += "\"" + std::to_string(day.Day) + "/" + std::to_string(day.Month) + "/" + std::to_string(day.Year) +
            "=Event\"\r\n";
  }
  Put("calendar.dat", file);
  EXPECT_EQ(Export_Csv(), "Successfully exported 32767 events to the CSV file...\r\n\r\nC:\\Meridex\\out.csv\n");
  const std::string rows = File("out.csv");
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 32768);
}
