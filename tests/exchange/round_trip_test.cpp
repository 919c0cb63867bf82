// Out and in again: the same events, the same settings, the same bytes. The random choices are the same in each run.
#include <map>
#include <random>

#include "tests/exchange/exchange_world.h"

namespace {

using Round_Trip_Test = Exchange_World;
using Events = std::map<std::string, std::string>;

constexpr int rounds = 40;

/// A text that a CSV file carries whole: without double quotes, bars and line breaks, and without a comma in front.
std::string Random_Text(std::mt19937& random) {
  constexpr std::string_view pieces[] = {"Tea", " ",   ",",       "=",         "&&", "'",  "  -  ", "/",      "\xE4",
                                         "+",   " + ", "Meridex", "(evr|yar)", "1",  "\t", ".",     "caf\xE9"};
  std::string text;
  for (auto count = random() % 8; count > 0; --count) text += pieces[random() % std::size(pieces)];
  std::erase(text, '|');
  while (text.starts_with(',')) text.erase(0, 1);
  return text;
}

Events Read_Events(const std::string& file) {
  Events events;
  std::size_t at = 0;
  while (at < file.size()) {
    const std::size_t end = file.find("\"\r\n", at);
    const std::string line = file.substr(at + 1, end - at - 1);
    events[line.substr(0, line.find('='))] = line.substr(line.find('=') + 1);
    at = end + 3;
  }
  return events;
}

std::string File_Of(const Events& events) {
  std::string file;
  for (const auto& [date, text] : events) file += "\"" + date + "=" + text + "\"\r\n";
  return file;
}

Events Random_Events(std::mt19937& random) {
  Events events;
  for (auto count = random() % 30; count > 0; --count) {
    const basic::Civil_Date day = basic::Civil_From_Serial(static_cast<int>(random() % 400'000) - 100'000);
    const std::string date = std::to_string(day.Day) + "/" + std::to_string(day.Month) + "/" + std::to_string(day.Year);
    events[date] = Random_Text(random);
  }
  return events;
}

/// A line of the configuration file for each setting, with a value that the window can show.
std::string Random_Configuration(std::mt19937& random) {
  const auto number = [&](int from, int to) {
    return std::to_string(from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1)));
  };
  std::string file;
  const auto line = [&](const std::string& key, const std::string& value) {
    file += "\"" + key + "=" + value + "\"\r\n";
  };
  line("Style", number(0, 2));
  line("TaskPos", number(0, 9));
  for (const char* const key : {"Today", "Normal", "Fore", "Num", "Text", "Back", "Inactive"})
    line(std::string("Col_") + key, std::to_string(static_cast<std::int32_t>(random())));
  line("Menu_Col_Sorce", number(0, 1));
  line("Show_Alerts", number(0, 1));
  line("Use_Themes", "0");
  line("Use_Theme_Pos", number(0, 1));
  line("Use_Theme_Style", number(0, 1));
  line("Allow_Dragging", number(0, 1));
  line("Bar_Time", number(0, 1));
  line("Bar_Time_Format", random() % 2 == 0 ? "H:mm" : "a, b=c");
  line("Bar_Date_Format", random() % 2 == 0 ? "mm/yyyy" : "of my own");
  line("Manual_PosX", number(-32768, 32767));
  line("Manual_PosY", number(-32768, 32767));
  line("Use_Other_Display_Mode", number(0, 1));
  line("Other_Display_Mode", number(0, 2));
  const std::string compact = number(0, 1);
  line("Auto_Compact", compact);
  line("Pack_Name", "");
  line("Show_Splash", number(0, 1));
  line("Trans_Icons", number(0, 1));
  line("Timeout_Value", number(1, 300));
  line("Timeout_Format", number(0, 1));
  line("Carriage_Return", number(0, 1));
  line("Start_Day", number(0, 7));
  line("Auto_Compact", compact);
  line("Tooltips", number(0, 2));
  return file;
}

}  // namespace

TEST_F(Round_Trip_Test, Events_come_back_from_a_csv_file) {
  std::mt19937 random(1);
  for (int round = 0; round < rounds; ++round) {
    const Events events = Random_Events(random);
    Put("calendar.dat", File_Of(events));
    ASSERT_TRUE(Export_Csv().starts_with("Successfully exported " + std::to_string(events.size()) + " events"));
    Put("calendar.dat", "");
    ASSERT_TRUE(
        Import_Csv("out.csv").starts_with("Successfully imported " + std::to_string(events.size()) + " events"));
    ASSERT_EQ(Read_Events(File("calendar.dat")), events) << "round " << round;
    World.Platform.Files.Remove(Path("out.csv"));
  }
}

TEST_F(Round_Trip_Test, Settings_come_back_from_a_configuration_file) {
  std::mt19937 random(2);
  for (int round = 0; round < rounds; ++round) {
    const std::string file = Random_Configuration(random);
    Put("in.ini", file);
    ASSERT_EQ(Press("Import_Btn", 1, "in.ini"), "Loaded configuration file successfully.\n");
    Open();
    World.Platform.Files.Remove(Path("out.ini"));
    ASSERT_TRUE(Press("Export_Btn", 1, "out.ini").starts_with("Successfully exported")) << round;
    ASSERT_EQ(File("out.ini"), file) << "round " << round;
  }
}

TEST_F(Round_Trip_Test, The_data_file_comes_back_as_the_same_bytes) {
  std::mt19937 random(3);
  for (int round = 0; round < rounds; ++round) {
    std::string bytes;
    for (auto count = random() % 200; count > 0; --count) bytes += static_cast<char>(random() % 256);
    Put("calendar.dat", bytes);
    World.Platform.Files.Remove(Path("copy.dat"));
    ASSERT_TRUE(Press("Export_Btn", 0, "copy.dat").starts_with("Successfully exported data file"));
    World.Platform.Files.Remove(Path("calendar.dat"));
    (void)Press("Import_Btn", 0, "copy.dat");
    ASSERT_EQ(File("calendar.dat"), bytes) << "round " << round;
    World.Platform.Files.Remove(Path("calendar.dat"));
    Open();
  }
}
