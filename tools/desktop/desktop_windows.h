// The desktop's three windows as the shell has them: "Progman", in it "SHELLDLL_DefView", in that the icons' list view.
#pragma once

#include <windows.h>

namespace desktop {

/// Makes and shows the windows, over the whole screen. MERIDEX_DESKTOP_CHAIN at "progman" or "defview" stops the chain at
/// that window; MERIDEX_DESKTOP_ICON_BACK is the icons' text background, -1 for none. The top window takes
/// work_area_message.
void Make_Desktop_Windows();

/// Moves the docked bars: wParam holds left and top of the new work area, lParam right and bottom, in pixels.
constexpr UINT work_area_message = WM_APP + 1;

}  // namespace desktop
