// A private settings file of sections, keys and text values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace plenovia {

// The lines of one such file. Names of sections and keys compare without regard to case; of a key
// that stands twice the first counts. What is not set stays as it is, byte for byte, when the
// file is written.
class ProfileFile {
 public:
  ProfileFile() = default;  // empty

  // The contents of a file, and what is to be put into it. Lines that are not of the form [section]
  // or key=value are kept and otherwise ignored.
  static ProfileFile Parse(std::string_view text);
  std::string Text() const;
  // Reads a file of at most 1 MiB. A missing file gives an empty profile; a file that is there but
  // cannot be read is an error.
  [[nodiscard]] static Result<ProfileFile> Load(const std::filesystem::path& path);
  [[nodiscard]] Result<void> Save(const std::filesystem::path& path) const;

  // The leading decimal number of the value, with its sign, clamped to 32 bits; 0 for a value that
  // does not start with a number; `missing` when there is no such key.
  std::int32_t GetInt(std::string_view section, std::string_view key, std::int32_t missing) const;
  // Without the space around it.
  std::string GetText(std::string_view section, std::string_view key,
                      std::string_view missing) const;
  void SetInt(std::string_view section, std::string_view key, std::int32_t value);
  // `value` counts up to its first line break.
  void SetText(std::string_view section, std::string_view key, std::string_view value);

 private:
  struct Place {
    std::optional<std::size_t> line;  // of the key
    std::optional<std::size_t> end;   // of its section: one behind the last line that is not blank
  };
  Place Find(std::string_view section, std::string_view key) const;

  std::vector<std::string> lines_;  // without "\n"; none for an empty file
};

}  // namespace plenovia
