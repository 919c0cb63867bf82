// Any bytes as calendar.dat: they are drawn into the grid of March 2004 up to the first line that is none, alert at most
// once, and a change of one day leaves every other record as it was.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "calendar/month_grid.h"
#include "events/event_file.h"
#include "events/event_line.h"
#include "fuzz/expect.h"
#include "fuzz/expected_number.h"
#include "memory/memory_platform.h"
#include "tests/basic/read_by_the_letter.h"

namespace {

using Records = std::vector<std::string>;

// Today, and the month on view, which starts in the first box.
constexpr int day = 5, month = 3, year = 2004;
const std::string today = "5/3/2004";
const std::string today_every_year = "5/3/9999";

struct Line {
  bool Good = false;
  std::string Date, Text;
  long long Day = 0, Month = 0, Year = 0;

  [[nodiscard]] bool In_Month() const { return Good && Month == month && (Year == year || Year == 9999); }
  [[nodiscard]] bool Has_Box() const { return Day >= 1 && Day <= 37; }
};

/// A line read the slow way.
Line Expected_Line(const std::string& record) {
  Line line;
  const std::size_t equals = record.find('=');
  if (equals == std::string::npos) return line;
  line.Date = record.substr(0, equals);
  line.Text = record.substr(equals + 1);
  Records fields(1);
  for (const char c : line.Date) {
    if (c == '/') fields.emplace_back();
    else fields.back() += c;
  }
  if (fields.size() != 3) return line;
  const Outcome numbers[] = {Expected_Int16(fields[0]), Expected_Int16(fields[1]), Expected_Int16(fields[2])};
  line.Good = numbers[0].Error == 0 && numbers[1].Error == 0 && numbers[2].Error == 0;
  line.Day = numbers[0].Value;
  line.Month = numbers[1].Value;
  line.Year = numbers[2].Value;
  return line;
}

void Expect_Same_Line(const std::string& record, const Line& expected) {
  events::Event_Line line;
  const int error = Error_Of([&] { line = events::Read_Event_Line(record); });
  Expect((error == 0) == expected.Good, "a line is read if it is one");
  if (error != 0) {
    const bool no_equals = record.find('=') == std::string::npos;
    Expect(no_equals ? error == 5 : error == 6 || error == 13, "the error tells what is wrong");
    return;
  }
  Expect(line.Day.Value() == expected.Day && line.Month.Value() == expected.Month && line.Year.Value() == expected.Year,
         "the date is right");
  Expect(line.Text == expected.Text, "the text is all that stands behind the first =");
}

std::string Undoubled(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size() && text[i + 1] == '&') ++i;
    result += text[i];
  }
  return result;
}

constexpr const char* typed = "Tom && Jane";

/// A calendar window with the month on view, one for all inputs.
class Calendar {
 public:
  Calendar() {
    platform_.Time.Set_Now({basic::Date_Serial(year, month, day), 0});
    settings_.Load_Settings();
    settings_.Values.Start_Day = 2;
    state_.View_Month = month;
    state_.View_Year = year;
    state_.Selected_Date = today;
  }

  void Put(const std::string& bytes) { platform_.Files.Put(path_, bytes); }
  [[nodiscard]] std::string Bytes() const { return platform_.Files.Bytes(path_).value_or("no file"); }

  /// A program that has just been started: its file number is free.
  template <class Work>
  void With_Event_File(Work&& work) {
    basic::File_Channel channel(platform_.Files);
    events::Event_File file(platform_.Files, channel, platform_.Message_Box, state_, settings_.Desktop);
    work(file);
  }

  void Draw(int style) {
    settings_.Values.Style = style;
    state_.Alerted_Today = false;
    grid_.Setup_Boxes(month, year);
    grid_.Begin_Reading();
    With_Event_File([this](events::Event_File& file) {
      file.Load_Dates([this](std::string_view line) { grid_.Enter_Date(line); });
    });
  }

  auto Shown() { return platform_.Message_Box.Take_Shown(); }
  [[nodiscard]] const std::string& Tip(int box) const { return main_frm_.Box_Lbl[box].ToolTipText; }
  [[nodiscard]] const std::string& Caption(int box) const { return main_frm_.Box_Caption_Lbl[box].Caption; }

 private:
  memory::Memory_Platform platform_;
  const std::string path_ = memory::Memory_Files::Full_Path("calendar.dat");
  settings::Stored_Settings settings_{platform_.Store};
  state::Calendar_State state_;
  presentation::Main_Frm main_frm_{platform_.Backend()};
  presentation::Placement placement_{main_frm_, platform_.Screen, platform_.Message_Box, settings_, state_};
  calendar::Dates dates_{platform_.Clock, platform_.Locale};
  calendar::Alerts alerts_{dates_, platform_.Message_Box, main_frm_.Window, settings_.Values, state_};
  calendar::Month_Grid grid_{main_frm_, placement_, alerts_, dates_, settings_.Values, state_};
};

