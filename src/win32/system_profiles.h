// Profile files by the system's own calls.
#pragma once

#include "platform/profile_files.h"

namespace win32 {

class System_Profiles final : public platform::Profile_Files {
 public:
  std::string Get_Text(const std::string& section, const std::string& entry, const std::string& default_text,
                       unsigned room, const std::string& file) override;
  int Get_Number(const std::string& section, const std::string& entry, int default_number,
                 const std::string& file) override;
  bool Write_Text(const std::string& section, const std::string& entry, const std::string& text,
                  const std::string& file) override;
};

}  // namespace win32
