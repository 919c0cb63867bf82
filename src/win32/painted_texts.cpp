#include "win32/painted_texts.h"

#include "toolkit/form.h"
#include "win32/graphics.h"

namespace win32 {

namespace {

UINT Text_Format(const toolkit::Label& label) {
  UINT format = DT_LEFT;
  if (label.Alignment() == toolkit::Alignment::Right) format = DT_RIGHT;
  if (label.Alignment() == toolkit::Alignment::Centre) format = DT_CENTER;
  if (label.Word_Wrap) format |= DT_WORDBREAK;
  if (!label.Mnemonics) format |= DT_NOPREFIX;
  return format;
}

void Draw_Text(HDC context, const std::string& text, RECT& place, UINT format) {
  DrawTextA(context, text.data(), static_cast<int>(text.size()), &place, format);
}

// The system's measures of a group box, in pixels.
constexpr int caption_indent = 9, gap_beside_caption = 2;

// Its numbers in the system's visual styles.
constexpr int group_box = 4, normal = 1, disabled = 2;

}  // namespace

bool Painted_Text::Shows(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  if (aspect == Appearance) face_ = nullptr;
  return aspect == Appearance || aspect == Caption || aspect == Enabled;
}

void Painted_Text::Select_Font(HDC context, Fonts& fonts) {
  if (face_ == nullptr)
    face_ = &fonts.Get({font_.FontName, font_.FontSize, font_.FontBold, font_.FontItalic, font_.FontUnderline});
  SelectObject(context, face_->Handle.Get());
}

void Painted_Label::Draw(HDC context, const Drawing_Tools& tools) {
  RECT place = Place;
  if (!label_.Transparent) Fill(context, place, To_Colour(label_.BackColor));
  if (label_.Fixed_Border) Draw_Line_Around(context, place);
  const std::string& text = label_.Caption;
  if (text.empty()) return;
  Select_Font(context, tools.Fonts);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, Text_Colour());
  Draw_Text(context, text, place, Text_Format(label_));
}

COLORREF Painted_Label::Text_Colour() const {
  const COLORREF colour = To_Colour(label_.ForeColor);
  if (label_.Usable()) return colour;
  return Grey_On(To_Colour(label_.Transparent ? label_.Window.BackColor : label_.BackColor), colour);
}

void Painted_Frame::Draw(HDC context, const Drawing_Tools& tools) {
  if (!frame_.Bordered) return;
  Select_Font(context, tools.Fonts);
  const RECT caption = Caption_Place(context);
  Draw_Line(context, tools.Themes, caption);
  if (!frame_.Caption().empty()) Draw_Caption(context, tools.Themes, caption);
}

/// The place of the caption; one line high also where there is none, since the line runs through its middle.
RECT Painted_Frame::Caption_Place(HDC context) const {
  RECT place = {};
  const bool empty = frame_.Caption().empty();
  Draw_Text(context, empty ? "X" : frame_.Caption(), place, DT_CALCRECT | DT_SINGLELINE);
  if (empty) place.right = 0;
  OffsetRect(&place, Place.left + caption_indent, Place.top);
  place.right = std::min(place.right, Place.right - caption_indent);
  return place;
}

void Painted_Frame::Draw_Line(HDC context, Themes& themes, const RECT& caption) const {
  const Saved_Context saved(context);
  if (!frame_.Caption().empty())
    ExcludeClipRect(context, caption.left - gap_beside_caption, caption.top, caption.right + gap_beside_caption,
                    caption.bottom);
  RECT line = Place;
  line.top += (caption.bottom - caption.top) / 2;
  if (!themes.Draw(context, Look(), line)) DrawEdge(context, &line, EDGE_ETCHED, BF_RECT);
}

void Painted_Frame::Draw_Caption(HDC context, Themes& themes, RECT caption) const {
  constexpr COLORREF none = CLR_INVALID;
  const COLORREF ground = To_Colour(frame_.Window.BackColor), own = GetSysColor(COLOR_BTNTEXT);
  // The colours of a style don't go with every ground that the user may choose.
  const COLORREF of_style = themes.Text_Colour({group_box, normal}, own);
  const COLORREF usual = Readable(of_style, ground) ? of_style : own;
  COLORREF colour = usual;
  if (!frame_.Usable()) {
    // A style may have no look of its own for what is disabled.
    colour = themes.Text_Colour(Look(), none);
    if (colour == none || colour == of_style || !Readable(colour, ground)) colour = Grey_On(ground, usual);
  }
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, colour);
  Draw_Text(context, frame_.Caption, caption, DT_SINGLELINE);
}

Themes::Look Painted_Frame::Look() const { return {group_box, frame_.Usable() ? normal : disabled}; }

}  // namespace win32
