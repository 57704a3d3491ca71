// What writers of PNG files share.
#pragma once

#include <utility>

#include "codec/byte_stream.h"
#include "codec/encoded_picture.h"
#include "codec/png_errors.h"
#include "platform/result.h"

namespace plenovia {

// The file that `write(png, info)` writes with the library; nothing in it may have a destructor.
// kTooLarge when the memory does not suffice.
template <class Write>
Result<EncodedPicture> WritePng(const Write& write) {
  PngErrors errors;
  ByteBuffer bytes;
  png_structp png =
      png_create_write_struct(PNG_LIBPNG_VER_STRING, &errors, PngErrors::Fail, PngErrors::Note);
  png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
  const bool written = info != nullptr && errors.Guarded([&] {
    const auto append = [](png_structp file, png_bytep data, std::size_t count) {
      auto& to = *static_cast<ByteBuffer*>(png_get_io_ptr(file));
      if (!AppendBytes(to, {data, count})) png_error(file, "no memory");
    };
    png_set_write_fn(png, &bytes, append, nullptr);
    write(png, info);
  });
  png_destroy_write_struct(&png, &info);
  if (!written) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to write the PNG file.");
  }
  return EncodedPicture(std::move(bytes));
}

}  // namespace plenovia
