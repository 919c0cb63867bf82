#include "toolkit/geometry.h"

#include <cmath>

namespace toolkit {

int Round_To_Even(double value) { return static_cast<int>(std::nearbyint(value)); }

}  // namespace toolkit
