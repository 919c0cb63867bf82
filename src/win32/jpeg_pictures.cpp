#include "win32/jpeg_pictures.h"

#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "win32/disk_files.h"
#include "win32/handle.h"

// Behind the system's header, whose lean form leaves them out.
#include <objbase.h>
#include <ocidl.h>
#include <olectl.h>

namespace win32 {

namespace {

using basic::Error_Number;
using basic::Run_Error;

template <class Interface>
struct Release_Interface {
  void operator()(Interface* object) const noexcept { object->Release(); }
};
template <class Interface>
using Com_Owner = Owner<Interface*, Release_Interface<Interface>>;

struct Free_Memory {
  void operator()(HGLOBAL memory) const noexcept { GlobalFree(memory); }
};
using Memory_Owner = Owner<HGLOBAL, Free_Memory>;

[[noreturn]] void Throw_Invalid() { throw Run_Error(Error_Number::Invalid_Picture); }

/// The libraries that decode pictures, loaded for as long as one is being decoded: a month has one at most.
class Decoder {
 public:
  Decoder() {
    const auto initialise = Find_Function<HRESULT WINAPI(void*)>(ole_.Get(), "CoInitialize");
    if (initialise == nullptr) throw Run_Error(Error_Number::No_Object);
    initialised_ = SUCCEEDED(initialise(nullptr));
  }
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder() {
    const auto uninitialise = Find_Function<void WINAPI()>(ole_.Get(), "CoUninitialize");
    if (initialised_ && uninitialise != nullptr) uninitialise();
  }

  Com_Owner<IPicture> Load(std::string_view file) const {
    const auto make_stream =
        Find_Function<HRESULT WINAPI(HGLOBAL, BOOL, IStream**)>(ole_.Get(), "CreateStreamOnHGlobal");
    const auto load =
        Find_Function<HRESULT WINAPI(IStream*, LONG, BOOL, REFIID, void**)>(automation_.Get(), "OleLoadPicture");
    if (make_stream == nullptr || load == nullptr) throw Run_Error(Error_Number::No_Object);
    const Memory_Owner memory(GlobalAlloc(GMEM_MOVEABLE, file.size()));
    if (!memory) Throw_Invalid();
    CopyMemory(GlobalLock(memory.Get()), file.data(), file.size());
    GlobalUnlock(memory.Get());
    IStream* raw_stream = nullptr;
    if (FAILED(make_stream(memory.Get(), FALSE, &raw_stream))) Throw_Invalid();
    const Com_Owner<IStream> stream(raw_stream);
    IPicture* picture = nullptr;
    if (FAILED(load(raw_stream, static_cast<LONG>(file.size()), FALSE, picture_id, reinterpret_cast<void**>(&picture))))
      Throw_Invalid();
    return Com_Owner<IPicture>(picture);
  }

 private:
  // {7BF80980-BF32-101A-8BBB-00AA00300CAB}, the interface IPicture
  static constexpr IID picture_id = {0x7bf80980, 0xbf32, 0x101a, {0x8b, 0xbb, 0x00, 0xaa, 0x00, 0x30, 0x0c, 0xab}};

  Library_Owner ole_{LoadLibraryA("ole32.dll")}, automation_{LoadLibraryA("oleaut32.dll")};
  bool initialised_ = false;
};

struct Picture_Size {
  unsigned Width = 0, Height = 0;
};

/// The size in a JPEG's frame header; 0 by 0 if it has none.
Picture_Size Size_In_Header(std::string_view file) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned>(static_cast<unsigned char>(file[at])); };
  const auto word = [&](std::size_t at) { return byte(at) << 8 | byte(at + 1); };
  std::size_t at = 2;
  while (at + 9 <= file.size()) {
    if (byte(at) != 0xFF) return {};
    const unsigned marker = byte(at + 1);
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

void Check_Header(std::string_view file) {
  constexpr std::uint64_t most_pixels = 64'000'000;  // far above any screen; 256 MB while it is being decoded
  if (!file.starts_with("\xFF\xD8")) Throw_Invalid();
  const Picture_Size size = Size_In_Header(file);
  if (size.Width == 0 || size.Height == 0 || std::uint64_t{size.Width} * size.Height > most_pixels) Throw_Invalid();
}

/// A bitmap file of 24 bits a pixel, rows from the bottom up.
struct Bitmap_File {
  static constexpr DWORD headers = 54;

  explicit Bitmap_File(HBITMAP bitmap) {
    BITMAP shape = {};
    if (GetObjectA(bitmap, sizeof shape, &shape) == 0) Throw_Invalid();
    const auto pitch = static_cast<DWORD>((shape.bmWidth * 3 + 3) / 4 * 4);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = shape.bmWidth;
    info.bmiHeader.biHeight = shape.bmHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biSizeImage = pitch * static_cast<DWORD>(shape.bmHeight);
    Size = headers + info.bmiHeader.biSizeImage;
    Bytes = std::make_unique_for_overwrite<char[]>(Size);
    Put_Headers(info.bmiHeader);
    const Context_Owner context(CreateCompatibleDC(nullptr));
    if (GetDIBits(context.Get(), bitmap, 0, static_cast<UINT>(shape.bmHeight), Bytes.get() + headers, &info,
                  DIB_RGB_COLORS) != shape.bmHeight)
      Throw_Invalid();
  }

  DWORD Size = 0;
  std::unique_ptr<char[]> Bytes;

 private:
  void Put_Headers(const BITMAPINFOHEADER& info) {
    // Byte by byte in front of the second header, whose place isn't aligned.
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;  // "BM"
    file.bfSize = Size;
    file.bfOffBits = headers;
    CopyMemory(Bytes.get(), &file, sizeof file);
    CopyMemory(Bytes.get() + sizeof file, &info, sizeof info);
  }
};

}  // namespace

void Jpeg_Pictures::Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) {
  Disk_Files disk;
  std::string file;
  disk.Read_Whole(jpeg, file);
  Check_Header(file);
  const Decoder decoder;
  const Com_Owner<IPicture> picture = decoder.Load(file);
  OLE_HANDLE handle = 0;
  if (FAILED(picture.Get()->get_Handle(&handle))) Throw_Invalid();
  const Bitmap_File made(reinterpret_cast<HBITMAP>(static_cast<std::uintptr_t>(handle)));
  auto output = disk.Create(bitmap);
  const bool whole = output->Write({made.Bytes.get(), made.Size}) == made.Size;
  output.reset();
  if (whole) return;
  DeleteFileA(bitmap.c_str());
  throw Run_Error(Error_Number::Disk_Full);
}

}  // namespace win32
