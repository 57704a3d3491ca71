#include "engine/sirds_settings.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/leading_number.h"

namespace plenovia {

namespace {

struct Key {
  const char* name;
  std::int32_t TSirdsSettings::*field;
};

// In the order in which they are written.
constexpr std::array<Key, 12> kKeys = {{
    {"dx", &TSirdsSettings::dx},
    {"dy", &TSirdsSettings::dy},
    {"da", &TSirdsSettings::da},
    {"zmin", &TSirdsSettings::zmin},
    {"zmax", &TSirdsSettings::zmax},
    {"w", &TSirdsSettings::w},
    {"h", &TSirdsSettings::h},
    {"gapValue", &TSirdsSettings::gapValue},
    {"Marker", &TSirdsSettings::marker},
    {"UseBMP", &TSirdsSettings::useBmp},
    {"DepthSel", &TSirdsSettings::depthSel},
    {"ShiftDir", &TSirdsSettings::scanMethod},
}};
constexpr char kSection[] = "DEMO";

constexpr std::size_t kMostTyped = 19;
std::int32_t Typed(std::string_view text) {
  return LeadingNumber(text.substr(0, kMostTyped));
}

std::int32_t ZeroBeyond(std::int32_t value, std::int32_t limit) {
  return value < -limit || value > limit ? 0 : value;
}

}  // namespace

void RestoreDefaults(TSirdsSettings& settings) {
  const std::int32_t useBmp = settings.useBmp;
  settings = TSirdsSettings{};
  settings.useBmp = useBmp;
}

TSirdsSettings Settle(TSirdsSettings settings) {
  const TSirdsSettings defaults;
  if (settings.depthSel != kDepthByColor && settings.depthSel != kDepthByBrightness) {
    settings.depthSel = defaults.depthSel;
  }
  if (settings.scanMethod < kLeftToRight || settings.scanMethod > kFeucht) {
    settings.scanMethod = defaults.scanMethod;
  }
  settings.marker = settings.marker != 0 ? 1 : 0;
  settings.useBmp = settings.useBmp != 0 ? 1 : 0;
  settings.dx = ZeroBeyond(settings.dx, 200);
  settings.dy = ZeroBeyond(settings.dy, 200);
  settings.da = ZeroBeyond(settings.da, 180);
  if (settings.zmin > settings.zmax) std::swap(settings.zmin, settings.zmax);
  if (settings.gapValue <= 50 || settings.gapValue > 150) settings.gapValue = defaults.gapValue;
  if (settings.w <= 2 * settings.gapValue) {
    settings.w = 2 * settings.gapValue;
  } else if (settings.w > 1200) {
    settings.w = defaults.w;
  }
  if (settings.h <= 0 || settings.h > 1200) settings.h = defaults.h;
  return settings;
}

TSirdsSettings Normalise(const SirdsSettingsEntry& entry) {
  TSirdsSettings settings;
  settings.depthSel = entry.depthByColor ? kDepthByColor : kDepthByBrightness;
  settings.scanMethod = entry.scanPosition + 1;
  settings.marker = entry.addMarkers ? 1 : 0;
  settings.useBmp = entry.useOpenBitmap ? 1 : 0;
  settings.dx = Typed(entry.dx);
  settings.dy = Typed(entry.dy);
  settings.da = Typed(entry.da);
  settings.zmin = Typed(entry.zmin);
  settings.zmax = Typed(entry.zmax);
  settings.gapValue = Typed(entry.gapValue);
  settings.w = Typed(entry.w);
  settings.h = Typed(entry.h);
  return Settle(settings);
}

TSirdsSettings LoadSirdsSettings(const ProfileFile& profile) {
  TSirdsSettings settings;
  for (const Key& key : kKeys) {
    settings.*key.field = profile.GetInt(kSection, key.name, settings.*key.field);
  }
  return Settle(settings);
}

void StoreSirdsSettings(const TSirdsSettings& settings, ProfileFile& profile) {
  for (const Key& key : kKeys) profile.SetInt(kSection, key.name, settings.*key.field);
}

}  // namespace plenovia
