// The registry's table of cases against the in-memory platform.
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_profiles.h"
#include "platform/memory/memory_registry.h"
#include "tests/settings/registry_cases.h"

namespace {

class Memory_World : public Registry_World {
 public:
  platform::Registry_Keys& Keys() override { return keys_; }
  platform::Profile_Files& Profiles() override { return profiles_; }
  platform::Files& Files() override { return files_; }

 private:
  platform::memory::Virtual_Time time_;
  platform::memory::Memory_Files files_{time_};
  platform::memory::Memory_Registry keys_;
  platform::memory::Memory_Profiles profiles_{files_};
};

World_Maker maker = []() -> std::unique_ptr<Registry_World> { return std::make_unique<Memory_World>(); };

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, Registry_Cases,
                         ::testing::Combine(::testing::Values(maker), ::testing::ValuesIn(All_Registry_Cases())),
                         Registry_Cases::Name_Of);
