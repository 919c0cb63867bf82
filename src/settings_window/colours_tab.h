// The tab "Colours": the user picks one of the seven colours of the calendar, looks for it on a palette and clicks. A
// miniature of the calendar shows the result; the settings change by Save_Colours alone.
#pragma once

#include <array>
#include <vector>

#include "calendar/desk.h"
#include "platform/event_loop.h"
#include "settings/stored_settings.h"
#include "settings_window/palette.h"
#include "toolkit/command_button.h"
#include "toolkit/control_array.h"
#include "toolkit/frame.h"
#include "toolkit/option_button.h"
#include "toolkit/text_box.h"

namespace settings_window {

class Colours_Tab {
 public:
  Colours_Tab(toolkit::Frame& page, calendar::Desk& desk, settings::Stored_Settings& stored,
              const state::Calendar_State& calendar, platform::Pictures& pictures, platform::Event_Loop& loop);

  toolkit::Frame Frame8;
  toolkit::Picture_Box Col_Today_Pic, Col_Normal_Pic, Col_Num_Pic, Col_Text_Pic;
  toolkit::Label Col_Today_Lbl, Col_Normal_Lbl, Col_Num_Lbl, Col_Text_Lbl;

  toolkit::Frame Frame7;
  toolkit::Label Preview_Prev_Lbl, Preview_Month_Lbl;
  toolkit::Label Preview_Style0_Lbl, Preview_Caption0_Lbl;
  toolkit::Label Preview_Style1_Lbl, Preview_Caption1_Lbl;
  toolkit::Label Preview_Today_Lbl, Preview_Caption_Today_Lbl;

  toolkit::Frame Frame9;
  toolkit::Option_Button Col_Sys_Opt, Col_Other_Opt;
  toolkit::Picture_Box Col_Back_Pic, Col_Fore_Pic, Col_Inactive_Pic;
  toolkit::Label Col_Back_Lbl, Col_Fore_Lbl, Col_Inactive_Lbl;

  toolkit::Frame Frame3;
  toolkit::Picture_Box Pal;
  toolkit::Picture_Box lbColor;                     ///< the strip below the palette; its scale is its own pixels
  toolkit::Control_Array<toolkit::Text_Box> txCol;  ///< one, hidden: the colour under the pointer as a decimal number

  toolkit::Command_Button Default_Cols_Btn;

  /// The colour that a click on the palette sets, by its place in the order of the samples.
  basic::Int16 Colour_Slot = 0;

  /// Samples, miniature and the source of the title row from the settings. The day numbers of the miniature stay.
  void Load_Settings();

  /// Carries each colour that has changed, and the source of the title row, into the settings and onto the calendar.
  void Save_Colours();

 private:
  /// One of the seven colours: its label, its sample, its setting, and the labels of the miniature that have it as back
  /// colour or as fore colour.
  struct Slot {
    toolkit::Label& Label;
    toolkit::Picture_Box& Sample;
    std::int32_t settings::Settings::*Setting;
    std::vector<toolkit::Label*> Backs, Fores;
  };

  void Make_Samples();
  void Make_Title_Row_Frame();
  void Make_Palette_Frame();
  void Make_Miniature();
  void Tie_Events();

  void ShowColors(toolkit::Colour colour);
  void ShowGradient(toolkit::Colour from, toolkit::Colour to);
  void Reset_Labels();

  void Pal_MouseMove(const toolkit::Mouse_Event& event);
  void Pick_Slot(int number);
  void Pal_Click();
  void Col_Sys_Opt_Click();
  void Col_Other_Opt_Click();
  void Default_Cols_Btn_Click();

  [[nodiscard]] const Slot& At(int number) const { return slots_.at(static_cast<std::size_t>(number)); }
  static void Set_Colour(const Slot& slot, toolkit::Colour colour);
  void Copy_Title_Row_Unless_System();
  void Show_System_Title_Row();
  void Show_Other_Title_Row();
  void Colour_Title_Row(toolkit::Colour back, toolkit::Colour fore);
  void Enable_Title_Row_Samples(bool enabled);
  void Save_Source();

  calendar::Desk& desk_;
  settings::Stored_Settings& stored_;
  const state::Calendar_State& calendar_;
  platform::Event_Loop& loop_;
  const std::array<Slot, 7> slots_{
      {{Col_Today_Lbl, Col_Today_Pic, &settings::Settings::Today, {&Preview_Today_Lbl}, {}},
       {Col_Normal_Lbl, Col_Normal_Pic, &settings::Settings::Normal, {&Preview_Style1_Lbl, &Preview_Style0_Lbl}, {}},
       {Col_Num_Lbl,
        Col_Num_Pic,
        &settings::Settings::Num,
        {},
        {&Preview_Style1_Lbl, &Preview_Style0_Lbl, &Preview_Today_Lbl}},
       {Col_Text_Lbl,
        Col_Text_Pic,
        &settings::Settings::Text,
        {},
        {&Preview_Caption1_Lbl, &Preview_Caption0_Lbl, &Preview_Caption_Today_Lbl}},
       {Col_Back_Lbl, Col_Back_Pic, &settings::Settings::Back, {}, {}},
       {Col_Fore_Lbl, Col_Fore_Pic, &settings::Settings::Fore, {}, {}},
       {Col_Inactive_Lbl, Col_Inactive_Pic, &settings::Settings::Inactive, {}, {}}}};
};

}  // namespace settings_window
