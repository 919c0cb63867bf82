// The layout of the calendar window by box style.
#pragma once

#include "basic/int16.h"
#include "presentation/main_frm.h"

namespace presentation {

/// Lays out the boxes for style 0, 1 or 2 (any other leaves them as they are), then derives the header row and the size
/// of the window from them. Box 35 must already be shown or hidden: it decides the height. Leaves the window's
/// coordinate unit at twips.
void Which_Style(Main_Frm& main_frm, basic::Int16 style);

}  // namespace presentation
