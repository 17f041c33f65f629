#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "host/clock_source.hpp"
#include "host/host.hpp"

namespace tombolario {

/// Data files in the browser's own storage. Where that is refused or full, a call fails and changes nothing.
class BrowserFiles : public DataFiles {
 public:
  bool read(const std::string& name, std::span<std::int16_t> numbers) override;
  bool write(const std::string& name, std::span<const std::int16_t> numbers) override;
};

/// The surroundings of the room in a browser.
class BrowserHost : public Host {
 public:
  UniformSource& uniform() override { return uniform_; }
  void openAddress(const std::string& address) override;
  DataFiles& dataFiles() override { return dataFiles_; }

 private:
  ClockSource uniform_;
  BrowserFiles dataFiles_;
};

}  // namespace tombolario
