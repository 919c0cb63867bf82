// The calendar window and its labels, as they are before any box style has laid them out.
//
// The captions are made after the boxes, so each lies on top of its box.
#pragma once

#include <array>

#include "presentation/day_box.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/image.h"
#include "toolkit/label.h"

namespace presentation {

constexpr int box_count = 37;  ///< a month of 31 days that starts in the seventh column ends in box 36
constexpr int days_of_week = 7;

/// The window's background before the settings are read, and if the desktop has none to take.
constexpr toolkit::Colour dark_grey = 0x4B4B4B;

class Main_Frm {
 public:
  explicit Main_Frm(toolkit::Backend& backend);

  toolkit::Form Window;
  toolkit::Control_Array<toolkit::Label> Box_Lbl;          ///< the day numbers, box i in row i div 7, column i mod 7
  toolkit::Control_Array<toolkit::Label> Box_Caption_Lbl;  ///< the event of each box
  toolkit::Control_Array<toolkit::Label> Day_Lbl;          ///< the weekday headers
  toolkit::Label Prev_Month_Lbl, Which_Month_Lbl, Next_Month_Lbl;
  toolkit::Label DotDotDot_Lbl;                  ///< hidden: holds the whole text of the event that was fitted last
  std::array<std::string, box_count> Box_Event;  ///< the whole text of the event that each box showed last
  toolkit::Picture_Box Clear_Pic, File_Pic, Settings_Pic, Exit_Pic;  ///< hidden: the day box menu's bitmaps

  /// Box i of the grid. Throws error 9 for a number outside 0 to 36.
  [[nodiscard]] Day_Box Box(basic::Int16 i) { return {*this, Box_Lbl[i], Box_Caption_Lbl[i]}; }

  void Clear_Tooltips();

  /// The title row: both arrows, the title and the weekday headers.
  [[nodiscard]] const std::array<toolkit::Label*, 10>& Title_Row() const { return title_row_; }

 private:
  void Make_Boxes();
  void Make_Title_Row();
  void Make_Hidden_Controls();

  std::array<toolkit::Label*, 10> title_row_;
};

}  // namespace presentation
