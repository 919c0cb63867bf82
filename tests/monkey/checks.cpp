#include "checks.h"

#include "basic/convert.h"
#include "editor/edit_frm.h"
#include "event_records.h"
#include "events/event_line.h"
#include "failed.h"
#include "presentation/box_style.h"
#include "text_form.h"
#include "toolkit/text_box.h"

namespace monkey {

namespace {

using memory::Memory_Files;

constexpr toolkit::Colour mark = 0x123456;
constexpr int two_ticks = 200'000;  // microseconds

/// Whether a failure that this box tells of may have left the file number taken.
bool Leaves_File_Open(const memory::Memory_Message_Box::Shown& box) {
  if (box.Text.starts_with("Error when importing from CSV")) return false;
  return box.Icon == platform::Box_Icon::Critical || box.Text.starts_with("Error when");
}

std::string Told(const Box& box) {
  return std::string(box.visible ? "" : "hidden ") + play::Quoted(box.number) + " " + play::Quoted(box.caption) +
         " back " + std::to_string(box.back) + " colours " + std::to_string(box.number_colour) + " " +
         std::to_string(box.caption_colour) + " in " + box.fonts + (box.underline ? " underline" : "") + " tips " +
         play::Quoted(box.number_tip) + " " + play::Quoted(box.caption_tip) + " at " +
         play::Number_Text(box.place.Left) + " " + play::Number_Text(box.place.Top);
}

std::string Told(const Snapshot& snapshot) {
  return play::Number_Text(snapshot.left) + " " + play::Number_Text(snapshot.top);
}

}  // namespace

bool Checks::Running() const { return world_.Find_Window("Main_Frm") != nullptr && world_.State() != nullptr; }

std::string Checks::File() const {
  return world_.Platform.Files.Bytes(Memory_Files::Full_Path("calendar.dat")).value_or("");
}

bool Checks::File_There() const { return world_.Platform.Files.File_Exists(Memory_Files::Full_Path("calendar.dat")); }

std::string Checks::Editor_Text() const {
  const toolkit::Form* const editor = world_.Find_Window("Edit_Frm");
  if (editor == nullptr) return "";
  for (const toolkit::Control* const control : editor->Controls())
    if (const auto* const box = dynamic_cast<const toolkit::Text_Box*>(control)) return box->Text();
  return "";
}

/// A hidden box that no event of the month is written to. Its back colour tells whether the grid has been drawn anew.
toolkit::Label& Checks::Marked_Box() const {
  const toolkit::Form& window = *world_.Find_Window("Main_Frm");
  toolkit::Label& first = Label_Of(window, "Box_Lbl", 0);
  return first.Visible ? Label_Of(window, "Box_Lbl", presentation::box_count - 1) : first;
}

void Checks::Before() {
  before_ = {};
  before_.file = File();
  before_.file_there = File_There();
  before_.running = Running();
  if (!before_.running) return;
  const auto& state = *world_.State();
  before_.compact = state.Compact_On;
  before_.selected_date = state.Selected_Date;
  before_.current_box = state.Current_Box.Value();
  before_.editor_open = world_.Find_Window("Edit_Frm") != nullptr;
  before_.editor_text = Editor_Text();
  before_.settings_open = world_.Find_Window("Settings_Frm") != nullptr;
  before_.trouble = file_trouble_;
  before_.stored = Stored();
  before_.mark_covers = Marked_Box().BackColor;
  Marked_Box().BackColor = mark;
}

std::string Checks::Stored() const {
  std::string stored;
  for (const auto& value : world_.Platform.Store.Values("Meridex"))
    if (value.Key != "Settings Tab") stored += value.Key + "=" + value.Text + "\n";
  return stored;
}

bool Checks::File_Is_Sound() const {
  if (malformed_ || faulty_ || file_trouble_ || !File_There() || !Well_Formed(File(), imported_)) return false;
  return Days_Exist(File());
}

void Checks::After(const std::string& lines, const Brought_Up& brought) {
  Note_File(lines, brought);
  Check_File();
  if (!Running()) return;
  Note_What_May_Differ(lines, brought);
  Note_Settings(lines, brought);
  Check_Complaints(brought);
  Check_Window();
  Check_Editor();
  if (!file_trouble_ && !all_odd_ && !world_.State()->Compact_On) Check_Boxes();
}

/// A file that can be read and written is complained of only where something has left the file number taken.
void Checks::Check_Complaints(const Brought_Up& brought) {
  if (brought.started) file_trouble_ = false;
  const bool sound = File_Is_Sound() && before_.file == File();
  for (const auto& box : brought.boxes) {
    if (box.Title == "ERROR" && sound && !before_.trouble && !brought.nested && brought.boxes.size() == 1)
      throw Failed("the program complains of a sound file: " + box.Text);
    if (Leaves_File_Open(box)) file_trouble_ = true;
  }
}

void Checks::Note_File(const std::string& lines, const Brought_Up& brought) {
  const bool put = lines.find("put calendar.dat") != std::string::npos;
  if (put || lines.find("remove calendar.dat") != std::string::npos) faulty_ = false;
  if (lines.find("block calendar.dat") != std::string::npos || lines.find("full calendar.dat") != std::string::npos ||
      lines.find("readonly calendar.dat") != std::string::npos)
    faulty_ = true;
  const bool replaced = put || brought.Dialog_Got_File("Import Data File") || brought.Box_Said("Error when importing");
  if (replaced) malformed_ = !Well_Formed(File(), imported_ && !put);
  // Behind a removal the lines come back that the program has last read.
  const bool came_back = !before_.file_there && File_There() && !put;
  if (came_back) malformed_ = !Well_Formed(File(), true);
  if (put) imported_ = false;
  if (came_back || brought.Dialog_Got_File("Import Events from CSV File")) imported_ = true;
  if (File().empty()) malformed_ = false;
  const std::string text = before_.editor_text + Editor_Text();
  const bool quotes_of_the_editor = text.find('"') != std::string::npos && File() != before_.file;
  if (quotes_of_the_editor && !Well_Formed(File(), imported_)) malformed_ = true;
}

void Checks::Note_Day(const std::string& selected_date) {
  if (selected_date.empty()) return;
  const auto event = events::Read_Event_Line(selected_date + "=");
  for (int i = 0; i < presentation::box_count; ++i) {
    const toolkit::Label& box = Label_Of(*world_.Find_Window("Main_Frm"), "Box_Lbl", i);
    if (box.Caption == " " + basic::To_Text(event.Day) + " ") odd_boxes_.insert(i);
  }
}

void Checks::Note_What_May_Differ(const std::string& lines, const Brought_Up& brought) {
  const bool nested = brought.nested;
  const auto& state = *world_.State();
  const bool started = brought.started || !before_.running;
  const bool drawn = started || Marked_Box().BackColor != mark;
  const bool changed_outside = lines.find("calendar.dat") != std::string::npos && !started;
  const bool editor_closed = before_.editor_open && world_.Find_Window("Edit_Frm") == nullptr;
  const bool saved = File() != before_.file || editor_closed || lines.find("answer") != std::string::npos ||
                     lines.find("choose") != std::string::npos || lines.find("dblclick") != std::string::npos;
  if (started) {
    pack_odd_ = false;
    applied_ = false;
    fresh_key_.clear();  // the pack, the locale and the screen may be others
  }
  const bool may_move = lines.find("Which_Month_Lbl") != std::string::npos ||
                        lines.find("workarea") != std::string::npos || lines.find("screen") != std::string::npos;
  if (may_move && !started) place_odd_ = true;
  else if (drawn) place_odd_ = false;
  if (drawn) {
    odd_boxes_.clear();
    all_odd_ = false;
    drawn_on_ = world_.Platform.Time.Now().Day;
  }
  ticked_ = brought.micros >= two_ticks && drawn_on_ == world_.Platform.Time.Now().Day;
  if (saved && !started) {
    odd_boxes_.insert(before_.current_box);
    odd_boxes_.insert(state.Current_Box.Value());
    Note_Day(before_.selected_date);
    Note_Day(state.Selected_Date);
  }
  if (before_.compact && !state.Compact_On && !drawn) {
    if (!nested && !before_.settings_open && lines.find("F9") == std::string::npos)
      throw Failed("the window opened without a drawing");
    all_odd_ = true;
  }
  const bool came_back = !before_.file_there && File_There();
  if (((changed_outside || came_back) && !drawn) || nested) all_odd_ = true;
  if (!drawn) Marked_Box().BackColor = before_.mark_covers;
}

/// What the settings window applies is drawn in pieces: the next drawing brings it all.
void Checks::Note_Settings(const std::string& lines, const Brought_Up& brought) {
  const bool pack_changed = lines.find("Default") != std::string::npos ||
                            lines.find("settings.ini") != std::string::npos || lines.find(".jpg") != std::string::npos;
  if (pack_changed) fresh_key_.clear();
  if (brought.started) return;
  if (pack_changed) pack_odd_ = true;
  if (!before_.settings_open) return;
  if (Stored() != before_.stored || !brought.boxes.empty() || !brought.dialogs.empty() || brought.micros > 30'000'000) {
    all_odd_ = true;
    applied_ = true;
  }
}

void Checks::Check_File() const {
  if (!malformed_ && !Well_Formed(File(), imported_))
    throw Failed("malformed records in calendar.dat: " + play::Quoted(File()));
}

void Checks::Check_Window() const {
  const toolkit::Form& window = *world_.Find_Window("Main_Frm");
  const bool compact = world_.State()->Compact_On;
  if (!window.Visible() || !window.Enabled) throw Failed("the calendar isn't on view, or takes no input");
  if (Label_Of(window, "Prev_Month_Lbl").Visible == compact || Label_Of(window, "Next_Month_Lbl").Visible == compact)
    throw Failed("the arrows and compact mode go different ways");
}

void Checks::Check_Editor() const {
  const toolkit::Form* const editor = world_.Find_Window("Edit_Frm");
  if (editor == nullptr) return;
  const std::string text = Editor_Text();
  const std::string caption = "Meridex - " + std::to_string(text.size()) + " Characters - " +
                              std::to_string(editor::CountWords(text)) + " Words.";
  if (editor->Caption() != caption) throw Failed("the editor's title says " + play::Quoted(editor->Caption()));
}

/// Started again only when something has changed that a start would see.
const std::optional<Snapshot>& Checks::Fresh() {
  const auto& state = *world_.State();
  std::string key = File() + "\n" + std::to_string(state.View_Year.Value()) + " " +
                    std::to_string(state.View_Month.Value()) + " " + std::to_string(world_.Platform.Time.Now().Day) +
                    "\n" + Label_Of(*world_.Find_Window("Main_Frm"), "Day_Lbl", 0).Caption();
  for (const auto& value : world_.Platform.Store.Values("Meridex")) key += value.Key + "=" + value.Text + "\n";
  const auto area = world_.Platform.Screen.Work_Area();
  for (const int edge : {area.Left, area.Top, area.Width, area.Height}) key += std::to_string(edge) + " ";
  if (key != fresh_key_) {
    fresh_ = Fresh_Snapshot(world_);
    fresh_key_ = key;
    ++fresh_starts_;
  }
  return fresh_;
}

bool Checks::Packs_Are_On() const { return world_.Platform.Store.Get("Meridex", "Settings", "Use Themes", "0") != "0"; }

/// Whether style or position is the pack's; a setting of 2 turns packs on, but lets them rule nothing.
bool Checks::Pack_Rules(const char* key) const {
  auto& store = world_.Platform.Store;
  return store.Get("Meridex", "Settings", "Use Themes", "0") == "1" &&
         store.Get("Meridex", "Settings", key, "1") == "1";
}

bool Checks::Style_Is_Known() const {
  const int style = Pack_Rules("Use Theme Style")
                        ? world_.State()->Pack_Box_Style.Value()
                        : basic::To_Int32(world_.Platform.Store.Get("Meridex", "Settings", "Style", "1"));
  return style >= presentation::thin_box && style <= presentation::small_box;
}

/// The time in the title goes on by itself, and of another month than the present one it has the name and the year alone.
void Checks::Check_Title(const std::string& seen, const std::string& fresh, bool present_month) const {
  auto& store = world_.Platform.Store;
  if (!present_month) {
    const auto& state = *world_.State();
    const std::string wanted = world_.Platform.Locale.Words().Month_Name(state.View_Month.Value()) + " - " +
                               play::Number_Text(state.View_Year.Value());
    if (seen != wanted) throw Failed("the title of another month is " + play::Quoted(seen) + ", not " + wanted);
    return;
  }
  const bool with_time = store.Get("Meridex", "Settings", "Bar Time", "False") != "False";
  const auto date = [with_time](const std::string& title) {
    const std::size_t end = with_time ? title.find(" - ") : std::string::npos;
    return end == std::string::npos ? title : title.substr(end);
  };
  if (date(seen) != date(fresh))
    throw Failed("the title is " + play::Quoted(seen) + ", in a fresh start " + play::Quoted(fresh));
}

/// Any other number places nothing: the window stays where it was.
bool Checks::Position_Is_Known() const {
  const int position = Pack_Rules("Use Theme Pos")
                           ? world_.State()->Pack_Pos.Value()
                           : basic::To_Int32(world_.Platform.Store.Get("Meridex", "Settings", "Alignment", "0"));
  return position >= 0 && position <= 9;
}

void Checks::Check_Boxes() {
  if (applied_ && !Style_Is_Known()) return;
  if (Packs_Are_On() && (pack_odd_ || drawn_on_ != world_.Platform.Time.Now().Day)) return;
  const auto& fresh = Fresh();
  if (!fresh) return;
  ++compared_;
  const Snapshot seen = Snapshot_Of(world_);
  const int normal = basic::To_Int32(world_.Platform.Store.Get("Meridex", "Colours", "Normal", "16777215"));
  const basic::Moment now = world_.Platform.Time.Now();
  const basic::Civil_Date today = basic::Civil_From_Serial(now.Day);
  const bool present_month = world_.State()->View_Month == today.Month && world_.State()->View_Year == today.Year;
  if (seen.headers != fresh->headers) throw Failed("other weekday headers than a fresh start has");
  if (seen.width != fresh->width || seen.height != fresh->height) throw Failed("another size than a fresh start has");
  if (!place_odd_ && Position_Is_Known() && (seen.left != fresh->left || seen.top != fresh->top))
    throw Failed("the window is at " + Told(seen) + ", in a fresh start at " + Told(*fresh));
  if (ticked_) Check_Title(seen.title, fresh->title, present_month);
  for (int i = 0; i < presentation::box_count; ++i) {
    Box box = seen.boxes.at(static_cast<std::size_t>(i));
    Box wanted = fresh->boxes.at(static_cast<std::size_t>(i));
    if (!box.visible && !wanted.visible) continue;
    if (!present_month) wanted.back = normal;
    if (drawn_on_ != now.Day) box.back = wanted.back;
    if (odd_boxes_.contains(i)) continue;
    if (box != wanted)
      throw Failed("box " + std::to_string(i) + " is " + Told(box) + ", in a fresh start it is " + Told(wanted));
  }
}

}  // namespace monkey
