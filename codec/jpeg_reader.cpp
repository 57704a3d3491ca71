#include "codec/jpeg_reader.h"

#include <jerror.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "codec/decoded_picture.h"
#include "platform/limits.h"

namespace plenovia {

namespace {

constexpr std::uint64_t kMostMemory = std::uint64_t{768} << 20;
constexpr int kMostScans = 200;
constexpr std::uint64_t kMostBlockVisits = std::uint64_t{1} << 26;  // blocks times scans
constexpr std::size_t kBlockBytes = DCTSIZE2 * sizeof(JCOEF);

std::uint64_t Blocks(const jpeg_component_info& component) {
  return std::uint64_t{component.width_in_blocks} * component.height_in_blocks;
}

// Inks to red, green and blue, in place at the front. Files with Adobe's mark store how much of
// each ink is left out, others how much is put on.
void InksToColours(std::span<std::uint8_t> row, bool leftOut) {
  for (std::size_t from = 0, to = 0; from < row.size(); from += 4, to += 3) {
    const std::array<std::uint8_t, 4> inks{row[from], row[from + 1], row[from + 2], row[from + 3]};
    const auto light = [&](std::size_t i) { return leftOut ? inks[i] : 255 - inks[i]; };
    for (std::size_t i = 0; i < 3; ++i) {
      row[to + i] = static_cast<std::uint8_t>((light(i) * light(3) + 127) / 255);
    }
  }
}

}  // namespace

JpegReader::JpegReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
  info_.err = errors_.manager();
  source_.init_source = NothingToDo;
  source_.fill_input_buffer = NoMoreBytes;
  source_.skip_input_data = Skip;
  source_.resync_to_restart = jpeg_resync_to_restart;
  source_.term_source = NothingToDo;
}

JpegReader::~JpegReader() {
  jpeg_destroy_decompress(&info_);
}

// The end of the picture stands in for what is missing.
boolean JpegReader::NoMoreBytes(j_decompress_ptr info) {
  static constexpr JOCTET kEnd[] = {0xff, JPEG_EOI};
  WARNMS(info, JWRN_JPEG_EOF);
  info->src->next_input_byte = kEnd;
  info->src->bytes_in_buffer = sizeof kEnd;
  return TRUE;
}

void JpegReader::Skip(j_decompress_ptr info, long count) {
  if (count <= 0) return;
  const std::size_t skipped = std::min(static_cast<std::size_t>(count), info->src->bytes_in_buffer);
  info->src->next_input_byte += skipped;
  info->src->bytes_in_buffer -= skipped;
}

void JpegReader::ReadHeader() {
  jpeg_abort_decompress(&info_);
  source_.next_input_byte = bytes_.data();
  source_.bytes_in_buffer = bytes_.size();
  info_.src = &source_;
  info_.mem->max_memory_to_use = static_cast<long>(kMostMemory);
  jpeg_read_header(&info_, TRUE);
  info_.do_block_smoothing = FALSE;  // it would invent what the file does not hold
  headerFresh_ = true;
}

Result<void> JpegReader::Open() {
  const bool read = errors_.Guarded([this] {
    jpeg_create_decompress(&info_);
    ReadHeader();
  });
  if (!read) return tl::unexpected(errors_.LastError());
  if (auto fits = CheckLimits(); !fits) return fits;
  if (source_.bytes_in_buffer == 0) return Truncated();  // before the first pixel
  if (info_.out_color_space == JCS_UNKNOWN) {
    return Failure(ErrorCode::kUnsupported, "This kind of JPEG file is not supported.");
  }
  const auto channels = static_cast<std::size_t>(gray()                              ? 1
                                                 : info_.out_color_space == JCS_CMYK ? 4
                                                                                     : 3);
  row_.resize(channels * info_.image_width);
  return {};
}

