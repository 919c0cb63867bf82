// The registry's table of cases against the real registry and real profile files, with the system's own "reg query" as a
// witness of what was written.
#include <cstdlib>

#include "tests/settings/registry_cases.h"
#include "win32/disk_files.h"
#include "win32/registry_services.h"
#include "win32/system_profiles.h"

namespace {

class System_World : public Registry_World {
 public:
  platform::Registry_Keys& Keys() override { return keys_; }
  platform::Profile_Files& Profiles() override { return profiles_; }
  platform::Files& Files() override { return files_; }

 private:
  win32::Disk_Files files_;
  win32::System_Registry keys_;
  win32::System_Profiles profiles_;
};

World_Maker maker = []() -> std::unique_ptr<Registry_World> { return std::make_unique<System_World>(); };

class Registry_Witness : public ::testing::Test {
 protected:
  /// What "reg query" prints of the value.
  std::string Query(const std::string& name) {
    const std::string output = Files.Program_Folder() + "\\query.txt";
    std::system(
        ("reg query \"HKCU\\Software\\Meridex Test\\Witness\" /v \"" + name + "\" > \"" + output + "\" 2>&1").c_str());
    std::string text;
    Files.Read_Whole(output, text);
    return text;
  }

  int Set(const std::string& name, const char* kind, const settings::Registry_Value& data) {
    return Registry.Registry_Set("HKCU", "Software\\Meridex Test\\Witness", name, kind, data);
  }

  win32::Disk_Files Files;
  win32::System_Registry Keys;
  win32::System_Profiles Profiles;
  settings::Registry Registry{Keys, Profiles, Files};
};

bool Holds(const std::string& text, const std::string& piece) { return text.find(piece) != std::string::npos; }

}  // namespace

INSTANTIATE_TEST_SUITE_P(System, Registry_Cases,
                         ::testing::Combine(::testing::Values(maker), ::testing::ValuesIn(All_Registry_Cases())),
                         Registry_Cases::Name_Of);

TEST_F(Registry_Witness, Sees_a_text) {
  ASSERT_EQ(Set("Text", "S", std::string("C:\\Meridex\\Meridex.exe")), 0);
  const std::string seen = Query("Text");
  EXPECT_TRUE(Holds(seen, "REG_SZ") && Holds(seen, "C:\\Meridex\\Meridex.exe")) << seen;
}

TEST_F(Registry_Witness, Sees_a_number_with_its_sign) {
  ASSERT_EQ(Set("Number", "D", -2), 0);
  const std::string seen = Query("Number");
  EXPECT_TRUE(Holds(seen, "REG_DWORD") && Holds(seen, "0xfffffffe")) << seen;
}

TEST_F(Registry_Witness, Sees_a_truth_value_of_two_bytes) {
  ASSERT_EQ(Set("Truth", "B", true), 0);
  const std::string seen = Query("Truth");
  EXPECT_TRUE(Holds(seen, "REG_BINARY") && Holds(seen, "FFFF")) << seen;
}

TEST_F(Registry_Witness, Sees_nothing_of_a_number_beyond_16_bits_or_a_deleted_value) {
  ASSERT_EQ(Set("Large", "D", 70000), 0);
  EXPECT_FALSE(Holds(Query("Large"), "REG_DWORD"));
  ASSERT_EQ(Set("Gone", "S", std::string("x")), 0);
  ASSERT_EQ(Registry.Registry_Delete("HKCU", "Software\\Meridex Test\\Witness", "Gone"), 0);
  EXPECT_FALSE(Holds(Query("Gone"), "REG_SZ"));
}
