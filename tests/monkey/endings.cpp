#include "endings.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "basic/convert.h"
#include "basic/run_error.h"
#include "events/event_line.h"
#include "packs/pack_values.h"
#include "packs/set_wallpaper_mod.h"
#include "settings/setting_keys.h"

namespace monkey {

namespace {

using memory::Memory_Files;

constexpr int longest_idle_minutes = 546;
constexpr int largest_work_area = 2184;  // pixels
constexpr double farthest_drag = 32000;  // twips, with a move still to come
constexpr int early_year = 105, late_year = 9990;

bool Fails_With(int error, const std::function<void()>& act) {
  try {
    act();
  } catch (const basic::Run_Error& failure) {
    return failure.Number() == error;
  }
  return false;
}

std::string Stored(play::World& world, std::string_view name) {
  for (const settings::Setting_Key& key : settings::All_Keys())
    if (name == key.Name) return world.Platform.Store.Get("Meridex", key.Section, key.Name, key.Default);
  return {};
}

/// Converts a text to the type of a setting.
struct Conversion {
  const std::string& text;

  void operator()(basic::Int16 settings::Settings::* /*variable*/) const { basic::To_Int16(text); }
  void operator()(std::int32_t settings::Settings::* /*variable*/) const { basic::To_Int32(text); }
  void operator()(bool settings::Settings::* /*variable*/) const { basic::To_Boolean(text); }
  void operator()(std::string settings::Settings::* /*variable*/) const {}
};

bool Stored_Value_Fails(play::World& world, int error) {
  for (const settings::Setting_Key& key : settings::All_Keys()) {
    const std::string text = Stored(world, key.Name);
    if (Fails_With(error, [&] { std::visit(Conversion{text}, key.Variable); })) return true;
  }
  return false;
}

/// A value or a picture of a pack, or of what the settings take for one.
bool Pack_Fails(play::World& world, int error) {
  auto& platform = world.Platform;
  const auto fails = [&](const std::string& folder) {
    const auto bytes = platform.Files.Bytes(folder + "\\settings.ini");
    for (int month = 1; month <= 12; ++month) {
      const std::string picture = folder + "\\" + std::to_string(month) + ".jpg";
      if (Fails_With(error, [&] { platform.Pictures.Load(picture); })) return true;
      const auto read_value = [&] {
        const std::string value = packs::Find_Month_Value(bytes.value_or(""), month);
        packs::Get_Paper_BoxStyle(value);
        packs::Get_Paper_Pos(value);
        packs::Get_Paper_DisplayMode(value);
      };
      if (Fails_With(error, read_value)) return true;
    }
    return false;
  };
  const auto folders = platform.Files.Folder_Names(platform.Files.Program_Folder());
  return std::any_of(folders.begin(), folders.end(),
                     [&](const std::string& name) { return name != "io" && fails(Memory_Files::Full_Path(name)); });
}

bool Desktop_Mode_Fails(play::World& world, int error) {
  const auto mode = world.Platform.Registry.Find(platform::Hive::Current_User, packs::desktop_key, "WallpaperStyle");
  return Fails_With(error, [&] { basic::To_Int16(mode.value_or("UNKNOWN")); });
}

/// A line of the file that is none, which a change of the file or the overview meets.
bool File_Fails(play::World& world) {
  const auto bytes = world.Platform.Files.Bytes(Memory_Files::Full_Path("calendar.dat"));
  if (!bytes) return true;  // then the lists hold what they held, of another order
  std::string_view rest = *bytes;
  while (!rest.empty()) {
    const std::size_t end = rest.find("\"\r\n", 1);
    if (end == std::string_view::npos || !rest.starts_with('"')) return true;
    try {
      events::Read_Event_Line(rest.substr(1, end - 1));
    } catch (const basic::Run_Error&) {
      return true;
    }
    rest.remove_prefix(end + 3);
  }
  return false;
}

/// The import of a CSV file makes a copy of the event file and brings it back; what fails there fails the program.
bool Copy_Fails(play::World& world, int error) {
  constexpr int path_access_error = 75;
  auto& files = world.Platform.Files;
  const bool blocked = files.Folder_Exists(Memory_Files::Full_Path("calendar.dat")) ||
                       files.Folder_Exists(Memory_Files::Full_Path("data.bak"));
  return error == path_access_error && blocked;
}

bool Idle_Time_Overflows(play::World& world) {
  return Stored(world, "Timeout Format") == "1" &&
         std::abs(basic::To_Int16(Stored(world, "Timeout Value")).Value()) > longest_idle_minutes;
}

/// A week that starts on no weekday.
bool First_Weekday_Is_None(play::World& world) {
  const std::string day = Stored(world, "Start Day");
  return day.size() != 1 || day < "0" || day > "7";
}

/// The user has consented to places beyond 16 bits.
bool Consented(play::World& world) { return world.Platform.Store.Get("Meridex", "Desktop", "Modern", "") == "1"; }

bool Drag_Overflows(const Last_Seen& seen) {
  return std::abs(seen.left) > farthest_drag || std::abs(seen.top) > farthest_drag;
}

bool Work_Area_Overflows(play::World& world) {
  const auto area = world.Platform.Screen.Work_Area();
  const int farthest = std::max({area.Left, area.Top, area.Width, area.Height});
  return farthest > largest_work_area;
}

}  // namespace

Last_Seen See_Last(const play::World& world) {
  const toolkit::Form* const calendar = world.Find_Window("Main_Frm");
  if (calendar == nullptr || world.State() == nullptr) return {};
  return {world.State()->View_Year.Value(), calendar->Left, calendar->Top};
}

std::string Cause_Of_End(play::World& world, const Last_Seen& seen, const Brought_Up& brought) {
  constexpr int invalid_call = 5, overflow = 6, mismatch = 13;
  const int error = *brought.error;
  // Nothing has been read then, and nothing is no position.
  const bool pack_unread = brought.Box_Said("Error loading in Settings file") || brought.Box_Said("Missing Pack");
  if (error == invalid_call && pack_unread) return "a pack that can't be read";
  if (Stored_Value_Fails(world, error)) return "a stored value";
  if (error == invalid_call && First_Weekday_Is_None(world)) return "the first weekday";
  if (error == overflow && Idle_Time_Overflows(world)) return "the idle time";
  const bool narrow = !Consented(world);
  if (error == overflow && narrow && Work_Area_Overflows(world)) return "the work area";
  if (error == overflow && narrow && Drag_Overflows(seen)) return "a drag";
  if (error == invalid_call && (seen.view_year < early_year || seen.view_year > late_year)) return "the year";
  if (Pack_Fails(world, error)) return "a pack";
  if (Desktop_Mode_Fails(world, error)) return "the desktop's display mode";
  if ((error == invalid_call || error == mismatch) && File_Fails(world)) return "the event file";
  if (Copy_Fails(world, error)) return "a folder in a file's place";
  return {};
}

}  // namespace monkey
