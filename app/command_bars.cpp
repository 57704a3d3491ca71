#include "app/command_bars.h"

#include <initializer_list>

namespace plenovia {

namespace {

constexpr int kNarrow = 6;
constexpr int kWide = 12;

}  // namespace

void FillMainBar(ButtonBar& bar, const ActionOfCommand& action) {
  const auto add = [&](std::initializer_list<int> commands) {
    for (const int command : commands) bar.AddCommand(action(command));
  };
  add({109, 901});
  bar.AddSeparator(kNarrow);
  add({24331, 24332, 24333, 221, 223, 24337});
  bar.AddSeparator(kNarrow);
  add({101, 102, 112, 110, 103, 105});
  bar.AddSeparator(kNarrow);
  add({107, 111});
  bar.AddSeparator(kWide);
  add({205, 24310});
}

void FillToolsPalette(ButtonBar& bar, const ActionOfCommand& action) {
  for (const int tool : {1251, 1252, 1255, 1256, 1257, 1258, 1259, 1260, 1261, 1253, 1254}) {
    bar.AddExclusive(action(tool));
  }
  for (const int command : {1262, 1263, 1264, 1265, 1266}) bar.AddCommand(action(command));
}

}  // namespace plenovia
