// What the settings window shows of the packs in the program folder, and of the desktop's picture.
#pragma once

#include <string>
#include <vector>

#include "basic/int16.h"
#include "packs/set_wallpaper_mod.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "settings/registry.h"

namespace packs {

class Pack_Browser {
 public:
  Pack_Browser(platform::Files& files, platform::Pictures& pictures, settings::Registry& registry)
      : files_(files), pictures_(pictures), registry_(registry) {}

  /// The full paths of the folders in the program folder.
  [[nodiscard]] std::vector<std::string> Folders() const;

  /// Returns true if the pack, by its name or by the full path of its folder, is whole as All_Files says.
  [[nodiscard]] bool Is_Whole(const std::string& pack) const;
  [[nodiscard]] bool Is_Whole_Folder(const std::string& folder) const;

  /// The picture of a month (1 to 12). Throws error 53, 75 or 481.
  [[nodiscard]] platform::Shared_Picture Month_Picture(const std::string& pack, basic::Int16 month) const;

  /// A value under desktop_key, or the default if there is no such value.
  [[nodiscard]] std::string Desktop_Value(const std::string& name, const std::string& default_text) const;

  /// The desktop's present picture. Throws error 53, 75 or 481 if there is none that can be shown.
  [[nodiscard]] platform::Shared_Picture Desktop_Picture() const;

 private:
  platform::Files& files_;
  platform::Pictures& pictures_;
  settings::Registry& registry_;
};

}  // namespace packs
