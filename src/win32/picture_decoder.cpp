#include "win32/picture_decoder.h"

#include "basic/run_error.h"
#include "win32/system_library.h"

// Behind the system's header, whose lean form leaves them out.
#include <objbase.h>
#include <ocidl.h>
#include <olectl.h>

namespace win32 {

namespace {

using basic::Error_Number;
using basic::Run_Error;

// {7BF80980-BF32-101A-8BBB-00AA00300CAB}, the interface IPicture
constexpr IID picture_id = {0x7bf80980, 0xbf32, 0x101a, {0x8b, 0xbb, 0x00, 0xaa, 0x00, 0x30, 0x0c, 0xab}};

struct Release_Stream {
  void operator()(IStream* stream) const noexcept { stream->Release(); }
};
using Stream_Owner = Owner<IStream*, Release_Stream>;

struct Free_Memory {
  void operator()(HGLOBAL memory) const noexcept { GlobalFree(memory); }
};
using Memory_Owner = Owner<HGLOBAL, Free_Memory>;

[[noreturn]] void Throw_Invalid() { throw Run_Error(Error_Number::Invalid_Picture); }

struct Picture_Size {
  std::uint32_t Width = 0, Height = 0;
};

std::uint32_t Byte(std::string_view file, std::size_t at) { return static_cast<unsigned char>(file[at]); }

/// The size in a JPEG's frame header; 0 by 0 if it has none.
Picture_Size Size_Of_Jpeg(std::string_view file) {
  const auto word = [&](std::size_t at) { return Byte(file, at) << 8 | Byte(file, at + 1); };
  std::size_t at = 2;
  while (at + 9 <= file.size()) {
    if (Byte(file, at) != 0xFF) return {};
    const std::uint32_t marker = Byte(file, at + 1);
    if (marker == 0xFF) {  // fill
      ++at;
      continue;
    }
    const bool table = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    if (marker >= 0xC0 && marker <= 0xCF && !table) return {word(at + 7), word(at + 5)};
    at += 2 + word(at + 2);
  }
  return {};
}

/// The size in a bitmap's header; 0 by 0 if it has none. Rows that go from the top down have a negative height.
Picture_Size Size_Of_Bitmap(std::string_view file) {
  constexpr std::size_t headers = 54, long_header = 40;
  const auto dword = [&](std::size_t at) {
    return Byte(file, at) | Byte(file, at + 1) << 8 | Byte(file, at + 2) << 16 | Byte(file, at + 3) << 24;
  };
  if (file.size() < headers || dword(14) < long_header) return {};
  const std::uint32_t height = dword(22);
  return {dword(18), (height & 0x80000000U) != 0 ? 0U - height : height};
}

void Check_Header(std::string_view file) {
  constexpr std::uint64_t most_pixels = 64'000'000;  // far above any screen; 256 MB while it is being decoded
  Picture_Size size;
  if (Is_Jpeg(file)) size = Size_Of_Jpeg(file);
  else if (file.starts_with("BM")) size = Size_Of_Bitmap(file);
  if (size.Width == 0 || size.Height == 0 || std::uint64_t{size.Width} * size.Height > most_pixels) Throw_Invalid();
}

/// A copy of the bytes in the system's own memory.
HGLOBAL Copy_Of(std::string_view file) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, file.size());
  if (memory == nullptr) Throw_Invalid();
  CopyMemory(GlobalLock(memory), file.data(), file.size());
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool Is_Jpeg(std::string_view file) { return file.starts_with("\xFF\xD8"); }

Decoded_Picture::Decoded_Picture(std::string_view file) {
  Check_Header(file);
  ole_ = System_Library("ole32.dll");
  automation_ = System_Library("oleaut32.dll");
  Initialise();
  try {
    Load(file);
  } catch (...) {
    Release();
    throw;
  }
}

Decoded_Picture::~Decoded_Picture() { Release(); }

void Decoded_Picture::Initialise() {
  const auto initialise = Find_Function<HRESULT WINAPI(void*)>(ole_.Get(), "CoInitialize");
  if (initialise == nullptr) throw Run_Error(Error_Number::No_Object);
  initialised_ = SUCCEEDED(initialise(nullptr));
}

void Decoded_Picture::Release() noexcept {
  if (picture_ != nullptr) picture_->Release();
  const auto uninitialise = Find_Function<void WINAPI()>(ole_.Get(), "CoUninitialize");
  if (initialised_ && uninitialise != nullptr) uninitialise();
}

void Decoded_Picture::Load(std::string_view file) {
  const auto make_stream = Find_Function<HRESULT WINAPI(HGLOBAL, BOOL, IStream**)>(ole_.Get(), "CreateStreamOnHGlobal");
  const auto load =
      Find_Function<HRESULT WINAPI(IStream*, LONG, BOOL, REFIID, void**)>(automation_.Get(), "OleLoadPicture");
  if (make_stream == nullptr || load == nullptr) throw Run_Error(Error_Number::No_Object);
  const Memory_Owner memory(Copy_Of(file));
  IStream* raw_stream = nullptr;
  if (FAILED(make_stream(memory.Get(), FALSE, &raw_stream))) Throw_Invalid();
  const Stream_Owner stream(raw_stream);
  void* picture = nullptr;
  if (FAILED(load(raw_stream, static_cast<LONG>(file.size()), FALSE, picture_id, &picture))) Throw_Invalid();
  picture_ = static_cast<IPicture*>(picture);
}

HBITMAP Decoded_Picture::Bitmap() const {
  OLE_HANDLE handle = 0;
  if (FAILED(picture_->get_Handle(&handle))) Throw_Invalid();
  return reinterpret_cast<HBITMAP>(static_cast<std::uintptr_t>(handle));
}

}  // namespace win32
