// Profile files, read and written on any disk as the system does it: sections in brackets, entries of a name, "=" and a
// text, and comment lines that start with ";". Names count without regard to case.
#pragma once

#include <vector>

#include "platform/files.h"
#include "platform/profile_files.h"

namespace memory {

class Memory_Profiles : public platform::Profile_Files {
 public:
  explicit Memory_Profiles(platform::Files& files) : files_(files) {}

  /// The text is returned without the blanks around it and without one pair of quotes, double or single; the default
  /// without the blanks at its end.
  std::string Get_Text(const std::string& section, const std::string& entry, const std::string& default_text,
                       unsigned room, const std::string& file) override;

  /// The number is made of the digits at the start of the text, after an optional sign: 0 if there are none. An empty
  /// text counts as no entry.
  int Get_Number(const std::string& section, const std::string& entry, int default_number,
                 const std::string& file) override;

  /// An entry that is there keeps its line; a new one goes to the end of its section, a new section to the end of the
  /// file. An empty text leaves the entry with an empty value.
  bool Write_Text(const std::string& section, const std::string& entry, const std::string& text,
                  const std::string& file) override;

 private:
  using Lines = std::vector<std::string>;

  Lines Read_Lines(const std::string& file);
  bool Write_Lines(const Lines& lines, const std::string& file);

  platform::Files& files_;
};

}  // namespace memory
