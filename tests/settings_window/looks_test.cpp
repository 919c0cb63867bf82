// How every control of the settings window and of the editor looks when its window opens: place, text, font, colours.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/calendar/program_world.h"
#include "toolkit/command_button.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"
#include "toolkit/label.h"

namespace {

using toolkit::Control;

constexpr int key_f8 = 119;

/// What differs from a plain control, in words.
class Look {
 public:
  explicit Look(const Control& control) {
    if (!control.Visible) Add("hidden");
    if (!control.Enabled) Add("disabled");
    if (control.MousePointer() != toolkit::Pointer::Default) Add("pointer", static_cast<int>(control.MousePointer()));
    if (control.Heard_With != nullptr) words_ << " with " << control.Heard_With->Name;
    if (control.Accessible_Name) words_ << " called \"" << control.Accessible_Name() << '"';
    if (const auto* const font = dynamic_cast<const toolkit::Font_Properties*>(&control)) Add_Font(*font);
    if (const auto* const label = dynamic_cast<const toolkit::Label*>(&control)) Add_Label(*label);
    if (const auto* const image = dynamic_cast<const toolkit::Image*>(&control)) Add_Image(*image);
    if (const auto* const button = dynamic_cast<const toolkit::Command_Button*>(&control)) Add_Button(*button);
    const auto* const frame = dynamic_cast<const toolkit::Frame*>(&control);
    if (frame != nullptr && !frame->Bordered) Add("bare");
    if (control.Marks().Checked) Add("on");
  }

  [[nodiscard]] std::string Text() const { return words_.str(); }

 private:
  void Add(const char* word) { words_ << ' ' << word; }
  void Add(const char* word, double number) { words_ << ' ' << word << ' ' << number; }

  void Add_Font(const toolkit::Font_Properties& font) {
    if (font.FontName() != "MS Sans Serif") Add(font.FontName().c_str());
    if (font.FontSize() != 8.25) words_ << ' ' << font.FontSize();
    if (font.FontBold) Add("bold");
    if (font.FontItalic) Add("italic");
    if (font.FontUnderline) Add("under");
  }

  void Add_Label(const toolkit::Label& label) {
    if (label.Alignment() == toolkit::Alignment::Centre) Add("centred");
    if (label.Alignment() == toolkit::Alignment::Right) Add("right");
    if (label.Transparent) Add("transparent");
    if (label.Fixed_Border) Add("edged");
    if (!label.Mnemonics) Add("literal");
    if (!label.Word_Wrap) Add("line");
    if (label.AutoSize) Add("sized");
    if (label.BackColor() != toolkit::System_Colour(15)) words_ << " on " << label.BackColor();
    if (label.ForeColor() != toolkit::System_Colour(18)) words_ << " in " << label.ForeColor();
  }

  void Add_Image(const toolkit::Image& image) {
    if (image.Picture() != platform::Stock_Picture::None) Add("picture", static_cast<int>(image.Picture()));
    if (image.Loaded() != nullptr) Add("loaded");
    if (image.Fixed_Border) Add("edged");
    const auto* const box = dynamic_cast<const toolkit::Picture_Box*>(&image);
    if (box != nullptr && box->Opaque) words_ << " on " << box->BackColor();
  }

  void Add_Button(const toolkit::Command_Button& button) {
    if (button.Picture() != platform::Stock_Picture::None) Add("picture", static_cast<int>(button.Picture()));
    if (button.Default) Add("default");
    if (button.Cancel) Add("cancel");
  }

