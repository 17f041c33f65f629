#include "pictures/catalogue.hpp"

#include <array>

namespace tombolario::pictures {

namespace {

constexpr std::array kStores{
#define STORE(name) &(name),
#include "pictures/stores.inc"
#undef STORE
};

}  // namespace

std::span<const PictureStore* const> catalogue() { return kStores; }

PictureId find(std::string_view name) {
  for (const PictureStore* store : kStores) {
    for (int i = 0; i < store->count; ++i) {
      const PictureId picture(*store, store->first + i);
      if (picture.name() == name) return picture;
    }
  }
  return {};
}

}  // namespace tombolario::pictures
