#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/recipe.h"
#include "cli/source.h"
#include "codec/picture_format.h"

namespace plenovia {

namespace {

std::string Lines(const std::string& format, int width, int height) {
  return "format: " + format + "\nsize: " + std::to_string(width) + 'x' + std::to_string(height) +
         '\n';
}

std::size_t DifferentLevels(const FineImage& image) {
  std::vector<bool> occurs(FineImage::kHighest + 1);
  for (const std::uint16_t level : image.pixels()) occurs[level] = true;
  return static_cast<std::size_t>(std::ranges::count(occurs, true));
}

Outcome<void> Tell(const std::string& file) {
  const auto opened = OpenFile(file);
  if (!opened) return tl::unexpected(opened.error());
  if (const auto* map = std::get_if<TDepthList>(&opened->source)) {
    return Print(Lines(opened->format, map->GridWidth(), map->GridHeight()) +
                 "objects: " + std::to_string(map->CountObjects()) + '\n');
  }
  if (const auto* fine = std::get_if<FineImage>(&opened->source)) {
    return Print(Lines(opened->format, fine->width(), fine->height()) +
                 "levels: " + std::to_string(DifferentLevels(*fine)) + '\n');
  }
  if (const auto* mesh = std::get_if<Mesh>(&opened->source)) {
    return Print("format: " + opened->format +
                 "\ntriangles: " + std::to_string(mesh->triangles.size()) + '\n');
  }
  const auto& picture = std::get<IndexedImage>(opened->source);
  std::string lines = Lines(opened->format, picture.width(), picture.height()) +
                      "colours: " + std::to_string(picture.palette().size()) + '\n';
  if (!opened->comment.empty()) {
    const auto recipe = ReadRecipe(opened->comment);
    if (recipe) lines += RecipeLines(*recipe);
    if (!recipe) Warn(file, recipe.error().message);
  }
  return Print(lines);
}

}  // namespace

void AddInfoCommand(CLI::App& program, Task& task) {
  CLI::App* command = program.add_subcommand("info", "Tell what is in a file");
  auto file = std::make_shared<std::string>();
  AddOperand(*command, "FILE", *file, "A picture (" + ReadableNames() + ")\nor a depth map (.rds)");
  command->footer(
      "Prints lines such as \"format: GIF\", \"size: 640x480\" and \"colours: 256\" (the colours\n"
      "of its palette); of a depth picture of fine levels \"levels: 1000\", those that occur; of\n"
      "a model \"triangles: 800\"; of a depth map \"format: RDS\", its size and \"objects: 7\".\n"
      "Of a stereogram that has its\n"
      "recipe the source, the pattern and the options that made it.\n\n"
      "Example: sirds info scene.png");
  command->callback([&task, file] { task = [file] { return Tell(*file); }; });
}

}  // namespace plenovia
