#pragma once

#include <string>

#include "toolkit/form.hpp"
#include "toolkit/picture.hpp"

namespace tombolario {

/// Writes pictures to PNG files, where the build can draw at all.
class Camera {
 public:
  virtual ~Camera() = default;
  /// The scale is in device pixels to a pixel. False if the file could not be written.
  virtual bool shoot(Form& form, const std::string& file, double scale) = 0;
  virtual bool shoot(const PictureId& picture, const std::string& file, double scale) = 0;
};

}  // namespace tombolario
