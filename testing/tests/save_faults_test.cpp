// Also when a save fails midway, there is the old file or the new one, whole, and nothing
// beside it.
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "engine/sirds_settings.h"
#include "platform/file_io.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

constexpr int kSkipped = 77;
constexpr int kKinds = 7;
const std::array<std::string, kKinds> kNames = {"a.bmp", "a.pcx", "a.gif", "a.jpg",
                                                "a.png", "a.rds", "a.ini"};

// Saves two versions of a file of each kind as the program does.
class Saver {
 public:
  Saver() {
    Random random(5);
    for (IndexedImage& picture : pictures_) picture = RandomPicture(random, 160, 120, 200);
    for (TDepthList& map : maps_) {
      for (int i = 0; i < 1500; ++i) {
        const DepthRect rect{random.Int(0, 90), random.Int(0, 90), 150, 150};
        map.AddObject(std::make_unique<TDepthObj>(nullptr, rect, CircleObj, i));
      }
    }
  }

  Result<void> Save(int kind, int version, const fs::path& file) {
    const auto which = static_cast<std::size_t>(version);
    if (file.extension() == ".rds") return WriteDepthMap(maps_[which], file);
    if (file.extension() == ".ini") {
      TSirdsSettings settings;
      settings.gapValue += version;
      ProfileFile profile;
      StoreSirdsSettings(settings, profile);
      profile.SetText("wizard", "source_name", std::string(20000, 'x'));
      return profile.Save(file);
    }
    TGraphIO codec;
    codec.SetGraphicFormat(static_cast<int>(kFormats[static_cast<std::size_t>(kind)]));
    return codec.Write_File(file, pictures_[which]);
  }

 private:
  static constexpr std::array kFormats = {GraphicFormat::kBmp, GraphicFormat::kPcx,
                                          GraphicFormat::kGif, GraphicFormat::kJpeg,
                                          GraphicFormat::kPng};
  std::array<IndexedImage, 2> pictures_;
  std::array<TDepthList, 2> maps_{TDepthList(160, 160), TDepthList(160, 160)};
};

int NumberFrom(const char* variable, int otherwise) {
  const char* text = std::getenv(variable);
  return text == nullptr ? otherwise : std::atoi(text);
}

int EntriesIn(const fs::path& folder) {
  return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(SaveFaults, AKilledProgramLeavesTheOldFileOrTheNewOne) {
  const int kills = NumberFrom("PLENOVIA_KILLS", 210);
  const int seed = NumberFrom("PLENOVIA_SEED", static_cast<int>(std::random_device()() >> 1));
  std::cout << kills << " kills, PLENOVIA_SEED=" << seed << '\n';
  Random random(static_cast<std::uint64_t>(seed));
  Saver saver;
  std::vector<std::array<ByteBuffer, 2>> versions(kKinds);
  for (int kind = 0; kind < kKinds; ++kind) {
    for (int version = 0; version < 2; ++version) {
      const TempFolder folder;
      const fs::path file = folder / kNames[static_cast<std::size_t>(kind)];
      ASSERT_TRUE(saver.Save(kind, version, file));
      versions[static_cast<std::size_t>(kind)][static_cast<std::size_t>(version)] =
          ReadFile(file).value();
    }
  }
  int leftovers = 0;
  int renewed = 0;
  for (int i = 0; i < kills; ++i) {
    const int kind = i % kKinds;
    const TempFolder folder;
    const fs::path file = folder / kNames[static_cast<std::size_t>(kind)];
    const auto& [old, next] = versions[static_cast<std::size_t>(kind)];
    ASSERT_NE(old, next);
    ASSERT_TRUE(WriteFile(file, old));

    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      for (int version = 1;; version = 1 - version) {
        if (!saver.Save(kind, version, file)) _exit(1);
      }
    }
    usleep(static_cast<useconds_t>(random.Int(0, 15000)));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child could not save " << file;

    const auto found = ReadFile(file);
    ASSERT_TRUE(found) << file;
    EXPECT_TRUE(*found == old || *found == next) << file << " is neither, at kill " << i;
    if (*found == next) ++renewed;
    if (folder.Count() > 1) ++leftovers;
    EXPECT_LE(folder.Count(), 2);
    EXPECT_TRUE(saver.Save(kind, 1, file));
    EXPECT_EQ(*ReadFile(file), next);
    EXPECT_EQ(folder.Count(), 1);
  }
  std::cout << renewed << " times the new file, " << leftovers << " unfinished ones cleared away\n";
}

// Files of all kinds in one folder, and a list of what went wrong with them.
class Check {
 public:
  explicit Check(fs::path folder) : folder_(std::move(folder)) {}

