#include "presentation/placement.h"

#include <utility>

#include "presentation/box_style.h"

namespace presentation {

namespace {

using settings::Desktop_Mode;
using settings::Settings;
using toolkit::Round_To_Even;

constexpr const char* manual_question =
    "Manual Positioning is not selected. This means that next time the program is started or the month is changed the "
    "program will revert back to the set position. Do you want to change the positioning mode to manual positioning?";

/// Where a window of that length must start to lie in the middle of the stretch.
int Middle(std::int32_t stretch, double length) { return Round_To_Even(stretch - length) / 2; }

Desktop_Rect In_Twips(const platform::Pixel_Area& area, platform::Screen& screen) {
  const double across = screen.Twips_Per_Pixel_X();
  const double down = screen.Twips_Per_Pixel_Y();
  return {Round_To_Even(area.Left * across), Round_To_Even(area.Top * down), Round_To_Even(area.Width * across),
          Round_To_Even(area.Height * down)};
}

}  // namespace

Desktop_Rect GetDesktopRect(platform::Screen& screen, bool in_twips) {
  const platform::Pixel_Area area = screen.Work_Area();
  if (in_twips) return In_Twips(area, screen);
  return {area.Left, area.Top, area.Width, area.Height};
}

Placement::Placement(Main_Frm& main_frm, platform::Screen& screen, platform::Message_Box& message_box,
                     settings::Stored_Settings& stored, const state::Calendar_State& calendar)
    : main_frm_(main_frm), screen_(screen), message_box_(message_box), stored_(stored), calendar_(calendar) {}

void Placement::Position_Form(basic::Int16 position) {
  toolkit::Form& form = main_frm_.Window;
  form.Scale = toolkit::Scale_Unit::Twips;
  const Desktop_Rect area = GetDesktopRect(screen_, true);
  const double right = area.Width - form.Width + area.Left;
  const double centre = Middle(area.Width, form.Width) + area.Left;
  const double left = area.Left;
  const double bottom = area.Top + area.Height - form.Height;
  const double middle = Middle(area.Height, form.Height) + area.Top;
  const double top = area.Top;
  switch (position.Value()) {
    case 0: form.Move(right, bottom); break;
    case 1: form.Move(centre, bottom); break;
    case 2: form.Move(left, bottom); break;
    case 3: form.Move(centre, middle); break;
    case 4: form.Move(right, top); break;
    case 5: form.Move(centre, top); break;
    case 6: form.Move(left, top); break;
    case manual_position:
      form.Move(stored_.Manual_Edge(Desktop_Mode::left_edge), stored_.Manual_Edge(Desktop_Mode::top_edge));
      break;
    case 8: form.Move(right, middle); break;
    case 9: form.Move(left, middle); break;
    default: break;
  }
}

void Placement::Position_In_Force() { Position_Form(presentation::Position_In_Force(stored_.Values, calendar_)); }

void Placement::Set_Repos() {
  const Desktop_Rect area = GetDesktopRect(screen_, true);
  saved_work_area_ = {Allowed(area.Left), Allowed(area.Top), Allowed(area.Width), Allowed(area.Height)};
}

void Placement::RePosition() {
  const platform::Pixel_Area pixels = screen_.Work_Area();
  if (pixels == followed_area_) return;
  followed_area_.reset();
  const Desktop_Rect area = In_Twips(pixels, screen_);
  const auto follow = [this](std::int32_t now, std::int32_t& saved) {
    if (now == saved) return false;
    Position_In_Force();
    saved = Allowed(now);
    return true;
  };
  const bool changed = follow(area.Height, saved_work_area_.Height) || follow(area.Width, saved_work_area_.Width) ||
                       follow(area.Top, saved_work_area_.Top) || follow(area.Left, saved_work_area_.Left);
  if (!changed) followed_area_ = pixels;
}

std::int32_t Placement::Allowed(std::int32_t twips) const {
  if (!stored_.Desktop.Modern() && !std::in_range<std::int16_t>(twips)) throw platform::Work_Area_Too_Large();
  return twips;
}

bool Placement::Dragging_Allowed() const {
  return stored_.Values.Alignment == manual_position || stored_.Values.Allow_Dragging != 0;
}

void Placement::Start_Drag(double x, double y) {
  if (!Dragging_Allowed()) return;
  toolkit::Form& form = main_frm_.Window;
  form.MousePointer = toolkit::Pointer::Four_Arrows;
  const auto whole = [this](double twips) { return Allowed(Round_To_Even(twips)); };
  drag_start_ = {whole(x), whole(y), whole(form.Left), whole(form.Top)};
}

void Placement::Drag(double x, double y) {
  if (!Dragging_Allowed()) return;
  toolkit::Form& form = main_frm_.Window;
  form.Move(form.Left - (drag_start_.X - x), form.Top - (drag_start_.Y - y));
}

void Placement::End_Drag() {
  if (!Dragging_Allowed()) return;
  main_frm_.Window.MousePointer = toolkit::Pointer::Default;
  Keep_Place();
  if (Place_Would_Be_Lost()) Ask_For_Manual_Position();
}

void Placement::Keep_Place() {
  // Both are checked before either is stored: a place beyond 16 bits leaves the settings as they were.
  const std::int32_t left = Allowed(Round_To_Even(main_frm_.Window.Left));
  const std::int32_t top = Allowed(Round_To_Even(main_frm_.Window.Top));
  stored_.Keep_Manual_Edge(Desktop_Mode::left_edge, left);
  stored_.Keep_Manual_Edge(Desktop_Mode::top_edge, top);
}

/// A drag that changed only one coordinate doesn't count.
bool Placement::Place_Would_Be_Lost() const {
  const bool moved = main_frm_.Window.Left() != drag_start_.Left && main_frm_.Window.Top() != drag_start_.Top;
  return moved && (stored_.Values.Alignment != manual_position || stored_.Values.Use_Theme_Pos == 1);
}

void Placement::Ask_For_Manual_Position() {
  const auto answer =
      message_box_.Show("Meridex", manual_question, platform::Box_Icon::Question, platform::Box_Buttons::Yes_No);
  if (answer != platform::Box_Answer::Yes) return;
  stored_.Set(&Settings::Alignment, manual_position);
  stored_.Set(&Settings::Use_Theme_Pos, 0);
}

}  // namespace presentation
