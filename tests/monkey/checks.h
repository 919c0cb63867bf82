// What must hold after each action of the monkey.
//
// The boxes on view must be those that a fresh start would draw, but for what the calendar lets differ on purpose:
//
// - The editor shows its text in the box that it was opened on (Current_Box) and writes it for the day under work
//   (Selected_Date). These two part when the month turns, a press is held or F1 is pressed meanwhile. Both boxes may
//   differ until the next drawing, and so may the one of a day that was cleared: a second line of the day stays in the
//   file, or the open editor's text goes there.
// - After a file was put, removed or damaged from outside, any box may differ until the next drawing. The first save
//   behind a removal can bring the old lines back, and then the same holds.
// - After a message about the file, reading and writing may fail until the program is started again.
// - In compact mode nothing is drawn; F9 brings the window back over a grid that may be that of another month.
// - The window stays where it was dragged, and comes to a new work area's edges on the ticks, until the next drawing.
// - Today's mark and the title follow the clock at the tick, not before.
// - What the settings window applies is drawn in pieces, and may differ until the next drawing; a number that is no style
//   leaves the boxes as they were before.
// - A pack is read at the start, at a new day and when it is applied: one that was changed since may differ until the
//   next start.
// - Events within events (a box that stays open, a held press) can change the boxes and draw them in any order.
//
// The records of calendar.dat must be well-formed, except that the clearing of a day while the editor is open writes the
// editor's text as it stands, with its double quotes, and that the file may have been put there malformed. A day may be
// out of its month, below 1 even: F9 can bring back a grid whose boxes belong to another month.
#pragma once

#include <set>

#include "snapshot.h"
#include "watcher.h"

namespace monkey {

class Checks {
 public:
  explicit Checks(play::World& world) : world_(world) {}

  /// Around one action. `After` throws Failed. `lines` are the action's.
  void Before();
  void After(const std::string& lines, const Brought_Up& brought);

  /// Something may keep the boxes from being compared until the next start.
  [[nodiscard]] bool In_Trouble() const { return file_trouble_; }

  /// The file is well-formed and can be read.
  [[nodiscard]] bool File_Is_Sound() const;

  /// How often the boxes were held against those of a fresh start, and how many starts that took.
  [[nodiscard]] int Compared() const { return compared_; }
  [[nodiscard]] int Fresh_Starts() const { return fresh_starts_; }

 private:
  /// What the program is up to before an action.
  struct Earlier {
    bool running = false, compact = false, editor_open = false, file_there = false;
    bool settings_open = false, trouble = false;
    std::string file, selected_date, editor_text, stored;
    int current_box = 0;
    toolkit::Colour mark_covers = 0;
  };

  [[nodiscard]] bool Running() const;
  [[nodiscard]] std::string File() const;
  [[nodiscard]] bool File_There() const;
  [[nodiscard]] std::string Editor_Text() const;
  [[nodiscard]] toolkit::Label& Marked_Box() const;
  [[nodiscard]] std::string Stored() const;
  void Check_Complaints(const Brought_Up& brought);
  void Note_What_May_Differ(const std::string& lines, const Brought_Up& brought);
  void Note_Settings(const std::string& lines, const Brought_Up& brought);
  void Note_Day(const std::string& selected_date);
  void Note_File(const std::string& lines, const Brought_Up& brought);
  void Check_File() const;
  void Check_Window() const;
  void Check_Editor() const;
  [[nodiscard]] bool Packs_Are_On() const;
  [[nodiscard]] bool Pack_Rules(const char* key) const;
  [[nodiscard]] bool Style_Is_Known() const;
  [[nodiscard]] bool Position_Is_Known() const;
  void Check_Title(const std::string& seen, const std::string& fresh, bool present_month) const;
  void Check_Boxes();
  const std::optional<Snapshot>& Fresh();

  play::World& world_;
  Earlier before_;
  std::set<int> odd_boxes_;    // may differ until the next drawing
  bool all_odd_ = false;       // so may all of them
  bool file_trouble_ = false;  // until the next start
  bool malformed_ = false;     // the file, by no fault of the program
  bool imported_ = false;      // from a CSV file, whose texts come in as they stand
  bool faulty_ = false;        // the file, as a disk or a folder in its place makes it
  bool ticked_ = false;        // within the last action, so that the title is up to date
  bool place_odd_ = false;     // the window was dragged, or its work area has changed; until the next drawing
  bool applied_ = false;       // something in the settings window, since the start
  bool pack_odd_ = false;      // the pack isn't as it was when the calendar looked; until the next start
  basic::Serial_Day drawn_on_ = 0;
  std::string fresh_key_;
  std::optional<Snapshot> fresh_;
  int compared_ = 0;
  int fresh_starts_ = 0;
};

}  // namespace monkey
