// The one record of parameters that every stereogram is made from.
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/profile_file.h"

namespace plenovia {

// The numbers of the scan methods that the code names; scan_method.h has them all.
enum ScanMethodNumber : std::int32_t { kLeftToRight = 1, kMcMahon = 2, kFeucht = 3, kSmooth = 4 };
enum DepthSelection : std::int32_t { kDepthByColor = 1, kDepthByBrightness = 2 };

// Sizes and displacements are pixels of the stereogram, depths are levels (0 is the far plane).
struct TSirdsSettings {
  std::int32_t dx = 0;          // a figure moves right by it, -200..200
  std::int32_t dy = 0;          // a figure moves up by it, -200..200
  std::int32_t da = 0;          // a figure turns by it, degrees, -180..180
  std::int32_t zmax = 63;       // upper end of the depth range, at least zmin
  std::int32_t zmin = 0;        // lower end; both only scale levels, they do not clamp them
  std::int32_t w = 400;         // a figure stereogram's width, 2 * gapValue..1200
  std::int32_t h = 400;         // and height, 1..1200
  std::int32_t gapValue = 100;  // distance at which the background repeats at depth 0, 51..150
  std::int32_t depthSel = kDepthByColor;
  std::int32_t marker = 1;  // 1: two marker squares are drawn
  std::int32_t useBmp = 0;  // 1: a figure is drawn over the open picture
  std::int32_t scanMethod = kMcMahon;
  std::int32_t bigMarker = 0;  // 1: the markers are large and contrast with the pattern
  // 1: a window fits the depth range of a run to the source where that needs it
  std::int32_t fitRange = 1;

  bool operator==(const TSirdsSettings&) const = default;
};

// A field with its name in files, and the widest range that any part of the program takes.
struct SettingKey {
  const char* name;
  std::int32_t TSirdsSettings::*field;
  std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
  std::int32_t highest = std::numeric_limits<std::int32_t>::max();
};
// Every field, in the order in which files have them.
std::span<const SettingKey> SettingKeys();

// The defaults in every field but `useBmp`.
void RestoreDefaults(TSirdsSettings& settings);

// What the settings dialog holds when it is closed: texts as typed, of which the first 19
// characters count, and the states of its boxes.
struct SirdsSettingsEntry {
  std::string dx, dy, da, zmin, zmax, gapValue, w, h;
  bool depthByColor = true;
  int scanPosition = 0;  // position in the list of scan methods, from 0
  bool addMarkers = true;
  bool bigMarkers = false;
  bool useOpenBitmap = false;
  bool fitRange = true;
};

// The record that an entry stands for. Nothing is refused: a number out of its range is replaced,
// and zmin and zmax change places when they are the wrong way round.
TSirdsSettings Normalise(const SirdsSettingsEntry& entry);

// Whether the text is the decimal number `value` and nothing else; blanks around it, a plus sign
// and leading zeros do not count.
bool SaysNumber(std::string_view text, std::int32_t value);

// A text of an entry that the record does not take as it was typed.
struct Replacement {
  std::string SirdsSettingsEntry::*typed;
  std::int32_t becomes;
  bool operator==(const Replacement&) const = default;
};

// What Normalise makes of an entry's numbers that it does not take, in the order in which the
// settings dialog shows them: w, h, gapValue, dx, dy, da, zmin, zmax.
std::vector<Replacement> Replacements(const SirdsSettingsEntry& entry);

// The same rules on a record of any numbers, such as one from a settings file that was edited by
// hand. A scan method or depth selection that does not exist becomes the default one.
TSirdsSettings Settle(TSirdsSettings settings);

// Section "DEMO" of the settings file. What is missing there is the default; the record loaded is
// settled.
TSirdsSettings LoadSirdsSettings(const ProfileFile& profile);
void StoreSirdsSettings(const TSirdsSettings& settings, ProfileFile& profile);

}  // namespace plenovia
