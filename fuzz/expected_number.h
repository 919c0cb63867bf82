// A second opinion on texts as numbers, which works on the digits as text.
#pragma once

#include <cstdlib>
#include <string>

#include "basic/text.h"
#include "tests/basic/error_of.h"

/// What a conversion comes to: an error, or a value where the error is 0.
struct Outcome {
  int Error = 0;
  long long Value = 0;

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <class Conversion>
Outcome Outcome_Of(Conversion&& convert) {
  Outcome outcome;
  outcome.Error = Error_Of([&] { outcome.Value = convert(); });
  return outcome;
}

inline std::string Without_Outer_Blanks(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

inline Outcome Expected_Number(const std::string& text, long long lowest, long long highest) {
  std::string digits = Without_Outer_Blanks(text);
  std::string sign;
  if (!digits.empty() && (digits[0] == '+' || digits[0] == '-')) {
    sign = digits[0];
    digits.erase(0, 1);
  }
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) return {13};
  digits.erase(0, digits.find_first_not_of('0'));
  if (digits.size() > 10) return {6};
  const long long value = std::strtoll((sign + digits + (digits.empty() ? "0" : "")).c_str(), nullptr, 10);
  if (value < lowest || value > highest) return {6};
  return {0, value};
}

inline Outcome Expected_Int16(const std::string& text) { return Expected_Number(text, -32768, 32767); }
inline Outcome Expected_Int32(const std::string& text) { return Expected_Number(text, -2147483648LL, 2147483647LL); }

/// Whether it is a decimal number, with a sign and a fraction or without.
inline bool Is_Number(std::string text) {
  text = Without_Outer_Blanks(text);
  if (!text.empty() && (text[0] == '+' || text[0] == '-')) text.erase(0, 1);
  const std::size_t point = text.find('.');
  if (point != std::string::npos) text.erase(point, 1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

/// The texts "True" and "False", and numbers.
inline Outcome Expected_Flag(const std::string& text) {
  const std::string word = basic::Upper_Case(Without_Outer_Blanks(text));
  if (word == "TRUE") return {0, 1};
  if (word == "FALSE") return {0, 0};
  if (!Is_Number(text)) return {13};
  return {0, text.find_first_of("123456789") != std::string::npos ? 1 : 0};
}
