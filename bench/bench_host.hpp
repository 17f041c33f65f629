#pragma once

#include <filesystem>

#include "host/clock_source.hpp"
#include "host/data_directory.hpp"
#include "host/host.hpp"

namespace tombolario {

/// The surroundings of a room that is measured: no address goes to the desktop.
class BenchHost : public Host {
 public:
  UniformSource& uniform() override { return uniform_; }
  void openAddress(const std::string&) override {}
  DataFiles& dataFiles() override { return dataFiles_; }

 private:
  ClockSource uniform_;
  DataDirectory dataFiles_{std::filesystem::temp_directory_path()};
};

}  // namespace tombolario
