#include "depthmap/depth_map_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "platform/file_io.h"
#include "platform/little_endian.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

// A file of a header and these numbers, the count of records first.
ByteBuffer File(const std::vector<std::int32_t>& numbers) {
  ByteBuffer bytes{'D', 'E', 'P', 'T', 'H', 'M', 'A', 'P', 0, '.', '.', '.', '.', '.', '.', '.', 1};
  for (const std::int32_t number : numbers) Put32(bytes, static_cast<std::uint32_t>(number));
  return bytes;
}

DepthMapContents Decoded(const ByteBuffer& bytes) {
  Result<DepthMapContents> contents = DecodeDepthMap(bytes);
  EXPECT_TRUE(contents.has_value());
  return contents ? std::move(*contents) : DepthMapContents{TDepthList(1, 1)};
}

TEST(DepthMapFile, ANewMapHasFortyFiveKnownBytes) {
  const ByteBuffer bytes = EncodeDepthMap(TDepthList(400, 400)).value();
  ByteBuffer expected = File({1, 3, 0, 0, 0, 400, 400});
  std::fill(expected.begin() + 9, expected.begin() + 16, std::uint8_t{0});
  EXPECT_EQ(bytes, expected);
  EXPECT_EQ(bytes.size(), 45u);
}

TEST(DepthMapFile, WhatIsWrittenReadsBackTheSame) {
  TDepthList list(300, 200);
  for (std::int32_t kind = 0; kind <= 8; ++kind) {
    auto object = std::make_unique<TDepthObj>(nullptr, DepthRect{50, 60, 10, 20},
                                              static_cast<DepthObjKind>(kind), 1000 - kind);
    object->SetPoints(std::vector<DepthPoint>{{1, 2}, {-30, 4}, {5, -60}, {7, 8}});
    list.AddObject(std::move(object));
  }
  TempFolder folder;
  ASSERT_TRUE(WriteDepthMap(list, folder / "map.rds").has_value());
  EXPECT_TRUE(list.IsSaved());
  EXPECT_EQ(ReadFile(folder / "map.rds")->size(), 21u + 9 * 24 + 44);
  const Result<DepthMapContents> read = ReadDepthMap(folder / "map.rds");
  ASSERT_TRUE(read.has_value());
  EXPECT_FALSE(read->damaged);
  EXPECT_TRUE(read->list.IsSaved());
  EXPECT_EQ(read->list.GetWidth(), 300);
  EXPECT_EQ(read->list.GetHeight(), 200);
  const TDepthObj* a = list.Head();
  const TDepthObj* b = read->list.Head();
  for (; a != nullptr && b != nullptr; a = TDepthList::Below(*a), b = TDepthList::Below(*b)) {
    EXPECT_EQ(a->GetKind(), b->GetKind());
    EXPECT_EQ(a->GetLevel(), b->GetLevel());
    EXPECT_EQ(a->GetRect(), b->GetRect());
    ASSERT_EQ(a->GetPoints().size(), b->GetPoints().size());
    EXPECT_TRUE(std::equal(a->GetPoints().begin(), a->GetPoints().end(), b->GetPoints().begin()));
  }
  EXPECT_EQ(a, nullptr);
  EXPECT_EQ(b, nullptr);

  list.ApplyObjectLevel(list.Head());
  list.CmDelete();
  EXPECT_FALSE(WriteDepthMap(list, folder / "none" / "map.rds").has_value());
  EXPECT_FALSE(list.IsSaved());
}

