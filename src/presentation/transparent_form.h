// The cutting of a window down to its visible controls, so that the desktop shows, and takes clicks, between them.
#pragma once

#include "toolkit/form.h"

namespace presentation {

/// Gives the window the region of its frame and of all its visible controls. Leaves its coordinate unit at pixels. Does
/// no more than that to a minimised window.
void TransparentForm(toolkit::Form& form);

}  // namespace presentation
