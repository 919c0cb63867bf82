#include "toolkit/frame.h"

#include <utility>

#include "toolkit/form.h"

namespace toolkit {

Frame::Frame(const Container& container, std::string name, int index)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Frame::Changed(Aspect aspect) {
  Control::Changed(aspect);
  if (aspect == Aspect::Bounds || aspect == Aspect::Visible || aspect == Aspect::Enabled)
    Window.Contents_Changed(*this, aspect);
}

}  // namespace toolkit
