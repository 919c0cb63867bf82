#include "platform/win32/jpeg_decoder.h"

#include <algorithm>
#include <optional>

#include "platform/win32/jpeg_scan.h"

namespace platform::win32::jpeg {

namespace {

enum Marker : unsigned {
  sequential_frame = 0xC0,
  extended_frame = 0xC1,
  progressive_frame = 0xC2,
  huffman_tables = 0xC4,
  last_frame = 0xCF,
  first_restart = 0xD0,
  start_of_picture = 0xD8,
  end_of_picture = 0xD9,
  start_of_scan = 0xDA,
  quantisation_tables = 0xDB,
  restart_interval = 0xDD,
  application_14 = 0xEE,
};

std::size_t Ceil_Div(std::size_t a, std::size_t b) { return (a + b - 1) / b; }

/// The bytes of one segment; reading over its end refuses the picture.
class Segment {
 public:
  Segment(const std::uint8_t* at, const std::uint8_t* end) : at_(at), end_(end) {}

  [[nodiscard]] std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }
  unsigned Byte() { return *Bytes(1); }
  unsigned Word() {
    const std::uint8_t* const two = Bytes(2);
    return static_cast<unsigned>(two[0] << 8 | two[1]);
  }
  const std::uint8_t* Bytes(std::size_t count) {
    if (Left() < count) Refuse();
    at_ += count;
    return at_ - count;
  }

 private:
  const std::uint8_t* at_;
  const std::uint8_t* end_;
};

}  // namespace

/// The state of the decoding: what the segments read so far have told.
struct Reading {
  const std::uint8_t* At;
  const std::uint8_t* End;
  std::size_t Width = 0, Height = 0, Units_Across = 0, Units_Down = 0;
  bool Progressive = false, Scanned = false;
  unsigned Restart_Interval = 0;
  std::optional<unsigned> Colour_Code;  // of the application that wrote the picture: 0 for red, green and blue
  std::array<Quantisation, 4> Steps{};
  std::array<bool, 4> Has_Steps{};
  std::array<std::optional<Huffman_Table>, 4> First_Tables, Rest_Tables;
  std::vector<Component> Components;

  unsigned Next_Marker();
  Segment Next_Segment();
  void Read_Until_Frame();
  void Read_Scans();
  bool Read_Table(unsigned marker);
  void Read_Quantisation(Segment segment);
  void Read_Huffman(Segment segment);
  void Read_Frame(Segment segment);
  void Lay_Out(unsigned widest, unsigned highest);
  void Read_One_Scan(Segment segment);
  Scan_Part Read_Part(Segment& segment, const Scan& scan);
  void Transform_All();
  [[nodiscard]] bool Colours_Are_Coded() const;
};

unsigned Reading::Next_Marker() {
  Segment rest(At, End);
  if (rest.Byte() != 0xFF) Refuse();
  unsigned marker = rest.Byte();
  while (marker == 0xFF) marker = rest.Byte();
  At = End - rest.Left();
  return marker;
}

Segment Reading::Next_Segment() {
  Segment rest(At, End);
  const unsigned length = rest.Word();
  if (length < 2) Refuse();
  const std::uint8_t* const body = rest.Bytes(length - 2);
  At = body + (length - 2);
  return {body, At};
}

void Reading::Read_Until_Frame() {
  if (Next_Marker() != start_of_picture) Refuse();
  for (;;) {
    const unsigned marker = Next_Marker();
    if (Read_Table(marker)) continue;
    if (marker == sequential_frame || marker == extended_frame || marker == progressive_frame) {
      Progressive = marker == progressive_frame;
      Read_Frame(Next_Segment());
      return;
    }
    // Pictures without loss, of arithmetic codes, or with nothing in them.
    if (marker <= last_frame || marker == end_of_picture || marker == start_of_scan) Refuse();
    Next_Segment();
  }
}

