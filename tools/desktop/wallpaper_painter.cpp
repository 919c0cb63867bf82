#include "wallpaper_painter.h"

#include <string>

namespace desktop {

namespace {

std::string Desktop_Value(const char* name) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, "Control Panel\\Desktop", 0, KEY_READ, &key) != ERROR_SUCCESS) return {};
  char text[MAX_PATH] = "";
  DWORD size = sizeof text - 1;
  const LSTATUS status = RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size);
  RegCloseKey(key);
  return status == ERROR_SUCCESS ? std::string(text) : std::string();
}

void Paint_Picture(HDC context, HDC picture, const BITMAP& size, int width, int height) {
  const int w = size.bmWidth;
  const int h = size.bmHeight;
  if (Desktop_Value("TileWallpaper") == "1") {
    for (int y = 0; y < height; y += h)
      for (int x = 0; x < width; x += w) BitBlt(context, x, y, w, h, picture, 0, 0, SRCCOPY);
  } else if (Desktop_Value("WallpaperStyle") == "2") {
    SetStretchBltMode(context, COLORONCOLOR);
    StretchBlt(context, 0, 0, width, height, picture, 0, 0, w, h, SRCCOPY);
  } else {
    BitBlt(context, (width - w) / 2, (height - h) / 2, w, h, picture, 0, 0, SRCCOPY);
  }
}

}  // namespace

void Paint_Ground(HDC context, int width, int height) {
  const RECT area = {0, 0, width, height};
  const HBRUSH ground = CreateSolidBrush(ground_colour);
  FillRect(context, &area, ground);
  DeleteObject(ground);
  const std::string path = Desktop_Value("Wallpaper");
  if (path.empty()) return;
  const HANDLE bitmap = LoadImageA(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE);
  if (bitmap == nullptr) return;
  BITMAP size = {};
  GetObjectA(bitmap, sizeof size, &size);
  const HDC picture = CreateCompatibleDC(context);
  const HGDIOBJ before = SelectObject(picture, bitmap);
  Paint_Picture(context, picture, size, width, height);
  SelectObject(picture, before);
  DeleteDC(picture);
  DeleteObject(bitmap);
}

}  // namespace desktop
