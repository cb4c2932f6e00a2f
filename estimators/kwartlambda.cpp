#include "estimators/kwartlambda.h"

#include <cmath>

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

std::string Omschrijving(double m, double L, char decimaal) {
  std::string uit = "kwartlambda-demper, s2/s1 = ";
  VoegOpmaakToe(uit, m, Formaat::Een, decimaal);
  return uit.append(" , L = ").append(StandaardTekst(L, decimaal)).append(" m");
}

}  // namespace

std::array<double, Banden> Demping(double m, double L) {
  std::array<double, Banden> uit{};
  for (std::size_t i = 0; i < Banden; ++i) {
    const double Gl = Golflengte(Frequentie[i]);
    const double x = Deel(m * m - 1, m + m) * std::sin(2 * Pi * L / Gl);
    uit[i] = 10 * Log10(1 + x * x);
  }
  return uit;
}

SchatUitslag Bereken(const KwartLambdaInvoer& invoer, char decimaal) {
  const double S1 = KanaalDoorsnede(invoer.h, invoer.B);
  if (invoer.S2 < S1) return Weigering{GeenGeldigeWaarden, "Text4"};
  const double m = Deel(invoer.S2, S1);
  return Schatting{Omschrijving(m, invoer.L, decimaal), HeleDecibels(Demping(m, invoer.L))};
}

SchatUitslag cmdOK_Click(const KwartLambdaInvoer& invoer, char decimaal) {
  if (invoer.h == 0) return Weigering{GeenGeldigeWaarden, "Text1"};
  if (invoer.L == 0) return Weigering{GeenGeldigeWaarden, "Text3"};
  if (invoer.S2 == 0) return Weigering{GeenGeldigeWaarden, "Text4"};
  return Bereken(invoer, decimaal);
}

}  // namespace murvane
