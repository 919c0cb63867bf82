// Any bytes as a configuration file: the store and the settings are what a slow reading makes of them, up to the first line
// that fails; and what the settings go out as comes in again as the same settings.
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "basic/convert.h"
#include "basic/record_reader.h"
#include "exchange/config.h"
#include "fuzz/expect.h"
#include "fuzz/expected_number.h"
#include "memory/memory_store.h"
#include "tests/basic/read_by_the_letter.h"
#include "tests/exchange/config_lines.h"

namespace {

enum class Type { Int16, Int32, Truth, Text };

/// What a line of the file leads to.
struct Row {
  const char* Section;
  const char* Key;
  Type Kind;
};

const std::map<std::string, Row> rows = {
    {"Style", {"Settings", "Style", Type::Int16}},
    {"TaskPos", {"Settings", "Alignment", Type::Int16}},
    {"Col_Today", {"Colours", "Today", Type::Int32}},
    {"Col_Normal", {"Colours", "Normal", Type::Int32}},
    {"Col_Fore", {"Colours", "Fore", Type::Int32}},
    {"Col_Num", {"Colours", "Num", Type::Int32}},
    {"Col_Text", {"Colours", "Text", Type::Int32}},
    {"Col_Back", {"Colours", "Back", Type::Int32}},
    {"Col_Inactive", {"Colours", "Inactive", Type::Int32}},
    {"Menu_Col_Sorce", {"Colours", "Menu Colour Source", Type::Int16}},
    {"Show_Alerts", {"Settings", "Show Alerts", Type::Int16}},
    {"Use_Themes", {"Settings", "Use Themes", Type::Int16}},
    {"Use_Theme_Pos", {"Settings", "Use Theme Pos", Type::Int16}},
    {"Use_Theme_Style", {"Settings", "Use Theme Style", Type::Int16}},
    {"Allow_Dragging", {"Settings", "Allow Dragging", Type::Int16}},
    {"Bar_Time", {"Settings", "Bar Time", Type::Truth}},
    {"Bar_Time_Format", {"Settings", "Bar Time Format", Type::Text}},
    {"Bar_Date_Format", {"Settings", "Bar Date Format", Type::Text}},
    {"Manual_PosX", {"Settings", "Manual_PosX", Type::Int16}},
    {"Manual_PosY", {"Settings", "Manual_PosY", Type::Int16}},
    {"Use_Other_Display_Mode", {"Settings", "Use Other Display Mode", Type::Truth}},
    {"Other_Display_Mode", {"Settings", "Other Display Mode", Type::Int16}},
    {"Auto_Compact", {"Settings", "Auto Compact", Type::Int16}},
    {"Pack_Name", {"Settings", "Pack Name", Type::Text}},
    {"Show_Splash", {"Settings", "Show Splash", Type::Int16}},
    {"Trans_Icons", {"Settings", "Trans Icons", Type::Int16}},
    {"Timeout_Value", {"Settings", "Timeout Value", Type::Int16}},
    {"Timeout_Format", {"Settings", "Timeout Format", Type::Int16}},
    {"Carriage_Return", {"Settings", "Carriage_Return", Type::Int16}},
    {"Start_Day", {"Settings", "Start Day", Type::Int16}},
    {"Tooltips", {"Settings", "Tooltips", Type::Int16}},
};

int Error_Of_Value(const std::string& value, Type kind) {
  switch (kind) {
    case Type::Int16: return Expected_Int16(value).Error;
    case Type::Int32: return Expected_Int32(value).Error;
    case Type::Truth: return Expected_Flag(value).Error;
    case Type::Text: break;
  }
  return 0;
}

struct Expected_Import {
  int Error = 0;
  std::map<std::pair<std::string, std::string>, std::string> Store;
};

Expected_Import Expected_For(const std::string& bytes) {
  Expected_Import expected;
  for (const std::string& line : Read_By_The_Letter(bytes)) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) {
      expected.Error = 5;
      break;
    }
    const auto row = rows.find(line.substr(0, equals));
    if (row == rows.end()) continue;
    const std::string value = line.substr(equals + 1);
    expected.Store[{row->second.Section, row->second.Key}] = value;
    expected.Error = Error_Of_Value(value, row->second.Kind);
    if (expected.Error != 0) break;
  }
  return expected;
}

int Import(const std::string& bytes, settings::Stored_Settings& stored) {
  return Error_Of([&] {
    basic::Record_Reader reader(bytes);
    for (std::string_view record; reader.Next(record);) exchange::Apply_Config_Line(record, stored);
  });
}

exchange::Shown_Values As_Shown(const settings::Settings& values) {
  return {
      values,         basic::To_Text(values.Timeout_Value), values.Style, values.Alignment, values.Menu_Colour_Source,
      values.Tooltips};
}

void Expect_Store(const memory::Memory_Store& store, const Expected_Import& expected) {
  std::map<std::pair<std::string, std::string>, std::string> kept;
  for (const auto& value : store.Values(settings::application)) kept[{value.Section, value.Key}] = value.Text;
  Expect(kept == expected.Store, "the store holds each known line's text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const Expected_Import expected = Expected_For(bytes);
  memory::Memory_Store store;
  settings::Stored_Settings stored(store);
  stored.Load_Settings();
  Expect(Import(bytes, stored) == expected.Error, "the import fails at the line where it must, and how");
  Expect_Store(store, expected);
  const std::vector<std::string> lines = Config_Lines(As_Shown(stored.Values));
  memory::Memory_Store other_store;
  settings::Stored_Settings other(other_store);
  other.Load_Settings();
  for (const std::string& line : lines)
    Expect(Error_Of([&] { exchange::Apply_Config_Line(line, other); }) == 0, "what goes out comes in");
  Expect(Config_Lines(As_Shown(other.Values)) == lines, "what came in goes out the same");
  if (expected.Error == 0) {
    settings::Stored_Settings loaded(store);
    Expect(Error_Of([&] { loaded.Load_Settings(); }) == 0, "the store can be loaded");
    Expect(Config_Lines(As_Shown(loaded.Values)) == lines, "and holds the same settings");
  }
  return 0;
}
