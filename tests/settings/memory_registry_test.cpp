#include "memory/memory_registry.h"

#include <gtest/gtest.h>

using memory::Memory_Registry;
using platform::Hive;
using platform::Key_Access;
using platform::Value_Type;

namespace {

class Memory_Registry_Test : public ::testing::Test {
 protected:
  Memory_Registry_Test() { Registry.Create(Hive::Current_User, "Software\\Case", Made); }

  Memory_Registry Registry;
  Memory_Registry::Key Made = 0, Key = 0;
};

}  // namespace

TEST_F(Memory_Registry_Test, Begins_with_the_desktop_s_key_and_no_value) {
  EXPECT_EQ(Registry.Open(Hive::Current_User, "control panel\\desktop", Key_Access::Set_Value, Key), 0);
  EXPECT_EQ(Registry.Find(Hive::Current_User, "Control Panel\\Desktop", "Wallpaper"), std::nullopt);
}

TEST_F(Memory_Registry_Test, Opens_the_keys_above_a_key_and_the_hive_itself) {
  EXPECT_EQ(Registry.Open(Hive::Current_User, "SOFTWARE", Key_Access::Query_Value, Key), 0);
  EXPECT_EQ(Registry.Open(Hive::Current_User, "", Key_Access::Query_Value, Key), 0);
  EXPECT_EQ(Registry.Open(Hive::Current_User, "Soft", Key_Access::Query_Value, Key), platform::status_not_found);
  EXPECT_EQ(Registry.Open(Hive::Local_Machine, "Software", Key_Access::Query_Value, Key), platform::status_not_found);
}

TEST_F(Memory_Registry_Test, Gives_each_opening_a_handle_of_its_own) {
  Registry.Open(Hive::Current_User, "Software\\Case", Key_Access::Query_Value, Key);
  EXPECT_NE(Key, Made);
  EXPECT_EQ(Registry.Open_Keys(), 2U);
  EXPECT_EQ(Registry.Close(Key), 0);
  EXPECT_EQ(Registry.Close(Key), memory::status_invalid_handle);
  EXPECT_EQ(Registry.Open_Keys(), 1U);
}

TEST_F(Memory_Registry_Test, A_handle_that_is_none_is_refused_everywhere) {
  std::uint32_t size = 0;
  for (const Memory_Registry::Key none : {Memory_Registry::Key{0}, Memory_Registry::Key{99}}) {
    EXPECT_EQ(Registry.Query(none, "Value", nullptr, size), memory::status_invalid_handle);
    EXPECT_EQ(Registry.Set(none, "Value", Value_Type::Text, "x"), memory::status_invalid_handle);
    EXPECT_EQ(Registry.Delete_Value(none, "Value"), memory::status_invalid_handle);
    EXPECT_EQ(Registry.Flush(none), memory::status_invalid_handle);
    EXPECT_EQ(Registry.Close(none), memory::status_invalid_handle);
  }
}

TEST_F(Memory_Registry_Test, Adds_the_terminator_to_a_text_alone) {
  char room[8] = {};
  const auto size_of = [&](Value_Type type, std::string_view bytes) {
    Registry.Set(Made, "Value", type, bytes);
    Registry.Open(Hive::Current_User, "Software\\Case", Key_Access::Query_Value, Key);
    std::uint32_t size = sizeof room;
    EXPECT_EQ(Registry.Query(Key, "Value", room, size), 0);
    return size;
  };
  EXPECT_EQ(size_of(Value_Type::Text, "1"), 2U);
  EXPECT_EQ(size_of(Value_Type::Text, std::string_view("1\0", 2)), 2U);
  EXPECT_EQ(size_of(Value_Type::Binary, "1"), 1U);
  EXPECT_EQ(size_of(Value_Type::Text, ""), 0U);
}

TEST_F(Memory_Registry_Test, Tells_the_size_alone_without_a_buffer_and_refuses_one_too_small) {
  Registry.Set(Made, "Value", Value_Type::Text, "abc");
  Registry.Open(Hive::Current_User, "Software\\Case", Key_Access::Query_Value, Key);
  std::uint32_t size = 0;
  EXPECT_EQ(Registry.Query(Key, "Value", nullptr, size), 0);
  EXPECT_EQ(size, 4U);
  char room[4] = {'-', '-', '-', '-'};
  size = 3;
  EXPECT_EQ(Registry.Query(Key, "Value", room, size), platform::status_more_data);
  EXPECT_EQ(size, 4U);
  EXPECT_EQ(room[0], '-');
}

TEST_F(Memory_Registry_Test, Holds_a_key_to_the_rights_that_it_was_opened_with) {
  std::uint32_t size = 0;
  EXPECT_EQ(Registry.Query(Made, "Value", nullptr, size), platform::status_access_denied);
  Registry.Open(Hive::Current_User, "Software\\Case", Key_Access::Query_Value, Key);
  EXPECT_EQ(Registry.Set(Key, "Value", Value_Type::Text, "x"), platform::status_access_denied);
  EXPECT_EQ(Registry.Delete_Value(Key, "Value"), platform::status_access_denied);
  EXPECT_EQ(Registry.Flush(Key), 0);
}

TEST_F(Memory_Registry_Test, Denies_a_hive_for_writing_and_not_for_reading) {
  Registry.Put(Hive::Local_Machine, "Software", "Value", "x");
  Registry.Deny(Hive::Local_Machine, true);
  EXPECT_EQ(Registry.Open(Hive::Local_Machine, "Software", Key_Access::Query_Value, Key), 0);
  EXPECT_EQ(Registry.Open(Hive::Local_Machine, "Software", Key_Access::Set_Value, Key), platform::status_access_denied);
  EXPECT_EQ(Registry.Create(Hive::Local_Machine, "Software\\New", Key), platform::status_access_denied);
  EXPECT_EQ(Registry.Open(Hive::Local_Machine, "None", Key_Access::Set_Value, Key), platform::status_not_found);
  EXPECT_EQ(Registry.Open(Hive::Current_User, "Software", Key_Access::Set_Value, Key), 0) << "the other hive is free";
}

TEST_F(Memory_Registry_Test, Denies_writing_to_keys_that_were_open_before) {
  Registry.Deny(Hive::Current_User, true);
  EXPECT_EQ(Registry.Set(Made, "Value", Value_Type::Text, "x"), platform::status_access_denied);
  EXPECT_EQ(Registry.Delete_Value(Made, "Value"), platform::status_access_denied);
}

TEST_F(Memory_Registry_Test, Puts_and_finds_texts) {
  Registry.Put(Hive::Users, "A\\B", "Name", "text");
  EXPECT_EQ(Registry.Find(Hive::Users, "a\\b", "NAME"), "text");
  Registry.Put(Hive::Users, "A\\B", "name", "");
  EXPECT_EQ(Registry.Find(Hive::Users, "A\\B", "Name"), "");
  EXPECT_EQ(Registry.Find(Hive::Users, "A", "Name"), std::nullopt);
  EXPECT_EQ(Registry.Find(Hive::Users, "None", "Name"), std::nullopt);
}
