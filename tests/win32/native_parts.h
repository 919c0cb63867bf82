// Where the parts of the system's own controls are on the screen, for a user with a real mouse.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// The system's control that lies at a pixel of its form's client area, visible or not; throws std::logic_error if none
/// does.
HWND Native_Part(HWND form, POINT pixel);

/// The list that a drop-down list has dropped.
HWND Dropped_List(HWND combo_box);

/// The tip that is on the screen, nullptr if none is.
HWND Shown_Tip();

// Places in pixels of the screen. Items and tabs count from 0 on.

POINT Middle_Of_Item(HWND list, int item);
POINT Middle_Of_Tab(HWND tabs, int tab);
POINT Middle_Of_Thumb(HWND slider);
POINT Place_On_Slider(HWND slider, int value);

/// The items of a list box or a drop-down list.
std::vector<std::string> Items_In(HWND list);
