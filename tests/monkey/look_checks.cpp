// The boxes, the title, the size and the place, held against those of a fresh start.
#include "basic/convert.h"
#include "basic/serial_day.h"
#include "checks.h"
#include "failed.h"
#include "presentation/box_style.h"
#include "text_form.h"

namespace monkey {

namespace {

std::string Told(const Box& box) {
  return std::string(box.visible ? "" : "hidden ") + play::Quoted(box.number) + " " + play::Quoted(box.caption) +
         " back " + std::to_string(box.back) + " colours " + std::to_string(box.number_colour) + " " +
         std::to_string(box.caption_colour) + " in " + box.fonts + (box.underline ? " underline" : "") + " tips " +
         play::Quoted(box.number_tip) + " " + play::Quoted(box.caption_tip) + " at " +
         play::Number_Text(box.place.Left) + " " + play::Number_Text(box.place.Top);
}

std::string Told(const Snapshot& snapshot) {
  return play::Number_Text(snapshot.left) + " " + play::Number_Text(snapshot.top);
}

}  // namespace

/// Started again only when something has changed that a start would see.
const std::optional<Snapshot>& Checks::Fresh() {
  const auto& state = *world_.State();
  std::string key = File() + "\n" + std::to_string(state.View_Year.Value()) + " " +
                    std::to_string(state.View_Month.Value()) + " " + std::to_string(world_.Platform.Time.Now().Day) +
                    "\n" + Label_Of(*world_.Find_Window("Main_Frm"), "Day_Lbl", 0).Caption();
  for (const auto& value : world_.Platform.Store.Values("Meridex")) key += value.Key + "=" + value.Text + "\n";
  const auto area = world_.Platform.Screen.Work_Area();
  for (const int edge : {area.Left, area.Top, area.Width, area.Height}) key += std::to_string(edge) + " ";
  if (key != fresh_key_) {
    fresh_ = Fresh_Snapshot(world_);
    fresh_key_ = key;
    ++fresh_starts_;
  }
  return fresh_;
}

bool Checks::Packs_Are_On() const { return world_.Platform.Store.Get("Meridex", "Settings", "Use Themes", "0") != "0"; }

/// Whether style or position is the pack's; a setting of 2 turns packs on, but lets them rule nothing.
bool Checks::Pack_Rules(const char* key) const {
  auto& store = world_.Platform.Store;
  return store.Get("Meridex", "Settings", "Use Themes", "0") == "1" &&
         store.Get("Meridex", "Settings", key, "1") == "1";
}

bool Checks::Style_Is_Known() const {
  const int style = Pack_Rules("Use Theme Style")
                        ? world_.State()->Pack_Box_Style.Value()
                        : basic::To_Int32(world_.Platform.Store.Get("Meridex", "Settings", "Style", "1"));
  return style >= presentation::thin_box && style <= presentation::small_box;
}

/// The time in the title goes on by itself, and of another month than the present one it has the name and the year alone.
void Checks::Check_Title(const std::string& seen, const std::string& fresh, bool present_month) const {
  auto& store = world_.Platform.Store;
  if (!present_month) {
    const auto& state = *world_.State();
    const std::string wanted = world_.Platform.Locale.Words().Month_Name(state.View_Month.Value()) + " - " +
                               play::Number_Text(state.View_Year.Value());
    if (seen != wanted) throw Failed("the title of another month is " + play::Quoted(seen) + ", not " + wanted);
    return;
  }
  const bool with_time = store.Get("Meridex", "Settings", "Bar Time", "False") != "False";
  const auto date = [with_time](const std::string& title) {
    const std::size_t end = with_time ? title.find(" - ") : std::string::npos;
    return end == std::string::npos ? title : title.substr(end);
  };
  if (date(seen) != date(fresh))
    throw Failed("the title is " + play::Quoted(seen) + ", in a fresh start " + play::Quoted(fresh));
}

/// Any other number places nothing: the window stays where it was.
bool Checks::Position_Is_Known() const {
  const int position = Pack_Rules("Use Theme Pos")
                           ? world_.State()->Pack_Pos.Value()
                           : basic::To_Int32(world_.Platform.Store.Get("Meridex", "Settings", "Alignment", "0"));
  return position >= 0 && position <= 9;
}

void Checks::Check_Boxes() {
  if (applied_ && !Style_Is_Known()) return;
  if (Packs_Are_On() && (pack_odd_ || drawn_on_ != world_.Platform.Time.Now().Day)) return;
  const auto& fresh = Fresh();
  if (!fresh) return;
  ++compared_;
  const Snapshot seen = Snapshot_Of(world_);
  const int normal = basic::To_Int32(world_.Platform.Store.Get("Meridex", "Colours", "Normal", "16777215"));
  const basic::Moment now = world_.Platform.Time.Now();
  const basic::Civil_Date today = basic::Civil_From_Serial(now.Day);
  const bool present_month = world_.State()->View_Month == today.Month && world_.State()->View_Year == today.Year;
  if (seen.headers != fresh->headers) throw Failed("other weekday headers than a fresh start has");
  if (seen.width != fresh->width || seen.height != fresh->height) throw Failed("another size than a fresh start has");
  if (!place_odd_ && Position_Is_Known() && (seen.left != fresh->left || seen.top != fresh->top))
    throw Failed("the window is at " + Told(seen) + ", in a fresh start at " + Told(*fresh));
  if (ticked_) Check_Title(seen.title, fresh->title, present_month);
  for (int i = 0; i < presentation::box_count; ++i) {
    Box box = seen.boxes.at(static_cast<std::size_t>(i));
    Box wanted = fresh->boxes.at(static_cast<std::size_t>(i));
    if (!box.visible && !wanted.visible) continue;
    if (!present_month) wanted.back = normal;
    if (drawn_on_ != now.Day) box.back = wanted.back;
    if (odd_boxes_.contains(i)) continue;
    if (box != wanted)
      throw Failed("box " + std::to_string(i) + " is " + Told(box) + ", in a fresh start it is " + Told(wanted));
  }
}

}  // namespace monkey
