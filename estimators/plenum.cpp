#include "estimators/plenum.h"

#include <algorithm>

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"
#include "estimators/bekleed.h"

namespace murvane {

namespace {

std::string Omschrijving(const PlenumInvoer& in, char decimaal) {
  std::string uit = "plenumdemper, " + StandaardTekst(in.Hdemper, decimaal);
  uit.append("×"_cp).append(StandaardTekst(in.Bdemper, decimaal));
  uit.append("×"_cp).append(StandaardTekst(in.L * 1000, decimaal));
  return uit.append(" mm , d = ").append(StandaardTekst(in.Dikte, decimaal)).append(" mm");
}

/// All six inner faces of the box, m²; the openings are not taken off.
double BekledeOppervlakte(double Hdemper, double Bdemper, double L) {
  return (2 * L) * Hdemper / 1000 + (2 * L) * Bdemper / 1000 + (2 * Bdemper / 1000) * Hdemper / 1000;
}

/// Mean distance from inlet to outlet, m: of the straight length and the diagonal over the height of the box.
double Afstand(double Hdemper, double L) {
  const double hoogte = Hdemper / 1000;
  return (L + Wortel(L * L + hoogte * hoogte)) / 2;
}

bool LaatDoorgang(const PlenumInvoer& in) {
  return in.Dikte >= 1 && 2 * in.Dikte < in.Hdemper && 2 * in.Dikte < in.Bdemper;
}

}  // namespace

std::array<double, Banden> Demping(const PlenumInvoer& invoer) {
  const double S = KanaalDoorsnede(invoer.h, invoer.B);
  const double dL = Afstand(invoer.Hdemper, invoer.L);
  const double Sdemper = BekledeOppervlakte(invoer.Hdemper, invoer.Bdemper, invoer.L);
  const std::array<double, Banden> alpha = ExtraPolatie(invoer.Dikte);
  std::array<double, Banden> uit{};
  for (std::size_t i = 0; i < Banden; ++i) {
    const double Absorptie = alpha[i] * Sdemper;
    const double over = S * (Deel(invoer.L, 2 * Pi * (dL * dL * dL)) + Deel(1, Absorptie));
    uit[i] = std::max(-10 * Log10(over), 0.0);
  }
  return uit;
}

Schatting Bereken(const PlenumInvoer& invoer, char decimaal) {
  return {Omschrijving(invoer, decimaal), HeleDecibels(Demping(invoer))};
}

SchatUitslag cmdOK_Click(const PlenumInvoer& invoer, char decimaal) {
  if (invoer.Hdemper == 0) return Weigering{GeenGeldigeWaarden, "Text1"};
  if (invoer.Bdemper == 0) return Weigering{GeenGeldigeWaarden, "Text2"};
  if (invoer.L == 0) return Weigering{GeenGeldigeWaarden, "Text3"};
  if (!(invoer.h != 0 && invoer.h < invoer.Hdemper)) return Weigering{GeenGeldigeWaarden, "Text4"};
  if (invoer.B > invoer.Bdemper) return Weigering{GeenGeldigeWaarden, "Text5"};
  if (!LaatDoorgang(invoer)) return Weigering{GeenGeldigeWaarden, "Text6"};
  return Bereken(invoer, decimaal);
}

}  // namespace murvane
