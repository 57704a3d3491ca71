#include "figures/sirdmath.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "figures/figure_table.h"

namespace plenovia::figures {
namespace {

constexpr int kTopLevel = 24;
constexpr double kUnit = 0.72;  // the radius of the unit circle by the smaller centre coordinate
constexpr double kReach = 1.3;  // no figure goes beyond this many units
constexpr std::string_view kVersion = "1.0";

// Copies what fits into `size` characters and the terminator.
void CopyText(std::string_view text, char* buffer, std::size_t size) {
  const std::size_t length = text.copy(buffer, size);
  buffer[length] = '\0';
}

const Figure* FindFigure(std::int64_t number) {
  const auto figures = AllFigures();
  if (number < 0 || number >= std::ssize(figures)) return nullptr;
  return &figures[static_cast<std::size_t>(number)];
}

// The turn by a whole number of degrees.
Turn TurnBy(std::int32_t degrees) {
  static const auto kTurns = [] {
    std::array<Turn, 360> turns{};
    for (std::size_t i = 0; i < turns.size(); ++i) {
      const double angle = static_cast<double>(i) * kPi / 180;
      turns[i] = {std::cos(angle), std::sin(angle)};
    }
    return turns;
  }();
  return kTurns[static_cast<std::size_t>((degrees % 360 + 360) % 360)];
}

std::int32_t ToLevel(double height) {
  if (!(height > 0)) return 0;
  return height < 1 ? static_cast<std::int32_t>(height * kTopLevel + 0.5) : kTopLevel;
}

}  // namespace
}  // namespace plenovia::figures

void _InitFigureTitles(void) {}

void _UnloadFigureTitles(void) {}

int32_t _GetFigureCount(void) {
  return static_cast<int32_t>(plenovia::figures::AllFigures().size());
}

void _GetFigureTitle(int32_t number, char* buffer, int32_t size) {
  using namespace plenovia::figures;
  if (buffer == nullptr || size < 1) return;
  const Figure* figure = FindFigure(number);
  CopyText(figure != nullptr ? figure->title : "", buffer, static_cast<std::size_t>(size - 1));
}

int32_t _GetFigureLevel(int32_t column, int32_t row, int32_t centreColumn, int32_t centreRow,
                        int32_t angle, int32_t code) {
  using namespace plenovia::figures;
  const Figure* figure = FindFigure(-(std::int64_t{code} + 1));
  if (figure == nullptr) return 0;
  const double unit = kUnit * std::max(1, std::min(centreColumn, centreRow));
  const Point p{(double{1} * column - centreColumn) / unit, (double{1} * row - centreRow) / unit};
  if (std::max(std::abs(p.x), std::abs(p.y)) > kReach) return 0;
  return ToLevel(figure->height(p, TurnBy(angle)));
}

void _GetLibVersion(char* buffer) {
  using namespace plenovia::figures;
  if (buffer != nullptr) CopyText(kVersion, buffer, 19);
}
