// The desktop's three windows as the shell has them: "Progman", in it "SHELLDLL_DefView", in that the icons' list view.
#pragma once

#include <windows.h>

namespace desktop {

/// Makes and shows the windows, over the whole screen. The environment tells which shell they are of:
///
///   MERIDEX_DESKTOP_CHAIN        progman, defview   the chain stops at that window
///                                workerw            the view is in a "WorkerW" before "Progman", behind another one
///                                raised             "Progman" has no bitmap that its children are painted to
///   MERIDEX_DESKTOP_ICON_BACK    the icons' text background, -1 for none
///   MERIDEX_DESKTOP_BEYOND_LEFT  how far the desktop reaches beyond the screen on that side, in pixels
///   MERIDEX_DESKTOP_BEYOND_TOP
///
/// "Progman" takes the messages below.
void Make_Desktop_Windows();

/// Moves the docked bars: wParam holds left and top of the new work area, lParam right and bottom, in pixels.
constexpr UINT work_area_message = WM_APP + 1;

/// The shell ends, and all its windows go; with wParam 1 it begins again at once, with new ones.
constexpr UINT end_message = WM_APP + 2;

/// Screens come or go at the left and above: wParam tells how far the desktop reaches beyond the first one at the left
/// from now on, lParam how far above it, in pixels.
constexpr UINT screens_message = WM_APP + 3;

/// The view of the icons moves: with wParam 1 to a "WorkerW" before "Progman", with 0 back into "Progman".
constexpr UINT view_message = WM_APP + 4;

}  // namespace desktop
