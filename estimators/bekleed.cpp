#include "estimators/bekleed.h"

#include <algorithm>
#include <cmath>

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

/// Thickness in mm and absorption coefficient per octave band.
struct AlphaRij {
  double dikte;
  std::array<double, Banden> alpha;
};

constexpr std::array<AlphaRij, 3> AlphaTabel = {{
    {12.5, {0.04, 0.08, 0.14, 0.32, 0.60, 0.73, 0.73}},
    {25, {0.04, 0.12, 0.36, 0.56, 0.80, 0.84, 0.78}},
    {50, {0.10, 0.32, 0.60, 0.88, 0.94, 0.92, 0.88}},
}};

constexpr double MinAlpha = 0.01;
constexpr double MaxAlpha = 1;

double Alpha(double d, std::size_t i) {
  const auto& [dun, midden, dik] = AlphaTabel;
  const double t0 = dun.alpha[i];
  const double t1 = midden.alpha[i];
  const double t2 = dik.alpha[i];
  if (d < dun.dikte) return (t0 - MinAlpha) * (d / dun.dikte) + MinAlpha;
  if (d < midden.dikte) return (t1 - t0) * (d - dun.dikte) / (midden.dikte - dun.dikte) + t0;
  if (d < dik.dikte) return (t2 - t1) * (d - midden.dikte) / (dik.dikte - midden.dikte) + t1;
  return Deel((t2 - t1) * (d - dik.dikte), d) + t2;  // divided by d and not by a step: it levels off
}

std::string Omschrijving(const BekleedInvoer& in, char decimaal) {
  std::string uit = "bekleed kanaal, ";
  if (in.B == 0) {
    uit.append("D = ");
  } else {
    uit.append(StandaardTekst(in.B, decimaal)).append("×"_cp);  // width first, as ducts are written
  }
  uit.append(StandaardTekst(in.h, decimaal));
  uit.append(" mm , d = ").append(StandaardTekst(in.Dikte, decimaal));
  return uit.append(" mm, L = ").append(StandaardTekst(in.L, decimaal)).append(" m");
}

double KanaalOmtrek(double h, double B) {
  return B == 0 ? 2 * Pi * h / 2000 : 2 * (h / 1000 + B / 1000);
}

}  // namespace

std::array<double, Banden> ExtraPolatie(double dikte) {
  std::array<double, Banden> uit{};
  for (std::size_t i = 0; i < Banden; ++i) uit[i] = std::clamp(Alpha(dikte, i), MinAlpha, MaxAlpha);
  return uit;
}

std::array<double, Banden> Demping(const BekleedInvoer& invoer) {
  const double Omtrek = KanaalOmtrek(invoer.h, invoer.B);
  const double Doorsnede = KanaalDoorsnede(invoer.h, invoer.B);
  const double Gk = Wortel(Doorsnede * 4 / Pi);
  std::array<double, Banden> alpha = ExtraPolatie(invoer.Dikte);
  std::array<double, Banden> uit{};
  for (std::size_t i = 0; i < Banden; ++i) {
    const double Gl = Golflengte(Frequentie[i]);
    if (Gk > Gl) alpha[i] = alpha[i] * Gl / Gk;  // wider than a wavelength: sound passes by the lining
    uit[i] = Eindig(std::pow(alpha[i], 1.4) * Deel(Omtrek, Doorsnede) * invoer.L);
  }
  return uit;
}

Schatting Bereken(const BekleedInvoer& invoer, char decimaal) {
  return {Omschrijving(invoer, decimaal), HeleDecibels(Demping(invoer))};
}

SchatUitslag cmdOK_Click(const BekleedInvoer& invoer, char decimaal) {
  const double tweemaal = 2 * invoer.Dikte;
  if (invoer.h == 0) return Weigering{GeenGeldigeWaarden, "Text1"};
  if (!(invoer.Dikte != 0 && tweemaal < invoer.h && (tweemaal < invoer.B || invoer.B == 0)))
    return Weigering{GeenGeldigeWaarden, "Text3"};
  if (invoer.L == 0) return Weigering{GeenGeldigeWaarden, "Text4"};
  return Bereken(invoer, decimaal);
}

}  // namespace murvane
