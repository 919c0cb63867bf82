#include "packs/set_wallpaper_mod.h"

namespace packs {

namespace {

std::string_view Mode_Word(basic::Int16 display_mode) {
  switch (display_mode.Value()) {
    case 0: return "CENTER";
    case 1: return "TILED";
    case 2: return "STRETCH";
    default: return "";
  }
}

}  // namespace

void Set_Wallpaper_Mod::Set_Wallpaper(const std::string& path, basic::Int16 display_mode) {
  try {
    Apply_Wallpaper(path, Mode_Word(display_mode));
  } catch (const basic::Run_Error&) {
    // The old picture is good enough.
  }
}

void Set_Wallpaper_Mod::Apply_Wallpaper(const std::string& path, std::string_view mode_word) {
  const bool tiled = mode_word == "TILED";
  const bool centred = mode_word == "CENTER";
  Write_Desktop_Value(platform::Hive::Current_User, desktop_key, "TileWallpaper", tiled ? "1" : "0");
  Write_Desktop_Value(platform::Hive::Current_User, desktop_key, "WallpaperStyle", tiled || centred ? "0" : "2");
  wallpaper_.Set_Picture(path);
}

void Set_Wallpaper_Mod::Write_Desktop_Value(platform::Hive hive, const std::string& key, const std::string& name,
                                            const std::string& text) {
  platform::Registry_Keys::Key handle = 0;
  keys_.Open(hive, key, platform::Key_Access::Set_Value, handle);
  keys_.Set(handle, name, platform::Value_Type::Text, text);
  keys_.Flush(handle);
  keys_.Close(handle);
}

}  // namespace packs
