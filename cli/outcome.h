// How a subcommand ends: its exit status and what is said about a failure.
#pragma once

#include <string>
#include <tl/expected.hpp>

#include "platform/result.h"

namespace plenovia {

enum class ExitStatus { kDone = 0, kFailed = 1, kWrongUsage = 2 };

struct Complaint {
  ExitStatus status = ExitStatus::kFailed;
  std::string message;
};

template <class T>
using Outcome = tl::expected<T, Complaint>;

// "subject: what went wrong", where the subject is a file as the user named it.
tl::unexpected<Complaint> Failed(const std::string& subject, const Error& error);
tl::unexpected<Complaint> WrongUsage(std::string message);

// The text with a "?" for each control character, so that it cannot steer a terminal.
std::string Printable(std::string text);

// One line on standard error that begins with "sirds: ". The text is sanitised: control characters
// become "?".
void Report(const Complaint& complaint);

// One line on standard error about a file that is used although something is wrong with it.
void Warn(const std::string& file, const std::string& what);

// Puts the text on standard output. Fails when it cannot be written there.
[[nodiscard]] Outcome<void> Print(const std::string& text);

}  // namespace plenovia