TEST(DepthMapFile, TheHeaderDecidesWhatIsADepthMap) {
  ByteBuffer seven = File({1, 3, 0, 10, 10, 110, 60, 99});
  seven[16] = 7;
  const DepthMapContents contents = Decoded(seven);
  EXPECT_FALSE(contents.damaged);
  EXPECT_EQ(contents.list.GetWidth(), 100);
  EXPECT_EQ(contents.list.GetHeight(), 50);

  std::vector<ByteBuffer> refused{{}, File({}), File({0}), File({-1, 3, 0, 0, 0, 9, 9})};
  refused.push_back(File({2, 3, 5, 0}));  // cut off before anything is covered
  refused.push_back(File({2, 3, 5, -9, -9, -4, 0}));
  for (const std::size_t i : {std::size_t{0}, std::size_t{7}, std::size_t{8}}) {
    refused.push_back(File({1, 3, 0, 0, 0, 9, 9}));
    refused.back()[i] = 'S';
  }
  for (const ByteBuffer& bytes : refused) {
    const Result<DepthMapContents> result = DecodeDepthMap(bytes);
    ASSERT_FALSE(result.has_value());
    EXPECT_EQ(result.error().code, ErrorCode::kCorrupt);
    EXPECT_EQ(result.error().message, "The file is not a valid depth map.");
  }
}

TEST(DepthMapFile, DamagedFilesKeepWhatWasRead) {
  struct Case {
    std::vector<std::int32_t> numbers;
    std::size_t cut;  // bytes taken from the end
    bool damaged;
    std::vector<DepthRect> rects;
    std::vector<std::size_t> vertices;
  };
  constexpr std::int32_t kMany = std::numeric_limits<std::int32_t>::max();
  for (const Case& c : std::vector<Case>{
           {{2, 3, 5, 0, 0, 9, 9, 3, 0, 0, 0, 8, 8}, 16, true, {{0, 0, 9, 9}}, {0}},
           {{kMany, 3, 5, 0, 0, 9, 9}, 0, true, {{0, 0, 9, 9}}, {0}},
           {{3, 0, 5, 7, 2, 1, 8}, 0, true, {{7, 2, 1, 8}, {0, 0, 7, 8}}, {0, 0}},
           {{3, 3, 5, 0, 0, 9, 9, 3, 5, 1, 1, 4, kMany},
            0,
            true,
            {{0, 0, 9, 9}, {1, 1, 4, kMany}, {0, 0, 9, 32767}},
            {0, 0, 0}},
           {{1, 5, 5, kMany, 1, 2, 3, 4, 5}, 0, true, {{1, 2, 1, 2}, {0, 0, 3, 4}}, {2, 0}},
           {{2, 5, 5, -1, 3, 5, 0, 0, 9, 9}, 0, true, {{}, {0, 0, 9, 9}}, {0, 0}},
           {{2, 5, 5, 0, 3, 5, 0, 0, 9, 9}, 0, false, {{}, {0, 0, 9, 9}}, {0, 0}},
       }) {
    ByteBuffer bytes = File(c.numbers);
    bytes.resize(bytes.size() - c.cut);
    const DepthMapContents contents = Decoded(bytes);
    EXPECT_EQ(contents.damaged, c.damaged);
    std::vector<DepthRect> rects;
    std::vector<std::size_t> vertices;
    for (const TDepthObj* o = contents.list.Head(); o != nullptr; o = TDepthList::Below(*o)) {
      rects.push_back(o->GetRect());
      vertices.push_back(o->GetPoints().size());
    }
    EXPECT_EQ(rects, c.rects);
    EXPECT_EQ(vertices, c.vertices);
  }
}

TEST(DepthMapFile, ABackgroundOfAnySizeHasItsSize) {
  const std::int32_t low = std::numeric_limits<std::int32_t>::min();
  const std::int32_t high = std::numeric_limits<std::int32_t>::max();
  const DepthMapContents contents = Decoded(File({1, 3, 5, low, high, high, low}));
  EXPECT_EQ(contents.list.GetWidth(), 4294967295);
  EXPECT_EQ(contents.list.GetHeight(), 4294967295);
  EXPECT_EQ(contents.list.GridWidth(), high);
  EXPECT_EQ(contents.list.GetImageSize(), 4294967296u * 4294967295u);
}

}  // namespace
}  // namespace plenovia
