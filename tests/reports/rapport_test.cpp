#include "reports/rapport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

#include "basis/fout.h"

namespace murvane {
namespace {

// A golden report ends each line with a bar, so that blanks at its end can be seen.
std::string MetBalken(std::string_view utf8) {
  std::string uit;
  for (const char c : NaarCp1252(utf8)) {
    if (c == '\n') continue;
    if (c == '|') {
      uit += "\r\n";
    } else {
      uit += c;
    }
  }
  return uit;
}

Spectrum Banden7(double a, double b, double c, double d, double e, double f, double g, double som = 0) {
  return {a, b, c, d, e, f, g, som};
}

struct Geval {
  Project project;
  Resultaten resultaten;
  Tekst<35> gebruiker{"Adviesbureau De Wit"};
  char decimaal = ',';
  Rapport rapport;

  explicit Geval(std::int16_t type = rekentype::Installatiegeluid, std::int16_t elementen = 0) {
    auto& kop = project.Kop;
    kop.RekenType = type;
    kop.ProNum = "P-0123";
    kop.MyDate = "01-02-2024";
    kop.ProNaam = "Kantoor Oost";
    kop.Omschrijving = "Kamer 2.14";
    kop.Toelichting1 = "Eerste regel";
    kop.Toelichting2 = "Tweede regel";
    kop.Toelichting3 = "";
    project.Fan.FanNaam = "Dakventilator A";
    project.Fan.Lw = Banden7(80, 81.5, 79, 75.25, 70, 66, 60, 76.7);  // a half goes up: 75,3
    auto& ruimte = project.Ruimte;
    ruimte.RLengte = 7.45;  // 7,5
    ruimte.RBreedte = 4;
    ruimte.RHoogte = 2.7;
    ruimte.RNagalm = 0.55;  // 0,6
    ruimte.RDI = 2;
    ruimte.RAantal = 2.5;  // 3
    project.ElementCount = elementen;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(std::max<int>(elementen, 0)); ++i)
      Element(i, "Element", {});
  }

  ElementRec& Element(std::size_t i, std::string_view naam, std::vector<std::string> tekst) {
    project.ElementCount = std::max(project.ElementCount, static_cast<std::int16_t>(i));
    project.Elementen[i].Naam = naam;
    tekst.resize(4);
    for (std::size_t rij = 0; rij < 4; ++rij) resultaten.ElementTekst[i][rij] = NaarCp1252(tekst[rij]);
    return project.Elementen[i];
  }

  Rapport& Maak() {
    Afdruk(project, resultaten, gebruiker, decimaal, rapport);
    return rapport;
  }
};

std::vector<std::string> RegelsVan(const std::string& blok) {
  std::vector<std::string> uit;
  std::size_t begin = 0;
  for (std::size_t einde = 0; (einde = blok.find("\r\n", begin)) != std::string::npos; begin = einde + 2)
    uit.push_back(blok.substr(begin, einde - begin));
  EXPECT_EQ(begin, blok.size()) << "a block ends with a line end";
  return uit;
}

std::string Regel(const std::string& blok, std::size_t nummer) {
  const auto regels = RegelsVan(blok);
  return nummer < regels.size() ? regels[nummer] : "<no line " + std::to_string(nummer) + ">";
}

using Waarden = std::initializer_list<std::int16_t>;

const std::string DubbeleLijn = std::string(6, ' ') + std::string(119, '=');
const std::string EnkeleLijn = std::string(6, ' ') + std::string(119, '-');

std::string Cellen(const std::string& cel, int aantal) {
  std::string uit;
  for (int i = 0; i < aantal; ++i) uit += cel;
  return uit;
}

FoutNummer NummerVan(const std::function<void()>& doe) {
  try {
    doe();
  } catch (const Fout& fout) {
    return fout.Nummer();
  }
  return FoutNummer{};
}

constexpr double Oneindig = std::numeric_limits<double>::infinity();
constexpr double GeenGetal = std::numeric_limits<double>::quiet_NaN();

// Whole reports, laid out by hand.

constexpr const char* GoudInstallatiegeluid = R"goud(
|
|
|
   Adviesbureau De Wit                                            MurVane 6.7|
   Installatiegeluid|
|
|
   Projectnummer       : P-0123                            Datum : 01-02-2024|
   Projectnaam         : Kantoor Oost                                                                    |
   Projectomschrijving : Kamer 2.14                                                                      |
   Toelichting         : Eerste regel                                                                    |
                         Tweede regel                                                                    |
                                                                                                         |
|
|
   Lengte ruimte       : 7,5 m                  Nagalmtijd ruimte  : 0,6 sec|
   Breedte ruimte      : 4,0 m                  Richtingsfactor    : 2|
   Hoogte ruimte       : 2,7 m                  Aantal roosters    : 3|
|
|
      =======================================================================================================================|
       octaafbanden                               [Hz]       63     125     250     500    1000    2000    4000      dB(A)|
      =======================================================================================================================|
       VENTILATOR : Dakventilator A                                                                 |
       geluidsproductie Lw ventilator             [dB]     80,0    81,5    79,0    75,3    70,0    66,0    60,0      76,7|
      -----------------------------------------------------------------------------------------------------------------------|
       SYSTEEMDEMPING :|
|
        1 Bocht rond|
          diam = 250 mm         geluiddemping     [dB]      0,0     0,0     1,0     2,0     3,0     3,0     3,0|
          q = 0,25 m³/s         geluidsproductie  [dB]     31,4    28,1    -4,3     0,0     9,9    10,0     7,1      21,5|
                                geluidsinstraling [dB]      0,0     0,0     0,0     0,0     0,0     0,0     0,0       0,0|
                                subtotaal         [dB]     80,0    81,5    78,0    73,3    67,0    63,0    57,0      74,1|
|
        2 Recht kanaal|
          diam = 250 mm         geluiddemping     [dB]      0,4     0,4     0,6     0,6     0,9     0,9     0,9|
          q = 0,25 m³/s         geluidsproductie  [dB]      0,0     0,0     0,0     0,0     0,0     0,0     0,0       0,0|
          l = 12,5 m            geluidsinstraling [dB]*    12,3    45,7     0,0    -0,6    38,8     0,0     0,0      41,6|
                                subtotaal         [dB]     79,6    81,1    77,4    72,7    66,1    62,1    56,1      73,4|
|
                                *geluidsniveau    [dB]     26,2    76,1     8,6     3,2    60,0    -1,2    -1,0      63,0|
                                 Rkanaalwand      [dB]     45,0    42,0    39,0    36,0    33,0    30,0    27,0|
                                 (Staal 0,7 mm)|
|
      -----------------------------------------------------------------------------------------------------------------------|
|
       GELUIDSDRUKNIVEAU:|
       Lp op 1 m afstand van rooster/kanaalwand   [dB]     41,2    38,9    35,0    20,0     -.-     0,0     -.-      34,8|
       Lp in galmveld ruimte                      [dB]     44,2    41,9    38,0    23,0     3,0     -.-     0,0      -5,0|
      =======================================================================================================================|
|
|
)goud";

