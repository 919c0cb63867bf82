#include "settings_window/events_overview.h"

#include <utility>

#include "basic/convert.h"
#include "basic/text.h"
#include "events/event_line.h"

namespace settings_window {

namespace {

constexpr std::string_view ascending_date = "Ascending Date";
constexpr std::string_view descending_date = "Descending Date";
constexpr std::string_view date_added = "Date Added";

using exchange::behind_date;
using exchange::behind_every_year_date;
using exchange::every_year_marker;

/// An entry of the hidden list, without a counter.
struct Entry {
  std::string_view Date;
  bool Every_Year;
  std::string_view Text;
};

Entry Read_Entry(std::string_view entry) {
  const auto [key, text] = basic::Split_At_First(entry, '=');
  const std::size_t marker = key.find(every_year_marker);
  return {key.substr(0, marker), marker != std::string_view::npos, text};
}

void Append_Rest(std::string& line, const Entry& entry) {
  line += entry.Every_Year ? behind_every_year_date : behind_date;
  line += entry.Text;
}

std::string Line_By_Counter(std::string_view entry) {
  const Entry parts = Read_Entry(basic::Split_At_First(entry, '=').right);
  std::string line;
  line.reserve(entry.size() + behind_every_year_date.size());
  line += parts.Date;
  Append_Rest(line, parts);
  return line;
}

}  // namespace

Events_Overview::Events_Overview(toolkit::Frame& page, calendar::Desk& desk, events::Event_File& event_file,
                                 calendar::Dates& dates, platform::Message_Box& message_box)
    : Overview_Fra(page, "Overview_Fra"), Sort_Lbl(Overview_Fra, "Sort_Lbl"), Sort_Cbo(Overview_Fra, "Sort_Cbo"),
      Dates_Lst(Overview_Fra, "Dates_Lst", toolkit::Item_List::Order::Sorted), Events_Lst(Overview_Fra, "Events_Lst"),
      Countdown_Lbl(Overview_Fra, "Countdown_Lbl"), desk_(desk), event_file_(event_file), dates_(dates),
      message_box_(message_box) {
  Place_Controls();
  Tie_Events();
}

void Events_Overview::Place_Controls() {
  Overview_Fra.Place({0, 705, 5145, 3135});
  Overview_Fra.Visible = false;
  Sort_Lbl.Place({135, 300, 660, 195});
  Sort_Lbl.Caption = "Sort by:";
  Sort_Cbo.Place({840, 240, 1950, 315});
  for (const std::string_view order : {ascending_date, descending_date, date_added})
    Sort_Cbo.Add_Item(std::string(order));
  Countdown_Lbl.Place({2880, 300, 2130, 195});
  Countdown_Lbl.Alignment = toolkit::Alignment::Right;
  Dates_Lst.Place({135, 645, 1215, 2400});
  Dates_Lst.Visible = false;
  Events_Lst.Call_It("Events");
  Events_Lst.Place({135, 645, 4875, 2400});
}

void Events_Overview::Tie_Events() {
  Sort_Cbo.On_Click = [this] { Reload_And_Sort(); };
  Events_Lst.On_Click = [this] { Show_Distance(); };
  Events_Lst.On_Double_Click = [this] { Ask_And_Remove(); };
}

void Events_Overview::Load() { Sort_Cbo.Select_Text(ascending_date); }

void Events_Overview::Reload_And_Sort() {
  Reload_Overview();
  // A message of the reading serves events, under which the program may have closed its windows.
  if (Overview_Fra.Window.Loaded()) Sort_List();
}

void Events_Overview::Reload_Overview() {
  if (!event_file_.Exists()) return;
  Dates_Lst.Clear();
  Events_Lst.Clear();
  Date_Added_Count = 0;
  event_file_.Load_Dates([this](std::string_view line) { Add_2_List(line); });
}

bool Events_Overview::Sorts_By_Date() const {
  const std::string order = Sort_Cbo.Text();
  return order == ascending_date || order == descending_date;
}

void Events_Overview::Add_2_List(std::string_view line) {
  const events::Event_Line event = events::Read_Event_Line(line);
  const bool of_every_year = event.Year == events::every_year;
  const int year = of_every_year ? dates_.Today().Year : event.Year.Value();
  const basic::Serial_Day day = basic::Date_Serial(year, event.Month.Value(), event.Day.Value());
  std::string entry;
  entry.reserve(line.size() + 2 * every_year_marker.size());
  if (Sorts_By_Date()) {
    entry += basic::To_Text(day);
  } else {
    entry += basic::To_Text(Date_Added_Count);
    entry += '=';
    dates_.Append_Readable_Date(entry, day);
    Date_Added_Count += 1;
  }
  if (of_every_year) entry += every_year_marker;
  entry += '=';
  entry += event.Text;
  Dates_Lst.Add_Item(std::move(entry));
}

void Events_Overview::Sort_List() {
  const bool by_date = Sorts_By_Date();
  const bool backwards = Sort_Cbo.Text() == descending_date;
  const int count = basic::Int16(Dates_Lst.ListCount()).Value();
  for (int i = 0; i < count; ++i) {
    const std::string& entry = Dates_Lst.List(backwards ? count - 1 - i : i);
    Events_Lst.Add_Item(by_date ? Line_By_Day_Number(entry) : Line_By_Counter(entry));
  }
}

std::string Events_Overview::Line_By_Day_Number(std::string_view entry) const {
  const Entry parts = Read_Entry(entry);
  std::string line;
  line.reserve(entry.size() + 2 * behind_every_year_date.size());
  dates_.Append_Readable_Date(line, basic::To_Int32(parts.Date));
  Append_Rest(line, parts);
  return line;
}

basic::Serial_Day Events_Overview::Clicked_Day() const {
  const std::string entry = Events_Lst.Text();
  return dates_.Read_Date(entry.substr(0, entry.find(' ')));
}

void Events_Overview::Show_Distance() {
  Countdown_Lbl.Caption = basic::To_Text(Clicked_Day() - dates_.Present_Day()) + " days";
}

void Events_Overview::Ask_And_Remove() {
  const int entry = Events_Lst.ListIndex();
  if (entry < 0) return;
  const auto answer =
      message_box_.Show("Meridex", "Do you really want to remove the event..\r\n\r\n" + Events_Lst.Text(),
                        platform::Box_Icon::Question, platform::Box_Buttons::Yes_No_Cancel);
  if (answer != platform::Box_Answer::Yes || !Overview_Fra.Window.Loaded()) return;
  desk_.Select_Day(Clicked_Day());
  event_file_.Load_File();
  event_file_.Check_For_Pre("", desk_.Editor_Content());
  if (!Overview_Fra.Window.Loaded()) return;
  Events_Lst.Remove_Item(entry);
  desk_.Refresh_Unless_Compact();
}

}  // namespace settings_window
