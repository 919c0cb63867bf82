// Sets the desktop's picture: two registry values say how it is laid out, one call of the system shows it.
#pragma once

#include <string>
#include <string_view>

#include "basic/int16.h"
#include "platform/registry_keys.h"
#include "platform/wallpaper.h"

namespace packs {

/// The registry key of the desktop's values, under "HKCU".
constexpr const char* desktop_key = "Control Panel\\Desktop";

class Set_Wallpaper_Mod {
 public:
  Set_Wallpaper_Mod(platform::Registry_Keys& keys, platform::Wallpaper& wallpaper)
      : keys_(keys), wallpaper_(wallpaper) {}

  /// Makes the file the desktop's picture: display mode 0 centres it, 1 tiles it, any other stretches it. An empty path
  /// removes the picture. Failures are silent.
  void Set_Wallpaper(const std::string& path, basic::Int16 display_mode);

  /// The same by the mode's word: "CENTER", "TILED", and "STRETCH" or any other.
  void Apply_Wallpaper(const std::string& path, std::string_view mode_word);

  /// Writes a text value into an existing key. Failures are silent.
  void Write_Desktop_Value(platform::Hive hive, const std::string& key, const std::string& name,
                           const std::string& text);

 private:
  platform::Registry_Keys& keys_;
  platform::Wallpaper& wallpaper_;
};

}  // namespace packs