// The chain of the first golden report: a bend, and a duct with break-in. The sum of the two levels of 60
// dB(A) around the duct is 60 + 10·log10 2 = 63,0; the bands stand there without A-weighting: 0 + 26,2, 60 +
// 16,1, 0 + 8,6, 0 + 3,2, 60 - 0, 0 - 1,2, 0 - 1,0.
Geval InstallatiegeluidGeval() {
  Geval g;
  ElementRec& bocht = g.Element(1, "  Bocht rond", {"diam = 250 mm", "q = 0,25 m³/s"});
  bocht.demp = Banden7(0, 0, 1, 2, 3, 3, 3);
  bocht.ruis = Banden7(31.42, 28.05, -4.25, -0.04, 9.94, 9.95, 7.1499, 21.5);
  bocht.LAeq = Banden7(1, 2, 3, 4, 5, 6, 7);
  bocht.Kanaal = "not printed without break-in";
  g.resultaten.Subtotaal[1] = Banden7(80.004, 81.5, 78, 73.25, 67, 63, 57, 74.1);
  ElementRec& kanaal = g.Element(2, "Recht kanaal", {"diam = 250 mm", "q = 0,25 m³/s", "l = 12,5 m"});
  kanaal.demp = Banden7(0.375, 0.375, 0.625, 0.625, 0.9, 0.9, 0.9);
  kanaal.Instraling = Banden7(12.3, 45.7, 0, -0.6, 38.8, 0, 0, 41.6);
  kanaal.LAeq = Banden7(0, 60, 0, 0, 60, 0, 0, 99);
  kanaal.Rkanaalwand = Banden7(45, 42, 39, 36, 33, 30, 27);
  kanaal.Kanaal = " Staal 0,7 mm";
  g.resultaten.HeeftInstraling[2] = true;
  g.resultaten.Subtotaal[2] = Banden7(79.6, 81.1, 77.4, 72.7, 66.1, 62.1, 56.1, 73.4);
  g.resultaten.LpEenMeter = Banden7(41.2, 38.9, 35, 20, -0.04, 0.04, -12, 34.8);
  g.resultaten.LpGalmveld = Banden7(44.2, 41.9, 38, 23, 3, -1e-12, -0.0, -5);
  return g;
}

TEST(Rapport, WholeReportOfInstallationSound) {
  Geval g = InstallatiegeluidGeval();
  EXPECT_EQ(PrnBytes(g.Maak()), MetBalken(GoudInstallatiegeluid));
}

constexpr const char* GoudUitstraling = R"goud(
|
|
|
   Adviesbureau De Wit                                            MurVane 6.7|
   Geluidsuitstraling|
|
|
   Projectnummer       : P-0123                            Datum : 01-02-2024|
   Projectnaam         : Kantoor Oost                                                                    |
   Projectomschrijving : Kamer 2.14                                                                      |
   Toelichting         : Eerste regel                                                                    |
                         Tweede regel                                                                    |
                                                                                                         |
|
|
   Lengte ruimte       : 7.5 m                  Nagalmtijd ruimte  : 0.6 sec|
   Breedte ruimte      : 4.0 m                  Richtingsfactor    : 2|
   Hoogte ruimte       : 2.7 m                  |
|
|
      =======================================================================================================================|
       octaafbanden                               [Hz]       63     125     250     500    1000    2000    4000      dB(A)|
      =======================================================================================================================|
       VENTILATOR : Dakventilator A                                                                 |
       geluidsproductie Lw ventilator             [dB]     80.0    81.5    79.0    75.3    70.0    66.0    60.0      76.7|
      -----------------------------------------------------------------------------------------------------------------------|
       SYSTEEMDEMPING :|
