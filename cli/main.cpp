#include "cli/program.h"

int main(int argc, char** argv) {
  return static_cast<int>(plenovia::RunSirds(argc, argv));
}
