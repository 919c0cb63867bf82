// A label: text on its window, without a window of its own. The window paints its labels in their order.
#pragma once

#include "toolkit/control.h"

namespace toolkit {

enum class Alignment { Left = 0, Right = 1, Centre = 2 };

/// The properties of a text's font, as members of the control that shows the text.
struct Font_Properties {
  explicit Font_Properties(Property_Owner& owner)
      : FontName(owner, Aspect::Appearance, "MS Sans Serif"), FontSize(owner, Aspect::Appearance, 8.25),
        FontBold(owner, Aspect::Appearance), FontItalic(owner, Aspect::Appearance),
        FontUnderline(owner, Aspect::Appearance) {}

  Property<std::string> FontName;
  Property<double> FontSize;  ///< points
  Property<bool> FontBold, FontItalic, FontUnderline;
};

class Label : public Control, public Font_Properties {
 public:
  Label(const Container& container, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};
  Property<Colour> BackColor{*this, Aspect::Appearance, System_Colour(15)};
  Property<Colour> ForeColor{*this, Aspect::Appearance, System_Colour(18)};
  Property<toolkit::Alignment> Alignment{*this, Aspect::Appearance, toolkit::Alignment::Left};
  Property<bool> Transparent{*this, Aspect::Appearance};      ///< shows what lies under it behind its text
  Property<bool> Fixed_Border{*this, Aspect::Appearance};     ///< a single line around it
  Property<bool> Mnemonics{*this, Aspect::Appearance, true};  ///< "&" marks the next character; "&&" shows one "&"
  Property<bool> Word_Wrap{*this, Aspect::Appearance, true};  ///< breaks lines at blanks where the width ends
  Property<bool> AutoSize{*this, Aspect::Appearance};         ///< the height is that of the text, whatever is set

  void Changed(Aspect aspect) override;

  [[nodiscard]] const std::string* Caption_With_Accelerator() const override;
  [[nodiscard]] std::string Shown_Text() const override { return Mnemonics ? Control::Shown_Text() : Caption(); }

 private:
  void Size_To_Text();

  double sized_for_width_ = 0, sized_height_ = 0;  // twips
};

}  // namespace toolkit