|
        1 Recht kanaal|
          h×b = 200×300 mm      geluiddemping     [dB]      0.4     0.4     0.6     0.6     0.9     0.9     0.9|
          q = 0.25 m³/s         geluidsproductie  [dB]      0.0     0.0     0.0     0.0     0.0     0.0     0.0       0.0|
          l = 12.5 m            geluidsinstraling [dB]      0.0     0.0     0.0     0.0     0.0     0.0     0.0       0.0|
                                subtotaal         [dB]     79.6    81.1    78.4    74.7    69.1    65.1    59.1      75.9|
|
                                Rkanaalwand       [dB]     45.0    42.0    39.0    36.0    33.0    30.0    27.0|
                                (Staal 0,7 mm)|
                                Rplafond          [dB]      5.0     6.0     8.0    10.0    12.0    14.0    16.0|
                                (Systeemplafond)|
                                Lw,kanaalwand     [dB]     40.1    35.2    28.3    22.4    -6.5     9.6     0.0      27.8|
      -----------------------------------------------------------------------------------------------------------------------|
|
       GELUIDSDRUKNIVEAU:|
       Lp op 1 m afstand van rooster/kanaalwand   [dB]     32.1    27.2    20.3    14.4     -.-     1.6     -.-      19.8|
       Lp in galmveld ruimte                      [dB]     35.1    30.2    23.3    17.4     -.-     4.6     -.-      22.8|
      =======================================================================================================================|
|
|
)goud";

TEST(Rapport, WholeReportOfRadiationWithDecimalPoint) {
  Geval g(rekentype::Geluidsuitstraling);
  g.decimaal = '.';
  ElementRec& kanaal = g.Element(1, "Recht kanaal", {"h×b = 200×300 mm", "q = 0.25 m³/s", "l = 12.5 m"});
  kanaal.demp = Banden7(0.375, 0.375, 0.625, 0.625, 0.9, 0.9, 0.9);
  g.resultaten.Subtotaal[1] = Banden7(79.6, 81.1, 78.4, 74.7, 69.1, 65.1, 59.1, 75.9);
  g.project.Ruimte.Rkanaal = Banden7(45, 42, 39, 36, 33, 30, 27);
  g.project.Ruimte.Rplafond = Banden7(5, 6, 8, 10, 12, 14, 16);
  g.project.Ruimte.RkanaalNaam = "Staal 0,7 mm   ";
  g.project.Ruimte.RplafondNaam = " Systeemplafond";
  g.resultaten.LwKanaalwand = Banden7(40.1, 35.2, 28.3, 22.4, -6.5, 9.6, 0, 27.8);
  g.resultaten.LpEenMeter = Banden7(32.1, 27.2, 20.3, 14.4, -14.5, 1.6, -8, 19.8);
  g.resultaten.LpGalmveld = Banden7(35.1, 30.2, 23.3, 17.4, -11.5, 4.6, -5, 22.8);
  EXPECT_EQ(PrnBytes(g.Maak()), MetBalken(GoudUitstraling));
}

constexpr const char* GoudOverspraak = R"goud(
|
|
|
   Adviesbureau De Wit                                            MurVane 6.7|
   Overspraak|
|
|
   Projectnummer       : P-0123                            Datum : 01-02-2024|
   Projectnaam         : Kantoor Oost                                                                    |
   Projectomschrijving : Kamer 2.14                                                                      |
   Toelichting         : Eerste regel                                                                    |
                         Tweede regel                                                                    |
                                                                                                         |
|
|
   Lengte ruimte       : 7,5 m                  Nagalmtijd ruimte  : 0,6 sec|
   Breedte ruimte      : 4,0 m                  Richtingsfactor    : 2|
   Hoogte ruimte       : 2,7 m                  Aantal roosters    : 3|
|
|
      =======================================================================================================================|
       octaafbanden                               [Hz]       63     125     250     500    1000    2000    4000      dB(A)|
      =======================================================================================================================|
       SYSTEEMDEMPING :|
|
        1 Bocht haaks|
          h×b = 200×300 mm      geluiddemping     [dB]      0,0     0,0     1,0     6,0     8,0     4,0     3,0|
                              |
|
        2 Recht kanaal|
          h×b = 200×300 mm      geluiddemping     [dB]      7,5     5,0     3,8     2,5     1,9     1,9     1,9|
          l = 12,5 m          |
|
      -----------------------------------------------------------------------------------------------------------------------|
|
       GELUIDDEMPING:|
       Totale systeemdemping                      [dB]      7,5     5,0     4,8     8,5     9,9     5,9     4,9|
       Overspraakdemping (Lpz - Lpo)              [dB]     17,3    14,8    14,6    18,3    19,7    15,7    -0,1|
      =======================================================================================================================|
|
|
)goud";

TEST(Rapport, WholeReportOfCrosstalk) {
  Geval g(rekentype::Overspraak);
  g.project.VrijVeld = 1;  // does not count in this type
  g.Element(1, "Bocht haaks", {"h×b = 200×300 mm", "q = 0,25 m³/s"}).demp = Banden7(0, 0, 1, 6, 8, 4, 3);
  ElementRec& kanaal =
      g.Element(2, "Recht kanaal", {"h×b = 200×300 mm", "q = 0,25 m³/s", "l = 12,5 m", "rij 4"});
  kanaal.demp = Banden7(7.5, 5, 3.75, 2.5, 1.875, 1.875, 1.875);
  g.resultaten.HeeftInstraling[2] = true;  // break-in has no row in this type
  g.resultaten.SysteemDemping = Banden7(7.5, 5, 4.75, 8.5, 9.875, 5.875, 4.875);
  g.resultaten.OverspraakDemping = Banden7(17.3, 14.8, 14.55, 18.3, 19.675, 15.675, -0.1);
  EXPECT_EQ(PrnBytes(g.Maak()), MetBalken(GoudOverspraak));
}

