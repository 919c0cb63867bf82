#include "memory/memory_registry.h"

#include <algorithm>

#include "memory/letter_case.h"

namespace memory {

namespace {

bool Includes(platform::Key_Access access, platform::Key_Access right) {
  return (static_cast<std::uint32_t>(access) & static_cast<std::uint32_t>(right)) != 0;
}

}  // namespace

Memory_Registry::Memory_Registry() { Make(Address_Of(platform::Hive::Current_User, "Control Panel\\Desktop")); }

int Memory_Registry::Open(platform::Hive hive, const std::string& path, platform::Key_Access access, Key& key) {
  const Address address = Address_Of(hive, path);
  if (!address.path.empty() && !keys_.contains(address)) return platform::status_not_found;
  return Enter(address, access, key);
}

int Memory_Registry::Create(platform::Hive hive, const std::string& path, Key& key) {
  const Address address = Address_Of(hive, path);
  const int status = Enter(address, platform::Key_Access::Set_Value_And_Create, key);
  if (status == 0) Make(address);
  return status;
}

int Memory_Registry::Query(Key key, const std::string& name, char* data, std::uint32_t& size) {
  int status = 0;
  const Values* const values = Values_Of(key, platform::Key_Access::Query_Value, status);
  if (values == nullptr) return status;
  const auto found = values->find(Folded(name));
  if (found == values->end()) return platform::status_not_found;
  const std::string& bytes = found->second;
  const std::uint32_t room = size;
  size = static_cast<std::uint32_t>(bytes.size());
  if (data == nullptr) return 0;
  if (room < size) return platform::status_more_data;
  std::copy(bytes.begin(), bytes.end(), data);
  return 0;
}

int Memory_Registry::Set(Key key, const std::string& name, platform::Value_Type type, std::string_view bytes) {
  int status = 0;
  Values* const values = Values_Of(key, platform::Key_Access::Set_Value, status);
  if (values == nullptr) return status;
  std::string& value = (*values)[Folded(name)] = bytes;
  // The system adds the terminator only to texts, and not to a text of no bytes.
  if (type == platform::Value_Type::Text && !value.empty() && value.back() != '\0') value += '\0';
  return 0;
}

int Memory_Registry::Delete_Value(Key key, const std::string& name) {
  int status = 0;
  Values* const values = Values_Of(key, platform::Key_Access::Set_Value, status);
  if (values == nullptr) return status;
  return values->erase(Folded(name)) == 0 ? platform::status_not_found : 0;
}

int Memory_Registry::Flush(Key key) { return open_keys_.contains(key) ? 0 : status_invalid_handle; }

int Memory_Registry::Close(Key key) { return open_keys_.erase(key) == 0 ? status_invalid_handle : 0; }

void Memory_Registry::Put(platform::Hive hive, const std::string& path, const std::string& name,
                          const std::string& text) {
  Make(Address_Of(hive, path))[Folded(name)] = text + '\0';
}

std::optional<std::string> Memory_Registry::Find(platform::Hive hive, const std::string& path,
                                                 const std::string& name) const {
  const auto key = keys_.find(Address_Of(hive, path));
  if (key == keys_.end()) return std::nullopt;
  const auto value = key->second.find(Folded(name));
  if (value == key->second.end()) return std::nullopt;
  std::string text = value->second;
  if (!text.empty() && text.back() == '\0') text.pop_back();
  return text;
}

void Memory_Registry::Deny(platform::Hive hive, bool denied) {
  if (denied) denied_.insert(hive);
  else denied_.erase(hive);
}

Memory_Registry::Address Memory_Registry::Address_Of(platform::Hive hive, const std::string& path) {
  return {hive, Folded(path)};
}

/// Makes a key and all keys above it.
Memory_Registry::Values& Memory_Registry::Make(const Address& address) {
  for (std::size_t end = address.path.find('\\'); end != std::string::npos; end = address.path.find('\\', end + 1))
    keys_[{address.hive, address.path.substr(0, end)}];
  return keys_[address];
}

int Memory_Registry::Enter(const Address& address, platform::Key_Access access, Key& key) {
  if (Includes(access, platform::Key_Access::Set_Value) && denied_.contains(address.hive))
    return platform::status_access_denied;
  key = ++last_key_;
  open_keys_[key] = {address, access};
  return 0;
}

/// The values of an open key; nullptr if the key isn't open or doesn't have the right, with the status that says why.
Memory_Registry::Values* Memory_Registry::Values_Of(Key key, platform::Key_Access right, int& status) {
  const auto open = open_keys_.find(key);
  if (open == open_keys_.end()) {
    status = status_invalid_handle;
    return nullptr;
  }
  const bool writes = right == platform::Key_Access::Set_Value;
  if (!Includes(open->second.access, right) || (writes && denied_.contains(open->second.address.hive))) {
    status = platform::status_access_denied;
    return nullptr;
  }
  return &keys_[open->second.address];
}

}  // namespace memory
