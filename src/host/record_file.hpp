#pragma once

#include <string>
#include <utility>

#include "host/data_files.hpp"
#include "pieces/slots.hpp"

namespace tombolario {

/// A stored game: a data file with one number in each of its records, 1 to kRecords. The games tell of no
/// failure. What cannot be read counts as 0; what cannot be stored leaves what was stored before, which the
/// player finds at the next load.
template <int kRecords>
class RecordFile {
 public:
  using Records = Numbers<1, kRecords>;

  RecordFile(DataFiles& files, std::string name) : files_(files), name_(std::move(name)) {}

  Records read() const {
    Records records{};
    files_.read(name_, records.items);
    return records;
  }
  void write(const Records& records) const { files_.write(name_, records.items); }

 private:
  DataFiles& files_;
  std::string name_;
};

}  // namespace tombolario
