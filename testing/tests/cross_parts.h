// What the tests that span rooms share.
#pragma once

#include <filesystem>
#include <string>

#include "codec/gif_intf.h"
#include "engine/quiet_monitor.h"
#include "platform/indexed_image.h"

namespace plenovia {

// The tile of this number that ships with the program.
inline IndexedImage Pattern(int number) {
  const std::string digits = std::to_string(number);
  const std::string name = "pat" + std::string(2 - digits.size(), '0') + digits + ".gif";
  return TGifIntf::Read_File(std::filesystem::path(SHIPPED_TILES) / name).value();
}

}  // namespace plenovia
