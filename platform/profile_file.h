// A private settings file of sections, keys and text values.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/result.h"

namespace plenovia {

// The contents in memory of one such file. Names of sections and keys compare without regard to
// case. Everything in the file that is not asked for stays as it is when the file is written.
class ProfileFile {
 public:
  ProfileFile();  // empty
  ProfileFile(ProfileFile&&) noexcept;
  ProfileFile& operator=(ProfileFile&&) noexcept;
  ~ProfileFile();

  // Reads a file of at most 1 MiB. A missing file gives an empty profile; a file that is there but
  // cannot be read is an error. Text that is not of the form section, key and value is kept or
  // passed over, never an error.
  [[nodiscard]] static Result<ProfileFile> Load(const std::filesystem::path& path);
  [[nodiscard]] Result<void> Save(const std::filesystem::path& path) const;

  // The leading decimal number of the value, with its sign, clamped to 32 bits; 0 for a value that
  // does not start with a number; `missing` when there is no such key.
  std::int32_t GetInt(const std::string& section, const std::string& key,
                      std::int32_t missing) const;
  std::string GetText(const std::string& section, const std::string& key,
                      const std::string& missing) const;
  void SetInt(const std::string& section, const std::string& key, std::int32_t value);
  // `value` is one line.
  void SetText(const std::string& section, const std::string& key, const std::string& value);

 private:
  struct Contents;
  std::unique_ptr<Contents> contents_;
};

}  // namespace plenovia
