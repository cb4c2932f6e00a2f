// Makes the data files that come with the program from data/bron/.

#include <iostream>
#include <string>
#include <vector>

#include "cli/databouw.h"

int main(int argc, char** argv) {
  const std::vector<std::string> argumenten(argv + 1, argv + argc);
  return murvane::MaakData(argumenten, std::cout, std::cerr);
}
