#include "tests/settings/registry_cases.h"

using settings::Registry_Value;

namespace {

using enum Registry_Call;

const std::string test_key = "Software\\Meridex Test";

Registry_Step Read(const std::string& place, const std::string& kind, const Registry_Value& default_value, int status,
                   const Registry_Value& result, const std::string& name = "Value", const std::string& key = "Case") {
  return {Get, place, key, name, kind, default_value, status, result};
}

Registry_Step Write(const std::string& place, const std::string& kind, const Registry_Value& data, int status,
                    const std::string& name = "Value", const std::string& key = "Case") {
  return {Set, place, key, name, kind, data, status, {}};
}

Registry_Step Remove(const std::string& place, int status, const std::string& name = "Value",
                     const std::string& key = "Case") {
  return {Delete, place, key, name, "", {}, status, {}};
}

/// A value of bytes that the module itself would not write; as a text if the kind is "S".
Registry_Step Bytes(const std::string& kind, const std::string& bytes) {
  return {Raw, "HKCU", "Case", "Value", kind, bytes, 0, {}};
}

Registry_Value Text(std::string text) { return text; }

const std::string long_text(3000, 'x');
const std::string of_254(254, 'y');

using Cases = std::vector<Registry_Case>;

Cases Places_And_Kinds() {
  return {
      {"An_unknown_place_does_nothing",
       {Read("HKXX", "S", Text("default"), 99, Text("default")), Write("HKXX", "S", Text("x"), 99),
        Remove("HKXX", 99)}},
      {"No_place_at_all_does_nothing", {Write("", "S", Text("x"), 99), Remove("", 99)}},
      {"Places_are_known_in_either_case",
       {Write("hkcu", "S", Text("x"), 0), Read("HkCu", "S", Text(""), 0, Text("x")), Remove("hKCU", 0)}},
      {"Kinds_are_known_in_either_case",
       {Write("HKCU", "s", Text("x"), 0), Read("HKCU", "s", Text(""), 0, Text("x")), Write("HKCU", "d", 7, 0),
        Read("HKCU", "d", 0, 0, 7), Write("HKCU", "b", true, 0), Read("HKCU", "b", false, 0, true)}},
      {"Another_kind_leaves_the_default",
       {Write("HKCU", "S", Text("x"), 0), Read("HKCU", "X", Text("default"), 0, Text("default")),
        Read("HKCU", "SS", Text("default"), 0, Text("default")), Read("HKCU", "", 5, 0, 5)}},
      {"Another_kind_writes_nothing",
       {Write("HKCU", "X", Text("x"), 0), Read("HKCU", "S", Text("none"), 2, Text("none"))}},
      {"Key_and_value_names_are_known_in_either_case",
       {Write("HKCU", "S", Text("x"), 0, "Value", "Case"), Read("HKCU", "S", Text(""), 0, Text("x"), "VALUE", "cASE")}},
  };
}

Cases Reading() {
  return {
      {"A_missing_key_is_not_found", {Read("HKCU", "S", Text("none"), 2, Text("none"), "Value", "No\\Such")}},
      {"A_missing_value_is_not_found",
       {Write("HKCU", "S", Text("x"), 0, "Other"), Read("HKCU", "S", Text("none"), 2, Text("none")),
        Read("HKCU", "B", true, 2, true), Read("HKCU", "D", 9, 2, 9), Remove("HKCU", 0, "Other")}},
      {"A_default_keeps_its_type", {Read("HKCU", "S", 5, 2, 5), Read("HKCU", "D", Text("t"), 2, Text("t"))}},
      {"A_text_reads_back_whole",
       {Write("HKCU", "S", Text("C:\\Meridex\\Meridex.exe"), 0),
        Read("HKCU", "S", Text(""), 0, Text("C:\\Meridex\\Meridex.exe"))}},
      {"A_text_of_one_character_reads_back",
       {Write("HKCU", "S", Text("1"), 0), Read("HKCU", "S", Text(""), 0, Text("1"))}},
      {"A_text_of_any_length_reads_back",
       {Write("HKCU", "S", long_text, 0), Read("HKCU", "S", Text(""), 0, long_text)}},
      {"A_text_of_other_letters_reads_back",
       {Write("HKCU", "S", Text("\xC4rger \xFC\x62\x65r \x80"), 0),
        Read("HKCU", "S", Text(""), 0, Text("\xC4rger \xFC\x62\x65r \x80"))}},
      {"An_empty_text_with_its_terminator_reads_empty",
       {Bytes("S", std::string(1, '\0')), Read("HKCU", "S", Text("default"), 0, Text(""))}},
      {"A_value_of_no_bytes_leaves_the_default",
       {Bytes("B", ""), Read("HKCU", "S", Text("default"), 0, Text("default"))}},
      {"A_written_empty_text_leaves_the_default",
       {Write("HKCU", "S", Text(""), 0), Read("HKCU", "S", Text("default"), 0, Text("default"))}},
      {"A_truth_value_reads_back",
       {Write("HKCU", "B", true, 0), Read("HKCU", "B", false, 0, true), Write("HKCU", "B", false, 0),
        Read("HKCU", "B", true, 0, false)}},
      {"A_truth_value_is_two_bytes_of_ones",
       {Write("HKCU", "B", true, 0), Read("HKCU", "S", Text(""), 0, Text("\xFF")), Read("HKCU", "D", 0, 0, 0xFFFF)}},
      {"Any_two_bytes_but_zero_are_true",
       {Bytes("B", std::string("\0\1", 2)), Read("HKCU", "B", false, 0, true), Bytes("B", std::string("\0\0", 2)),
        Read("HKCU", "B", true, 0, false)}},
      {"One_byte_is_enough_for_a_truth_value", {Bytes("B", "\1"), Read("HKCU", "B", false, 0, true)}},
      {"A_longer_value_is_no_truth_value", {Write("HKCU", "D", 1, 0), Read("HKCU", "B", false, 234, false)}},
      {"A_number_reads_back",
       {Write("HKCU", "D", 32767, 0), Read("HKCU", "D", 0, 0, 32767), Write("HKCU", "D", 0, 0),
        Read("HKCU", "D", 1, 0, 0)}},
      {"A_negative_number_keeps_its_sign",
       {Write("HKCU", "D", -2, 0), Read("HKCU", "D", 0, 0, -2), Write("HKCU", "D", -32768, 0),
        Read("HKCU", "D", 0, 0, -32768)}},
      {"A_number_of_32_bits_is_read_whole", {Bytes("D", "\x78\x56\x34\x12"), Read("HKCU", "D", 0, 0, 0x12345678)}},
      {"Of_up_to_32_bytes_the_first_four_are_the_number",
       {Bytes("B", std::string("\5\0\0\0", 4) + std::string(28, '\x77')), Read("HKCU", "D", 0, 0, 5)}},
      {"More_than_32_bytes_are_no_number", {Bytes("B", std::string(33, '\1')), Read("HKCU", "D", 6, 234, 6)}},
  };
}

/// What each kind makes of each type.
Cases Writing() {
  return {
      {"Texts_are_made_of_truth_values_and_numbers",
       {Write("HKCU", "S", true, 0), Read("HKCU", "S", Text(""), 0, Text("True")), Write("HKCU", "S", -12, 0),
        Read("HKCU", "S", Text(""), 0, Text("-12"))}},
      {"Truth_values_are_made_of_texts_and_numbers",
       {Write("HKCU", "B", Text("true"), 0), Read("HKCU", "B", false, 0, true), Write("HKCU", "B", Text("0"), 0),
        Read("HKCU", "B", true, 0, false), Write("HKCU", "B", 70000, 0), Read("HKCU", "B", false, 0, true)}},
      {"Numbers_are_made_of_texts_and_truth_values",
       {Write("HKCU", "D", Text(" 12 "), 0), Read("HKCU", "D", 0, 0, 12), Write("HKCU", "D", true, 0),
        Read("HKCU", "D", 0, 0, -1)}},
      {"A_number_beyond_16_bits_writes_nothing_and_counts_as_done",
       {Write("HKCU", "D", 70000, 0), Read("HKCU", "D", 3, 2, 3), Write("HKCU", "D", -32769, 0),
        Read("HKCU", "D", 3, 2, 3)}},
      {"A_text_that_is_no_number_writes_nothing_and_counts_as_done",
       {Write("HKCU", "D", Text("abc"), 0), Write("HKCU", "B", Text("perhaps"), 0), Read("HKCU", "S", 3, 2, 3)}},
      {"Writing_makes_the_key_and_all_above_it",
       {Write("HKCU", "S", Text("x"), 0, "Value", "New\\Below\\Deep"),
        Read("HKCU", "S", Text(""), 0, Text("x"), "Value", "New\\Below\\Deep"),
        Read("HKCU", "S", Text("d"), 2, Text("d"), "Value", "New\\Below"),
        Remove("HKCU", 0, "Value", "New\\Below\\Deep")}},
      {"Writing_replaces_value_and_kind",
       {Write("HKCU", "S", Text("longer than what comes"), 0), Write("HKCU", "D", 1, 0), Read("HKCU", "D", 0, 0, 1)}},
  };
}

Cases Deleting() {
  return {
      {"Deleting_takes_the_value_away",
       {Write("HKCU", "S", Text("x"), 0), Remove("HKCU", 0), Read("HKCU", "S", Text("none"), 2, Text("none"))}},
      {"Deleting_a_missing_value_succeeds",
       {Write("HKCU", "S", Text("x"), 0, "Other"), Remove("HKCU", 0), Remove("HKCU", 0, "Other")}},
      {"Deleting_in_a_missing_key_succeeds", {Remove("HKCU", 0, "Value", "No\\Such")}},
  };
}

Cases Profile_Files() {
  return {
      {"A_profile_text_reads_back",
       {Write("INI", "S", Text("hello"), 0), Read("INI", "S", Text("d"), 0, Text("hello"))}},
      {"A_profile_text_of_a_truth_value_or_a_number",
       {Write("INI", "S", true, 0), Read("INI", "S", Text(""), 0, Text("True")), Write("INI", "s", 12, 0),
        Read("INI", "S", Text(""), 0, Text("12"))}},
      {"A_missing_profile_entry_gives_the_default_as_a_text",
       {Read("INI", "S", Text("d"), 0, Text("d")), Read("INI", "S", 5, 0, Text("5")),
        Read("INI", "S", true, 0, Text("True"))}},
      {"Profile_sections_and_entries_are_known_in_either_case",
       {Write("INI", "S", Text("x"), 0, "Value", "Case"), Read("INI", "S", Text(""), 0, Text("x"), "vALUE", "cASE")}},
      {"A_profile_text_loses_its_blanks_and_quotes",
       {Write("INI", "S", Text("  a b  "), 0), Read("INI", "S", Text(""), 0, Text("a b")),
        Write("INI", "S", Text("\" q \""), 0), Read("INI", "S", Text(""), 0, Text(" q ")),
        Write("INI", "S", Text("'q'"), 0), Read("INI", "S", Text(""), 0, Text("q"))}},
      {"A_profile_text_is_cut_behind_254_characters",
       {Write("INI", "S", of_254, 0), Read("INI", "S", Text(""), 0, of_254), Write("INI", "S", of_254 + "z", 0),
        Read("INI", "S", Text(""), 0, of_254)}},
      {"A_default_for_a_profile_text_loses_its_last_blanks", {Read("INI", "S", Text(" d  "), 0, Text(" d"))}},
      {"Other_kinds_read_nothing_from_a_profile",
       {Write("INI", "S", Text("12"), 0), Read("INI", "D", 5, 0, 5), Read("INI", "B", true, 0, true),
        Read("INI", "X", Text("d"), 0, Text("d"))}},
      {"Other_kinds_write_nothing_to_a_profile",
       {Write("INI", "D", 12, 99), Write("INI", "B", true, 99), Write("INI", "X", Text("x"), 99),
        Read("INI", "S", Text("d"), 0, Text("d"))}},
      {"A_deleted_profile_entry_stays_with_an_empty_text",
       {Write("INI", "S", Text("x"), 0), Remove("INI", 0), Read("INI", "S", Text("d"), 0, Text(""))}},
      {"Deleting_a_missing_profile_entry_makes_an_empty_one",
       {Remove("INI", 0), Read("INI", "S", Text("d"), 0, Text(""))}},
      {"Profile_entries_keep_to_their_sections",
       {Write("INI", "S", Text("1"), 0, "Value", "One"), Write("INI", "S", Text("2"), 0, "Value", "Two"),
        Write("INI", "S", Text("3"), 0, "More", "One"), Read("INI", "S", Text(""), 0, Text("1"), "Value", "One"),
        Read("INI", "S", Text(""), 0, Text("2"), "Value", "Two"),
        Read("INI", "S", Text(""), 0, Text("3"), "More", "One"),
        Read("INI", "S", Text("d"), 0, Text("d"), "More", "Two")}},
  };
}

}  // namespace

