#include "codec/jpeg_errors.h"

#include <jerror.h>

#include "codec/decoded_picture.h"

namespace plenovia {

namespace {

constexpr char kDamaged[] = "The JPEG file is damaged.";

// Warnings of files whose pixels are whole.
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
  int& warning = reinterpret_cast<Errors*>(info->err)->warning;
  if (level < 0 && warning == 0 && !IsHarmless(info->err->msg_code)) warning = info->err->msg_code;
}

std::string JpegErrors::Damage() const {
  const int warning = errors_.warning;
  if (warning == 0) return "";
  return warning == JWRN_HIT_MARKER || warning == JWRN_JPEG_EOF ? kTruncated : kDamaged;
}

Error JpegErrors::LastError() const {
  switch (errors_.base.msg_code) {
    case JERR_OUT_OF_MEMORY:
    case JERR_NO_BACKING_STORE:
      return {ErrorCode::kTooLarge, "The JPEG picture needs too much memory."};
    case JERR_ARITH_NOTIMPL:
    case JERR_BAD_PRECISION:
    case JERR_CONVERSION_NOTIMPL:
    case JERR_SOF_UNSUPPORTED:
      return {ErrorCode::kUnsupported, "This kind of JPEG file is not supported."};
    default:
      return {ErrorCode::kCorrupt, errors_.warning == JWRN_JPEG_EOF ? kTruncated : kDamaged};
  }
}

}  // namespace plenovia
