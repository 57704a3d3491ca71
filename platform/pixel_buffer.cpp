#include "platform/pixel_buffer.h"

#include <sys/mman.h>

#include <cstdlib>

namespace plenovia::pixel_buffer_detail {

namespace {
constexpr std::size_t kHugePage = std::size_t{2} << 20;
constexpr std::size_t kLine = 64;
}  // namespace

void* Allocate(std::size_t bytes) {
  const bool huge = bytes >= 2 * kHugePage;
  const std::size_t alignment = huge ? kHugePage : kLine;
  const std::size_t whole = (bytes + alignment - 1) / alignment * alignment;
  if (whole < bytes) throw std::bad_alloc();
  void* memory = std::aligned_alloc(alignment, whole == 0 ? alignment : whole);
  if (memory == nullptr) throw std::bad_alloc();
  // The last, partly used page stays small: the memory taken is the memory asked for.
  if (huge) madvise(memory, bytes / kHugePage * kHugePage, MADV_HUGEPAGE);
  return memory;
}

void Release(void* memory) noexcept {
  std::free(memory);
}

}  // namespace plenovia::pixel_buffer_detail
