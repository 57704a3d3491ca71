// The figures, each a height above the plane. `p` is a point of the plane with coordinates within
// -1.3..1.3, `turn` the angle by which the figure is turned; the result is the height from 0 to 1,
// or 0 where the figure has no point. Values outside 0..1 stand for the nearer of both ends.
#pragma once

#include "figures/geometry.h"

namespace plenovia::figures {

using HeightFunction = double (*)(Point p, Turn turn);

// polyhedra.cpp: flat-faced solids.
// Hexahedron: max(|x|, |y|, |z|) = a.
double Cube(Point p, Turn turn);
// Regular dodecahedron: max |n_i . p| = a, the n_i towards the vertices (0, 1, phi) of an
// icosahedron.
double Dodecahedron(Point p, Turn turn);
// Kepler's stella octangula, the compound of two tetrahedra: n_i . p <= a or -n_i . p <= a for the
// four n_i = (1, 1, 1), (1, -1, -1), (-1, 1, -1), (-1, -1, 1).
double StellaOctangula(Point p, Turn turn);
// Stepped pyramid: z = floor(k (1 - max(|x|, |y|))) / k, with a ramp on each side.
double SteppedPyramid(Point p, Turn turn);

// rounds.cpp: curved solids.
// Sphere: x^2 + y^2 + z^2 = 1, its gores bounded by meridians.
double Sphere(Point p, Turn turn);
// Fluted cone: z = 1 - r (1 + e cos 8 phi).
double FlutedCone(Point p, Turn turn);
// Torus: (r - R)^2 + z^2 = a^2, wound with helical ridges.
double TwistedTorus(Point p, Turn turn);
// Steinmetz solid (tricylinder): x^2 + y^2 <= 1, y^2 + z^2 <= 1, z^2 + x^2 <= 1.
double SteinmetzSolid(Point p, Turn turn);
// Hyperboloid of one sheet: x^2 + z^2 - c^2 y^2 = a^2, with one family of its rulings.
double Hyperboloid(Point p, Turn turn);
// Taubin's heart surface: (x^2 + y^2 + 9/4 z^2 - 1)^3 = x^2 y^3 + 9/80 z^2 y^3.
double Heart(Point p, Turn turn);

// surfaces.cpp: graphs of functions and minimal or one-sided surfaces.
// Hyperbolic paraboloid: z = x^2 - y^2.
double Saddle(Point p, Turn turn);
// Monkey saddle: z = x^3 - 3 x y^2 = Re (x + iy)^3.
double MonkeySaddle(Point p, Turn turn);
// Gaussian hills: z = sum of A_i exp(-|p - p_i|^2 / s_i^2).
double GaussianHills(Point p, Turn turn);
// Schwarz's P surface: cos x + cos y + cos z = 0.
double SchwarzSurface(Point p, Turn turn);
// Moebius band: (r - R, z) = s (cos phi/2, sin phi/2), thickened.
double MoebiusBand(Point p, Turn turn);
// Sinc: z = sin(k r) / (k r), over an ellipse.
double Sombrero(Point p, Turn turn);
// Egg crate: z = cos(k x) cos(k y), over a paraboloid.
double EggCrate(Point p, Turn turn);

// spirals.cpp
// Archimedean spiral: r = a phi, a road that climbs with phi.
double SpiralRoad(Point p, Turn turn);
// Logarithmic spiral: r = exp(b phi), the outline of a shell.
double Nautilus(Point p, Turn turn);
// Helicoid: z = phi / 2 pi, in steps.
double SpiralStaircase(Point p, Turn turn);
// Vogel's spiral (phyllotaxis): r = c sqrt(n), phi = n times the golden angle.
double Sunflower(Point p, Turn turn);

// stars.cpp: figures with a rotational symmetry.
// Pentagram {5/2}, raised to a pyramid.
double Star(Point p, Turn turn);
// Rhodonea (rose curve) r = |cos 5/2 phi|, its petals widened, in three layers.
double Rose(Point p, Turn turn);

// knots.cpp: tubes about closed braids r = R + A cos(t), z = B sin(m t), t = (p phi + 2 pi k) / q.
// Trefoil, the torus knot (3, 2).
double Trefoil(Point p, Turn turn);
// Turk's head of 3 leads and 5 bights (knot 10_123).
double TurksHead(Point p, Turn turn);
// Double helix: x = +-A sin(k y), z = +-A cos(k y), with rungs.
double DoubleHelix(Point p, Turn turn);

// fractals.cpp
// Mandelbrot set: z -> z^2 + c stays bounded; outside it the height falls with the distance.
double Mandelbrot(Point p, Turn turn);
// Koch snowflake, the stages of its construction as terraces.
double KochSnowflake(Point p, Turn turn);
// Sierpinski carpet, the squares that each stage takes away as towers.
double SierpinskiCarpet(Point p, Turn turn);
// Apollonian gasket with the curvatures (-1, 2, 2, 3), its circles as half spheres.
double ApollonianGasket(Point p, Turn turn);

}  // namespace plenovia::figures
