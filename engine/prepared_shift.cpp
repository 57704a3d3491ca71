#include "engine/prepared_shift.h"

#include <algorithm>

namespace plenovia {

PreparedShift::PreparedShift(int width, std::int32_t gap, SourceKind kind,
                             const TSirdsSettings& settings)
    : width_(width), gap_(gap), kind_(kind), settings_(settings) {}

ShiftBuffers PreparedShift::MakeRow() const {
  ShiftBuffers row;
  row.width_ = static_cast<std::size_t>(std::max(0, width_));
  row.pixels_.resize(row.width_ + 2 * ShiftBuffers::kSlack);
  row.bytes_.resize(row.width_ + 2 * ShiftBuffers::kSlack);
  row.levels_.resize(row.width_);
  return row;
}

void PreparedShift::ShiftBytes(ShiftBuffers& row) const {
  const auto bytes = row.byteLevels();
  std::copy(bytes.begin(), bytes.end(), row.levels_.begin());
  Shift(row);
}

void PreparedShift::Shift(ShiftBuffers& row) const {
  ShiftRow(row.pixels(), row.levels(), gap_, kind_, settings_);
}

}  // namespace plenovia
