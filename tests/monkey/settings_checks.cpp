#include "settings_checks.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "basic/convert.h"
#include "basic/run_error.h"
#include "basic/text.h"
#include "control_values.h"
#include "event_records.h"
#include "events/event_line.h"
#include "exchange/overview_lists.h"
#include "failed.h"
#include "settings/setting_keys.h"
#include "text_form.h"
#include "toolkit/item_list.h"

namespace monkey {

namespace {

/// A control and the setting that it stands for.
struct Pair {
  const char* control;
  const char* setting;
};

constexpr Pair ticks[] = {{"Carriage_Return_Chk", "Carriage_Return"},
                          {"Trans_Icons_Chk", "Trans Icons"},
                          {"Splash_Chk", "Show Splash"},
                          {"Alert_Chk", "Show Alerts"},
                          {"Allow_Dragging_Chk", "Allow Dragging"},
                          {"Auto_Compact_Chk", "Auto Compact"},
                          {"Theme_Use_Chk", "Use Themes"},
                          {"Theme_Pos_Chk", "Use Theme Pos"},
                          {"Theme_Style_Chk", "Use Theme Style"}};
constexpr Pair truths[] = {{"Bar_Time_Chk", "Bar Time"}, {"Other_Display_Chk", "Use Other Display Mode"}};
constexpr Pair texts[] = {
    {"Bar_Time_Cbo", "Bar Time Format"}, {"Bar_Date_Cbo", "Bar Date Format"}, {"Timeout_Value_Cbo", "Timeout Value"}};
constexpr Pair places[] = {{"Timeout_Format_Cbo", "Timeout Format"}, {"Display_Cbo", "Other Display Mode"}};
constexpr Pair colours[] = {{"Col_Today_Pic", "Today"},      {"Col_Normal_Pic", "Normal"}, {"Col_Num_Pic", "Num"},
                            {"Col_Text_Pic", "Text"},        {"Col_Back_Pic", "Back"},     {"Col_Fore_Pic", "Fore"},
                            {"Col_Inactive_Pic", "Inactive"}};

/// The last line of an action, which tells what it was about.
std::string_view Last_Line(std::string_view lines) { return lines.substr(lines.rfind('\n') + 1); }

bool Is_One_Line(std::string_view lines) { return lines.find('\n') == std::string_view::npos; }

template <class Kind>
const Kind& Control_Of(const toolkit::Form& window, const std::string& name) {
  for (const toolkit::Control* const control : window.Controls())
    if (control->Name == name) return dynamic_cast<const Kind&>(*control);
  throw std::logic_error("no control " + name);
}

std::string Caption_Of(const toolkit::Form& window, const std::string& name) {
  return Control_Of<toolkit::Label>(window, name).Caption();
}

/// The text of an entry, as the list shows it.
std::string Text_Of_Entry(std::string_view entry) {
  const std::size_t at = entry.find(exchange::behind_date);
  return at == std::string_view::npos ? "no date: " + std::string(entry)
                                      : std::string(entry.substr(at + exchange::behind_date.size()));
}

/// A number in its plain form; any other text as it stands.
std::string As_Number(const std::string& text) {
  try {
    return basic::To_Text(basic::To_Int32(text));
  } catch (const basic::Run_Error&) {
    return text;
  }
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += play::Quoted(text) + "\n";
  return joined;
}

}  // namespace

std::map<std::string, std::string> Settings_Checks::Stored() const {
  Values values;
  for (const auto& value : world_.Platform.Store.Values("Meridex")) values[value.Key] = value.Text;
  return values;
}

std::string Settings_Checks::Stored(const std::string& name) const {
  for (const settings::Setting_Key& key : settings::All_Keys())
    if (name == key.Name) return world_.Platform.Store.Get("Meridex", key.Section, key.Name, key.Default);
  throw std::logic_error("no setting " + name);
}

void Settings_Checks::Before() {
  const toolkit::Form* const window = world_.Find_Window("Settings_Frm");
  active_ = window != nullptr && world_.Platform.Windows().Active() == window;
  mouse_held_ = world_.Platform.Windows_And_Timers.Input.Mouse_Window() != nullptr;
  shown_.clear();
  entries_.clear();
  if (!active_) return;
  shown_ = Values_Of(*window);
  for (const Pair& place : places)
    entries_[place.control] = Control_Of<toolkit::Combo_Box>(*window, place.control).ListIndex();
  stored_ = Stored();
}

void Settings_Checks::After(const std::string& lines, const Brought_Up& brought, bool sound) {
  if (brought.nested || brought.error || brought.started || !brought.boxes.empty() || world_.State() == nullptr) return;
  const std::string_view last = Last_Line(lines);
  const toolkit::Form* const window = world_.Find_Window("Settings_Frm");
  if (active_ && Is_One_Line(lines) && !brought.refused && !mouse_held_) {
    if (last == "click Settings_Frm.Apply_Btn" || (last == "click Settings_Frm.Ok_Btn" && window == nullptr)) {
      ++applied_;
      Check_Applied();
    }
    if (last == "click Settings_Frm.Cancel_Btn" && window == nullptr) Check_Cancelled();
  }
  if (window == nullptr || !sound || brought.micros != 0) return;
  const bool overview =
      last.starts_with("click Settings_Frm.Overview_Opt") || last.starts_with("select Settings_Frm.Sort_Cbo");
  if (overview && active_ && !mouse_held_ && !brought.refused &&
      Control_Of<toolkit::Control>(*window, "Events_Lst").On_View()) {
    ++listed_;
    Check_Lists();
  }
  const bool file_changed = lines.find("calendar.dat") != std::string::npos;
  if (!active_ && world_.Platform.Windows().Active() == window && !file_changed) Check_Counts();
}

void Settings_Checks::Expect(const std::string& setting, const std::string& value, const std::string& control) const {
  if (As_Number(Stored(setting)) != As_Number(value))
    throw Failed("applied, " + control + " shows " + play::Quoted(value) + ", and " + setting + " is stored as " +
                 play::Quoted(Stored(setting)));
}

void Settings_Checks::Check_Applied() const {
  Check_Ticks();
  Check_Entries();
  Check_Options();
  Check_Colours();
}

/// A tick may stand for a number above 1 that was there before it is applied, but not after.
void Settings_Checks::Check_Ticks() const {
  for (const Pair& tick : ticks) Expect(tick.setting, shown_.at(tick.control), tick.control);
  for (const Pair& truth : truths)
    if (basic::To_Boolean(Stored(truth.setting)) != (shown_.at(truth.control) == "1"))
      throw Failed(std::string("applied, and ") + truth.setting + " is stored as " + Stored(truth.setting));
}

void Settings_Checks::Check_Entries() const {
  for (const Pair& text : texts) Expect(text.setting, shown_.at(text.control), text.control);
  for (const Pair& place : places) Expect(place.setting, std::to_string(entries_.at(place.control)), place.control);
  if (!shown_.at("Packs_Cbo").empty()) Expect("Pack Name", shown_.at("Packs_Cbo"), "Packs_Cbo");
}

void Settings_Checks::Check_Colours() const {
  for (const Pair& colour : colours) Expect(colour.setting, shown_.at(colour.control), colour.control);
}

void Settings_Checks::Check_Options() const {
  const auto on = [this](const std::string& name) { return shown_.at(name) == "True"; };
  Expect("Style", on("Style1_Opt") ? "1" : on("Style2_Opt") ? "0" : "2", "Style1_Opt");
  Expect("Menu Colour Source", on("Col_Sys_Opt") ? "0" : "1", "Col_Sys_Opt");
  Expect("Tooltips", on("Tips_Opt(0)") ? "0" : on("Tips_Opt(1)") ? "1" : "2", "Tips_Opt");
  const bool by_pack = shown_.at("Theme_Pos_Chk") == "1" && shown_.at("Theme_Use_Chk") == "1";
  if (!by_pack && (on("Pos_Manual_Opt") != (Stored("Alignment") == "7")))
    throw Failed("applied, and the position is stored as " + Stored("Alignment"));
}

void Settings_Checks::Check_Cancelled() const {
  Values before = stored_, after = Stored();
  before.erase("Settings Tab");
  after.erase("Settings Tab");
  if (before != after) throw Failed("Cancel has stored something");
}

void Settings_Checks::Check_Lists() const {
  const toolkit::Form& window = *world_.Find_Window("Settings_Frm");
  const auto& keyed = Control_Of<toolkit::List_Box>(window, "Dates_Lst");
  const auto& seen = Control_Of<toolkit::List_Box>(window, "Events_Lst");
  const auto bytes = world_.Platform.Files.Bytes(memory::Memory_Files::Full_Path("calendar.dat"));
  if (!bytes) return;
  std::vector<std::string> wanted, listed;
  for (const std::string_view record : Records(*bytes)) wanted.emplace_back(basic::Split_At_First(record, '=').right);
  for (int i = 0; i < seen.ListCount(); ++i) listed.push_back(Text_Of_Entry(seen.List(i)));
  std::sort(wanted.begin(), wanted.end());
  std::sort(listed.begin(), listed.end());
  if (wanted != listed)
    throw Failed("the file has the events\n" + Joined(wanted) + "and the overview\n" + Joined(listed));
  if (keyed.ListCount() != seen.ListCount()) throw Failed("the two lists of the overview have not the same entries");
}

void Settings_Checks::Check_Counts() const {
  const toolkit::Form& window = *world_.Find_Window("Settings_Frm");
  const auto bytes = world_.Platform.Files.Bytes(memory::Memory_Files::Full_Path("calendar.dat"));
  if (!bytes) return;
  const int this_year = basic::Civil_From_Serial(world_.Platform.Time.Now().Day).Year;
  int all = 0, of_the_year = 0;
  for (const std::string_view record : Records(*bytes)) {
    const auto event = events::Read_Event_Line(record);
    ++all;
    if (event.Year == this_year) ++of_the_year;
  }
  const std::string total = "Total Events: " + std::to_string(all);
  const std::string year = "Events This Year: " + std::to_string(of_the_year);
  if (Caption_Of(window, "Total_All_Lbl") != total || Caption_Of(window, "Total_Year_Lbl") != year)
    throw Failed("the statistics tell " + Caption_Of(window, "Total_All_Lbl") + " and " +
                 Caption_Of(window, "Total_Year_Lbl") + ", not " + total + " and " + year);
}

}  // namespace monkey
