#include "win32/painter.h"

#include "win32/graphics.h"

namespace win32 {

namespace {

void Draw_Outline(HDC context, const RECT& client, const toolkit::Form& form) {
  const Brush_Owner brush(CreateSolidBrush(To_Colour(form.BackColor)));
  const Pen_Owner pen(CreatePen(PS_SOLID, 1, To_Colour(form.ForeColor)));
  const Selection inside(context, brush.Get());
  const Selection line(context, pen.Get());
  RoundRect(context, 0, 0, client.right, client.bottom, form.Outline_Corner, form.Outline_Corner);
}

}  // namespace

void Painter::Paint(HDC target, const RECT& area, const RECT& client, const toolkit::Form& form,
                    const Painted_List& controls) {
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
                       const Painted_List& controls) {
  const Selection own_font(context, GetStockObject(SYSTEM_FONT));
  Fill(context, client, To_Colour(form.BackColor));
  if (form.Outline_Corner != 0) Draw_Outline(context, client, form);
  for (const auto& [control, painted] : controls)
    if (painted->Shown && RectVisible(target, &painted->Place) != 0) painted->Draw(context, tools_);
}

}  // namespace win32
