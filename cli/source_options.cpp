#include "cli/source_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "cli/options.h"

namespace plenovia {

namespace {

constexpr int kFarthest = 32767;

const char* NameOf(SourceForm form) {
  switch (form) {
    case SourceForm::kPicture:
      return "pictures";
    case SourceForm::kFinePicture:
      return "fine depth pictures";
    case SourceForm::kMap:
      return "depth maps";
    case SourceForm::kFigure:
      return "figures";
    case SourceForm::kFormula:
      return "formulas";
    case SourceForm::kText:
      return "texts";
    case SourceForm::kModel:
      return "models";
  }
  return "";
}

std::string NamesOf(const std::vector<SourceForm>& forms) {
  std::string names;
  for (const SourceForm form : forms) {
    if (!names.empty()) names += form == forms.back() ? " and " : ", ";
    names += NameOf(form);
  }
  return names;
}

}  // namespace

void SourceOptions::AddTo(CLI::App& command, TSirdsSettings& settings) {
  using enum SourceForm;
  settings_ = &settings;
  sizes_ = {AddNumber(command, "--width", settings.w, 1, kFarthest, "Width of the picture"),
            AddNumber(command, "--height", settings.h, 1, kFarthest, "Height of the picture")};
  for (CLI::Option* size : sizes_)
    Limit(size, {kFigure, kFormula, kText, kModel, kFinePicture}, Kind::kOther);
  Limit(AddNumber(command, "--dx", settings.dx, -kFarthest, kFarthest, "Pixels to the right"),
        {kFigure}, Kind::kOther);
  Limit(AddNumber(command, "--dy", settings.dy, -kFarthest, kFarthest, "Pixels up"), {kFigure},
        Kind::kOther);
  Limit(AddNumber(command, "--da", settings.da, -180, 180, "Degrees that the figure turns"),
        {kFigure}, Kind::kOther);
  Limit(AddReal(command, "--reach", reach_, kSmallestReach, kLargestReach,
                "x and y go from -N to N along the shorter side"),
        {kFormula});
  Limit(AddChoice(command, "--near", nearness_,
                  {{"bright", static_cast<std::int32_t>(Nearness::kBright)},
                   {"dark", static_cast<std::int32_t>(Nearness::kDark)}},
                  "What is near"),
        {kFinePicture});
  Limit(command
            .add_option("--font", font_,
                        "An installed font or a font file, which has a slash\n"
                        "in its name (default " +
                            font_ + ")")
            ->option_text("NAME"),
        {kText});
  Limit(AddChoice(command, "--profile", profile_,
                  {{"flat", static_cast<std::int32_t>(TextProfile::kFlat)},
                   {"round", static_cast<std::int32_t>(TextProfile::kRound)}},
                  "The letters"),
        {kText});
  AddView(command);
  Limit(AddReal(command, "--perspective", view_.perspective, 0, kWidestPerspective,
                "Degrees that the longer side spans; 0 is parallel"),
        {kModel});
}

void SourceOptions::AddView(CLI::App& command) {
  const auto parse = [this](const std::string& text) {
    ModelView view = view_;
    const auto read = [](const char* from, const char* end, double& angle) {
      const auto [stop, error] = std::from_chars(from, end, angle);
      return error == std::errc() && std::abs(angle) <= 360 ? stop : nullptr;
    };
    const char* const end = text.data() + text.size();
    const char* comma = read(text.data(), end, view.turn);
    if (comma == nullptr || comma == end || *comma != ',' ||
        read(comma + 1, end, view.tilt) != end) {
      throw CLI::ValidationError("--view takes two angles such as 30,20, not '" + text + "'");
    }
    view_ = view;
  };
  Limit(command
            .add_option_function<std::string>("--view", parse,
                                              "Degrees that the model's front turns to the right,\n"
                                              "and its top to the viewer (default 0,0)")
            ->option_text("TURN,TILT"),
        {SourceForm::kModel});
}

Text SourceOptions::TextOf(const std::string& lines) const {
  Text text{.lines = lines, .font = font_, .profile = static_cast<TextProfile>(profile_)};
  // Shells make it hard to type line ends.
  for (std::size_t at = 0; (at = text.lines.find("\\n", at)) != std::string::npos;) {
    text.lines.replace(at, 2, "\n");
  }
  return text;
}

void SourceOptions::Limit(CLI::Option* option, std::vector<SourceForm> forms, Kind kind) {
  std::string group = NamesOf(forms) + " only";
  group[0] = static_cast<char>(group[0] - 'a' + 'A');
  option->group(group);
  limited_.push_back({option, std::move(forms), kind});
}

Outcome<void> SourceOptions::Check(SourceForm form) const {
  for (const Limited& limited : limited_) {
    if (limited.option->count() == 0 || std::ranges::count(limited.forms, form) != 0) continue;
    return WrongUsage(limited.option->get_name() + " is for " + NamesOf(limited.forms) + " only");
  }
  return {};
}

std::string SourceOptions::Shape() const {
  std::string shape;
  for (const Limited& limited : limited_) {
    if (limited.kind != Kind::kShape || limited.option->count() == 0) continue;
    if (!shape.empty()) shape += ' ';
    shape += limited.option->get_name() + ' ' + limited.option->as<std::string>();
  }
  return shape;
}

bool SourceOptions::TakeShape(const std::string& shape) const {
  for (std::size_t at = 0; at < shape.size();) {
    const std::size_t end = std::min(shape.find(" --", at), shape.size());
    const std::string option = shape.substr(at, end - at);
    const std::size_t space = option.find(' ');
    if (space == std::string::npos) return false;
    const std::string name = option.substr(0, space);
    const std::string value = option.substr(space + 1);
    at = end + 1;
    const auto limited = std::ranges::find_if(limited_, [&](const Limited& each) {
      return each.kind == Kind::kShape && each.option->get_name() == name;
    });
    if (limited == limited_.end()) return false;
    if (limited->option->count() > 0) continue;
    try {
      limited->option->add_result(value);
      limited->option->run_callback();
    } catch (const CLI::Error&) {
      return false;
    }
  }
  return true;
}

std::pair<int, int> SourceOptions::SizeOf(int width, int height) const {
  const bool wide = sizes_[0]->count() != 0;
  const bool high = sizes_[1]->count() != 0;
  const auto inShape = [](int side, int other, int given) {
    const double length = static_cast<double>(other) / side * given;
    return static_cast<int>(std::lround(std::clamp(length, 1.0, double{kFarthest})));
  };
  if (wide) return {settings_->w, high ? settings_->h : inShape(width, height, settings_->w)};
  if (high) return {inShape(height, width, settings_->h), settings_->h};
  return {width, height};
}

const CLI::Option* SourceOptions::GivenSize() const {
  return FirstGiven(sizes_);
}

}  // namespace plenovia