  std::ostringstream words_;
};

std::string Name_Of(const Control& control) {
  return control.Name + (control.Index >= 0 ? '(' + std::to_string(control.Index) + ')' : "");
}

/// A line for each control: its frame and name, place and size, text and what it has chosen, look.
std::string Looks_Of(const toolkit::Form& form) {
  std::ostringstream lines;
  for (const Control* const control : form.Controls()) {
    const toolkit::Bounds& place = control->In_Twips();
    lines << (control->In != nullptr ? Name_Of(*control->In) + '.' : "") << Name_Of(*control);
    lines << ": " << place.Left << ' ' << place.Top << ' ' << place.Width << ' ' << place.Height;
    if (!control->Shown_Text().empty()) lines << " \"" << control->Shown_Text() << '"';
    if (const auto value = control->Shown_Value()) lines << " = \"" << *value << '"';
    lines << Look(*control).Text() << '\n';
  }
  return lines.str();
}

// Places in twips within the frame, then the text and what is chosen, and last what isn't as in every control.
constexpr const char* settings_controls =
    R"table(TabStrip1: 45 45 5505 5100
Settings_Fra(0): 225 765 5145 3840 hidden bare
Settings_Fra(1): 225 765 5145 3840 hidden bare
Settings_Fra(2): 225 765 5145 3840 hidden bare
Settings_Fra(3): 225 765 5145 3840 bare
Settings_Fra(4): 225 765 5145 3840 hidden bare
Settings_Fra(5): 225 765 5145 3840 hidden bare
Settings_Fra(6): 225 765 5145 3840 hidden bare
Settings_Fra(7): 225 765 5145 3840 hidden bare
Settings_Fra(0).Frame13: 0 0 5145 615 "View"
Frame13.Overview_Opt: 225 270 2040 240 "Events Overview"
Frame13.Stats_Opt: 2655 270 2040 240 "General Statistics" on
Settings_Fra(0).Overview_Fra: 0 705 5145 3135 hidden
Overview_Fra.Sort_Lbl: 135 300 660 195 "Sort by:"
Overview_Fra.Sort_Cbo: 840 240 1950 315 = "Ascending Date"
Overview_Fra.Dates_Lst: 135 645 1215 2400 hidden
Overview_Fra.Events_Lst: 135 645 4875 2400 called "Events"
Overview_Fra.Countdown_Lbl: 2880 300 2130 195 right
Settings_Fra(0).Events_Fra: 0 705 5145 1215
Events_Fra.Total_All_Lbl: 225 360 2295 195 "Total Events: 0"
Events_Fra.Total_Year_Lbl: 225 780 2295 195 "Events This Year: 0"
Events_Fra.Before_Lbl: 2655 360 2295 195 "No. Before Today: 0"
Events_Fra.After_Lbl: 2655 780 2295 195 "No. After Today: 0"
Settings_Fra(0).Yearview_Fra: 0 2010 5145 1830 "Events this Year"
Yearview_Fra.Month_Count_Lbl(0): 225 360 1485 195 "Jan: 0"
Yearview_Fra.Month_Count_Lbl(1): 225 720 1485 195 "Feb: 0"
Yearview_Fra.Month_Count_Lbl(2): 225 1080 1485 195 "Mar: 0"
Yearview_Fra.Month_Count_Lbl(3): 225 1440 1485 195 "Apr: 0"
Yearview_Fra.Month_Count_Lbl(4): 1845 360 1485 195 "May: 0"
Yearview_Fra.Month_Count_Lbl(5): 1845 720 1485 195 "Jun: 0"
Yearview_Fra.Month_Count_Lbl(6): 1845 1080 1485 195 "July: 0"
Yearview_Fra.Month_Count_Lbl(7): 1845 1440 1485 195 "Aug: 0"
Yearview_Fra.Month_Count_Lbl(8): 3465 360 1485 195 "Sep: 0"
Yearview_Fra.Month_Count_Lbl(9): 3465 720 1485 195 "Oct: 0"
Yearview_Fra.Month_Count_Lbl(10): 3465 1080 1485 195 "Nov: 0"
Yearview_Fra.Month_Count_Lbl(11): 3465 1440 1485 195 "Dec: 0"
Settings_Fra(1).Frame8: 0 0 2400 2175 "Calendar Boxes"
Frame8.Col_Today_Pic: 180 405 240 240 pointer 99 with Col_Today_Lbl edged on 16761024
Frame8.Col_Normal_Pic: 180 855 240 240 pointer 99 with Col_Normal_Lbl edged on 16777215
Frame8.Col_Num_Pic: 180 1305 240 240 pointer 99 with Col_Num_Lbl edged on -2147483630
Frame8.Col_Text_Pic: 180 1755 240 240 pointer 99 with Col_Text_Lbl edged on -2147483630
Frame8.Col_Today_Lbl: 540 405 1770 240 "Today Colour" bold literal
Frame8.Col_Normal_Lbl: 540 855 1770 240 "Nomal Day Colour" literal
Frame8.Col_Num_Lbl: 540 1305 1770 240 "Numbering Colour" literal
Frame8.Col_Text_Lbl: 540 1755 1770 240 "Text Colour" literal
Settings_Fra(1).Frame7: 2475 0 2670 2175 "Preview"
Frame7.Preview_Prev_Lbl: 180 450 285 285 "<" Arial 9.75 bold italic centred edged literal on 8390687 in 16777215
Frame7.Preview_Month_Lbl: 585 450 1905 285 "April" Arial 9.75 bold italic centred edged literal on 8390687 in 16777215
Frame7.Preview_Style0_Lbl: 180 1080 1275 330 " 1)" Arial 9 bold edged literal on 16777215
Frame7.Preview_Caption0_Lbl: 540 1125 870 285 "This is an..." transparent literal
Frame7.Preview_Style1_Lbl: 1665 1080 825 915 " 1" Arial 9 bold edged literal on 16777215
Frame7.Preview_Caption1_Lbl: 1710 1350 735 600 "This is an example." centred transparent literal
Frame7.Preview_Today_Lbl: 180 1620 1275 330 " ?)" Arial 9 bold edged literal on 16761024
Frame7.Preview_Caption_Today_Lbl: 540 1665 870 285 "This is an..." transparent literal
Settings_Fra(1).Frame9: 0 2250 3300 1590 "Top Menu"
Frame9.Col_Sys_Opt: 90 405 1770 195 "Use System Colours"
Frame9.Col_Other_Opt: 1935 405 1230 195 "Use Others..." on
Frame9.Col_Back_Pic: 135 810 240 240 pointer 99 with Col_Back_Lbl edged on 8390687
Frame9.Col_Fore_Pic: 1800 810 240 240 pointer 99 with Col_Fore_Lbl edged on 16777215
Frame9.Col_Inactive_Pic: 135 1215 240 240 pointer 99 with Col_Inactive_Lbl edged on -2147483645
Frame9.Col_Back_Lbl: 495 810 1215 240 "Background" literal
Frame9.Col_Fore_Lbl: 2160 810 1080 240 "Foreground" literal
Frame9.Col_Inactive_Lbl: 495 1215 1125 240 "Inactive Text" literal
Settings_Fra(1).Frame3: 3375 2250 1770 1590 "Select Colour"
Frame3.Pal: 135 315 1545 810 pointer 99 called "Palette" loaded
Frame3.lbColor: 135 1170 1500 285 pointer 99 called "Colour under the pointer" edged on -2147483633
Frame3.txCol(0): 180 315 1500 285 = "0" hidden
Settings_Fra(1).Default_Cols_Btn: 1665 3420 1560 345 "Restore Defaults"
Settings_Fra(5).Frame12: 0 0 5145 1140
Frame12.Theme_Use_Chk: 180 225 4830 285 "Use Meridex Wallpaper Packs...."
Frame12.Packs_Cbo: 135 585 4020 390 = "" disabled called "Wallpaper pack"
Frame12.Preview_Btn: 4230 585 780 375 "Preview" disabled
Settings_Fra(5).Frame10: 0 1170 5145 2670
Frame10.Theme_Preview_Img: 135 225 2355 1635 edged
Frame10.Loading_Lbl: 180 855 2265 420 "Loading..." hidden centred
Frame10.Preview_Sli: 135 1980 2355 555 = "1" called "Month of the preview"
Frame10.Theme_Style_Lbl: 2655 270 2310 330 "Box Style:"
Frame10.Theme_Pos_Lbl: 2655 675 2310 330 "Position:"
Frame10.Theme_Display_Lbl: 2655 1125 2310 330 "Display:"
Frame10.Other_Display_Chk: 2700 1710 2265 285 "Use Other Display Mode...."
Frame10.Display_Cbo: 3105 2115 1770 360 = "Center" disabled called "Display mode"
Frame10.Packs_Dir: 225 1485 1095 315 hidden
Frame10.Packs_Lst: 225 1215 1410 255 hidden
Settings_Fra(2).Frame11: 0 0 5145 1230 "Title Bar"
Frame11.Bar_Preview_Lbl: 90 315 4965 285 "5th March - 2004" bold centred literal on 8388608 in 16777215
Frame11.Bar_Time_Chk: 90 830 690 210 "Time:"
Frame11.Bar_Time_Cbo: 765 765 1320 330 = "H:mm" called "Time format"
Frame11.Label2: 2250 825 420 195 "Date:"
Frame11.Bar_Date_Cbo: 2655 765 2400 330 = "d Month - yyyy"
Settings_Fra(2).Frame5: 0 1305 5145 2535 "General Settings"
Frame5.Startup_Chk: 135 360 1680 195 "Run at Startup"
Frame5.Splash_Chk: 1890 360 1635 240 "Splash Screen" on
Frame5.Alert_Chk: 135 720 3165 240 "Alert me when a date Comes up" on
Frame5.Trans_Icons_Chk: 135 1080 2940 240 "Make Icon Backs Transparent"
Frame5.Carriage_Return_Chk: 135 1440 4875 240 "Don't close the event window with a Carriage Return."
Frame5.Allow_Dragging_Chk: 135 1800 4875 240 "Allow dragging when Manual Position is not selected" on
Frame5.Auto_Compact_Chk: 135 2160 3345 240 "Switch into Compact Mode after"
Frame5.Timeout_Value_Cbo: 3330 2115 645 330 = "45" disabled called "Compact Mode after"
Frame5.Timeout_Format_Cbo: 4005 2115 1050 330 = "Seconds" disabled called "Unit of time"
Settings_Fra(3).Frame4: 0 0 3255 3795 "Position"
Frame4.Theme_Pos_Chk: 225 405 2850 210 "Use Pack Postion when available" on
Frame4.Vertical_Sli: 270 720 435 1680 = "2" hidden called "Place from top to bottom"
Frame4.Horizontal_Sli: 720 2655 2265 480 = "2" hidden called "Place from left to right"
Frame4.Pos_Manual_Opt: 225 3285 1455 240 "Manual Position" disabled
Frame4.Pos_Set_Opt: 1800 3285 1275 240 "Set Position" disabled on
Frame4.Preview_Screen_Img: 450 900 2415 2100 picture 7
Frame4.Pos_Preview_Img: 650 1100 2010 1405
Frame4.Box_Preview_Img: 2075 1965 585 540 picture 8
Settings_Fra(3).Frame6: 3330 0 1815 3795 "Box Style"
Frame6.Theme_Style_Chk: 180 405 1545 285 "Use Pack Style" on
Frame6.Style3_Opt: 90 1080 285 285 disabled called "Small boxes"
Frame6.Style1_Opt: 90 2160 285 285 disabled called "Square boxes" on
Frame6.Style2_Opt: 90 3195 240 240 disabled called "Thin boxes"
Frame6.Example5_Lbl: 855 1035 330 330 " 1 " disabled Arial 9 bold centred edged on 16777215 in 0
Frame6.Example1_Lbl: 630 1800 825 915 " 1" disabled Arial 9 bold edged on 16777215 in 0
Frame6.Example2_Lbl: 675 2070 735 600 "This is an example." disabled centred transparent in 0
Frame6.Example4_Lbl: 405 3150 1275 330 " 1" disabled Arial 9 bold edged on 16777215 in 0
Frame6.Example3_Lbl: 720 3195 870 285 "This is an..." disabled transparent in 0
Settings_Fra(4).Frame1: 0 0 2985 1950 "Options"
Frame1.Tips_Opt(0): 315 450 2040 240 "Don't use Tooltips"
Frame1.Tips_Opt(1): 315 945 2400 240 "Use 'Standard' Tooltips" on
Frame1.Tips_Opt(2): 315 1440 2400 240 "Use 'Balloon' Tooltips"
Settings_Fra(4).Preview_Fra: 3105 0 1995 1950 "Preview"
Preview_Fra.TipsTrigger_Lbl: 90 405 1815 240 "Hover Over..." centred
Preview_Fra.TipBoxExample_Lbl: 540 810 825 915 " 1" Arial 9 bold edged on 16777215 in 0
Preview_Fra.TipExample_Lbl: 585 1080 735 600 "This is an example." centred transparent in 0
Settings_Fra(4).Frame14: 0 1980 5100 1860 "Notes"
Frame14.TipsNotes_Lbl: 225 405 4695 1230 "The standard Tooltips appear when you hover your mouse over )table"
    "it for a short length of time. The problem with the standard Tooltips is that they are only one line high. This "
    R"table(means if the event is too long then it may get cut off."
Dialog1: 0 0 390 390 hidden
Settings_Fra(6).Frame15: 0 0 5145 1875 "Import"
Frame15.Import_Btn(0): 495 450 1140 1140 "Data File" picture 9
Frame15.Import_Btn(1): 2025 450 1140 1140 "Configuration" picture 10
Frame15.Import_Btn(2): 3555 450 1140 1140 "from CSV File" picture 11
Settings_Fra(6).Frame2: 0 1965 5145 1875 "Export"
Frame2.Export_Btn(0): 180 450 1140 1140 "Data File" picture 12
Frame2.Export_Btn(1): 1395 450 1140 1140 "Configuration" picture 13
Frame2.Export_Btn(2): 2610 450 1140 1140 "to Text File" picture 14
Frame2.Export_Btn(3): 3825 450 1140 1140 "to CSV File" picture 15
Settings_Fra(7).Image1: 225 1125 1455 1410 picture 1
Settings_Fra(7).Label9: 540 225 3840 510 "Meridex" Arial 20.25 bold italic under centred line
Settings_Fra(7).Label10: 4275 585 645 285 "v0.42b" Arial 9.75 bold right line
Settings_Fra(7).Label1: 1755 1125 3255 285 "Windows 98,ME,XP,NT,2000" Arial 11.25 bold centred line
Settings_Fra(7).Label5: 2115 1665 2715 285 "Made with patience" Arial 11.25 bold line
Settings_Fra(7).Label7: 2070 2205 2805 285 "by the Meridex makers" Arial 11.25 bold line
Settings_Fra(7).Label8: 180 2745 1725 285 "Please visit the" Arial 11.25 bold line
Settings_Fra(7).Link_Lbl: 1890 2745 1185 285 "homepage" pointer 100 Arial 11.25 bold under centred line in 16711680
Settings_Fra(7).Label11: 3150 2745 1860 285 "for help, updates," Arial 11.25 bold line
Settings_Fra(7).Label12: 90 3285 4965 285 "wallpaper packs, suggestions or questions." Arial 11.25 bold centred line
Ok_Btn: 1755 4680 1140 330 "OK" default
Cancel_Btn: 2970 4680 1140 330 "Cancel" cancel
Apply_Btn: 4185 4680 1140 330 "Apply"
)table";

