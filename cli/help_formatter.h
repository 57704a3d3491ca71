// The form of the --help texts.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace plenovia {

// Names in the usage line what is required, and leaves out what the words of help say.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter() {
    column_width(24);
    label("Positionals", "Operands");
  }

  std::string make_usage(const CLI::App* app, std::string name) const override {
    std::string usage = "\nUsage: " + name;
    bool choice = false;
    for (const CLI::Option* option : app->get_options()) {
      if (option->get_positional()) {
        usage += " " + option->get_name(true);
      } else if (option->get_required()) {
        usage += " " + option->get_name() + make_option_opts(option);
      } else {
        choice = choice || option != app->get_help_ptr();
      }
    }
    if (app->get_parent() == nullptr) return usage + " COMMAND ...\n";
    return usage + (choice ? " [OPTION ...]\n" : "\n");
  }

  std::string make_option_opts(const CLI::Option* option) const override {
    return option->get_expected_max() == 0 ? "" : CLI::Formatter::make_option_opts(option);
  }

  std::string make_help(const CLI::App* app, std::string name,
                        CLI::AppFormatMode mode) const override {
    return CLI::detail::find_and_replace(CLI::Formatter::make_help(app, name, mode), "\n\n\n",
                                         "\n\n");
  }
};

}  // namespace plenovia
