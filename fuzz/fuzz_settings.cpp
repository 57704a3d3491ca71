// The settings file: any text gives a record that is in order, and writing the record back leaves
// every line that is not the record's as it is.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "engine/sirds_settings.h"
#include "platform/profile_file.h"

namespace plenovia {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  lines.push_back(text);
  return lines;
}

// Lines may have come in between, and values may have changed.
void RequireKept(std::string_view before, std::string_view after) {
  const auto lines = Lines(after);
  auto line = lines.begin();
  for (const std::string_view kept : Lines(before)) {
    const std::string_view name = kept.substr(0, kept.find('=') + 1);
    const auto isKept = [&] { return *line == kept || (!name.empty() && line->starts_with(name)); };
    while (line != lines.end() && !isKept()) ++line;
    if (kept.empty() && line == lines.end()) return;  // what follows the last line break
    Require(line != lines.end());
    ++line;
  }
}

void Try(std::string_view text) {
  ProfileFile profile = ProfileFile::Parse(text);
  Require(profile.Text() == text);
  const TSirdsSettings settings = LoadSirdsSettings(profile);
  Require(Settle(settings) == settings);

  StoreSirdsSettings(settings, profile);
  profile.SetText("wizard", "source_name", text);
  const std::string written = profile.Text();
  RequireKept(text, written);

  ProfileFile again = ProfileFile::Parse(written);
  Require(LoadSirdsSettings(again) == settings);
  Require(again.GetText("wizard", "source_name", "?") ==
          profile.GetText("wizard", "source_name", "?"));
  StoreSirdsSettings(settings, again);
  Require(again.Text() == written);
}

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::Try({reinterpret_cast<const char*>(data), size});
  return 0;
}
