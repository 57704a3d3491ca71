// The one form in which all benchmarks print what they measured: rows of a Markdown table, to which
// bench.sh adds the head.
#pragma once

#include <string>

namespace plenovia::bench {

// A figure and what it is compared with.
void PrintRow(const std::string& what, const std::string& figure, const std::string& against,
              const std::string& otherFigure, const std::string& ratio);

// Rows of times, in seconds.
void PrintTimes(const std::string& what, double seconds, const std::string& against,
                double otherSeconds);
// Rows of rates, in millions of `unit` a second.
void PrintRates(const std::string& what, double rate, const std::string& unit,
                const std::string& against, double otherRate);

// "12.3 ms"
std::string Milliseconds(double seconds);
// `value` with that number of digits behind the point, and the unit behind it.
std::string Number(double value, int digits, const std::string& unit);

}  // namespace plenovia::bench
