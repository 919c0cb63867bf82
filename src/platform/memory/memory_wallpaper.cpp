#include "platform/memory/memory_wallpaper.h"

namespace platform::memory {

namespace {

constexpr const char* desktop_key = "Control Panel\\Desktop";

}  // namespace

void Memory_Wallpaper::Set_Picture(const std::string& path) {
  const auto value = [&](const char* name) {
    return registry_.Find(Hive::Current_User, desktop_key, name).value_or("");
  };
  settings_.push_back({path, value("TileWallpaper"), value("WallpaperStyle")});
  Registry_Keys::Key key = 0;
  if (registry_.Open(Hive::Current_User, desktop_key, Key_Access::Set_Value, key) != 0) return;
  registry_.Set(key, "Wallpaper", Value_Type::Text, path + '\0');
  registry_.Close(key);
}

}  // namespace platform::memory
