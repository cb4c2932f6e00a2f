// The models to the last bit: each formula once more, plainly, in the order in which the rules state it, with
// logarithms as ln x / ln 10. No tolerance: a report that rounds the other way is a different report.

#include <cmath>
#include <random>

#include "calc/elementen.h"
#include "calc/instraling.h"
#include "calc/prognose.h"
#include "calc/reken.h"
#include "calc/ruimte.h"
#include "calc/spectrum.h"
#include "calc/uitstraal.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

constexpr int Ronden = 300;
const double pi = 4 * std::atan(1.0);

double Lg(double x) {
  return std::log(x) / std::log(10.0);
}
double Tien(double y) {
  return std::pow(10.0, y);
}

double Som(const Spectrum& s) {
  double som = 0;
  for (std::size_t b = 0; b < Banden; ++b) {
    if (s[b] != 0) som = som + Tien((s[b] + AWeging[b]) / 10);
  }
  return som == 0 ? 0 : 10 * std::log(som) / std::log(10.0);
}

double Recht(double h, double b) {
  return (h / 1000) * (b / 1000);
}
double Rond(double h) {
  return (h / 2000) * pi * (h / 2000);
}
double Nul(double x) {
  return x < 0 ? 0 : x;
}

/// Usable records with many digits.
class Bron {
 public:
  double Tussen(double laag, double hoog) {
    return laag + (hoog - laag) * static_cast<double>(bron_() >> 11) / 9007199254740992.0;
  }
  Spectrum Niveaus(double laag, double hoog) {
    Spectrum uit{};
    for (double& waarde : uit) waarde = bron_() % 6 == 0 ? 0 : Tussen(laag, hoog);
    return uit;
  }
  ElementRec Element(int type) {
    ElementRec e;
    e.ElementType = static_cast<std::int16_t>(type);
    e.Hoogte = Tussen(80, 1200), e.Breedte = Tussen(80, 1200);
    e.HHoofd = Tussen(80, 1200), e.BHoofd = bron_() % 2 == 0 ? 0 : Tussen(80, 1200);
    e.HDoor = Tussen(80, 1200), e.BDoor = bron_() % 2 == 0 ? 0 : Tussen(80, 1200);
    e.Lengte = Tussen(0.5, 12), e.Debiet = Tussen(0.02, 6), e.QAftak = Tussen(0.02, 4);
    e.Snetto = Tussen(20, 2000), e.Weerstand = Tussen(2, 300), e.RAftak = Tussen(0, 0.6);
    return e;
  }

 private:
  std::mt19937_64 bron_{7};
};

TEST(Volgorde, StraightDucts) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    ElementRec e = bron.Element(8 + i % 2);
    ElementTekstRijen tekst;
    ReKan(e, tekst, '.');
    const double S = e.ElementType == 8 ? Recht(e.Hoogte, e.Breedte) : Rond(e.Hoogte);
    const double v = e.Debiet / S;
    const double L = 50 * Lg(v) + 7 + 10 * Lg(S);
    const Bandwaarden vorm = {-5, -6, -7, -8, -9, -10, -14};
    for (std::size_t b = 0; b < Banden; ++b) ASSERT_EQ(e.ruis[b], L + vorm[b]);
    ASSERT_EQ(e.ruis[7], Som(e.ruis));
  }
}

TEST(Volgorde, Bends) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    ElementRec e = bron.Element(3 + i % 3);
    ElementTekstRijen tekst;
    Bocht(e, tekst, '.');
    const bool rond = e.ElementType == 5;
    const double S = rond ? Rond(e.Hoogte) : Recht(e.Hoogte, e.Breedte);
    const double d = rond ? e.Hoogte : std::sqrt(4 * e.Hoogte * e.Breedte / pi);
    const double v = e.Debiet / S;
    for (std::size_t b = 0; b < Banden; ++b) {
      double K = BochtKromme(Frequentie[b] * d / (v * 1000));
      if (e.ElementType == 3) K = K + 5;
      ASSERT_EQ(e.ruis[b], Nul(10 * Lg(BandBreedte[b]) + K + 30 * Lg(d / 1000) + 50 * Lg(v)));
    }
    ASSERT_EQ(e.ruis[7], Som(e.ruis));
  }
}

