#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <string_view>

#include "platform/parallel_for.h"

#include "engine/scan_method.h"

namespace plenovia {

namespace {

constexpr int kFarthest = 32767;
constexpr int kDeepest = 65535;
constexpr std::size_t kHelpColumns = 56;  // beside the names of the options

std::string Quoted(const std::string& text) {
  return "'" + text + "'";
}

}  // namespace

CLI::Option* AddNumber(CLI::App& command, const std::string& name, std::int32_t& value, int low,
                       int high, const std::string& meaning, const std::string& standard) {
  const std::string range = std::to_string(low) + " to " + std::to_string(high);
  const auto parse = [&value, name, low, high, range](const std::string& text) {
    std::string_view digits = text;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    std::int32_t number = 0;
    const auto end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end || number < low || number > high) {
      throw CLI::ValidationError(name + " takes a whole number from " + range + ", not " +
                                 Quoted(text));
    }
    value = number;
  };
  const std::string facts = range + " (default " + standard + ")";
  const bool fits = meaning.size() + facts.size() + 2 <= kHelpColumns;
  return command
      .add_option_function<std::string>(name, parse, meaning + (fits ? ", " : ",\n") + facts)
      ->option_text("N");
}

CLI::Option* AddNumber(CLI::App& command, const std::string& name, std::int32_t& value, int low,
                       int high, const std::string& meaning) {
  return AddNumber(command, name, value, low, high, meaning, std::to_string(value));
}

CLI::Option* AddChoice(CLI::App& command, const std::string& name, std::int32_t& value,
                       const Words& words, const std::string& meaning) {
  std::string list;
  std::string standard;
  for (const auto& [word, number] : words) {
    if (!list.empty()) list += word == words.back().first ? " or " : ", ";
    list += word;
    if (number == value) standard = word;
  }
  const auto parse = [&value, name, words, list](const std::string& text) {
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&](const auto& entry) { return entry.first == text; });
    if (found == words.end()) {
      throw CLI::ValidationError(name + " takes " + list + ", not " + Quoted(text));
    }
    value = found->second;
  };
  return command
      .add_option_function<std::string>(name, parse,
                                        meaning + ":\n" + list + "\n(default " + standard + ")")
      ->option_text("NAME");
}

ScanOptions AddScanOptions(CLI::App& command, TSirdsSettings& settings) {
  Words methods;
  for (const ScanMethod* method : ScanMethods()) {
    methods.emplace_back(method->name, static_cast<std::int32_t>(methods.size()) + 1);
  }
  ScanOptions options;
  options.scan = AddChoice(command, "--scan", settings.scanMethod, methods, "Scan method");
  options.gap = AddNumber(command, "--gap", settings.gapValue, kSmallestGap, kLargestGap,
                          "Pixels between two repeats of the far plane");
  options.zmin = AddNumber(command, "--zmin", settings.zmin, -kDeepest, kDeepest,
                           "Far end of the depth range");
  options.zmax = AddNumber(command, "--zmax", settings.zmax, -kDeepest, kDeepest,
                           "Near end of it; 255 suits pictures of 256 levels");
  return options;
}

Outcome<void> CheckDepthRange(const TSirdsSettings& settings) {
  if (settings.zmin <= settings.zmax) return {};
  return WrongUsage("--zmin " + std::to_string(settings.zmin) + " lies above --zmax " +
                    std::to_string(settings.zmax));
}

CLI::Option* AddDepthBy(CLI::App& command, TSirdsSettings& settings) {
  return AddChoice(command, "--depth-by", settings.depthSel,
                   {{"color", kDepthByColor}, {"brightness", kDepthByBrightness}},
                   "Level of a picture's pixel: its number in the\npalette or its brightness");
}

std::vector<CLI::Option*> AddFigureOptions(CLI::App& command, TSirdsSettings& settings) {
  return {
      AddNumber(command, "--width", settings.w, 1, kFarthest, "Width of the picture"),
      AddNumber(command, "--height", settings.h, 1, kFarthest, "Height of the picture"),
      AddNumber(command, "--dx", settings.dx, -kFarthest, kFarthest, "Pixels to the right"),
      AddNumber(command, "--dy", settings.dy, -kFarthest, kFarthest, "Pixels up"),
      AddNumber(command, "--da", settings.da, -180, 180, "Degrees that the figure turns"),
  };
}

void AddMarkers(CLI::App& command, TSirdsSettings& settings) {
  const auto add = [&](const std::string& name, std::int32_t marker, const std::string& meaning) {
    return command.add_flag_callback(
        name, [&settings, marker] { settings.marker = marker; }, meaning);
  };
  CLI::Option* with = add("--markers", 1, "Draw two squares to fuse the eyes on (default)");
  add("--no-markers", 0, "Leave them out")->excludes(with);
}

int RunOptions::Threads() const {
  return static_cast<int>(WorkerCount(threads));
}

void AddRunOptions(CLI::App& command, RunOptions& options) {
  AddNumber(command, "--threads", options.threads, 1, 256, "Threads at work", "one a core");
  command.add_flag("-q", options.quiet, "No progress line");
}

const CLI::Option* FirstGiven(const std::vector<CLI::Option*>& options) {
  const auto given = std::find_if(options.begin(), options.end(),
                                  [](const CLI::Option* option) { return option->count() > 0; });
  return given == options.end() ? nullptr : *given;
}

void AddOperand(CLI::App& command, const std::string& name, std::string& value,
                const std::string& meaning) {
  command.add_option(name, value, meaning)->required()->option_text(" ");
}

}  // namespace plenovia
