#include "calc/elementen.h"

#include <limits>
#include <string>

#include "basis/getal.h"
#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

using Band = std::size_t;
using BandRij = std::array<double, Banden>;

// ---- report texts ----

/// Writes the four report texts of an element; a row that is not written stays blank.
class Rijen {
 public:
  Rijen(ElementTekstRijen& tekst, char decimaal) : tekst_(tekst), decimaal_(decimaal) {
    tekst_ = BlankeRijen;
  }

  void Maat(bool rond, double hoogte, double breedte) {
    if (rond) return Waarde(0, "diam = ", hoogte, " mm");
    Woord("h×b = "_cp);
    Getal(hoogte);
    Woord("×"_cp);
    Getal(breedte);
    Woord(" mm");
    Sluit(0);
  }
  void Debiet(double debiet) { Waarde(1, "q = ", debiet, " m³/s"_cp); }
  void Lengte(double lengte) { Waarde(2, "l = ", lengte, " m"); }
  void Waarde(std::size_t rij, std::string_view voor, double waarde, std::string_view eenheid) {
    Woord(voor);
    Getal(waarde);
    Woord(eenheid);
    Sluit(rij);
  }

 private:
  void Woord(std::string_view woord) {
    for (const char c : woord) *p_++ = c;
  }
  void Getal(double waarde) { p_ = SchrijfStandaard(p_, waarde, decimaal_); }
  void Sluit(std::size_t rij) {
    tekst_[rij] = std::string_view(regel_.data(), static_cast<std::size_t>(p_ - regel_.data()));
    p_ = regel_.data();
  }

  ElementTekstRijen& tekst_;
  char decimaal_;
  std::array<char, 2 * StandaardLengte + 16> regel_;  // two numbers and the words around them
  char* p_ = regel_.data();
};

// ---- size classes ----

/// One row of an attenuation table: the values for sizes up to and including `tot` mm.
struct Klasse {
  double tot;
  BandRij waarde;
};

constexpr double GeenGrens = std::numeric_limits<double>::infinity();

const BandRij& InKlasse(const std::array<Klasse, 4>& tabel, double maat) {
  std::size_t k = 0;
  while (maat > tabel[k].tot) ++k;
  return tabel[k].waarde;
}

// Attenuation of straight ducts, dB/m.
constexpr std::array<Klasse, 4> KanaalRechtTabel = {{
    {200, {0.6, 0.6, 0.4, 0.3, 0.3, 0.3, 0.3}},
    {400, {0.6, 0.5, 0.4, 0.3, 0.2, 0.2, 0.2}},
    {800, {0.5, 0.4, 0.3, 0.1, 0.1, 0.1, 0.1}},
    {GeenGrens, {0.4, 0.3, 0.1, 0.1, 0.05, 0.05, 0.05}},
}};
constexpr std::array<Klasse, 4> KanaalRondTabel = {{
    {200, {0.1, 0.1, 0.1, 0.1, 0.3, 0.3, 0.3}},
    {400, {0.05, 0.1, 0.1, 0.1, 0.2, 0.2, 0.2}},
    {800, {0.03, 0.06, 0.06, 0.1, 0.1, 0.1, 0.1}},
    {GeenGrens, {0.03, 0.03, 0.03, 0.05, 0.05, 0.05, 0.05}},
}};
/// Flow noise of a straight duct relative to its overall level, dB.
constexpr BandRij KanaalVorm = {-5, -6, -7, -8, -9, -10, -14};

// Attenuation of bends, dB.
constexpr std::array<Klasse, 4> BochtHaaksTabel = {{
    {250, {0, 0, 0, 1, 5, 7, 5}},
    {500, {0, 0, 1, 5, 7, 5, 3}},
    {1000, {0, 1, 5, 7, 5, 3, 3}},
    {GeenGrens, {1, 5, 7, 5, 3, 3, 3}},
}};
constexpr std::array<Klasse, 4> BochtRechtTabel = {{
    {250, {0, 0, 0, 0, 1, 2, 3}},
    {500, {0, 0, 0, 1, 2, 3, 3}},
    {1000, {0, 0, 1, 2, 3, 3, 3}},
    {GeenGrens, {0, 1, 2, 3, 3, 3, 3}},
}};
constexpr std::array<Klasse, 4> BochtRondTabel = {{
    {125, {0, 0, 0, 0, 1, 2, 3}},
    {250, {0, 0, 0, 1, 2, 3, 3}},
    {500, {0, 0, 1, 2, 3, 3, 3}},
    {GeenGrens, {0, 1, 2, 3, 3, 3, 3}},
}};

