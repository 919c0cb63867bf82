// The fitting of captions told once more, with a label's caption as scratch and character by character: a second opinion
// on the computation that the calendar uses.
#pragma once

#include <string>

#include "presentation/caption_fit.h"

class Fit_By_The_Letter {
 public:
  Fit_By_The_Letter(double width, const presentation::Text_Measure& measure) : width_(width), measure_(measure) {}

  std::string Three_Lines(const std::string& text) {
    std::string w = text;
    std::string l1, l2, l3;
    scratch_ = w;
    if (Measure() < width_) {
      l1 = scratch_;
      return Joined(l1, l2, l3);
    }
    Get_Line();
    l1 = scratch_;
    w = Last(w, w.size() - l1.size());
    scratch_ = w;
    if (Measure() < width_) {
      l2 = scratch_;
      return Joined(l1, l2, l3);
    }
    Get_Line();
    l2 = scratch_;
    w = Last(w, w.size() - l2.size());
    scratch_ = w;
    if (Measure() < width_) {
      l3 = scratch_;
      return Joined(l1, l2, l3);
    }
    Get_Line();
    if (scratch_.size() < 4) l3 = scratch_ + "...";
    else l3 = scratch_.substr(0, scratch_.size() - 3) + "...";
    return Joined(l1, l2, l3);
  }

  /// The text must be cut to three characters or more.
  std::string One_Line(const std::string& text) {
    scratch_ = text;
    if (Measure() < width_) return scratch_;
    while (!(Measure() < width_)) scratch_.pop_back();
    return scratch_.substr(0, scratch_.size() - 3) + "...";
  }

  std::string Line(const std::string& text) {
    scratch_ = text;
    Get_Line();
    return scratch_;
  }

 private:
  void Get_Line() {
    std::string remaining = scratch_;
    const std::string whole_text = scratch_;
    std::string last_good, first_word;
    scratch_.clear();
    while (Measure() <= width_) {
      std::size_t blank = 1;  // from 1 on
      while (blank <= remaining.size() && remaining[blank - 1] != ' ') ++blank;
      if (blank > remaining.size()) {
        scratch_ = whole_text;
        return;
      }
      last_good = scratch_;
      first_word = remaining.substr(0, blank - 1);
      scratch_ += first_word;
      remaining.erase(0, blank);
      scratch_ += ' ';
    }
    if (!last_good.empty()) {
      scratch_ = last_good;
      return;
    }
    scratch_ = first_word;
    while (!(Measure() < width_)) scratch_.pop_back();
  }

  [[nodiscard]] double Measure() const { return measure_.Width(scratch_); }
  static std::string Last(const std::string& text, std::size_t count) { return text.substr(text.size() - count); }
  static std::string Joined(const std::string& l1, const std::string& l2, const std::string& l3) {
    return l1 + "\r\n" + l2 + "\r\n" + l3;
  }

  double width_;
  const presentation::Text_Measure& measure_;
  std::string scratch_;
};
