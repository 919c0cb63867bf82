#include "toolkit/label.h"

#include <utility>

#include "toolkit/form.h"

namespace toolkit {

Label::Label(const Container& container, std::string name, int index)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Label::Changed(Aspect aspect) {
  Control::Changed(aspect);
  if (!AutoSize) return;
  const bool new_size =
      aspect == Aspect::Bounds && (In_Twips().Width != sized_for_width_ || In_Twips().Height != sized_height_);
  if (new_size || aspect == Aspect::Caption || aspect == Aspect::Appearance) Size_To_Text();
}

const std::string* Label::Caption_With_Accelerator() const { return Mnemonics ? &Caption() : nullptr; }

void Label::Size_To_Text() {
  sized_for_width_ = In_Twips().Width;
  const Font font{FontName, FontSize, FontBold, FontItalic, FontUnderline};
  Bounds sized = In_Twips();
  sized.Height = Window.System().Text_Height(font, Shown_Text(), sized.Width);
  sized_height_ = sized.Height;
  Place(sized);
}

}  // namespace toolkit
