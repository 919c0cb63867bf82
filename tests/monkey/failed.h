// What a check throws.
#pragma once

#include <stdexcept>

namespace monkey {

/// Says what is wrong.
struct Failed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace monkey