Result<void> JpegReader::CheckLimits() {
  if (auto fits = CheckPictureSize(info_.image_width, info_.image_height); !fits) return fits;
  std::uint64_t blocks = 0;
  for (int i = 0; i < info_.num_components; ++i) blocks += Blocks(info_.comp_info[i]);
  // Huffman codes spend at least one bit on the mean level of each block of 8 x 8 samples,
  // arithmetic codes less.
  if (blocks / (info_.arith_code == TRUE ? 512 : 8) > bytes_.size()) {
    return Failure(ErrorCode::kCorrupt, "The file is too short for its size in pixels.");
  }
  const std::uint64_t pixels = std::uint64_t{info_.image_width} * info_.image_height;
  if (jpeg_has_multiple_scans(&info_) == TRUE && blocks * kBlockBytes + pixels > kMostMemory) {
    return Failure(ErrorCode::kTooLarge, "The JPEG picture needs too much memory.");
  }
  return {};
}

// Where a scan cannot be read any further the file is taken to end, and read anew.
Result<void> JpegReader::ReadScans() {
  constexpr int kTries = 4;
  for (int i = 0;; ++i) {
    auto read = ReadAllScans();
    const std::size_t done = source_.next_input_byte < bytes_.data() ||
                                     source_.next_input_byte > bytes_.data() + bytes_.size()
                                 ? bytes_.size()
                                 : bytes_.size() - source_.bytes_in_buffer;
    if (read || read.error().code != ErrorCode::kCorrupt || i == kTries || done < 2) return read;
    damage_ = read.error().message;
    bytes_ = bytes_.first(std::min(done, bytes_.size() - 2));
    if (!errors_.Guarded([this] { ReadHeader(); })) return read;
  }
}

Result<void> JpegReader::ReadAllScans() {
  std::array<bool, MAX_COMPONENTS> seen{};
  std::uint64_t visits = 0;
  bool tooMany = false;
  const auto enterScan = [&] {
    for (int i = 0; i < info_.comps_in_scan; ++i) {
      visits += Blocks(*info_.cur_comp_info[i]);
      seen[static_cast<std::size_t>(info_.cur_comp_info[i]->component_index)] = true;
    }
    tooMany = info_.input_scan_number > kMostScans || visits > kMostBlockVisits;
  };
  const bool read = errors_.Guarded([&] {
    info_.buffered_image = TRUE;
    jpeg_start_decompress(&info_);
    enterScan();
    for (int state = JPEG_SUSPENDED; state != JPEG_REACHED_EOI && !tooMany;) {
      state = jpeg_consume_input(&info_);
      if (state == JPEG_REACHED_SOS) enterScan();
    }
  });
  if (!read) return tl::unexpected(errors_.LastError());
  if (tooMany) return Failure(ErrorCode::kTooLarge, "The JPEG file has too many scans.");
  if (std::count(seen.begin(), seen.end(), true) < info_.num_components) {
    damage_ = "The JPEG file lacks a part of its picture.";
  }
  scansRead_ = true;
  return {};
}

Result<void> JpegReader::StartPass() {
  const bool severalScans = scansRead_ || (headerFresh_ && jpeg_has_multiple_scans(&info_) == TRUE);
  if (severalScans && !scansRead_) {
    if (auto read = ReadScans(); !read) return read;
  }
  const bool started = errors_.Guarded([&] {
    if (severalScans) {
      jpeg_start_output(&info_, info_.input_scan_number);
    } else {
      if (!headerFresh_) ReadHeader();
      jpeg_start_decompress(&info_);
    }
  });
  headerFresh_ = false;
  if (!started) return tl::unexpected(errors_.LastError());
  return {};
}

bool JpegReader::ReadRow() {
  JSAMPROW row = row_.data();
  const bool read = errors_.Guarded([&] { jpeg_read_scanlines(&info_, &row, 1); });
  if (read && info_.out_color_space == JCS_CMYK) {
    InksToColours(row_, info_.saw_Adobe_marker == TRUE);
  }
  return read;
}

std::string JpegReader::Damage() const {
  return damage_.empty() ? errors_.Damage() : damage_;
}

void JpegReader::GiveUp() {
  damage_ = errors_.LastError().message;
  std::fill(row_.begin(), row_.end(), std::uint8_t{128});
}

void JpegReader::FinishPass() {
  const bool finished = errors_.Guarded([&] {
    if (scansRead_) {
      jpeg_finish_output(&info_);
    } else {
      jpeg_finish_decompress(&info_);
    }
  });
  if (!finished) damage_ = errors_.LastError().message;
}

}  // namespace plenovia
