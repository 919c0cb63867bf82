// The pack units over the in-memory platform.
#pragma once

#include <string>

#include "memory/memory_backend.h"
#include "memory/memory_clock.h"
#include "memory/memory_files.h"
#include "memory/memory_message_box.h"
#include "memory/memory_pictures.h"
#include "memory/memory_profiles.h"
#include "memory/memory_registry.h"
#include "memory/memory_screen.h"
#include "memory/memory_store.h"
#include "memory/memory_wallpaper.h"
#include "packs/wallpaper_stuff.h"

/// A JPEG that the in-memory platform decodes, of 2 by 1 pixels.
inline std::string Small_Jpeg() { return memory::Jpeg_Of({2, 1, 10, 20, 30}); }

struct Pack_World {
  Pack_World() { Settings.Load_Settings(); }

  /// Puts a file into the pack's folder Test.
  void Put(const std::string& name, const std::string& bytes) { Files.Put(Folder + name, bytes); }
  bool Holds(const std::string& name) { return Files.File_Exists(Folder + name); }

  /// The boxes since the last call: title, text, icon and buttons of each, joined by "|".
  std::string Boxes() {
    std::string boxes;
    for (const auto& box : Message_Box.Take_Shown()) {
      const bool as_always = box.Icon == platform::Box_Icon::Critical && box.Buttons == platform::Box_Buttons::OK;
      boxes += box.Title + "|" + box.Text + "|" + (as_always ? "critical OK" : "otherwise") + "\n";
    }
    return boxes;
  }

  const std::string Folder = R"(C:\Meridex\Test\)";

  memory::Virtual_Time Time;
  memory::Memory_Clock Clock{Time};
  memory::Memory_Files Files{Time};
  memory::Memory_Loop Loop{Time};
  memory::Memory_Screen Screen;
  memory::Memory_Backend Backend{Time, Loop, Screen};
  memory::Memory_Message_Box Message_Box{Loop, Backend.Input};
  memory::Memory_Store Store;
  memory::Memory_Registry Registry;
  memory::Memory_Wallpaper Wallpaper{Registry};
  memory::Memory_Pictures Pictures{Files};

  basic::File_Channel Channel{Files};
  settings::Stored_Settings Settings{Store};
  state::Calendar_State State;
  packs::Set_Wallpaper_Mod Set_Wallpaper_Mod{Registry, Wallpaper};
  packs::Pack_Lookup Packs{Files, Channel, Pictures, Message_Box, Settings, Set_Wallpaper_Mod};
  memory::Memory_Profiles Profiles{Files};
  settings::Registry Registry_Module{Registry, Profiles, Files};
  packs::Wallpaper_Stuff Wallpaper_Stuff{Packs, Set_Wallpaper_Mod, Registry_Module, Clock, Settings.Values, State};
};

using Wallpapers = std::vector<memory::Memory_Wallpaper::Setting>;
