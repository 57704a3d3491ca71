// The passes of the scan methods, each as a rule for one column and as a shortcut for a run of
// columns that have the same level.
#pragma once

#include <algorithm>
#include <cstdint>

#include "engine/block_copy.h"

namespace plenovia {

// Each pass holds what its method remembers from column to column. Step() is the plain rule for
// column x, given the distance or separation that its level stands for; Run() does what Step()
// does for all columns begin..end-1, in the pass's own direction. Pixels may be read and rewritten
// unchanged up to 15 bytes beyond either end of the row.

struct LeftToRightPass {
  std::uint8_t* row;
  int width;

  void Step(int x, int distance) {
    const int source = x + distance;
    if (source >= 0 && source < width) row[x] = row[source];
  }

  void Run(int begin, int end, int distance) {
    if (begin + distance >= 0 && end + distance <= width && AscendingInBlocks(-distance)) {
      CopyAscending(row + begin, row + begin + distance, end - begin);
    } else {
      for (int x = begin; x < end; ++x) Step(x, distance);
    }
  }
};

// From the middle to the left.
struct McMahonLeftPass {
  std::uint8_t* row;
  int limit;
  int last = 0;

  McMahonLeftPass(std::uint8_t* pixels, int width) : row(pixels), limit(width) {}

  bool Step(int x, int distance) {
    const int target = x + distance;
    if (target < 0 || target >= limit) return false;
    row[target] = row[x];
    limit = target;
    for (int i = target + 1; i < last; ++i) row[i] = row[target];
    last = target;
    return true;
  }

  void Run(int begin, int end, int distance) {
    int x = end - 1;
    while (x >= begin && !Step(x, distance)) --x;
    // From here on each target is the left neighbour of the one before it.
    const int stop = std::max(begin, -distance);
    if (x <= stop) return;
    if (DescendingInBlocks(distance)) {
      CopyDescending(row + x + distance, row + x, x - stop);
    } else {
      for (int i = x - 1; i >= stop; --i) row[i + distance] = row[i];
    }
    limit = last = stop + distance;
  }
};

// From the middle to the right.
struct McMahonRightPass {
  std::uint8_t* row;
  int width;
  int previous = 0;

  bool Step(int x, int distance) {
    const int source = x + distance;
    if (source < 0) return false;
    if (source <= previous || source >= width) {
      row[x] = row[x - 1];
      return false;
    }
    row[x] = row[source];
    previous = source;
    return true;
  }

  void Run(int begin, int end, int distance) {
    int x = begin;
    while (x < end && !Step(x, distance)) ++x;
    if (++x >= end) return;
    if (AscendingInBlocks(-distance) && end + distance <= width) {
      CopyAscending(row + x, row + x + distance, end - x);
      previous = end - 1 + distance;
    } else {
      for (; x < end; ++x) Step(x, distance);
    }
  }
};

// From the middle to the left.
struct FeuchtLeftPass {
  std::uint8_t* row;
  int limit;
  int last = 0;

  FeuchtLeftPass(std::uint8_t* pixels, int width) : row(pixels), limit(width) {}

  bool Step(int x, int separation) {
    const int left = x - (separation >> 1);
    const int right = left + separation;
    if (left < 0 || right < 0 || right >= limit) return false;
    row[left] = row[right];
    limit = right;
    for (int i = left + 1; i < last; ++i) row[i] = row[right];
    last = left;
    return true;
  }

  void Run(int begin, int end, int separation) {
    int x = end - 1;
    while (x >= begin && !Step(x, separation)) --x;
    const int half = separation >> 1;
    const int stop = std::max({begin, half, half - separation});
    if (x <= stop) return;
    std::uint8_t* const left = row + x - half;
    if (DescendingInBlocks(-separation)) {
      CopyDescending(left, left + separation, x - stop);
    } else {
      for (int i = 1; i <= x - stop; ++i) left[-i] = left[separation - i];
    }
    last = stop - half;
    limit = last + separation;
  }
};

// From the middle to the right.
struct FeuchtRightPass {
  std::uint8_t* row;
  int width;
  int previous = 0;
  int fill;

  FeuchtRightPass(std::uint8_t* pixels, int columns) : row(pixels), width(columns), fill(columns) {}

  bool Step(int x, int separation) {
    const int left = x - (separation >> 1);
    const int right = left + separation;
    if (left <= previous || left >= width || right < 0 || right >= width) return false;
    row[right] = row[left];
    previous = left;
    for (int i = fill + 1; i < right; ++i) row[i] = row[left];
    fill = right;
    return true;
  }

  void Run(int begin, int end, int separation) {
    int x = begin;
    while (x < end && !Step(x, separation)) ++x;
    ++x;
    const int half = separation >> 1;
    const int stop = std::min({end, width + half, width + half - separation});
    if (x >= stop) return;
    std::uint8_t* const left = row + x - half;
    if (AscendingInBlocks(separation)) {
      CopyAscending(left + separation, left, stop - x);
    } else {
      for (int i = 0; i < stop - x; ++i) left[i + separation] = left[i];
    }
    previous = stop - 1 - half;
    fill = previous + separation;
  }
};

}  // namespace plenovia
