// The system's own services for the cases.
#include <filesystem>

#include "tests/contract/service_world.h"
#include "win32/win32_platform.h"

namespace {

class System_World : public Service_World {
 public:
  platform::System& System() override { return platform_.System(); }
  toolkit::Backend& Backend() override { return platform_.Backend(); }
  void Make_Folder(const std::string& name) override {
    std::filesystem::create_directories(System().Files.Program_Folder() + '\\' + name);
  }

 private:
  win32::Win32_Platform platform_{nullptr};
};

}  // namespace

std::unique_ptr<Service_World> Make_Service_World() { return std::make_unique<System_World>(); }
