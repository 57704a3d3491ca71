#include "platform/profile_file.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <system_error>

#include "platform/ascii.h"
#include "platform/file_io.h"
#include "platform/leading_number.h"

namespace plenovia {

namespace {

constexpr std::size_t kMostBytes = std::size_t{1} << 20;
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kSpace = " \t\v\f\r";
  const auto begin = text.find_first_not_of(kSpace);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kSpace) - begin + 1);
}

std::optional<std::string_view> SectionOf(std::string_view line) {
  if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
  line = Trimmed(line);
  const auto end = line.find(']');
  if (!line.starts_with('[') || end == std::string_view::npos) return std::nullopt;
  return Trimmed(line.substr(1, end - 1));
}

std::optional<std::string_view> KeyOf(std::string_view line) {
  line = Trimmed(line);
  const auto equals = line.find('=');
  if (equals == std::string_view::npos || line.starts_with(';') || line.starts_with('#')) {
    return std::nullopt;
  }
  return Trimmed(line.substr(0, equals));
}

std::string_view LineEnd(std::string_view line) {
  return line.ends_with('\r') ? "\r" : "";
}

}  // namespace

ProfileFile ProfileFile::Parse(std::string_view text) {
  ProfileFile profile;
  if (text.empty()) return profile;
  for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    profile.lines_.emplace_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  profile.lines_.emplace_back(text);
  return profile;
}

std::string ProfileFile::Text() const {
  std::string text;
  for (const std::string& line : lines_) {
    if (&line != &lines_.front()) text += '\n';
    text += line;
  }
  return text;
}

Result<ProfileFile> ProfileFile::Load(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return ProfileFile();
  const auto bytes = ReadFile(path, kMostBytes);
  if (!bytes) return tl::unexpected(bytes.error());
  return Parse({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
}

Result<void> ProfileFile::Save(const std::filesystem::path& path) const {
  const std::string text = Text();
  return WriteFile(path,
                   std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

ProfileFile::Place ProfileFile::Find(std::string_view section, std::string_view key) const {
  Place place;
  bool inside = false;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (const auto name = SectionOf(lines_[i])) {
      inside = SameLetters(*name, section);
    } else if (const auto found = KeyOf(lines_[i]); inside && found && SameLetters(*found, key)) {
      place.line = i;
      return place;
    }
    if (inside && !Trimmed(lines_[i]).empty()) place.end = i + 1;
  }
  return place;
}

std::int32_t ProfileFile::GetInt(std::string_view section, std::string_view key,
                                 std::int32_t missing) const {
  const Place place = Find(section, key);
  return place.line ? LeadingNumber(GetText(section, key, {})) : missing;
}

std::string ProfileFile::GetText(std::string_view section, std::string_view key,
                                 std::string_view missing) const {
  const Place place = Find(section, key);
  if (!place.line) return std::string(missing);
  const std::string_view line = lines_[*place.line];
  return std::string(Trimmed(line.substr(line.find('=') + 1)));
}

void ProfileFile::SetInt(std::string_view section, std::string_view key, std::int32_t value) {
  SetText(section, key, std::to_string(value));
}

void ProfileFile::SetText(std::string_view section, std::string_view key, std::string_view value) {
  value = value.substr(0, value.find_first_of("\r\n"));
  Place place = Find(section, key);
  if (place.line) {
    std::string& line = lines_[*place.line];
    line = line.substr(0, line.find('=') + 1).append(value).append(LineEnd(line));
    return;
  }
  const std::string ending(lines_.empty() ? "" : LineEnd(lines_.front()));
  if (!place.end) {
    if (lines_.empty()) lines_.emplace_back();
    if (lines_.back().empty()) lines_.pop_back();
    if (!lines_.empty() && !Trimmed(lines_.back()).empty()) lines_.push_back(ending);
    lines_.push_back("[" + std::string(section) + "]" + ending);
    place.end = lines_.size();
    lines_.emplace_back();
  }
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(*place.end),
                std::string(key).append("=").append(value).append(ending));
}

}  // namespace plenovia
