#include "calc/uitstraal.h"

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

constexpr double KleinsteIsolatie = 3;  // dB

/// 10·log10 of wall area over section of a duct; round when its width is exactly 0.
double WandVerhouding(const ElementRec& e) {
  EisEindig({e.Hoogte, e.Breedte, e.Lengte});
  const bool rond = e.Breedte == 0;
  const double Sw =
      rond ? (Pi + Pi) * e.Hoogte / 2000 * e.Lengte : 2 * (e.Hoogte / 1000 + e.Breedte / 1000) * e.Lengte;
  const double Sa = rond ? e.Hoogte * Pi / 2000 * e.Hoogte / 2000 : e.Breedte / 1000 * e.Hoogte / 1000;
  return 10 * Log10(Deel(Sw, Sa));
}

void DoorWandEnPlafond(const Project& project, std::size_t n, Resultaten& r) {
  const double verhouding = WandVerhouding(project.Elementen[n]);
  const Spectrum& ervoor = n == 1 ? project.Fan.Lw : r.Subtotaal[n - 1];
  for (std::size_t b = 0; b < Banden; ++b) {
    double y = Eindig(project.Ruimte.Rkanaal[b] - verhouding);
    if (y < KleinsteIsolatie) y = KleinsteIsolatie;
    r.LwEind[b] = Eindig((ervoor[b] + r.Subtotaal[n][b]) / 2);  // the mean of the levels, not of the powers
    r.LwKanaalwand[b] = Eindig(r.LwEind[b] - y - project.Ruimte.Rplafond[b]);
  }
  r.LwKanaalwand[SomPlaats] = EnergetischeSom(r.LwKanaalwand, true);
  r.LwEind[SomPlaats] = EnergetischeSom(r.LwEind, true);
}

}  // namespace

void UitStraal(const Project& project, Resultaten& r) {
  r.LwEind.fill(0);
  r.LwKanaalwand.fill(0);
  if (project.ElementCount < 0 || project.ElementCount > MaxElementen)
    throw Fout(FoutNummer::IndexBuitenBereik);
  const auto n = static_cast<std::size_t>(project.ElementCount);
  if (project.Kop.RekenType == rekentype::Installatiegeluid) {
    for (std::size_t b = 0; b < Banden; ++b) r.LwEind[b] = r.Subtotaal[n][b];
    r.LwEind[SomPlaats] = EnergetischeSom(r.LwEind, true);
  } else if (project.Kop.RekenType == rekentype::Geluidsuitstraling) {
    if (n == 0) throw Fout(FoutNummer::IndexBuitenBereik);
    DoorWandEnPlafond(project, n, r);
  }
}

}  // namespace murvane
