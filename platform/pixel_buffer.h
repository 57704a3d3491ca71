// Memory for pixels and file contents: bytes that are not cleared when they are allocated, in large
// memory pages where the system offers them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>
#include <vector>

namespace plenovia {

namespace pixel_buffer_detail {
// Throws std::bad_alloc when the memory does not suffice.
void* Allocate(std::size_t bytes);
void Release(void* memory) noexcept;
}  // namespace pixel_buffer_detail

template <class T>
struct PixelAllocator {
  using value_type = T;
  PixelAllocator() = default;
  template <class U>
  PixelAllocator(const PixelAllocator<U>&) noexcept {}  // NOLINT(google-explicit-constructor)

  T* allocate(std::size_t count) {
    return static_cast<T*>(pixel_buffer_detail::Allocate(count * sizeof(T)));
  }
  void deallocate(T* memory, std::size_t) noexcept { pixel_buffer_detail::Release(memory); }

  // Growing leaves the new elements as they are instead of clearing them.
  template <class U>
  void construct(U* place) noexcept {
    ::new (static_cast<void*>(place)) U;
  }
  template <class U, class... Args>
  void construct(U* place, Args&&... args) {
    ::new (static_cast<void*>(place)) U(std::forward<Args>(args)...);
  }
  template <class U>
  bool operator==(const PixelAllocator<U>&) const noexcept {
    return true;
  }
};

// A vector whose constructor and resize() leave new elements uncleared.
template <class T>
using PixelVector = std::vector<T, PixelAllocator<T>>;
using ByteBuffer = PixelVector<std::uint8_t>;

}  // namespace plenovia
