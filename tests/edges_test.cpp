#include <cmath>
#include <optional>
#include <vector>

#include "null_canvas.hpp"
#include "session.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"

namespace tombolario {
namespace {

/// Keeps the rectangles and the copies that are drawn on it, and tells what is seen where.
class RecordingCanvas : public NullCanvas {
 public:
  std::unique_ptr<Canvas> make(Size size) override {
    auto canvas = std::make_unique<RecordingCanvas>();
    canvas->clip({0, 0, double(size.width), double(size.height)});
    return canvas;
  }
  void fillRect(const Rect& rect, Rgb colour) override { drawn_.push_back({clipped(rect), colour, nullptr}); }
  void copy(Canvas& from, Vec at) override {
    const auto& other = static_cast<RecordingCanvas&>(from);
    const Rect& all = other.clips_.front();
    drawn_.push_back({clipped(all.movedBy(at.x, at.y)), 0, &other, at});
  }
  void clip(const Rect& rect) override { clips_.push_back(clipped(rect)); }
  void unclip() override { clips_.pop_back(); }

  std::optional<Rgb> colourAt(double x, double y) const {
    for (auto last = drawn_.rbegin(); last != drawn_.rend(); ++last) {
      const Rect& r = last->rect;
      if (x < r.x || x >= r.x + r.w || y < r.y || y >= r.y + r.h) continue;
      if (last->picture == nullptr) return last->colour;
      if (const auto seen = last->picture->colourAt(x - last->at.x, y - last->at.y)) return seen;
    }
    return std::nullopt;
  }

 private:
  struct Drawn {
    Rect rect;
    Rgb colour;
    const RecordingCanvas* picture;
    Vec at{};
  };
  Rect clipped(const Rect& r) const {
    if (clips_.empty()) return r;
    const Rect& c = clips_.back();
    const double x = std::max(r.x, c.x);
    const double y = std::max(r.y, c.y);
    return {x, y, std::min(r.x + r.w, c.x + c.w) - x, std::min(r.y + r.h, c.y + c.h) - y};
  }

  std::vector<Drawn> drawn_;
  std::vector<Rect> clips_;
};

/// Where a control lies in the window, in whole pixels.
struct Pixels {
  int left, top, width, height;
};

Pixels pixelsOf(const Control& control) {
  if (control.parent() == nullptr) return {};
  const auto pixel = [](int twips) { return static_cast<int>(std::lround(twips / 15.0)); };
  const Pixels around = pixelsOf(*control.parent());
  const Point inset = control.origin() - control.parent()->origin() - Point{control.Left, control.Top};
  const int left = pixel(control.Left);
  const int top = pixel(control.Top);
  return {around.left + pixel(inset.x) + left, around.top + pixel(inset.y) + top,
          pixel(control.Left + control.Width) - left, pixel(control.Top + control.Height) - top};
}

constexpr int kDepth = 6;  ///< pixels looked at from each side

/// A control alone in its screen, as it is drawn at a scale.
class Alone {
 public:
  Alone(Form& form, Control& control, double scale, PictureCache& pictures)
      : box_(pixelsOf(control)), scale_(scale) {
    for (Control* c = &control; c != &form; c = c->parent()) c->Visible = true;
    Painter painter(canvas_, scale, pictures);
    form.paint(painter);
    for (Control* c = &control; c != &form; c = c->parent()) c->Visible = false;
  }

  /// Device pixels of a line.
  int line() const { return std::max(1, static_cast<int>(std::lround(scale_))); }

  /// What is seen from a side inwards, from the device pixel where its first or last line begins.
  std::vector<Rgb> inwards(int side, int count) const {
    const bool across = side < 2;
    const bool far = side % 2 == 1;
    const int from = across ? box_.left : box_.top;
    const int length = across ? box_.width : box_.height;
    const int aside = across ? box_.top + box_.height * 3 / 8 : box_.left + box_.width * 3 / 8;
    const double begin =
        far ? std::round((from + length - 1) * scale_) + line() - 1 : std::round(from * scale_);
    const double other = std::round(aside * scale_);
    std::vector<Rgb> seen;
    for (int i = 0; i < count; ++i) {
      const double at = begin + (far ? -i : i);
      seen.push_back(canvas_.colourAt(across ? at : other, across ? other : at).value_or(kBlack));
    }
    return seen;
  }

 private:
  Pixels box_;
  double scale_;
  RecordingCanvas canvas_;
};

/// How many colours alike there are from the first one on.
std::size_t runOf(const std::vector<Rgb>& colours, std::size_t first) {
  std::size_t next = first;
  while (next < colours.size() && colours[next] == colours[first]) ++next;
  return next - first;
}

/// What is seen from a side at 1 is seen at the scale: lines where their pixel of the room begins, a whole
/// number of device pixels each, and behind them what they enclose.
void expectAlike(const std::vector<Rgb>& plain, const std::vector<Rgb>& scaled, double scale,
                 std::size_t line) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < plain.size();) {
    EXPECT_EQ(scaled.at(at), plain[i]) << "behind " << i << " pixels";
    const std::size_t run = runOf(plain, i);
    if (i + run == plain.size()) break;
    const std::size_t thick = runOf(scaled, at);
    const auto wide = static_cast<std::size_t>(std::max(1.0, std::round(static_cast<double>(run) * scale)));
    EXPECT_TRUE(thick == run * line || thick == wide) << "a line of " << run << " has " << thick;
    at += thick;
    i += run;
  }
}

TEST(Edges, AreTheSameAtEveryScale) {
  Session room;
  room.play({"start"});
  Form& form = room.driver.form();
  for (Control* control : form.controls()) control->Visible = false;
  PictureCache once;
  for (const double scale :
       {0.5, 0.63, 0.8, 0.9, 1.1, 1.25, 1.333, 1.5, 1.6, 1.885, 2.0, 2.25, 2.5, 2.667, 3.0}) {
    PictureCache pictures;
    for (Control* control : form.controls()) {
      // Screens and what fills the inside of a box have no edges of their own; images are pictures at any
      // size, and a card's back is all lines.
      const bool inBox = dynamic_cast<const PictureBox*>(control->parent()) != nullptr;
      if (control->parent() == &form || inBox || dynamic_cast<Image*>(control) != nullptr) continue;
      if (control->name().base == "PicRAM3") continue;
      const Alone plain(form, *control, 1, once);
      const Alone scaled(form, *control, scale, pictures);
      const int line = scaled.line();
      const int sides = dynamic_cast<Line*>(control) != nullptr ? 3 : 4;  // a line ends by its own thickness
      for (int side = 0; side < sides; ++side) {
        SCOPED_TRACE(control->name().text() + " from side " + std::to_string(side) + " at " +
                     std::to_string(scale));
        expectAlike(plain.inwards(side, kDepth), scaled.inwards(side, kDepth * (line + 1)), scale,
                    static_cast<std::size_t>(line));
      }
    }
  }
}

}  // namespace
}  // namespace tombolario
