#include "shell/programma.h"

#include <algorithm>
#include <string>

namespace murvane {

namespace {

std::string MetNullen(unsigned getal, std::size_t breedte) {
  const std::string cijfers = std::to_string(getal);
  return std::string(breedte - std::min(breedte, cijfers.size()), '0') + cijfers;
}

}  // namespace

DatumVeld DatumTekst(std::chrono::year_month_day datum) {
  const auto jaar = static_cast<unsigned>(static_cast<int>(datum.year()));
  return DatumVeld(MetNullen(static_cast<unsigned>(datum.day()), 2) + "-" +
                   MetNullen(static_cast<unsigned>(datum.month()), 2) + "-" + MetNullen(jaar, 4));
}

}  // namespace murvane
