#include "bench/table.h"

#include <array>
#include <cstdio>

namespace plenovia::bench {

namespace {

std::string Times(double times, const std::string& as) {
  return Number(times, times < 10 ? 2 : 0, "times as " + as);
}

std::string Speed(double times) {
  return times >= 1 ? Times(times, "fast") : Times(1 / times, "long");
}

}  // namespace

void PrintRow(const std::string& what, const std::string& figure, const std::string& against,
              const std::string& otherFigure, const std::string& ratio) {
  std::printf("| %-46s | %14s | %-40s | %14s | %18s |\n", what.c_str(), figure.c_str(),
              against.c_str(), otherFigure.c_str(), ratio.c_str());
  std::fflush(stdout);
}

void PrintTimes(const std::string& what, double seconds, const std::string& against,
                double otherSeconds) {
  PrintRow(what, Milliseconds(seconds), against, Milliseconds(otherSeconds),
           Speed(otherSeconds / seconds));
}

void PrintRates(const std::string& what, double rate, const std::string& unit,
                const std::string& against, double otherRate) {
  PrintRow(what, Number(rate, 0, "M" + unit + "/s"), against,
           Number(otherRate, 0, "M" + unit + "/s"), Speed(rate / otherRate));
}

std::string Milliseconds(double seconds) {
  return Number(seconds * 1e3, 1, "ms");
}

std::string Number(double value, int digits, const std::string& unit) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f %s", digits, value, unit.c_str());
  return text.data();
}

}  // namespace plenovia::bench
