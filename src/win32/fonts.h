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

/// A font, and the widths of its characters once they have been asked for.
struct Face {
  toolkit::Font Description;
  Font_Owner Handle;
  bool Measured = false;
  std::array<int, 256> Widths{};  ///< pixels
  int Overhang = 0;               ///< pixels that a text is wider than its characters together
};

class Fonts {
 public:
  explicit Fonts(const Scale& scale);

  /// The font of that description, valid for as long as the program runs.
  Face& Get(const toolkit::Font& description);

  /// The width of the text in pixels. Line ends have no width.
  int Width(Face& face, std::string_view text);

  /// The height in pixels of the text with its lines broken at blanks, so that they fit the width (pixels); at least
  /// one line.
  int Height(const Face& face, std::string_view text, int width);

  /// The name of the font that the system really uses for it.
  std::string Name_Of(const Face& face);

  /// The number of bytes of the longest beginning that is at most `limit` pixels wide; it never splits a character.
  std::size_t Longest_Beginning(Face& face, std::string_view text, int limit);

 private:
  HDC Select(const Face& face);
  void Measure(Face& face);
  [[nodiscard]] static bool Has_No_Width(char c) { return c == '\r' || c == '\n'; }

  const Scale& scale_;
  std::vector<std::unique_ptr<Face>> faces_;
  Face* last_ = nullptr;  // the one asked for last: many measures in a row are of the same font
  Context_Owner context_;
  bool double_bytes_ = false;  // a code page with characters of two bytes
};

}  // namespace win32
