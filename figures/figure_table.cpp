#include "figures/figure_table.h"

namespace plenovia::figures {
namespace {

constexpr Figure kFigures[] = {
    {"Sphere with meridians", Sphere},
    {"Cube", Cube},
    {"Dodecahedron", Dodecahedron},
    {"Stella octangula", StellaOctangula},
    {"Stepped pyramid", SteppedPyramid},
    {"Fluted cone", FlutedCone},
    {"Twisted torus", TwistedTorus},
    {"Steinmetz solid", SteinmetzSolid},
    {"Hyperboloid of one sheet", Hyperboloid},
    {"Heart", Heart},
    {"Saddle", Saddle},
    {"Monkey saddle", MonkeySaddle},
    {"Gaussian hills", GaussianHills},
    {"Schwarz P surface", SchwarzSurface},
    {"Moebius band", MoebiusBand},
    {"Sombrero", Sombrero},
    {"Egg crate", EggCrate},
    {"Spiral road", SpiralRoad},
    {"Nautilus", Nautilus},
    {"Spiral staircase", SpiralStaircase},
    {"Sunflower", Sunflower},
    {"Pentagram star", Star},
    {"Rose", Rose},
    {"Trefoil knot", Trefoil},
    {"Turk's head knot", TurksHead},
    {"Double helix", DoubleHelix},
    {"Mandelbrot set", Mandelbrot},
    {"Koch snowflake", KochSnowflake},
    {"Sierpinski carpet", SierpinskiCarpet},
    {"Apollonian gasket", ApollonianGasket},
};

}  // namespace

std::span<const Figure> AllFigures() {
  return kFigures;
}

}  // namespace plenovia::figures
