#include "win32/fonts.h"

#include <algorithm>

namespace win32 {

namespace {

bool Same_Font(const toolkit::Font& a, const toolkit::Font& b) {
  return a.Size == b.Size && a.Bold == b.Bold && a.Italic == b.Italic && a.Underline == b.Underline && a.Name == b.Name;
}

/// Whether letters of the code page join, change their shapes or stand above each other.
bool Is_Shaped(UINT code_page) {
  constexpr std::array<UINT, 4> thai_hebrew_arabic_vietnamese = {874, 1255, 1256, 1258};
  return std::find(thai_hebrew_arabic_vietnamese.begin(), thai_hebrew_arabic_vietnamese.end(), code_page) !=
         thai_hebrew_arabic_vietnamese.end();
}

bool Has_No_Width(char c) { return c == '\r' || c == '\n'; }

HFONT Make_Font(const toolkit::Font& font, int dpi, BYTE character_set) {
  constexpr double points_per_inch = 72;
  LOGFONTA description = {};
  description.lfHeight = -toolkit::Round_To_Even(font.Size * dpi / points_per_inch);
  description.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.Italic;
  description.lfUnderline = font.Underline;
  description.lfCharSet = character_set;
  lstrcpynA(description.lfFaceName, font.Name.c_str(), LF_FACESIZE);
  return CreateFontIndirectA(&description);
}

}  // namespace

BYTE Character_Set_Of(UINT code_page) {
  CHARSETINFO found = {};
  auto* const number = reinterpret_cast<DWORD*>(static_cast<DWORD_PTR>(code_page));  // the call wants it in this form
  const bool known = code_page != CP_UTF8 && TranslateCharsetInfo(number, &found, TCI_SRCCODEPAGE) != 0;
  if (!known) return DEFAULT_CHARSET;
  return static_cast<BYTE>(found.ciCharset);
}

Fonts::Fonts(const Scale& scale, UINT code_page) : scale_(scale), code_page_(code_page) {
  CPINFO about = {};
  const bool single_bytes = GetCPInfo(code_page, &about) == 0 || about.MaxCharSize == 1;
  simple_ = single_bytes && !Is_Shaped(code_page);
}

Face& Fonts::Get(const toolkit::Font& description) {
  if (last_ != nullptr && Same_Font(last_->Description, description)) return *last_;
  const auto known = std::find_if(faces_.begin(), faces_.end(),
                                  [&](const auto& face) { return Same_Font(face->Description, description); });
  if (known != faces_.end()) return *(last_ = known->get());
  auto face = std::make_unique<Face>();
  face->Description = description;
  face->Handle.Reset(Make_Font(description, scale_.Dpi, Character_Set_Of(code_page_)));
  return *(last_ = faces_.emplace_back(std::move(face)).get());
}

/// Whether the text is as wide as its characters together: every text of a simple code page is, and of any other one the
/// text of plain letters.
bool Fonts::Adds_Up(Face& face, std::string_view text) {
  const bool plain =
      simple_ || std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return plain && Measure(face);
}

int Fonts::Width(Face& face, std::string_view text) {
  if (!Adds_Up(face, text)) return Whole_Width(face, text);
  int width = 0;
  for (const char c : text) width += face.Widths[static_cast<unsigned char>(c)];
  return width == 0 ? 0 : width + face.Overhang;
}

/// As the system lays the text out: letters may join, stand above each other and change their shapes.
int Fonts::Whole_Width(const Face& face, std::string_view text) {
  std::string shown(text);
  std::erase_if(shown, Has_No_Width);
  SIZE size = {};
  GetTextExtentPoint32A(Select(face), shown.data(), static_cast<int>(shown.size()), &size);
  return size.cx;
}

int Fonts::Height(const Face& face, std::string_view text, int width) {
  if (text.empty()) text = " ";
  RECT place = {0, 0, width, 0};
  DrawTextA(Select(face), text.data(), static_cast<int>(text.size()), &place, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return place.bottom;
}

/// Asked without a character set: for letters that a font doesn't have the system gives another font.
std::string Fonts::Given_For(const std::string& name) {
  toolkit::Font font;
  font.Name = name;
  const Face face{font, Font_Owner(Make_Font(font, scale_.Dpi, DEFAULT_CHARSET))};
  char given[LF_FACESIZE] = "";
  const HDC context = Select(face);
  GetTextFaceA(context, LF_FACESIZE, given);
  SelectObject(context, GetStockObject(SYSTEM_FONT));
  return given;
}

std::size_t Fonts::Longest_Beginning(Face& face, std::string_view text, int limit) {
  if (limit < 0) return 0;
  if (!Adds_Up(face, text)) return Longest_Whole(face, text, limit);
  int width = face.Overhang;
  std::size_t count = 0;
  for (; count < text.size(); ++count) {
    width += face.Widths[static_cast<unsigned char>(text[count])];
    if (width > limit) break;
  }
  return count;
}

/// By halves: a beginning is measured as it would be written, without what follows it.
std::size_t Fonts::Longest_Whole(const Face& face, std::string_view text, int limit) {
  std::vector<std::size_t> ends = {0};
  while (ends.back() < text.size()) ends.push_back(Character_After(text, ends.back()));
  const auto wider = std::partition_point(
      ends.begin() + 1, ends.end(), [&](std::size_t end) { return Whole_Width(face, text.substr(0, end)) <= limit; });
  return *(wider - 1);
}

/// Where the next character begins.
std::size_t Fonts::Character_After(std::string_view text, std::size_t at) const {
  std::size_t next = at + 1;
  if (code_page_ == CP_UTF8) {
    while (next < text.size() && (static_cast<unsigned char>(text[next]) & 0xC0U) == 0x80U) ++next;
  } else if (IsDBCSLeadByteEx(code_page_, static_cast<BYTE>(text[at])) != 0) {
    ++next;
  }
  return std::min(next, text.size());
}

HDC Fonts::Select(const Face& face) {
  if (!context_) context_.Reset(CreateCompatibleDC(nullptr));
  SelectObject(context_.Get(), face.Handle.Get());
  return context_.Get();
}

/// Returns false where the system doesn't tell the widths of the characters. Those bytes alone are asked for that are letters
/// by themselves: where two or more are one, the system needn't answer for the others.
bool Fonts::Measure(Face& face) {
  if (face.Measured) return face.Has_Widths;
  face.Measured = true;
  const HDC context = Select(face);
  const std::size_t letters = simple_ ? 256 : 128;
  if (GetCharWidthA(context, 0, static_cast<UINT>(letters - 1), face.Widths.data()) == 0) return false;
  // A font that the system has made bold or italic itself is wider than its characters, by an overhang that some
  // systems count once for a text and others for each character too.
  SIZE one = {}, two = {};
  if (GetTextExtentPoint32A(context, "x", 1, &one) == 0 || GetTextExtentPoint32A(context, "xx", 2, &two) == 0)
    return false;
  const int advance = two.cx - one.cx, surplus = face.Widths['x'] - advance;
  for (std::size_t letter = 0; letter < letters; ++letter) face.Widths.at(letter) -= surplus;
  for (const char c : {'\r', '\n'}) face.Widths[static_cast<unsigned char>(c)] = 0;
  face.Overhang = one.cx - advance;
  return face.Has_Widths = true;
}

}  // namespace win32
