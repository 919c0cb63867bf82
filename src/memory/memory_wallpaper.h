// The desktop's picture in memory: remembers each time it is set, and how it was to be laid out.
#pragma once

#include <utility>
#include <vector>

#include "memory/memory_registry.h"
#include "platform/wallpaper.h"

namespace memory {

class Memory_Wallpaper : public platform::Wallpaper {
 public:
  /// One setting of the picture, with the registry's two values for its layout at that moment; "" for a missing value.
  struct Setting {
    std::string Path, Tile_Wallpaper, Wallpaper_Style;
    bool operator==(const Setting&) const = default;
  };

  explicit Memory_Wallpaper(Memory_Registry& registry) : registry_(registry) {}

  /// Also writes the path to the current user's value `Wallpaper`, as the system does.
  void Set_Picture(const std::string& path) override;

  /// The settings since the last call.
  std::vector<Setting> Take_Settings() { return std::exchange(settings_, {}); }

 private:
  Memory_Registry& registry_;
  std::vector<Setting> settings_;
};

}  // namespace memory
