#include "memory/memory_backend.h"

#include <algorithm>

#include "toolkit/timer.h"

namespace memory {

namespace {

constexpr platform::Window_Handle before_first_handle = 0x30000;
constexpr std::int64_t micros_of_a_millisecond = 1000;
constexpr double line_height = 195;  // twips

}  // namespace

Memory_Backend::Memory_Backend(Virtual_Time& time, Memory_Loop& loop, platform::Screen& screen)
    : Windows(time, loop, Input), time_(time), loop_(loop), screen_(screen), last_handle_(before_first_handle) {}

std::unique_ptr<toolkit::Form_Peer> Memory_Backend::Make_Peer(toolkit::Form& form) {
  return std::make_unique<Memory_Peer>(Windows, form, ++last_handle_);
}

void Memory_Backend::Start_Timer(toolkit::Timer& timer) {
  const std::int64_t due = time_.Elapsed() + timer.Interval * micros_of_a_millisecond;
  ticking_[&timer] = time_.Schedule(due, [this, &timer] { Tick(timer); });
}

void Memory_Backend::Stop_Timer(toolkit::Timer& timer) {
  const auto found = ticking_.find(&timer);
  if (found == ticking_.end()) return;
  time_.Cancel(found->second);
  ticking_.erase(found);
}

void Memory_Backend::Tick(toolkit::Timer& timer) {
  Virtual_Time::Ticket& ticket = ticking_.at(&timer);
  const std::int64_t next = ticket.Due + timer.Interval * micros_of_a_millisecond;
  ticket = time_.Schedule(next, [this, &timer] { Tick(timer); });
  loop_.Dispatch([&timer] {
    if (timer.On_Tick) timer.On_Tick();
  });
}

double Memory_Backend::Twips_Per_Pixel(toolkit::Axis axis) {
  return axis == toolkit::Axis::Across ? screen_.Twips_Per_Pixel_X() : screen_.Twips_Per_Pixel_Y();
}

double Memory_Backend::Screen_Size(toolkit::Axis axis) {
  const platform::Pixel_Area bounds = screen_.Bounds();
  return (axis == toolkit::Axis::Across ? bounds.Width : bounds.Height) * Twips_Per_Pixel(axis);
}

double Memory_Backend::Width_Of(char character) const {
  return character == '\r' || character == '\n' ? 0 : character_width_;
}

double Memory_Backend::Width_Of(std::string_view text) const {
  double width = 0;
  for (const char character : text) width += Width_Of(character);
  return width;
}

double Memory_Backend::Text_Width(const toolkit::Font& /*font*/, std::string_view text) { return Width_Of(text); }

/// A word that no longer fits on its line goes to the next one. Blanks may hang over the end of a line, and a word that
/// is wider than a whole line sticks out.
int Memory_Backend::Lines_Of(std::string_view paragraph, double width) const {
  int lines = 1;
  double used = 0;
  while (!paragraph.empty()) {
    const std::size_t word_end = std::min(paragraph.find(' '), paragraph.size());
    const std::size_t next_word = std::min(paragraph.find_first_not_of(' ', word_end), paragraph.size());
    if (used > 0 && used + Width_Of(paragraph.substr(0, word_end)) > width) {
      ++lines;
      used = 0;
    }
    used += Width_Of(paragraph.substr(0, next_word));
    paragraph.remove_prefix(next_word);
  }
  return lines;
}

double Memory_Backend::Text_Height(const toolkit::Font& /*font*/, std::string_view text, double width) {
  int lines = 0;
  for (;;) {
    const std::size_t end = text.find('\n');
    lines += Lines_Of(text.substr(0, end), width);
    if (end == std::string_view::npos) return lines * line_height;
    text.remove_prefix(end + 1);
  }
}

std::size_t Memory_Backend::Longest_Beginning(const toolkit::Font& /*font*/, std::string_view text, double limit) {
  double width = 0;
  std::size_t length = 0;
  while (length < text.size() && width + Width_Of(text[length]) < limit) width += Width_Of(text[length++]);
  return length;
}

}  // namespace memory
