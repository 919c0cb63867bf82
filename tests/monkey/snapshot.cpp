#include "snapshot.h"

#include <algorithm>
#include <stdexcept>

namespace monkey {

namespace {

using memory::Memory_Files;

void Copy_File(Memory_Files& from, Memory_Files& to, const std::string& path) {
  if (const auto bytes = from.Bytes(path)) to.Put(path, *bytes);
  else if (from.Folder_Exists(path)) to.Block(path);
}

void Copy_Folder(Memory_Files& from, Memory_Files& to, const std::string& folder) {
  if (!from.Folder_Exists(folder)) return;
  to.Make_Folder(folder);
  for (const std::string& name : from.File_Names(folder)) {
    std::string path = folder;
    Copy_File(from, to, path.append("\\").append(name));
  }
}

void Copy_World(play::World& from, play::World& to) {
  Copy_File(from.Platform.Files, to.Platform.Files, Memory_Files::Full_Path("calendar.dat"));
  Copy_Folder(from.Platform.Files, to.Platform.Files, Memory_Files::Full_Path("Default"));
  for (const auto& value : from.Platform.Store.Values("Meridex"))
    to.Platform.Store.Save("Meridex", value.Section, value.Key, value.Text);
  const auto screen = from.Platform.Screen.Bounds();
  to.Platform.Screen.Set_Size(screen.Width, screen.Height);
  to.Platform.Screen.Set_Work_Area(from.Platform.Screen.Work_Area());
}

/// The present moment where the present month is on view, else noon of the first of the month on view.
basic::Moment Moment_Of_View(const play::World& world) {
  const basic::Moment now = world.Platform.Time.Now();
  const basic::Civil_Date today = basic::Civil_From_Serial(now.Day);
  const auto& state = *world.State();
  if (state.View_Month == today.Month && state.View_Year == today.Year) return now;
  return {basic::Date_Serial(state.View_Year.Value(), state.View_Month.Value(), 1), 43'200'000'000};
}

}  // namespace

toolkit::Label& Label_Of(const toolkit::Form& window, const std::string& name, int index) {
  for (toolkit::Control* const control : window.Controls())
    if (control->Index == index && control->Name == name) return dynamic_cast<toolkit::Label&>(*control);
  throw std::logic_error("no label " + name);
}

Snapshot Snapshot_Of(const play::World& world) {
  const toolkit::Form& window = *world.Find_Window("Main_Frm");
  Snapshot snapshot;
  snapshot.width = window.Width;
  snapshot.height = window.Height;
  for (const toolkit::Control* const control : window.Controls()) {
    const auto* const label = dynamic_cast<const toolkit::Label*>(control);
    if (label == nullptr || label->Index < 0) continue;
    const auto index = static_cast<std::size_t>(label->Index);
    if (label->Name == "Day_Lbl") {
      snapshot.headers.at(index) = label->Caption;
    } else if (label->Name == "Box_Lbl") {
      Box& box = snapshot.boxes.at(index);
      box.visible = label->Visible;
      box.number = label->Caption;
      box.number_tip = label->ToolTipText;
      box.underline = label->FontUnderline;
      box.back = label->BackColor;
      box.place = label->In_Twips();
    } else if (label->Name == "Box_Caption_Lbl") {
      Box& box = snapshot.boxes.at(index);
      box.caption = label->Caption;
      box.caption_tip = label->ToolTipText;
      box.caption_place = label->In_Twips();
    }
  }
  return snapshot;
}

std::optional<Snapshot> Fresh_Snapshot(play::World& world) {
  play::World fresh([](const std::string&) {});
  Copy_World(world, fresh);
  fresh.Platform.Locale = world.Platform.Locale;
  fresh.Platform.Time.Set_Now(Moment_Of_View(world));
  fresh.Start();
  if (fresh.Has_Ended()) return std::nullopt;
  for (const auto& message : fresh.Platform.Message_Box.Take_Shown())
    if (message.Icon == platform::Box_Icon::Critical) return std::nullopt;
  return Snapshot_Of(fresh);
}

}  // namespace monkey