TEST(Volgorde, Branches) {
  constexpr double Grens[] = {1, 2, 3, 4, 6, 10, 15, 1E+300};
  constexpr double Factor[] = {32.5, 35, 37.5, 38.1, 40, 41.9, 43.8, 48.75};
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    ElementRec e = bron.Element(1 + i % 2);
    ElementTekstRijen tekst;
    Aftak(e, tekst, '.');
    const bool rond = e.ElementType == 2;
    const double Sa = rond ? Rond(e.Hoogte) : Recht(e.Hoogte, e.Breedte);
    const double d = rond ? e.Hoogte : std::sqrt(4 * e.Hoogte * e.Breedte / pi);
    const double Sh = e.BHoofd <= 0 ? Rond(e.HHoofd) : Recht(e.HHoofd, e.BHoofd);
    const double Sd = e.BDoor <= 0 ? Rond(e.HDoor) : Recht(e.HDoor, e.BDoor);
    const double va = e.QAftak / Sa, vh = e.Debiet / Sh;
    for (std::size_t b = 0; b < Banden; ++b) {
      const double x = Frequentie[b] * d / (va * 1000);
      const double T = x <= 10 ? 6.4 - (x - 2) * 0.1875 : 4.9 - (x - 10) * 0.03;
      const double R = (1 - e.RAftak / 0.15) * T;
      std::size_t rij = 0;
      while (x > Grens[rij]) ++rij;
      const double K = BochtKromme(x) + Factor[rij] * Lg(vh / va);
      ASSERT_EQ(e.ruis[b], Nul(10 * Lg(BandBreedte[b]) + K + 30 * Lg(d / 1000) + 50 * Lg(va) + R));
      ASSERT_EQ(e.demp[b], 0.8 * Sh < Sa && Sa <= Sh ? 0 : -10 * Lg(Sa / (Sa + Sd)));
    }
    ASSERT_EQ(e.ruis[7], Som(e.ruis));
  }
}

TEST(Volgorde, SectionChanges) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    ElementRec e = bron.Element(6 + i % 2);
    e.BHoofd = bron.Tussen(80, 1200);
    e.Lengte = bron.Tussen(0, 1.5);
    ElementTekstRijen tekst;
    Drsnee(e, tekst, '.');
    const double S1 = e.ElementType == 6 ? Recht(e.HHoofd, e.BHoofd) : Rond(e.HHoofd);
    const double S2 = e.BDoor <= 0 ? Rond(e.HDoor) : Recht(e.HDoor, e.BDoor);
    const double m = S2 < S1 ? 1 : S2 / S1;
    for (std::size_t b = 0; b < Banden; ++b) {
      const double x = e.Lengte * Frequentie[b] / 340;
      double demp = 0;
      if (x <= 0.5) demp = 10 * Lg((m + 1) * (m + 1) / (4 * m)) * std::cos((x - 0.0025 * m + 0.06) * pi);
      ASSERT_EQ(e.demp[b], demp > 8 ? 8 : Nul(demp));
    }
  }
}

void VerwachtKlepRuis(const ElementRec& e) {
  const double S = e.Breedte <= 0 ? Rond(e.Hoogte) : Recht(e.Hoogte, e.Breedte);
  for (std::size_t b = 0; b < Banden; ++b) {
    const double K = RoosterKromme(Frequentie[b] * 0.6 * e.Debiet / (e.Weerstand * S));
    ASSERT_EQ(e.ruis[b], Nul(30 * Lg(e.Weerstand) + 17 + 10 * Lg(S) - K));
  }
  ASSERT_EQ(e.ruis[7], Som(e.ruis));
}

/// The table of the end reflection, written out by directivity factor.
double EindReflectie(int richting, double x) {
  const double lg = Lg(x);
  switch (richting) {
    case 1:
      if (x <= 50) return -20 * lg + 40;
      return x <= 80 ? -15 * lg + 31.5 : -7.5 * lg + 17.25;
    case 2:
      if (x <= 40) return -20 * lg + 37;
      return x <= 80 ? -11.667 * lg + 23.667 : -5 * lg + 11;
    case 4:
      if (x <= 30) return -20 * lg + 34;
      return x <= 50 ? -13.6 * lg + 24.6 : -5 * lg + 10;
    default:  // 8
      if (x <= 20) return -20 * lg + 31;
      if (x <= 30) return -13.89 * lg + 23.06;
      return x <= 50 ? -9.09 * lg + 15.95 : -2.5 * lg + 4.75;
  }
}

TEST(Volgorde, DampersAndOutlets) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    ElementRec klep = bron.Element(10), rooster = bron.Element(11);
    if (i % 2 == 0) klep.Breedte = rooster.Breedte = 0;
    RuimteRec ruimte;
    ruimte.RDI = static_cast<std::int16_t>(1 << (i % 4));
    ElementTekstRijen tekst;
    RegelKlep(klep, tekst, '.');
    VerwachtKlepRuis(klep);
    Rooster(rooster, ruimte, 1, tekst, '.');
    VerwachtKlepRuis(rooster);
    for (std::size_t b = 0; b < Banden; ++b) {
      const double x = Frequentie[b] * std::sqrt(rooster.Snetto / 10000);
      ASSERT_EQ(rooster.demp[b], Nul(EindReflectie(ruimte.RDI, x)));
    }
  }
}

