#include "calendar/desk.h"

#include <utility>

namespace calendar {

Desk::Desk(Month_View& view, Month_Grid& grid, Compact& compact, Edit_Box& edit_box, presentation::Placement& placement,
           packs::Wallpaper_Stuff& wallpaper, Program_Calls calls)
    : view_(view), grid_(grid), compact_(compact), edit_box_(edit_box), placement_(placement), wallpaper_(wallpaper),
      calls_(std::move(calls)) {}

void Desk::Show_Month(basic::Int16 month, basic::Int16 year) {
  view_.Go_To(month, year);
  view_.Refresh_Calendar();
}

void Desk::Show_Present_Month() {
  view_.Go_To_Present_Month();
  view_.Refresh_Calendar();
}

void Desk::Refresh_Unless_Compact() {
  if (!compact_.On()) view_.Refresh_Calendar();
}

void Desk::Take_Style(basic::Int16 style) {
  grid_.Restyle(style);
  view_.Load_Dates();
}

void Desk::Restyle(basic::Int16 style) {
  Take_Style(style);
  placement_.Position_In_Force();
}

void Desk::Draw_First_Month() {
  wallpaper_.Get_Wallpaper_Stuff();
  view_.Build_First_Month();
  placement_.Set_Repos();
  view_.Fill_First_Month();
}

void Desk::Begin_New_Day() {
  view_.Begin_New_Day();
  wallpaper_.Get_Wallpaper_Stuff();
  view_.Draw_New_Day();
}

}  // namespace calendar
