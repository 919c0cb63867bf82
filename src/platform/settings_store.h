// The per-user store of the program's preferences: texts by application, section and key.
#pragma once

#include <string>

namespace platform {

class Settings_Store {
 public:
  virtual ~Settings_Store() = default;

  /// The stored text, or the default if there is none.
  virtual std::string Get(const std::string& application, const std::string& section, const std::string& key,
                          const std::string& default_text) = 0;

  /// Creates or replaces the value. Throws error 75 where it can't be stored.
  virtual void Save(const std::string& application, const std::string& section, const std::string& key,
                    const std::string& text) = 0;
};

}  // namespace platform