TEST(Volgorde, BreakIn) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    ElementRec e = bron.Element(8);
    if (i % 2 == 0) e.Breedte = 0;
    e.Kanaal = "wand";
    e.LAeq = bron.Niveaus(20, 90), e.Rkanaalwand = bron.Niveaus(0, 50);
    const bool heeft = Instraal(e);
    const double Sw =
        (i % 2 == 0 ? (pi + pi) * e.Hoogte / 2000 : 2 * (e.Hoogte / 1000 + e.Breedte / 1000)) * e.Lengte;
    bool verwacht = false;
    for (std::size_t b = 0; b < Banden; ++b) {
      verwacht = verwacht || e.LAeq[b] != 0;
      ASSERT_EQ(e.Instraling[b],
                e.LAeq[b] == 0 ? 0 : e.LAeq[b] - AWeging[b] - e.Rkanaalwand[b] + 10 * Lg(Sw / 4) - 3);
    }
    ASSERT_EQ(heeft, verwacht);
    ASSERT_EQ(e.Instraling[7], Som(e.Instraling));
  }
}

TEST(Volgorde, RunningLevels) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    Project p;
    p.Fan.Lw = bron.Niveaus(30, 110);
    Resultaten r;
    r.Subtotaal[1] = bron.Niveaus(-10, 110);
    const std::size_t n = 1 + static_cast<std::size_t>(i % 2);
    ElementRec& e = p.Elementen[n];
    e.demp = bron.Niveaus(-5, 40), e.ruis = bron.Niveaus(-20, 60), e.Instraling = bron.Niveaus(-20, 60);
    const Spectrum ervoor = n == 1 ? p.Fan.Lw : r.Subtotaal[1];
    TussenResult(p, static_cast<int>(n), r);
    double t = 0;
    for (std::size_t b = 0; b < Banden; ++b) {
      double s = Tien((ervoor[b] - e.demp[b]) / 10);
      if (e.ruis[b] != 0) s = s + Tien(e.ruis[b] / 10);
      if (e.Instraling[b] != 0) s = s + Tien(e.Instraling[b] / 10);
      const double niveau = 10 * Lg(s);
      ASSERT_EQ(r.Subtotaal[n][b], niveau);
      if (niveau != 0) t = t + Tien((niveau + AWeging[b]) / 10);
    }
    ASSERT_EQ(r.Subtotaal[n][7], 10 * Lg(t));
  }
}

TEST(Volgorde, BreakOut) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    Project p;
    p.Kop.RekenType = 2, p.ElementCount = 2;
    ElementRec& e = p.Elementen[2];
    e = bron.Element(8);
    if (i % 2 == 0) e.Breedte = 0;
    p.Ruimte.Rkanaal = bron.Niveaus(0, 60), p.Ruimte.Rplafond = bron.Niveaus(0, 60);
    Resultaten r;
    r.Subtotaal[1] = bron.Niveaus(-10, 110), r.Subtotaal[2] = bron.Niveaus(-10, 110);
    UitStraal(p, r);
    const bool rond = i % 2 == 0;
    const double Sw =
        rond ? (pi + pi) * e.Hoogte / 2000 * e.Lengte : 2 * (e.Hoogte / 1000 + e.Breedte / 1000) * e.Lengte;
    const double Sa = rond ? e.Hoogte * pi / 2000 * e.Hoogte / 2000 : e.Breedte / 1000 * e.Hoogte / 1000;
    for (std::size_t b = 0; b < Banden; ++b) {
      const double y = p.Ruimte.Rkanaal[b] - 10 * Lg(Sw / Sa);
      ASSERT_EQ(r.LwEind[b], (r.Subtotaal[1][b] + r.Subtotaal[2][b]) / 2);
      ASSERT_EQ(r.LwKanaalwand[b], r.LwEind[b] - (y < 3 ? 3 : y) - p.Ruimte.Rplafond[b]);
    }
    ASSERT_EQ(r.LwKanaalwand[7], Som(r.LwKanaalwand));
    ASSERT_EQ(r.LwEind[7], Som(r.LwEind));
  }
}

