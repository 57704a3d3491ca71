#include "sirdspat/tile_quality.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace plenovia {

namespace {

constexpr int kNearest = 6;
constexpr int kRowReach = 8;
constexpr int kWindowWidth = 24;
constexpr int kWindowHeight = 12;
constexpr int kDetailSide = 8;
constexpr int kDefaultGap = 100;

// The colours with room to read beyond the right and lower edges without wrapping.
class Field {
 public:
  explicit Field(const IndexedImage& tile)
      : width(tile.width()), height(tile.height()), stride_(2 * width) {
    values_.reserve(3 * static_cast<std::size_t>(stride_) * static_cast<std::size_t>(2 * height));
    for (int y = 0; y < 2 * height; ++y) {
      for (int x = 0; x < stride_; ++x) {
        const Rgb colour =
            tile.palette()[tile.Row(y % height)[static_cast<std::size_t>(x % width)]];
        for (const int channel : {colour.red, colour.green, colour.blue})
          values_.push_back(channel);
      }
    }
  }
  // Red, green and blue from (x, y) on to the right; 0 <= x < 2 * width, 0 <= y < 2 * height.
  const double* At(int x, int y) const {
    return values_.data() + 3 * static_cast<std::ptrdiff_t>(y * stride_ + x);
  }

  const int width;
  const int height;

 private:
  int stride_;
  std::vector<double> values_;
};

// Of the window at (x, y) with the one displaced by (dx, dy).
double Correlation(const Field& field, int x, int y, int width, int height, int dx, int dy) {
  double sumA[3] = {};
  double sumB[3] = {};
  double aa = 0;
  double bb = 0;
  double ab = 0;
  for (int j = y; j < y + height; ++j) {
    const double* a = field.At(x, j);
    const double* b = field.At(x + dx, j + dy);
    for (const double* end = a + 3 * width; a != end; a += 3, b += 3) {
      for (int c = 0; c < 3; ++c) {
        sumA[c] += a[c];
        sumB[c] += b[c];
        aa += a[c] * a[c];
        bb += b[c] * b[c];
        ab += a[c] * b[c];
      }
    }
  }
  const double n = static_cast<double>(width) * height;
  for (int c = 0; c < 3; ++c) {
    aa -= sumA[c] * sumA[c] / n;
    bb -= sumB[c] * sumB[c] / n;
    ab -= sumA[c] * sumB[c] / n;
  }
  // Two flat windows are alike.
  return aa <= 0 || bb <= 0 ? 1 : ab / std::sqrt(aa * bb);
}

double Repeat(const Field& field) {
  double most = -1;
  for (int dy = 0; dy <= kRowReach; ++dy) {
    for (int dx = kNearest; dx <= field.width - kNearest; ++dx) {
      most = std::max(most, Correlation(field, 0, 0, field.width, field.height, dx, dy));
    }
  }
  return most;
}

double LocalRepeat(const Field& field) {
  double most = -1;
  for (int y = 0; y < field.height; y += kWindowHeight / 2) {
    for (int x = 0; x < field.width; x += kWindowWidth / 2) {
      for (int dx = kNearest; dx <= field.width / 2; ++dx) {
        if (x + dx + kWindowWidth > 2 * field.width) break;
        most = std::max(most, Correlation(field, x, y, kWindowWidth, kWindowHeight, dx, 0));
      }
    }
  }
  return most;
}

double LeastDetail(const Field& field) {
  double least = 255;
  for (int y = 0; y < field.height; y += kDetailSide / 2) {
    for (int x = 0; x < field.width; x += kDetailSide / 2) {
      double steps = 0;
      for (int j = y; j < y + kDetailSide; ++j) {
        const double* row = field.At(x, j);
        for (int i = 0; i < 3 * kDetailSide; ++i) steps += std::abs(row[i + 3] - row[i]);
      }
      least = std::min(least, steps / (3 * kDetailSide * kDetailSide));
    }
  }
  return least;
}

// The mean colours of the squares of one size at all places of the tile.
class Squares {
 public:
  Squares(const Field& field, int side) : width_(field.width), height_(field.height) {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        for (int c = 0; c < 3; ++c) means_.push_back(Mean(field, x, y, side, c));
      }
    }
  }
  // The root of the mean square difference between a column of squares and another one; places
  // beyond the tile's width count from its left edge again.
  double Difference(int left, int right) const {
    double squares = 0;
    for (int y = 0; y < height_; ++y) {
      for (int c = 0; c < 3; ++c) {
        const double step = At(left % width_, y, c) - At(right % width_, y, c);
        squares += step * step;
      }
    }
    return std::sqrt(squares / (3 * height_));
  }

 private:
  static double Mean(const Field& field, int x, int y, int side, int channel) {
    double sum = 0;
    for (int j = 0; j < side; ++j) {
      for (int i = 0; i < side; ++i) {
        sum += field.At((x + i) % field.width, (y + j) % field.height)[channel];
      }
    }
    return sum / (side * side);
  }
  double At(int x, int y, int channel) const {
    return means_[3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                       static_cast<std::size_t>(x)) +
                  static_cast<std::size_t>(channel)];
  }

  int width_;
  int height_;
  std::vector<double> means_;
};

double Seam(const Field& field) {
  double most = 0;
  for (const int side : {4, 8, 16}) {
    const Squares squares(field, side);
    double seams = 0;
    double neighbours = 0;
    for (int x = 0; x < field.width; ++x) {
      neighbours += squares.Difference(x, x + side);
      seams += squares.Difference(x + kDefaultGap - side, x);
    }
    if (neighbours > 0) most = std::max(most, seams / neighbours);
  }
  return most;
}

}  // namespace

TileQuality MeasureTile(const IndexedImage& tile) {
  const Field field(tile);
  return {Repeat(field), LocalRepeat(field), LeastDetail(field), Seam(field)};
}

}  // namespace plenovia
