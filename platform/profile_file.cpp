#include "platform/profile_file.h"

#define SI_NO_CONVERSION  // texts stay as they are, in UTF-8
#include <SimpleIni.h>

#include <cstddef>
#include <string>
#include <system_error>

#include "platform/file_io.h"
#include "platform/leading_number.h"

namespace plenovia {

namespace {
constexpr std::size_t kMostBytes = std::size_t{1} << 20;
}  // namespace

struct ProfileFile::Contents {
  CSimpleIniA ini{true, true};  // UTF-8; a key that stands twice stays twice
};

ProfileFile::ProfileFile() : contents_(std::make_unique<Contents>()) {
  contents_->ini.SetSpaces(false);
}
ProfileFile::ProfileFile(ProfileFile&&) noexcept = default;
ProfileFile& ProfileFile::operator=(ProfileFile&&) noexcept = default;
ProfileFile::~ProfileFile() = default;

Result<ProfileFile> ProfileFile::Load(const std::filesystem::path& path) {
  ProfileFile profile;
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return profile;
  const auto bytes = ReadFile(path, kMostBytes);
  if (!bytes) return tl::unexpected(bytes.error());
  const SI_Error status =
      profile.contents_->ini.LoadData(reinterpret_cast<const char*>(bytes->data()), bytes->size());
  if (status < 0) return Failure(ErrorCode::kCorrupt, "the settings file cannot be understood");
  return profile;
}

Result<void> ProfileFile::Save(const std::filesystem::path& path) const {
  std::string text;
  if (contents_->ini.Save(text) < 0) {
    return Failure(ErrorCode::kTooLarge, "there is not enough memory to write the settings");
  }
  return WriteFile(path,
                   std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

std::int32_t ProfileFile::GetInt(const std::string& section, const std::string& key,
                                 std::int32_t missing) const {
  const char* value = contents_->ini.GetValue(section.c_str(), key.c_str(), nullptr);
  return value == nullptr ? missing : LeadingNumber(value);
}

std::string ProfileFile::GetText(const std::string& section, const std::string& key,
                                 const std::string& missing) const {
  return contents_->ini.GetValue(section.c_str(), key.c_str(), missing.c_str());
}

void ProfileFile::SetInt(const std::string& section, const std::string& key, std::int32_t value) {
  SetText(section, key, std::to_string(value));
}

void ProfileFile::SetText(const std::string& section, const std::string& key,
                          const std::string& value) {
  contents_->ini.SetValue(section.c_str(), key.c_str(), value.c_str(), nullptr, true);
}

}  // namespace plenovia
