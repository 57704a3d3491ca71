#include "sources/formula.h"

namespace plenovia {

std::span<const FormulaExample> FormulaExamples() {
  static const FormulaExample kExamples[] = {
      {"Egg box", {"cos(x)*cos(y)", 8}},
      {"Ripples", {"cos(3*r)*exp(-r/4)", 6}},
      {"Hill", {"exp(-r^2)", 2}},
      {"Volcano", {"r^2*exp(-r^2)", 2.5}},
      {"Ball", {"sqrt(1-r^2)", 1.2}},
      {"Torus", {"sqrt(1-(r-2)^2)", 3.5}},
      {"Saddle", {"x^2-y^2", 2}},
      {"Monkey saddle", {"x^3-3*x*y^2", 2}},
      {"Peaks", {"3*(1-x)^2*exp(-x^2-(y+1)^2)-10*(x/5-x^3-y^5)*exp(-r^2)-exp(-(x+1)^2-y^2)/3", 3}},
      {"Spiral", {"sin(2*r-a)", 8}},
      {"Flower", {"max(0,1+0.5*cos(6*a)-r)", 1.7}},
      {"Stairs", {"floor(x)+floor(y)", 4}},
  };
  return kExamples;
}

}  // namespace plenovia
