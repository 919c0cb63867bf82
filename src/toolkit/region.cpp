#include "toolkit/region.h"

#include <algorithm>

namespace toolkit {

namespace {

using Rect_List = std::vector<Pixel_Rect>;

/// All heights at which one of the rectangles begins or ends, sorted, each once.
std::vector<int> Row_Edges(const Rect_List& rects) {
  std::vector<int> edges;
  edges.reserve(rects.size() * 2);
  for (const Pixel_Rect& rect : rects) {
    edges.push_back(rect.Top);
    edges.push_back(rect.Bottom);
  }
  std::sort(edges.begin(), edges.end());
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
  return edges;
}

/// The parts of the rectangles between two neighbouring edges, from left to right, those that touch joined.
Rect_List Band(const Rect_List& rects, int top, int bottom) {
  Rect_List parts;
  for (const Pixel_Rect& rect : rects)
    if (rect.Top <= top && rect.Bottom >= bottom) parts.push_back({rect.Left, top, rect.Right, bottom});
  std::sort(parts.begin(), parts.end(), [](const Pixel_Rect& a, const Pixel_Rect& b) { return a.Left < b.Left; });
  Rect_List joined;
  for (const Pixel_Rect& part : parts) {
    if (!joined.empty() && part.Left <= joined.back().Right)
      joined.back().Right = std::max(joined.back().Right, part.Right);
    else joined.push_back(part);
  }
  return joined;
}

/// What of one band isn't in another of the same height.
Rect_List Band_Without(const Rect_List& band, const Rect_List& holes) {
  Rect_List left;
  for (Pixel_Rect rest : band) {
    for (const Pixel_Rect& hole : holes) {
      if (hole.Right <= rest.Left || hole.Left >= rest.Right) continue;
      if (hole.Left > rest.Left) left.push_back({rest.Left, rest.Top, hole.Left, rest.Bottom});
      rest.Left = hole.Right;
    }
    if (!rest.Empty()) left.push_back(rest);
  }
  return left;
}

}  // namespace

Region::Region(std::vector<Pixel_Rect> rects) {
  std::erase_if(rects, [](const Pixel_Rect& rect) { return rect.Empty(); });
  const std::vector<int> edges = Row_Edges(rects);
  for (std::size_t i = 0; i + 1 < edges.size(); ++i) Add_Band(Band(rects, edges[i], edges[i + 1]));
}

Region Region::Without(const Region& other) const {
  Rect_List all = rects_;
  all.insert(all.end(), other.rects_.begin(), other.rects_.end());
  const std::vector<int> edges = Row_Edges(all);
  Region result;
  for (std::size_t i = 0; i + 1 < edges.size(); ++i)
    result.Add_Band(Band_Without(Band(rects_, edges[i], edges[i + 1]), Band(other.rects_, edges[i], edges[i + 1])));
  return result;
}

/// Adds a band below the others; one that touches the last band and has its columns makes that one taller.
void Region::Add_Band(const std::vector<Pixel_Rect>& band) {
  if (band.empty()) return;
  const auto last = rects_.begin() + static_cast<std::ptrdiff_t>(last_band_);
  const bool same_columns = std::equal(last, rects_.end(), band.begin(), band.end(), [](const auto& p, const auto& q) {
    return p.Left == q.Left && p.Right == q.Right;
  });
  if (same_columns && last->Bottom == band.front().Top) {
    std::for_each(last, rects_.end(), [&](Pixel_Rect& rect) { rect.Bottom = band.front().Bottom; });
    return;
  }
  last_band_ = rects_.size();
  rects_.insert(rects_.end(), band.begin(), band.end());
}

}  // namespace toolkit