const Cases& All_Registry_Cases() {
  static const Cases cases = [] {
    Cases all;
    for (const Cases& part : {Places_And_Kinds(), Reading(), Writing(), Deleting(), Profile_Files()})
      all.insert(all.end(), part.begin(), part.end());
    return all;
  }();
  return cases;
}

void Registry_Cases::SetUp() {
  World = std::get<0>(GetParam())();
  Registry = std::make_unique<settings::Registry>(World->Keys(), World->Profiles(), World->Files());
  Profile = World->Files().Program_Folder() + "\\registry_cases.ini";
  World->Files().Create(Profile);
  Registry->Registry_Delete("HKCU", test_key + "\\Case", "Value");
}

void Registry_Cases::Play(const Registry_Step& step) {
  const bool in_profile = step.Place == "INI";
  const std::string place = in_profile ? Profile : step.Place;
  const std::string key = in_profile ? step.Key : test_key + "\\" + step.Key;
  Registry_Value result = Text("never set");
  switch (step.Call) {
    case Get:
      EXPECT_EQ(Registry->Registry_Get(place, key, step.Name, step.Kind, step.Data, result), step.Status);
      EXPECT_EQ(result, step.Result);
      return;
    case Set: EXPECT_EQ(Registry->Registry_Set(place, key, step.Name, step.Kind, step.Data), step.Status); return;
    case Delete: EXPECT_EQ(Registry->Registry_Delete(place, key, step.Name), step.Status); return;
    case Raw: break;
  }
  platform::Registry_Keys::Key handle = 0;
  const auto type = step.Kind == "S"   ? platform::Value_Type::Text
                    : step.Kind == "D" ? platform::Value_Type::Dword
                                       : platform::Value_Type::Binary;
  ASSERT_EQ(World->Keys().Create(platform::Hive::Current_User, key, handle), 0);
  EXPECT_EQ(World->Keys().Set(handle, step.Name, type, std::get<std::string>(step.Data)), 0);
  World->Keys().Close(handle);
}

TEST_P(Registry_Cases, Holds) {
  int number = 0;
  for (const Registry_Step& step : std::get<1>(GetParam()).Steps) {
    SCOPED_TRACE("step " + std::to_string(++number) + ": " + step.Place + " " + step.Key + " " + step.Name + " " +
                 step.Kind);
    Play(step);
  }
}