constexpr const char* editor_controls =
    R"table(Date_Lbl: 45 90 4830 285 "Monday 8th March 2004"
Message_Txt: 45 450 4830 2040 = ""
Every_Year_Chk: 90 2680 1140 210 "Every year"
Ok_Btn: 1305 2610 1140 330 "OK" default
Cancel_Btn: 2520 2610 1140 330 "Cancel" cancel
Apply_Btn: 3735 2610 1140 330 "Apply" disabled
)table";

class Looks : public ::testing::Test, public Program_World {
 protected:
  Looks() { Start(); }

  void Do(const std::function<void()>& action) { Platform.Loop.Dispatch(action); }
};

}  // namespace

TEST_F(Looks, Every_control_of_the_settings_window_stands_in_its_place_with_its_look) {
  toolkit::Form& calendar = *Window("Main_Frm");
  Do([&] {
    calendar.Activate();
    Platform.User.Press_Key(calendar, {{key_f8}, ""});
  });
  EXPECT_EQ(Looks_Of(*Window("Settings_Frm")), settings_controls);
}

TEST_F(Looks, Every_control_of_the_editor_stands_in_its_place_with_its_look) {
  toolkit::Form& calendar = *Window("Main_Frm");
  Do([&] {
    calendar.Activate();
    for (Control* const control : calendar.Controls())
      if (control->Name == "Box_Lbl" && control->Index == 7) return control->On_Double_Click();
  });
  EXPECT_EQ(Looks_Of(*Window("Edit_Frm")), editor_controls);
}
