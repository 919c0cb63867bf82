#include "toolkit/label.h"

#include <utility>

namespace toolkit {

Label::Label(Form& window, std::string name, int index)
    : Control(window, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

}  // namespace toolkit
