// Where a label is painted it can be pressed: the calendar's pixels at four densities, in all styles.
#include <gtest/gtest.h>

#include <algorithm>

#include "presentation/which_style.h"
#include "tests/toolkit/fake_backend.h"
#include "win32/form_window.h"

using toolkit::Label;

namespace {

win32::Scale Scale_At(int dpi) { return {1440.0 / dpi, 1440.0 / dpi, dpi}; }

/// The calendar's labels as the painter gets them, each filled with a colour of its own.
class Painted {
 public:
  Painted(presentation::Main_Frm& main_frm, const win32::Scale& scale) {
    for (toolkit::Control* const control : main_frm.Window.Controls()) {
      auto* const label = dynamic_cast<Label*>(control);
      if (label == nullptr) continue;
      label->Transparent = false;
      label->Fixed_Border = false;
      label->Caption = "";
      label->BackColor = static_cast<toolkit::Colour>(labels_.size() + 1);
      labels_.push_back(label);
      auto painted = win32::Make_Painted_Control(*label);
      painted->Place = scale.Pixels(label->In_Twips());
      painted->Shown = label->Visible;
      controls_.push_back({label, std::move(painted)});
    }
  }

  [[nodiscard]] const win32::Painted_List& Controls() const { return controls_; }
  [[nodiscard]] const Label* Of(COLORREF colour) const { return colour == 0 ? nullptr : labels_.at(colour - 1); }

 private:
  std::vector<Label*> labels_;
  win32::Painted_List controls_;
};

int Wrong_Pixels(presentation::Main_Frm& main_frm, int dpi) {
  const win32::Scale scale = Scale_At(dpi);
  Painted painted(main_frm, scale);
  main_frm.Window.BackColor = 0;
  const RECT client = {0, 0, scale.Pixels_X(main_frm.Window.Width), scale.Pixels_Y(main_frm.Window.Height)};
  BITMAPINFO format = {};
  format.bmiHeader = {sizeof(BITMAPINFOHEADER), client.right, -client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const win32::Context_Owner context(CreateCompatibleDC(nullptr));
  const win32::Bitmap_Owner bitmap(CreateDIBSection(context.Get(), &format, DIB_RGB_COLORS, &bits, nullptr, 0));
  SelectObject(context.Get(), bitmap.Get());
  win32::Fonts fonts(scale);
  win32::Stock_Pictures pictures(nullptr);
  win32::Themes themes;
  win32::Painter({fonts, pictures, themes}).Paint(context.Get(), client, client, main_frm.Window, painted.Controls());
  GdiFlush();
  const auto row = [&](LONG y) { return static_cast<const std::uint32_t*>(bits) + y * client.right; };
  const auto same_row = [&](LONG a, LONG b) {
    return b >= 0 && b < client.bottom && std::equal(row(a), row(a) + client.right, row(b));
  };
  int wrong = 0;
  for (LONG y = 0; y < client.bottom; ++y) {
    // Between its edges a label is the same in each row.
    if (same_row(y, y - 1) && same_row(y, y + 1)) continue;
    for (LONG x = 0; x < client.right; ++x) {
      const std::uint32_t pixel = row(y)[x];
      const COLORREF colour = RGB((pixel >> 16) & 255, (pixel >> 8) & 255, pixel & 255);
      if (win32::Control_At(main_frm.Window, scale, {x, y}) != painted.Of(colour)) ++wrong;
    }
  }
  return wrong;
}

}  // namespace

TEST(Painted_Pixels, Each_can_be_pressed_at_every_density_and_in_every_style) {
  for (const int style : {0, 1, 2})
    for (const int dpi : {96, 120, 144, 192}) {
      Fake_Backend backend;
      presentation::Main_Frm main_frm(backend);
      presentation::Which_Style(main_frm, style);
      EXPECT_EQ(Wrong_Pixels(main_frm, dpi), 0) << "style " << style << " at " << dpi << " dpi";
    }
}