// ---- flow noise ----

double NietNegatief(double niveau) {
  return Eindig(niveau) < 0 ? 0 : niveau;
}

/// Flow noise of outlets and dampers, from the pressure loss over them.
void KlepRuis(ElementRec& e, double S) {
  BandRij K{};  // before the logarithms below: a pressure loss of 0 has to fail as a division
  for (Band b = 0; b < Banden; ++b)
    K[b] = RoosterKromme(Deel(Frequentie[b] * 0.6 * e.Debiet, e.Weerstand * S));
  const double drukNiveau = 30 * Log10(e.Weerstand);
  const double vlakNiveau = 10 * Log10(S);
  for (Band b = 0; b < Banden; ++b) e.ruis[b] = NietNegatief(drukNiveau + 17 + vlakNiveau - K[b]);
  e.ruis[SomPlaats] = EnergetischeSom(e.ruis, true);
}

/// The Strouhal-type number per band of a bend or branch of diameter d (mm) at air speed v (m/s).
BandRij Strouhal(double d, double v) {
  BandRij uit{};
  for (Band b = 0; b < Banden; ++b) uit[b] = Deel(Frequentie[b] * d, v * 1000);
  return uit;
}

/// Factor of the speed-ratio term of a branch, by the ranges of BochtKromme.
double AftakFactor(double x) {
  if (x <= 1) return 32.5;
  if (x <= 2) return 35;
  if (x <= 3) return 37.5;
  if (x <= 4) return 38.1;
  if (x <= 6) return 40;
  if (x <= 10) return 41.9;
  if (x <= 15) return 43.8;
  return 48.75;
}

/// End reflection of an outlet, dB, for the directivity factors that the method knows.
double EindReflectie(int richting, double lg, double x) {
  switch (richting) {
    case 1:
      return x <= 50 ? -20 * lg + 40 : x <= 80 ? -15 * lg + 31.5 : -7.5 * lg + 17.25;
    case 2:
      return x <= 40 ? -20 * lg + 37 : x <= 80 ? -11.667 * lg + 23.667 : -5 * lg + 11;
    case 4:
      return x <= 30 ? -20 * lg + 34 : x <= 50 ? -13.6 * lg + 24.6 : -5 * lg + 10;
    default:
      return x <= 20   ? -20 * lg + 31
             : x <= 30 ? -13.89 * lg + 23.06
             : x <= 50 ? -9.09 * lg + 15.95
                       : -2.5 * lg + 4.75;
  }
}

constexpr bool KentRichting(int richting) {
  return richting == 1 || richting == 2 || richting == 4 || richting == 8;
}

}  // namespace

void ReKan(ElementRec& e, ElementTekstRijen& tekst, char decimaal) {
  const bool rond = e.ElementType == elementtype::KanaalRond;
  EisEindig({e.Hoogte, rond ? 0 : e.Breedte, e.Lengte, e.Debiet});
  const double S = Oppervlak(e.Hoogte, e.Breedte, rond);
  Rijen rijen(tekst, decimaal);
  rijen.Maat(rond, e.Hoogte, e.Breedte);
  rijen.Debiet(e.Debiet);
  rijen.Lengte(e.Lengte);
  const double v = Deel(e.Debiet, S);
  if (e.Lengte < 0.5) {
    e.demp.fill(0);
    e.ruis.fill(0);
    return;
  }
  const double L = 50 * Log10(v) + 7 + 10 * Log10(S);
  for (Band b = 0; b < Banden; ++b) e.ruis[b] = Eindig(L + KanaalVorm[b]);
  e.ruis[SomPlaats] = EnergetischeSom(e.ruis, true);
  const double s = rond || e.Breedte <= e.Hoogte ? e.Hoogte : e.Breedte;
  const BandRij& perMeter = InKlasse(rond ? KanaalRondTabel : KanaalRechtTabel, s);
  for (Band b = 0; b < Banden; ++b) e.demp[b] = Eindig(e.Lengte * perMeter[b]);
}

