#include "presentation/menus.h"

#include "basic/convert.h"

namespace presentation {

namespace {

constexpr const char* month_names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

std::vector<platform::Menu_Item> Box_Menu(const Main_Frm& main_frm) {
  return {{clear_event, "Clear", false, main_frm.Clear_Pic.Picture},
          {edit_event, "Edit", false, main_frm.File_Pic.Picture},
          {open_settings, "Settings", false, main_frm.Settings_Pic.Picture},
          {exit_program, "Exit", false, main_frm.Exit_Pic.Picture}};
}

std::vector<platform::Menu_Item> Months_Menu(basic::Int16 view_month, basic::Int16 view_year, int present_month,
                                             int present_year) {
  std::vector<platform::Menu_Item> items;
  int number = 0;
  for (const char* const name : month_names) {
    ++number;
    const bool present = number == present_month && view_year == present_year;
    items.push_back({number, present ? std::string("- ") + name : name, view_month == number});
  }
  return items;
}

std::vector<platform::Menu_Item> Years_Menu(basic::Int16 view_year, bool compact) {
  if (compact) return {{expand, "Expand"}};
  return {{two_back, basic::To_Text(view_year - 2)},
          {one_back, basic::To_Text(view_year - 1)},
          {current_month, "Current Month\\Year"},
          {one_on, basic::To_Text(view_year + 1)},
          {two_on, basic::To_Text(view_year + 2)}};
}

std::vector<platform::Menu_Item> Start_Day_Menu() { return {{set_as_start_day, "Set as Start Day"}}; }

}  // namespace presentation
