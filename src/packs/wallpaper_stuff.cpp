#include "packs/wallpaper_stuff.h"

namespace packs {

void Wallpaper_Stuff::Get_Wallpaper_Stuff(const std::string& pack_name) {
  if (settings_.Use_Themes == 0) return;
  const basic::Int16 month = basic::Civil_From_Serial(clock_.Now().Day).Month;
  const std::string value = packs_.Get_Paper_Details(month, pack_name);
  if (value == lookup_error) return;
  Take_Style_And_Position(value);
  const std::string path = packs_.Get_Paper_Path(pack_name, month);
  if (path != lookup_error) Apply(path, value);
}

void Wallpaper_Stuff::Preview_Wallpaper_Stuff(const std::string& pack_name, basic::Int16 month) {
  const std::string value = packs_.Get_Paper_Details(month, pack_name);
  if (value == lookup_error) return;
  Take_Style_And_Position(value);
  settings::Registry_Value present;
  registry_.Registry_Get("HKCU", desktop_key, "Wallpaper", "S", std::string("NONE"), present);
  const std::string path = packs_.Get_Paper_Path(pack_name, month);
  if (path == lookup_error) return;
  const bool there_already = present == settings::Registry_Value(path);
  if (Get_Paper_DisplayMode(value) == 0 && there_already) return;
  Apply(path, value);
}

void Wallpaper_Stuff::Take_Style_And_Position(const std::string& value) {
  if (settings_.Use_Theme_Style == 1) state_.Pack_Box_Style = Get_Paper_BoxStyle(value);
  if (settings_.Use_Theme_Pos == 1) state_.Pack_Pos = Get_Paper_Pos(value);
}

void Wallpaper_Stuff::Apply(const std::string& path, const std::string& value) {
  const basic::Int16 display_mode =
      settings_.Use_Other_Display_Mode ? settings_.Other_Display_Mode : Get_Paper_DisplayMode(value);
  wallpaper_.Set_Wallpaper(path, display_mode);
}

}  // namespace packs
