#include "app/tests/monkey/monkey_files.h"

#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "app/tests/program.h"
#include "codec/graph_io.h"
#include "codec/picture_format.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostFiles = 400;
const std::string kExtensions[] = {".bmp", ".pcx", ".gif", ".jpg", ".png", ".rds", ".xyz", ""};

std::string Contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Cuts the end off, or changes some bytes, mostly of the head.
std::string Damage(std::string bytes, Chance& chance) {
  if (bytes.empty()) return bytes;
  const int last = static_cast<int>(bytes.size()) - 1;
  if (chance.OneIn(3)) bytes.resize(static_cast<std::size_t>(chance.Int(0, last)));
  for (int i = chance.Int(0, 8); i > 0 && !bytes.empty(); --i) {
    const int most = static_cast<int>(bytes.size()) - 1;
    const int place = chance.Int(0, chance.OneIn(4) ? most : std::min(most, 100));
    bytes[static_cast<std::size_t>(place)] = static_cast<char>(chance.Int(0, 255));
  }
  return bytes;
}

}  // namespace

MonkeyFiles::MonkeyFiles(fs::path folder, Chance& chance) : folder_(std::move(folder)) {
  fs::create_directories(folder_);
  AddPictures(chance);
  AddCopies(SHIPPED_SAMPLES);
  AddCopies(SHIPPED_TILES);
  AddDamaged(chance);
  AddOddities();
}

void MonkeyFiles::AddPictures(Chance& chance) {
  for (int i = 0; i < 40; ++i) {
    const std::string name = "picture" + std::to_string(i) + kExtensions[i % 5];
    const auto picture = NoisePicture(chance.OneIn(8) ? 1 : chance.Int(2, 250), chance.Int(1, 200),
                                      chance.OneIn(3) ? 256 : chance.Int(1, 40));
    TGraphIO codec;
    codec.SetGraphicFormat(static_cast<int>(FormatOfPath(name)));
    if (codec.Write_File(folder_ / name, *picture)) files_.push_back(folder_ / name);
  }
}

void MonkeyFiles::AddCopies(const fs::path& from) {
  std::vector<fs::path> found;
  for (const auto& entry : fs::directory_iterator(from)) {
    const std::string extension = entry.path().extension().string();
    if (extension.size() == 4 && extension != ".txt" &&
        std::find(std::begin(kExtensions), std::end(kExtensions), extension) !=
            std::end(kExtensions)) {
      found.push_back(entry.path());
    }
  }
  std::sort(found.begin(), found.end());
  for (const fs::path& file : found) {
    files_.push_back(folder_ / file.filename());
    fs::copy_file(file, files_.back(), fs::copy_options::overwrite_existing);
  }
}

void MonkeyFiles::AddDamaged(Chance& chance) {
  const std::vector<fs::path> whole = files_;
  for (int i = 0; i < 60; ++i) {
    const fs::path& source = chance.Pick(whole);
    // Sometimes under the name of another format.
    const std::string extension =
        chance.OneIn(5) ? chance.Pick(kExtensions) : source.extension().string();
    files_.push_back(folder_ / ("damaged" + std::to_string(i) + extension));
    std::ofstream(files_.back(), std::ios::binary) << Damage(Contents(source), chance);
  }
}

void MonkeyFiles::AddOddities() {
  for (const char* name : {"empty.bmp", "empty.rds"}) {
    std::ofstream(folder_ / name).close();
    files_.push_back(folder_ / name);
  }
  for (const char* name : {"folder.gif", "folder.rds"}) {
    fs::create_directories(folder_ / name);
    files_.push_back(folder_ / name);
  }
  if (mkfifo((folder_ / "pipe.png").c_str(), 0600) == 0) files_.push_back(folder_ / "pipe.png");
  for (const char* name :
       {"missing.bmp", "missing.rds", "no folder/missing.gif", "ä \xff&%1.pcx"}) {
    files_.push_back(folder_ / name);
  }
  files_.emplace_back(folder_ / (std::string(300, 'n') + ".png"));
  files_.emplace_back("");
}

QString MonkeyFiles::ToOpen(Chance& chance) const {
  return PathToQString(chance.Pick(files_));
}

QString MonkeyFiles::ToSave(Chance& chance) {
  const std::string extension = chance.Pick(kExtensions);
  if (chance.OneIn(6)) {
    const std::string bad[] = {"no folder/x", "folder.gif", "empty.bmp/x", std::string(300, 'n')};
    return PathToQString(folder_ / (chance.Pick(bad) + extension));
  }
  const fs::path path = folder_ / ("saved" + std::to_string(chance.Int(0, 30)) + extension);
  if (files_.size() < kMostFiles) files_.push_back(path);
  return PathToQString(path);
}

}  // namespace plenovia