void Rooster(ElementRec& e, const RuimteRec& ruimte, std::int16_t rekenType, ElementTekstRijen& tekst,
             char decimaal) {
  e.ElRAantal = Eindig(ruimte.RAantal);
  e.ElRDI = ruimte.RDI;
  EisEindig({e.Hoogte, e.Breedte, e.Debiet, e.Snetto, e.Weerstand});
  const bool rond = e.Breedte <= 0;
  const double S = Oppervlak(e.Hoogte, e.Breedte, rond);
  Rijen rijen(tekst, decimaal);
  rijen.Maat(rond, e.Hoogte, e.Breedte);
  rijen.Debiet(e.Debiet);
  rijen.Waarde(2, "Seff = ", e.Snetto, " cm²"_cp);
  rijen.Waarde(3, "Dp = ", e.Weerstand, " Pa");
  const double wortelS = Wortel(e.Snetto / 10000);
  for (Band b = 0; b < Banden; ++b) {
    const double x = Frequentie[b] * wortelS;
    if (KentRichting(e.ElRDI)) e.demp[b] = EindReflectie(e.ElRDI, Log10(x), x);
    e.demp[b] = NietNegatief(e.demp[b]);
  }
  if (rekenType == rekentype::Overspraak) return;
  KlepRuis(e, S);
}

void Bocht(ElementRec& e, ElementTekstRijen& tekst, char decimaal) {
  const bool rond = e.ElementType == elementtype::BochtRond;
  const bool haaks = e.ElementType == elementtype::BochtHaaks;
  EisEindig({e.Hoogte, rond ? 0 : e.Breedte, e.Debiet});
  const double S = Oppervlak(e.Hoogte, e.Breedte, rond);
  const double d = rond ? e.Hoogte : EquivDiameter(e.Hoogte, e.Breedte);
  Rijen rijen(tekst, decimaal);
  rijen.Maat(rond, e.Hoogte, e.Breedte);
  rijen.Debiet(e.Debiet);
  const double v = Deel(e.Debiet, S);
  const BandRij strouhal = Strouhal(d, v);  // before the logarithms: a speed of 0 has to fail as a division
  const BandRij& breedteNiveau = BandBreedteNiveau();
  const double maatNiveau = 30 * Log10(d / 1000);
  const double snelheidNiveau = 50 * Log10(v);
  for (Band b = 0; b < Banden; ++b) {
    double K = BochtKromme(strouhal[b]);
    if (haaks) K = K + 5;
    e.ruis[b] = NietNegatief(breedteNiveau[b] + K + maatNiveau + snelheidNiveau);
  }
  e.ruis[SomPlaats] = EnergetischeSom(e.ruis, true);
  const auto& tabel = rond ? BochtRondTabel : haaks ? BochtHaaksTabel : BochtRechtTabel;
  const BandRij& demping = InKlasse(tabel, rond ? e.Hoogte : e.Breedte);
  for (Band b = 0; b < Banden; ++b) e.demp[b] = demping[b];
}

