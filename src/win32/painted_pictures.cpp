#include "win32/painted_pictures.h"

#include "win32/dib_picture.h"
#include "win32/graphics.h"

namespace win32 {

namespace {

/// A picture of this platform; nullptr if there is none.
const Dib_Picture* Loaded_In(const toolkit::Image& image) {
  return dynamic_cast<const Dib_Picture*>(image.Loaded().get());
}

void Draw_Line(HDC context, const toolkit::Picture_Box::Drawn& line, POINT corner) {
  const Pen_Owner pen(CreatePen(PS_SOLID, 1, To_Colour(line.Colour)));
  const Selection selected(context, pen.Get());
  SetROP2(context, static_cast<int>(line.Mode));
  MoveToEx(context, corner.x + toolkit::Round_To_Even(line.X), corner.y + toolkit::Round_To_Even(line.Y), nullptr);
  LineTo(context, corner.x + toolkit::Round_To_Even(line.To_X), corner.y + toolkit::Round_To_Even(line.To_Y));
  SetROP2(context, R2_COPYPEN);
}

void Draw_Text(HDC context, const toolkit::Picture_Box::Drawn& text, POINT corner, Fonts& fonts) {
  constexpr double points = 7;
  const Selection selected(context, fonts.Get({"Arial", points}).Handle.Get());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, To_Colour(text.Colour));
  TextOutA(context, corner.x + toolkit::Round_To_Even(text.X), corner.y + toolkit::Round_To_Even(text.Y),
           text.Text.data(), static_cast<int>(text.Text.size()));
}

}  // namespace

void Painted_Image::Draw(HDC context, const Drawing_Tools& tools) {
  RECT place = Place;
  if (image_.Fixed_Border) Draw_Line_Around(context, place);
  if (IsRectEmpty(&place) != 0) return;
  if (const Dib_Picture* const loaded = Loaded_In(image_)) loaded->Draw(context, place);
  else tools.Pictures.Draw(context, image_.Picture, place);
}

void Painted_Picture_Box::Draw(HDC context, const Drawing_Tools& tools) {
  RECT place = Place;
  if (box_.Opaque) Fill(context, place, To_Colour(box_.BackColor));
  if (box_.Fixed_Border) Draw_Line_Around(context, place);
  const Saved_Context saved(context);
  IntersectClipRect(context, place.left, place.top, place.right, place.bottom);
  const POINT corner = {place.left, place.top};
  Draw_Picture(context, tools.Pictures, corner);
  for (const toolkit::Picture_Box::Drawn& drawn : box_.Drawing()) {
    if (drawn.Text.empty()) Draw_Line(context, drawn, corner);
    else Draw_Text(context, drawn, corner, tools.Fonts);
  }
}

void Painted_Picture_Box::Draw_Picture(HDC context, Stock_Pictures& pictures, POINT corner) const {
  const Dib_Picture* const loaded = Loaded_In(box_);
  const SIZE size = loaded != nullptr ? SIZE{loaded->Width(), loaded->Height()} : pictures.Size(box_.Picture);
  const RECT place = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
  if (loaded != nullptr) loaded->Draw(context, place);
  else if (size.cx != 0) pictures.Draw(context, box_.Picture, place);
}

}  // namespace win32
