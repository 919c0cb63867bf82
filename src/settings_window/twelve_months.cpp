#include "settings_window/twelve_months.h"

#include "basic/convert.h"

namespace settings_window {

namespace {

constexpr float seconds_of_a_month = 3;

/// The settings that the preview borrows.
struct Borrowed {
  explicit Borrowed(const settings::Settings& from)
      : Use_Themes(from.Use_Themes), Style(from.Style), Alignment(from.Alignment),
        Use_Theme_Style(from.Use_Theme_Style), Use_Theme_Pos(from.Use_Theme_Pos),
        Other_Display_Mode(from.Other_Display_Mode), Use_Other_Display_Mode(from.Use_Other_Display_Mode) {}

  void Put_Back(settings::Settings& to) const {
    to.Use_Themes = Use_Themes;
    to.Style = Style;
    to.Alignment = Alignment;
    to.Use_Theme_Style = Use_Theme_Style;
    to.Use_Theme_Pos = Use_Theme_Pos;
    to.Use_Other_Display_Mode = Use_Other_Display_Mode;
    to.Other_Display_Mode = Other_Display_Mode;
  }

  basic::Int16 Use_Themes, Style, Alignment, Use_Theme_Style, Use_Theme_Pos, Other_Display_Mode;
  bool Use_Other_Display_Mode;
};

}  // namespace

Twelve_Months::Twelve_Months(Wallpaper_Tab& tab, calendar::Desk& desk, calendar::Date_Watch& date_watch,
                             presentation::Main_Frm& main_frm, platform::Waits& waits, settings::Settings& settings)
    : tab_(tab), desk_(desk), date_watch_(date_watch), main_frm_(main_frm), waits_(waits), settings_(settings) {}

void Twelve_Months::Play() {
  playing_ = true;
  Set_Aside();
  const Borrowed kept(settings_);
  const basic::Int16 mode = basic::To_Int16(tab_.Browser.Desktop_Value("WallpaperStyle", "UNKNOWN"));
  picture_before_ = {tab_.Browser.Desktop_Value("Wallpaper", "UNKNOWN"), mode};
  Take_From_Tabs();
  Show_Months();
  kept.Put_Back(settings_);
  Put_Picture_Back();
  if (Windows_Are_There()) {
    Put_Calendar_Back();
    Take_Up_Again();
  }
  playing_ = false;
}

void Twelve_Months::Put_Picture_Back() {
  if (picture_before_) desk_.Set_Wallpaper(picture_before_->Path, picture_before_->Display_Mode);
  picture_before_.reset();
}

/// Nothing but the preview itself may work on the calendar meanwhile.
void Twelve_Months::Set_Aside() {
  toolkit::Form& window = tab_.Page.Preview_Btn.Window;
  date_watch_.Dectect_Date_Timer.Disable();
  main_frm_.Window.Enabled = false;
  tab_.Page.Packs_Cbo.Enabled = false;
  tab_.Page.Preview_Sli.Enabled = false;
  tab_.Page.Preview_Btn.Enabled = false;
  window.Set_Minimised(true);
  window.Enabled = false;
}

void Twelve_Months::Take_From_Tabs() {
  settings_.Use_Themes = tab_.Page.Theme_Use_Chk.Value();
  settings_.Use_Theme_Style = tab_.Style.Theme_Style_Chk.Value();
  settings_.Use_Theme_Pos = tab_.Style.Theme_Pos_Chk.Value();
  // The small box has no part in this: with it the style stays.
  if (!tab_.Style.Style3_Opt.Value) settings_.Style = tab_.Style.Chosen_Style(settings_.Style);
  settings_.Alignment = tab_.Style.Chosen_Position();
  settings_.Use_Other_Display_Mode = tab_.Page.Other_Display_Chk.Value != 0;
  settings_.Other_Display_Mode = tab_.Page.Display_Cbo.ListIndex();
}

void Twelve_Months::Show_Months() {
  for (int month = 1; month <= 12 && Windows_Are_There(); ++month) Show_Month(month);
}

void Twelve_Months::Show_Month(int month) {
  main_frm_.Which_Month_Lbl.Caption = "Preview Mode - " + desk_.Month_Name(month);
  desk_.Preview_Pack(tab_.Page.Packs_Cbo.Text(), month);
  desk_.Lay_Out(desk_.Style_In_Force());
  desk_.Position_Form(desk_.Position_In_Force());
  waits_.TimeOut(seconds_of_a_month);
}

void Twelve_Months::Put_Calendar_Back() {
  if (settings_.Use_Themes == 1) desk_.Preview_Pack(settings_.Pack_Name, desk_.Present_Month());
  // Another test than that of the months: the pack's own number has to be the square box.
  const bool square_pack = settings_.Use_Themes == 1 && desk_.Pack_Box_Style() == presentation::square_box;
  desk_.Lay_Out(square_pack ? desk_.Pack_Box_Style() : settings_.Style);
  desk_.Position_Form(desk_.Position_In_Force());
}

void Twelve_Months::Take_Up_Again() {
  toolkit::Form& window = tab_.Page.Preview_Btn.Window;
  main_frm_.Window.Enabled = true;
  tab_.Page.Packs_Cbo.Enabled = true;
  tab_.Page.Preview_Sli.Enabled = true;
  tab_.Refresh();
  tab_.Page.Preview_Btn.Enabled = true;
  date_watch_.Dectect_Date_Timer.Enable();
  window.Enabled = true;
  window.Set_Minimised(false);
}

/// The program may be told to exit while a month is shown.
bool Twelve_Months::Windows_Are_There() const {
  return main_frm_.Window.Loaded() && tab_.Page.Preview_Btn.Window.Loaded();
}

}  // namespace settings_window
