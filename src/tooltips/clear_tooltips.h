// The plain tooltips of the day boxes.
#pragma once

#include "presentation/arrangement.h"

namespace tooltips {

/// Empties the tooltips of all boxes and captions.
void Clear_Tooltips(presentation::Arrangement& arrangement);

}  // namespace tooltips