TEST(RechtsUitlijnen, PutsBlanksInFrontUpToTheWidth) {
  const struct {
    double waarde;
    Formaat formaat;
    std::size_t breedte;
    char decimaal;
    const char* tekst;
  } rijen[] = {
      {0, Formaat::Een, 6, ',', "   0,0"},
      {-0.04, Formaat::Een, 6, ',', "   0,0"},  // a zero has no minus sign
      {-0.05, Formaat::Een, 6, '.', "  -0.1"},  // halves away from zero
      {999.94, Formaat::Een, 6, '.', " 999.9"},
      {-999.9, Formaat::Een, 6, '.', "-999.9"},    // fills its cell
      {9999.96, Formaat::Een, 6, '.', "10000.0"},  // longer than its cell: not cut
      {-1000, Formaat::Een, 6, ',', "-1000,0"},
      {1e15, Formaat::Een, 6, ',', "1000000000000000,0"},
      {7, Formaat::Heel, 2, ',', " 7"},
      {99, Formaat::Heel, 2, ',', "99"},
      {100, Formaat::Heel, 2, ',', "100"},
      {0.125, Formaat::Twee, 8, '.', "    0.13"},
      {0.25, Formaat::Een, 4, ',', " 0,3"},  // a half, the long way
      {1, Formaat::Heel, 0, ',', "1"},
      {1, Formaat::Heel, 40, ',', "                                       1"},
  };
  for (const auto& rij : rijen)
    EXPECT_EQ(RechtsUitlijnen(rij.waarde, rij.formaat, rij.breedte, rij.decimaal), rij.tekst) << rij.waarde;
}

TEST(RechtsUitlijnen, RefusesWhatIsNotFinite) {
  for (const double waarde : {GeenGetal, Oneindig, -Oneindig})
    EXPECT_EQ(NummerVan([&] { (void)RechtsUitlijnen(waarde, Formaat::Een, 6, ','); }), FoutNummer::Overloop);
}

TEST(RapKop, NamesUserVersionAndCalculationType) {
  const struct {
    std::int16_t type;
    const char* naam;
  } rijen[] = {
      {1, "Installatiegeluid"}, {2, "Geluidsuitstraling"}, {3, "Overspraak"}, {0, ""}, {4, ""}, {-1, ""}};
  for (const auto& rij : rijen) {
    Geval g(rij.type);
    EXPECT_EQ(g.Maak().RapKop, "\r\n\r\n\r\n   Adviesbureau De Wit                " + std::string(28, ' ') +
                                   "MurVane 6.7\r\n   " + rij.naam + "\r\n");
  }
}

TEST(RapKop, PrintsAllCharactersOfTheUserNameUnchanged) {
  Geval g;
  g.gebruiker = "12345678901234567890123456789012 & ";  // 35 characters, a single "&"
  EXPECT_EQ(Regel(g.Maak().RapKop, 3),
            "   12345678901234567890123456789012 & " + std::string(28, ' ') + "MurVane 6.7");
}

TEST(RapProject, HasEachTextAtItsFullWidth) {
  Geval g;
  auto& kop = g.project.Kop;
  kop.ProNum = "123456789012";
  kop.MyDate = "31-12-1999";
  Tekst<80>* const velden[] = {&kop.ProNaam, &kop.Omschrijving, &kop.Toelichting1, &kop.Toelichting2,
                               &kop.Toelichting3};
  for (int i = 0; i < 5; ++i) *velden[i] = std::string(80, static_cast<char>('a' + i));
  const std::string inspring(25, ' ');
  EXPECT_EQ(g.Maak().RapProject,
            "\r\n"
            "   Projectnummer       : 123456789012                      Datum : 31-12-1999\r\n"
            "   Projectnaam         : " +
                std::string(80, 'a') +
                "\r\n"
                "   Projectomschrijving : " +
                std::string(80, 'b') +
                "\r\n"
                "   Toelichting         : " +
                std::string(80, 'c') + "\r\n" + inspring + std::string(80, 'd') + "\r\n" + inspring +
                std::string(80, 'e') + "\r\n\r\n");
}

TEST(RapProject, CarriesNulFilledTextsUnchanged) {
  Geval g;
  g.project.Kop = ProjectRec{};
  g.project.Kop.RekenType = 1;
  g.gebruiker = Tekst<35>{};
  g.Maak();
  const std::string nul12(12, '\0');
  EXPECT_EQ(Regel(g.rapport.RapProject, 1),
            "   Projectnummer       : " + nul12 + std::string(22, ' ') + "Datum : " + std::string(10, '\0'));
  EXPECT_EQ(Regel(g.rapport.RapProject, 6), std::string(25, ' ') + std::string(80, '\0'));
  EXPECT_EQ(Regel(g.rapport.RapKop, 3), "   " + std::string(35, '\0') + std::string(28, ' ') + "MurVane 6.7");
}

