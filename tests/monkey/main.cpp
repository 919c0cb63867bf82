// monkey SEED COUNT: plays that many random actions, checks after each, and ends with 0 if all held.
// monkey SEED --hours H: the same until so many hours of virtual time have passed.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "monkey.h"

int main(int count, char** words) {
  const bool by_hours = count == 4 && std::strcmp(words[2], "--hours") == 0;
  if (count != 3 && !by_hours) {
    std::fputs("usage: monkey SEED COUNT | monkey SEED --hours H\n", stderr);
    return 2;
  }
  const auto seed = static_cast<unsigned>(std::strtoul(words[1], nullptr, 10));
  constexpr double micros_of_an_hour = 3.6e9;
  monkey::Limit limit;
  if (by_hours) limit.micros = static_cast<std::int64_t>(std::strtod(words[3], nullptr) * micros_of_an_hour);
  else limit.actions = std::atoi(words[2]);
  std::printf("seed %u, %s %s\n", seed, by_hours ? "hours:" : "actions:", words[count - 1]);
  std::fflush(stdout);
  return monkey::Monkey(seed).Play(limit) ? 0 : 1;
}
