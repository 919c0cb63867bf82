#include "toolkit/image.h"

#include <cmath>

#include "toolkit/form.h"

namespace toolkit {

void Picture_Box::Cls() {
  if (drawing_.empty()) return;
  drawing_.clear();
  Changed(Aspect::Appearance);
}

void Picture_Box::Draw(const Drawn& drawn) {
  drawing_.push_back(drawn);
  Changed(Aspect::Appearance);
}

int Picture_Box::Point(double x, double y) const {
  if (Loaded() == nullptr) return -1;
  Backend& system = Window.System();
  return Loaded()->Pixel(static_cast<int>(std::floor(x / system.Twips_Per_Pixel(Axis::Across))),
                         static_cast<int>(std::floor(y / system.Twips_Per_Pixel(Axis::Down))));
}

double Picture_Box::Inner_Width() const {
  return In_Twips().Width / Window.System().Twips_Per_Pixel(Axis::Across) - (Fixed_Border ? 2 : 0);
}

double Picture_Box::Inner_Height() const {
  return In_Twips().Height / Window.System().Twips_Per_Pixel(Axis::Down) - (Fixed_Border ? 2 : 0);
}

}  // namespace toolkit
