// Options that several subcommands share, with their ranges, defaults and words of help.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "cli/outcome.h"
#include "engine/recipe.h"
#include "engine/sirds_settings.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace plenovia {

inline constexpr int kSmallestGap = 2;
inline constexpr int kLargestGap = 4096;

// An option "NAME N" for a whole number from `low` to `high`. The help says `meaning`, the range
// and the default. `value` must live until the command line is parsed.
CLI::Option* AddNumber(CLI::App& command, const std::string& name, std::int32_t& value, int low,
                       int high, const std::string& meaning, const std::string& standard);
// The same with the present value as the default.
CLI::Option* AddNumber(CLI::App& command, const std::string& name, std::int32_t& value, int low,
                       int high, const std::string& meaning);

// The same for any number.
CLI::Option* AddReal(CLI::App& command, const std::string& name, double& value, double low,
                     double high, const std::string& meaning);

// An option "NAME WORD" for one of some words, each of which stands for a number.
using Words = std::vector<std::pair<std::string, std::int32_t>>;
CLI::Option* AddChoice(CLI::App& command, const std::string& name, std::int32_t& value,
                       const Words& words, const std::string& meaning);

// --scan, --gap, --zmin and --zmax.
struct ScanOptions {
  CLI::Option* scan = nullptr;
  CLI::Option* gap = nullptr;
  CLI::Option* zmin = nullptr;
  CLI::Option* zmax = nullptr;
  std::vector<CLI::Option*> All() const { return {scan, gap, zmin, zmax}; }
};
ScanOptions AddScanOptions(CLI::App& command, TSirdsSettings& settings);
// Wrong usage when zmin lies above zmax.
[[nodiscard]] Outcome<void> CheckDepthRange(const TSirdsSettings& settings);
// --depth-by.
CLI::Option* AddDepthBy(CLI::App& command, TSirdsSettings& settings);
// --markers, --large-markers and --no-markers.
void AddMarkers(CLI::App& command, TSirdsSettings& settings);
// --threads and -q.
struct RunOptions {
  std::int32_t threads = 0;  // 0: one a core
  bool quiet = false;
  int Threads() const;
};
void AddRunOptions(CLI::App& command, RunOptions& options);

// The options that a recipe stands for, as one would type them.
std::string OptionsOf(const Recipe& recipe);

// SOURCE, PICTURE and the like: a required word without a dash.
void AddOperand(CLI::App& command, const std::string& name, std::string& value,
                const std::string& meaning);

// The first of the options that the command line gives; null when there is none.
const CLI::Option* FirstGiven(const std::vector<CLI::Option*>& options);

}  // namespace plenovia
