// Profile files (.ini): the system's own reading and writing of them.
#pragma once

#include <string>

namespace platform {

class Profile_Files {
 public:
  virtual ~Profile_Files() = default;

  /// The entry's text, or the default if there is no such entry; at most `room` - 1 characters.
  virtual std::string Get_Text(const std::string& section, const std::string& entry, const std::string& default_text,
                               unsigned room, const std::string& file) = 0;

  /// The entry's number, or the default if there is no such entry.
  virtual int Get_Number(const std::string& section, const std::string& entry, int default_number,
                         const std::string& file) = 0;

  /// Creates or replaces the entry. Returns false if the file can't be written.
  virtual bool Write_Text(const std::string& section, const std::string& entry, const std::string& text,
                          const std::string& file) = 0;
};

}  // namespace platform