TEST(RapRuimte, HasRightHalvesFromColumn48) {
  Geval g;
  g.project.Ruimte.RLengte = 299.96;  // 300,0
  g.project.Ruimte.RNagalm = 0.25;    // a half: 0,3
  g.project.Ruimte.RDI = -32768;
  g.project.Ruimte.RAantal = 50.5;
  EXPECT_EQ(g.Maak().RapRuimte,
            "   Lengte ruimte       : 300,0 m                Nagalmtijd ruimte  : 0,3 sec\r\n"
            "   Breedte ruimte      : 4,0 m                  Richtingsfactor    : -32768\r\n"
            "   Hoogte ruimte       : 2,7 m                  Aantal roosters    : 51\r\n\r\n");
}

TEST(RapRuimte, CountsOutletsInTypes1And3Only) {
  const std::string links = "   Hoogte ruimte       : 2,7 m                  ";
  for (const std::int16_t type : Waarden{0, 1, 2, 3, 4}) {
    Geval g(type);
    EXPECT_EQ(Regel(g.Maak().RapRuimte, 2), links + (type == 1 || type == 3 ? "Aantal roosters    : 3" : ""))
        << type;
  }
}

TEST(RapRuimte, KeepsBothHalvesOfALineThatIsTooLong) {
  Geval g;
  g.project.Ruimte.RBreedte = 1e20;  // 25 + 23 + 2 characters
  EXPECT_EQ(Regel(g.Maak().RapRuimte, 1),
            "   Breedte ruimte      : 100000000000000000000,0 mRichtingsfactor    : 2");
}

TEST(RapRuimte, IsOnlyARemarkInAFreeField) {
  for (const std::int16_t vrijVeld : Waarden{1, -1, 2, 32767}) {
    for (const std::int16_t type : Waarden{1, 2, 0, 4}) {
      Geval g(type);
      g.project.VrijVeld = vrijVeld;
      EXPECT_EQ(g.Maak().RapRuimte, "   Vrij-veld situatie\r\n\r\n") << vrijVeld << " " << type;
    }
    Geval overspraak(3);
    overspraak.project.VrijVeld = vrijVeld;
    EXPECT_EQ(RegelsVan(overspraak.Maak().RapRuimte).size(), 4U) << vrijVeld;
  }
}

TEST(RapHoofd, HasTheFanInTypes1And2) {
  for (const std::int16_t type : Waarden{1, 2}) {
    Geval g(type);
    g.project.Fan.FanNaam = std::string(80, 'v');
    g.project.Fan.Lw = Banden7(-999.9, 0, 1, 2, 3, 4, 150, 99.95);
    const auto regels = RegelsVan(g.Maak().RapHoofd);
    ASSERT_EQ(regels.size(), 7U);
    EXPECT_EQ(regels[0], DubbeleLijn);
    EXPECT_EQ(regels[2], DubbeleLijn);
    EXPECT_EQ(regels[3], "       VENTILATOR : " + std::string(80, 'v'));
    EXPECT_EQ(
        regels[4],
        "       geluidsproductie Lw ventilator             [dB]   -999,9     0,0     1,0     2,0     3,0"
        "     4,0   150,0     100,0");
    EXPECT_EQ(regels[5], EnkeleLijn);
    EXPECT_EQ(regels[6], "       SYSTEEMDEMPING :");
  }
}

TEST(RapHoofd, HasNoFanInType3) {
  Geval g(3);
  g.project.Fan.Lw[0] = GeenGetal;  // not printed, so no fault
  const auto regels = RegelsVan(g.Maak().RapHoofd);
  ASSERT_EQ(regels.size(), 4U);
  EXPECT_EQ(regels[2], DubbeleLijn);
  EXPECT_EQ(regels[3], "       SYSTEEMDEMPING :");
}

TEST(RapHoofd, StandsOverTheLastDigitsOfTheColumns) {
  Geval g = InstallatiegeluidGeval();
  g.Maak();
  const std::string kop = Regel(g.rapport.RapHoofd, 1);
  std::vector<std::size_t> einden;
  for (const char* band : {"  63 ", " 125 ", " 250 ", " 500 ", "1000 ", "2000 ", "4000 "})
    einden.push_back(kop.find(band) + 3);
  const std::size_t somEinde = kop.size() - 2;  // one position left of the last letter of "dB(A)"
  int rijen = 0;
  for (const std::string* blok : {&g.rapport.RapHoofd, &g.rapport.RapElementen, &g.rapport.RapResultaat}) {
    for (const std::string& regel : RegelsVan(*blok)) {
      if (regel.find("[dB]") == std::string::npos) continue;
      ++rijen;
      for (const std::size_t einde : einden) {
        EXPECT_NE(regel.at(einde), ' ') << regel;
        EXPECT_TRUE(einde == einden.back() || regel.at(einde + 1) == ' ') << regel;
      }
      EXPECT_EQ(regel.size() - 1, regel.size() > einden.back() + 1 ? somEinde : einden.back()) << regel;
    }
  }
  EXPECT_EQ(rijen, 1 + 4 + 4 + 2 + 2);
}

TEST(RapElementen, WithoutElementsIsOnlyTheRule) {
  for (const std::int16_t type : Waarden{1, 3}) {
    for (const std::int16_t aantal : Waarden{0, -1, -32768}) {
      Geval g(type, aantal);
      EXPECT_EQ(g.Maak().RapElementen, EnkeleLijn + "\r\n");
    }
  }
}

