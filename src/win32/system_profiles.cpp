#include "win32/system_profiles.h"

#include "win32/windows_api.h"

namespace win32 {

std::string System_Profiles::Get_Text(const std::string& section, const std::string& entry,
                                      const std::string& default_text, unsigned room, const std::string& file) {
  std::string text(room, '\0');
  const DWORD length =
      GetPrivateProfileStringA(section.c_str(), entry.c_str(), default_text.c_str(), text.data(), room, file.c_str());
  text.resize(length);
  return text;
}

int System_Profiles::Get_Number(const std::string& section, const std::string& entry, int default_number,
                                const std::string& file) {
  return static_cast<int>(GetPrivateProfileIntA(section.c_str(), entry.c_str(), default_number, file.c_str()));
}

bool System_Profiles::Write_Text(const std::string& section, const std::string& entry, const std::string& text,
                                 const std::string& file) {
  return WritePrivateProfileStringA(section.c_str(), entry.c_str(), text.c_str(), file.c_str()) != 0;
}

}  // namespace win32
