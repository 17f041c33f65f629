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
  std::string (*words)(int index);            ///< in Italian, for who hears it; none of an ornament
  Size (*size)(int index);                    ///< in pixels
  void (*draw)(Painter& painter, int index);  ///< from (0,0) to the size
  Vec hotSpot{};                              ///< of a cursor: the pixel that points
};

/// The words of a picture that says nothing.
inline std::string ornament(int) { return {}; }

/// A store of one picture of that size.
template <Size kSize>
constexpr PictureStore singlePicture(std::string_view name, std::string (*words)(int),
                                     void (*draw)(Painter& painter, int), Vec hotSpot = {}) {
  return {name, 0, 1, false, words, [](int) { return kSize; }, draw, hotSpot};
}

/// A store of pictures of that size, numbered from the first.
template <Size kSize>
constexpr PictureStore pictureRow(std::string_view name, int first, int count,
                                  std::string (*words)(int index),
                                  void (*draw)(Painter& painter, int index)) {
  return {name, first, count, true, words, [](int) { return kSize; }, draw};
}

/// A picture by its store and its index, or no picture at all. Cheap to copy and to compare.
class PictureId {
 public:
  PictureId() = default;
  /// Throws std::out_of_range where the index is none of the store's.
  PictureId(const PictureStore& store, int index);
  /// The one picture of the store, or its first.
  PictureId(const PictureStore& store) : PictureId(store, store.first) {}

  explicit operator bool() const { return store_ != nullptr; }
  const PictureStore& store() const { return *store_; }
  int index() const { return index_; }

  /// `Picture1(12)`, `CONTPOK1`, or `none`.
  std::string name() const;
  /// What it shows, in Italian, for who hears it; nothing of an ornament or without a picture.
  std::string words() const { return store_ != nullptr ? store_->words(index_) : std::string(); }
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
