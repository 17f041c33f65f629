#pragma once

#include <string>
#include <string_view>

#include "toolkit/geometry.hpp"

namespace tombolario {

class Painter;

/// A store of pictures: one picture, or a numbered row of them that share a name.
struct PictureStore {
  std::string_view name;
  int first;  ///< index of the first picture
  int count;  ///< how many pictures
  bool numbered;
  Size (*size)(int index);                    ///< in pixels
  void (*draw)(Painter& painter, int index);  ///< from (0,0) to the size
  Vec hotSpot{};                              ///< of a cursor: the pixel that points
};

/// A picture by its store and its index, or no picture at all. Cheap to copy and to compare.
class PictureId {
 public:
  PictureId() = default;
  /// The index must be one of the store's.
  PictureId(const PictureStore& store, int index = 0) : store_(&store), index_(index) {}

  explicit operator bool() const { return store_ != nullptr; }
  const PictureStore& store() const { return *store_; }
  int index() const { return index_; }

  /// `Picture1(12)`, `CONTPOK1`, or `none`.
  std::string name() const {
    if (store_ == nullptr) return "none";
    std::string name(store_->name);
    return store_->numbered ? name + '(' + std::to_string(index_) + ')' : name;
  }
  /// In pixels; zero by zero without a picture.
  Size size() const { return store_ != nullptr ? store_->size(index_) : Size{}; }
  void draw(Painter& painter) const {
    if (store_ != nullptr) store_->draw(painter, index_);
  }

  bool operator==(const PictureId&) const = default;

 private:
  const PictureStore* store_ = nullptr;
  int index_ = 0;
};

}  // namespace tombolario
