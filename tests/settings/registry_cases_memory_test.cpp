// The registry's table of cases against the in-memory platform.
#include "memory/memory_files.h"
#include "memory/memory_profiles.h"
#include "memory/memory_registry.h"
#include "tests/settings/registry_cases.h"

namespace {

class Memory_World : public Registry_World {
 public:
  platform::Registry_Keys& Keys() override { return keys_; }
  platform::Profile_Files& Profiles() override { return profiles_; }
  platform::Files& Files() override { return files_; }

 private:
  memory::Virtual_Time time_;
  memory::Memory_Files files_{time_};
  memory::Memory_Registry keys_;
  memory::Memory_Profiles profiles_{files_};
};

World_Maker maker = []() -> std::unique_ptr<Registry_World> { return std::make_unique<Memory_World>(); };

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, Registry_Cases,
                         ::testing::Combine(::testing::Values(maker), ::testing::ValuesIn(All_Registry_Cases())),
                         Registry_Cases::Name_Of);
