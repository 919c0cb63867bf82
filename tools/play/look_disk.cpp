// What is stored: files, folders, settings and registry values.
#include <algorithm>
#include <array>

#include "commands.h"
#include "places.h"
#include "text_form.h"

namespace play {

namespace {

using memory::Memory_Files;

void Play_Cat(World& world, const Words& words) {
  const auto bytes = world.Platform.Files.Bytes(Memory_Files::Full_Path(words[0]));
  if (!bytes) return world.Print("no file");
  for (std::string_view rest = *bytes; !rest.empty();) {
    const std::size_t end = std::min(rest.find('\n'), rest.size() - 1) + 1;
    world.Print(Quoted(rest.substr(0, end)));
    rest.remove_prefix(end);
  }
}

void Play_Ls(World& world, const Words& words) {
  const std::string folder = Memory_Files::Full_Path(words.empty() ? "" : words[0]);
  auto& files = world.Platform.Files;
  if (!files.Folder_Exists(folder) || files.File_Exists(folder)) return world.Print("no folder");
  auto listed = files.List(folder);
  std::sort(listed.begin(), listed.end(), [](const auto& a, const auto& b) { return a.Name < b.Name; });
  for (const auto& entry : listed) world.Print(entry.Name + (entry.Is_Folder ? "/" : ""));
}

void Play_Store(World& world, const Words& /*words*/) {
  for (const auto& value : world.Platform.Store.Values(application))
    world.Print(value.Section + ' ' + value.Key + ' ' + Quoted(value.Text));
}

void Play_Reg(World& world, const Words& words) {
  const auto text = world.Platform.Registry.Find(Hive_Of(words[0]), words[1], words[2]);
  world.Print(text ? Quoted(*text) : "absent");
}

}  // namespace

std::span<const Entry> Disk_Looks() {
  static constexpr std::array<Entry, 4> entries{
      {{"cat", 1, 1, Play_Cat}, {"ls", 0, 1, Play_Ls}, {"store", 0, 0, Play_Store}, {"reg", 3, 3, Play_Reg}}};
  return entries;
}

}  // namespace play
