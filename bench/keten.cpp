#include "bench/keten.h"

#include <algorithm>
#include <array>

namespace murvane {

namespace {

constexpr std::array<std::int16_t, 12> Volgorde = {8, 3, 9, 5, 4, 1, 6, 10, 7, 2, 99, 8};

ElementRec MaakElement(int i, std::int16_t type) {
  ElementRec e;
  e.Naam = "Element van de meetketen";
  e.ElementType = type;
  e.Hoogte = 250 + i % 3 * 50;
  e.Breedte = type == 2 || type == 5 || type == 7 || type == 9 ? 0 : 400;
  e.HHoofd = 400, e.BHoofd = 500;
  e.HDoor = 300 + i % 2 * 150, e.BDoor = 450;
  e.Lengte = (8 + i % 5 * 7) / 10.0;  // as typed, with one decimal
  e.Debiet = (45 + i % 4) / 100.0;
  e.QAftak = 0.44;
  e.RAftak = 0.12;
  e.Snetto = 350;
  e.Weerstand = 25 + i % 7;
  if (type == elementtype::Catalogus) {
    e.demp = {2, 5, 11.5, 20, 24, 18, 12, 0};
    e.ruis = {38, 35, 31, 28, 22, 16, 11, 33};
  }
  if ((type == 8 || type == 9) && i % 2 == 0) {
    e.Kanaal = "Verzinkt staal 0,8 mm";
    e.LAeq = {55, 56, 54, 52, 50, 45, 40, 0};
    e.Rkanaalwand = {9, 12, 16, 20, 24, 28, 33, 0};
  }
  return e;
}

bool IsKanaal(const ElementRec& e) {
  return e.ElementType == elementtype::KanaalRecht || e.ElementType == elementtype::KanaalRond;
}

int AantalNietNul(const Spectrum& s) {
  return static_cast<int>(std::count_if(s.begin(), s.begin() + Banden, [](double x) { return x != 0; }));
}

/// Logarithms of an element's own model, its energetic sums apart.
int ModelLogaritmen(const ElementRec& e) {
  constexpr int PerBand = Banden;
  switch (e.ElementType) {
    case elementtype::AftakRecht:
    case elementtype::AftakRond:
      return PerBand + 4;  // curve; section ratio, speeds, diameter, speed
    case elementtype::BochtHaaks:
    case elementtype::BochtRecht:
    case elementtype::BochtRond:
      return PerBand + 2;  // curve; diameter, speed
    case elementtype::DrsneeRecht:
    case elementtype::DrsneeRond:
      return 1;  // reflection
    case elementtype::KanaalRecht:
    case elementtype::KanaalRond:
      return e.Lengte < 0.5 ? 0 : 2;  // speed, section
    case elementtype::Klep:
      return PerBand + 2;  // curve; pressure, section
    case elementtype::Rooster:
      return 2 * PerBand + 2;  // reflection and curve; pressure, section
    default:
      return 0;
  }
}

bool MaaktRuis(const ElementRec& e) {
  return e.ElementType != elementtype::DrsneeRecht && e.ElementType != elementtype::DrsneeRond &&
         e.ElementType != elementtype::Catalogus;
}

void TelElement(const ElementRec& e, Aanroepen& uit) {
  uit.Logaritmen += ModelLogaritmen(e);
  if (MaaktRuis(e)) {
    uit.Machten += AantalNietNul(e.ruis);
    uit.Logaritmen += 1;
  }
  if (IsKanaal(e) && AantalNietNul(e.Instraling) > 0) {
    uit.Machten += AantalNietNul(e.Instraling);
    uit.Logaritmen += 2;  // wall area, sum
  }
  // The running level: fan and predecessor, self-noise, break-in, then the A-weighted sum.
  uit.Machten += Banden + AantalNietNul(e.ruis) + AantalNietNul(e.Instraling) + Banden;
  uit.Logaritmen += Banden + 1;
}

}  // namespace

Project GemengdeKeten(int aantal) {
  Project project;
  project.Kop.ProNaam = "Meetketen";
  project.Kop.MyDate = "01-01-2026";
  project.Kop.RekenType = rekentype::Installatiegeluid;
  project.Fan.FanNaam = "Ventilator van de meetketen";
  project.Fan.Lw = {92.4, 93.1, 90.7, 88.2, 85.9, 81.3, 75.6, 91.5};
  project.ElementCount = static_cast<std::int16_t>(aantal);
  for (int i = 1; i <= aantal; ++i) {
    const auto type =
        i == aantal ? elementtype::Rooster : Volgorde[static_cast<std::size_t>(i - 1) % Volgorde.size()];
    project.Elementen[static_cast<std::size_t>(i)] = MaakElement(i, type);
  }
  project.Ruimte.RLengte = 6.2, project.Ruimte.RBreedte = 4.1, project.Ruimte.RHoogte = 2.7;
  project.Ruimte.RDI = 2, project.Ruimte.RNagalm = 0.6, project.Ruimte.RNR = 35, project.Ruimte.RAantal = 2;
  return project;
}

Aanroepen TelAanroepen(const Project& berekend) {
  Aanroepen uit;
  for (int i = 1; i <= berekend.ElementCount; ++i)
    TelElement(berekend.Elementen[static_cast<std::size_t>(i)], uit);
  // End of the chain, fan behind the attenuation and own noise (two powers and a logarithm a band), the room.
  constexpr int Sommen = 5;  // LwEind, FanNaDemping, SysteemGeluid, LpGalmveld, LpEenMeter
  uit.Machten += Sommen * Banden + 2 * Banden;
  uit.Logaritmen += Sommen + Banden + 3;
  return uit;
}

}  // namespace murvane
