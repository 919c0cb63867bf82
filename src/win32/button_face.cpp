#include "win32/button_face.h"

namespace win32 {

namespace {

constexpr int gap = 2;  // pixels between the picture and the caption

struct State {
  explicit State(UINT item)
      : Held((item & ODS_SELECTED) != 0), Disabled((item & ODS_DISABLED) != 0), Focused((item & ODS_FOCUS) != 0),
        Marks_Hidden((item & 0x0200) != 0), Accelerators_Hidden((item & 0x0100) != 0) {}

  bool Held, Disabled, Focused;
  bool Marks_Hidden, Accelerators_Hidden;  // ODS_NOFOCUSRECT and ODS_NOACCEL, which the first systems don't know
};

Themes::Look Look_Of(const State& state, bool is_default) {
  constexpr int push_button = 1, normal = 1, pressed = 3, disabled = 4, defaulted = 5;
  if (state.Disabled) return {push_button, disabled};
  if (state.Held) return {push_button, pressed};
  return {push_button, is_default ? defaulted : normal};
}

void Draw_Classic(HDC context, RECT place, const State& state, bool is_default) {
  if (is_default && !state.Disabled) {
    FrameRect(context, &place, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&place, -1, -1);
  }
  UINT look = DFCS_BUTTONPUSH;
  if (state.Held) look |= DFCS_PUSHED;
  if (state.Disabled) look |= DFCS_INACTIVE;
  DrawFrameControl(context, &place, DFC_BUTTON, look);
}

/// The lines of the caption, and their height where they are drawn in that width.
int Caption_Height(HDC context, const std::string& caption, int width) {
  if (caption.empty()) return 0;
  RECT place = {0, 0, width, 0};
  DrawTextA(context, caption.data(), static_cast<int>(caption.size()), &place, DT_CALCRECT | DT_CENTER | DT_WORDBREAK);
  return place.bottom;
}

void Draw_Caption(HDC context, const std::string& caption, RECT place, const State& state, COLORREF colour) {
  constexpr UINT hide_marks = 0x00100000;  // DT_HIDEPREFIX
  const UINT format = DT_CENTER | DT_WORDBREAK | (state.Accelerators_Hidden ? hide_marks : 0);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, colour);
  DrawTextA(context, caption.data(), static_cast<int>(caption.size()), &place, format);
}

}  // namespace

void Draw_Button(const DRAWITEMSTRUCT& item, const Button_Face& face, const Face& font, const Drawing_Tools& tools) {
  const HDC context = item.hDC;
  const State state(item.itemState);
  RECT place = item.rcItem;
  Fill(context, place, face.Ground);
  const Themes::Look look = Look_Of(state, face.Default);
  const bool themed = tools.Themes.Draw(context, look, place);
  if (!themed) Draw_Classic(context, place, state, face.Default);
  InflateRect(&place, -4, -4);
  const RECT focus = place;
  if (state.Held && !themed) OffsetRect(&place, 1, 1);

  const Selection selected(context, font.Handle.Get());
  const SIZE picture = tools.Pictures.Size(face.Picture);
  const int width = place.right - place.left;
  const int caption = Caption_Height(context, face.Caption, width);
  const int room = place.bottom - place.top - picture.cy - caption;
  place.top += std::max(0, (room - gap) / 2);
  tools.Pictures.Draw_Plain(context, face.Picture, {place.left + (width - picture.cx) / 2, place.top}, !state.Disabled);
  place.top += picture.cy + (caption != 0 ? gap : 0);
  const COLORREF usual = GetSysColor(COLOR_BTNTEXT);
  const COLORREF colour = state.Disabled ? Grey_On(GetSysColor(COLOR_BTNFACE), usual) : usual;
  Draw_Caption(context, face.Caption, place, state, tools.Themes.Text_Colour(look, colour));
  if (state.Focused && !state.Marks_Hidden) DrawFocusRect(context, &focus);
}

}  // namespace win32
