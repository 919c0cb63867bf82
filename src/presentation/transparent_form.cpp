#include "presentation/transparent_form.h"

namespace presentation {

namespace {

using toolkit::Pixel_Rect;
using toolkit::Region;

/// A rectangle as the system's regions take it: in whole pixels, each edge rounded by itself.
Pixel_Rect Rect(double left, double top, double right, double bottom) {
  using toolkit::Round_To_Even;
  return {Round_To_Even(left), Round_To_Even(top), Round_To_Even(right), Round_To_Even(bottom)};
}

}  // namespace

void TransparentForm(toolkit::Form& form) {
  form.Scale = toolkit::Scale_Unit::Pixels;
  if (form.Minimised()) return;
  const double width = form.Width / form.Twips_Per_Unit(toolkit::Axis::Across);
  const double height = form.Height / form.Twips_Per_Unit(toolkit::Axis::Down);
  const double border = (width - form.Client_Width()) / 2;
  const double title = height - border - form.Client_Height();
  const Region frame({Rect(0, 0, width, height)});
  const Region client({Rect(border, title, width - border, height - border)});
  std::vector<Pixel_Rect> rects = frame.Without(client).Rects();
  for (const toolkit::Control* const control : form.Controls()) {
    if (!control->Visible) continue;
    const double left = control->Left + border;
    const double top = control->Top + title;
    rects.push_back(Rect(left, top, control->Width + left, control->Height + top));
  }
  form.Set_Region(Region(std::move(rects)));
}

}  // namespace presentation
