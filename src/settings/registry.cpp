#include "settings/registry.h"

#include "basic/convert.h"
#include "basic/text.h"

namespace settings {

namespace {

using Key = platform::Registry_Keys::Key;

constexpr std::uint32_t unknown_place = 0;
constexpr std::uint32_t profile_file = 1;
constexpr unsigned profile_room = 255;
constexpr std::uint32_t binary_size = 2;
constexpr std::uint32_t number_room = 32;

struct Hive_Name {
  std::string_view name;
  platform::Hive hive;
};

constexpr Hive_Name hive_names[] = {
    {"HKCU", platform::Hive::Current_User},   {"HKLM", platform::Hive::Local_Machine},
    {"HKU", platform::Hive::Users},           {"HKDD", platform::Hive::Dyn_Data},
    {"HKCC", platform::Hive::Current_Config}, {"HKCR", platform::Hive::Classes_Root},
};

/// The letter of a kind in upper case; '\0' if the text isn't a kind.
char Kind_Letter(std::string_view kind) {
  const std::string letter = basic::Upper_Case(kind);
  return letter == "S" || letter == "B" || letter == "D" ? letter.front() : '\0';
}

struct As_Text {
  std::string operator()(const std::string& text) const { return text; }
  template <class Value>
  std::string operator()(Value value) const {
    return basic::To_Text(value);
  }
};

struct As_Boolean {
  bool operator()(const std::string& text) const { return basic::To_Boolean(text); }
  bool operator()(bool value) const { return value; }
  bool operator()(std::int32_t number) const { return number != 0; }
};

struct As_Int16 {
  basic::Int16 operator()(const std::string& text) const { return basic::To_Int16(text); }
  basic::Int16 operator()(bool value) const { return value ? -1 : 0; }
  basic::Int16 operator()(std::int32_t number) const { return number; }
};

/// The lowest `size` bytes of a number, the lowest first, as the registry keeps numbers.
std::string Bytes_Of(std::int32_t number, std::size_t size) {
  std::string bytes;
  for (auto rest = static_cast<std::uint32_t>(number); bytes.size() < size; rest >>= 8)
    bytes += static_cast<char>(rest);
  return bytes;
}

std::int32_t Number_Of(const char* bytes, std::size_t size) {
  std::uint32_t number = 0;
  while (size > 0) number = number << 8 | static_cast<unsigned char>(bytes[--size]);
  return static_cast<std::int32_t>(number);
}

}  // namespace

struct Registry::Address {
  std::string place;
  std::uint32_t hive;
  const std::string& key;
  const std::string& name;

