// Where a label is painted it can be pressed: the calendar's pixels at four densities, in all styles.
#include <gtest/gtest.h>

#include <algorithm>

#include "presentation/which_style.h"
#include "tests/toolkit/fake_backend.h"
#include "win32/form_window.h"
#include "win32/graphics.h"

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

/// The pixels of a window as the painter paints it.
class Canvas {
 public:
  Canvas(const toolkit::Form& window, const win32::Scale& scale, const win32::Painted_List& controls)
      : Client{0, 0, scale.Pixels_X(window.Width), scale.Pixels_Y(window.Height)} {
    BITMAPINFO format = {};
    format.bmiHeader = {sizeof(BITMAPINFOHEADER), Client.right, -Client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    bitmap_.Reset(CreateDIBSection(context_.Get(), &format, DIB_RGB_COLORS, &bits_, nullptr, 0));
    const win32::Selection drawn_on(context_.Get(), bitmap_.Get());
    win32::Fonts fonts(scale);
    win32::Stock_Pictures pictures(nullptr);
    win32::Themes themes;
    win32::Painter({fonts, pictures, themes}).Paint(context_.Get(), Client, Client, window, controls);
    GdiFlush();
  }

  [[nodiscard]] const std::uint32_t* Row(LONG y) const {
    return static_cast<const std::uint32_t*>(bits_) + y * Client.right;
  }
  [[nodiscard]] COLORREF Colour(LONG x, LONG y) const {
    const std::uint32_t pixel = Row(y)[x];
    return RGB((pixel >> 16) & 255, (pixel >> 8) & 255, pixel & 255);
  }

  const RECT Client;

 private:
  const win32::Context_Owner context_{CreateCompatibleDC(nullptr)};
  win32::Bitmap_Owner bitmap_;
  void* bits_ = nullptr;
};

int Wrong_Pixels(presentation::Main_Frm& main_frm, int dpi) {
  const win32::Scale scale = Scale_At(dpi);
  Painted painted(main_frm, scale);
  main_frm.Window.BackColor = 0;
  const Canvas canvas(main_frm.Window, scale, painted.Controls());
  const RECT& client = canvas.Client;
  const auto row = [&](LONG y) { return canvas.Row(y); };
  const auto same_row = [&](LONG a, LONG b) {
    return b >= 0 && b < client.bottom && std::equal(row(a), row(a) + client.right, row(b));
  };
  int wrong = 0;
  for (LONG y = 0; y < client.bottom; ++y) {
    // Between its edges a label is the same in each row.
    if (same_row(y, y - 1) && same_row(y, y + 1)) continue;
    for (LONG x = 0; x < client.right; ++x) {
      if (win32::Control_At(main_frm.Window, scale, {x, y}) != painted.Of(canvas.Colour(x, y))) ++wrong;
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

TEST(Painted_Pixels, The_outline_of_a_balloon_runs_along_its_edges_and_round_its_corners) {
  Fake_Backend backend;
  toolkit::Form balloon(backend, "frmBalloon", toolkit::Form_Border::None);
  balloon.Width = 4680;
  balloon.Height = 1920;
  constexpr COLORREF ground = RGB(255, 255, 238), line = RGB(10, 20, 30);
  balloon.BackColor = static_cast<toolkit::Colour>(ground);
  balloon.ForeColor = static_cast<toolkit::Colour>(line);
  balloon.Outline_Corner = 26;
  const Canvas canvas(balloon, Scale_At(96), {});
  const LONG right = canvas.Client.right - 1, bottom = canvas.Client.bottom - 1;
  for (const LONG x : {14L, right / 2, right - 14}) {
    EXPECT_EQ(canvas.Colour(x, 0), line) << x;
    EXPECT_EQ(canvas.Colour(x, bottom), line) << x;
    EXPECT_EQ(canvas.Colour(x, 1), ground) << "one pixel wide";
  }
  for (const LONG y : {14L, bottom / 2, bottom - 14}) {
    EXPECT_EQ(canvas.Colour(0, y), line) << y;
    EXPECT_EQ(canvas.Colour(right, y), line) << y;
  }
  for (const LONG x : {0L, right})
    for (const LONG y : {0L, bottom}) EXPECT_EQ(canvas.Colour(x, y), ground) << x << ", " << y;
  LONG x = 0;  // of a circle of 13 pixels about (13, 13), in the fifth row
  while (x < 13 && canvas.Colour(x, 4) == ground) ++x;
  EXPECT_GE(x, 3);
  EXPECT_LE(x, 4);
}
