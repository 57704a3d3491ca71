#include "engine/scan_method.h"

#include <array>
#include <cstddef>

namespace plenovia {

namespace {

constexpr std::array kMethods = {&kLeftToRightMethod, &kMcMahonMethod, &kFeuchtMethod,
                                 &kSmoothMethod};

class NoShift : public PreparedShift {
 public:
  void ShiftBytes(ShiftBuffers&) const override {}
  void Shift(ShiftBuffers&) const override {}
};

constexpr ScanMethod kNoMethod = {
    .name = "",
    .title = "",
    .choice = "",
    .widensByGap = false,
    .tilesFromMiddle = true,
    .anchor = RevealAnchor::kRight,
    .separation = [](std::int64_t, const ScanSetup&) { return std::int64_t{0}; },
    .level = [](double, const ScanSetup&) { return 0.0; },
    .shows = [](LevelRange, const ScanSetup&) { return true; },
    .fit = [](LevelRange levels, const ScanSetup&) { return levels; },
    .prepare = [](const ScanSetup&) -> std::unique_ptr<const PreparedShift> {
      return std::make_unique<NoShift>();
    },
};

}  // namespace

std::span<const ScanMethod* const> ScanMethods() {
  return kMethods;
}

bool IsScanMethod(std::int32_t number) {
  return number >= 1 && static_cast<std::size_t>(number) <= kMethods.size();
}

const ScanMethod& ScanMethodOf(std::int32_t number) {
  return IsScanMethod(number) ? *kMethods[static_cast<std::size_t>(number) - 1] : kNoMethod;
}

}  // namespace plenovia
