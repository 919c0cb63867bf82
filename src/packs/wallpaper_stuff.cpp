#include "packs/wallpaper_stuff.h"

namespace packs {

void Wallpaper_Stuff::Get_Wallpaper_Stuff(const std::string& pack_name) {
  if (settings_.Use_Themes == 0) return;
  const basic::Int16 month = basic::Civil_From_Serial(clock_.Now().Day).Month;
  const std::string value = packs_.Get_Paper_Details(month, pack_name);
  if (value == lookup_error) return;
  if (settings_.Use_Theme_Style == 1) state_.Pack_Box_Style = Get_Paper_BoxStyle(value);
  if (settings_.Use_Theme_Pos == 1) state_.Pack_Pos = Get_Paper_Pos(value);
  const std::string path = packs_.Get_Paper_Path(pack_name, month);
  if (path == lookup_error) return;
  const basic::Int16 display_mode =
      settings_.Use_Other_Display_Mode ? settings_.Other_Display_Mode : Get_Paper_DisplayMode(value);
  wallpaper_.Set_Wallpaper(path, display_mode);
}

}  // namespace packs
