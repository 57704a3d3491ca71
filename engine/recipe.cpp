#include "engine/recipe.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "engine/picture_digest.h"
#include "engine/scan_method.h"

namespace plenovia {

namespace {

constexpr std::string_view kForm = "Plenovia recipe ";
constexpr std::string_view kFormVersion = "1";
constexpr std::string_view kEnd = "end";
constexpr std::string_view kBetween = ": ";
constexpr std::array<std::string_view, 5> kKinds = {"picture", "depth map", "figure", "formula",
                                                    "text"};
constexpr std::int32_t kMostZoom = 1000;
constexpr std::size_t kLongestVersion = 32;
constexpr int kDigestDigits = 16;

bool IsPlain(char c) {
  return c >= ' ' && c <= '~' && c != '%';
}

bool IsName(std::string_view name) {
  return name.size() <= kLongestRecipeName && name != "." && name != ".." &&
         name.find('/') == std::string_view::npos && name.find('\0') == std::string_view::npos;
}

bool IsText(std::string_view words) {
  return words.size() <= kLongestRecipeText && words.find('\0') == std::string_view::npos;
}

std::string Hexadecimal(std::uint64_t number, int digits) {
  std::string text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text += "0123456789abcdef"[number >> shift & 15];
  }
  return text;
}

std::string PlainText(std::string_view words) {
  std::string text;
  for (const char c : words) {
    if (IsPlain(c)) {
      text += c;
    } else {
      text += '%' + Hexadecimal(static_cast<unsigned char>(c), 2);
    }
  }
  return text;
}

std::string NameText(std::string_view name) {
  name.remove_prefix(name.rfind('/') + 1);  // npos + 1 is 0
  return IsName(name) ? PlainText(name) : "";
}

std::string WordsText(std::string_view words) {
  return IsText(words) ? PlainText(words) : "";
}

template <class Number>
bool ReadNumber(std::string_view text, int base, Number& number) {
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  return error == std::errc() && stop == text.data() + text.size();
}

bool ReadNumber(std::string_view text, std::int32_t lowest, std::int32_t highest,
                std::int32_t& number) {
  return ReadNumber(text, 10, number) && number >= lowest && number <= highest;
}

// Undoes PlainText().
bool ReadPlainText(std::string_view text, std::string& words) {
  words.clear();
  while (!text.empty()) {
    std::size_t taken = 1;
    char c = text[0];
    if (c == '%') {
      unsigned char byte = 0;
      taken = 3;
      if (text.size() < taken || !ReadNumber(text.substr(1, 2), 16, byte)) return false;
      c = static_cast<char>(byte);
    } else if (!IsPlain(c)) {
      return false;
    }
    words += c;
    text.remove_prefix(taken);
  }
  return true;
}

bool ReadName(std::string_view text, std::string& name) {
  return ReadPlainText(text, name) && IsName(name);
}

bool ReadWords(std::string_view text, std::string& words) {
  return ReadPlainText(text, words) && IsText(words);
}

bool ReadVersion(std::string_view text, std::string& version) {
  version = text;
  return !text.empty() && text.size() <= kLongestVersion && std::ranges::all_of(text, IsPlain);
}

bool ReadKind(std::string_view text, RecipeKind& kind) {
  const auto* found = std::ranges::find(kKinds, text);
  kind = static_cast<RecipeKind>(found - kKinds.begin());
  return found != kKinds.end();
}

bool ReadDigest(std::string_view text, std::uint64_t& digest) {
  return text.size() == kDigestDigits && ReadNumber(text, 16, digest);
}

bool NamesFile(const RecipeSource& source) {
  return source.kind != RecipeKind::kFormula && source.kind != RecipeKind::kText;
}

// Takes the first line off the text; nothing when no line ends in it.
std::optional<std::string_view> TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end + 1);
  return line;
}

