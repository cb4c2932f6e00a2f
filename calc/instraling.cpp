#include "calc/instraling.h"

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

bool Instraal(ElementRec& e) {
  if (e.ElementType != elementtype::KanaalRecht && e.ElementType != elementtype::KanaalRond) return false;
  const std::string_view wand = e.Kanaal.Getrimd();
  if (wand.empty() || wand == GeenKanaalwand) {
    e.Instraling.fill(0);
    return false;
  }
  EisEindig({e.Hoogte, e.Breedte, e.Lengte});
  // A width of exactly 0 means round here, whatever the element type.
  const double omtrek =
      e.Breedte == 0 ? (Pi + Pi) * e.Hoogte / 2000 : 2 * (e.Hoogte / 1000 + e.Breedte / 1000);
  const double Sw = omtrek * e.Lengte;
  bool heeft = false;
  for (std::size_t b = 0; b < Banden; ++b) {
    if (e.LAeq[b] == 0) {
      e.Instraling[b] = 0;
    } else {
      e.Instraling[b] = Eindig(e.LAeq[b] - AWeging[b] - e.Rkanaalwand[b] + 10 * Log10(Sw / 4) - 3);
      heeft = true;
    }
  }
  e.Instraling[SomPlaats] = EnergetischeSom(e.Instraling, true);
  return heeft;
}

}  // namespace murvane
