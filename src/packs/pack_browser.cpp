#include "packs/pack_browser.h"

#include "basic/convert.h"
#include "packs/pack_lookup.h"

namespace packs {

std::vector<std::string> Pack_Browser::Folders() const {
  std::vector<std::string> folders;
  for (const std::string& name : files_.Folder_Names(files_.Program_Folder()))
    folders.push_back(files_.Program_Folder() + '\\' + name);
  return folders;
}

bool Pack_Browser::Is_Whole(const std::string& pack) const {
  return Is_Whole_Folder(files_.Program_Folder() + '\\' + pack);
}

bool Pack_Browser::Is_Whole_Folder(const std::string& folder) const { return All_Files(files_, folder); }

platform::Shared_Picture Pack_Browser::Month_Picture(const std::string& pack, basic::Int16 month) const {
  return pictures_.Load(files_.Program_Folder() + '\\' + pack + '\\' + basic::To_Text(month) + ".jpg");
}

std::string Pack_Browser::Desktop_Value(const std::string& name, const std::string& default_text) const {
  settings::Registry_Value value;
  registry_.Registry_Get("HKCU", desktop_key, name, "S", default_text, value);
  return std::get<std::string>(value);
}

platform::Shared_Picture Pack_Browser::Desktop_Picture() const {
  return pictures_.Load(Desktop_Value("Wallpaper", ""));
}

}  // namespace packs
