// Any bytes as a pack's settings.ini: the month's value is the one that a slower reading finds, each bad line fails the
// lookup with its message and leaves the file number taken, and the value's three fields are numbers or errors.
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/expect.h"
#include "fuzz/expected_number.h"
#include "memory/memory_platform.h"
#include "packs/pack_lookup.h"
#include "tests/basic/read_by_the_letter.h"

namespace {

/// Of a number: its digits without a sign, the zeros before it, and a fraction of zeros.
std::string Plain(std::string number) {
  number = Without_Outer_Blanks(number);
  if (number[0] == '+') number.erase(0, 1);
  const bool negative = number[0] == '-';
  if (negative) number.erase(0, 1);
  if (number.find('.') != std::string::npos) {
    number.erase(number.find_last_not_of('0') + 1);
    if (number.back() == '.') number.pop_back();
  }
  number.erase(0, number.find_first_not_of('0'));
  return (negative ? "-" : "") + number;
}

struct Expected_Value {
  int Error = 0;
  std::string Value;
};

Expected_Value Expected_For(const std::string& bytes, int month) {
  Expected_Value expected;
  for (const std::string& line : Read_By_The_Letter(bytes)) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return {5, ""};
    if (!Is_Number(line.substr(0, equals))) return {13, ""};
    if (Plain(line.substr(0, equals)) == std::to_string(month)) expected.Value = line.substr(equals + 1);
  }
  return expected;
}

/// The fields of a value: what stands before the first "-", between the first two, and behind them.
Outcome Expected_Field(const std::string& value, int field) {
  const std::size_t first = value.find('-');
  if (first == std::string::npos) return {5};
  if (field == 0) return Expected_Int16(value.substr(0, first));
  const std::size_t second = value.find('-', first + 1);
  if (second == std::string::npos) return {5};
  return Expected_Int16(field == 1 ? value.substr(first + 1, second - first - 1) : value.substr(second + 1));
}

void Expect_Fields(const std::string& value) {
  const auto outcome = [&](basic::Int16 (*read)(std::string_view)) {
    return Outcome_Of([&] { return read(value).Value(); });
  };
  Expect(outcome(packs::Get_Paper_BoxStyle) == Expected_Field(value, 0), "the box style is right");
  Expect(outcome(packs::Get_Paper_Pos) == Expected_Field(value, 1), "the position is right");
  Expect(outcome(packs::Get_Paper_DisplayMode) == Expected_Field(value, 2), "the display mode is right");
}

/// A computer with the pack on its disk.
class Machine {
 public:
  explicit Machine(const std::string& bytes) { platform_.Files.Put(memory::Memory_Files::Full_Path(file), bytes); }

  void Expect_Lookup(const Expected_Value& expected, int month) {
    Expect_Details(expected, month);
    Expect_Details(expected, month);  // a failure has left the file number taken, so that it fails again
  }

 private:
  static constexpr const char* file = "Seasons\\settings.ini";

  void Expect_Details(const Expected_Value& expected, int month) {
    const std::string details = lookup_.Get_Paper_Details(month, "Seasons");
    const auto shown = platform_.Message_Box.Take_Shown();
    Expect(details == (expected.Error == 0 ? expected.Value : packs::lookup_error), "the lookup gives the value");
    Expect(shown.size() == (expected.Error == 0 ? 0U : 1U), "a failure is told once");
  }

  memory::Memory_Platform platform_;
  basic::File_Channel channel_{platform_.Files};
  settings::Stored_Settings settings_{platform_.Store};
  packs::Set_Wallpaper_Mod wallpaper_{platform_.Registry, platform_.Wallpaper};
  packs::Pack_Lookup lookup_{platform_.Files,       channel_,  platform_.Pictures,
                             platform_.Message_Box, settings_, wallpaper_};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  for (const int month : {1, 3, 12}) {
    const Expected_Value expected = Expected_For(bytes, month);
    std::string found;
    const int error = Error_Of([&] { found = packs::Find_Month_Value(bytes, month); });
    Expect(error == expected.Error, "the lookup fails where a line is bad, and how");
    Expect(found == expected.Value || error != 0, "the month's last line counts");
    if (error == 0) Expect_Fields(found);
    if (month == 3) Machine(bytes).Expect_Lookup(expected, month);
  }
  return 0;
}
