// The recipe of a stereogram: what made it, as a picture file carries it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/sirds_settings.h"
#include "platform/indexed_image.h"
#include "platform/result.h"

namespace plenovia {

enum class RecipeKind { kPicture, kDepthMap, kFigure, kFormula, kText };

// Names are those of files, without their folders, and of at most kLongestRecipeName bytes; empty
// when there is none.
struct RecipeSource {
  RecipeKind kind = RecipeKind::kPicture;
  std::string name{};        // of a figure: its title; of a formula or a text: all of it
  std::string background{};  // the picture that a figure was drawn into
  std::int32_t zoom = 100;   // of a picture, in per cent: 1 to 1000
  std::string shape{};       // options of `sirds` that shape such a source, beside the settings

  bool operator==(const RecipeSource&) const = default;
};

struct Recipe {
  RecipeSource source;
  std::string pattern{};            // the name of its file
  std::uint64_t patternDigest = 0;  // PictureDigest() of it
  TSirdsSettings settings{};        // with the depth range that was used, fitted or not
  std::string program{};            // the version that made the stereogram

  bool operator==(const Recipe&) const = default;
};

inline constexpr std::size_t kLongestRecipeName = 255;
inline constexpr std::size_t kLongestRecipeText = 1000;  // of a formula, and of the options
inline constexpr std::size_t kLongestRecipe = 8192;      // bytes of its text

// The recipe of a run of this program.
Recipe MakeRecipe(RecipeSource source, std::string pattern, const IndexedImage& tile,
                  const TSirdsSettings& settings);

// The text: a line with the version of the form, a line "key: value" for each part, a last line
// that says so. It is plain ASCII; other bytes of names, and "%", are written as "%" and two
// hexadecimal digits. Of a name that is a path only what follows the last slash is written, and a
// name that is too long is left out.
std::string RecipeText(const Recipe& recipe);

// Reads such a text. A parameter that the text does not have is at its default. Everything else
// must be in order: kUnsupported for a form of another version, kTooLarge for a text beyond
// kLongestRecipe, kCorrupt for a line that is unknown, stands twice, is missing or has a value
// that no stereogram is made with. Names come back without folders, so they are safe to look for
// in a folder.
[[nodiscard]] Result<Recipe> ReadRecipe(std::string_view text);

}  // namespace plenovia
