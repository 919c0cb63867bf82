#include "win32/native_tab_strip.h"

#include <commctrl.h>

namespace win32 {

Native_Tab_Strip::Native_Tab_Strip(HWND parent, toolkit::Tab_Strip& strip, Window_Context& context)
    : Native_Control(parent, strip, context), strip_(strip) {
  Make({WC_TABCONTROLA, TCS_MULTILINE | WS_CLIPSIBLINGS, 0});
  Show_Font(strip);
  Show_Tabs();
  Show_Selected();
  Cut_Page_Out();
}

void Native_Tab_Strip::Show_Tabs() {
  int number = 0;
  for (std::string caption : strip_.Captions) {
    TCITEMA tab = {};
    tab.mask = TCIF_TEXT;
    tab.pszText = caption.data();
    Send(TCM_INSERTITEMA, static_cast<WPARAM>(number++), reinterpret_cast<LPARAM>(&tab));
  }
}

RECT Native_Tab_Strip::Part_Place(int part) const {
  RECT place = {};
  Send(TCM_GETITEMRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&place));
  return place;
}

void Native_Tab_Strip::Show_Selected() {
  const int place = strip_.Selected - 1;
  if (Send(TCM_GETCURSEL) != place) Send(TCM_SETCURSEL, static_cast<WPARAM>(place));
}

/// The border of the page stays, without the margin within it, whose colour may differ from the form's.
void Native_Tab_Strip::Cut_Page_Out() {
  constexpr int border = 2;  // pixels
  RECT all = {};
  GetClientRect(Window(), &all);
  RECT page = all;
  Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
  page = {border, page.top, all.right - border, all.bottom - border};
  const Region_Owner hole(CreateRectRgnIndirect(&page));
  Region_Owner rest(CreateRectRgnIndirect(&all));
  CombineRgn(rest.Get(), rest.Get(), hole.Get(), RGN_DIFF);
  // From here on the region is the system's.
  SetWindowRgn(Window(), rest.Take(), TRUE);
}

void Native_Tab_Strip::Show_Place() {
  Native_Control::Show_Place();
  Cut_Page_Out();
}

void Native_Tab_Strip::Show(toolkit::Aspect aspect) {
  if (aspect == toolkit::Aspect::Value) Show_Selected();
  if (aspect != toolkit::Aspect::Appearance) return;
  Show_Font(strip_);
  Cut_Page_Out();
}

/// A press gives the focus, as everywhere; the system alone would give it with the second one.
bool Native_Tab_Strip::Intercept(UINT message, WPARAM /*w*/, LPARAM /*l*/) {
  if (message == WM_LBUTTONDOWN) SetFocus(Window());
  return false;
}

void Native_Tab_Strip::Notified(UINT code) {
  if (code == static_cast<UINT>(TCN_SELCHANGE)) strip_.User_Select(static_cast<int>(Send(TCM_GETCURSEL)) + 1);
}

}  // namespace win32
