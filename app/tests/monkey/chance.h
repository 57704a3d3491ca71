// What a step of the monkey test leaves to chance.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <cstddef>
#include <cstdint>

#include "platform/random.h"

namespace plenovia {

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  int Int(int low, int high) { return random_.Int(low, high); }
  bool OneIn(int n) { return random_.Int(1, n) == 1; }
  // One of a list that is not empty.
  template <class List>
  const auto& Pick(const List& list) {
    return list[static_cast<decltype(std::size(list))>(
        random_.Int(0, static_cast<int>(std::size(list)) - 1))];
  }
  QPoint In(const QRect& area);
  // What users type into fields: numbers of every size, words, nothing, nonsense.
  QString Text();

 private:
  Random random_;
};

}  // namespace plenovia
