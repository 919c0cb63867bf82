#include "calendar/title_text.h"

#include "basic/date_pattern.h"
#include "presentation/box_style.h"

namespace calendar {

namespace {

constexpr const char* system_format = "Use System Format";

}  // namespace

Title_Text::Title_Text(presentation::Main_Frm& main_frm, Dates& dates, const settings::Settings& settings,
                       const state::Calendar_State& calendar)
    : main_frm_(main_frm), dates_(dates), settings_(settings), calendar_(calendar) {}

void Title_Text::Write(const basic::Moment& now) {
  main_frm_.Which_Month_Lbl.Caption =
      Bar_Text(now, settings_.Bar_Time, settings_.Bar_Time_Format, settings_.Bar_Date_Format);
  written_ = {now.Day,
              now.Seconds(),
              calendar_.View_Month,
              calendar_.View_Year,
              presentation::Small_Style(settings_),
              settings_.Bar_Time,
              settings_.Bar_Time_Format,
              settings_.Bar_Date_Format,
              text_};
}

void Title_Text::Keep_Written(const basic::Moment& now) {
  if (!Is_Written_For(now)) Write(now);
}

bool Title_Text::Is_Written_For(const basic::Moment& now) const {
  const bool by_second = written_.Time || written_.Date_Format == system_format;  // else it stands for the whole day
  return (!by_second || written_.Second == now.Seconds()) && written_.Day == now.Day &&
         written_.Month == calendar_.View_Month && written_.Year == calendar_.View_Year &&
         written_.Small == presentation::Small_Style(settings_) && written_.Time == settings_.Bar_Time &&
         written_.Time_Format == settings_.Bar_Time_Format && written_.Date_Format == settings_.Bar_Date_Format &&
         main_frm_.Which_Month_Lbl.Caption == written_.Text;
}

const std::string& Title_Text::Get_Bar_Text(bool show_time, const std::string& time_format,
                                            const std::string& date_format) {
  return Bar_Text(dates_.Now(), show_time, time_format, date_format);
}

const std::string& Title_Text::Bar_Text(const basic::Moment& now, bool show_time, const std::string& time_format,
                                        const std::string& date_format) {
  const int today = basic::Civil_From_Serial(now.Day).Day;
  const basic::Moment day_of_view{basic::Date_Serial(calendar_.View_Year.Value(), calendar_.View_Month.Value(), today),
                                  0};
  text_.clear();
  if (presentation::Small_Style(settings_)) {
    Append_Month_And_Year(day_of_view);
    return text_;
  }
  if (day_of_view.Day != now.Day) {
    text_ += dates_.Words().Month_Name(calendar_.View_Month.Value());
    text_ += " - ";
    basic::Append_Number(text_, calendar_.View_Year.Value());
    return text_;
  }
  if (show_time) {
    basic::Append_Date(text_, now, time_format, dates_.Words());
    text_ += " - ";
  }
  Append_Date(date_format, now, day_of_view);
  return text_;
}

void Title_Text::Append_Date(const std::string& format, const basic::Moment& now, const basic::Moment& day_of_view) {
  const basic::Date_Words& words = dates_.Words();
  if (format == system_format) {
    dates_.Append_Long_Date(text_, day_of_view.Day);
  } else if (format == "mm/yyyy" || format == "dd/mm/yyyy") {
    basic::Append_Date(text_, day_of_view, format, words);
  } else if (format == "Month - yyyy") {
    Append_Month_And_Year(day_of_view);
  } else if (format == "d Month - yyyy") {
    Append_Day_With_Suffix(day_of_view.Day);
    Append_Month_And_Year(day_of_view);
  } else if (format == "Weekday - d month - yyyy") {
    basic::Append_Date(text_, now, "dddd", words);
    text_ += ' ';
    Append_Day_With_Suffix(day_of_view.Day);
    Append_Month_And_Year(day_of_view);
  }
}

void Title_Text::Append_Month_And_Year(const basic::Moment& day_of_view) {
  text_ += dates_.Words().Month_Name(calendar_.View_Month.Value());
  text_ += " - ";
  basic::Append_Date(text_, day_of_view, "yyyy", dates_.Words());
}

void Title_Text::Append_Day_With_Suffix(basic::Serial_Day day) {
  const int number = basic::Civil_From_Serial(day).Day;
  basic::Append_Number(text_, number);
  text_ += Get_Suffix(number);
  text_ += ' ';
}

}  // namespace calendar
