#include "win32/native_children.h"

#include <algorithm>
#include <string>

namespace win32 {

namespace {

constexpr int first_id = 100;  // above the numbers that the system gives a meaning

struct Kind_Of_Window {
  const char* Class;
  DWORD Style, Extended;
};

Kind_Of_Window Window_Kind(bool text, bool check, bool is_default) {
  constexpr DWORD edit = WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
  if (text) return {"EDIT", edit, WS_EX_CLIENTEDGE};
  if (check) return {"BUTTON", BS_CHECKBOX, 0};
  return {"BUTTON", static_cast<DWORD>(is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON), 0};
}

const std::string& Text_Of(const toolkit::Text_Box* text, const toolkit::Check_Box* check,
                           const toolkit::Command_Button* button) {
  if (text != nullptr) return text->Text;
  return check != nullptr ? check->Caption() : button->Caption();
}

template <class Kind>
toolkit::Font Font_Of(const Kind& control) {
  return {control.FontName, control.FontSize, control.FontBold, control.FontItalic, control.FontUnderline};
}

}  // namespace

bool Native_Children::Add(HWND parent, toolkit::Control& control) {
  Child child;
  child.Control = &control;
  child.Text = dynamic_cast<toolkit::Text_Box*>(&control);
  child.Check = dynamic_cast<toolkit::Check_Box*>(&control);
  child.Button = dynamic_cast<toolkit::Command_Button*>(&control);
  if (child.Text == nullptr && child.Check == nullptr && child.Button == nullptr) return false;
  children_.push_back(child);
  Make_Window(parent, children_.back());
  return true;
}

void Native_Children::Make_Window(HWND parent, Child& child) {
  const bool is_default = child.Button != nullptr && child.Button->Default;
  const Kind_Of_Window kind = Window_Kind(child.Text != nullptr, child.Check != nullptr, is_default);
  const DWORD shown = child.Control->Visible ? WS_VISIBLE : 0;
  const DWORD enabled = child.Control->Enabled ? 0 : WS_DISABLED;
  child.Place = scale_.Pixels(child.Control->In_Twips());
  const auto id = static_cast<INT_PTR>(first_id + children_.size());
  child.Window = CreateWindowExA(kind.Extended, kind.Class, Text_Of(child.Text, child.Check, child.Button).c_str(),
                                 WS_CHILD | WS_TABSTOP | kind.Style | shown | enabled, child.Place.left,
                                 child.Place.top, child.Place.right - child.Place.left,
                                 child.Place.bottom - child.Place.top, parent, reinterpret_cast<HMENU>(id),
                                 reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(parent, GWLP_HINSTANCE)), nullptr);
  Set_Font(child);
  if (child.Text != nullptr) SendMessageA(child.Window, EM_LIMITTEXT, 0, 0);  // as much as the system can
  if (child.Check != nullptr) SendMessageA(child.Window, BM_SETCHECK, child.Check->Value() == 1, 0);
}

void Native_Children::Set_Font(const Child& child) {
  toolkit::Font font;
  if (child.Text != nullptr) font = Font_Of(*child.Text);
  if (child.Check != nullptr) font = Font_Of(*child.Check);
  if (child.Button != nullptr) font = Font_Of(*child.Button);
  const HFONT handle = fonts_.Get(font).Handle.Get();
  SendMessageA(child.Window, WM_SETFONT, reinterpret_cast<WPARAM>(handle), TRUE);
}

Native_Children::Child* Native_Children::Find(HWND window) {
  const auto found =
      std::find_if(children_.begin(), children_.end(), [=](const Child& child) { return child.Window == window; });
  return found == children_.end() ? nullptr : &*found;
}

