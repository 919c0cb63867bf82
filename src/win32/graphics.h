// Small helps for drawing: what is selected for a while, filled, clipped, and in which colour.
#pragma once

#include "toolkit/colour.h"
#include "win32/windows_api.h"

namespace win32 {

/// Has an object selected for as long as it lives.
class Selection {
 public:
  Selection(HDC context, HGDIOBJ object) : context_(context), before_(SelectObject(context, object)) {}
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;
  ~Selection() { SelectObject(context_, before_); }

 private:
  HDC context_;
  HGDIOBJ before_;
};

/// Gives a context back all that it had, its clipping too.
class Saved_Context {
 public:
  explicit Saved_Context(HDC context) : context_(context), state_(SaveDC(context)) {}
  Saved_Context(const Saved_Context&) = delete;
  Saved_Context& operator=(const Saved_Context&) = delete;
  ~Saved_Context() { RestoreDC(context_, state_); }

 private:
  HDC context_;
  int state_;
};

/// A colour of the toolkit as the system takes it.
COLORREF To_Colour(toolkit::Colour colour);

void Fill(HDC context, const RECT& place, COLORREF colour);

/// Draws a single line around the place, and takes it off the place.
void Draw_Line_Around(HDC context, RECT& place);

/// Whether a text of that colour can be told from its ground.
bool Readable(COLORREF text, COLORREF ground);

/// The colour of a disabled text: grey, unless that is the ground's own colour.
COLORREF Grey_On(COLORREF ground, COLORREF otherwise);

}  // namespace win32
