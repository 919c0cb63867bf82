// The registry's own calls: each returns the system's status, 0 for success.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

/// The registry's top keys, by their handle values.
enum class Hive : std::uint32_t {
  Classes_Root = 0x80000000U,
  Current_User = 0x80000001U,
  Local_Machine = 0x80000002U,
  Users = 0x80000003U,
  Current_Config = 0x80000005U,
  Dyn_Data = 0x80000006U,
};

enum class Key_Access : std::uint32_t { Query_Value = 1, Set_Value = 2, Set_Value_And_Create = 6 };
enum class Value_Type : std::uint32_t { Text = 1, Binary = 3, Dword = 4 };

constexpr int status_not_found = 2;
constexpr int status_access_denied = 5;
constexpr int status_more_data = 234;

class Registry_Keys {
 public:
  using Key = std::uintptr_t;

  virtual ~Registry_Keys() = default;

  /// Opens an existing key.
  virtual int Open(Hive hive, const std::string& path, Key_Access access, Key& key) = 0;

  /// Opens a key for setting values and for creating keys below it; creates the key if it doesn't exist.
  virtual int Create(Hive hive, const std::string& path, Key& key) = 0;

  /// Copies the value's bytes to `data`, which has room for `size` of them, and sets `size` to their number. If `data`
  /// is nullptr, only `size` is set, with status 0; if there is too little room, only `size` is set, with
  /// status_more_data. The size of a text includes its terminator, which is added if the text was written without one.
  virtual int Query(Key key, const std::string& name, char* data, std::uint32_t& size) = 0;

  virtual int Set(Key key, const std::string& name, Value_Type type, std::string_view bytes) = 0;
  virtual int Delete_Value(Key key, const std::string& name) = 0;
  virtual int Flush(Key key) = 0;
  virtual int Close(Key key) = 0;
};

}  // namespace platform
