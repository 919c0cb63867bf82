// What the world is like: the clock, the locale, the screen, files, stores, the desktop and other instances; and the
// start of the program in it.
#include <array>
#include <cstdlib>
#include <utility>

#include "commands.h"
#include "places.h"
#include "text_form.h"

namespace play {

namespace {

using memory::Memory_Files;

void Play_Now(World& world, const Words& words) { world.Platform.Time.Set_Now(To_Moment(words[0], words[1])); }

void Play_Locale(World& world, const Words& words) {
  if (!world.Platform.Locale.Choose(words[0])) throw Cannot_Play("no such locale: " + words[0]);
}

void Play_Screen(World& world, const Words& words) {
  world.Platform.Screen.Set_Size(To_Whole(words[0]), To_Whole(words[1]));
}

void Play_Work_Area(World& world, const Words& words) {
  world.Platform.Screen.Set_Work_Area({To_Whole(words[0]), To_Whole(words[1]), To_Whole(words[2]), To_Whole(words[3])});
}

void Play_Character_Width(World& world, const Words& words) {
  world.Platform.Windows_And_Timers.Set_Character_Width(To_Number(words[0]));
}

void Play_Put(World& world, const Words& words) {
  world.Platform.Files.Put(Memory_Files::Full_Path(words[0]), words[1]);
}

void Play_Picture(World& world, const Words& words) {
  if (words[3].size() != 6 || words[3].find_first_not_of("0123456789ABCDEFabcdef") != std::string::npos)
    throw Cannot_Play("no colour as RRGGBB: " + words[3]);
  const auto colour = static_cast<int>(std::strtol(words[3].c_str(), nullptr, 16));
  const memory::Plain_Picture picture{.Width = To_Whole(words[1]),
                                      .Height = To_Whole(words[2]),
                                      .Red = colour >> 16,
                                      .Green = colour >> 8 & 255,
                                      .Blue = colour & 255};
  world.Platform.Files.Put(Memory_Files::Full_Path(words[0]), memory::Jpeg_Of(picture));
}

void Play_Remove(World& world, const Words& words) { world.Platform.Files.Remove(Memory_Files::Full_Path(words[0])); }

void Play_Make_Folder(World& world, const Words& words) {
  world.Platform.Files.Make_Folder(Memory_Files::Full_Path(words[0]));
}

void Play_Block(World& world, const Words& words) { world.Platform.Files.Block(Memory_Files::Full_Path(words[0])); }

void Play_Full(World& world, const Words& words) {
  const std::string path = Memory_Files::Full_Path(words[0]);
  world.Platform.Files.Put(path, "");
  world.Platform.Files.Fill_Up(path);
}

void Play_Read_Only(World& world, const Words& words) {
  const std::string path = Memory_Files::Full_Path(words[0]);
  if (!world.Platform.Files.File_Exists(path)) throw Cannot_Play("no file " + words[0]);
  world.Platform.Files.Set_Read_Only(path, true);
}

void Play_Setting(World& world, const Words& words) {
  world.Platform.Store.Save(application, words[0], words[1], words[2]);
}

void Play_Reg(World& world, const Words& words) {
  world.Platform.Registry.Put(Hive_Of(words[0]), words[1], words[2], words[3]);
}

void Play_Deny(World& world, const Words& words) {
  world.Platform.Registry.Deny(Hive_Of(words[0]), Switch_Of(words[1]));
}

void Play_Shell(World& world, const Words& words) {
  using memory::Shell_Chain;
  constexpr std::array<std::pair<std::string_view, Shell_Chain>, 5> chains{{{"on", Shell_Chain::Icon_List},
                                                                            {"workerw", Shell_Chain::Icon_List},
                                                                            {"off", Shell_Chain::None},
                                                                            {"progman", Shell_Chain::Progman},
                                                                            {"defview", Shell_Chain::Def_View}}};
  world.Platform.Shell.Set_Worker(words[0] == "workerw");
  for (const auto& [name, chain] : chains)
    if (words[0] == name) return world.Platform.Shell.Set_Chain(chain);
  throw Cannot_Play("no such shell: " + words[0]);
}

void Play_Icons(World& world, const Words& words) {
  world.Platform.Shell.Set_Icon_Colours(To_Whole(words[0]), To_Whole(words[1]));
}

void Play_Instance(World& world, const Words& words) { world.Platform.Instances.Add(words[0]); }

void Play_Window(World& world, const Words& words) { world.Platform.Instances.Add_Foreign(words[0]); }

void Play_Start(World& world, const Words& /*words*/) { world.Start(); }

}  // namespace

std::span<const Entry> World_Commands() {
  static constexpr std::array<Entry, 20> entries{{{"now", 2, 2, Play_Now},
                                                  {"locale", 1, 1, Play_Locale},
                                                  {"screen", 2, 2, Play_Screen},
                                                  {"workarea", 4, 4, Play_Work_Area},
                                                  {"charwidth", 1, 1, Play_Character_Width},
                                                  {"put", 2, 2, Play_Put},
                                                  {"picture", 4, 4, Play_Picture},
                                                  {"remove", 1, 1, Play_Remove},
                                                  {"mkdir", 1, 1, Play_Make_Folder},
                                                  {"block", 1, 1, Play_Block},
                                                  {"full", 1, 1, Play_Full},
                                                  {"readonly", 1, 1, Play_Read_Only},
                                                  {"setting", 3, 3, Play_Setting},
                                                  {"reg", 4, 4, Play_Reg},
                                                  {"deny", 2, 2, Play_Deny},
                                                  {"shell", 1, 1, Play_Shell},
                                                  {"icons", 2, 2, Play_Icons},
                                                  {"instance", 1, 1, Play_Instance},
                                                  {"window", 1, 1, Play_Window},
                                                  {"start", 0, 0, Play_Start}}};
  return entries;
}

}  // namespace play
