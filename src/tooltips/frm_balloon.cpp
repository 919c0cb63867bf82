#include "tooltips/frm_balloon.h"

#include "basic/text.h"
#include "presentation/placement.h"

namespace tooltips {

namespace {

using toolkit::Axis;

constexpr int close_interval = 100;  // milliseconds
constexpr toolkit::Colour pale_yellow = toolkit::Rgb(255, 255, 238);
constexpr toolkit::Colour tooltip_text = toolkit::System_Colour(23);
constexpr int region_corner = 28;   // pixels
constexpr int outline_corner = 26;  // pixels
constexpr double gap_above = 125;   // twips

}  // namespace

bool Tahoma_Exists(toolkit::Backend& backend) { return backend.Font_Given_For("Tahoma") == "Tahoma"; }

Frm_Balloon::Frm_Balloon(toolkit::Backend& backend, platform::Screen& screen, presentation::Main_Frm& main_frm,
                         state::Calendar_State& calendar, const Balloon_Calls& calls, toolkit::Form* owner)
    : Window(backend, "frmBalloon", toolkit::Form_Border::None, owner != nullptr ? owner : &main_frm.Window),
      lblTitle(Window, "lblTitle"), imgDisplayIcon(Window, "imgDisplayIcon"), imgIconXP(Window, "imgIconXP", 1),
      lblText(Window, "lblText"), backend_(backend), screen_(screen), main_frm_(main_frm), calendar_(calendar),
      calls_(calls), close_timer_(backend, "Close_Timer", close_interval) {
  Make_Controls();
  Tie_Events();
}

void Frm_Balloon::Make_Controls() {
  Window.Width = 4680;
  Window.Height = 1920;
  Window.Scale = toolkit::Scale_Unit::Pixels;
  Window.BackColor = pale_yellow;
  Window.ForeColor = tooltip_text;
  Window.Outline_Corner = outline_corner;
  lblTitle.Place({480, 90, 3735, 255});
  lblTitle.FontBold = true;
  lblTitle.ForeColor = tooltip_text;
  lblTitle.Transparent = true;
  imgDisplayIcon.Place({120, 120, 240, 240});
  imgIconXP[0].Place({0, 0, 240, 240});
  imgIconXP[0].Picture = platform::Stock_Picture::Information_Icon;
  imgIconXP[0].Visible = false;
  lblText.Place({135, 480, 1845, 195});
  lblText.ForeColor = tooltip_text;
  lblText.Transparent = true;
  lblText.AutoSize = true;
}

void Frm_Balloon::Tie_Events() {
  // It takes the keys as a whole, so that a reader that follows them tells all of it.
  Window.Accessible_Name = [this] { return lblTitle.Caption() + ", " + lblText.Shown_Text(); };
  Window.On_Load = [this] { Load(); };
  Window.On_Unload = [this] { Unload(); };
  Window.On_Resize = [this] { Resize(); };
  Window.On_Deactivate = [this] { HideBalloon(); };
  const auto close = [this] { HideBalloon(); };
  Window.On_Click = close;
  lblTitle.On_Click = close;
  lblText.On_Click = close;
  imgDisplayIcon.On_Click = close;
  close_timer_.On_Tick = [this] {
    if (backend_.Active_Form() != &Window) HideBalloon();
  };
}

void Frm_Balloon::Load() { calendar_.Tip_Showing = true; }

void Frm_Balloon::Unload() {
  close_timer_.Disable();
  calendar_.Tip_Showing = false;
  calls_.Idle_Restart();
}

void Frm_Balloon::SetBalloon(const std::string& title, const std::string& text, std::int32_t left, std::int32_t top,
                             const std::string& icon_type, const std::string& font_name, double font_size) {
  Window.Load();
  lblTitle.Caption = title;
  lblText.Caption = text;
  Show_Icon(icon_type);
  Set_Font(font_name, font_size);
  Window.Width = (lblText.Left + lblText.Width + 5) * screen_.Twips_Per_Pixel_X();
  Window.Height = (lblText.Top + lblText.Height + 8) * screen_.Twips_Per_Pixel_Y();
  Shape();
  calls_.Rebuild_Month();
  Window.Top = top != 0 ? top : Place_Down();
  Window.Left = left != 0 ? left : Place_Across();
}

void Frm_Balloon::Show() {
  Window.Show();
  if (Window.Loaded()) close_timer_.Enable();
}

void Frm_Balloon::Show_Icon(const std::string& icon_type) {
  if (basic::Same_Letters(icon_type, "i")) {
    imgDisplayIcon.Picture = imgIconXP[0].Picture();
    return;
  }
  imgDisplayIcon.Visible = false;
  lblTitle.Left = imgDisplayIcon.Left;
}

void Frm_Balloon::Set_Font(const std::string& font_name, double font_size) {
  std::string name = font_name;
  if (name == "Tahoma, if exists") name = Tahoma_Exists(backend_) ? "Tahoma" : "MS Sans Serif";
  Window.FontName = name;
  lblText.FontName = name;
  lblTitle.FontName = name;
  lblText.FontSize = font_size;
  lblTitle.FontSize = font_size;
}

void Frm_Balloon::Resize() {
  lblText.Height = Window.Client_Height() - lblText.Top - 10;
  lblText.Width = Window.Client_Width() - 2 * lblText.Left;
  Shape();
}

void Frm_Balloon::Shape() {
  Window.Scale = toolkit::Scale_Unit::Pixels;
  Window.Set_Round_Region(toolkit::Round_To_Even(Window.Client_Width()) + 1,
                          toolkit::Round_To_Even(Window.Client_Height()) + 1, region_corner);
}

int Frm_Balloon::Place_Down() const {
  const toolkit::Bounds& box = main_frm_.Box_Lbl[calendar_.Tip_Box].In_Twips();
  const double main_top = main_frm_.Window.Top;
  const double below = box.Top + box.Height + main_top;
  if (below + Window.Height < presentation::GetDesktopRect(screen_, true).Height) return toolkit::Round_To_Even(below);
  return toolkit::Round_To_Even(box.Top + main_top - Window.Height - gap_above);
}

int Frm_Balloon::Place_Across() const {
  const toolkit::Bounds& box = main_frm_.Box_Lbl[calendar_.Tip_Box].In_Twips();
  const double main_left = main_frm_.Window.Left;
  const double right = box.Left + box.Width + main_left;
  if (right + Window.Width < presentation::GetDesktopRect(screen_, true).Width) return toolkit::Round_To_Even(right);
  return toolkit::Round_To_Even(box.Left + main_left - Window.Width);
}

}  // namespace tooltips