TEST(Volgorde, EndOfTheChain) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    Project p;
    p.Kop.RekenType = 1, p.ElementCount = 5;
    p.Fan.Lw = bron.Niveaus(60, 110);
    for (std::size_t n = 1; n <= 5; ++n) p.Elementen[n].demp = bron.Niveaus(0, 15);
    Resultaten r;
    r.LwEind = bron.Niveaus(30, 100);
    EindResult(p, r);
    Spectrum demp{}, fan{}, geluid{};
    for (std::size_t b = 0; b < Banden; ++b) {
      for (std::size_t n = 1; n <= 5; ++n) demp[b] = demp[b] + p.Elementen[n].demp[b];
      fan[b] = p.Fan.Lw[b] - demp[b];
    }
    fan[7] = Som(fan);
    demp[7] = p.Fan.Lw[7] - fan[7];
    for (std::size_t b = 0; b < Banden; ++b) {
      const double d = Tien(r.LwEind[b] / 10) - Tien(fan[b] / 10);
      geluid[b] = 10 * Lg(d <= 0 ? 1E-05 : d);
    }
    geluid[7] = Som(geluid);
    ASSERT_EQ(r.SysteemDemping, demp);
    for (std::size_t b = 0; b <= 7; ++b) {
      ASSERT_EQ(r.FanNaDemping[b], Nul(fan[b]));
      ASSERT_EQ(r.SysteemGeluid[b], Nul(geluid[b]));
    }
  }
}

TEST(Volgorde, Room) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    Project p;
    const int type = 1 + i % 3;
    p.Kop.RekenType = static_cast<std::int16_t>(type), p.ElementCount = 1;
    p.Elementen[1] = bron.Element(8);
    RuimteRec& k = p.Ruimte;
    k.RLengte = bron.Tussen(2, 30), k.RBreedte = bron.Tussen(2, 30), k.RHoogte = bron.Tussen(2, 10);
    k.RNagalm = bron.Tussen(0.2, 5), k.RAantal = bron.Tussen(1, 20), k.RDI = 4;
    Resultaten r;
    r.LwEind = bron.Niveaus(20, 90), r.LwKanaalwand = bron.Niveaus(20, 90),
    r.SysteemDemping = bron.Niveaus(0, 60);
    RuimteDemping(p, r);
    const ElementRec& e = p.Elementen[1];
    const double S1 = Recht(e.Hoogte, e.Breedte);
    const double V = k.RBreedte * k.RHoogte * k.RLengte;
    const double A = V / (6 * k.RNagalm), N = k.RAantal, Q = 4;
    for (std::size_t b = 0; b < Banden; ++b) {
      if (type == 1) {
        ASSERT_EQ(r.LpGalmveld[b], r.LwEind[b] + 10 * Lg(4 / A) + 10 * Lg(N));
        ASSERT_EQ(r.LpEenMeter[b], r.LwEind[b] + 10 * Lg(Q / (4 * pi) + 4 / A));
      } else if (type == 2) {
        ASSERT_EQ(r.LpGalmveld[b], r.LwKanaalwand[b] + 10 * Lg(4 / A));
        ASSERT_EQ(r.LpEenMeter[b], r.LwKanaalwand[b] + 10 * Lg(Q / (2 * pi * e.Lengte) + 4 / A));
      } else {
        ASSERT_EQ(r.OverspraakDemping[b],
                  r.SysteemDemping[b] - 10 * Lg(S1 / 4) - 10 * Lg(4 / A) - 10 * Lg(N));
      }
    }
    ASSERT_EQ(r.LpGalmveld[7], Som(r.LpGalmveld));
    ASSERT_EQ(r.LpEenMeter[7], Som(r.LpEenMeter));
  }
}

TEST(Volgorde, FanPrognosis) {
  Bron bron;
  for (int i = 0; i < Ronden; ++i) {
    FanRec fan;
    fan.FanType = 1;
    fan.FanDruk = bron.Tussen(50, 3000), fan.FanDebiet = bron.Tussen(0.1, 40);
    fan.FanVermogen = fan.FanDruk * fan.FanDebiet * bron.Tussen(0.8, 4);
    BerekenPrognose(fan);
    const double e = fan.FanDruk * fan.FanDebiet / fan.FanVermogen * 100;
    const double c = e < 70 ? std::nearbyint((70 - e) * 0.4) : 0;
    const double L = 20 * Lg(fan.FanDruk) + 40 + 10 * Lg(fan.FanDebiet) + c;
    const Bandwaarden vorm = {-9, -8, -7, -7, -8, -10, -14};
    for (std::size_t b = 0; b < Banden; ++b) ASSERT_EQ(fan.Lw[b], vorm[b] + L);
    ASSERT_EQ(fan.Lw[7], Som(fan.Lw));
  }
}

}  // namespace
}  // namespace murvane
