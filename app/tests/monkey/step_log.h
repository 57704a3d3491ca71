// What the monkey did last, told when it cannot go on.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace plenovia {

// Keeps the last lines in memory. When the process dies by a signal or by a report of a sanitizer
// they are written to the standard error. One at a time.
class StepLog {
 public:
  explicit StepLog(std::uint64_t seed);
  StepLog(const StepLog&) = delete;
  StepLog& operator=(const StepLog&) = delete;
  ~StepLog();

  void Add(const std::string& line);
  // The seed and the last lines. Safe in a signal handler.
  void Print() const;

 private:
  static constexpr std::size_t kLines = 60;
  static constexpr std::size_t kLength = 160;

  std::array<char, kLength> head_{};
  std::array<std::array<char, kLength>, kLines> lines_{};
  std::size_t count_ = 0;
};

}  // namespace plenovia
