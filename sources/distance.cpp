#include "sources/distance.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace plenovia {

namespace {

// The lowest of the parabolas that stand on the values of a line, at each place of it.
class LineTransform {
 public:
  explicit LineTransform(std::size_t longest) : places_(longest), begins_(longest + 1) {}

  void Run(const std::vector<double>& from, std::vector<double>& to) {
    std::size_t count = 0;
    for (std::size_t q = 0; q < from.size(); ++q) {
      double begin = -kFar;
      while (count > 0) {
        const std::size_t p = places_[count - 1];
        const double distance = static_cast<double>(q - p);
        begin = (from[q] - from[p] + distance * static_cast<double>(q + p)) / (2 * distance);
        if (begin > begins_[count - 1]) break;
        begin = -kFar;
        --count;
      }
      places_[count] = q;
      begins_[count] = begin;
      ++count;
    }
    std::size_t parabola = 0;
    for (std::size_t x = 0; x < from.size(); ++x) {
      while (parabola + 1 < count && begins_[parabola + 1] < static_cast<double>(x)) ++parabola;
      const double off = static_cast<double>(x) - static_cast<double>(places_[parabola]);
      to[x] = off * off + from[places_[parabola]];
    }
  }

  static constexpr double kFar = 1e12;

 private:
  std::vector<std::size_t> places_;
  std::vector<double> begins_;
};

}  // namespace

PixelVector<float> SquaredDistances(int width, int height, std::span<const std::uint8_t> inside) {
  const auto columns = static_cast<std::size_t>(width);
  const auto rows = static_cast<std::size_t>(height);
  PixelVector<float> squares(inside.size());
  LineTransform transform(std::max(columns, rows) + 2);
  // With one pixel around, which is not inside.
  std::vector<double> from(rows + 2);
  std::vector<double> to(rows + 2);
  for (std::size_t x = 0; x < columns; ++x) {
    from.front() = from.back() = 0;
    for (std::size_t y = 0; y < rows; ++y) {
      from[y + 1] = inside[y * columns + x] == 0 ? 0 : LineTransform::kFar / 4;
    }
    transform.Run(from, to);
    for (std::size_t y = 0; y < rows; ++y) {
      squares[y * columns + x] = static_cast<float>(to[y + 1]);
    }
  }
  from.resize(columns + 2);
  to.resize(columns + 2);
  for (std::size_t y = 0; y < rows; ++y) {
    const auto row = std::span(squares).subspan(y * columns, columns);
    from.front() = from.back() = 0;
    std::ranges::copy(row, from.begin() + 1);
    transform.Run(from, to);
    std::transform(to.begin() + 1, to.end() - 1, row.begin(),
                   [](double square) { return static_cast<float>(square); });
  }
  return squares;
}

}  // namespace plenovia