  [[nodiscard]] platform::Hive Hive() const { return static_cast<platform::Hive>(hive); }
};

std::uint32_t Registry::Registry_Hive(std::string_view place) {
  const std::string name = basic::Upper_Case(place);
  for (const Hive_Name& known : hive_names)
    if (known.name == name) return static_cast<std::uint32_t>(known.hive);
  return files_.File_Exists(std::string(place)) ? profile_file : unknown_place;
}

int Registry::Registry_Get(std::string_view place, const std::string& key, const std::string& name,
                           std::string_view kind, const Registry_Value& default_value, Registry_Value& result) {
  int status = status_nothing_done;
  result = default_value;
  const Address address{std::string(place), Registry_Hive(place), key, name};
  if (address.hive == unknown_place) return status;
  if (address.hive == profile_file) return Get_From_Profile(address, Kind_Letter(kind), default_value, result);
  try {
    Get_From_Registry(address, Kind_Letter(kind), result, status);
  } catch (const basic::Run_Error&) {
    // The status is that of the last call; the result still holds the default.
  }
  return status;
}

int Registry::Get_From_Profile(const Address& address, char kind, const Registry_Value& default_value,
                               Registry_Value& result) {
  if (kind == 'S')
    result = profiles_.Get_Text(address.key, address.name, std::visit(As_Text{}, default_value), profile_room,
                                address.place);
  else profiles_.Get_Number(address.key, address.name, 0, address.place);  // read, but never returned
  return 0;
}

void Registry::Get_From_Registry(const Address& address, char kind, Registry_Value& result, int& status) {
  Key key = 0;
  status = keys_.Open(address.Hive(), address.key, platform::Key_Access::Query_Value, key);
  if (status != 0) return;
  if (kind == 'S' && !Query_Text(key, address.name, result, status)) return;
  if ((kind == 'B' || kind == 'D') && !Query_Number(key, address.name, kind, result, status)) return;
  status = keys_.Close(key);
}

/// Asks for the size first, with an empty buffer. Returns false if there is no such value. Throws error 5 for a value
/// of no bytes.
bool Registry::Query_Text(Key key, const std::string& name, Registry_Value& result, int& status) {
  std::string buffer;
  std::uint32_t size = 0;
  status = keys_.Query(key, name, buffer.data(), size);
  if (status == platform::status_more_data) {
    buffer.assign(size, ' ');
    status = keys_.Query(key, name, buffer.data(), size);
  }
  if (status != 0) return false;
  // The size includes the terminator, which is cut off. A value of no bytes has none.
  if (buffer.empty()) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  buffer.pop_back();
  result = std::move(buffer);
  return true;
}

/// Returns false if there is no value, or one that is too large.
bool Registry::Query_Number(Key key, const std::string& name, char kind, Registry_Value& result, int& status) {
  char bytes[number_room] = {};
  std::uint32_t size = kind == 'B' ? binary_size : number_room;
  status = keys_.Query(key, name, bytes, size);
  if (status != 0) return false;
  if (kind == 'B') result = Number_Of(bytes, binary_size) != 0;
  else result = Number_Of(bytes, sizeof(std::int32_t));
  return true;
}

int Registry::Registry_Set(std::string_view place, const std::string& key, const std::string& name,
                           std::string_view kind, const Registry_Value& data) {
  int status = status_nothing_done;
  const Address address{std::string(place), Registry_Hive(place), key, name};
  if (address.hive == unknown_place) return status;
  if (address.hive == profile_file) {
    if (Kind_Letter(kind) != 'S') return status;
    profiles_.Write_Text(key, name, std::visit(As_Text{}, data), address.place);
    return 0;
  }
  try {
    Set_In_Registry(address, Kind_Letter(kind), data, status);
  } catch (const basic::Run_Error&) {
    // Data that doesn't convert: the status is that of creating the key, and the key stays open.
  }
  return status;
}

void Registry::Set_In_Registry(const Address& address, char kind, const Registry_Value& data, int& status) {
  using platform::Value_Type;
  Key key = 0;
  status = keys_.Create(address.Hive(), address.key, key);
  if (status != 0) return;
  if (kind == 'S') status = keys_.Set(key, address.name, Value_Type::Text, std::visit(As_Text{}, data));
  if (kind == 'B') {
    const int truth = std::visit(As_Boolean{}, data) ? -1 : 0;
    status = keys_.Set(key, address.name, Value_Type::Binary, Bytes_Of(truth, binary_size));
  }
  if (kind == 'D') {
    const basic::Int16 number = std::visit(As_Int16{}, data);
    status = keys_.Set(key, address.name, Value_Type::Dword, Bytes_Of(number.Value(), sizeof(std::int32_t)));
  }
  if (status == 0) status = keys_.Close(key);
}

int Registry::Registry_Delete(std::string_view place, const std::string& key, const std::string& name) {
  const std::uint32_t hive = Registry_Hive(place);
  if (hive == unknown_place) return status_nothing_done;
  if (hive == profile_file) {
    profiles_.Write_Text(key, name, "", std::string(place));
    return 0;
  }
  Key handle = 0;
  int status = keys_.Open(static_cast<platform::Hive>(hive), key, platform::Key_Access::Set_Value, handle);
  if (status == 0) status = keys_.Delete_Value(handle, name);
  return status == platform::status_not_found ? 0 : status;
}

}  // namespace settings
