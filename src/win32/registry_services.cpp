#include "win32/registry_services.h"

#include <algorithm>

namespace win32 {

namespace {

bool Is_Text(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ; }

/// Reads a whole value. A text that was written without its terminator gets one.
LONG Read_Value(HKEY key, const std::string& name, std::string& bytes, DWORD& type) {
  DWORD size = 0;
  LONG status = RegQueryValueExA(key, name.c_str(), nullptr, &type, nullptr, &size);
  if (status != ERROR_SUCCESS) return status;
  bytes.resize(size);
  status = RegQueryValueExA(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size);
  if (status != ERROR_SUCCESS) return status;
  bytes.resize(size);
  if (Is_Text(type) && !bytes.empty() && bytes.back() != '\0') bytes += '\0';
  return ERROR_SUCCESS;
}

std::string Section_Path(const std::string& application, const std::string& section) {
  return "Software\\" + application + "\\" + section;
}

HKEY To_Key(platform::Hive hive) {
  // The handle values of the hives are negative numbers, on 64 bits too.
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(hive)));
}

HKEY To_Key(platform::Registry_Keys::Key key) { return reinterpret_cast<HKEY>(key); }

}  // namespace

std::string Registry_Store::Get(const std::string& application, const std::string& section, const std::string& key,
                                const std::string& default_text) {
  const std::string path = Section_Path(application, section);
  if (!section_ || path != section_path_) {
    HKEY opened = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS)
      return default_text;
    section_.Reset(opened);
    section_path_ = path;
  }
  std::string text;
  DWORD type = 0;
  if (Read_Value(section_.Get(), key, text, type) != ERROR_SUCCESS || !Is_Text(type)) return default_text;
  text.resize(std::min(text.size(), text.find('\0')));
  return text;
}

void Registry_Store::Save(const std::string& application, const std::string& section, const std::string& key,
                          const std::string& text) {
  HKEY opened = nullptr;
  DWORD what = 0;
  char no_class[] = "";
  if (RegCreateKeyExA(HKEY_CURRENT_USER, Section_Path(application, section).c_str(), 0, no_class, 0, KEY_SET_VALUE,
                      nullptr, &opened, &what) != ERROR_SUCCESS)
    throw basic::Run_Error(basic::Error_Number::Path_File_Access);
  const Key_Owner owner(opened);
  if (RegSetValueExA(opened, key.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                     static_cast<DWORD>(text.size() + 1)) != ERROR_SUCCESS)
    throw basic::Run_Error(basic::Error_Number::Path_File_Access);
}

int System_Registry::Open(platform::Hive hive, const std::string& path, platform::Key_Access access, Key& key) {
  HKEY opened = nullptr;
  const LONG status = RegOpenKeyExA(To_Key(hive), path.c_str(), 0, static_cast<REGSAM>(access), &opened);
  key = reinterpret_cast<Key>(opened);
  return status;
}

int System_Registry::Create(platform::Hive hive, const std::string& path, Key& key) {
  HKEY opened = nullptr;
  DWORD what = 0;
  char no_class[] = "";
  const LONG status = RegCreateKeyExA(To_Key(hive), path.c_str(), 0, no_class, 0, KEY_SET_VALUE | KEY_CREATE_SUB_KEY,
                                      nullptr, &opened, &what);
  key = reinterpret_cast<Key>(opened);
  return status;
}

int System_Registry::Query(Key key, const std::string& name, char* data, std::uint32_t& size) {
  std::string bytes;
  DWORD type = 0;
  const LONG status = Read_Value(To_Key(key), name, bytes, type);
  if (status != ERROR_SUCCESS) return status;
  const std::uint32_t room = size;
  size = static_cast<std::uint32_t>(bytes.size());
  if (data == nullptr) return ERROR_SUCCESS;
  if (size > room) return platform::status_more_data;
  std::copy(bytes.begin(), bytes.end(), data);
  return ERROR_SUCCESS;
}

int System_Registry::Set(Key key, const std::string& name, platform::Value_Type type, std::string_view bytes) {
  // The system looks at the byte after a text for a terminator.
  const std::string copy(bytes);
  return RegSetValueExA(To_Key(key), name.c_str(), 0, static_cast<DWORD>(type),
                        reinterpret_cast<const BYTE*>(copy.c_str()), static_cast<DWORD>(copy.size()));
}

int System_Registry::Delete_Value(Key key, const std::string& name) {
  return RegDeleteValueA(To_Key(key), name.c_str());
}

int System_Registry::Flush(Key key) { return RegFlushKey(To_Key(key)); }

int System_Registry::Close(Key key) { return RegCloseKey(To_Key(key)); }

}  // namespace win32
