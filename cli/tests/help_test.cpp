// The help texts, and the man page that says the same.
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

#include "cli/tests/fixture.h"
#include "sources/formula.h"

namespace plenovia {

namespace {

std::string Manual() {
  std::ifstream file(SIRDS_MANUAL);
  std::string text((std::istreambuf_iterator<char>(file)), {});
  text = std::regex_replace(text, std::regex(R"(\\-)"), "-");
  return std::regex_replace(text, std::regex(R"(\s+)"), " ");
}

TEST(Help, OfEachCommandIsInTheManualToo) {
  const std::string manual = Manual();
  for (const std::string command : {"make", "depth", "reveal", "figures", "patterns", "info"}) {
    const Finished run = Sirds({command, "--help"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    const std::string help = std::regex_replace(run.out, std::regex(R"(\s+)"), " ");
    EXPECT_NE(help.find("Usage: sirds " + command), std::string::npos) << help;
    EXPECT_NE(manual.find(".SS " + command), std::string::npos);
    // Options, ranges with their defaults, and examples.
    const std::regex facts(R"(--[a-z-]+|-?\d+ to \d+ \(default [^)]*\)|Example: sirds .*[^ ])");
    for (std::sregex_iterator fact(help.begin(), help.end(), facts), end; fact != end; ++fact) {
      std::string text = fact->str();
      if (text.starts_with("Example: ")) text.erase(0, 9);
      EXPECT_NE(manual.find(text), std::string::npos) << "the manual lacks " << text;
    }
  }
}

TEST(Help, ListsTheExamplesOfFormulas) {
  std::ifstream file(FORMULA_PAGE);
  const std::string page((std::istreambuf_iterator<char>(file)), {});
  for (const FormulaExample& example : FormulaExamples()) {
    std::ostringstream reach;
    reach << example.formula.reach;
    const std::string& text = example.formula.text;
    EXPECT_NE(Manual().find(std::string(example.name) + " " + reach.str() + " " + text),
              std::string::npos)
        << example.name;
    EXPECT_NE(page.find("<td>" + std::string(example.name) + "</td><td><code>" + text +
                        "</code></td><td>" + reach.str() + "</td>"),
              std::string::npos)
        << example.name;
  }
}

TEST(Help, OfTheProgramNamesItsCommands) {
  const Finished run = Sirds({"--help"});
  EXPECT_EQ(run.status, 0);
  for (const std::string word : {"make", "depth", "reveal", "figures", "patterns", "info"}) {
    EXPECT_NE(run.out.find("\n  " + word + " "), std::string::npos) << word;
  }
  EXPECT_TRUE(Sirds({"--version"}).out.starts_with("sirds "));
}

}  // namespace

}  // namespace plenovia
