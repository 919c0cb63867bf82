#include "settings_window/style_tab.h"

#include "settings_window/box_example.h"
#include "settings_window/positions.h"

namespace settings_window {

namespace {

using presentation::manual_position;
using settings::Settings;
using toolkit::Alignment;
using toolkit::Slide;

/// The sizes of the small calendar, by the number that the examples have.
enum Preview_Size { no_size = 0, square_size = 1, thin_size = 2, small_size = 3 };

int Size_Of_Style(basic::Int16 style) {
  switch (style.Value()) {
    case presentation::thin_box: return thin_size;
    case presentation::square_box: return square_size;
    case presentation::small_box: return small_size;
    default: return no_size;
  }
}

/// How far a length lies within a longer one: 0 at its beginning, 1 in the middle, in whole twips, 2 at its end.
double Offset(int place, double outer, double inner) {
  if (place == 1) return toolkit::Round_To_Even(outer - inner) / 2;
  return place == 0 ? 0 : outer - inner;
}

}  // namespace

Style_Tab::Style_Tab(toolkit::Frame& page, Wallpaper_Page& packs_page, calendar::Desk& desk,
                     settings::Stored_Settings& stored, packs::Pack_Lookup& packs, const packs::Pack_Browser& browser)
    : Frame4(page, "Frame4"), Theme_Pos_Chk(Frame4, "Theme_Pos_Chk"),
      Vertical_Sli(Frame4, "Vertical_Sli", 0, 2, Slide::Down),
      Horizontal_Sli(Frame4, "Horizontal_Sli", 0, 2, Slide::Across), Pos_Manual_Opt(Frame4, "Pos_Manual_Opt"),
      Pos_Set_Opt(Frame4, "Pos_Set_Opt"), Preview_Screen_Img(Frame4, "Preview_Screen_Img"),
      Pos_Preview_Img(Frame4, "Pos_Preview_Img"), Box_Preview_Img(Frame4, "Box_Preview_Img"), Frame6(page, "Frame6"),
      Theme_Style_Chk(Frame6, "Theme_Style_Chk"), Style3_Opt(Frame6, "Style3_Opt"), Style1_Opt(Frame6, "Style1_Opt"),
      Style2_Opt(Frame6, "Style2_Opt"), Example5_Lbl(Frame6, "Example5_Lbl"), Example1_Lbl(Frame6, "Example1_Lbl"),
      Example2_Lbl(Frame6, "Example2_Lbl"), Example4_Lbl(Frame6, "Example4_Lbl"), Example3_Lbl(Frame6, "Example3_Lbl"),
      packs_page_(packs_page), desk_(desk), stored_(stored), packs_(packs), browser_(browser) {
  Make_Position_Frame();
  Make_Style_Frame();
  Make_Examples();
  Tie_Events();
  Tie_Position_Events();
}

void Style_Tab::Make_Position_Frame() {
  Frame4.Place({0, 0, 3255, 3795});
  Frame4.Caption = "Position";
  Theme_Pos_Chk.Place({225, 405, 2850, 210});
  Theme_Pos_Chk.Caption = "Use Pack Postion when available";
  Vertical_Sli.Call_It("Place from top to bottom");
  Horizontal_Sli.Call_It("Place from left to right");
  Vertical_Sli.Place({270, 720, 435, 1680});
  Horizontal_Sli.Place({720, 2655, 2265, 480});
  Pos_Manual_Opt.Place({225, 3285, 1455, 240});
  Pos_Manual_Opt.Caption = "Manual Position";
  Pos_Set_Opt.Place({1800, 3285, 1275, 240});
  Pos_Set_Opt.Caption = "Set Position";
  Pos_Set_Opt.Value = true;
  Preview_Screen_Img.Picture = platform::Stock_Picture::Monitor;
  Box_Preview_Img.Picture = platform::Stock_Picture::Small_Calendar;
  Small_Preview();
}

void Style_Tab::Make_Style_Frame() {
  Frame6.Place({3330, 0, 1815, 3795});
  Frame6.Caption = "Box Style";
  Theme_Style_Chk.Place({180, 405, 1545, 285});
  Theme_Style_Chk.Caption = "Use Pack Style";
  Style3_Opt.Call_It("Small boxes");
  Style1_Opt.Call_It("Square boxes");
  Style2_Opt.Call_It("Thin boxes");
  Style3_Opt.Place({90, 1080, 285, 285});
  Style3_Opt.Value = true;
  Style1_Opt.Place({90, 2160, 285, 285});
  Style2_Opt.Place({90, 3195, 240, 240});
}

void Style_Tab::Make_Examples() {
  Example5_Lbl.Place({855, 1035, 330, 330});
  Example5_Lbl.Caption = " 1 ";
  Example5_Lbl.Alignment = Alignment::Centre;
  Example1_Lbl.Place({630, 1800, 825, 915});
  Example1_Lbl.Caption = " 1";
  Example4_Lbl.Place({405, 3150, 1275, 330});
  Example4_Lbl.Caption = " 1";
  for (toolkit::Label* const box : {&Example5_Lbl, &Example1_Lbl, &Example4_Lbl}) {
    Look_Like_A_Day_Box(*box);
    box->ForeColor = toolkit::black;  // on white in every scheme of colours
  }
  Example2_Lbl.Place({675, 2070, 735, 600});
  Example2_Lbl.Caption = "This is an example.";
  Example2_Lbl.Alignment = Alignment::Centre;
  Example2_Lbl.Transparent = true;
  Example2_Lbl.ForeColor = toolkit::black;
  Example3_Lbl.Place({720, 3195, 870, 285});
  Example3_Lbl.Caption = "This is an...";
  Example3_Lbl.Transparent = true;
  Example3_Lbl.ForeColor = toolkit::black;
}

void Style_Tab::Tie_Events() {
  for (toolkit::Option_Button* const option : {&Style1_Opt, &Style2_Opt, &Style3_Opt})
    option->On_Click = [this] { Style_Opt_Click(); };
  Theme_Style_Chk.On_Click = [this] { Theme_Style_Chk_Click(); };
}

void Style_Tab::Tie_Position_Events() {
  Pos_Manual_Opt.On_Click = [this] {
    Large_Preview();
    Position_Opt_Click();
  };
  Pos_Set_Opt.On_Click = [this] {
    Small_Preview();
    Position_Opt_Click();
  };
  for (toolkit::Slider* const slider : {&Vertical_Sli, &Horizontal_Sli}) {
    slider->On_Mouse_Down = [this, slider](const toolkit::Mouse_Event& /*event*/) { Slider_Moved(*slider); };
    slider->On_Scroll = [this, slider] { Slider_Moved(*slider); };
  }
  Theme_Pos_Chk.On_Click = [this] { Theme_Pos_Chk_Click(); };
}

void Style_Tab::Load_Settings() {
  switch (stored_.Values.Style.Value()) {
    case presentation::thin_box: Style2_Opt.Value = true; break;
    case presentation::square_box: Style1_Opt.Value = true; break;
    case presentation::small_box: Style3_Opt.Value = true; break;
    default: break;
  }
  if (stored_.Values.Alignment == manual_position) {
    Pos_Manual_Opt.Value = true;
    Large_Preview();
    return;
  }
  Pos_Set_Opt.Value = true;
  Setup_Set_Position(stored_.Values.Alignment);
  Small_Preview();
}

void Style_Tab::Load_Pos_Wallpaper() {
  try {
    Pos_Preview_Img.Loaded = browser_.Desktop_Picture();
  } catch (const basic::Run_Error&) {
    // The desktop has no picture, or one that can't be shown.
  }
}

basic::Int16 Style_Tab::Get_Set_Position() const { return Position_Of({Horizontal_Sli.Value, Vertical_Sli.Value}); }

void Style_Tab::Setup_Set_Position(basic::Int16 position) {
  const Slider_Places* const places = Places_Of(position);
  if (places == nullptr) return;
  Horizontal_Sli.Value = places->Horizontal;
  Vertical_Sli.Value = places->Vertical;
}

void Style_Tab::Slider_Text(toolkit::Slider& slider) const {
  slider.Text = std::string(Position_Name(Get_Set_Position()));
}

void Style_Tab::Slider_Moved(toolkit::Slider& slider) {
  Place_Box_From_Sliders();
  Slider_Text(slider);
}

void Style_Tab::Size_Box_Preview(int size) {
  toolkit::Bounds place = Box_Preview_Img.In_Twips();
  Box_Preview_Img.Visible = true;
  switch (size) {
    case square_size: place.Width = 585, place.Height = 540; break;
    case thin_size: place.Width = 975, place.Height = 360; break;
    case small_size: place.Width = 345, place.Height = 315; break;
    default: break;
  }
  Box_Preview_Img.Place(place);
}

void Style_Tab::Place_Box_Preview(basic::Int16 position) {
  const Slider_Places* const places = Places_Of(position);
  if (places == nullptr) return;
  const toolkit::Bounds& screen = Pos_Preview_Img.In_Twips();
  toolkit::Bounds box = Box_Preview_Img.In_Twips();
  box.Left = screen.Left + Offset(places->Horizontal, screen.Width, box.Width);
  box.Top = screen.Top + Offset(places->Vertical, screen.Height, box.Height);
  Box_Preview_Img.Place(box);
}

void Style_Tab::Place_Box() {
  if (Ticked(Theme_Pos_Chk)) Place_Box_Preview(Shown_Pack_Pos);
  else Place_Box_From_Sliders();
}

void Style_Tab::Style_Preview() {
  if (Pos_Manual_Opt.Value && !Ticked(Theme_Pos_Chk)) {
    Box_Preview_Img.Visible = false;
    return;
  }
  const bool by_pack =
      packs_page_.Packs_Cbo.ListIndex() != -1 && Ticked(packs_page_.Theme_Use_Chk) && Ticked(Theme_Style_Chk);
  if (const int size = by_pack ? Pack_Size() : Option_Size(); size != no_size) Size_Box_Preview(size);
}

int Style_Tab::Pack_Size() {
  const std::string value = packs_.Get_Paper_Details(packs_page_.Preview_Sli.Value(), packs_page_.Packs_Cbo.Text());
  return Size_Of_Style(packs::Get_Paper_BoxStyle(value));
}

int Style_Tab::Option_Size() const { return Size_Of_Style(Chosen_Style(-1)); }

void Style_Tab::Large_Preview() {
  Preview_Screen_Img.Place({450, 900, 2415, 2100});
  Pos_Preview_Img.Place({650, 1100, 2010, 1405});
  Show_Sliders(false);
}

void Style_Tab::Small_Preview() {
  Preview_Screen_Img.Place({800, 800, 2100, 1790});
  Pos_Preview_Img.Place({975, 975, 1730, 1170});
  Show_Sliders(true);
}

void Style_Tab::Show_Sliders(bool shown) {
  Vertical_Sli.Visible = shown;
  Horizontal_Sli.Visible = shown;
}

void Style_Tab::Style_Opt_Click() {
  Style_Preview();
  Place_Box();
}

void Style_Tab::Position_Opt_Click() {
  Style_Preview();
  Place_Box_From_Sliders();
}

void Style_Tab::Theme_Pos_Chk_Click() {
  const bool by_pack = Ticked(Theme_Pos_Chk);
  Pos_Set_Opt.Enabled = !by_pack;
  Pos_Manual_Opt.Enabled = !by_pack;
  if (by_pack || !Pos_Set_Opt.Value) Large_Preview();
  else Small_Preview();
  Style_Preview();
  Place_Box();
}

void Style_Tab::Theme_Style_Chk_Click() {
  Style_Preview();
  Place_Box();
  const bool own = !Ticked(Theme_Style_Chk);
  for (toolkit::Label* const example : {&Example1_Lbl, &Example2_Lbl, &Example3_Lbl, &Example4_Lbl, &Example5_Lbl})
    example->Enabled = own;
  for (toolkit::Option_Button* const option : {&Style1_Opt, &Style2_Opt, &Style3_Opt}) option->Enabled = own;
}

basic::Int16 Style_Tab::Chosen_Style(basic::Int16 none) const {
  if (Style1_Opt.Value) return presentation::square_box;
  if (Style2_Opt.Value) return presentation::thin_box;
  return Style3_Opt.Value ? presentation::small_box : none;
}

basic::Int16 Style_Tab::Chosen_Position() const { return Pos_Manual_Opt.Value ? manual_position : Get_Set_Position(); }

void Style_Tab::Save_Theme() {
  stored_.Set(&Settings::Style, Chosen_Style(presentation::thin_box));
  Save_Style();
  Save_Position();
}

void Style_Tab::Save_Style() {
  const bool by_pack = Ticked(Theme_Style_Chk) && stored_.Values.Use_Themes == 1;
  const std::string pack = packs_page_.Packs_Cbo.Text();
  if (by_pack && pack.empty()) return;
  desk_.Apply_Pack(pack);
  desk_.Take_Style(by_pack ? desk_.Pack_Box_Style() : stored_.Values.Style);
}

void Style_Tab::Save_Position() {
  if (Ticked(Theme_Pos_Chk) && stored_.Values.Use_Themes == 1) {
    if (!packs_page_.Packs_Cbo.Text().empty()) desk_.Position_Form(desk_.Pack_Pos());
    return;
  }
  stored_.Set(&Settings::Alignment, Chosen_Position());
  desk_.Position_Form(stored_.Values.Alignment);
}

}  // namespace settings_window
