#include "checks.h"

#include <algorithm>

#include "basic/convert.h"
#include "editor/edit_frm.h"
#include "events/event_line.h"
#include "text_form.h"
#include "toolkit/text_box.h"

namespace monkey {

namespace {

using memory::Memory_Files;

constexpr toolkit::Colour mark = 0x123456;
constexpr toolkit::Colour normal = 16777215;

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

/// Takes digits off the front; says whether there were as many as wanted.
bool Take_Number(std::string_view& text, std::size_t least, std::size_t most) {
  std::size_t count = 0;
  while (count < text.size() && Is_Digit(text[count])) ++count;
  if (count < least || count > most) return false;
  text.remove_prefix(count);
  return true;
}

bool Take(std::string_view& text, std::string_view what) {
  if (!text.starts_with(what)) return false;
  text.remove_prefix(what.size());
  return true;
}

/// Whether each "&" stands twice.
bool Doubled(std::string_view text) {
  for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 2))
    if (text.substr(at, 2) != "&&") return false;
  return true;
}

/// A double quote, the date, "=", a text without double quotes and with each "&" doubled, a double quote and CR LF.
bool Take_Record(std::string_view& bytes) {
  if (!Take(bytes, "\"")) return false;
  Take(bytes, "-");
  if (!Take_Number(bytes, 1, 2) || !Take(bytes, "/") || !Take_Number(bytes, 1, 2) || !Take(bytes, "/")) return false;
  if (!Take_Number(bytes, 4, 4) || !Take(bytes, "=")) return false;
  const std::string_view text = bytes.substr(0, bytes.find('"'));
  bytes.remove_prefix(text.size());
  return Doubled(text) && Take(bytes, "\"\r\n");
}

bool Well_Formed(std::string_view bytes) {
  while (!bytes.empty())
    if (!Take_Record(bytes)) return false;
  return true;
}

std::string Told(const Box& box) {
  return std::string(box.visible ? "" : "hidden ") + play::Quoted(box.number) + " " + play::Quoted(box.caption) +
         " back " + std::to_string(box.back) + (box.underline ? " underline" : "") + " tips " +
         play::Quoted(box.number_tip) + " " + play::Quoted(box.caption_tip) + " at " +
         play::Number_Text(box.place.Left) + " " + play::Number_Text(box.place.Top);
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
  Marked_Box().BackColor = mark;
}

void Checks::After(const std::string& lines, bool nested) {
  Note_File(lines);
  Check_File();
  const bool complaint = File_Complaint();
  if (!Running()) return;
  Note_What_May_Differ(lines, nested);
  if (complaint) file_trouble_ = true;
  Check_Window();
  Check_Editor();
  if (!file_trouble_ && !all_odd_ && !world_.State()->Compact_On) Check_Boxes();
}

/// Whether the program has complained of a file since the last look.
bool Checks::File_Complaint() {
  bool complaint = false;
  for (const auto& message : world_.Platform.Message_Box.Take_Shown())
    complaint |= message.Icon == platform::Box_Icon::Critical;
  return complaint;
}

void Checks::Note_File(const std::string& lines) {
  const bool put = lines.find("put calendar.dat") != std::string::npos;
  if (put) malformed_ = !Well_Formed(File());
  if (File().empty()) malformed_ = false;
  const std::string text = before_.editor_text + Editor_Text();
  const bool quotes_of_the_editor = text.find('"') != std::string::npos && File() != before_.file;
  if (quotes_of_the_editor && !Well_Formed(File())) malformed_ = true;
}

void Checks::Note_Day(const std::string& selected_date) {
  if (selected_date.empty()) return;
  const auto event = events::Read_Event_Line(selected_date + "=");
  for (int i = 0; i < presentation::box_count; ++i) {
    const toolkit::Label& box = Label_Of(*world_.Find_Window("Main_Frm"), "Box_Lbl", i);
    if (box.Caption == " " + basic::To_Text(event.Day) + " ") odd_boxes_.insert(i);
  }
}

void Checks::Note_What_May_Differ(const std::string& lines, bool nested) {
  const auto& state = *world_.State();
  const bool started = lines.find("start") != std::string::npos || !before_.running;
  const bool drawn = started || Marked_Box().BackColor != mark;
  const bool changed_outside = lines.find("calendar.dat") != std::string::npos && !started;
  const bool editor_closed = before_.editor_open && world_.Find_Window("Edit_Frm") == nullptr;
  const bool saved = File() != before_.file || editor_closed || lines.find("answer") != std::string::npos ||
                     lines.find("choose") != std::string::npos || lines.find("dblclick") != std::string::npos;
  if (started) {
    file_trouble_ = false;
    fresh_key_.clear();  // the pack, the locale and the screen may be others
  }
  if (drawn) {
    odd_boxes_.clear();
    all_odd_ = false;
    drawn_on_ = world_.Platform.Time.Now().Day;
  }
  if (saved && !started) {
    odd_boxes_.insert(before_.current_box);
    odd_boxes_.insert(state.Current_Box.Value());
    Note_Day(before_.selected_date);
    Note_Day(state.Selected_Date);
  }
  if (before_.compact && !state.Compact_On && !drawn) {
    if (!nested && lines.find("F9") == std::string::npos) throw Failed("the window opened without a drawing");
    all_odd_ = true;
  }
  const bool came_back = !before_.file_there && File_There();
  if (((changed_outside || came_back) && !drawn) || nested) all_odd_ = true;
  if (!drawn) Marked_Box().BackColor = normal;
}

void Checks::Check_File() const {
  if (!malformed_ && !Well_Formed(File())) throw Failed("malformed records in calendar.dat: " + play::Quoted(File()));
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
  if (key != fresh_key_) {
    fresh_ = Fresh_Snapshot(world_);
    fresh_key_ = key;
    ++fresh_starts_;
  }
  return fresh_;
}

void Checks::Check_Boxes() {
  const auto& fresh = Fresh();
  if (!fresh) return;
  ++compared_;
  const Snapshot seen = Snapshot_Of(world_);
  const basic::Moment now = world_.Platform.Time.Now();
  const basic::Civil_Date today = basic::Civil_From_Serial(now.Day);
  const bool present_month = world_.State()->View_Month == today.Month && world_.State()->View_Year == today.Year;
  if (seen.headers != fresh->headers) throw Failed("other weekday headers than a fresh start has");
  if (seen.width != fresh->width || seen.height != fresh->height) throw Failed("another size than a fresh start has");
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
