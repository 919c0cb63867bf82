// The whole in-memory platform in one object: a world in which one program can run after another.
#pragma once

#include "memory/memory_backend.h"
#include "memory/memory_clock.h"
#include "memory/memory_file_dialog.h"
#include "memory/memory_files.h"
#include "memory/memory_instances.h"
#include "memory/memory_locale.h"
#include "memory/memory_loop.h"
#include "memory/memory_menu.h"
#include "memory/memory_message_box.h"
#include "memory/memory_pictures.h"
#include "memory/memory_profiles.h"
#include "memory/memory_registry.h"
#include "memory/memory_screen.h"
#include "memory/memory_shell.h"
#include "memory/memory_shell_open.h"
#include "memory/memory_store.h"
#include "memory/memory_user.h"
#include "memory/memory_wallpaper.h"
#include "memory/virtual_time.h"
#include "platform/system.h"

namespace memory {

class Memory_Platform {
 public:
  Virtual_Time Time;
  Memory_Clock Clock{Time};
  Memory_Locale Locale;
  Memory_Files Files{Time};
  Memory_Loop Loop{Time};
  Memory_Store Store;
  Memory_Screen Screen;
  Memory_Instances Instances;
  Memory_Shell Shell;
  Memory_Registry Registry;
  Memory_Profiles Profiles{Files};
  Memory_Wallpaper Wallpaper{Registry};
  Memory_Pictures Pictures{Files};
  Memory_Shell_Open Shell_Open;
  Memory_Backend Windows_And_Timers{Time, Loop, Screen};
  Memory_Message_Box Message_Box{Loop, Windows_And_Timers.Input};
  Memory_File_Dialog File_Dialog{Loop, Windows_And_Timers.Input};
  Memory_Menu Menu{Windows_And_Timers.Windows, Loop, Windows_And_Timers.Input};

  Memory_User User{Windows_And_Timers.Windows, Windows_And_Timers.Input};

  toolkit::Backend& Backend() { return Windows_And_Timers; }
  Memory_Windows& Windows() { return Windows_And_Timers.Windows; }
  [[nodiscard]] const Memory_Windows& Windows() const { return Windows_And_Timers.Windows; }
  platform::System System();

  /// Call before a process of the program starts: it gets the chosen locale, and nothing of an earlier process is in
  /// its way.
  void Begin_Program();

  /// Call when the process ends: its windows disappear without a handler being called.
  void End_Program() { Windows().Silence(); }
};

}  // namespace memory
