// Any text as a number and as a truth value, against a second opinion.
#include <cstddef>
#include <cstdint>
#include <string>

#include "basic/convert.h"
#include "fuzz/expect.h"
#include "fuzz/expected_number.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const Outcome narrow = Outcome_Of([&] { return basic::To_Int16(text).Value(); });
  const Outcome wide = Outcome_Of([&] { return basic::To_Int32(text); });
  const Outcome flag = Outcome_Of([&] { return basic::To_Boolean(text); });
  Expect(narrow == Expected_Int16(text), "To_Int16 is right");
  Expect(wide == Expected_Int32(text), "To_Int32 is right");
  Expect(flag == Expected_Flag(text), "To_Boolean is right");
  if (wide.Error == 0) {
    const auto number = static_cast<std::int32_t>(wide.Value);
    Expect(basic::To_Int32(basic::To_Text(number)) == number, "a number reads back as it was written");
  }
  if (flag.Error == 0) {
    const bool value = flag.Value != 0;
    Expect(basic::To_Boolean(basic::To_Text(value)) == value, "a truth value reads back as it was written");
  }
  return 0;
}
