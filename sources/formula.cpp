#include "sources/formula.h"

#include <muParser.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <new>

#include "engine/bands.h"
#include "platform/pixel_buffer.h"
#include "sources/heights.h"

namespace plenovia {

namespace {

constexpr int kDeepestNesting = 50;

// A parser that has read a formula, with the variables that the formula sees.
class Calculator {
 public:
  // Throws mu::ParserError for a formula that makes no sense.
  explicit Calculator(const std::string& formula) {
    parser_.DefineConst("pi", 3.14159265358979323846);
    parser_.DefineConst("e", 2.71828182845904523536);
    parser_.DefineVar("x", &x_);
    parser_.DefineVar("y", &y_);
    parser_.DefineVar("r", &r_);
    parser_.DefineVar("a", &a_);
    parser_.DefineFun("floor", [](double v) { return std::floor(v); });
    parser_.DefineFun("ceil", [](double v) { return std::ceil(v); });
    parser_.DefineFun("mod", [](double v, double by) { return v - by * std::floor(v / by); });
    parser_.DefineFun("hypot", [](double v, double w) { return std::hypot(v, w); });
    parser_.SetExpr(formula);
    Value(0, 0);
    if (parser_.GetNumResults() != 1) throw mu::ParserError("There is more than one formula.");
  }
  Calculator(const Calculator&) = delete;
  Calculator& operator=(const Calculator&) = delete;

  double Value(double x, double y) {
    x_ = x;
    y_ = y;
    r_ = std::hypot(x, y);
    a_ = std::atan2(y, x);
    return parser_.Eval();
  }

 private:
  double x_ = 0;
  double y_ = 0;
  double r_ = 0;
  double a_ = 0;
  mu::Parser parser_;
};

tl::unexpected<Error> Wrong(const std::string& what) {
  return Failure(ErrorCode::kInvalid, what);
}

// What the parser need not see: a formula that is too long or too deep, and assignments, which
// would make a value depend on those before it.
Result<void> CheckText(const std::string& text) {
  if (text.size() > kLongestFormula) {
    return Wrong("The formula has more than " + std::to_string(kLongestFormula) + " characters.");
  }
  if (std::ranges::all_of(text, [](char c) { return c == ' '; })) {
    return Wrong("There is no formula.");
  }
  int open = 0;
  int conditions = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c < ' ' || c > '~') return Wrong("The formula has a character that is not plain ASCII.");
    if (c == '"') return Wrong("A formula has no texts.");
    if (c == '(') ++open;
    if (c == ')') --open;
    if (c == '?') ++conditions;
    if (open > kDeepestNesting || conditions > kDeepestNesting) {
      return Wrong("The formula is nested too deep.");
    }
    if (c != '=') continue;
    const bool compares = i > 0 && std::string("=<>!").find(text[i - 1]) != std::string::npos;
    if (!compares && (i + 1 == text.size() || text[i + 1] != '=')) {
      return Wrong("A formula is a value; \"=\" has no place in it (\"==\" compares).");
    }
  }
  return {};
}

// The parser's words as a sentence; it counts characters from 0.
std::string Sentence(const mu::ParserError& error) {
  std::string text = error.GetMsg();
  const std::string at = " at position " + std::to_string(error.GetPos());
  if (const auto place = text.find(at); place != std::string::npos) {
    text.replace(place, at.size(), " at character " + std::to_string(error.GetPos() + 1));
  }
  while (!text.empty() && (text.back() == '.' || text.back() == ' ')) text.pop_back();
  return text + ".";
}

// What may throw, as a result.
template <class Work>
auto Guarded(const Work& work) -> decltype(work()) {
  try {
    return work();
  } catch (const mu::ParserError& error) {
    return Wrong(Sentence(error));
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for the formula.");
  }
}

}  // namespace

Result<void> CheckFormula(const Formula& formula) {
  if (!(formula.reach >= kSmallestReach && formula.reach <= kLargestReach)) {
    return Wrong("The reach of a formula has to be from 0.001 to 1000.");
  }
  if (auto plain = CheckText(formula.text); !plain) return plain;
  return Guarded([&]() -> Result<void> {
    const Calculator calculator(formula.text);
    return {};
  });
}

Result<FineImage> DrawFormula(const Formula& formula, int width, int height, int threads,
                              RunMonitor& monitor) {
  if (auto makesSense = CheckFormula(formula); !makesSense) {
    return tl::unexpected(makesSense.error());
  }
  if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
  return Guarded([&]() -> Result<FineImage> {
    const auto columns = static_cast<std::size_t>(width);
    PixelVector<float> heights(columns * static_cast<std::size_t>(height));
    const double pixel = 2 * formula.reach / std::min(width, height);
    const auto makeWorker = [&]() -> RowWorker {
      auto calculator = std::make_shared<Calculator>(formula.text);
      return [&, calculator](int scanLine) {
        const auto row = std::span(heights).subspan(
            static_cast<std::size_t>(height - 1 - scanLine) * columns, columns);
        const double y = (scanLine + 0.5 - height / 2.0) * pixel;
        double column = 0.5 - width / 2.0;
        for (float& z : row) z = static_cast<float>(calculator->Value(column++ * pixel, y));
      };
    };
    if (!RunBands(width, height, threads, makeWorker, monitor)) {
      return Failure(ErrorCode::kCancelled, "The run was stopped.");
    }
    auto image = LevelsFromHeights(width, height, heights);
    if (!image && image.error().code == ErrorCode::kInvalid) {
      return Wrong("The formula has no value anywhere in the picture.");
    }
    return image;
  });
}

}  // namespace plenovia
