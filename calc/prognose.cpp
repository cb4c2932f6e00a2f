#include "calc/prognose.h"

#include "basis/getal.h"
#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

struct FanSoort {
  std::array<double, Banden> vorm;  ///< spectrum relative to the overall level, dB
  double toon;                      ///< addition at the blade passing frequency, dB
};

const FanSoort& Soort(std::int16_t fanType) {
  static constexpr FanSoort Axiaal = {{-9, -8, -7, -7, -8, -10, -14}, 5};
  static constexpr FanSoort Achterwaarts = {{-9, -8, -7, -12, -17, -22, -27}, 5};
  static constexpr FanSoort Voorwaarts = {{-2, -7, -12, -17, -22, -27, -32}, 3};
  switch (fanType) {
    case fantype::Axiaal:
      return Axiaal;
    case fantype::CentrifugaalVoorwaarts:
      return Voorwaarts;
    case fantype::CentrifugaalAchterwaarts:
      return Achterwaarts;
    default:
      throw Fout(FoutNummer::IndexBuitenBereik);
  }
}

/// Upper limits of the octave bands, Hz; the lower limit of the first is 45.
constexpr std::array<double, Banden> BandTot = {90, 180, 355, 710, 1400, 2800, 5600};
constexpr double EersteBandVanaf = 45;

void VoegToonToe(Spectrum& Lw, double schoepfrequentie, double toon) {
  if (schoepfrequentie <= EersteBandVanaf) return;
  for (std::size_t b = 0; b < Banden; ++b) {
    if (schoepfrequentie <= BandTot[b]) {
      Lw[b] += toon;
      return;
    }
  }
}

}  // namespace

void BerekenPrognose(FanRec& fan) {
  const FanSoort& soort = Soort(fan.FanType);
  EisEindig({fan.FanDebiet, fan.FanDruk, fan.FanToeren, fan.FanSchoepen, fan.FanVermogen});
  double e = Eindig(Deel(fan.FanDruk * fan.FanDebiet, fan.FanVermogen) * 100);  // efficiency, %
  if (e > 100) e = 100;
  const double c = e < 70 ? RondEven((70 - e) * 0.4) : 0;
  const double L = 20 * Log10(fan.FanDruk) + 40 + 10 * Log10(fan.FanDebiet) + c;
  Spectrum Lw{};
  for (std::size_t b = 0; b < Banden; ++b) Lw[b] = Eindig(soort.vorm[b] + L);
  VoegToonToe(Lw, Eindig(fan.FanSchoepen * fan.FanToeren / 60), soort.toon);
  Lw[SomPlaats] = EnergetischeSom(Lw, true);
  fan.Lw = Lw;
}

}  // namespace murvane