void Reading::Read_Scans() {
  // Some pictures lack the mark of their end.
  while (!Scanned || End - At >= 2) {
    const unsigned marker = Next_Marker();
    if (Read_Table(marker)) continue;
    if (marker == end_of_picture) break;
    if (marker <= last_frame) Refuse();
    if (marker == start_of_scan) Read_One_Scan(Next_Segment());
    else Next_Segment();
  }
  if (!Scanned) Refuse();
}

/// Reads a segment that may come anywhere; says no to the others.
bool Reading::Read_Table(unsigned marker) {
  switch (marker) {
    case quantisation_tables: Read_Quantisation(Next_Segment()); return true;
    case huffman_tables: Read_Huffman(Next_Segment()); return true;
    case restart_interval: Restart_Interval = Next_Segment().Word(); return true;
    case application_14: {
      Segment segment = Next_Segment();
      if (segment.Left() < 12 || std::string_view(reinterpret_cast<const char*>(segment.Bytes(5)), 5) != "Adobe")
        return true;
      Colour_Code = segment.Bytes(7)[6];
      return true;
    }
    default: return false;
  }
}

void Reading::Read_Quantisation(Segment segment) {
  while (segment.Left() > 0) {
    const unsigned head = segment.Byte(), number = head & 15;
    if (number > 3) Refuse();
    for (std::size_t k = 0; k < 64; ++k)
      Steps[number][place_in_block[k]] = static_cast<std::uint16_t>(head >> 4 == 0 ? segment.Byte() : segment.Word());
    Has_Steps[number] = true;
  }
}

void Reading::Read_Huffman(Segment segment) {
  while (segment.Left() > 0) {
    const unsigned head = segment.Byte(), number = head & 15;
    if (number > 3 || head >> 4 > 1) Refuse();
    const std::span<const std::uint8_t, 16> counts(segment.Bytes(16), 16);
    std::size_t total = 0;
    for (const std::uint8_t count : counts) total += count;
    if (total > 256) Refuse();
    (head >> 4 == 0 ? First_Tables : Rest_Tables)[number].emplace().Build(counts, {segment.Bytes(total), total});
  }
}

void Reading::Read_Frame(Segment segment) {
  constexpr std::size_t most_pixels = 64'000'000;  // far above any screen
  if (segment.Byte() != 8) Refuse();
  Height = segment.Word();
  Width = segment.Word();
  const unsigned count = segment.Byte();
  if (Width == 0 || Height == 0 || Width * Height > most_pixels || (count != 1 && count != 3)) Refuse();
  unsigned widest = 1, highest = 1;
  for (unsigned i = 0; i < count; ++i) {
    Component& component = Components.emplace_back();
    component.Id = segment.Byte();
    const unsigned sampling = segment.Byte();
    component.Across = sampling >> 4;
    component.Down = sampling & 15;
    component.Quantisation_Number = segment.Byte();
    if (component.Across < 1 || component.Across > 4 || component.Down < 1 || component.Down > 4) Refuse();
    if (component.Quantisation_Number > 3) Refuse();
    if (count == 1) component.Across = component.Down = 1;  // against no other
    widest = std::max(widest, component.Across);
    highest = std::max(highest, component.Down);
  }
  Lay_Out(widest, highest);
}

void Reading::Lay_Out(unsigned widest, unsigned highest) {
  Units_Across = Ceil_Div(Width, widest * 8);
  Units_Down = Ceil_Div(Height, highest * 8);
  for (Component& component : Components) {
    // A sample covers whole pixels.
    if (widest % component.Across != 0 || highest % component.Down != 0) Refuse();
    Plane& plane = component.Samples;
    plane.Across = widest / component.Across;
    plane.Down = highest / component.Down;
    plane.Width = Ceil_Div(Width, plane.Across);
    plane.Height = Ceil_Div(Height, plane.Down);
    component.Own_Across = Ceil_Div(plane.Width, 8);
    component.Own_Down = Ceil_Div(plane.Height, 8);
    component.Blocks_Across = Units_Across * component.Across;
    component.Blocks_Down = Units_Down * component.Down;
    plane.Pitch = component.Blocks_Across * 8;
    plane.Samples.resize(plane.Pitch * component.Blocks_Down * 8);
    if (Progressive) component.Blocks.resize(component.Blocks_Across * component.Blocks_Down);
  }
}

