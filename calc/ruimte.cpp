#include "calc/ruimte.h"

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

bool MetFan(const Project& project) {
  return project.Kop.RekenType == rekentype::Installatiegeluid ||
         project.Kop.RekenType == rekentype::Geluidsuitstraling;
}

double NulWaarNegatief(double niveau) {
  return niveau < 0 ? 0 : niveau;
}

}  // namespace

void EindResult(const Project& project, Resultaten& r) {
  constexpr double KleinsteVermogen = 1E-05;
  r.SysteemDemping.fill(0);
  r.FanNaDemping.fill(0);
  r.SysteemGeluid.fill(0);
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  for (int i = 1; i <= project.ElementCount; ++i) {
    const Spectrum& demp = project.Elementen[static_cast<std::size_t>(i)].demp;
    for (std::size_t b = 0; b < Banden; ++b) r.SysteemDemping[b] = Eindig(r.SysteemDemping[b] + demp[b]);
  }
  if (!MetFan(project)) return;
  const Spectrum& Lw = project.Fan.Lw;
  for (std::size_t b = 0; b < Banden; ++b) r.FanNaDemping[b] = Eindig(Lw[b] - r.SysteemDemping[b]);
  r.FanNaDemping[SomPlaats] = EnergetischeSom(r.FanNaDemping, true);
  r.SysteemDemping[SomPlaats] = Eindig(Lw[SomPlaats] - r.FanNaDemping[SomPlaats]);
  for (std::size_t b = 0; b < Banden; ++b) {
    double d = Macht10(r.LwEind[b] / 10) - Macht10(r.FanNaDemping[b] / 10);
    if (d <= 0) d = KleinsteVermogen;
    r.SysteemGeluid[b] = 10 * Log10(d);
  }
  r.SysteemGeluid[SomPlaats] = EnergetischeSom(r.SysteemGeluid, true);
  for (std::size_t b = 0; b <= SomPlaats; ++b) {
    r.FanNaDemping[b] = NulWaarNegatief(r.FanNaDemping[b]);
    r.SysteemGeluid[b] = NulWaarNegatief(r.SysteemGeluid[b]);
  }
}

namespace {

void PerRooster(const Project& project, double A, double N, Resultaten& r) {
  const double galm = 10 * Log10(Deel(4, A));
  const double aantal = 10 * Log10(N);
  const double direct = 10 * Log10(project.Ruimte.RDI / (4 * Pi) + 4 / A);
  for (std::size_t b = 0; b < Banden; ++b) {
    r.LpGalmveld[b] = Eindig(r.LwEind[b] + galm + aantal);
    r.LpEenMeter[b] = Eindig(r.LwEind[b] + direct);
  }
}

void PerKanaalwand(const Project& project, double A, Resultaten& r) {
  const double l = project.Elementen[static_cast<std::size_t>(project.ElementCount)].Lengte;
  const double galm = 10 * Log10(Deel(4, A));
  const double direct = 10 * Log10(Deel(project.Ruimte.RDI, 2 * Pi * l) + 4 / A);
  for (std::size_t b = 0; b < Banden; ++b) {
    r.LpGalmveld[b] = Eindig(r.LwKanaalwand[b] + galm);
    r.LpEenMeter[b] = Eindig(r.LwKanaalwand[b] + direct);
  }
}

void TussenRuimten(double S1, double A, double N, Resultaten& r) {
  const double sectie = 10 * Log10(S1 / 4);
  const double galm = 10 * Log10(Deel(4, A));
  const double aantal = 10 * Log10(N);
  for (std::size_t b = 0; b < Banden; ++b)
    r.OverspraakDemping[b] = Eindig(r.SysteemDemping[b] - sectie - galm - aantal);
}

}  // namespace

void RuimteDemping(const Project& project, Resultaten& r) {
  r.LpGalmveld.fill(0);
  r.LpEenMeter.fill(0);
  r.OverspraakDemping.fill(0);
  if (project.ElementCount < 0 || project.ElementCount > MaxElementen)
    throw Fout(FoutNummer::IndexBuitenBereik);
  const ElementRec& eerste = project.Elementen[1];
  const double S1 = Oppervlak(eerste.Hoogte, eerste.Breedte, eerste.Breedte == 0);
  const RuimteRec& ruimte = project.Ruimte;
  const double V = Eindig(ruimte.RBreedte * ruimte.RHoogte * ruimte.RLengte);
  const double T = ruimte.RNagalm == 0 ? 1E-20 : Eindig(ruimte.RNagalm);
  const std::int16_t type = project.Kop.RekenType;
  const bool vrij = project.VrijVeld == 1 && type != rekentype::Overspraak;
  const double A = vrij ? 1E+20 : Deel(V, 6 * T);
  const double N = vrij ? 1 : ruimte.RAantal;
  if (type == rekentype::Installatiegeluid) PerRooster(project, A, N, r);
  if (type == rekentype::Geluidsuitstraling) PerKanaalwand(project, A, r);
  if (type == rekentype::Overspraak) TussenRuimten(S1, A, N, r);
  if (!MetFan(project)) return;
  r.LpGalmveld[SomPlaats] = EnergetischeSom(r.LpGalmveld, true);
  r.LpEenMeter[SomPlaats] = EnergetischeSom(r.LpEenMeter, true);
}

}  // namespace murvane
