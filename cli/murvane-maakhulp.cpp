// Makes the manual pages and the completion of the shells; the build runs it.

#include <iostream>
#include <string>
#include <vector>

#include "cli/handleiding.h"

int main(int argc, char** argv) {
  const std::vector<std::string> argumenten(argv + 1, argv + argc);
  return murvane::MaakHulp(argumenten, std::cerr);
}