Scan_Part Reading::Read_Part(Segment& segment, const Scan& scan) {
  const unsigned id = segment.Byte(), tables = segment.Byte();
  const auto component =
      std::find_if(Components.begin(), Components.end(), [=](const Component& c) { return c.Id == id; });
  if (component == Components.end() || tables >> 4 > 3 || (tables & 15) > 3) Refuse();
  for (const Scan_Part& other : scan.Parts)
    if (other.Of == &*component) Refuse();
  if (!component->Has_Steps) {
    if (!Has_Steps[component->Quantisation_Number]) Refuse();
    component->Steps = Factors_Of(Steps[component->Quantisation_Number]);
    component->Has_Steps = true;
  }
  const auto& first = First_Tables[tables >> 4];
  const auto& rest = Rest_Tables[tables & 15];
  return {&*component, first ? &*first : nullptr, rest ? &*rest : nullptr, 0};
}

void Reading::Read_One_Scan(Segment segment) {
  Scan scan;
  const unsigned count = segment.Byte();
  if (count < 1 || count > Components.size()) Refuse();
  for (unsigned i = 0; i < count; ++i) scan.Parts.push_back(Read_Part(segment, scan));
  scan.From = segment.Byte();
  scan.To = segment.Byte();
  const unsigned bits = segment.Byte();
  scan.High = bits >> 4;
  scan.Low = bits & 15;
  scan.Progressive = Progressive;
  scan.Restart_Interval = Restart_Interval;
  scan.Units_Across = Units_Across;
  scan.Units_Down = Units_Down;
  if (!Progressive) scan.From = 0, scan.To = 63;
  else if (scan.From > scan.To || scan.To > 63 || scan.Low > 13) Refuse();
  else if (scan.From == 0 ? scan.To != 0 : count != 1) Refuse();
  const bool needs_first = scan.From == 0 && (!Progressive || scan.High == 0);
  const bool needs_rest = scan.To > 0;
  for (const Scan_Part& part : scan.Parts)
    if ((needs_first && part.First == nullptr) || (needs_rest && part.Rest == nullptr)) Refuse();
  At = Read_Scan(scan, At, End);
  Scanned = true;
}

void Reading::Transform_All() {
  for (Component& component : Components) {
    const std::size_t pitch = component.Samples.Pitch;
    const Block* block = component.Blocks.data();
    for (std::size_t y = 0; y < component.Blocks_Down; ++y)
      for (std::size_t x = 0; x < component.Blocks_Across; ++x)
        Transform(*block++, component.Steps, component.Samples.Samples.data() + (y * pitch + x) * 8, pitch);
    component.Blocks = {};
  }
}

bool Reading::Colours_Are_Coded() const {
  if (Colour_Code) return *Colour_Code != 0;
  return Components.size() != 3 || Components[0].Id != 'R' || Components[1].Id != 'G' || Components[2].Id != 'B';
}

Decoder::Decoder(std::string_view file) : reading_(std::make_unique<Reading>()) {
  reading_->At = reinterpret_cast<const std::uint8_t*>(file.data());
  reading_->End = reading_->At + file.size();
  reading_->Read_Until_Frame();
}

Decoder::~Decoder() = default;

std::size_t Decoder::Width() const { return reading_->Width; }

std::size_t Decoder::Height() const { return reading_->Height; }

void Decoder::Decode(std::uint8_t* rows, std::size_t pitch) {
  reading_->Read_Scans();
  if (reading_->Progressive) reading_->Transform_All();
  std::vector<Plane> planes;
  for (Component& component : reading_->Components) planes.push_back(std::move(component.Samples));
  Colour_Rows colours(planes, Width(), reading_->Colours_Are_Coded());
  for (std::size_t y = 0; y < Height(); ++y) colours.Write(y, rows + (Height() - 1 - y) * pitch);
}

}  // namespace platform::win32::jpeg
