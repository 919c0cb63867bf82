#include "checks.h"

#include "basic/convert.h"
#include "editor/edit_frm.h"
#include "event_records.h"
#include "events/event_line.h"
#include "failed.h"
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

}  // namespace monkey
