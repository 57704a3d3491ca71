// How failures inside the PNG library become values.
#pragma once

#include <png.h>

#include <csetjmp>
#include <cstring>

#include "platform/result.h"

namespace plenovia {

// Takes the library's errors, and its warnings of wrong checksums. Hand it to
// png_create_read_struct() or png_create_write_struct() with the two functions.
class PngErrors {
 public:
  PngErrors() = default;
  PngErrors(const PngErrors&) = delete;
  PngErrors& operator=(const PngErrors&) = delete;

  [[noreturn]] static void Fail(png_structp png, png_const_charp) {
    std::longjmp(static_cast<PngErrors*>(png_get_error_ptr(png))->jump_, 1);
  }
  static void Note(png_structp png, png_const_charp warning) {
    auto& errors = *static_cast<PngErrors*>(png_get_error_ptr(png));
    errors.wrongChecksum_ = errors.wrongChecksum_ || std::strstr(warning, "CRC") != nullptr;
  }
  bool wrongChecksum() const { return wrongChecksum_; }

  // Runs `call`, which may use the library, and tells whether it came to its end. Nothing in
  // `call` may have a destructor: the jump does not run it.
  template <class Call>
  bool Guarded(const Call& call) {
    if (setjmp(jump_) != 0) return false;
    call();
    return true;
  }

 private:
  std::jmp_buf jump_{};
  bool wrongChecksum_ = false;
};

}  // namespace plenovia
