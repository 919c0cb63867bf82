#include "tests/platform_contract/service_world.h"

#include <filesystem>

#ifdef _WIN32
#include "platform/win32/win32_platform.h"
#else
#include "platform/memory/memory_platform.h"
#endif

namespace {

#ifdef _WIN32

class Present_World : public Service_World {
 public:
  platform::System& System() override { return platform_.System(); }
  toolkit::Backend& Backend() override { return platform_.Backend(); }
  void Make_Folder(const std::string& name) override {
    std::filesystem::create_directories(System().Files.Program_Folder() + '\\' + name);
  }

 private:
  platform::win32::Win32_Platform platform_{nullptr};
};

#else

class Present_World : public Service_World {
 public:
  Present_World() { platform_.Time.Set_Now({38051, 0}); }
  platform::System& System() override { return system_; }
  toolkit::Backend& Backend() override { return platform_.Backend(); }
  void Make_Folder(const std::string& name) override {
    platform_.Files.Make_Folder(platform::memory::Memory_Files::Full_Path(name));
  }

 private:
  platform::memory::Memory_Platform platform_;
  platform::System system_ = platform_.System();
};

#endif

}  // namespace

std::unique_ptr<Service_World> Make_Service_World() { return std::make_unique<Present_World>(); }
