// Random numbers that are the same for a seed on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <string_view>

namespace monkey {

class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}

  /// 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(count)); }

  /// Yes once in so many times.
  bool Once_In(int times) { return Below(times) == 0; }

  template <class List>
  const auto& One_Of(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace monkey