TEST(RapElementen, WithoutElementsStillHasTheWallsOfType2) {
  Geval g(2);
  const auto regels = RegelsVan(g.Maak().RapElementen);
  ASSERT_EQ(regels.size(), 6U);
  const std::string nullen = Cellen("     0,0", 7);
  const std::string wit(32, ' ');
  EXPECT_EQ(regels[0], wit + "Rkanaalwand       [dB] " + nullen);
  EXPECT_EQ(regels[1], wit + "()");
  EXPECT_EQ(regels[2], wit + "Rplafond          [dB] " + nullen);
  EXPECT_EQ(regels[3], wit + "()");
  EXPECT_EQ(regels[4], wit + "Lw,kanaalwand     [dB] " + nullen + "       0,0");
  EXPECT_EQ(regels[5], EnkeleLijn);
}

TEST(RapElementen, NumbersElementsInTwoCharactersAndWholeFrom100) {
  Geval g(1, 500);
  const auto regels = RegelsVan(g.Maak().RapElementen);
  ASSERT_EQ(regels.size(), 500U * 6 + 1);
  const struct {
    std::size_t nummer;
    const char* regel;
  } rijen[] = {{1, "        1 Element"},   {9, "        9 Element"},    {10, "       10 Element"},
               {99, "       99 Element"},  {100, "       100 Element"}, {101, "       101 Element"},
               {500, "       500 Element"}};
  for (const auto& rij : rijen) EXPECT_EQ(regels[(rij.nummer - 1) * 6], rij.regel);
  EXPECT_EQ(regels.back(), EnkeleLijn);
}

TEST(RapElementen, HoldsALongChainOfEveryType) {
  const struct {
    std::int16_t type;
    std::size_t perElement, achteraf;
  } rijen[] = {{1, 6, 1}, {2, 6, 6}, {3, 4, 1}};
  for (const auto& rij : rijen) {
    Geval g(rij.type, 99);
    EXPECT_EQ(RegelsVan(g.Maak().RapElementen).size(), 99 * rij.perElement + rij.achteraf) << rij.type;
  }
}

TEST(RapElementen, RefusesMoreElementsThanTheArrayHolds) {
  Geval g;
  g.project.ElementCount = 501;
  EXPECT_EQ(NummerVan([&] { g.Maak(); }), FoutNummer::IndexBuitenBereik);
  EXPECT_EQ(g.rapport.RapKop, "");
}

TEST(RapElementen, StarAndBreakInRowsGoTogether) {
  Geval g(2, 2);
  g.resultaten.HeeftInstraling[1] = true;
  const auto regels = RegelsVan(g.Maak().RapElementen);
  ASSERT_EQ(regels.size(), 10U + 6 + 6);
  const std::string nullen = Cellen("     0,0", 7);
  const std::string label = std::string(32, ' ') + "geluidsinstraling [dB]";
  EXPECT_EQ(regels[3], label + "*" + nullen + "       0,0");
  EXPECT_EQ(regels[5], "");
  // All levels 0: the bands are minus the A-weighting, the sum of nothing is 0.
  EXPECT_EQ(regels[6], std::string(32, ' ') +
                           "*geluidsniveau    [dB]     26,2    16,1     8,6     3,2     0,0    -1,2"
                           "    -1,0       0,0");
  EXPECT_EQ(regels[7], std::string(33, ' ') + "Rkanaalwand      [dB] " + nullen);
  EXPECT_EQ(regels[8], std::string(33, ' ') + "()");  // the name was never assigned
  EXPECT_EQ(regels[9], "");
  EXPECT_EQ(regels[13], label + " " + nullen + "       0,0");
  EXPECT_EQ(regels[15], "");
}

TEST(RapElementen, TrimsNamesOfBlanksAndNuls) {
  Geval g(2, 1);
  g.project.Elementen[1].Naam = std::string_view("\0 Bocht  90 \0", 13);
  g.project.Elementen[1].Kanaal = std::string(80, 'k');
  g.resultaten.HeeftInstraling[1] = true;
  g.project.Ruimte.RkanaalNaam = std::string("\0 a b \0", 7);
  g.project.Ruimte.RplafondNaam = std::string(300, 'p');
  const auto regels = RegelsVan(g.Maak().RapElementen);
  EXPECT_EQ(regels[0], "        1 Bocht  90");
  EXPECT_EQ(regels[8], std::string(33, ' ') + "(" + std::string(80, 'k') + ")");
  EXPECT_EQ(regels[11], std::string(32, ' ') + "(a b)");
  EXPECT_EQ(regels[13], std::string(32, ' ') + "(" + std::string(300, 'p') + ")");
}

TEST(RapElementen, HasSideTextsAtTheirFullWidth) {
  const std::string vol(20, 'x');
  for (std::size_t rij = 0; rij < 4; ++rij) {
    Geval g(1, 1);
    g.resultaten.ElementTekst[1][rij] = vol;
    const auto regels = RegelsVan(g.Maak().RapElementen);
    for (std::size_t r = 0; r < 4; ++r) {
      const std::string begin = "          " + (r == rij ? vol : std::string(20, ' ')) + "  ";
      EXPECT_EQ(regels[1 + r].substr(0, 32), begin) << rij << " " << r;
    }
  }
}

