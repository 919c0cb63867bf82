// Named values outside the program's own settings, by place, key and name. The place is a hive of the registry ("HKCU",
// "HKLM", "HKU", "HKDD", "HKCC", "HKCR") or the path of an existing profile file, whose sections are the keys.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/files.h"
#include "platform/profile_files.h"
#include "platform/registry_keys.h"

namespace settings {

/// A value of any kind. The kinds convert into each other: true is the number -1 and the word "True", false is 0 and
/// "False".
using Registry_Value = std::variant<std::string, bool, std::int32_t>;

/// All operations return 0 for success, the registry's own status for its failures, and this if they did nothing.
constexpr int status_nothing_done = 99;

class Registry {
 public:
  Registry(platform::Registry_Keys& keys, platform::Profile_Files& profiles, platform::Files& files)
      : keys_(keys), profiles_(profiles), files_(files) {}

  /// The handle value of the hive of that name, in any letter case; 1 for the path of a file, 0 for anything else.
  std::uint32_t Registry_Hive(std::string_view place);

  /// Reads a value as kind "S" (text), "B" (true or false) or "D" (number), in either letter case. For any other kind
  /// and after every failure the result is the default. From a profile file only texts are read, and the status is
  /// always 0. A read that the registry refuses leaves the key open.
  int Registry_Get(std::string_view place, const std::string& key, const std::string& name, std::string_view kind,
                   const Registry_Value& default_value, Registry_Value& result);

  /// Writes a value; creates the key if it doesn't exist. Kind "D" takes 16-bit numbers only. Data that doesn't convert
  /// isn't written, but the status is that of the step before, 0. A write that fails leaves the key open. Into a
  /// profile file only texts are written.
  int Registry_Set(std::string_view place, const std::string& key, const std::string& name, std::string_view kind,
                   const Registry_Value& data);

  /// Deletes a value; a value that doesn't exist counts as deleted. In a profile file the entry stays, with an empty
  /// text. The registry's key stays open.
  int Registry_Delete(std::string_view place, const std::string& key, const std::string& name);

 private:
  struct Address;

  int Get_From_Profile(const Address& address, char kind, const Registry_Value& default_value, Registry_Value& result);
  void Get_From_Registry(const Address& address, char kind, Registry_Value& result, int& status);
  void Set_In_Registry(const Address& address, char kind, const Registry_Value& data, int& status);
  bool Query_Text(platform::Registry_Keys::Key key, const std::string& name, Registry_Value& result, int& status);
  bool Query_Number(platform::Registry_Keys::Key key, const std::string& name, char kind, Registry_Value& result,
                    int& status);

  platform::Registry_Keys& keys_;
  platform::Profile_Files& profiles_;
  platform::Files& files_;
};

}  // namespace settings
