#include "memory/memory_platform.h"

namespace memory {

platform::System Memory_Platform::System() {
  return {.Clock = Clock,
          .Locale = Locale,
          .Files = Files,
          .Loop = Loop,
          .Message_Box = Message_Box,
          .Popup_Menu = Menu,
          .Store = Store,
          .Screen = Screen,
          .Instances = Instances,
          .Shell = Shell,
          .Registry = Registry,
          .Profiles = Profiles,
          .Wallpaper = Wallpaper,
          .Pictures = Pictures,
          .Shell_Open = Shell_Open,
          .File_Dialog = File_Dialog};
}

void Memory_Platform::Begin_Program() {
  Locale.Enter();
  Loop.Reset();
  Instances.Enter();
  Windows().Begin();
}

}  // namespace memory
