#include "estimators/kanaalwand.h"

#include <algorithm>

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

const KanaalSoort* ZoekSoort(std::int32_t kanaalType) {
  const auto* const soort =
      std::find_if(KanaalSoorten.begin(), KanaalSoorten.end(),
                   [kanaalType](const KanaalSoort& een) { return een.KanaalType == kanaalType; });
  return soort == KanaalSoorten.end() ? nullptr : soort;
}

const KanaalSoort& Soort(std::int32_t kanaalType) {
  const KanaalSoort* const soort = ZoekSoort(kanaalType);
  if (soort == nullptr) throw Fout(FoutNummer::IndexBuitenBereik);
  return *soort;
}

/// A number as the descriptions have it: one blank stands for the sign.
std::string MetVoorblank(double getal, char decimaal) {
  return " " + StandaardTekst(getal, decimaal);
}

std::string Omschrijving(const KanaalwandInvoer& in, const KanaalSoort& soort, char decimaal) {
  std::string uit(soort.Caption);
  uit.append(", ").append(MetVoorblank(in.Dikte, decimaal)).append(" mm");
  if (in.Massa > 0)
    uit.append(", massa ontdreuning ").append(MetVoorblank(in.Massa, decimaal)).append(" kg/m²"_cp);
  return uit;
}

}  // namespace

double Isolatie(double Massakan, double mf) {
  if (Massakan <= 150) {
    if (mf <= 15) return 16.6 * Log10(mf) + 14.3;
    if (mf <= 62) return 5 * Log10(mf) + 28;
    return 30 * Log10(mf + 50) - 24.5;
  }
  if (mf <= 40) return 16.6 * Log10(mf) + 13;
  if (mf <= 100) return 11.6 * Log10(mf) + 21;
  return -20 * Log10(Deel(1, mf) + 0.001) + 5;
}

void Form_Load(KanaalwandInvoer& invoer) {
  if (ZoekSoort(invoer.KanaalType) == nullptr) invoer.KanaalType = kanaaltype::Zink;
}

Schatting Bereken(const KanaalwandInvoer& invoer, char decimaal) {
  const KanaalSoort& soort = Soort(invoer.KanaalType);
  const double Massakan = invoer.Dikte * soort.Massa + invoer.Massa;
  std::array<double, Banden> niveaus{};
  for (std::size_t i = 0; i < Banden; ++i) niveaus[i] = Isolatie(Massakan, Frequentie[i] * Massakan / 1000);
  return {Omschrijving(invoer, soort, decimaal), HeleDecibels(niveaus)};
}

SchatUitslag cmdOK_Click(const KanaalwandInvoer& invoer, char decimaal) {
  if (invoer.Dikte == 0) return Weigering{"Geen dikte kanaalwand ingevuld", "txtDikte"};
  return Bereken(invoer, decimaal);
}

}  // namespace murvane
