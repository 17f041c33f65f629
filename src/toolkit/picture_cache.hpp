#pragma once

#include <cstddef>
#include <map>
#include <tuple>
#include <utility>

#include "toolkit/picture.hpp"
#include "toolkit/pixel_grid.hpp"

namespace tombolario {

/// From one drawing to the next no more is kept than this many bytes of drawn pictures.
inline constexpr std::size_t kMostPictureBytes = std::size_t{32} << 20;

/// Each picture as a painter has drawn it at its scale, kept from one drawing of the room to the next.
template <class Drawn>
class PictureCache {
 public:
  /// A drawing at that scale begins; what was kept for a drawing at another scale is dropped.
  void begin(double scale) {
    if (inner_ > 0 || (scale == scale_ && bytes_ <= kMostPictureBytes)) return;
    pictures_.clear();
    bytes_ = 0;
    scale_ = scale;
  }

  /// The picture at that scale, drawn now by `draw(width, height)`, in device pixels, if it is not kept. It
  /// is good until the next call.
  template <class Draw>
  Drawn& picture(const PictureId& picture, double scale, const Draw& draw) {
    const Key key(picture, scale);
    if (const auto kept = pictures_.find(key); kept != pictures_.end()) return kept->second;
    const Size size = picture.size();
    const int width = devicePixels(size.width, scale);
    const int height = devicePixels(size.height, scale);
    ++inner_;
    Drawn drawn = draw(width, height);  // which may draw other pictures, and so change what is kept
    --inner_;
    bytes_ += std::size_t{4} * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return pictures_[key] = std::move(drawn);
  }

 private:
  using Key = std::pair<PictureId, double>;  // a picture and its scale
  struct Before {
    bool operator()(const Key& a, const Key& b) const {
      return std::tuple(&a.first.store(), a.first.index(), a.second) <
             std::tuple(&b.first.store(), b.first.index(), b.second);
    }
  };

  std::map<Key, Drawn, Before> pictures_;
  std::size_t bytes_ = 0;
  double scale_ = 0;  // of the drawing
  int inner_ = 0;     // pictures that are being drawn for it
};

}  // namespace tombolario
