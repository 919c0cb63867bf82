#include "win32/native_lists.h"

#include <algorithm>
#include <utility>

namespace win32 {

namespace {

constexpr int items_dropped = 8;
constexpr UINT set_items_dropped = 0x1701;  // CB_SETMINVISIBLE, of the newer versions of the library

}  // namespace

void Native_Item_List::Show(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Items: stale_ = true; break;
    case Selection: Show_Selection(); break;
    case Appearance:
      Show_Font(list_);
      Show_Place();
      if (!stale_) Show_Widest(Widest());
      break;
    default: break;
  }
}

void Native_Item_List::Settle() {
  if (stale_ && list_.On_View()) Fill();
}

void Native_Item_List::Fill() {
  stale_ = false;
  constexpr std::size_t bytes_an_item = 32;
  const int count = list_.ListCount();
  Send(WM_SETREDRAW, FALSE);
  Send(messages_.Clear);
  const auto items = static_cast<std::size_t>(count);
  Send(messages_.Make_Room, items, static_cast<LPARAM>(items * bytes_an_item));
  for (int i = 0; i < count; ++i) Send(messages_.Add, 0, reinterpret_cast<LPARAM>(list_.List(i).c_str()));
  Show_Selection();
  Show_Widest(Widest());
  Send(WM_SETREDRAW, TRUE);
  InvalidateRect(Window(), nullptr, TRUE);
}

void Native_Item_List::Show_Selection() {
  if (stale_ || Selected() == list_.ListIndex()) return;
  Send(messages_.Select, static_cast<WPARAM>(list_.ListIndex()));
}

int Native_Item_List::Widest() const {
  Face& face = Font_Of(list_);
  int widest = 0;
  for (int i = 0; i < list_.ListCount(); ++i) widest = std::max(widest, Context().Fonts.Width(face, list_.List(i)));
  return widest;
}

Native_List_Box::Native_List_Box(HWND parent, toolkit::List_Box& list, Window_Context& context)
    : Native_Item_List(parent, list, context,
                       {LB_RESETCONTENT, LB_INITSTORAGE, LB_ADDSTRING, LB_SETCURSEL, LB_GETCURSEL}) {
  Make({"LISTBOX", WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, WS_EX_CLIENTEDGE});
  Show_Font(list);
}

void Native_List_Box::Show_Widest(int pixels) {
  constexpr int margins = 8;
  Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(pixels + margins));
}

RECT Native_List_Box::Part_Place(int part) const {
  RECT place = {};
  Send(LB_GETITEMRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&place));
  return place;
}

void Native_List_Box::Command(WORD code) {
  // A click on the entry that was selected before changes nothing to the system, and clicks all the same.
  const bool picked = code == LBN_SELCHANGE || code == static_cast<WORD>(LBN_SELCANCEL);
  const int selected = Selected();
  if (picked && selected >= 0) List().User_Select(selected);
  else if (code == LBN_DBLCLK && List().Usable() && List().On_Double_Click) List().On_Double_Click();
}

Native_Combo_Box::Native_Combo_Box(HWND parent, toolkit::Combo_Box& box, Window_Context& context)
    : Native_Item_List(parent, box, context,
                       {CB_RESETCONTENT, CB_INITSTORAGE, CB_ADDSTRING, CB_SETCURSEL, CB_GETCURSEL}) {
  Make({"COMBOBOX", WS_VSCROLL | CBS_DROPDOWNLIST, 0});
  Show_Font(box);
  // In a window that is too low for it the box would be cut off.
  constexpr int much = 200;
  SetWindowPos(Window(), nullptr, 0, 0, much, much, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  Send(set_items_dropped, items_dropped);
  Native_Combo_Box::Show_Place();
}

/// The closed box is as high as its text needs, which the system knows, and lies in the middle of the height told. The
/// list counts to the box.
RECT Native_Combo_Box::Wanted_Place() const {
  constexpr int borders = 2;
  RECT closed = {}, place = Native_Control::Wanted_Place();
  GetWindowRect(Window(), &closed);
  const LONG height = closed.bottom - closed.top;
  place.top += (place.bottom - place.top - height) / 2;
  place.bottom = place.top + height + items_dropped * static_cast<LONG>(Send(CB_GETITEMHEIGHT)) + borders;
  return place;
}

void Native_Combo_Box::Show_Widest(int pixels) {
  const int around = GetSystemMetrics(SM_CXVSCROLL) + 2 * GetSystemMetrics(SM_CXEDGE) + 4;
  Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(pixels + around));
}

bool Native_Combo_Box::Keeps_Keys() const { return Send(CB_GETDROPPEDSTATE) != 0; }

// A system that lacks the function has no readers either.
HWND Native_Combo_Box::Parts_Window() const {
  const auto ask = Find_Function<BOOL WINAPI(HWND, COMBOBOXINFO*)>(GetModuleHandleA("user32.dll"), "GetComboBoxInfo");
  COMBOBOXINFO box = {};
  box.cbSize = sizeof box;
  return Keeps_Keys() && ask != nullptr && ask(Window(), &box) != 0 ? box.hwndList : nullptr;
}

RECT Native_Combo_Box::Part_Place(int part) const {
  RECT place = {};
  SendMessageA(Parts_Window(), LB_GETITEMRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&place));
  return place;
}

// What the user goes over while the list is dropped isn't picked yet.
void Native_Combo_Box::Command(WORD code) {
  const int selected = Selected();
  if (code == CBN_SELENDCANCEL) return Show_Selection();
  const bool moved = code == CBN_SELCHANGE && !Keeps_Keys() && selected != List().ListIndex();
  if ((code == CBN_SELENDOK || moved) && selected >= 0) List().User_Select(selected);
}

}  // namespace win32
