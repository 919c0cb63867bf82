// Named values outside the program's own settings, by place, key and name. The place is a hive of the registry ("HKCU",
// "HKLM", "HKU", "HKDD", "HKCC", "HKCR") or the path of a profile file that is there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/files.h"
#include "platform/profile_files.h"
#include "platform/registry_keys.h"

namespace settings {

/// A value of any kind, and how each kind turns into another: a truth value is the number -1 or 0 and the word "True" or
/// "False". A text that doesn't convert is error 13, a number beyond its type error 6.
using Registry_Value = std::variant<std::string, bool, std::int32_t>;

/// What all operations return: 0 for success, the registry's own code for its failures, and this where nothing happened.
constexpr int status_nothing_done = 99;

class Registry {
 public:
  Registry(platform::Registry_Keys& keys, platform::Profile_Files& profiles, platform::Files& files)
      : keys_(keys), profiles_(profiles), files_(files) {}

  /// The handle value of the hive of that name, in either case; 1 for the path of a file, 0 for anything else.
  std::uint32_t Registry_Hive(std::string_view place);

  /// Reads a value: kind "S" as a text, "B" as a truth value, "D" as a number, in either case; another kind leaves the
  /// default in the result, and so does every failure. Of a profile file only texts are read, and the status is 0.
  /// A read that the registry refuses leaves the key open.
  int Registry_Get(std::string_view place, const std::string& key, const std::string& name, std::string_view kind,
                   const Registry_Value& default_value, Registry_Value& result);

  /// Writes a value, and makes the key where it isn't there. Kind "D" takes 16 bits alone: data that doesn't convert
  /// writes nothing and gives the status of the step before, which is 0. A write that fails leaves the key open.
  int Registry_Set(std::string_view place, const std::string& key, const std::string& name, std::string_view kind,
                   const Registry_Value& data);

  /// Deletes a value; one that isn't there counts as deleted. In a profile file the entry stays, with an empty text. The
  /// key stays open.
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
