// Where a picture goes: what the command line calls OUT.
#pragma once

#include <string>

#include "cli/outcome.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"

namespace CLI {
class App;
}  // namespace CLI

namespace plenovia {

enum class OutputKind {
  kPicture,  // the formats of pictures that are written
  kGray,     // also .pgm
};

// The required option "-o OUT". A name whose extension is not one of the kind's is wrong usage.
void AddOutput(CLI::App& command, std::string& out, OutputKind kind);

// Writes the picture in the format that the extension names; the pixels of a .pgm are the grays.
// A file that was there is replaced in one step, or stays as it was when anything fails. Nothing is
// written once a stop signal came. At most `threads` work. `comment` is the program's own
// (codec/picture_comment.h).
[[nodiscard]] Outcome<void> WriteOutput(const std::string& out, const IndexedImage& picture,
                                        int threads, const std::string& comment = {});

// --fine: grays of 16 bits.
void AddFine(CLI::App& command, bool& fine);
// Wrong usage when OUT is in no format of 16 bits.
[[nodiscard]] Outcome<void> CheckFineOutput(const std::string& out);
// As WriteOutput(), with 16 bits a pixel.
[[nodiscard]] Outcome<void> WriteFineOutput(const std::string& out, const FineImage& picture);

}  // namespace plenovia