// The values of the lines behind the first one.
class Values {
 public:
  // False when the text does not end with its last line, or a line is not "key: value" or has the
  // key of another one.
  bool Read(std::string_view text) {
    for (auto line = TakeLine(text); line; line = TakeLine(text)) {
      if (*line == kEnd) return text.empty();
      const std::size_t between = line->find(kBetween);
      if (between == std::string_view::npos) return false;
      const std::string_view value = line->substr(between + kBetween.size());
      if (!values_.emplace(line->substr(0, between), value).second) return false;
    }
    return false;
  }
  bool Has(std::string_view key) const { return values_.contains(key); }
  bool IsEmpty() const { return values_.empty(); }
  // Whether there is such a value and `read(value, to...)` takes it. It is no longer there then.
  template <class Reader, class... To>
  bool Take(std::string_view key, const Reader& read, To&&... to) {
    const auto found = values_.extract(key);
    return !found.empty() && read(found.mapped(), to...);
  }

 private:
  std::map<std::string_view, std::string_view> values_;
};

bool TakeSettings(Values& values, TSirdsSettings& settings) {
  for (const SettingKey& key : SettingKeys()) {
    const auto read = [&](std::string_view text) {
      return ReadNumber(text, key.lowest, key.highest, settings.*key.field);
    };
    if (values.Has(key.name) && !values.Take(key.name, read)) return false;
  }
  return settings.zmin <= settings.zmax && IsScanMethod(settings.scanMethod);
}

bool TakeAll(Values& values, Recipe& recipe) {
  const auto readZoom = [&](std::string_view text) {
    return ReadNumber(text, 1, kMostZoom, recipe.source.zoom);
  };
  return values.Take("program", ReadVersion, recipe.program) &&
         values.Take("kind", ReadKind, recipe.source.kind) &&
         values.Take("source", NamesFile(recipe.source) ? ReadName : ReadWords,
                     recipe.source.name) &&
         values.Take("shape", ReadWords, recipe.source.shape) &&
         values.Take("background", ReadName, recipe.source.background) &&
         values.Take("zoom", readZoom) && values.Take("pattern", ReadName, recipe.pattern) &&
         values.Take("digest", ReadDigest, recipe.patternDigest) &&
         TakeSettings(values, recipe.settings) && values.IsEmpty();
}

tl::unexpected<Error> Damaged() {
  return Failure(ErrorCode::kCorrupt, "The recipe in the file is damaged.");
}

}  // namespace

Recipe MakeRecipe(RecipeSource source, std::string pattern, const IndexedImage& tile,
                  const TSirdsSettings& settings) {
  return {std::move(source), std::move(pattern), PictureDigest(tile), settings, PLENOVIA_VERSION};
}

std::string RecipeText(const Recipe& recipe) {
  std::string text;
  text.append(kForm).append(kFormVersion).append("\n");
  const auto add = [&text](std::string_view key, std::string_view value) {
    text.append(key).append(kBetween).append(value).append("\n");
  };
  add("program", recipe.program);
  add("kind", kKinds[static_cast<std::size_t>(recipe.source.kind)]);
  add("source", (NamesFile(recipe.source) ? NameText : WordsText)(recipe.source.name));
  add("shape", WordsText(recipe.source.shape));
  add("background", NameText(recipe.source.background));
  add("zoom", std::to_string(recipe.source.zoom));
  add("pattern", NameText(recipe.pattern));
  add("digest", Hexadecimal(recipe.patternDigest, kDigestDigits));
  for (const SettingKey& key : SettingKeys()) {
    add(key.name, std::to_string(recipe.settings.*key.field));
  }
  return text.append(kEnd).append("\n");
}

Result<Recipe> ReadRecipe(std::string_view text) {
  if (text.size() > kLongestRecipe) {
    return Failure(ErrorCode::kTooLarge, "The recipe in the file is too long.");
  }
  const auto form = TakeLine(text);
  if (!form || !form->starts_with(kForm)) return Damaged();
  if (form->substr(kForm.size()) != kFormVersion) {
    return Failure(ErrorCode::kUnsupported,
                   "The recipe in the file is of another version of the program.");
  }
  Values values;
  Recipe recipe;
  if (!values.Read(text) || !TakeAll(values, recipe)) return Damaged();
  return recipe;
}

}  // namespace plenovia
