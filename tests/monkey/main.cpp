// monkey SEED COUNT: plays that many random actions, checks after each, and ends with 0 if all held. A run of 5,000 actions
// or more must also have come everywhere.
// monkey SEED --hours H: the same until so many hours of virtual time have passed.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "monkey.h"

namespace {

constexpr double micros_of_an_hour = 3.6e9;
constexpr double most_hours = 1e6;

/// Whether the whole text is a number above 0, which it then becomes.
template <class Number>
bool Read(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number > 0;
}

bool Read_Limit(int count, char** words, monkey::Limit& limit) {
  if (count == 3) return Read(words[2], limit.actions);
  double hours = 0;
  if (count != 4 || std::strcmp(words[2], "--hours") != 0 || !Read(words[3], hours) || hours > most_hours) return false;
  limit.micros = static_cast<std::int64_t>(hours * micros_of_an_hour);
  return limit.micros > 0;
}

}  // namespace

int main(int count, char** words) {
  unsigned seed = 0;
  monkey::Limit limit;
  if (count < 3 || !Read(words[1], seed) || !Read_Limit(count, words, limit)) {
    std::fputs("usage: monkey SEED COUNT | monkey SEED --hours H, all numbers above 0\n", stderr);
    return 2;
  }
  std::printf("seed %u, %s %s\n", seed, limit.micros > 0 ? "hours:" : "actions:", words[count - 1]);
  std::fflush(stdout);
  return monkey::Monkey(seed).Play(limit) ? 0 : 1;
}
