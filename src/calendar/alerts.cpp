#include "calendar/alerts.h"

#include "basic/text.h"

namespace calendar {

Alerts::Alerts(Dates& dates, platform::Message_Box& message_box, toolkit::Form& main_frm,
               const settings::Settings& settings, state::Calendar_State& calendar)
    : dates_(dates), message_box_(message_box), main_frm_(main_frm), settings_(settings), calendar_(calendar) {}

void Alerts::Take_Present_Day() {
  present_day_ = dates_.Present_Day();
  present_date_ = basic::Civil_From_Serial(present_day_);
}

bool Alerts::Due(const events::Event_Line& event) const {
  return settings_.Show_Alerts == 1 && !calendar_.Alerted_Today && event.Day == present_date_.Day &&
         event.Month == present_date_.Month && (event.Year == events::every_year || event.Year == present_date_.Year);
}

void Alerts::Test(const events::Event_Line& event) {
  // Disabled only if the alert is shown: nobody could see the difference otherwise.
  if (!Due(event)) return;
  main_frm_.Enabled = false;
  message_box_.Show("Meridex", Today_Message(dates_, present_day_, basic::Single_Ampersands(event.Text)),
                    platform::Box_Icon::Information, platform::Box_Buttons::OK);
  calendar_.Alerted_Today = true;
  main_frm_.Enabled = true;
}

std::string Today_Message(const Dates& dates, basic::Serial_Day today, std::string_view text) {
  std::string message = "Today: ";
  dates.Append_Short_Date(message, today);
  message += "\r\n\r\n";
  message += text;
  return message;
}

}  // namespace calendar
