// The per-user store of preferences, in memory. Names count without regard to case, as in the real one.
#pragma once

#include <map>
#include <vector>

#include "platform/settings_store.h"

namespace memory {

class Memory_Store : public platform::Settings_Store {
 public:
  std::string Get(const std::string& application, const std::string& section, const std::string& key,
                  const std::string& default_text) override;
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& text) override;

  struct Value {
    std::string Section, Key, Text;
  };

  /// All values of an application, in the byte order of their sections and keys.
  [[nodiscard]] std::vector<Value> Values(const std::string& application) const;

 private:
  using Address = std::vector<std::string>;  // application, section and key, in upper case

  std::map<Address, Value> values_;
};

}  // namespace memory
