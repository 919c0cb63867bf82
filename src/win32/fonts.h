// The fonts that the windows use, each made once, and the widths of texts in them.
#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "toolkit/backend.h"
#include "win32/handle.h"
#include "win32/scale.h"

namespace win32 {

/// The character set of the fonts for a code page, by the system's number; that of its locale for a page that has none.
BYTE Character_Set_Of(UINT code_page);

/// A font, and the widths of its characters once they have been asked for.
struct Face {
  toolkit::Font Description;
  Font_Owner Handle;
  bool Measured = false;
  bool Has_Widths = false;        ///< else the system measures every text
  std::array<int, 256> Widths{};  ///< pixels; of bytes that are a letter by themselves
  int Overhang = 0;               ///< pixels that a text is wider than its characters together
};

class Fonts {
 public:
  /// Texts are bytes of the code page.
  explicit Fonts(const Scale& scale, UINT code_page = GetACP());

  /// The font of that description, valid for as long as the program runs.
  Face& Get(const toolkit::Font& description);

  /// The width of the text in pixels. Line ends have no width.
  int Width(Face& face, std::string_view text);

  /// The height in pixels of the text with its lines broken at blanks, so that they fit the width (pixels); at least
  /// one line.
  int Height(const Face& face, std::string_view text, int width);

  /// The name of the font that the system has for that name, whatever letters it has.
  std::string Given_For(const std::string& name);

  /// The number of bytes of the longest beginning that is at most `limit` pixels wide; it never splits a character.
  std::size_t Longest_Beginning(Face& face, std::string_view text, int limit);

 private:
  HDC Select(const Face& face);
  bool Measure(Face& face);
  bool Adds_Up(Face& face, std::string_view text);
  int Whole_Width(const Face& face, std::string_view text);
  std::size_t Longest_Whole(const Face& face, std::string_view text, int limit);
  [[nodiscard]] std::size_t Character_After(std::string_view text, std::size_t at) const;

  const Scale& scale_;
  const UINT code_page_;
  std::vector<std::unique_ptr<Face>> faces_;
  Face* last_ = nullptr;  // the one asked for last: many measures in a row are of the same font
  Context_Owner context_;
  bool simple_ = true;  // each character of the code page is one byte, and as wide alone as in any text
};

}  // namespace win32
