#include "bench/colour_jpeg.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
// The library's header needs the two above.
#include <jpeglib.h>

#include "bench/colour_scenes.h"
#include "bench/stopwatch.h"
#include "platform/random.h"

namespace plenovia::bench {

std::vector<std::uint8_t> ColourJpeg(int width, int height) {
  jpeg_error_mgr errors{};
  jpeg_compress_struct info{};
  info.err = jpeg_std_error(&errors);
  jpeg_create_compress(&info);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&info, &bytes, &size);
  info.image_width = static_cast<JDIMENSION>(width);
  info.image_height = static_cast<JDIMENSION>(height);
  info.input_components = 3;
  info.in_color_space = JCS_RGB;
  jpeg_set_defaults(&info);
  jpeg_set_quality(&info, 90, TRUE);
  jpeg_start_compress(&info, TRUE);
  const ColourScene scene = Landscape(width, height);
  Random random(1);
  std::vector<std::uint8_t> row;
  for (auto pixel = scene.begin(); pixel != scene.end();) {
    row.clear();
    for (int x = 0; x < width; ++x, ++pixel) {
      const int noise = random.Int(-6, 6);
      for (const int level : {pixel->red, pixel->green, pixel->blue}) {
        row.push_back(static_cast<std::uint8_t>(std::clamp(level + noise, 0, 255)));
      }
    }
    JSAMPROW line = row.data();
    jpeg_write_scanlines(&info, &line, 1);
  }
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  std::vector<std::uint8_t> file(bytes, bytes + size);
  std::free(bytes);
  return file;
}

void ReadJpegRows(std::span<const std::uint8_t> file) {
  jpeg_error_mgr errors{};
  jpeg_decompress_struct info{};
  info.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&info);
  jpeg_mem_src(&info, file.data(), file.size());
  jpeg_read_header(&info, TRUE);
  jpeg_start_decompress(&info);
  std::vector<std::uint8_t> row(std::size_t{3} * info.output_width);
  while (info.output_scanline < info.output_height) {
    JSAMPROW line = row.data();
    jpeg_read_scanlines(&info, &line, 1);
    Keep(row.data());
  }
  jpeg_finish_decompress(&info);
  jpeg_destroy_decompress(&info);
}

}  // namespace plenovia::bench
