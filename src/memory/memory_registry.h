// A registry in memory, with the contract of the real one: names count without regard to case, a text written without
// its terminator gets one, rights are asked when a key is opened. Each hive stands alone, none is a view of another.
#pragma once

#include <map>
#include <optional>
#include <set>

#include "platform/registry_keys.h"

namespace memory {

constexpr int status_invalid_handle = 6;

class Memory_Registry : public platform::Registry_Keys {
 public:
  /// As on a fresh system: the hives are there, and the current user's "Control Panel\Desktop" without a value.
  Memory_Registry();

  int Open(platform::Hive hive, const std::string& path, platform::Key_Access access, Key& key) override;
  int Create(platform::Hive hive, const std::string& path, Key& key) override;
  int Query(Key key, const std::string& name, char* data, std::uint32_t& size) override;
  int Set(Key key, const std::string& name, platform::Value_Type type, std::string_view bytes) override;
  int Delete_Value(Key key, const std::string& name) override;
  int Flush(Key key) override;
  int Close(Key key) override;

  /// Puts a text, terminated, and makes its key; whatever is denied.
  void Put(platform::Hive hive, const std::string& path, const std::string& name, const std::string& text);

  /// The value as a text, without its terminator; nothing if it isn't there.
  [[nodiscard]] std::optional<std::string> Find(platform::Hive hive, const std::string& path,
                                                const std::string& name) const;

  /// Takes the right to write and to delete under a hive away, with code 5, or gives it back.
  void Deny(platform::Hive hive, bool denied);

  /// How many keys were opened and never closed.
  [[nodiscard]] std::size_t Open_Keys() const { return open_keys_.size(); }

 private:
  using Values = std::map<std::string, std::string>;  // bytes by name, the name in capitals

  struct Address {
    platform::Hive hive = platform::Hive::Current_User;
    std::string path;  // in capitals
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
