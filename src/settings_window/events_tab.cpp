#include "settings_window/events_tab.h"

namespace settings_window {

Events_Tab::Events_Tab(toolkit::Frame& page, calendar::Desk& desk, events::Event_File& event_file,
                       calendar::Dates& dates, platform::Message_Box& message_box)
    : Frame13(page, "Frame13"), Overview_Opt(Frame13, "Overview_Opt"), Stats_Opt(Frame13, "Stats_Opt"),
      Overview(page, desk, event_file, dates, message_box), Statistics(page, event_file, dates) {
  Frame13.Place({0, 0, 5145, 615});
  Frame13.Caption = "View";
  Overview_Opt.Place({225, 270, 2040, 240});
  Overview_Opt.Caption = "Events Overview";
  Stats_Opt.Place({2655, 270, 2040, 240});
  Stats_Opt.Caption = "General Statistics";
  Stats_Opt.Value = true;
  Overview_Opt.On_Click = [this] {
    Show_Part(true);
    Overview.Reload_And_Sort();
  };
  Stats_Opt.On_Click = [this] { Show_Part(false); };
}

void Events_Tab::Activate() {
  Statistics.Write_Month_Titles();
  Statistics.Get_Stats();
}

void Events_Tab::Show_Part(bool overview) {
  Overview.Overview_Fra.Visible = overview;
  Statistics.Yearview_Fra.Visible = !overview;
  Statistics.Events_Fra.Visible = !overview;
}

}  // namespace settings_window
