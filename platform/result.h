// How failure is told everywhere: as a value with a sentence that the user understands.
#pragma once

#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace plenovia {

enum class ErrorCode {
  kInvalid,      // the request makes no sense: a wrong argument or value
  kUnsupported,  // a valid file of a kind that is not handled
  kCorrupt,      // the file breaks its own format, or ends too early
  kTooLarge,     // beyond the limits of platform/limits.h, or more than the memory holds
  kIo,           // the system refused to read or write
  kCancelled,    // stopped by the user
};

struct Error {
  ErrorCode code = ErrorCode::kInvalid;
  std::string message;  // a full sentence, such as "The file is truncated."
};

// Functions that return a Result are [[nodiscard]].
template <class T>
using Result = tl::expected<T, Error>;

inline tl::unexpected<Error> Failure(ErrorCode code, std::string message) {
  return tl::unexpected<Error>(Error{code, std::move(message)});
}

}  // namespace plenovia
