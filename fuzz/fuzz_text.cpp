// Texts as depth: whatever bytes they are made of.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "sources/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace plenovia;
  Text text{.lines = std::string(data, data + size)};
  if (size % 2 == 1) text.profile = TextProfile::kRound;
  text.font = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";
  const auto image = DrawText(text, 90, 40);
  if (!image && image.error().message.empty()) std::abort();
  return 0;
}
