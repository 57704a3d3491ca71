// A value that is made when it is first asked for.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace plenovia {

// For one thread.
template <class T>
class OnDemand {
 public:
  // Without `make` there is no value.
  explicit OnDemand(std::function<T()> make = {}) : make_(std::move(make)) {}

  // Null only where there is no way to make it.
  T* get() {
    if (const auto make = std::exchange(make_, {})) value_ = std::make_unique<T>(make());
    return value_.get();
  }
  T& operator*() { return *get(); }
  T* operator->() { return get(); }
  bool IsMade() const { return value_ != nullptr; }

 private:
  std::function<T()> make_;
  std::unique_ptr<T> value_;
};

}  // namespace plenovia
