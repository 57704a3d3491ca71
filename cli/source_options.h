// Options that are for some forms of SOURCE only.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "cli/outcome.h"
#include "engine/sirds_settings.h"
#include "sources/fine_picture.h"
#include "sources/formula.h"
#include "sources/model.h"
#include "sources/text.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace plenovia {

enum class SourceForm { kPicture, kFinePicture, kMap, kFigure, kFormula, kText, kModel };

class SourceOptions {
 public:
  // Adds --width, --height, --dx, --dy, --da and the options that shape a source. What they set
  // lives as long as this does, and `settings` as long as that.
  void AddTo(CLI::App& command, TSirdsSettings& settings);
  // Says that an option, which the command has, is for these forms only. kShape: a recipe tells it
  // (below); the rest is in the settings or names a file.
  enum class Kind { kShape, kOther };
  void Limit(CLI::Option* option, std::vector<SourceForm> forms, Kind kind = Kind::kShape);

  // Wrong usage when the command line has an option that is not for this form.
  [[nodiscard]] Outcome<void> Check(SourceForm form) const;
  // The first of --width and --height that the command line has, or none.
  const CLI::Option* GivenSize() const;

  // The options of kShape that the command line has, such as "--reach 8", and the way back: they
  // are taken where the command line does not have them. False for any other text.
  std::string Shape() const;
  [[nodiscard]] bool TakeShape(const std::string& shape) const;

  int width() const { return settings_->w; }
  int height() const { return settings_->h; }
  // The size that a picture of this size is to get: the one given, in its shape when one side is.
  std::pair<int, int> SizeOf(int width, int height) const;
  Text TextOf(const std::string& lines) const;
  const ModelView& view() const { return view_; }
  Nearness nearness() const { return static_cast<Nearness>(nearness_); }
  Formula FormulaOf(const std::string& text) const { return {text, reach_}; }

 private:
  struct Limited {
    CLI::Option* option;
    std::vector<SourceForm> forms;
    Kind kind;
  };
  std::vector<Limited> limited_;
  std::vector<CLI::Option*> sizes_;
  const TSirdsSettings* settings_ = nullptr;
  std::int32_t nearness_ = static_cast<std::int32_t>(Nearness::kBright);
  void AddView(CLI::App& command);

  std::string font_ = Text().font;
  std::int32_t profile_ = static_cast<std::int32_t>(TextProfile::kFlat);
  ModelView view_;
  double reach_ = Formula().reach;
};

}  // namespace plenovia
