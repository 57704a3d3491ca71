// The figures of the figure library by number and title.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/outcome.h"

namespace plenovia {

// At most one at a time: it opens the library and closes it.
class FigureList {
 public:
  FigureList();
  FigureList(const FigureList&) = delete;
  FigureList& operator=(const FigureList&) = delete;
  ~FigureList();

  const std::vector<std::string>& titles() const { return titles_; }
  // The number of the figure that is meant by a number, a title or the beginning of one title
  // only; capitals do not matter. Anything else is wrong usage.
  Outcome<int> Find(std::string_view name) const;

 private:
  std::vector<std::string> titles_;
};

}  // namespace plenovia
