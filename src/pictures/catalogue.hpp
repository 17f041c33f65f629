#pragma once

#include <span>
#include <string_view>

#include "toolkit/picture.hpp"

/// Every picture of the room, by the name of the store that holds it and its index there. All are drawn
/// by code at their own size in pixels, so that they stay sharp at any scale.
namespace tombolario::pictures {

#define STORE(name) extern const PictureStore name;
#include "pictures/stores.inc"
#undef STORE

/// All stores, in the order of stores.inc.
std::span<const PictureStore* const> catalogue();

/// The picture of that name, as `Picture1(12)` or `CONTPOK1`; no picture if there is none.
PictureId find(std::string_view name);

}  // namespace tombolario::pictures
