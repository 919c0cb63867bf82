#include "win32/stock_pictures.h"

#include <algorithm>
#include <functional>
#include <span>

#include "win32/dib_picture.h"
#include "win32/graphics.h"
#include "win32/resource_numbers.h"

namespace win32 {

namespace {

int Resource_Number(platform::Stock_Picture picture) {
  switch (picture) {
    case platform::Stock_Picture::None: break;
    case platform::Stock_Picture::Program_Icon: return MERIDEX_PROGRAM_ICON;
    case platform::Stock_Picture::Information_Icon: return MERIDEX_INFORMATION_ICON;
    case platform::Stock_Picture::Clear: return MERIDEX_CLEAR_BITMAP;
    case platform::Stock_Picture::File: return MERIDEX_FILE_BITMAP;
    case platform::Stock_Picture::Settings: return MERIDEX_SETTINGS_BITMAP;
    case platform::Stock_Picture::Exit: return MERIDEX_EXIT_BITMAP;
    case platform::Stock_Picture::Monitor: return MERIDEX_MONITOR_ICON;
    case platform::Stock_Picture::Small_Calendar: return MERIDEX_SMALL_CALENDAR_ICON;
    case platform::Stock_Picture::Import_Data: return MERIDEX_IMPORT_DATA_ICON;
    case platform::Stock_Picture::Import_Configuration: return MERIDEX_IMPORT_CONFIGURATION_ICON;
    case platform::Stock_Picture::Import_Csv: return MERIDEX_IMPORT_CSV_ICON;
    case platform::Stock_Picture::Export_Data: return MERIDEX_EXPORT_DATA_ICON;
    case platform::Stock_Picture::Export_Configuration: return MERIDEX_EXPORT_CONFIGURATION_ICON;
    case platform::Stock_Picture::Export_Text: return MERIDEX_EXPORT_TEXT_ICON;
    case platform::Stock_Picture::Export_Csv: return MERIDEX_EXPORT_CSV_ICON;
  }
  return 0;
}

/// All but the menus' four.
bool Is_Icon(platform::Stock_Picture picture) {
  switch (picture) {
    case platform::Stock_Picture::None:
    case platform::Stock_Picture::Clear:
    case platform::Stock_Picture::File:
    case platform::Stock_Picture::Settings:
    case platform::Stock_Picture::Exit: return false;
    default: return true;
  }
}

/// The picture's background has the colour of its corner: it gets the colour of the menus instead.
void Put_On_Menu_Ground(HBITMAP bitmap) {
  DIBSECTION section = {};
  if (GetObjectA(bitmap, sizeof section, &section) != sizeof section || section.dsBm.bmBitsPixel != 24) return;
  const auto height = static_cast<std::size_t>(section.dsBm.bmHeight);
  const auto pitch = static_cast<std::size_t>(section.dsBm.bmWidthBytes);
  const std::span bytes(static_cast<BYTE*>(section.dsBm.bmBits), height * pitch);
  const COLORREF menu = GetSysColor(COLOR_MENU);
  const std::array<BYTE, 3> ground = {bytes[0], bytes[1], bytes[2]};
  const std::array<BYTE, 3> wanted = {GetBValue(menu), GetGValue(menu), GetRValue(menu)};
  for (std::size_t row = 0; row < height; ++row)
    for (std::size_t x = 0; x < static_cast<std::size_t>(section.dsBm.bmWidth); ++x) {
      const std::span pixel = bytes.subspan(row * pitch + x * 3, 3);
      if (std::equal(pixel.begin(), pixel.end(), ground.begin()))
        std::copy(wanted.begin(), wanted.end(), pixel.begin());
    }
}

/// Draws the pixels that aren't of the colour of the corner.
void Draw_Without_Ground(HDC context, HBITMAP bitmap, POINT corner, SIZE size) {
  const Context_Owner source(CreateCompatibleDC(context)), mask(CreateCompatibleDC(context));
  const Bitmap_Owner ground(CreateBitmap(size.cx, size.cy, 1, 1, nullptr));
  const Selection picture(source.Get(), bitmap), is_ground(mask.Get(), ground.Get());
  // Into a bitmap of two colours goes white where the source has its background colour.
  SetBkColor(source.Get(), GetPixel(source.Get(), 0, 0));
  BitBlt(mask.Get(), 0, 0, size.cx, size.cy, source.Get(), 0, 0, SRCCOPY);
  SetTextColor(context, RGB(0, 0, 0));
  SetBkColor(context, RGB(255, 255, 255));
  const auto put = [&](HDC from, DWORD how) { BitBlt(context, corner.x, corner.y, size.cx, size.cy, from, 0, 0, how); };
  put(source.Get(), SRCINVERT);
  put(mask.Get(), SRCAND);
  put(source.Get(), SRCINVERT);
}

/// The brightness of a colour alone, half mixed with the ground.
COLORREF Faded(COLORREF colour, COLORREF ground) {
  const int grey = (GetRValue(colour) * 3 + GetGValue(colour) * 6 + GetBValue(colour)) / 10;
  const auto mixed = [grey](BYTE behind) { return (grey + behind) / 2; };
  return RGB(mixed(GetRValue(ground)), mixed(GetGValue(ground)), mixed(GetBValue(ground)));
}

/// Draws what `draw` draws in grey, and half of it: it is disabled.
void Draw_Faded(HDC context, POINT corner, SIZE size, const std::function<void(HDC to, POINT at)>& draw) {
  const auto copy = [&](const Dib_Picture& picture) {
    picture.On_Context([&](HDC to) { BitBlt(to, 0, 0, size.cx, size.cy, context, corner.x, corner.y, SRCCOPY); });
  };
  Dib_Picture ground(size.cx, size.cy), drawn(size.cx, size.cy);
  copy(ground);
  copy(drawn);
  drawn.On_Context([&](HDC to) { draw(to, {0, 0}); });
  for (int y = 0; y < size.cy; ++y)
    for (int x = 0; x < size.cx; ++x) {
      const auto before = static_cast<COLORREF>(ground.Pixel(x, y)), now = static_cast<COLORREF>(drawn.Pixel(x, y));
      if (now != before) drawn.Set_Pixel(x, y, static_cast<int>(Faded(now, before)));
    }
  drawn.Draw(context, {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy});
}

}  // namespace

HICON Stock_Pictures::Frame_Icon(int width, int height) {
  return Icon(platform::Stock_Picture::Program_Icon, width, height);
}

HICON Stock_Pictures::Icon(platform::Stock_Picture picture, int width, int height) {
  for (const Sized_Icon& icon : icons_)
    if (icon.Picture == picture && icon.Width == width && icon.Height == height) return icon.Icon.Get();
  const HANDLE loaded = LoadImageA(instance_, MAKEINTRESOURCEA(Resource_Number(picture)), IMAGE_ICON, width, height, 0);
  icons_.push_back({picture, width, height, Icon_Owner(static_cast<HICON>(loaded))});
  return icons_.back().Icon.Get();
}

void Stock_Pictures::Draw(HDC context, platform::Stock_Picture picture, const RECT& place) {
  const int width = place.right - place.left, height = place.bottom - place.top;
  if (Is_Icon(picture)) {
    DrawIconEx(context, place.left, place.top, Icon(picture, width, height), width, height, 0, nullptr, DI_NORMAL);
    return;
  }
  const HBITMAP bitmap = Bitmap(picture);
  BITMAP size = {};
  if (bitmap == nullptr || GetObjectA(bitmap, sizeof size, &size) == 0) return;
  const Context_Owner source(CreateCompatibleDC(context));
  const HGDIOBJ before = SelectObject(source.Get(), bitmap);
  StretchBlt(context, place.left, place.top, width, height, source.Get(), 0, 0, size.bmWidth, size.bmHeight, SRCCOPY);
  SelectObject(source.Get(), before);
}

SIZE Stock_Pictures::Size(platform::Stock_Picture picture) {
  if (Is_Icon(picture)) return {GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
  const HBITMAP bitmap = Bitmap(picture);
  BITMAP size = {};
  if (bitmap == nullptr || GetObjectA(bitmap, sizeof size, &size) == 0) return {};
  return {size.bmWidth, size.bmHeight};
}

void Stock_Pictures::Draw_Plain(HDC context, platform::Stock_Picture picture, POINT corner, bool enabled) {
  const SIZE size = Size(picture);
  if (size.cx == 0) return;
  const auto draw = [&](HDC to, POINT at) {
    if (Is_Icon(picture))
      DrawIconEx(to, at.x, at.y, Icon(picture, size.cx, size.cy), size.cx, size.cy, 0, nullptr, DI_NORMAL);
    else Draw_Without_Ground(to, Bitmap(picture), at, size);
  };
  if (enabled) draw(context, corner);
  else Draw_Faded(context, corner, size, draw);
}

HBITMAP Stock_Pictures::Bitmap(platform::Stock_Picture picture) {
  Bitmap_Owner& bitmap = bitmaps_.at(static_cast<std::size_t>(picture));
  if (!bitmap) bitmap = Menu_Bitmap(picture);
  return bitmap.Get();
}

Bitmap_Owner Stock_Pictures::Menu_Bitmap(platform::Stock_Picture picture) const {
  if (picture == platform::Stock_Picture::None || Is_Icon(picture)) return {};
  const HANDLE loaded =
      LoadImageA(instance_, MAKEINTRESOURCEA(Resource_Number(picture)), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
  Bitmap_Owner bitmap(static_cast<HBITMAP>(loaded));
  Put_On_Menu_Ground(bitmap.Get());
  return bitmap;
}

void Stock_Pictures::Forget_Bitmaps() {
  for (Bitmap_Owner& bitmap : bitmaps_) bitmap.Reset();
}

}  // namespace win32