void Aftak(ElementRec& e, ElementTekstRijen& tekst, char decimaal) {
  const bool rond = e.ElementType == elementtype::AftakRond;
  EisEindig({e.HAftak(), rond ? 0 : e.BAftak(), e.HHoofd, e.BHoofd, e.HDoor, e.BDoor, e.QAftak, e.Debiet,
             e.RAftak});
  const double Sa = Oppervlak(e.HAftak(), e.BAftak(), rond);
  const double d = rond ? e.HAftak() : EquivDiameter(e.HAftak(), e.BAftak());
  const double Sh = Oppervlak(e.HHoofd, e.BHoofd, e.BHoofd <= 0);
  const double Sd = Oppervlak(e.HDoor, e.BDoor, e.BDoor <= 0);
  Rijen rijen(tekst, decimaal);
  rijen.Maat(rond, e.HAftak(), e.BAftak());
  rijen.Debiet(e.QAftak);
  rijen.Waarde(2, "r/da = ", e.RAftak, {});
  const double va = Deel(e.QAftak, Sa);
  const double vh = Deel(e.Debiet, Sh);
  const BandRij strouhal = Strouhal(d, va);
  const double afronding = 1 - e.RAftak / 0.15;
  const double verhouding = Log10(Deel(vh, va));
  const BandRij& breedteNiveau = BandBreedteNiveau();
  const double maatNiveau = 30 * Log10(d / 1000);
  const double snelheidNiveau = 50 * Log10(va);
  for (Band b = 0; b < Banden; ++b) {
    const double x = strouhal[b];
    const double T = x <= 10 ? 6.4 - (x - 2) * 0.1875 : 4.9 - (x - 10) * 0.03;
    const double R = afronding * T;
    const double K = BochtKromme(x) + AftakFactor(x) * verhouding;
    e.ruis[b] = NietNegatief(breedteNiveau[b] + K + maatNiveau + snelheidNiveau + R);
  }
  e.ruis[SomPlaats] = EnergetischeSom(e.ruis, true);
  const bool rechtdoor = 0.8 * Sh < Sa && Sa <= Sh;
  const double demping = rechtdoor ? 0 : -10 * Log10(Deel(Sa, Sa + Sd));
  for (Band b = 0; b < Banden; ++b) e.demp[b] = demping;
}

void Drsnee(ElementRec& e, ElementTekstRijen& tekst, char decimaal) {
  constexpr double Geluidsnelheid = 340;  // m/s
  constexpr double Hoogstens = 8;         // dB
  const bool rond = e.ElementType == elementtype::DrsneeRond;
  EisEindig(
      {e.H1Doorsnee(), rond ? 0 : e.B1Doorsnee(), e.H2Doorsnee(), e.B2Doorsnee(), e.LDoorsnee(), e.Debiet});
  const double S1 = Oppervlak(e.H1Doorsnee(), e.B1Doorsnee(), rond);
  const double S2 = Oppervlak(e.H2Doorsnee(), e.B2Doorsnee(), e.B2Doorsnee() <= 0);
  Rijen rijen(tekst, decimaal);
  rijen.Maat(rond, e.H2Doorsnee(), e.B2Doorsnee());
  rijen.Debiet(e.Debiet);
  rijen.Lengte(e.LDoorsnee());
  double m = Deel(S2, S1);
  if (S2 < S1) m = 1;
  for (Band b = 0; b < Banden; ++b) {
    const double x = Eindig(e.LDoorsnee() * Frequentie[b] / Geluidsnelheid);
    double demping = 0;
    if (x <= 0.5)
      demping = 10 * Log10(Deel((m + 1) * (m + 1), 4 * m)) * std::cos((x - 0.0025 * m + 0.06) * Pi);
    demping = NietNegatief(demping);
    e.demp[b] = demping > Hoogstens ? Hoogstens : demping;
  }
  e.ruis.fill(0);
}

void RegelKlep(ElementRec& e, ElementTekstRijen& tekst, char decimaal) {
  EisEindig({e.Hoogte, e.Breedte, e.Debiet, e.Weerstand});
  const bool rond = e.Breedte <= 0;
  const double S = Oppervlak(e.Hoogte, e.Breedte, rond);
  Rijen rijen(tekst, decimaal);
  rijen.Maat(rond, e.Hoogte, e.Breedte);
  rijen.Debiet(e.Debiet);
  rijen.Waarde(2, "Dp = ", e.Weerstand, " Pa");
  for (Band b = 0; b < Banden; ++b) e.demp[b] = 0;
  KlepRuis(e, S);
}

}  // namespace murvane
