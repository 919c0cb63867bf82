// What has come of it since the last look: boxes, menus, dialogs, wallpapers, posted messages, repaints; and the time.
#include <array>

#include "commands.h"
#include "memory/letter_case.h"
#include "text_form.h"

namespace play {

namespace {

std::string_view Icon_Name(platform::Box_Icon icon) {
  constexpr std::array<std::string_view, 5> names{"none", "information", "exclamation", "critical", "question"};
  return names.at(static_cast<std::size_t>(icon));
}

std::string_view Buttons_Name(platform::Box_Buttons buttons) {
  constexpr std::array<std::string_view, 3> names{"OK", "YesNo", "YesNoCancel"};
  return names.at(static_cast<std::size_t>(buttons));
}

std::string_view Answer_Name(platform::Box_Answer answer) {
  constexpr std::array<std::string_view, 4> names{"OK", "Yes", "No", "Cancel"};
  return names.at(static_cast<std::size_t>(answer));
}

void Play_Messages(World& world, const Words& /*words*/) {
  for (const auto& shown : world.Platform.Message_Box.Take_Shown()) {
    std::string line = "message " + Quoted(shown.Title) + ' ' + Quoted(shown.Text) + ' ';
    line.append(Icon_Name(shown.Icon)).append(" ").append(Buttons_Name(shown.Buttons));
    world.Print(line.append(" -> ").append(Answer_Name(shown.Answer)));
  }
}

void Play_Menus(World& world, const Words& /*words*/) {
  for (const auto& shown : world.Platform.Menu.Take_Shown()) {
    world.Print("menu " + shown.Owner);
    for (const platform::Menu_Item& item : shown.Items) {
      const bool bitmap = item.Picture != platform::Stock_Picture::None;
      world.Print("  " + std::to_string(item.Number) + ' ' + Quoted(item.Text) + (item.Grey ? " grey" : "") +
                  (bitmap ? " bitmap" : ""));
    }
  }
}

void Play_Dialogs(World& world, const Words& /*words*/) {
  for (const auto& shown : world.Platform.File_Dialog.Take_Shown()) {
    std::string line = (shown.To_Save ? "save " : "open ") + Quoted(shown.Title) + ' ' + Quoted(shown.Filter) + " -> ";
    world.Print(line.append(shown.Path ? Quoted(*shown.Path) : "cancel"));
  }
}

void Play_Launched(World& world, const Words& /*words*/) {
  for (const std::string& address : world.Platform.Shell_Open.Take_Launched())
    world.Print("launched " + Quoted(address));
}

/// The path without the program folder, if it lies in that.
std::string Relative_Path(World& world, const std::string& path) {
  const std::string folder = world.Platform.Files.Program_Folder() + '\\';
  const bool within = path.size() > folder.size() && memory::Same_Name(path.substr(0, folder.size()), folder);
  return within ? path.substr(folder.size()) : path;
}

void Play_Wallpaper(World& world, const Words& /*words*/) {
  for (const auto& setting : world.Platform.Wallpaper.Take_Settings())
    world.Print("wallpaper " + Quoted(Relative_Path(world, setting.Path)) + ' ' + setting.Tile_Wallpaper + ' ' +
                setting.Wallpaper_Style);
}

void Play_Posted(World& world, const Words& /*words*/) {
  for (const auto& posted : world.Platform.Instances.Take_Posted())
    world.Print("posted " + Quoted(posted.Title) + ' ' + std::to_string(posted.Message));
}

void Play_Icon_List(World& world, const Words& /*words*/) {
  auto& shell = world.Platform.Shell;
  world.Print("iconlist " + std::to_string(shell.Icon_Back()) + " repaints " + std::to_string(shell.Take_Repaints()));
}

void Play_Clock(World& world, const Words& /*words*/) { world.Print(Moment_Text(world.Platform.Time.Now())); }

void Play_Say(World& world, const Words& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  world.Print(text);
}

}  // namespace

std::span<const Entry> Record_Looks() {
  static constexpr std::array<Entry, 9> entries{{{"messages", 0, 0, Play_Messages},
                                                 {"menus", 0, 0, Play_Menus},
                                                 {"dialogs", 0, 0, Play_Dialogs},
                                                 {"launched", 0, 0, Play_Launched},
                                                 {"wallpaper", 0, 0, Play_Wallpaper},
                                                 {"posted", 0, 0, Play_Posted},
                                                 {"iconlist", 0, 0, Play_Icon_List},
                                                 {"clock", 0, 0, Play_Clock},
                                                 {"say", 0, 1000, Play_Say}}};
  return entries;
}

}  // namespace play
