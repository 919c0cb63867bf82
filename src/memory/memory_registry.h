// A registry in memory, with the contract of the real one: names count without regard to case, a text that is written
// without its terminator gets one, a key gives only the rights that it was opened with. No hive is a view of another.
#pragma once

#include <map>
#include <optional>
#include <set>

#include "platform/registry_keys.h"

namespace memory {

constexpr int status_invalid_handle = 6;

class Memory_Registry : public platform::Registry_Keys {
 public:
  /// Starts as a fresh system: all hives exist, and the current user's "Control Panel\Desktop" without a value.
  Memory_Registry();

  int Open(platform::Hive hive, const std::string& path, platform::Key_Access access, Key& key) override;
  int Create(platform::Hive hive, const std::string& path, Key& key) override;
  int Query(Key key, const std::string& name, char* data, std::uint32_t& size) override;
  int Set(Key key, const std::string& name, platform::Value_Type type, std::string_view bytes) override;
  int Delete_Value(Key key, const std::string& name) override;
  int Flush(Key key) override;
  int Close(Key key) override;

  /// Sets a text value, with its terminator, and creates its key, even if writing is denied.
  void Put(platform::Hive hive, const std::string& path, const std::string& name, const std::string& text);

  /// The value as a text, without its terminator; nothing if there is no such value.
  [[nodiscard]] std::optional<std::string> Find(platform::Hive hive, const std::string& path,
                                                const std::string& name) const;

  /// Denies or allows writing and deleting under a hive; while denied, both fail with status_access_denied.
  void Deny(platform::Hive hive, bool denied);

  /// How many keys were opened and never closed.
  [[nodiscard]] std::size_t Open_Keys() const { return open_keys_.size(); }

 private:
  using Values = std::map<std::string, std::string>;  // bytes by name, the name in upper case

  struct Address {
    platform::Hive hive = platform::Hive::Current_User;
    std::string path;  // in upper case
    friend auto operator<=>(const Address&, const Address&) = default;
  };

  struct Open_Key {
    Address address;
    platform::Key_Access access = platform::Key_Access::Query_Value;
  };

  static Address Address_Of(platform::Hive hive, const std::string& path);
  Values& Make(const Address& address);
  int Enter(const Address& address, platform::Key_Access access, Key& key);
  Values* Values_Of(Key key, platform::Key_Access right, int& status);

  std::map<Address, Values> keys_;
  std::map<Key, Open_Key> open_keys_;
  std::set<platform::Hive> denied_;
  Key last_key_ = 0;
};

}  // namespace memory
