#include "memory/memory_wallpaper.h"

namespace memory {

namespace {

constexpr const char* desktop_key = "Control Panel\\Desktop";

}  // namespace

void Memory_Wallpaper::Set_Picture(const std::string& path) {
  const auto value = [&](const char* name) {
    return registry_.Find(platform::Hive::Current_User, desktop_key, name).value_or("");
  };
  settings_.push_back({path, value("TileWallpaper"), value("WallpaperStyle")});
  platform::Registry_Keys::Key key = 0;
  if (registry_.Open(platform::Hive::Current_User, desktop_key, platform::Key_Access::Set_Value, key) != 0) return;
  registry_.Set(key, "Wallpaper", platform::Value_Type::Text, path + '\0');
  registry_.Close(key);
}

}  // namespace memory
