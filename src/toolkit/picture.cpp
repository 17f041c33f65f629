#include "toolkit/picture.hpp"

#include <stdexcept>

namespace tombolario {

PictureId::PictureId(const PictureStore& store, int index) : store_(&store), index_(index) {
  if (index < store.first || index >= store.first + store.count) {
    throw std::out_of_range("there is no picture " + name());
  }
}

std::string PictureId::name() const {
  if (store_ == nullptr) return "none";
  std::string name(store_->name);
  return store_->numbered ? name + '(' + std::to_string(index_) + ')' : name;
}

}  // namespace tombolario
