// Pictures of files, decoded by the system.
#pragma once

#include <string_view>

#include "win32/handle.h"

struct IPicture;

namespace win32 {

/// A decoded picture, and the libraries that decoded it: they are loaded for as long as one is being looked at.
class Decoded_Picture {
 public:
  /// Takes a JPEG or a bitmap of at most 64 million pixels. Throws error 481 for any other file, and 429 on a system
  /// that decodes none.
  explicit Decoded_Picture(std::string_view file);
  Decoded_Picture(const Decoded_Picture&) = delete;
  Decoded_Picture& operator=(const Decoded_Picture&) = delete;
  ~Decoded_Picture();

  /// The bitmap that it was decoded into; it goes with this object.
  [[nodiscard]] HBITMAP Bitmap() const;

 private:
  void Initialise();
  void Load(std::string_view file);
  void Release() noexcept;

  Library_Owner ole_, automation_;
  bool initialised_ = false;
  IPicture* picture_ = nullptr;
};

bool Is_Jpeg(std::string_view file);

}  // namespace win32
