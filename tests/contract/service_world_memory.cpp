// The in-memory services for the cases.
#include "memory/memory_platform.h"
#include "tests/contract/service_world.h"

namespace {

class Memory_World : public Service_World {
 public:
  Memory_World() { platform_.Time.Set_Now({38051, 0}); }
  platform::System& System() override { return system_; }
  toolkit::Backend& Backend() override { return platform_.Backend(); }
  void Make_Folder(const std::string& name) override {
    platform_.Files.Make_Folder(memory::Memory_Files::Full_Path(name));
  }

 private:
  memory::Memory_Platform platform_;
  platform::System system_ = platform_.System();
};

}  // namespace

std::unique_ptr<Service_World> Make_Service_World() { return std::make_unique<Memory_World>(); }