bool Native_Children::Changed(const toolkit::Control& control, toolkit::Aspect aspect) {
  const auto found =
      std::find_if(children_.begin(), children_.end(), [&](const Child& child) { return child.Control == &control; });
  if (found == children_.end()) return false;
  Child& child = *found;
  using enum toolkit::Aspect;
  if (aspect == Bounds) Set_Place(child);
  if (aspect == Visible) ShowWindow(child.Window, control.Visible ? SW_SHOWNA : SW_HIDE);
  if (aspect == Enabled) EnableWindow(child.Window, control.Enabled);
  if (aspect == Caption) Set_Text(child);
  if (aspect == Appearance) Set_Font(child);
  if (aspect == Value && child.Check != nullptr) SendMessageA(child.Window, BM_SETCHECK, child.Check->Value() == 1, 0);
  if (aspect == Default_Button && child.Button != nullptr)
    SendMessageA(child.Window, BM_SETSTYLE, child.Button->Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
  if (aspect == Selection && child.Text != nullptr) {
    const int start = child.Text->SelStart;
    SendMessageA(child.Window, EM_SETSEL, static_cast<WPARAM>(start), start + child.Text->SelLength);
  }
  return true;
}

void Native_Children::Set_Place(Child& child) const {
  const RECT place = scale_.Pixels(child.Control->In_Twips());
  if (EqualRect(&place, &child.Place) != 0) return;
  child.Place = place;
  MoveWindow(child.Window, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

void Native_Children::Set_Text(Child& child) {
  child.Being_Set = true;
  SetWindowTextA(child.Window, Text_Of(child.Text, child.Check, child.Button).c_str());
  child.Being_Set = false;
}

void Native_Children::Focus(const toolkit::Control& control) {
  for (const Child& child : children_)
    if (child.Control == &control) {
      last_focus_ = child.Window;
      SetFocus(child.Window);
      return;
    }
}

void Native_Children::Remember_Focus(HWND parent) {
  const HWND focus = GetFocus();
  if (focus != nullptr && GetParent(focus) == parent) last_focus_ = focus;
}

bool Native_Children::Restore_Focus() {
  if (last_focus_ == nullptr && !children_.empty()) last_focus_ = children_.front().Window;
  if (last_focus_ == nullptr) return false;
  SetFocus(last_focus_);
  return true;
}

bool Native_Children::Next(HWND parent, bool previous) {
  const HWND next = GetNextDlgTabItem(parent, GetFocus(), previous);
  if (next == nullptr) return false;
  // A text box takes the focus with its whole text selected, any other control as it is.
  if ((SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) SendMessageA(next, EM_SETSEL, 0, -1);
  SetFocus(next);
  return true;
}

void Native_Children::Command(HWND window, WORD code) {
  const Child* const child = Find(window);
  if (child == nullptr) return;
  // The handlers come last: they may end the window.
  if (child->Text != nullptr && code == EN_CHANGE && !child->Being_Set) Text_Edited(*child);
  else if (child->Check != nullptr && code == BN_CLICKED) child->Check->User_Click();
  else if (child->Button != nullptr && code == BN_CLICKED) child->Button->User_Click();
}

void Native_Children::Text_Edited(const Child& child) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(child.Window)), '\0');
  const int length = GetWindowTextA(child.Window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  child.Text->User_Text(std::move(text));
}

bool Native_Children::Press_Button(HWND focus) {
  const Child* const child = Find(focus);
  if (child == nullptr || child->Button == nullptr) return false;
  child->Button->User_Click();
  return true;
}

LRESULT Native_Children::Default_Id() const {
  for (const Child& child : children_)
    if (child.Button != nullptr && child.Button->Default) return MAKELRESULT(GetDlgCtrlID(child.Window), DC_HASDEFID);
  return 0;
}

LRESULT Native_Children::Ground(HDC context, COLORREF colour) {
  if (!ground_ || colour != ground_colour_) {
    ground_.Reset(CreateSolidBrush(colour));
    ground_colour_ = colour;
  }
  SetBkColor(context, colour);
  return reinterpret_cast<LRESULT>(ground_.Get());
}

}  // namespace win32
