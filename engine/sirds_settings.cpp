#include "engine/sirds_settings.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/scan_method.h"
#include "platform/leading_number.h"

namespace plenovia {

namespace {

constexpr std::int32_t kMostPixels = 32767;
constexpr std::array<SettingKey, 14> kKeys = {{
    {"dx", &TSirdsSettings::dx, -kMostPixels, kMostPixels},
    {"dy", &TSirdsSettings::dy, -kMostPixels, kMostPixels},
    {"da", &TSirdsSettings::da, -180, 180},
    {"zmin", &TSirdsSettings::zmin},
    {"zmax", &TSirdsSettings::zmax},
    {"w", &TSirdsSettings::w, 1, kMostPixels},
    {"h", &TSirdsSettings::h, 1, kMostPixels},
    {"gapValue", &TSirdsSettings::gapValue, 2, 4096},
    {"Marker", &TSirdsSettings::marker, 0, 1},
    {"BigMarker", &TSirdsSettings::bigMarker, 0, 1},
    {"UseBMP", &TSirdsSettings::useBmp, 0, 1},
    {"DepthSel", &TSirdsSettings::depthSel, kDepthByColor, kDepthByBrightness},
    {"ShiftDir", &TSirdsSettings::scanMethod},
    {"FitRange", &TSirdsSettings::fitRange, 0, 1},
}};
constexpr char kSection[] = "DEMO";

struct TypedNumber {
  std::string SirdsSettingsEntry::*text;
  std::int32_t TSirdsSettings::*field;
};
constexpr std::array<TypedNumber, 8> kTypedNumbers = {{
    {&SirdsSettingsEntry::w, &TSirdsSettings::w},
    {&SirdsSettingsEntry::h, &TSirdsSettings::h},
    {&SirdsSettingsEntry::gapValue, &TSirdsSettings::gapValue},
    {&SirdsSettingsEntry::dx, &TSirdsSettings::dx},
    {&SirdsSettingsEntry::dy, &TSirdsSettings::dy},
    {&SirdsSettingsEntry::da, &TSirdsSettings::da},
    {&SirdsSettingsEntry::zmin, &TSirdsSettings::zmin},
    {&SirdsSettingsEntry::zmax, &TSirdsSettings::zmax},
}};

constexpr std::size_t kMostTyped = 19;
std::int32_t Typed(std::string_view text) {
  return LeadingNumber(text.substr(0, kMostTyped));
}

std::int32_t ZeroBeyond(std::int32_t value, std::int32_t limit) {
  return value < -limit || value > limit ? 0 : value;
}

}  // namespace

std::span<const SettingKey> SettingKeys() {
  return kKeys;
}

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
  if (!IsScanMethod(settings.scanMethod)) settings.scanMethod = defaults.scanMethod;
  settings.marker = settings.marker != 0 ? 1 : 0;
  settings.bigMarker = settings.bigMarker != 0 ? 1 : 0;
  settings.useBmp = settings.useBmp != 0 ? 1 : 0;
  settings.fitRange = settings.fitRange != 0 ? 1 : 0;
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
  settings.bigMarker = entry.bigMarkers ? 1 : 0;
  settings.useBmp = entry.useOpenBitmap ? 1 : 0;
  settings.fitRange = entry.fitRange ? 1 : 0;
  for (const TypedNumber& number : kTypedNumbers) {
    settings.*number.field = Typed(entry.*number.text);
  }
  return Settle(settings);
}

bool SaysNumber(std::string_view text, std::int32_t value) {
  const auto dropWhile = [&text](std::string_view characters) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
  };
  dropWhile(" ");
  text = text.substr(0, text.find_last_not_of(' ') + 1);
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty()) return false;
  dropWhile("0");
  const std::string digits = text.empty() ? "0" : std::string(text);
  return (isNegative && digits != "0" ? "-" : "") + digits == std::to_string(value);
}

std::vector<Replacement> Replacements(const SirdsSettingsEntry& entry) {
  const TSirdsSettings record = Normalise(entry);
  std::vector<Replacement> replaced;
  for (const TypedNumber& number : kTypedNumbers) {
    const std::int32_t value = record.*number.field;
    if (!SaysNumber(entry.*number.text, value)) replaced.push_back({number.text, value});
  }
  return replaced;
}

TSirdsSettings LoadSirdsSettings(const ProfileFile& profile) {
  TSirdsSettings settings;
  for (const SettingKey& key : kKeys) {
    settings.*key.field = profile.GetInt(kSection, key.name, settings.*key.field);
  }
  return Settle(settings);
}

void StoreSirdsSettings(const TSirdsSettings& settings, ProfileFile& profile) {
  for (const SettingKey& key : kKeys) profile.SetInt(kSection, key.name, settings.*key.field);
}

}  // namespace plenovia
