#include "snapshot.h"

#include <stdexcept>

#include "packs/pack_values.h"
#include "text_form.h"

namespace monkey {

namespace {

using memory::Memory_Files;

constexpr double parked = 9999;  // twips

void Copy_Folder(const Memory_Files& from, Memory_Files& to, const std::string& folder) {
  to.Make_Folder(folder);
  for (const auto& listed : from.List(folder)) {
    const std::string path = folder + "\\" + listed.Name;
    if (listed.Is_Folder) Copy_Folder(from, to, path);
    else to.Put(path, from.Bytes(path).value());
  }
}

/// The pack of the settings says of every month what it says of the present one: what a calendar that shows another month
/// still looks like.
void Keep_Present_Month_Of_Pack(const play::World& from, play::World& to) {
  const std::string name = to.Platform.Store.Get("Meridex", "Settings", "Pack Name", "Default");
  const std::string path = Memory_Files::Full_Path(name + "\\settings.ini");
  const auto bytes = to.Platform.Files.Bytes(path);
  if (!bytes) return;
  const int month = basic::Civil_From_Serial(from.Platform.Time.Now().Day).Month;
  std::string value;
  try {
    value = packs::Find_Month_Value(*bytes, month);
  } catch (const basic::Run_Error&) {
    return;  // as broken for every month
  }
  std::string lines;
  for (int i = 1; i <= 12; ++i) lines += std::to_string(i) + "=" + value + "\r\n";
  to.Platform.Files.Put(path, lines);
}

void Copy_World(play::World& from, play::World& to) {
  Copy_Folder(from.Platform.Files, to.Platform.Files, from.Platform.Files.Program_Folder());
  for (const auto& value : from.Platform.Store.Values("Meridex"))
    to.Platform.Store.Save("Meridex", value.Section, value.Key, value.Text);
  const auto screen = from.Platform.Screen.Bounds();
  to.Platform.Screen.Set_Size(screen.Width, screen.Height);
  to.Platform.Screen.Set_Work_Area(from.Platform.Screen.Work_Area());
  to.Platform.Windows_And_Timers.Set_Character_Width(from.Platform.Windows_And_Timers.Character_Width());
  Keep_Present_Month_Of_Pack(from, to);
}

std::string Font_Of(const toolkit::Label& label) {
  return label.FontName() + " " + play::Number_Text(label.FontSize) + (label.FontBold ? " bold" : "");
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
  snapshot.title = Label_Of(window, "Which_Month_Lbl").Caption;
  snapshot.left = window.Left;
  snapshot.top = window.Top;
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
      box.fonts.insert(0, Font_Of(*label));
      box.back = label->BackColor;
      box.number_colour = label->ForeColor;
      box.place = label->In_Twips();
    } else if (label->Name == "Box_Caption_Lbl") {
      Box& box = snapshot.boxes.at(index);
      box.caption = label->Caption;
      box.caption_tip = label->ToolTipText;
      box.fonts += ", " + Font_Of(*label);
      box.caption_colour = label->ForeColor;
      box.caption_place = label->In_Twips();
      // Out of the window's sight a caption keeps whatever size it had, and its text is cut to that.
      if (box.caption_place.Left >= parked) {
        box.caption_place.Width = box.caption_place.Height = 0;
        box.caption.clear();
      }
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
