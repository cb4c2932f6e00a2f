#include "tests/hulp/paden.h"

namespace murvane::proef {

std::filesystem::path BronMap() {
  return MURVANE_BRON;
}

std::filesystem::path Programma(std::string_view naam) {
  return std::filesystem::path(MURVANE_PROGRAMMAS) / naam;
}

}  // namespace murvane::proef
