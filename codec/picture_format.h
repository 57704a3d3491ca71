// The file formats: one table from which the dialogs, the command line and the detection come.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "codec/decoded_picture.h"
#include "codec/encoded_picture.h"
#include "platform/result.h"

namespace plenovia {

// Numbers that settings files keep and dialogs count by.
enum class GraphicFormat {
  kUnknown = 0,
  kBmp = 1,
  kPcx = 2,
  kGif = 3,
  kJpeg = 4,
  kDepthMap = 5,  // not a picture: the codecs refuse it
  kPng = 6,
};

// Which lists of file types name a format by itself; each adds to those before it. The entry of all
// pictures holds every format.
enum class FileLists { kNone, kSave, kSaveOpen, kSaveOpenWizard };

// `threads` is how many may work, 0 for one a processor.
using PictureReader = Result<DecodedPicture> (*)(std::span<const std::uint8_t> file, int threads);
// `comment` is the program's own (codec/picture_comment.h), empty for none.
using PictureWriter = Result<EncodedPicture> (*)(const IndexedImage& picture, int threads,
                                                 std::string_view comment);

struct PictureFormat {
  GraphicFormat number;
  std::string_view name;                       // "JPEG"; "RDS" for depth maps
  std::string_view fileType;                   // "JPEG Files", as dialogs call them
  std::array<std::string_view, 2> extensions;  // ".jpg", ".jpeg"; the second may be empty
  std::string_view mimeType;
  FileLists lists;
  bool lossless;                                          // every dot of the picture is kept
  bool (*looksLike)(std::span<const std::uint8_t> file);  // by the first bytes; null: depth maps
  PictureReader decode;                                   // null: depth maps
  PictureWriter encode;                                   // null: depth maps, and what is only read
  std::string_view (*library)();                          // "giflib 5.2.1"; null: our own code
};

// In the order in which file names are held against the extensions.
std::span<const PictureFormat> PictureFormats();
// Null when there is no format of this number.
const PictureFormat* FindFormat(GraphicFormat number);

// The format that the bytes are in, by their content; kUnknown when no reader knows them.
GraphicFormat DetectFormat(std::span<const std::uint8_t> bytes);
// The format that a file is written in by its name: the first one whose extension occurs anywhere
// in the path, in upper or lower case; else BMP.
GraphicFormat FormatOfPath(std::string_view path);
// The picture format whose extension the path ends in; kUnknown when there is none that is written.
GraphicFormat FormatOfExtension(std::string_view path);

// What an open or save dialog appends to a name without extension: "BMP", "PCX", ...; opening
// proposes "BMP" for formats that its list does not name.
std::string OpenExtension(GraphicFormat format);
std::string SaveExtension(GraphicFormat format);

// "BMP", "JPEG", ...; "RDS" for depth maps; "unknown" for the rest.
std::string_view FormatName(GraphicFormat format);
// What the status bar calls the file while it is opened or saved: "GIF", "Depth Map". Empty when it
// says nothing: for formats that the open list does not name.
std::string_view NameWhileReading(GraphicFormat format);
// "BMP" for formats that are not written.
std::string_view NameWhileWriting(GraphicFormat format);

// The file types of a dialog, "title|pattern|title|pattern|...". Entry n of the save dialog is
// format n; the others end with all that can be read.
std::string OpenFileTypes();
std::string SaveFileTypes();
std::string WizardFileTypes();

// "BMP, PCX, GIF, JPEG or PNG": the pictures that are read.
std::string ReadableNames();
// ".bmp, .pcx, .gif, .jpg, .jpeg or .png": those that are written.
std::string WritableExtensions();

}  // namespace plenovia
