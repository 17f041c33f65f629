#pragma once

#include <string>

#include "desktop/cairo_canvas.hpp"
#include "driver/camera.hpp"

namespace tombolario {

/// Takes pictures of the room as PNG files.
class CairoCamera : public Camera {
 public:
  bool shoot(Form& form, const std::string& file, double scale) override;
  bool shoot(const PictureId& picture, const std::string& file, double scale) override;

 private:
  CairoFonts fonts_;
  PictureCache pictures_;
};

}  // namespace tombolario
