// The measures of texts in the system's fonts, by code page.
#include "win32/fonts.h"

#include <gtest/gtest.h>

namespace {

using win32::Fonts;

const toolkit::Font italic{"Arial", 12, false, true};

std::string Every_Letter() {
  std::string text;
  for (int letter = 0xC0; letter <= 0xFF; ++letter) text += static_cast<char>(letter);
  return text + "\r\n" + text;
}

/// As long as it fits when it is written alone.
std::size_t Longest_By_Trying(Fonts& fonts, std::string_view text, int limit) {
  win32::Face& face = fonts.Get(italic);
  std::size_t longest = 0;
  while (longest < text.size() && fonts.Width(face, text.substr(0, longest + 1)) <= limit) ++longest;
  return longest;
}

}  // namespace

TEST(Fonts, Have_the_character_set_of_the_code_page) {
  EXPECT_EQ(win32::Character_Set_Of(1252), ANSI_CHARSET);
  EXPECT_EQ(win32::Character_Set_Of(1250), EASTEUROPE_CHARSET);
  EXPECT_EQ(win32::Character_Set_Of(1251), RUSSIAN_CHARSET);
  EXPECT_EQ(win32::Character_Set_Of(1256), ARABIC_CHARSET);
  EXPECT_EQ(win32::Character_Set_Of(932), SHIFTJIS_CHARSET);
  EXPECT_EQ(win32::Character_Set_Of(CP_UTF8), DEFAULT_CHARSET);
}

TEST(Fonts, Are_made_with_the_character_set_of_the_code_page) {
  const win32::Scale scale;
  for (const UINT code_page : {1252U, 1250U, 1251U}) {
    Fonts fonts(scale, code_page);
    LOGFONTA made = {};
    GetObjectA(fonts.Get(italic).Handle.Get(), sizeof made, &made);
    EXPECT_EQ(made.lfCharSet, win32::Character_Set_Of(code_page)) << code_page;
  }
}

TEST(Fonts, A_text_of_a_shaped_script_is_as_wide_as_the_system_lays_it_out) {
  const win32::Scale scale;
  Fonts fonts(scale, 1256);
  win32::Face& face = fonts.Get(italic);
  const std::string text = "\xD3\xE1\xC7\xE3";
  const win32::Context_Owner context(CreateCompatibleDC(nullptr));
  SelectObject(context.Get(), face.Handle.Get());
  SIZE size = {};
  GetTextExtentPoint32A(context.Get(), text.data(), static_cast<int>(text.size()), &size);
  EXPECT_EQ(fonts.Width(face, text), size.cx);
  EXPECT_EQ(fonts.Width(face, text + "\r\n"), size.cx);
}

TEST(Fonts, The_longest_beginning_is_the_longest_that_fits_on_every_code_page) {
  const win32::Scale scale;
  for (const UINT code_page : {1252U, 1256U, 874U}) {
    Fonts fonts(scale, code_page);
    const std::string text = Every_Letter();
    const int whole = fonts.Width(fonts.Get(italic), text);
    for (int limit = 0; limit <= whole + 7; limit += 7)
      EXPECT_EQ(fonts.Longest_Beginning(fonts.Get(italic), text, limit), Longest_By_Trying(fonts, text, limit))
          << code_page << ", " << limit << " pixels";
  }
}

TEST(Fonts, The_longest_beginning_splits_no_character) {
  const win32::Scale scale;
  Fonts japanese(scale, 932), utf8(scale, CP_UTF8);
  const std::string two_bytes = "\x93\xFA\x96\x7B\x8C\xEA", two_and_three = "\xC3\xA4\xE6\x97\xA5";
  for (int limit = 0; limit < 200; ++limit) {
    EXPECT_EQ(japanese.Longest_Beginning(japanese.Get(italic), two_bytes, limit) % 2, 0U);
    const std::size_t length = utf8.Longest_Beginning(utf8.Get(italic), two_and_three, limit);
    EXPECT_TRUE(length == 0 || length == 2 || length == 5) << length;
  }
}

TEST(Fonts, Plain_letters_are_as_wide_as_the_system_writes_them_where_others_have_more_bytes) {
  const win32::Scale scale;
  const win32::Context_Owner context(CreateCompatibleDC(nullptr));
  for (const UINT code_page : {932U, 936U, 949U, 950U, static_cast<UINT>(CP_UTF8)}) {
    Fonts fonts(scale, code_page);
    win32::Face& face = fonts.Get({"Arial", 12});
    SelectObject(context.Get(), face.Handle.Get());
    SIZE size = {};
    GetTextExtentPoint32A(context.Get(), "Dentist 14:30", 13, &size);
    EXPECT_EQ(fonts.Width(face, "Dentist 14:30"), size.cx) << code_page;
    EXPECT_GT(size.cx, 0) << code_page;
    SelectObject(context.Get(), GetStockObject(SYSTEM_FONT));
  }
}

TEST(Fonts, Only_bytes_that_are_letters_by_themselves_are_asked_for) {
  const win32::Scale scale;
  for (const UINT code_page : {932U, 936U, 949U, 950U, static_cast<UINT>(CP_UTF8)}) {
    Fonts fonts(scale, code_page);
    win32::Face& face = fonts.Get(italic);
    ASSERT_GT(fonts.Width(face, "x"), 0) << code_page;
    for (std::size_t byte = 128; byte < 256; ++byte) EXPECT_EQ(face.Widths.at(byte), 0) << code_page << ", " << byte;
  }
}

TEST(Fonts, A_font_is_there_whatever_the_letters_of_the_code_page_are) {
  const win32::Scale scale;
  for (const UINT code_page : {1252U, 932U, 936U, 949U, 950U}) {
    Fonts fonts(scale, code_page);
    EXPECT_EQ(fonts.Given_For("Tahoma"), "Tahoma") << code_page;
    EXPECT_NE(fonts.Given_For("No such font"), "No such font") << code_page;
  }
}
