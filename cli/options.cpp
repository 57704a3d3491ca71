#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "platform/parallel_for.h"

#include "engine/scan_method.h"

namespace plenovia {

namespace {

constexpr int kDeepest = 65535;
constexpr std::size_t kHelpColumns = 56;  // beside the names of the options

const Words kDepthBy = {{"color", kDepthByColor}, {"brightness", kDepthByBrightness}};

std::string Quoted(const std::string& text) {
  return "'" + text + "'";
}

std::string Plain(std::int32_t number) {
  return std::to_string(number);
}
std::string Plain(double number) {
  std::array<char, 32> text{};
  return {text.data(),
          std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general)
              .ptr};
}

template <class Number>
struct Limits {
  Number low;
  Number high;
};

template <class Number>
CLI::Option* AddNumberOf(CLI::App& command, const std::string& name, Number& value,
                         Limits<Number> limits, const std::string& kind, const std::string& meaning,
                         const std::string& standard) {
  const std::string range = Plain(limits.low) + " to " + Plain(limits.high);
  const auto parse = [&value, name, limits, range, kind](const std::string& text) {
    std::string_view digits = text;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    Number number{};
    const auto end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end || !(number >= limits.low && number <= limits.high)) {
      throw CLI::ValidationError(name + " takes " + kind + " from " + range + ", not " +
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

}  // namespace

CLI::Option* AddNumber(CLI::App& command, const std::string& name, std::int32_t& value, int low,
                       int high, const std::string& meaning, const std::string& standard) {
  return AddNumberOf(command, name, value, {low, high}, "a whole number", meaning, standard);
}

CLI::Option* AddNumber(CLI::App& command, const std::string& name, std::int32_t& value, int low,
                       int high, const std::string& meaning) {
  return AddNumber(command, name, value, low, high, meaning, std::to_string(value));
}

CLI::Option* AddReal(CLI::App& command, const std::string& name, double& value, double low,
                     double high, const std::string& meaning) {
  return AddNumberOf(command, name, value, {low, high}, "a number", meaning, Plain(value));
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
  return AddChoice(command, "--depth-by", settings.depthSel, kDepthBy,
                   "Level of a picture's pixel: its number in the\npalette or its brightness");
}

void AddMarkers(CLI::App& command, TSirdsSettings& settings) {
  const auto add = [&](const std::string& name, std::int32_t marker, const std::string& meaning) {
    return command.add_flag_callback(
        name, [&settings, marker] { settings.marker = marker; }, meaning);
  };
  CLI::Option* with = add("--markers", 1, "Draw two squares to fuse the eyes on (default)");
  CLI::Option* without = add("--no-markers", 0, "Leave them out")->excludes(with);
  command
      .add_flag_callback(
          "--large-markers", [&settings] { settings.marker = settings.bigMarker = 1; },
          "Draw them large, in a colour that contrasts\nwith the pattern")
      ->excludes(without);
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

std::string OptionsOf(const Recipe& recipe) {
  const TSirdsSettings& settings = recipe.settings;
  const RecipeKind kind = recipe.source.kind;
  std::string options = "--scan " + std::string(ScanMethodOf(settings.scanMethod).name);
  const auto add = [&options](const char* name, std::int32_t value) {
    options += ' ' + std::string(name) + ' ' + std::to_string(value);
  };
  add("--gap", settings.gapValue);
  add("--zmin", settings.zmin);
  add("--zmax", settings.zmax);
  if (kind == RecipeKind::kPicture) {
    const auto by = std::ranges::find(kDepthBy, settings.depthSel, &Words::value_type::second);
    options += " --depth-by " + by->first;
  }
  options += settings.marker == 0      ? " --no-markers"
             : settings.bigMarker != 0 ? " --large-markers"
                                       : " --markers";
  if (kind == RecipeKind::kFigure || kind == RecipeKind::kFormula || kind == RecipeKind::kText) {
    add("--width", settings.w);
    add("--height", settings.h);
  }
  if (kind == RecipeKind::kFigure) {
    add("--dx", settings.dx);
    add("--dy", settings.dy);
    add("--da", settings.da);
  }
  if (!recipe.source.shape.empty()) options += ' ' + recipe.source.shape;
  return options;
}

void AddOperand(CLI::App& command, const std::string& name, std::string& value,
                const std::string& meaning) {
  command.add_option(name, value, meaning)->required()->option_text(" ");
}

}  // namespace plenovia