TEST(RapElementen, OfCrosstalkReadsAttenuationAndTwoSideTextsOnly) {
  Geval g(3, 1);
  ElementRec& element = g.project.Elementen[1];
  element.ruis[0] = element.Instraling[1] = element.LAeq[2] = element.demp[7] = GeenGetal;
  g.resultaten.Subtotaal[1][0] = g.resultaten.LpEenMeter[0] = Oneindig;
  g.resultaten.ElementTekst[1] =
      ElementTekstRijen{Tekst<20>("een"), Tekst<20>("twee"), Tekst<20>("drie"), Tekst<20>("vier")};
  EXPECT_EQ(g.Maak().RapElementen,
            "        1 Element\r\n"
            "          een                   geluiddemping     [dB] " +
                Cellen("     0,0", 7) +
                "\r\n"
                "          drie                \r\n\r\n" +
                EnkeleLijn + "\r\n");
}

TEST(RapElementen, KeepsCellsOfSixCharactersAlignedAndLongerOnesWhole) {
  Geval g(3, 1);
  g.project.Elementen[1].demp = Banden7(-100, 9999.9, -999.94, 10000, -1000, 99999.95, 1);
  EXPECT_EQ(Regel(g.Maak().RapElementen, 1).substr(32),
            "geluiddemping     [dB]   -100,0  9999,9  -999,9  10000,0  -1000,0  100000,0     1,0");
}

TEST(RapResultaat, LeavesOutTheReverberantFieldInAFreeField) {
  for (const std::int16_t vrijVeld : Waarden{0, 1, -1, 2}) {
    for (const std::int16_t type : Waarden{1, 2}) {
      Geval g(type);
      g.project.VrijVeld = vrijVeld;
      if (vrijVeld != 0) g.resultaten.LpGalmveld[0] = GeenGetal;  // not printed
      const auto regels = RegelsVan(g.Maak().RapResultaat);
      ASSERT_EQ(regels.size(), vrijVeld == 0 ? 5U : 4U);
      const std::string nullen = Cellen("     0,0", 7) + "       0,0";
      EXPECT_EQ(regels[0], "       GELUIDSDRUKNIVEAU:");
      EXPECT_EQ(regels[1], "       Lp op 1 m afstand van rooster/kanaalwand   [dB] " + nullen);
      if (vrijVeld == 0) {
        EXPECT_EQ(regels[2], "       Lp in galmveld ruimte                      [dB] " + nullen);
      }
      EXPECT_EQ(regels[regels.size() - 2], DubbeleLijn);
      EXPECT_EQ(regels.back(), "");
    }
  }
}

TEST(RapResultaat, ShowsABandBelow0AsNothingInBothRowsButNotItsSum) {
  for (const char decimaal : {',', '.'}) {
    Geval g;
    g.decimaal = decimaal;
    const double min = -std::numeric_limits<double>::denorm_min();
    g.resultaten.LpEenMeter = Banden7(min, 0, -0.0, -1000, 0.05, -0.04, 12.34, -0.05);
    g.resultaten.LpGalmveld = Banden7(-1, -2, -3, -4, -5, -6, -7, -1e-9);
    std::string een = "     -.-     0_0     0_0     -.-     0_1     -.-    12_3      -0_1";
    std::string galm = Cellen("     -.-", 7) + "       0_0";
    std::replace(een.begin(), een.end(), '_', decimaal);
    std::replace(galm.begin(), galm.end(), '_', decimaal);
    g.Maak();
    EXPECT_EQ(Regel(g.rapport.RapResultaat, 1),
              "       Lp op 1 m afstand van rooster/kanaalwand   [dB] " + een);
    EXPECT_EQ(Regel(g.rapport.RapResultaat, 2),
              "       Lp in galmveld ruimte                      [dB] " + galm);
  }
}

TEST(RapResultaat, OfCrosstalkShowsNegativeBandsAsNumbers) {
  Geval g(3);
  g.resultaten.SysteemDemping = Banden7(-1, 0, 0, 0, 0, 0, 0);
  g.resultaten.OverspraakDemping = Banden7(0, 0, 0, 0, 0, 0, -2.55);
  EXPECT_EQ(g.Maak().RapResultaat,
            "       GELUIDDEMPING:\r\n"
            "       Totale systeemdemping                      [dB]     -1,0" +
                Cellen("     0,0", 6) +
                "\r\n"
                "       Overspraakdemping (Lpz - Lpo)              [dB] " +
                Cellen("     0,0", 6) + "    -2,6\r\n" + DubbeleLijn + "\r\n\r\n");
}

TEST(Afdruk, OfAnUnknownTypeRenewsTheFirstThreeBlocksOnly) {
  for (const std::int16_t type : Waarden{0, 4, -1, 32767, -32768}) {
    Geval g(type);
    g.rapport = {"a", "b", "c", "d", "e", "f"};
    g.project.Fan.Lw[0] = GeenGetal;  // not printed
    g.Maak();
    EXPECT_EQ(RegelsVan(g.rapport.RapKop).size(), 5U);
    EXPECT_EQ(RegelsVan(g.rapport.RapProject).size(), 8U);
    EXPECT_EQ(RegelsVan(g.rapport.RapRuimte).size(), 4U);
    EXPECT_EQ(g.rapport.RapHoofd, "d");
    EXPECT_EQ(g.rapport.RapElementen, "e");
    EXPECT_EQ(g.rapport.RapResultaat, "f");
  }
}

