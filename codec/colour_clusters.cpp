#include "codec/colour_clusters.h"

#include <algorithm>
#include <numeric>

namespace plenovia {

namespace {

constexpr std::size_t kSlices = 64;  // places along an axis where a box may be cut
constexpr int kMostPasses = 12;

// Weight, weighted sum and weighted sum of squares along one axis.
struct Moments {
  double weight = 0;
  double sum = 0;
  double squares = 0;

  void Add(const Moments& other) {
    weight += other.weight;
    sum += other.sum;
    squares += other.squares;
  }
  // The sum of squared distances from the mean.
  double Spread() const { return weight > 0 ? std::max(0.0, squares - sum * sum / weight) : 0; }
};

std::size_t SliceOf(float level) {
  return std::min(kSlices - 1, static_cast<std::size_t>(level) * kSlices / 256);
}

// Some of the colours, and the best way to cut them in two.
struct Box {
  std::span<std::uint32_t> members;
  double gain = 0;  // by how much the cut lowers the spread
  std::size_t axis = 0;
  std::size_t cut = 0;  // slices below it go to one side
};

Box MakeBox(std::span<const WeightedColour> colours, std::span<std::uint32_t> members) {
  std::array<std::array<Moments, kSlices>, 3> slices{};
  for (const std::uint32_t i : members) {
    const auto& [colour, weight] = colours[i];
    for (std::size_t axis = 0; axis < 3; ++axis) {
      const double level = colour[axis];
      slices[axis][SliceOf(colour[axis])].Add({weight, weight * level, weight * level * level});
    }
  }
  Box box{members};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    Moments all;
    for (const Moments& slice : slices[axis]) all.Add(slice);
    // Moving the mean of each side explains this much of the spread along the axis.
    Moments low;
    for (std::size_t cut = 1; cut < kSlices; ++cut) {
      low.Add(slices[axis][cut - 1]);
      const double highWeight = all.weight - low.weight;
      if (low.weight <= 0 || highWeight <= 0) continue;
      const double apart = low.sum / low.weight - (all.sum - low.sum) / highWeight;
      const double gain = low.weight * highWeight / all.weight * apart * apart;
      if (gain > box.gain) {
        box.gain = gain;
        box.axis = axis;
        box.cut = cut;
      }
    }
  }
  return box;
}

// The means of at most `count` boxes.
std::vector<Colour> BoxMeans(std::span<const WeightedColour> colours, std::size_t count) {
  std::vector<std::uint32_t> members(colours.size());
  std::iota(members.begin(), members.end(), 0u);
  std::vector<Box> boxes{MakeBox(colours, members)};
  while (boxes.size() < count) {
    const auto widest = std::max_element(
        boxes.begin(), boxes.end(), [](const Box& a, const Box& b) { return a.gain < b.gain; });
    if (widest->gain <= 0) break;
    const Box box = *widest;
    const auto middle = std::partition(
        box.members.begin(), box.members.end(),
        [&](std::uint32_t i) { return SliceOf(colours[i].colour[box.axis]) < box.cut; });
    *widest = MakeBox(colours, {box.members.begin(), middle});
    boxes.push_back(MakeBox(colours, {middle, box.members.end()}));
  }
  std::vector<Colour> means;
  for (const Box& box : boxes) {
    std::array<double, 3> sum{};
    double weight = 0;
    for (const std::uint32_t i : box.members) {
      weight += colours[i].weight;
      for (std::size_t axis = 0; axis < 3; ++axis) {
        sum[axis] += double{colours[i].weight} * colours[i].colour[axis];
      }
    }
    means.push_back({static_cast<float>(sum[0] / weight), static_cast<float>(sum[1] / weight),
                     static_cast<float>(sum[2] / weight)});
  }
  return means;
}

float SquaredDistance(const Colour& a, const Colour& b) {
  const float red = a[0] - b[0];
  const float green = a[1] - b[1];
  const float blue = a[2] - b[2];
  return red * red + green * green + blue * blue;
}

struct Neighbour {
  float squaredDistance;
  std::uint8_t centre;
};

// For each centre all others, of which the first kSorted are the nearest ones in order.
constexpr std::size_t kSorted = 24;

std::vector<std::vector<Neighbour>> Neighbours(const std::vector<Colour>& centres) {
  std::vector<std::vector<Neighbour>> all(centres.size());
  for (std::size_t i = 0; i < centres.size(); ++i) {
    all[i].reserve(centres.size());
    for (std::size_t j = 0; j < centres.size(); ++j) {
      if (j == i) continue;
      all[i].push_back({SquaredDistance(centres[i], centres[j]), static_cast<std::uint8_t>(j)});
    }
    const auto sorted = all[i].begin() + std::min(std::ssize(all[i]), std::ptrdiff_t{kSorted});
    std::partial_sort(
        all[i].begin(), sorted, all[i].end(), [](const Neighbour& a, const Neighbour& b) {
          return a.squaredDistance != b.squaredDistance ? a.squaredDistance < b.squaredDistance
                                                        : a.centre < b.centre;
        });
  }
  return all;
}

// Moves each colour to its nearest centre; returns how many moved.
std::size_t Assign(std::span<const WeightedColour> colours, ColourClusters& clusters) {
  const auto neighbours = Neighbours(clusters.centres);
  std::size_t moved = 0;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const std::uint8_t old = clusters.members[i];
    const float start = SquaredDistance(colours[i].colour, clusters.centres[old]);
    std::uint8_t best = old;
    float smallest = start;
    for (std::size_t k = 0; k < neighbours[old].size(); ++k) {
      const Neighbour& neighbour = neighbours[old][k];
      if (neighbour.squaredDistance >= 4 * start) {
        if (k < kSorted) break;
        continue;
      }
      const float distance = SquaredDistance(colours[i].colour, clusters.centres[neighbour.centre]);
      if (distance < smallest) {
        smallest = distance;
        best = neighbour.centre;
      }
    }
    if (best != old) ++moved;
    clusters.members[i] = best;
  }
  return moved;
}

// Moves each centre to the mean of its colours.
void Recentre(std::span<const WeightedColour> colours, ColourClusters& clusters) {
  std::vector<std::array<double, 4>> sums(clusters.centres.size());
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const auto& [colour, weight] = colours[i];
    auto& sum = sums[clusters.members[i]];
    for (std::size_t axis = 0; axis < 3; ++axis) sum[axis] += double{weight} * colour[axis];
    sum[3] += weight;
  }
  for (std::size_t c = 0; c < sums.size(); ++c) {
    if (sums[c][3] <= 0) continue;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      clusters.centres[c][axis] = static_cast<float>(sums[c][axis] / sums[c][3]);
    }
  }
}

}  // namespace

ColourClusters FitClusters(std::span<const WeightedColour> colours, std::size_t count) {
  if (colours.empty()) return {};
  ColourClusters clusters{BoxMeans(colours, count), std::vector<std::uint8_t>(colours.size())};
  Assign(colours, clusters);
  for (int pass = 0; pass < kMostPasses; ++pass) {
    Recentre(colours, clusters);
    if (Assign(colours, clusters) * 1000 < colours.size()) break;
  }
  return clusters;
}

}  // namespace plenovia
