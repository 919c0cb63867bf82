#include "packs/pack_lookup.h"

#include "basic/convert.h"

namespace packs {

bool All_Files(platform::Files& files, const std::string& folder) {
  if (!files.File_Exists(folder + "\\settings.ini")) return false;
  for (std::int32_t month = 1; month <= 12; ++month)
    if (!files.File_Exists(folder + "\\" + basic::To_Text(month) + ".jpg")) return false;
  return true;
}

std::string Pack_Lookup::Get_Paper_Details(basic::Int16 month, const std::string& pack_name) {
  const std::string folder = Pack_Folder(pack_name);
  if (!files_.Folder_Exists(folder)) {
    Disable_Packs(pack_name);
    return lookup_error;
  }
  const std::string path = folder + "\\settings.ini";
  try {
    if (!files_.File_Exists(path)) throw basic::Run_Error(basic::Error_Number::File_Not_Found);
    std::string value = Find_Month_Value(channel_.Open_For_Reading(path), month);
    channel_.Close();
    return value;
  } catch (const basic::Run_Error&) {
    Report("Error loading in Settings file...\r\n\r\n" + path);
    return lookup_error;
  }
}

std::string Pack_Lookup::Get_Paper_Path(const std::string& pack_name, basic::Int16 month) {
  const std::string picture = Pack_Folder(pack_name) + "\\" + basic::To_Text(month);
  try {
    if (!files_.File_Exists(picture + ".bmp")) {
      Delete_Old_Bmps(pack_name);
      pictures_.Convert_To_Bitmap(picture + ".jpg", picture + ".bmp");
    }
    return picture + ".bmp";
  } catch (const basic::Run_Error&) {
    Report("Error loading in Picture file...\r\n\r\n" + picture + ".jpg");
    return lookup_error;
  }
}

void Pack_Lookup::Delete_Old_Bmps(const std::string& pack_name) {
  const std::string folder = Pack_Folder(pack_name) + "\\";
  try {
    for (const std::string& name : files_.File_Names(folder))
      if (name.ends_with(".bmp")) files_.Delete(folder + name);
  } catch (const basic::Run_Error&) {
    // An old bitmap that stays does no harm.
  }
}

std::string Pack_Lookup::Pack_Folder(const std::string& pack_name) {
  return files_.Program_Folder() + "\\" + pack_name;
}

void Pack_Lookup::Disable_Packs(const std::string& pack_name) {
  Report("Missing Pack " + pack_name + ". Packs will now be disabled.");
  settings_.Set(&settings::Settings::Use_Themes, 0);
  wallpaper_.Set_Wallpaper("", 0);
}

void Pack_Lookup::Report(const std::string& text) {
  message_box_.Show("Meridex", text, platform::Box_Icon::Critical, platform::Box_Buttons::OK);
}

}  // namespace packs
