// Labels and frames, as their window paints them.
#pragma once

#include "toolkit/frame.h"
#include "win32/painted_control.h"

namespace win32 {

/// A control with a text in a font of its own.
class Painted_Text : public Painted_Control {
 public:
  explicit Painted_Text(const toolkit::Font_Properties& font) : font_(font) {}

  bool Shows(toolkit::Aspect aspect) override;

 protected:
  void Select_Font(HDC context, Fonts& fonts);

 private:
  const toolkit::Font_Properties& font_;
  const Face* face_ = nullptr;  // once it has been drawn
};

class Painted_Label final : public Painted_Text {
 public:
  explicit Painted_Label(const toolkit::Label& label) : Painted_Text(label), label_(label) {}

  void Draw(HDC context, const Drawing_Tools& tools) override;

 private:
  [[nodiscard]] COLORREF Text_Colour() const;

  const toolkit::Label& label_;
};

/// Looks like the system's own group box, which would be a window.
class Painted_Frame final : public Painted_Text {
 public:
  explicit Painted_Frame(const toolkit::Frame& frame) : Painted_Text(frame), frame_(frame) {}

  void Draw(HDC context, const Drawing_Tools& tools) override;

 private:
  [[nodiscard]] RECT Caption_Place(HDC context) const;
  void Draw_Line(HDC context, Themes& themes, const RECT& caption) const;
  void Draw_Caption(HDC context, Themes& themes, RECT caption) const;
  [[nodiscard]] Themes::Look Look() const;

  const toolkit::Frame& frame_;
};

}  // namespace win32
