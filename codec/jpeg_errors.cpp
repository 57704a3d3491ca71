#include "codec/jpeg_errors.h"

#include <jerror.h>

namespace plenovia {

namespace {

// Warnings of files that are whole all the same.
bool IsHarmless(int warning) {
  return warning == JWRN_ADOBE_XFORM || warning == JWRN_BOGUS_ICC ||
         warning == JWRN_EXTRANEOUS_DATA || warning == JWRN_JFIF_MAJOR ||
         warning == JWRN_TOO_MUCH_DATA;
}

}  // namespace

JpegErrors::JpegErrors() {
  jpeg_std_error(&errors_.base);
  errors_.base.error_exit = Exit;
  errors_.base.emit_message = Message;
}

void JpegErrors::Exit(j_common_ptr info) {
  std::longjmp(reinterpret_cast<Errors*>(info->err)->jump, 1);
}

void JpegErrors::Message(j_common_ptr info, int level) {
  if (level < 0 && !IsHarmless(info->err->msg_code)) Exit(info);
}

Error JpegErrors::LastError() const {
  switch (errors_.base.msg_code) {
    case JERR_INPUT_EOF:
    case JERR_INPUT_EMPTY:
    case JWRN_HIT_MARKER:
    case JWRN_JPEG_EOF:
      return {ErrorCode::kCorrupt, "the file is truncated"};
    case JERR_OUT_OF_MEMORY:
    case JERR_NO_BACKING_STORE:
      return {ErrorCode::kTooLarge, "the JPEG picture needs too much memory"};
    case JERR_ARITH_NOTIMPL:
    case JERR_BAD_PRECISION:
    case JERR_CONVERSION_NOTIMPL:
    case JERR_SOF_UNSUPPORTED:
      return {ErrorCode::kUnsupported, "this kind of JPEG file is not supported"};
    default:
      return {ErrorCode::kCorrupt, "the JPEG file is damaged"};
  }
}

}  // namespace plenovia
