#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <iosfwd>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "driver/camera.hpp"
#include "host/clock_source.hpp"
#include "room/room.hpp"

namespace tombolario {

/// Queued numbers first, then a generator with a seed of its own; the clock seeds nothing.
class ScriptedSource : public UniformSource {
 public:
  void seedFromClock() override {}
  double next() override;

  void queue(const std::vector<double>& numbers) {
    queue_.insert(queue_.end(), numbers.begin(), numbers.end());
  }
  std::size_t queued() const { return queue_.size(); }
  void seed(std::int64_t seed) { engine_.seed(static_cast<std::uint64_t>(seed)); }

 private:
  std::deque<double> queue_;
  std::mt19937_64 engine_{1};
};

/// The surroundings of a room without a window: it keeps the addresses that are handed to it.
class ScriptedHost : public Host {
 public:
  explicit ScriptedHost(DataFiles& dataFiles) : dataFiles_(dataFiles) {}

  ScriptedSource& uniform() override { return uniform_; }
  void openAddress(const std::string& address) override { addresses.push_back(address); }
  DataFiles& dataFiles() override { return dataFiles_; }

  std::vector<std::string> addresses;

 private:
  ScriptedSource uniform_;
  DataFiles& dataFiles_;
};

/// The room by a line protocol: each command, one line, has one answer. A command that is not understood
/// or names what is not there answers "error: ..." and changes nothing; so does a line of more than 64 KiB.
class Driver {
 public:
  /// Without a camera the commands that write pictures answer an error.
  Driver(Camera* camera, DataFiles& dataFiles);

  /// The answer to a command: one line, or several of which the last is "."; no line break at the end.
  std::string answer(std::string_view line);
  /// Answers the commands that come in, each at once, until the command to end or the last line.
  void run(std::istream& in, std::ostream& out);
  /// True once the command to end has come.
  bool ended() const { return ended_; }

  Form& form() { return room_.form(); }

 private:
  using Words = std::vector<std::string>;

  std::string dispatch(const Words& words);
  std::string queueNumbers(const Words& words);
  std::string queued(const Words& words);
  std::string seed(const Words& words);
  std::string start(const Words& words);
  std::string over(const Words& words);
  std::string at(const Words& words);
  std::string down(const Words& words);
  std::string up(const Words& words);
  std::string click(const Words& words);
  std::string scroll(const Words& words);
  std::string screen(const Words& words);
  std::string get(const Words& words);
  std::string links(const Words& words);
  std::string dump(const Words& words);
  std::string shot(const Words& words);
  std::string pictures(const Words& words);
  std::string picture(const Words& words);
  std::string quit(const Words& words);

  Form& started();
  /// The camera, for a file that can be written.
  Camera& cameraFor(const std::string& file);
  Control& named(const std::string& name);
  Control& namedOnView(const std::string& name);

  ScriptedHost host_;
  Room room_;
  Camera* camera_;
  bool started_ = false;
  bool ended_ = false;
};

}  // namespace tombolario
