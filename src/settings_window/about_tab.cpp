#include "settings_window/about_tab.h"

#include <array>

#include "settings_window/homepage.h"

namespace settings_window {

namespace {

using toolkit::Alignment;

constexpr double name_size = 20.25, version_size = 9.75, text_size = 11.25;  // points
constexpr toolkit::Colour blue = 0xFF0000;

struct Label_Row {
  toolkit::Label About_Tab::*Label = nullptr;
  const char* Caption = "";
  toolkit::Bounds Place;
  double Size = text_size;
  toolkit::Alignment Alignment = toolkit::Alignment::Left;
};

constexpr std::array<Label_Row, 9> rows{{
    {&About_Tab::Label9, "Meridex", {540, 225, 3840, 510}, name_size, Alignment::Centre},
    {&About_Tab::Label10, "v0.42b", {4275, 585, 645, 285}, version_size, Alignment::Right},
    {&About_Tab::Label1, "Windows 98,ME,XP,NT,2000", {1755, 1125, 3255, 285}, text_size, Alignment::Centre},
    {&About_Tab::Label5, "Made with patience", {2115, 1665, 2715, 285}, text_size, Alignment::Left},
    {&About_Tab::Label7, "by the Meridex makers", {2070, 2205, 2805, 285}, text_size, Alignment::Left},
    {&About_Tab::Label8, "Please visit the", {180, 2745, 1725, 285}, text_size, Alignment::Left},
    {&About_Tab::Link_Lbl, "homepage", {1890, 2745, 1185, 285}, text_size, Alignment::Centre},
    {&About_Tab::Label11, "for help, updates,", {3150, 2745, 1860, 285}, text_size, Alignment::Left},
    {&About_Tab::Label12,
     "wallpaper packs, suggestions or questions.",
     {90, 3285, 4965, 285},
     text_size,
     Alignment::Centre},
}};

}  // namespace

std::string Homepage_Target(const std::string& homepage, const std::string& program_folder) {
  return homepage.find("://") != std::string::npos ? homepage : program_folder + "\\" + homepage;
}

About_Tab::About_Tab(toolkit::Frame& page, platform::Shell_Open& shell, platform::Files& files)
    : Image1(page, "Image1"), Label9(page, "Label9"), Label10(page, "Label10"), Label1(page, "Label1"),
      Label5(page, "Label5"), Label7(page, "Label7"), Label8(page, "Label8"), Link_Lbl(page, "Link_Lbl"),
      Label11(page, "Label11"), Label12(page, "Label12"), shell_(shell), files_(files) {
  for (const Label_Row& row : rows) {
    toolkit::Label& label = this->*row.Label;
    label.Caption = row.Caption;
    label.Place(row.Place);
    label.FontName = "Arial";
    label.FontSize = row.Size;
    label.FontBold = true;
    label.Alignment = row.Alignment;
    label.Word_Wrap = false;
  }
  Label9.FontItalic = true;
  Label9.FontUnderline = true;
  Make_Link();
  Image1.Place({225, 1125, 1455, 1410});
  Image1.Picture = platform::Stock_Picture::Program_Icon;
}

void About_Tab::Make_Link() {
  Link_Lbl.ForeColor = blue;
  Link_Lbl.FontUnderline = true;
  Link_Lbl.MousePointer = toolkit::Pointer::Hand;
  Link_Lbl.On_Click = [this] { gotoweb(); };
}

void About_Tab::gotoweb() { shell_.Open(Homepage_Target(homepage, files_.Program_Folder()), R"(C:\)"); }

}  // namespace settings_window
