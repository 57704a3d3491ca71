// How failures inside the JPEG library become values.
#pragma once

#include <cstddef>
#include <cstdio>
// The library's header needs the two above.
#include <jpeglib.h>

#include <csetjmp>

#include "platform/result.h"

namespace plenovia {

// The library's error manager. A fatal error jumps back to the Guarded() call that is under way; of
// the warnings that mean damaged pixels the first is kept.
class JpegErrors {
 public:
  JpegErrors();
  JpegErrors(const JpegErrors&) = delete;
  JpegErrors& operator=(const JpegErrors&) = delete;

  jpeg_error_mgr* manager() { return &errors_.base; }

  // Runs `call`, which may use the library, and tells whether it came to its end. Nothing in
  // `call` may have a destructor: the jump does not run it.
  template <class Call>
  bool Guarded(const Call& call) {
    if (setjmp(errors_.jump) != 0) return false;
    call();
    return true;
  }
  // What the last failed call met.
  Error LastError() const;
  // What the first such warning was about; empty when there was none.
  std::string Damage() const;

 private:
  struct Errors {
    jpeg_error_mgr base;  // the first member, so that the library's pointer leads here
    std::jmp_buf jump;
    int warning;  // 0 for none
  };
  [[noreturn]] static void Exit(j_common_ptr info);
  static void Message(j_common_ptr info, int level);

  Errors errors_{};
};

}  // namespace plenovia
