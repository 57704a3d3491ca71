#include "sources/font_file.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <span>

#include "platform/ascii.h"

namespace plenovia {

namespace {

template <auto kDestroy>
struct Destroy {
  template <class T>
  void operator()(T* object) const {
    kDestroy(object);
  }
};
using Config = std::unique_ptr<FcConfig, Destroy<FcConfigDestroy>>;
using Pattern = std::unique_ptr<FcPattern, Destroy<FcPatternDestroy>>;
using FontSet = std::unique_ptr<FcFontSet, Destroy<FcFontSetDestroy>>;
using Properties = std::unique_ptr<FcObjectSet, Destroy<FcObjectSetDestroy>>;

// A property of a font; empty when it has no n-th value.
std::string TextOf(const FcPattern& font, const char* property, int n = 0) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(&font, property, n, &text) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(text);
}

bool IsCalled(const FcPattern& font, const std::string& name) {
  for (const char* property : {FC_FULLNAME, FC_FAMILY}) {
    for (int n = 0;; ++n) {
      const std::string text = TextOf(font, property, n);
      if (text.empty()) break;
      if (SameLetters(text, name)) return true;
    }
  }
  return SameLetters(TextOf(font, FC_FAMILY) + " " + TextOf(font, FC_STYLE), name);
}

FontFile FileOf(const FcPattern& font) {
  FontFile file{.path = TextOf(font, FC_FILE)};
  FcPatternGetInteger(&font, FC_INDEX, 0, &file.face);
  file.face &= 0xffff;  // above are instances of variable fonts
  return file;
}

}  // namespace

Result<FontFile> FindFont(const std::string& name) {
  const Config config(FcInitLoadConfigAndFonts());
  const Pattern all(FcPatternCreate());
  const Properties wanted(FcObjectSetBuild(FC_FULLNAME, FC_FAMILY, FC_STYLE, FC_FILE, FC_INDEX,
                                           static_cast<char*>(nullptr)));
  const FontSet fonts(FcFontList(config.get(), all.get(), wanted.get()));
  if (fonts) {
    for (const FcPattern* font : std::span(fonts->fonts, static_cast<std::size_t>(fonts->nfont))) {
      if (IsCalled(*font, name)) return FileOf(*font);
    }
  }
  return Failure(ErrorCode::kIo, "There is no font called \"" + name + "\".");
}

Result<FontFile> StandardFont() {
  const Config config(FcInitLoadConfigAndFonts());
  const Pattern wanted(FcNameParse(reinterpret_cast<const FcChar8*>("sans:bold")));
  FcConfigSubstitute(config.get(), wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult outcome = FcResultNoMatch;
  const Pattern font(FcFontMatch(config.get(), wanted.get(), &outcome));
  if (!font) return Failure(ErrorCode::kIo, "There are no fonts.");
  return FileOf(*font);
}

}  // namespace plenovia
