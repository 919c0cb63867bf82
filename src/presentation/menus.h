// The calendar's popup menus, as data.
#pragma once

#include <vector>

#include "platform/popup_menu.h"
#include "presentation/main_frm.h"

namespace presentation {

enum Box_Command { clear_event = 1, edit_event = 2, open_settings = 3, exit_program = 4 };
enum Year_Command { two_back = 1, one_back = 2, current_month = 3, one_on = 4, two_on = 5, expand = 999 };
enum Start_Day_Command { set_as_start_day = 1 };

std::vector<platform::Menu_Item> Box_Menu(const Main_Frm& main_frm);

/// The twelve months, numbered from 1: the one on view is grey, the present one is marked if its year is on view.
std::vector<platform::Menu_Item> Months_Menu(basic::Int16 view_month, basic::Int16 view_year, int present_month,
                                             int present_year);

/// The years around the one on view; in compact mode only the item that ends it. Throws error 6 for a year beyond 16
/// bits.
std::vector<platform::Menu_Item> Years_Menu(basic::Int16 view_year, bool compact);

std::vector<platform::Menu_Item> Start_Day_Menu();

}  // namespace presentation
