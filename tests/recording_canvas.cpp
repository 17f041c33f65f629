#include "recording_canvas.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace tombolario {

namespace {

std::string shown(double number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.2f", number + 0.0);
  std::string shorter = text.data();
  shorter.erase(shorter.find_last_not_of('0') + 1);
  if (shorter.ends_with('.')) shorter.pop_back();
  return shorter == "-0" ? "0" : shorter;
}

std::string shown(Rgb colour) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "#%06X", static_cast<unsigned>(colour));
  return text.data();
}

std::string shown(const std::string& word) { return word; }
std::string shown(Vec at) { return shown(at.x) + ',' + shown(at.y); }
std::string shown(const Rect& rect) {
  return shown(Vec{rect.x, rect.y}) + ' ' + shown(rect.w) + 'x' + shown(rect.h);
}

std::string shown(std::span<const Vec> points) {
  std::string all;
  for (const Vec& point : points) all.append(all.empty() ? "" : " ").append(shown(point));
  return all;
}

}  // namespace

template <class... Parts>
void RecordingCanvas::tell(const char* what, const Parts&... parts) {
  told_ += indent_ + what;
  (told_.append(1, ' ').append(shown(parts)), ...);
  told_ += '\n';
}

const std::string& RecordingCanvas::told() const {
  EXPECT_EQ(indent_, "") << "something is still clipped";
  return told_;
}

std::unique_ptr<Canvas> RecordingCanvas::make(Size size) {
  auto made = std::make_unique<RecordingCanvas>();
  made->indent_ = indent_ + "  ";
  made->name_ =
      std::to_string(++made_) + " of " + std::to_string(size.width) + 'x' + std::to_string(size.height);
  return made;
}

void RecordingCanvas::startAt(Vec origin) { tell("start", origin); }
void RecordingCanvas::fillRect(const Rect& rect, Rgb colour) { tell("rect", rect, colour); }
void RecordingCanvas::fillPolygon(std::span<const Vec> points, Rgb colour) { tell("fill", colour, points); }

void RecordingCanvas::fillPolygon(std::span<const Vec> points, const Gradient& gradient) {
  std::string colours = gradient.shape == Gradient::Shape::Linear ? "linear" : "radial";
  for (const Rgb colour : gradient.colours) colours.append(1, ' ').append(shown(colour));
  tell("fill", colours, gradient.from, gradient.to, points);
}

void RecordingCanvas::strokePolygon(std::span<const Vec> points, Rgb colour, double width) {
  tell("stroke", colour, width, points);
}

void RecordingCanvas::fillEllipse(Vec centre, Vec radii, Rgb colour) {
  tell("ellipse", centre, radii, colour);
}
void RecordingCanvas::line(Vec from, Vec to, Rgb colour, double width) {
  tell("line", from, to, colour, width);
}

void RecordingCanvas::text(std::string_view text, const Typeface& face, Vec start, Rgb colour) {
  texts_.emplace_back(text);
  tell("text", start, std::string(face.families).substr(0, 6) + ' ' + std::to_string(face.weight), face.em,
       face.stretch, colour, std::string(text));
}

double RecordingCanvas::textWidth(std::string_view text, const Typeface& face) {
  double width = 0;
  for (const char c : text) width += face.em * (0.35 + face.weight / 5000.0 + c % 8 / 20.0);
  return width;
}

void RecordingCanvas::copy(Canvas& from, Vec at) {
  auto& other = dynamic_cast<RecordingCanvas&>(from);
  tell("copy", other.name_, at);
  if (!std::exchange(other.copied_, true)) told_ += other.told_;
}

void RecordingCanvas::clip(const Rect& rect) {
  tell("clip", rect);
  indent_ += "  ";
}

void RecordingCanvas::unclip() { indent_.resize(indent_.size() - 2); }

void expectAsRecorded(const std::string& file, const std::map<std::string, std::string>& told) {
  const std::string path = std::string(TOMBOLARIO_RECORDED "/") + file;
  if (std::getenv("TOMBOLARIO_RECORD") != nullptr) {
    std::ofstream out(path);
    for (const auto& [heading, lines] : told) out << "== " << heading << '\n' << lines;
    return;
  }
  std::ifstream in(path);
  std::map<std::string, std::string> recorded;
  std::string heading;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("== ")) {
      recorded[heading = line.substr(3)];
    } else {
      recorded[heading] += line + '\n';
    }
  }
  for (const auto& [part, lines] : told) EXPECT_EQ(lines, recorded[part]) << file << ", " << part;
  EXPECT_EQ(told.size(), recorded.size()) << file << " tells of what is no more";
}

}  // namespace tombolario
