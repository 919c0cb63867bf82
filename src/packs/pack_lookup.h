// The wallpaper packs on disk: folders beside the executable, each with a settings.ini and the pictures 1.jpg to
// 12.jpg. Looks up a month in a pack and makes the bitmap of its picture. Reports its failures itself, in a message
// box.
#pragma once

#include <string>

#include "packs/pack_values.h"
#include "packs/set_wallpaper_mod.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pictures.h"
#include "settings/stored_settings.h"

namespace packs {

/// What a lookup returns after a failure that it has reported.
constexpr const char* lookup_error = "ERROR";

/// Returns true if a folder holds a whole pack: settings.ini and the twelve pictures. Their contents aren't checked.
bool All_Files(platform::Files& files, const std::string& folder);

class Pack_Lookup {
 public:
  Pack_Lookup(platform::Files& files, basic::File_Channel& channel, platform::Pictures& pictures,
              platform::Message_Box& message_box, settings::Stored_Settings& settings, Set_Wallpaper_Mod& wallpaper)
      : files_(files), channel_(channel), pictures_(pictures), message_box_(message_box), settings_(settings),
        wallpaper_(wallpaper) {}

  /// The value of the month (1 to 12); "" if the file has no line for it, lookup_error after a failure. If the pack's
  /// folder is missing, packs are switched off, in the store too, and the wallpaper is removed from the desktop. A line
  /// that can't be read leaves the file number taken.
  std::string Get_Paper_Details(basic::Int16 month, const std::string& pack_name);

  /// The full path of the month's bitmap; lookup_error after a failure. A bitmap that doesn't exist is made from the
  /// month's picture, after the pack's other bitmaps have been deleted.
  std::string Get_Paper_Path(const std::string& pack_name, basic::Int16 month);

  /// Deletes the files of the pack's folder whose names end in ".bmp", in lower case. Stops silently at the first
  /// failure.
  void Delete_Old_Bmps(const std::string& pack_name);

 private:
  std::string Pack_Folder(const std::string& pack_name);
  void Disable_Packs(const std::string& pack_name);
  void Report(const std::string& text);

  platform::Files& files_;
  basic::File_Channel& channel_;
  platform::Pictures& pictures_;
  platform::Message_Box& message_box_;
  settings::Stored_Settings& settings_;
  Set_Wallpaper_Mod& wallpaper_;
};

}  // namespace packs
