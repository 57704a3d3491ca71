#include "cli/figure_list.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "figures/sirdmath.h"
#include "platform/ascii.h"

namespace plenovia {

FigureList::FigureList() {
  _InitFigureTitles();
  for (std::int32_t i = 0; i < _GetFigureCount(); ++i) {
    std::array<char, 128> title{};
    _GetFigureTitle(i, title.data(), static_cast<std::int32_t>(title.size()));
    titles_.emplace_back(title.data());
  }
}

FigureList::~FigureList() {
  _UnloadFigureTitles();
}

Outcome<int> FigureList::Find(std::string_view name) const {
  const int count = static_cast<int>(titles_.size());
  int number = 0;
  const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  if (stop == name.data() + name.size() && !name.empty()) {
    if (error == std::errc() && number >= 0 && number < count) return number;
    return WrongUsage("figure:" + std::string(name) + ": figures are numbered from 0 to " +
                      std::to_string(count - 1));
  }
  std::vector<int> matches;
  for (int i = 0; i < count; ++i) {
    const std::string_view title = titles_[static_cast<std::size_t>(i)];
    if (SameLetters(title, name)) return i;
    if (!name.empty() && SameLetters(title.substr(0, name.size()), name)) matches.push_back(i);
  }
  if (matches.size() == 1) return matches.front();
  std::string message = "figure:" + std::string(name) + ": ";
  if (matches.empty()) return WrongUsage(message + "no such figure; 'sirds figures' lists them");
  message += "could be ";
  for (const int i : matches) {
    if (i != matches.front()) message += i == matches.back() ? " or " : ", ";
    message += titles_[static_cast<std::size_t>(i)];
  }
  return WrongUsage(message);
}

}  // namespace plenovia
