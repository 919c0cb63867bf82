// What the settings window shows of the packs beside the program, and of the desktop's picture.
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

  /// Whether the pack of that name is whole.
  [[nodiscard]] bool Is_Whole(const std::string& pack) const;
  [[nodiscard]] bool Is_Whole_Folder(const std::string& folder) const;

  /// A month's picture. Throws error 53, 75 or 481.
  [[nodiscard]] platform::Shared_Picture Month_Picture(const std::string& pack, basic::Int16 month) const;

  /// A value of the desktop's key, or the default where it isn't there.
  [[nodiscard]] std::string Desktop_Value(const std::string& name, const std::string& default_text) const;

  /// The desktop's present picture. Throws error 53, 75 or 481 where there is none that can be shown.
  [[nodiscard]] platform::Shared_Picture Desktop_Picture() const;

 private:
  platform::Files& files_;
  platform::Pictures& pictures_;
  settings::Registry& registry_;
};

}  // namespace packs
