#include "win32/fonts.h"

#include <algorithm>

namespace win32 {

namespace {

bool Same_Font(const toolkit::Font& a, const toolkit::Font& b) {
  return a.Size == b.Size && a.Bold == b.Bold && a.Italic == b.Italic && a.Underline == b.Underline && a.Name == b.Name;
}

HFONT Make_Font(const toolkit::Font& font, int dpi) {
  constexpr double points_per_inch = 72;
  LOGFONTA description = {};
  description.lfHeight = -toolkit::Round_To_Even(font.Size * dpi / points_per_inch);
  description.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.Italic;
  description.lfUnderline = font.Underline;
  description.lfCharSet = DEFAULT_CHARSET;
  lstrcpynA(description.lfFaceName, font.Name.c_str(), LF_FACESIZE);
  return CreateFontIndirectA(&description);
}

}  // namespace

Fonts::Fonts(const Scale& scale) : scale_(scale) {
  CPINFO code_page = {};
  double_bytes_ = GetCPInfo(CP_ACP, &code_page) != 0 && code_page.MaxCharSize > 1;
}

Face& Fonts::Get(const toolkit::Font& description) {
  if (last_ != nullptr && Same_Font(last_->Description, description)) return *last_;
  const auto known = std::find_if(faces_.begin(), faces_.end(),
                                  [&](const auto& face) { return Same_Font(face->Description, description); });
  if (known != faces_.end()) return *(last_ = known->get());
  auto face = std::make_unique<Face>();
  face->Description = description;
  face->Handle.Reset(Make_Font(description, scale_.Dpi));
  return *(last_ = faces_.emplace_back(std::move(face)).get());
}

int Fonts::Width(Face& face, std::string_view text) {
  if (double_bytes_) {
    SIZE size = {};
    GetTextExtentPoint32A(Select(face), text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
  }
  Measure(face);
  int width = 0;
  for (const char c : text) width += face.Widths[static_cast<unsigned char>(c)];
  return width == 0 ? 0 : width + face.Overhang;
}

int Fonts::Height(const Face& face, std::string_view text, int width) {
  if (text.empty()) text = " ";
  RECT place = {0, 0, width, 0};
  DrawTextA(Select(face), text.data(), static_cast<int>(text.size()), &place, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return place.bottom;
}

std::string Fonts::Name_Of(const Face& face) {
  char name[LF_FACESIZE] = "";
  GetTextFaceA(Select(face), LF_FACESIZE, name);
  return name;
}

std::size_t Fonts::Longest_Beginning(Face& face, std::string_view text, int limit) {
  if (limit < 0) return 0;
  if (double_bytes_) {
    int count = 0;
    SIZE size = {};
    GetTextExtentExPointA(Select(face), text.data(), static_cast<int>(text.size()), limit, &count, nullptr, &size);
    return static_cast<std::size_t>(count);
  }
  Measure(face);
  int width = face.Overhang;
  std::size_t count = 0;
  for (; count < text.size(); ++count) {
    width += face.Widths[static_cast<unsigned char>(text[count])];
    if (width > limit) break;
  }
  return count;
}

HDC Fonts::Select(const Face& face) {
  if (!context_) context_.Reset(CreateCompatibleDC(nullptr));
  SelectObject(context_.Get(), face.Handle.Get());
  return context_.Get();
}

void Fonts::Measure(Face& face) {
  if (face.Measured) return;
  face.Measured = true;
  const HDC context = Select(face);
  GetCharWidthA(context, 0, 255, face.Widths.data());
  // A font that the system has made bold or italic itself is wider than its characters, by an overhang that some
  // systems count once for a text and others for each character too.
  SIZE one = {}, two = {};
  GetTextExtentPoint32A(context, "x", 1, &one);
  GetTextExtentPoint32A(context, "xx", 2, &two);
  const int advance = two.cx - one.cx, surplus = face.Widths['x'] - advance;
  for (int& width : face.Widths) width -= surplus;
  for (const char c : {'\r', '\n'}) face.Widths[static_cast<unsigned char>(c)] = 0;
  face.Overhang = one.cx - advance;
}

}  // namespace win32
