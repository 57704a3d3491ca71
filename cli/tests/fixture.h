// What the tests of the whole program start from.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "cli/tests/process.h"
#include "engine/quiet_monitor.h"
#include "platform/indexed_image.h"
#include "testing/temp_folder.h"

namespace plenovia {

// A folder with a depth picture, a depth map and a pattern in it.
class SirdsTest : public testing::Test {
 protected:
  SirdsTest();

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  void Write(const std::string& name, std::string_view bytes) const;
  std::string Contents(const std::string& name) const;
  // The picture in a file, which the test must find readable.
  static IndexedImage Read(const std::string& file);

  TempFolder folder_;
  IndexedImage picture_;  // of levels 0..63 at indexes that are not their brightness
  IndexedImage pattern_;
  std::string scene_ = Path("scene.bmp");
  std::string map_ = Path("map.rds");
  std::string tile_ = Path("tile.gif");
  std::string out_ = Path("out.png");
};

}  // namespace plenovia
