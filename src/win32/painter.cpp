#include "win32/painter.h"

namespace win32 {

namespace {

/// Has an object selected for as long as it lives.
class Selection {
 public:
  Selection(HDC context, HGDIOBJ object) : context_(context), before_(SelectObject(context, object)) {}
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;
  ~Selection() { SelectObject(context_, before_); }

 private:
  HDC context_;
  HGDIOBJ before_;
};

void Fill(HDC context, const RECT& place, COLORREF colour) {
  SetBkColor(context, colour);
  ExtTextOutA(context, 0, 0, ETO_OPAQUE, &place, nullptr, 0, nullptr);
}

void Draw_Outline(HDC context, const RECT& client, const toolkit::Form& form) {
  const Brush_Owner brush(CreateSolidBrush(To_Colour(form.BackColor)));
  const Pen_Owner pen(CreatePen(PS_SOLID, 1, To_Colour(form.ForeColor)));
  const Selection inside(context, brush.Get());
  const Selection line(context, pen.Get());
  RoundRect(context, 0, 0, client.right, client.bottom, form.Outline_Corner, form.Outline_Corner);
}

UINT Text_Format(const toolkit::Label& label) {
  UINT format = DT_LEFT;
  if (label.Alignment() == toolkit::Alignment::Right) format = DT_RIGHT;
  if (label.Alignment() == toolkit::Alignment::Centre) format = DT_CENTER;
  if (label.Word_Wrap) format |= DT_WORDBREAK;
  if (!label.Mnemonics) format |= DT_NOPREFIX;
  return format;
}

}  // namespace

COLORREF To_Colour(toolkit::Colour colour) {
  if (toolkit::Is_System_Colour(colour)) return GetSysColor(toolkit::System_Colour_Number(colour));
  return static_cast<COLORREF>(colour) & 0xFFFFFF;
}

void Painter::Paint(HDC target, const RECT& area, const RECT& client, const toolkit::Form& form,
                    std::vector<Painted_Control>& controls) {
  const int width = area.right - area.left, height = area.bottom - area.top;
  if (width <= 0 || height <= 0) return;
  const Context_Owner buffer(CreateCompatibleDC(target));
  const Bitmap_Owner bitmap(CreateCompatibleBitmap(target, width, height));
  if (!buffer || !bitmap) {
    Draw_All(target, target, client, form, controls);
    return;
  }
  const Selection drawn_on(buffer.Get(), bitmap.Get());
  SetViewportOrgEx(buffer.Get(), -area.left, -area.top, nullptr);
  Draw_All(buffer.Get(), target, client, form, controls);
  BitBlt(target, area.left, area.top, width, height, buffer.Get(), area.left, area.top, SRCCOPY);
}

void Painter::Draw_All(HDC context, HDC target, const RECT& client, const toolkit::Form& form,
                       std::vector<Painted_Control>& controls) {
  const Selection own_font(context, GetStockObject(SYSTEM_FONT));
  Fill(context, client, To_Colour(form.BackColor));
  if (form.Outline_Corner != 0) Draw_Outline(context, client, form);
  for (Painted_Control& control : controls) {
    if (!control.Shown || RectVisible(target, &control.Place) == 0) continue;
    if (control.Label != nullptr) Draw_Label(context, control);
    else pictures_.Draw(context, control.Image->Picture, control.Place);
  }
}

void Painter::Draw_Label(HDC context, Painted_Control& control) {
  const toolkit::Label& label = *control.Label;
  RECT place = control.Place;
  if (!label.Transparent) Fill(context, place, To_Colour(label.BackColor));
  if (label.Fixed_Border) {
    FrameRect(context, &place, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&place, -1, -1);
  }
  const std::string& text = label.Caption;
  if (text.empty()) return;
  if (control.Face == nullptr)
    control.Face = &fonts_.Get({label.FontName, label.FontSize, label.FontBold, label.FontItalic, label.FontUnderline});
  SelectObject(context, control.Face->Handle.Get());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, To_Colour(label.ForeColor));
  DrawTextA(context, text.data(), static_cast<int>(text.size()), &place, Text_Format(label));
}

}  // namespace win32
