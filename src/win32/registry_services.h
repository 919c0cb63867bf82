// What the program keeps in the registry: its preferences, and the values of the system that it reads and changes.
#pragma once

#include "platform/registry_keys.h"
#include "platform/settings_store.h"
#include "win32/handle.h"

namespace win32 {

/// HKEY_CURRENT_USER\Software\application\section holds one text value for each key.
class Registry_Store final : public platform::Settings_Store {
 public:
  std::string Get(const std::string& application, const std::string& section, const std::string& key,
                  const std::string& default_text) override;
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& text) override;

 private:
  // The section read last stays open: the settings are read one after the other.
  Key_Owner section_;
  std::string section_path_;
};

class System_Registry final : public platform::Registry_Keys {
 public:
  int Open(platform::Hive hive, const std::string& path, platform::Key_Access access, Key& key) override;
  int Create(platform::Hive hive, const std::string& path, Key& key) override;
  int Query(Key key, const std::string& name, char* data, std::uint32_t& size) override;
  int Set(Key key, const std::string& name, platform::Value_Type type, std::string_view bytes) override;
  int Delete_Value(Key key, const std::string& name) override;
  int Flush(Key key) override;
  int Close(Key key) override;
};

}  // namespace win32
