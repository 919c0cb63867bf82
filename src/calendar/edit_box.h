// What the user does to the event of a day box: opens the editor on it, or clears it.
#pragma once

#include "calendar/month_grid.h"
#include "editor/edit_frm.h"

namespace calendar {

class Edit_Box {
 public:
  Edit_Box(editor::Edit_Frm& editor, events::Event_File& event_file, Month_Grid& grid, Dates& dates,
           platform::Message_Box& message_box, state::Calendar_State& calendar);

  /// Fills the editor with the event of a box of the month on view and shows it. If the editor holds unsaved text, asks
  /// first in a message box.
  void Open(basic::Int16 index);

  /// Removes the event of a box's day from the file and from the box. If the file has no event for the day, it gets the
  /// editor's text for it, provided that the editor is loaded and holds any.
  void Clear(basic::Int16 index);

  [[nodiscard]] events::Day_Event Editor_Content() const { return editor_.Content(); }
  [[nodiscard]] bool Editor_Visible() const { return editor_.Window.Visible(); }

 private:
  /// Asks whether unsaved text is to be saved. Returns false if the user cancels: the editor must keep its contents.
  bool Settle_Unsaved_Text();
  void Fill();
  [[nodiscard]] std::string Long_Date(basic::Serial_Day serial, basic::Int16 day) const;

  editor::Edit_Frm& editor_;
  events::Event_File& event_file_;
  Month_Grid& grid_;
  Dates& dates_;
  platform::Message_Box& message_box_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
