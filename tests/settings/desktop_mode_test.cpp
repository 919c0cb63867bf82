#include "settings/desktop_mode.h"

#include <gtest/gtest.h>

#include "memory/memory_store.h"
#include "settings/stored_settings.h"

using settings::Desktop_Mode;
using settings::Stored_Settings;

namespace {

/// Notes what is read.
class Noting_Store : public memory::Memory_Store {
 public:
  std::string Reads;

  std::string Get(const std::string& application, const std::string& section, const std::string& key,
                  const std::string& text) override {
    Reads += section + '\\' + key + '\n';
    return memory::Memory_Store::Get(application, section, key, text);
  }
};

class Desktop_Mode_Test : public ::testing::Test {
 protected:
  void Put(const std::string& key, const std::string& text) { Store.Save("Meridex", "Desktop", key, text); }

  std::string Stored(const std::string& section, const std::string& key) {
    return Store.Get("Meridex", section, key, "absent");
  }

  bool Modern() {
    Desktop_Mode mode(Store);
    mode.Load();
    return mode.Modern();
  }

  /// The left edge after a start.
  std::int32_t Left() {
    Stored_Settings settings(Store);
    settings.Load_Settings();
    return settings.Manual_Edge(Desktop_Mode::left_edge);
  }

  void Drag_To(std::int32_t left, std::int32_t top = 0) {
    Stored_Settings settings(Store);
    settings.Load_Settings();
    settings.Keep_Manual_Edge(Desktop_Mode::left_edge, left);
    settings.Keep_Manual_Edge(Desktop_Mode::top_edge, top);
    EXPECT_EQ(settings.Manual_Edge(Desktop_Mode::left_edge), left) << "without another start";
  }

  Noting_Store Store;
};

}  // namespace

TEST_F(Desktop_Mode_Test, Is_off_in_an_empty_store_and_on_with_1_alone) {
  EXPECT_FALSE(Modern());
  for (const char* const text : {"0", "", "True", "yes", " 1", "2"}) {
    Put("Modern", text);
    EXPECT_FALSE(Modern()) << text;
  }
  Put("Modern", "1");
  EXPECT_TRUE(Modern());
}

TEST_F(Desktop_Mode_Test, The_consent_counts_from_the_next_start_on) {
  Desktop_Mode mode(Store);
  mode.Load();
  mode.Store_Consent();
  EXPECT_FALSE(mode.Modern());
  EXPECT_EQ(Stored("Desktop", "Modern"), "1");
  EXPECT_TRUE(Modern());
}

TEST_F(Desktop_Mode_Test, A_start_without_it_reads_one_value_more) {
  Put("Manual_PosX", "40000");
  Store.Reads.clear();
  Modern();
  EXPECT_EQ(Store.Reads, "Desktop\\Modern\n");
}

TEST_F(Desktop_Mode_Test, A_place_beyond_16_bits_is_kept_beside_its_nearest_number) {
  Put("Modern", "1");
  Drag_To(51150, -40000);
  EXPECT_EQ(Stored("Settings", "Manual_PosX"), "32767");
  EXPECT_EQ(Stored("Settings", "Manual_PosY"), "-32768");
  EXPECT_EQ(Stored("Desktop", "Manual_PosX"), "51150");
  EXPECT_EQ(Stored("Desktop", "Manual_PosY"), "-40000");
  EXPECT_EQ(Left(), 51150);
}

TEST_F(Desktop_Mode_Test, A_place_within_16_bits_stands_where_it_always_stood) {
  Put("Modern", "1");
  Drag_To(32767, -32768);
  EXPECT_EQ(Stored("Settings", "Manual_PosX"), "32767");
  EXPECT_EQ(Stored("Settings", "Manual_PosY"), "-32768");
  EXPECT_EQ(Stored("Desktop", "Manual_PosX"), "absent");
  EXPECT_EQ(Stored("Desktop", "Manual_PosY"), "absent");
}

TEST_F(Desktop_Mode_Test, The_last_place_within_16_bits_counts_after_one_beyond_them) {
  Put("Modern", "1");
  Drag_To(51150);
  Drag_To(32767);
  EXPECT_EQ(Left(), 32767);
  Drag_To(51150);
  Drag_To(100);
  EXPECT_EQ(Left(), 100);
}

TEST_F(Desktop_Mode_Test, A_place_that_was_set_without_the_mode_counts) {
  Put("Modern", "1");
  Drag_To(51150);
  Put("Modern", "0");
  EXPECT_EQ(Left(), 32767);
  Drag_To(1500);
  Put("Modern", "1");
  EXPECT_EQ(Left(), 1500);
}

TEST_F(Desktop_Mode_Test, A_kept_place_that_is_no_number_counts_as_absent) {
  Put("Modern", "1");
  Store.Save("Meridex", "Settings", "Manual_PosX", "32767");
  for (const char* const text : {"", "far", "99999999999", "4e4"}) {
    Put("Manual_PosX", text);
    EXPECT_EQ(Left(), 32767) << text;
  }
}