  void SaveAll(int version) {
    ForAll([&](int kind, const fs::path& file) {
      Require(saver_.Save(kind, version, file).has_value(), "cannot be saved", file);
    });
  }
  // Saving the other version over each fails for the reason, and changes nothing.
  void RequireRefused(const std::string& reason) {
    const int entries = EntriesIn(folder_);
    ForAll([&](int kind, const fs::path& file) {
      const ByteBuffer old = ReadFile(file).value_or(ByteBuffer());
      const auto saved = saver_.Save(kind, 1, file);
      Require(!saved, "was saved in spite of: " + reason, file);
      const std::string told = saved ? "" : saved.error().message;
      Require(saved || told.find(reason) != std::string::npos, "complained of: " + told, file);
      Require(ReadFile(file).value_or(ByteBuffer()) == old, "was changed", file);
      Require(EntriesIn(folder_) == entries, "left something behind", file);
    });
  }
  void ForAll(const std::function<void(int, const fs::path&)>& what) {
    for (int kind = 0; kind < kKinds; ++kind) {
      what(kind, folder_ / kNames[static_cast<std::size_t>(kind)]);
    }
  }
  void Require(bool condition, const std::string& complaint, const fs::path& file) {
    if (condition) return;
    failed_ = true;
    std::cerr << file << ' ' << complaint << std::endl;
  }
  int ExitStatus() const { return failed_ ? 1 : 0; }

 private:
  Saver saver_;
  fs::path folder_;
  bool failed_ = false;
};

// The exit status of a process of its own that does this: it may give up rights and mount.
int InChild(const std::function<int()>& what) {
  const pid_t child = fork();
  if (child == 0) _exit(what());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

TEST(SaveFaults, AFullOrReadOnlyDiskLeavesTheOldFile) {
  const TempFolder folder;
  const int status = InChild([&] {
    const fs::path disk = folder.path();
    if (unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=1m") != 0) {
      return kSkipped;
    }
    Check check(disk);
    check.SaveAll(0);
    const ByteBuffer block(4096, 1);
    for (int i = 0; WriteFile(disk / ("full" + std::to_string(i)), block); ++i) {
    }
    check.RequireRefused("No space left");
    fs::remove(disk / "full0");  // room for a name and a little more
    check.RequireRefused("No space left");
    for (int i = 1; fs::remove(disk / ("full" + std::to_string(i))); ++i) {
    }
    check.SaveAll(0);
    if (mount(nullptr, disk.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
      return kSkipped;
    }
    check.RequireRefused("Read-only");
    return check.ExitStatus();
  });
  if (status == kSkipped) GTEST_SKIP() << "mounting is not permitted";
  EXPECT_EQ(status, 0);
}

TEST(SaveFaults, AFileThatMayNotGrowStaysTheOldOne) {
  const TempFolder folder;
  EXPECT_EQ(InChild([&] {
              Check check(folder.path());
              check.SaveAll(0);
              std::signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{4000, 4000};
              setrlimit(RLIMIT_FSIZE, &limit);
              check.RequireRefused("File too large");
              return check.ExitStatus();
            }),
            0);
}

TEST(SaveFaults, LostPermissionLeavesTheOldFile) {
  const TempFolder folder;
  EXPECT_EQ(InChild([&] {
              constexpr uid_t kNobody = 65534;
              const fs::path own = folder / "own";
              fs::create_directory(own);
              Check check(own);
              check.SaveAll(0);
              fs::permissions(folder.path(), fs::perms(0755));
              if (getuid() == 0 && (chown(own.c_str(), kNobody, kNobody) != 0 ||
                                    setgroups(0, nullptr) != 0 || setuid(kNobody) != 0)) {
                return 1;
              }
              fs::permissions(own, fs::perms(0555));
              check.RequireRefused("Permission denied");
              fs::permissions(own, fs::perms(0755));
              if (getuid() == kNobody) {
                check.RequireRefused("Permission denied");  // the files are another's
              }
              return check.ExitStatus();
            }),
            0);
}

TEST(SaveFaults, AFolderThatIsGoneIsTold) {
  Saver saver;
  fs::path gone;
  {
    const TempFolder folder;
    gone = folder.path();
  }
  for (int kind = 0; kind < kKinds; ++kind) {
    const auto saved = saver.Save(kind, 0, gone / kNames[static_cast<std::size_t>(kind)]);
    ASSERT_FALSE(saved);
    EXPECT_NE(saved.error().message.find("No such file"), std::string::npos);
  }
  EXPECT_FALSE(fs::exists(gone));
}

}  // namespace
}  // namespace plenovia
