// All events of the file in one list, in a chosen order, with the distance of the clicked one from today; a double-click
// removes one. The sorting is done by a hidden list that keeps itself sorted, of texts that begin with a key.
#pragma once

#include "calendar/desk.h"
#include "exchange/overview_lists.h"
#include "toolkit/frame.h"
#include "toolkit/item_list.h"

namespace settings_window {

class Events_Overview : public exchange::Overview_Lists {
 public:
  Events_Overview(toolkit::Frame& page, calendar::Desk& desk, events::Event_File& event_file, calendar::Dates& dates,
                  platform::Message_Box& message_box);

  toolkit::Frame Overview_Fra;
  toolkit::Label Sort_Lbl;
  toolkit::Combo_Box Sort_Cbo;   ///< its text tells the order; a selection fills the list anew
  toolkit::List_Box Dates_Lst;   ///< hidden: the entries with their keys, as the exports read them too
  toolkit::List_Box Events_Lst;  ///< the entries as the user sees them; up to its first blank each is a date
  toolkit::Label Countdown_Lbl;

  basic::Int16 Date_Added_Count = 0;  ///< the key of the next entry in the order of the file

  /// The load of the window: the first order, by ascending date.
  void Load();

  /// Fills Dates_Lst from the file; without a file the lists keep what they hold.
  void Reload_Overview() override;

  /// Puts a line of the file into Dates_Lst. Throws as Read_Event_Line, error 5 for a date outside the calendar, and error
  /// 6 where the counter overflows.
  void Add_2_List(std::string_view line);

  /// Adds all of Dates_Lst to Events_Lst. Throws error 5 for an entry of another order than the present one, and error 6
  /// for more than 32767 entries.
  void Sort_List();

  [[nodiscard]] const toolkit::List_Box& Dates() const override { return Dates_Lst; }
  [[nodiscard]] toolkit::List_Box& Events() override { return Events_Lst; }

  /// What a new order and the opening of the page do.
  void Reload_And_Sort();

 private:
  void Place_Controls();
  void Tie_Events();
  void Show_Distance();
  void Ask_And_Remove();

  [[nodiscard]] bool Sorts_By_Date() const;
  [[nodiscard]] std::string Line_By_Day_Number(std::string_view entry) const;

  /// The clicked entry's date. Throws error 13 where it is none.
  [[nodiscard]] basic::Serial_Day Clicked_Day() const;

  calendar::Desk& desk_;
  events::Event_File& event_file_;
  calendar::Dates& dates_;
  platform::Message_Box& message_box_;
};

}  // namespace settings_window
