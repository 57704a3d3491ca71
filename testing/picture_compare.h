// Comparison of pictures that says where and by how much they differ.
#pragma once

#include <gtest/gtest.h>

#include "platform/indexed_image.h"
#include "platform/random.h"

namespace plenovia {

// Same size and same index at every pixel. EXPECT_TRUE(SamePixels(a, b)).
testing::AssertionResult SamePixels(const IndexedImage& expected, const IndexedImage& actual);
// Same size and, through the palettes, colours that differ by at most `tolerance` in each of red,
// green and blue.
testing::AssertionResult SameColours(const IndexedImage& expected, const IndexedImage& actual,
                                     int tolerance = 0);

// A picture of random colours and random pixels; every pixel has a palette entry.
IndexedImage RandomPicture(Random& random, int width, int height, int colours);

}  // namespace plenovia
