#include "tests/win32/native_parts.h"

#include <commctrl.h>

#include <stdexcept>

namespace {

LPARAM To(RECT& place) { return reinterpret_cast<LPARAM>(&place); }

POINT On_Screen(HWND window, POINT pixel) {
  ClientToScreen(window, &pixel);
  return pixel;
}

POINT Middle(HWND window, const RECT& place) {
  return On_Screen(window, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

bool Is_Combo_Box(HWND window) {
  char name[32] = "";
  GetClassNameA(window, name, sizeof name);
  return lstrcmpiA(name, "ComboBox") == 0;
}

BOOL CALLBACK Find_Tip(HWND window, LPARAM found) {
  char window_class[32] = "";
  GetClassNameA(window, window_class, sizeof window_class);
  if (lstrcmpiA(window_class, "tooltips_class32") != 0 || IsWindowVisible(window) == 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

}  // namespace

HWND Native_Part(HWND form, POINT pixel) {
  const HWND found = ChildWindowFromPoint(form, pixel);
  if (found == nullptr || found == form) throw std::logic_error("no control of the system's at that place");
  return found;
}

HWND Shown_Tip() {
  HWND tip = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), Find_Tip, reinterpret_cast<LPARAM>(&tip));
  return tip;
}

HWND Dropped_List(HWND combo_box) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  GetComboBoxInfo(combo_box, &info);
  return info.hwndList;
}

POINT Middle_Of_Item(HWND list, int item) {
  RECT place = {};
  SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(item), To(place));
  return Middle(list, place);
}

POINT Middle_Of_Tab(HWND tabs, int tab) {
  RECT place = {};
  SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), To(place));
  return Middle(tabs, place);
}

POINT Middle_Of_Thumb(HWND slider) {
  RECT thumb = {};
  SendMessageA(slider, TBM_GETTHUMBRECT, 0, To(thumb));
  return Middle(slider, thumb);
}

POINT Place_On_Slider(HWND slider, int value) {
  RECT thumb = {}, channel = {};
  SendMessageA(slider, TBM_GETTHUMBRECT, 0, To(thumb));
  SendMessageA(slider, TBM_GETCHANNELRECT, 0, To(channel));
  const auto least = static_cast<LONG>(SendMessageA(slider, TBM_GETRANGEMIN, 0, 0));
  const auto most = static_cast<LONG>(SendMessageA(slider, TBM_GETRANGEMAX, 0, 0));
  const LONG width = thumb.right - thumb.left;
  const LONG run = channel.right - channel.left - width;
  return On_Screen(slider,
                   {channel.left + width / 2 + run * (value - least) / (most - least), (thumb.top + thumb.bottom) / 2});
}

std::vector<std::string> Items_In(HWND list) {
  const bool combo = Is_Combo_Box(list);
  const auto count = SendMessageA(list, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
  std::vector<std::string> items;
  for (LRESULT i = 0; i < count; ++i) {
    char text[256] = "";
    SendMessageA(list, combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
    items.emplace_back(text);
  }
  return items;
}
