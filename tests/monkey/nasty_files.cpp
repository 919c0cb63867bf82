#include "nasty_files.h"

#include <array>

#include "basic/text.h"
#include "nasty.h"
#include "settings/setting_keys.h"
#include "text_form.h"

namespace monkey {

namespace {

constexpr const char* packs[] = {"Default", "Default", "Seasons", "P&ck", "Blue Sky"};

constexpr const char* headings[] = {"\"Subject\",\"Start Date\",\"Description\"",
                                    "\"Subject\",\"Start Date\",\"Description\"",
                                    "Subject,Start Date,Description",
                                    "\"Start Date\",\"Start Time\",\"SUBJECT\",\"description\"",
                                    "\"Description\",\"Subject\",\"Start Date\",\"Subject\"",
                                    "\"My Subject\",\"Start Date\",\"Description\"",
                                    "\"Subject\",\"Start Date\"",
                                    "\xEF\xBB\xBF\"Subject\",\"Start Date\",\"Description\"",
                                    "",
                                    "\"Subject\",\"Start Date\",\"Description\""};

constexpr const char* odd_rows[] = {"\"a\",\"9/3/2004\",\"\"",
                                    "\"a\",\"no date\",\"b\"",
                                    "a,9/3/2004,b",
                                    "\"a\",\"9/3/2004",
                                    "\"a\",\"31/2/2004\",\"b\"",
                                    "\"\",\"9/3/2004\",\"\"x",
                                    "",
                                    "\",\",\",\",\",\"",
                                    "\"a\"\"b\",\"9/3/2004\",\"c|d\""};

std::string Date(Random& random) {
  static constexpr const char* forms[] = {"/3/2004", "/3/2004", "/12/2005", "/2/04", "/6/1999", "/3/2004 10:30:00"};
  return std::to_string(random.Below(28) + 1) + random.One_Of(forms);
}

/// What can stand in a quoted field.
std::string Field_Text(Random& random) {
  std::string text = basic::Replace_All(Typed_Text(random), "\"", "'");
  for (const char* const line_end : {"\r\n", "\r", "\n"}) text = basic::Replace_All(text, line_end, " ");
  return text.substr(0, 200);
}

constexpr const char* ordinary_values[] = {"0", "1", "2", "3", "5", "8", "True", "False", "Default", "H:mm", "45"};
constexpr const char* odd_values[] = {"",  "-1",   "7",    "255", "546", "547", "32767", "16777215",   "Seasons",
                                      "x", "none", "\xE4", " 1 ", "1.5", "&H7", "99999", "99999999999"};

const settings::Setting_Key& Any_Key(Random& random) {
  const auto keys = settings::All_Keys();
  return keys[static_cast<std::size_t>(random.Below(static_cast<int>(keys.size())))];
}

std::string Setting(const settings::Setting_Key& key, const std::string& value) {
  return std::string("setting ") + key.Section + " " + play::Quoted(key.Name) + " " + play::Quoted(value) + "\n";
}

/// The values that each setting can have been given by the program itself, and some more that it takes.
struct Usual {
  const char* key;
  std::array<const char*, 6> values;
};

constexpr Usual usual[] = {
    {"Style", {"0", "1", "2", "1", "2", "7"}},
    {"Alignment", {"0", "3", "7", "8", "9", "10"}},
    {"Tooltips", {"0", "1", "2", "1", "2", "2"}},
    {"Pack Name", {"Default", "Default", "Seasons", "P&ck", "Gone", ""}},
    {"Use Themes", {"0", "1", "0", "1", "0", "2"}},
    {"Use Theme Style", {"0", "1", "0", "1", "0", "2"}},
    {"Use Theme Pos", {"0", "1", "0", "1", "0", "2"}},
    {"Use Other Display Mode", {"True", "False", "False", "0", "1", "False"}},
    {"Other Display Mode", {"0", "1", "2", "0", "1", "9"}},
    {"Auto Compact", {"0", "1", "0", "1", "0", "2"}},
    {"Timeout Value", {"0", "1", "5", "45", "546", "2"}},
    {"Timeout Format", {"0", "0", "0", "0", "1", "7"}},
    {"Carriage_Return", {"0", "1", "0", "1", "0", "2"}},
    {"Show Alerts", {"0", "1", "1", "1", "1", "2"}},
    {"Show Splash", {"0", "1", "1", "0", "0", "2"}},
    {"Allow Dragging", {"0", "1", "0", "1", "1", "2"}},
    {"Bar Time", {"True", "False", "True", "0", "1", "False"}},
    {"Bar Time Format", {"H:mm", "HH:mm:ss", "h:mm AM/PM", "", "none", "H:mm"}},
    {"Bar Date Format",
     {"Use System Format", "mm/yyyy", "Month - yyyy", "d Month - yyyy", "Weekday - d month - yyyy", "none"}},
    {"Start Day", {"0", "1", "2", "4", "6", "7"}},
    {"Settings Tab", {"0", "1", "3", "6", "7", "9"}},
    {"Normal", {"16777215", "255", "0", "12632256", "-2147483633", "16777215"}},
    {"Today", {"16761024", "255", "0", "16777215", "-2147483633", "16761024"}},
    {"Menu Colour Source", {"0", "1", "0", "1", "2", "1"}},
    {"Trans Icons", {"0", "1", "0", "1", "0", "2"}}};

}  // namespace

std::string Csv_File(Random& random) {
  std::string bytes = std::string(random.Once_In(3) ? random.One_Of(headings) : headings[0]) + "\r\n";
  const bool odd = random.Once_In(4);
  for (int count = random.Below(12); count > 0; --count) {
    if (odd && random.Once_In(4)) bytes += random.One_Of(odd_rows);
    else bytes += "\"" + Field_Text(random) + "\",\"" + Date(random) + "\",\"x" + Field_Text(random) + "\"";
    bytes += "\r\n";
  }
  return bytes;
}

std::string Config_File(Random& random) {
  std::string bytes;
  for (int count = random.Below(20); count > 0; --count) {
    const settings::Setting_Key& key = Any_Key(random);
    const char* const name = key.Config_Name != nullptr && !random.Once_In(20) ? key.Config_Name : "Unknown";
    const std::string value = random.Once_In(2)    ? key.Default
                              : random.Once_In(10) ? random.One_Of(odd_values)
                                                   : random.One_Of(ordinary_values);
    bytes += "\"" + std::string(name) + "=" + value + (random.Once_In(60) ? "\r\n" : "\"\r\n");
  }
  return bytes;
}

std::string Stored_Setting(Random& random) {
  if (random.Once_In(150)) return Setting(Any_Key(random), random.One_Of(odd_values));
  const Usual& choice = random.One_Of(usual);
  for (const settings::Setting_Key& key : settings::All_Keys())
    if (std::string_view(key.Name) == choice.key) return Setting(key, random.One_Of(choice.values));
  return {};
}

std::string Healed_Settings() {
  std::string lines;
  for (const settings::Setting_Key& key : settings::All_Keys()) lines += Setting(key, key.Default);
  return lines;
}

std::string Make_Pack(const std::string& name, const std::string& value) {
  std::string ini, lines = "remove " + play::Quoted(name) + "\n";
  for (int month = 1; month <= 12; ++month) {
    const std::string number = std::to_string(month);
    ini += number + "=" + value + "\r\n";
    lines += "picture " + play::Quoted(name + "/" + number + ".jpg") + " 2 2 102030\n";
  }
  return lines + "put " + play::Quoted(name + "/settings.ini") + " " + play::Quoted(ini) + "\n";
}

std::string Change_Packs(Random& random) {
  static constexpr const char* values[] = {"0-4-0", "1-0-2", "2-6-1", "0-7-1", "1-9-0", "5-33-7"};
  static constexpr const char* bad_values[] = {"", "x", "1", "1-", "1-2", "1-2-", "a-b-c", "99999-0-0", "-1-2-0"};
  static constexpr const char* broken_files[] = {"", "x=1-0-0\r\n", "\r\n\r\n", "1=0-0-0,2=1-1-1,\"3=2-2-2",
                                                 "[Months]\r\n3=0-0-0\r\n"};
  const std::string name = random.One_Of(packs);
  const std::string month = play::Quoted(name + "/" + std::to_string(random.Below(12) + 1) + ".jpg");
  const std::string ini = play::Quoted(name + "/settings.ini");
  switch (random.Below(16)) {
    case 0: return "remove " + play::Quoted(name) + "\n";
    case 1: return "remove " + month + "\n";
    case 2: return "remove " + ini + "\n";
    case 3: return "put " + month + " \"no picture\"\n";
    case 4: return Make_Pack(name, random.One_Of(bad_values));
    case 5: return "put " + ini + " " + play::Quoted(random.One_Of(broken_files)) + "\n";
    case 6: return "mkdir Empty\nput Notes/readme.txt x\n";
    default: return Make_Pack(name, random.One_Of(values));
  }
}

}  // namespace monkey
