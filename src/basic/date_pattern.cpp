#include "basic/date_pattern.h"

#include <charconv>

namespace basic {

namespace {

constexpr std::string_view half_day_mark = "AM/PM";
constexpr std::string_view piece_letters = "dmyHhs";
constexpr int noon = 12 * 3600;  // seconds since midnight

/// Renders one pattern, piece by piece.
class Renderer {
 public:
  Renderer(std::string& to, const Moment& moment, std::string_view pattern, const Date_Words& words)
      : to_(to), pattern_(pattern), words_(words), day_(moment.Day), date_(Civil_From_Serial(moment.Day)),
        seconds_(moment.Seconds()), half_days_(pattern.find(half_day_mark) != std::string_view::npos) {}

  void Render() {
    while (!pattern_.empty()) {
      if (pattern_.starts_with(half_day_mark)) {
        to_ += seconds_ < noon ? "AM" : "PM";
        pattern_.remove_prefix(half_day_mark.size());
        continue;
      }
      const std::string_view piece = pattern_.substr(0, Piece_Length());
      pattern_.remove_prefix(piece.size());
      Render_Piece(piece);
    }
  }

 private:
  /// The length of the next piece: a run of one of the piece letters, or any other single character.
  [[nodiscard]] std::size_t Piece_Length() const {
    if (piece_letters.find(pattern_.front()) == std::string_view::npos) return 1;
    const std::size_t end = pattern_.find_first_not_of(pattern_.front());
    return end == std::string_view::npos ? pattern_.size() : end;
  }

  void Render_Piece(std::string_view piece) {
    if (piece == "H" || piece == "h" || piece == "HH" || piece == "hh") {
      Append_Number(to_, Hour(), static_cast<int>(piece.size()));
      after_hour_ = true;
      return;
    }
    if (piece == ":") {
      to_ += words_.Time_Separator;
      return;
    }
    if (piece == "mm" && after_hour_) Append_Number(to_, seconds_ / 60 % 60, 2);
    else Render_Other(piece);
    after_hour_ = false;
  }

  void Render_Other(std::string_view piece) {
    if (piece == "d") Append_Number(to_, date_.Day);
    else if (piece == "dd") Append_Number(to_, date_.Day, 2);
    else if (piece == "dddd") to_ += words_.Weekday_Name(Weekday_Of(day_));
    else if (piece == "m") Append_Number(to_, date_.Month);
    else if (piece == "mm") Append_Number(to_, date_.Month, 2);
    else if (piece == "yyyy") Append_Number(to_, date_.Year, 4);
    else if (piece == "ss") Append_Number(to_, seconds_ % 60, 2);
    else if (piece == "/") to_ += words_.Date_Separator;
    else to_ += piece;
  }

  [[nodiscard]] int Hour() const {
    const int hour = seconds_ / 3600;
    return half_days_ ? (hour + 11) % 12 + 1 : hour;
  }

  std::string& to_;
  std::string_view pattern_;
  const Date_Words& words_;
  Serial_Day day_;
  Civil_Date date_;
  int seconds_;
  bool half_days_;
  bool after_hour_ = false;
};

}  // namespace

const std::string& Date_Words::Month_Name(int month) const {
  if (month < 1 || month > 12) throw Run_Error(Error_Number::Invalid_Procedure_Call);
  return Months[static_cast<unsigned>(month) - 1];
}

void Append_Date(std::string& to, const Moment& moment, std::string_view pattern, const Date_Words& words) {
  Renderer(to, moment, pattern, words).Render();
}

std::string Format_Date(const Moment& moment, std::string_view pattern, const Date_Words& words) {
  std::string result;
  Append_Date(result, moment, pattern, words);
  return result;
}

void Append_Number(std::string& to, int number, int digits) {
  char text[16];
  const auto end = std::to_chars(text, text + sizeof text, number).ptr;
  for (auto missing = digits - (end - text); missing > 0; --missing) to += '0';
  to.append(text, end);
}

}  // namespace basic