TEST(Afdruk, ReplacesThePreviousReportWhole) {
  Geval eerste = InstallatiegeluidGeval();
  eerste.Maak();
  Geval tweede(3);
  tweede.rapport = eerste.rapport;
  EXPECT_EQ(PrnBytes(tweede.Maak()), PrnBytes(Geval(3).Maak()));
}

TEST(Afdruk, RefusesAnyPrintedNumberThatIsNotFiniteAndKeepsTheOldReport) {
  using Zet = std::function<void(Geval&, double)>;
  const struct {
    const char* naam;
    std::int16_t type;
    const char* plaats;
    Zet zet;
  } rijen[] = {
      {"RLengte", 1, "", [](Geval& g, double x) { g.project.Ruimte.RLengte = x; }},
      {"RBreedte", 2, "", [](Geval& g, double x) { g.project.Ruimte.RBreedte = x; }},
      {"RHoogte", 3, "", [](Geval& g, double x) { g.project.Ruimte.RHoogte = x; }},
      {"RNagalm", 1, "", [](Geval& g, double x) { g.project.Ruimte.RNagalm = x; }},
      {"RAantal", 1, "", [](Geval& g, double x) { g.project.Ruimte.RAantal = x; }},
      {"RLengte of an unknown type", 0, "", [](Geval& g, double x) { g.project.Ruimte.RLengte = x; }},
      {"Lw", 1, "", [](Geval& g, double x) { g.project.Fan.Lw[6] = x; }},
      {"Lw sum", 2, "", [](Geval& g, double x) { g.project.Fan.Lw[7] = x; }},
      {"demp", 1, "kanaalelement 2", [](Geval& g, double x) { g.project.Elementen[2].demp[0] = x; }},
      {"demp", 3, "kanaalelement 2", [](Geval& g, double x) { g.project.Elementen[2].demp[6] = x; }},
      {"ruis", 2, "kanaalelement 1", [](Geval& g, double x) { g.project.Elementen[1].ruis[3] = x; }},
      {"ruis sum", 1, "kanaalelement 1", [](Geval& g, double x) { g.project.Elementen[1].ruis[7] = x; }},
      {"Instraling", 1, "kanaalelement 2",
       [](Geval& g, double x) { g.project.Elementen[2].Instraling[7] = x; }},
      {"Subtotaal", 1, "kanaalelement 2", [](Geval& g, double x) { g.resultaten.Subtotaal[2][5] = x; }},
      {"LAeq", 1, "kanaalelement 2", [](Geval& g, double x) { g.project.Elementen[2].LAeq[1] = x; }},
      {"Rkanaalwand", 1, "kanaalelement 2",
       [](Geval& g, double x) { g.project.Elementen[2].Rkanaalwand[1] = x; }},
      {"Rkanaal", 2, "", [](Geval& g, double x) { g.project.Ruimte.Rkanaal[2] = x; }},
      {"Rplafond", 2, "", [](Geval& g, double x) { g.project.Ruimte.Rplafond[2] = x; }},
      {"LwKanaalwand", 2, "", [](Geval& g, double x) { g.resultaten.LwKanaalwand[7] = x; }},
      {"LpEenMeter", 1, "", [](Geval& g, double x) { g.resultaten.LpEenMeter[0] = x; }},
      {"LpEenMeter sum", 1, "", [](Geval& g, double x) { g.resultaten.LpEenMeter[7] = x; }},
      {"LpGalmveld", 2, "", [](Geval& g, double x) { g.resultaten.LpGalmveld[6] = x; }},
      {"SysteemDemping", 3, "", [](Geval& g, double x) { g.resultaten.SysteemDemping[0] = x; }},
      {"OverspraakDemping", 3, "", [](Geval& g, double x) { g.resultaten.OverspraakDemping[6] = x; }},
  };
  for (const auto& rij : rijen) {
    for (const double waarde : {GeenGetal, Oneindig, -Oneindig}) {
      Geval g(rij.type, 2);
      g.resultaten.HeeftInstraling[2] = true;
      g.rapport = {"a", "b", "c", "d", "e", "f"};
      rij.zet(g, waarde);
      try {
        g.Maak();
        ADD_FAILURE() << rij.naam << " " << waarde;
      } catch (const Fout& fout) {
        EXPECT_EQ(fout.Nummer(), FoutNummer::Overloop) << rij.naam;
        EXPECT_EQ(fout.Plaats(), rij.plaats) << rij.naam;
      }
      EXPECT_EQ(PrnBytes(g.rapport), "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n") << rij.naam;
    }
  }
}

TEST(Afdruk, NeedsNoRoomNumbersInAFreeField) {
  Geval g;
  g.project.VrijVeld = 1;
  g.project.Ruimte.RLengte = g.project.Ruimte.RNagalm = GeenGetal;
  EXPECT_NO_THROW(g.Maak());
}

TEST(PrnBytes, FollowsEachBlockWithOneMoreLineEnd) {
  EXPECT_EQ(PrnBytes({}), "\r\n\r\n\r\n\r\n\r\n\r\n");
  EXPECT_EQ(PrnBytes({"kop\r\n", "project", "", "h\x81", std::string("e\0", 2), "r"}),
            std::string("kop\r\n\r\nproject\r\n\r\nh\x81\r\ne\0\r\nr\r\n", 29));
}

}  // namespace
}  // namespace murvane