/// What the drawing of the records comes to.
struct Expected_Drawing {
  std::optional<std::string> Boxes[37];
  std::optional<std::string> Alert;
  bool Failed = false;
};

Expected_Drawing Expected_For(const Records& records) {
  Expected_Drawing expected;
  for (const std::string& record : records) {
    const Line line = Expected_Line(record);
    expected.Failed = !line.Good || (line.In_Month() && !line.Has_Box());
    if (expected.Failed) break;
    if (!line.In_Month()) continue;
    expected.Boxes[line.Day - 1] = line.Text;
    if (line.Day == day && !expected.Alert) expected.Alert = line.Text;
  }
  return expected;
}

void Expect_Drawing(Calendar& calendar, const Expected_Drawing& expected, int style) {
  calendar.Draw(style);
  for (int box = 0; box < 37; ++box) {
    const auto& text = expected.Boxes[box];
    Expect(calendar.Tip(box) == (text ? Undoubled(*text) : ""), "the tip is the event's whole text");
    const bool shows_text = style == 1 ? text.has_value() : text.has_value() && !text->empty();
    Expect(calendar.Caption(box).empty() == !shows_text, "a box with an event has a caption");
  }
  const auto shown = calendar.Shown();
  Expect(shown.size() == (expected.Alert ? 1U : 0U) + (expected.Failed ? 1U : 0U), "nothing is told twice");
  if (expected.Alert)
    Expect(shown.front().Title == "Meridex" && shown.front().Text.ends_with("\r\n\r\n" + Undoubled(*expected.Alert)),
           "the alert tells today's event");
  if (expected.Failed) Expect(shown.back().Text == "Error loading in data file.", "a bad line is told");
}

void Expect_Message(Calendar& calendar, const Records& records) {
  std::string expected;
  bool every_year = false, failed = false;
  for (const std::string& record : records) {
    failed = record.find('=') == std::string::npos;
    if (failed) break;
    const Line line = Expected_Line(record);
    if (line.Date == today || line.Date == today_every_year) expected = line.Text;
    every_year = every_year || line.Date == today_every_year;
  }
  calendar.With_Event_File([&](events::Event_File& file) {
    bool ticked = false;
    Expect(file.Get_Message([&] { ticked = true; }) == expected, "the last line of the day counts");
    Expect(ticked == every_year, "a line of every year ticks the box");
  });
  Expect(calendar.Shown().size() == (failed ? 1U : 0U), "a bad line is told");
}

/// The day's event replaced by the text, or removed for an empty one, or added from the editor. Nothing if a line without
/// a "=" stands before the day's.
std::optional<Records> Expected_Change(Records records, const std::string& text, bool every_year) {
  const std::string& key = every_year ? today_every_year : today;
  for (auto record = records.begin(); record != records.end(); ++record) {
    if (record->find('=') == std::string::npos) return std::nullopt;
    const std::string date = record->substr(0, record->find('='));
    if (date != today && date != today_every_year) continue;
    if (text.empty()) records.erase(record);
    else *record = std::string(key).append("=").append(text);
    return records;
  }
  records.push_back(key + "=" + typed);
  return records;
}

std::string As_Written(const Records& records) {
  std::string bytes;
  for (const std::string& record : records) bytes += '"' + record + "\"\r\n";
  return bytes;
}

void Expect_Change(Calendar& calendar, const Records& records, const std::string& text, bool every_year) {
  const std::string before = calendar.Bytes();
  const std::optional<Records> expected = Expected_Change(records, text, every_year);
  calendar.With_Event_File([&](events::Event_File& file) {
    file.Load_File();
    const int error = Error_Of([&] { file.Check_For_Pre(text, {typed, every_year}); });
    Expect(error == (expected ? 0 : 5), "a line without = ends the change");
  });
  Expect(calendar.Bytes() == (expected ? As_Written(*expected) : before), "one record changes and no other");
  calendar.Put(before);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Calendar calendar;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const Records records = Read_By_The_Letter(bytes);
  for (const std::string& record : records) Expect_Same_Line(record, Expected_Line(record));
  calendar.Put(bytes);
  // Now as the thin boxes' single line, now as the square boxes' three.
  Expect_Drawing(calendar, Expected_For(records), static_cast<int>(size % 2));
  Expect_Message(calendar, records);
  Expect_Change(calendar, records, "changed", false);
  Expect_Change(calendar, records, "changed", true);
  Expect_Change(calendar, records, "", false);
  Expect(calendar.Shown().empty(), "a change that succeeds tells nothing");
  return 0;
}
