// Turns a JPEG into a bitmap as the calendar does for its wallpaper: bench_jpeg.exe JPEG BITMAP
// Without arguments it only starts and ends: what starting a program costs. Both ask for the screen first, which the
// calendar has on show long before it turns a picture.
#include <windows.h>

#include <cstdio>
#include <exception>

#include "win32/system_pictures.h"

int main(int count, char** arguments) {
  ReleaseDC(nullptr, GetDC(nullptr));
  if (count != 3) return 0;
  try {
    win32::System_Pictures().Convert_To_Bitmap(arguments[1], arguments[2]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_jpeg: %s\n", error.what());
    return 1;
  }
}
