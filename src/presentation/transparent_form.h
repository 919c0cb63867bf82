// Cuts a window down to its visible controls, so that the desktop shows between them and takes the clicks there.
#pragma once

#include "toolkit/form.h"

namespace presentation {

/// Sets the window's region to its frame and all its visible controls. A minimised window keeps its region. Leaves the
/// window's coordinate unit at pixels in either case.
void TransparentForm(toolkit::Form& form);

}  // namespace presentation
