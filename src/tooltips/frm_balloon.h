// The balloon: a small window with rounded corners that shows a title, an icon and a text beside a day box, and closes
// as soon as the user turns to anything else.
#pragma once

#include <functional>

#include "platform/screen.h"
#include "presentation/main_frm.h"
#include "state/calendar_state.h"
#include "toolkit/timer.h"

namespace tooltips {

/// What a balloon calls in the calendar.
struct Balloon_Calls {
  std::function<void()> Rebuild_Month;  ///< on each opening: boxes, events and colours of the month on view
  std::function<void()> Idle_Restart;   ///< on each closing
};

class Frm_Balloon {
 public:
  /// The balloon stays in front of `owner`; nullptr means the calendar's window.
  Frm_Balloon(toolkit::Backend& backend, platform::Screen& screen, presentation::Main_Frm& main_frm,
              state::Calendar_State& calendar, const Balloon_Calls& calls, toolkit::Form* owner = nullptr);
  Frm_Balloon(const Frm_Balloon&) = delete;
  Frm_Balloon& operator=(const Frm_Balloon&) = delete;
  ~Frm_Balloon() = default;

  toolkit::Form Window;
  toolkit::Label lblTitle;
  toolkit::Image imgDisplayIcon;
  toolkit::Control_Array<toolkit::Image> imgIconXP;  ///< the stock of icons, hidden
  toolkit::Label lblText;

  /// Loads, fills, sizes and places the balloon; the caller shows it. `left` and `top` are twips on the screen; a 0 is
  /// replaced by the place beside box Tip_Box. The icon "i", in either letter case, is the information icon; any other
  /// text means none. The font name "Tahoma, if exists" means Tahoma, or "MS Sans Serif" if the system has no Tahoma.
  /// `font_size` is in points.
  void SetBalloon(const std::string& title, const std::string& text, std::int32_t left, std::int32_t top,
                  const std::string& icon_type, const std::string& font_name, double font_size);

  /// Shows the balloon and makes it active. From then on it closes as soon as it isn't the active window.
  void Show();

  /// Unloads the window.
  void HideBalloon() { Window.Unload(); }

 private:
  void Make_Controls();
  void Tie_Events();
  void Load();
  void Unload();
  void Resize();
  void Shape();
  void Show_Icon(const std::string& icon_type);
  void Set_Font(const std::string& font_name, double font_size);

  /// Below the box if there is room, else above; to its right if there is room, else to its left. Twips on the screen.
  [[nodiscard]] int Place_Down() const;
  [[nodiscard]] int Place_Across() const;

  toolkit::Backend& backend_;
  platform::Screen& screen_;
  presentation::Main_Frm& main_frm_;
  state::Calendar_State& calendar_;
  const Balloon_Calls& calls_;
  toolkit::Timer close_timer_;
};

/// Returns true if the system has the font "Tahoma": for a missing font it names the one that it uses instead.
bool Tahoma_Exists(toolkit::Backend& backend);

}  // namespace tooltips
