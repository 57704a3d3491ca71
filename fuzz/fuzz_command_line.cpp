// The command line: one word a line, run in a folder of its own. For any words, the
// program ends with one of its exit statuses, and when it fails, nothing in the folder has changed.
#include <stdlib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/program.h"
#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"
#include "platform/random.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace plenovia {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

void Require(bool condition) {
  if (!condition) std::abort();
}

// The folder in which the program runs, with a picture, a pattern and a depth map in it.
class Workplace {
 public:
  Workplace() {
    std::string name = (fs::temp_directory_path() / "plenovia-fuzz-XXXXXX").string();
    Require(mkdtemp(name.data()) != nullptr);
    folder_ = name;
    IndexedImage picture = IndexedImage::Create(24, 16, Palette::Grays()).value();
    for (int y = 0; y < picture.height(); ++y) {
      std::fill_n(picture.Row(y).begin() + y, 8, static_cast<std::uint8_t>(y));
    }
    TDepthList map(30, 20);
    map.AddObject(std::make_unique<TDepthObj>(nullptr, DepthRect{2, 2, 18, 20}, CircleObj, 9));
    inputs_["a.bmp"] = EncodePicture(GraphicFormat::kBmp, picture)->Joined();
    inputs_["p.gif"] = EncodePicture(GraphicFormat::kGif, picture)->Joined();
    inputs_["m.rds"] = EncodeDepthMap(map).value();
    Restore();
  }
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;
  ~Workplace() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  // Runs the program there; the fuzzer itself stays where it was.
  ExitStatus Run(const Words& words) const {
    std::vector<const char*> argv{"sirds"};
    for (const std::string& word : words) argv.push_back(word.c_str());
    const fs::path home = fs::current_path();
    fs::current_path(folder_);
    const ExitStatus status = RunSirds(static_cast<int>(argv.size()), argv.data());
    fs::current_path(home);
    return status;
  }
  // Whether there is nothing but what was there at first.
  bool Untouched() const {
    const auto files = fs::directory_iterator(folder_);
    return std::distance(begin(files), end(files)) == static_cast<std::ptrdiff_t>(inputs_.size()) &&
           std::all_of(inputs_.begin(), inputs_.end(), [this](const auto& input) {
             const auto bytes = ReadFile(folder_ / input.first);
             return bytes && *bytes == input.second;
           });
  }
  bool HasLeftovers() const {
    const auto files = fs::directory_iterator(folder_);
    return std::any_of(begin(files), end(files), [](const auto& file) {
      return file.path().filename().string().starts_with(".plenovia-");
    });
  }
  void Restore() const {
    for (const auto& file : fs::directory_iterator(folder_)) fs::remove_all(file.path());
    for (const auto& [name, bytes] : inputs_) {
      Require(WriteFile(folder_ / name, bytes).has_value());
    }
  }

 private:
  fs::path folder_;
  std::map<std::string, ByteBuffer> inputs_;
};

Words Split(std::string_view text) {
  Words words;
  while (!text.empty()) {
    const auto end = text.find('\n');
    words.emplace_back(text.substr(0, std::min(end, text.find('\0'))));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return words;
}

// Numbers that make a picture so large that a unit takes long.
bool AsksForMuch(const std::string& word) {
  constexpr unsigned long kSmallest = 300;
  constexpr unsigned long kLargestSide = 32767;
  for (const char* at = word.c_str(); *at != '\0';) {
    char* end = nullptr;
    const unsigned long number = *at >= '0' && *at <= '9' ? std::strtoul(at, &end, 10) : 0;
    if (number > kSmallest && number <= kLargestSide) return true;
    at = end == nullptr ? at + 1 : end;
  }
  return false;
}

const Workplace& Place() {
  static const Workplace place;
  return place;
}

int Try(std::string_view text) {
  const Words words = Split(text);
  if (std::any_of(words.begin(), words.end(), [](const std::string& word) {
        return word.find('/') != std::string::npos || AsksForMuch(word);
      })) {
    return -1;
  }
  const Workplace& place = Place();
  const ExitStatus status = place.Run(words);
  Require(!place.HasLeftovers());
  if (!place.Untouched()) {
    Require(status == ExitStatus::kDone);
    place.Restore();
  }
  return 0;
}

constexpr std::array kKnownWords = {
    "make",
    "depth",
    "reveal",
    "figures",
    "patterns",
    "info",
    "-o",
    "a.bmp",
    "p.gif",
    "m.rds",
    "o.png",
    "o.jpg",
    "o.pcx",
    "o.pgm",
    "o.gif",
    "figure:3",
    "figure:k",
    "formula:cos(x)*y",
    "text:HI",
    "--font",
    "--profile",
    "round",
    "--view",
    "30,20",
    "--perspective",
    "--fine",
    "--near",
    "dark",
    "--reach",
    "figure:",
    "--pattern",
    "3",
    "p.gif",
    "--gap",
    "60",
    "--scan",
    "left-to-right",
    "mcmahon",
    "feucht",
    "smooth",
    "--zmin",
    "-9",
    "--zmax",
    "65535",
    "--depth-by",
    "color",
    "brightness",
    "--width",
    "--height",
    "--dx",
    "--dy",
    "--da",
    "180",
    "--markers",
    "--no-markers",
    "--large-markers",
    "--background",
    "--threads",
    "2",
    "-q",
    "--help",
    "-h",
    "--version",
    "--",
    "-",
    "",
    "=",
    "-qo",
    "99999999999",
    "+7",
    "--width=20",
    "-oo.bmp",
    "--gap=2",
    "0",
};

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // The program's own words; the fuzzer keeps the real streams.
  stdout = std::fopen("/dev/null", "w");
  stderr = std::fopen("/dev/null", "w");
  return 0;
}

// Half of the time puts a known word in, or takes one out.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
  using namespace plenovia;
  Random random(seed);
  if (random.Int(0, 1) == 0) return LLVMFuzzerMutate(data, size, most);
  Words words = Split({reinterpret_cast<const char*>(data), size});
  const int changes = random.Int(1, 4);
  for (int i = 0; i < changes; ++i) {
    const auto at = words.begin() + random.Int(0, static_cast<int>(words.size()));
    const char* known = kKnownWords[random.Next() % kKnownWords.size()];
    switch (random.Int(0, 3)) {
      case 0:
        if (at != words.end()) words.erase(at);
        break;
      case 1:
        if (at != words.end()) *at = known;
        break;
      default:
        words.insert(at, known);
    }
  }
  std::string text;
  for (const std::string& word : words) text += word + '\n';
  size = std::min(text.size(), most);
  std::copy_n(text.begin(), size, data);
  return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return plenovia::Try({reinterpret_cast<const char*>(data), size});
}
