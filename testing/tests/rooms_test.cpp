// Every include keeps to the table of rooms: a room uses itself, the rooms below it and no others.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

// The folder that a file belongs to, and what its files may include beside their own room.
const std::map<std::string, std::set<std::string>> kRooms = {
    {"platform", {}},
    {"figures", {}},
    {"codec", {"platform"}},
    {"depthmap", {"platform"}},
    {"images", {"codec", "platform"}},
    {"engine", {"platform"}},
    {"viewing", {"engine", "platform"}},
    {"sources", {"codec", "depthmap", "engine", "platform"}},
    {"cli", {"codec", "depthmap", "engine", "figures", "images", "platform", "sources"}},
    {"sirdspat", {"codec", "platform"}},
    {"samples", {"codec", "depthmap", "platform"}},
    {"bench",
     {"app", "codec", "depthmap", "documents/ui", "engine", "engine/ui", "figures", "images",
      "live/ui", "platform"}},
    {"fuzz", {"cli", "codec", "depthmap", "engine", "platform", "sources"}},
    {"testing", {"codec", "depthmap", "engine", "figures", "images", "platform"}},
    {"platform/ui", {"platform"}},
    {"documents/ui", {"platform", "platform/ui"}},
    {"depthmap/ui", {"depthmap", "documents/ui", "platform", "platform/ui"}},
    {"images/ui", {"codec", "documents/ui", "figures", "images", "platform", "platform/ui"}},
    {"engine/ui",
     {"codec", "documents/ui", "engine", "figures", "images", "images/ui", "platform",
      "platform/ui"}},
    {"live/ui",
     {"documents/ui", "engine", "engine/ui", "figures", "images", "images/ui", "platform",
      "platform/ui", "viewing"}},
    {"sources/ui", {"engine", "platform", "platform/ui", "sources"}},
    {"app",
     {"codec", "depthmap", "depthmap/ui", "documents/ui", "engine", "engine/ui", "figures",
      "images", "images/ui", "live/ui", "platform", "platform/ui", "sources", "sources/ui",
      "viewing"}},
    {"testing/ui", {"testing", "platform"}},
};

// Rooms with windows, the only ones that may know Qt.
bool HasWindows(const std::string& room) {
  return room == "app" || room == "bench" || room.ends_with("/ui");
}

std::string Room(const fs::path& relative) {
  auto part = relative.begin();
  const std::string top = part->string();
  return ++part != relative.end() && *part == "ui" ? top + "/ui" : top;
}

TEST(Rooms, IncludesPointDownwardsOnly) {
  const fs::path root = PLENOVIA_SOURCE_DIR;
  const std::regex include(R"re(^\s*#\s*include\s+([<"])([^>"]+)[>"])re");
  int files = 0;
  for (const auto& [room, below] : kRooms) {
    for (const auto& entry : fs::recursive_directory_iterator(root / room)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".h" && extension != ".cpp") continue;
      const fs::path file = fs::relative(entry.path(), root);
      if (Room(file) != room) continue;
      ++files;
      const bool test = file.string().find("/tests/") != std::string::npos;
      std::ifstream text(entry.path());
      std::smatch match;
      for (std::string line; std::getline(text, line);) {
        if (!std::regex_search(line, match, include)) continue;
        const std::string name = match[2];
        EXPECT_FALSE(!HasWindows(room) && (name.starts_with("Q") || name.starts_with("qt")))
            << file << " includes the user interface's " << name;
        if (match[1] != "\"") continue;
        const std::string used = Room(name);
        EXPECT_TRUE(fs::exists(root / name))
            << file << " includes " << name << ", which is not written from the project's root";
        EXPECT_TRUE(used == room || below.contains(used) || (test && used.starts_with("testing")))
            << file << " includes " << name;
      }
    }
  }
  EXPECT_GT(files, 50);
}

}  // namespace
