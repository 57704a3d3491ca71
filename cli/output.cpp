#include "cli/output.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <string>

#include "cli/pgm.h"
#include "cli/stop_signals.h"
#include "codec/graph_io.h"
#include "platform/file_io.h"

namespace plenovia {

namespace {

std::string Extension(const std::string& file) {
  std::string extension = std::filesystem::path(file).extension();
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return extension;
}

GraphicFormat FormatOfExtension(const std::string& extension) {
  if (extension == ".bmp") return GraphicFormat::kBmp;
  if (extension == ".pcx") return GraphicFormat::kPcx;
  if (extension == ".gif") return GraphicFormat::kGif;
  if (extension == ".jpg" || extension == ".jpeg") return GraphicFormat::kJpeg;
  if (extension == ".png") return GraphicFormat::kPng;
  return GraphicFormat::kUnknown;
}

bool CanWrite(const std::string& extension, OutputKind kind) {
  if (kind == OutputKind::kGray && extension == ".pgm") return true;
  return FormatOfExtension(extension) != GraphicFormat::kUnknown;
}

}  // namespace

void AddOutput(CLI::App& command, std::string& out, OutputKind kind) {
  const std::string extensions = std::string(kind == OutputKind::kGray ? ".pgm, " : "") +
                                 ".bmp, .pcx, .gif, .jpg, .jpeg or .png";
  const auto check = [kind, extensions](const std::string& file) {
    if (CanWrite(Extension(file), kind)) return std::string();
    return "'" + file + "' does not end in " + extensions;
  };
  command.add_option("-o", out, "The file to write, whose name ends in\n" + extensions)
      ->required()
      ->option_text("OUT")
      ->check(check);
}

Outcome<void> WriteOutput(const std::string& out, const IndexedImage& picture) {
  const std::string extension = Extension(out);
  const auto encoded = extension == ".pgm" ? EncodePgm(picture)
                                           : EncodePicture(FormatOfExtension(extension), picture);
  if (!encoded) return Failed(out, encoded.error());
  if (StopSignalCame()) return Failed(out, {ErrorCode::kCancelled, "stopped"});
  const auto written = WriteFile(out, encoded->pieces());
  if (!written) return Failed(out, written.error());
  return {};
}

}  // namespace plenovia
