#include "reports/paginas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

#include "basis/fout.h"
#include "tests/hulp/opnemer.h"

// The recorder's font is 0.6 em wide and 1.125 em high. At 12 points a column is 144 twips and a line 270, at
// 7.2 points 86.4 and 162, at 10 points 120 and 225. The surface is A4 of 11906 by 16838, so the right-hand
// margin is at 11474 and the footer line at 15988.

namespace murvane {
namespace {

using proef::Opnemer;
using Regels = std::vector<std::string>;
using Waarden = std::initializer_list<std::int16_t>;

const std::string GrijsBand = " 200,200,200", WitBand = " 255,255,255", GrijsLijn = " 70,70,70";

/// One decimal.
std::string Plek(double x, double y) {
  const auto tekst = [](double v) {
    const long tienden = std::lround(v * 10);
    return std::to_string(tienden / 10) + "." + std::to_string(tienden % 10);
  };
  return tekst(x) + ";" + tekst(y);
}
std::string T(double x, double y, const std::string& tekst, const std::string& stijl) {
  return Plek(x, y) + " \"" + tekst + "\" " + stijl;
}
/// A text of the table at a column of 86.4 twips.
std::string K(double y, double kolom, const std::string& tekst) {
  return T(kolom * 86.4, y, tekst, "7.2");
}
/// A text of the head at a column of 144 twips.
std::string H(double y, double kolom, const std::string& tekst, const std::string& stijl = "12c") {
  return T(kolom * 144, y, tekst, stijl);
}
std::string Vol(const std::string& tekst, std::size_t breedte) {
  std::string uit = tekst;
  uit.resize(breedte, ' ');
  return uit;
}
/// Cells ending at their grid positions.
void Cellen(Regels& uit, double y, const Regels& waarden) {
  const double einden[] = {64, 72, 80, 88, 96, 104, 112, 123};
  for (std::size_t i = 0; i < waarden.size(); ++i)
    uit.push_back(K(y, einden[i] - static_cast<double>(waarden[i].size()), waarden[i]));
}
/// A row of quantity, unit and cells.
void Rij(Regels& uit, double y, double kolom, const std::string& naam, const std::string& eenheid,
         const Regels& waarden) {
  uit.push_back(K(y, kolom, naam));
  uit.push_back(K(y, 51, eenheid));
  Cellen(uit, y, waarden);
}
std::string Dubbel(double y) {
  return "doos " + Plek(432, y - 10) + " " + Plek(11474, y) + GrijsLijn;
}
std::string Enkel(double y) {
  return "lijn " + Plek(432, y) + " " + Plek(11474, y) + GrijsLijn;
}
Regels Voet(const std::string& nummer = "1") {
  const std::string pagina = "Pagina " + nummer;
  return {"lijn 432.0;15988.0 11474.0;15988.0 0,0,0", T(432, 16038, "MurVane 6.7", "10v"),
          T(11474 - 120.0 * static_cast<double>(pagina.size()), 16038, pagina, "10v")};
}
void Voeg(Regels& uit, const Regels& meer) {
  uit.insert(uit.end(), meer.begin(), meer.end());
}

Spectrum S(double a, double b, double c, double d, double e, double f, double g, double som = 0) {
  return {a, b, c, d, e, f, g, som};
}

struct Geval {
  Project project;
  Resultaten resultaten;
  Tekst<35> gebruiker{"Adviesbureau De Wit"};
  DrukInstelling instelling = StandaardDrukInstelling();
  char decimaal = ',';
  VoorbeeldStand stand;
  Grafiek grafiek;
  Opnemer blad;

  explicit Geval(std::int16_t type = rekentype::Installatiegeluid, std::int16_t elementen = 0,
                 double hoogte = Opnemer::A4Hoogte)
      : blad(Opnemer::A4Breedte, hoogte) {
    auto& kop = project.Kop;
    kop.RekenType = type;
    kop.ProNum = "P-0123";
    kop.MyDate = "01-02-2024";
    kop.ProNaam = "Kantoor Oost";
    kop.Omschrijving = "Kamer 2.14";
    kop.Toelichting1 = "Eerste regel";
    kop.Toelichting2 = "Tweede regel";
    kop.Toelichting3 = "Derde regel";
    project.Fan.FanNaam = "Dakventilator A";
    project.Fan.Lw = S(80, 81.5, 79, 75.25, 70, 66, 6, 76.7);
    auto& ruimte = project.Ruimte;
    ruimte.RLengte = 7.45;  // 7,5: a half goes up
    ruimte.RBreedte = 4;
    ruimte.RHoogte = 2.7;
    ruimte.RNagalm = 0.55;
    ruimte.RDI = 2;
    ruimte.RAantal = 2.5;
    project.ElementCount = elementen;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(std::max<int>(elementen, 0)); ++i)
      project.Elementen[i].Naam = "Element " + std::to_string(i);
  }

  GrafiekUitkomst Druk(std::int16_t wens = 0, std::int16_t keuze = 0) {
    return DrukRapport(blad, {project, resultaten, gebruiker, instelling, decimaal}, wens, keuze, stand,
                       grafiek);
  }
  [[nodiscard]] Regels Tekening(int nummer = 1) const { return blad.Tekening(nummer); }
};

/// The head band and the project lines; they end with the blank line at 3280.
Regels KortHoofd(const std::string& type) {
  Regels uit = {"doos 432.0;700.0 11474.0;1270.0" + GrijsBand, "doos 482.0;770.0 11424.0;1200.0" + WitBand,
                T(532, 850, Vol("Adviesbureau De Wit", 35), "12v"),
                T(11374 - 144.0 * static_cast<double>(type.size()), 850, type, "12v")};
  Voeg(uit, {H(1660, 3, "Projectnummer"), H(1660, 23, ":"), H(1660, 25, "P-0123      "), H(1660, 57, "Datum"),
             H(1660, 63, ":"), H(1660, 65, "01-02-2024")});
  const Regels labels = {"Projectnaam", "Projectomschrijving", "Toelichting"};
  const Regels waarden = {"Kantoor Oost", "Kamer 2.14", "Eerste regel"};
  for (std::size_t i = 0; i < 3; ++i) {
    const double y = 1930 + 270.0 * static_cast<double>(i);
    Voeg(uit, {H(y, 3, labels[i]), H(y, 23, ":"), H(y, 25, Vol(waarden[i], 80))});
  }
  Voeg(uit, {H(2740, 25, Vol("Tweede regel", 80)), H(3010, 25, Vol("Derde regel", 80))});
  return uit;
}

/// The room lines from 3550 to 4360.
Regels Kamer(bool metAantal) {
  Regels uit = {H(3550, 3, "Lengte ruimte"),      H(3550, 23, ":"), H(3550, 25, "7,5 m"),
                H(3550, 48, "Nagalmtijd ruimte"), H(3550, 67, ":"), H(3550, 69, "0,6 s"),
                H(3820, 3, "Breedte ruimte"),     H(3820, 23, ":"), H(3820, 25, "4,0 m"),
                H(3820, 48, "Richtingsfactor"),   H(3820, 67, ":"), H(3820, 69, "2"),
                H(4090, 3, "Hoogte ruimte"),      H(4090, 23, ":"), H(4090, 25, "2,7 m")};
  if (metAantal) Voeg(uit, {H(4090, 48, "Aantal roosters"), H(4090, 67, ":"), H(4090, 69, "3")});
  return uit;
}

/// The table head with its rules; `y` is where the blank line behind the room lines ends.
Regels Bandkop(double y) {
  Regels uit = {Dubbel(y + 50), K(y + 100, 7, "octaafbanden"), K(y + 100, 51, "[Hz]")};
  Cellen(uit, y + 100, {"63", "125", "250", "500", "1000", "2000", "4000"});
  Voeg(uit, {K(y + 100, 119, "dB(A)"), Dubbel(y + 312)});
  return uit;
}

/// The fan's rows behind the table head; the elements begin at y + 948.
Regels Fankop(double y) {
  Regels uit = {K(y + 362, 7, "VENTILATOR : " + Vol("Dakventilator A", 80))};
  Rij(uit, y + 524, 7, "geluidsproductie Lw ventilator", "[dB]",
      {"80,0", "81,5", "79,0", "75,3", "70,0", "66,0", "6,0", "76,7"});
  Voeg(uit, {Enkel(y + 736), K(y + 786, 7, "SYSTEEMDEMPING :")});
  return uit;
}

/// A whole page head of types 1 and 2, up to 5578.
Regels Hoofd(const std::string& type, bool metAantal) {
  Regels uit = KortHoofd(type);
  Voeg(uit, Kamer(metAantal));
  Voeg(uit, Bandkop(4630));
  Voeg(uit, Fankop(4630));
  return uit;
}

const Regels Nullen7 = {"0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,0"};
const Regels Nullen8 = {"0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,0"};

TEST(DrukRapport, OfNoElementsIsHeadRulesAndFinalRows) {
  Geval g;
  g.resultaten.LpEenMeter = S(61.25, 50, 40, 30, 20, 10, 0.04, 39.96);
  g.resultaten.LpGalmveld = S(100, 0, 0, 0, 0, 0, 0, -3.04);
  EXPECT_EQ(g.Druk(), GrafiekUitkomst::Goed);
  Regels goed = Hoofd("Installatiegeluid", true);
  goed.push_back(Enkel(5628));
  goed.push_back(K(5678, 7, "GELUIDSDRUKNIVEAU:"));
  Rij(goed, 5840, 7, "Lp op 1 m afstand van rooster/kanaalwand", "[dB]",
      {"61,3", "50,0", "40,0", "30,0", "20,0", "10,0", "0,0", "40,0"});
  Rij(goed, 6002, 7, "Lp in galmveld ruimte", "[dB]",
      {"100,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "-3,0"});
  goed.push_back(Dubbel(6214));
  Voeg(goed, Voet());
  EXPECT_EQ(g.Tekening(), goed);
  EXPECT_EQ(g.blad.Bladen(), 1);
  EXPECT_EQ(g.blad.Gebeurtenissen(), Regels{"staand"});
  EXPECT_EQ(g.blad.HuidigFont().Naam, "Courier New");
  EXPECT_EQ(g.blad.HuidigFont().Punten, 12);  // set back behind the footer
}

TEST(DrukRapport, OfRadiationHasBreakInAndWalls) {
  Geval g(rekentype::Geluidsuitstraling, 2);
  for (std::size_t i : {1U, 2U}) {
    auto& element = g.project.Elementen[i];
    element.Naam = "  Kanaal recht ";
    element.demp = S(1, 2, 3, 4, 5, 6, 7, 99);
    element.ruis = S(10, 20, 30, 40, 50, 60, 70, 65.55);
    element.Instraling = S(-11, 0, 0, 0, 0, 0, 0, -37.2);
    g.resultaten.Subtotaal[i] = S(79, 79.5, 76, 71.25, 65, 60, -1, 72);
    g.resultaten.ElementTekst[i] = {Tekst<20>("rij een"), Tekst<20>("rij twee"), Tekst<20>("rij drie"),
                                    Tekst<20>("rij vier")};
  }
  auto& tweede = g.project.Elementen[2];
  tweede.LAeq = S(60, 60, 0, 0, 0, 0, 0);
  tweede.Rkanaalwand = S(10, 11, 12, 13, 14, 15, 16);
  tweede.Kanaal = " Staal 1 mm";
  g.resultaten.HeeftInstraling[2] = true;
  g.project.Ruimte.Rkanaal = S(20, 21, 22, 23, 24, 25, 26);
  g.project.Ruimte.RkanaalNaam = " Wand ";
  g.project.Ruimte.Rplafond = S(30, 31, 32, 33, 34, 35, 36);
  g.project.Ruimte.RplafondNaam = "Plafond";
  g.resultaten.LwKanaalwand = S(1, 1, 1, 1, 1, 1, 1, 2);
  (void)g.Druk();

  Regels goed = Hoofd("Geluidsuitstraling", false);
  const auto element = [&](double y, const std::string& nummer, const std::string& eenheid) {
    goed.push_back(K(y, 8, nummer));
    goed.push_back(K(y, 10, "Kanaal recht"));
    const auto rij = [&](double yRij, const std::string& tekst, const std::string& naam,
                         const std::string& dB, const Regels& waarden) {
      goed.push_back(K(yRij, 10, Vol(tekst, 20)));
      Rij(goed, yRij, 32, naam, dB, waarden);
    };
    rij(y + 162, "rij een", "geluiddemping", "[dB]", {"1,0", "2,0", "3,0", "4,0", "5,0", "6,0", "7,0"});
    rij(y + 324, "rij twee", "geluidsproductie", "[dB]",
        {"10,0", "20,0", "30,0", "40,0", "50,0", "60,0", "70,0", "65,6"});
    rij(y + 486, "rij drie", "geluidsinstraling", eenheid,
        {"-11,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "-37,2"});
    rij(y + 648, "rij vier", "subtotaal", "[dB]",
        {"79,0", "79,5", "76,0", "71,3", "65,0", "60,0", "-1,0", "72,0"});
  };
  element(5578, "1", "[dB]");
  element(6438, "2", "[dB]*");
  // 60 + 26,2 and 60 + 16,1; a silent band prints minus its weighting. Twice 60 dB is 63,0.
  Rij(goed, 7298, 32, "*geluidsniveau", "[dB]",
      {"86,2", "76,1", "8,6", "3,2", "0,0", "-1,2", "-1,0", "63,0"});
  Rij(goed, 7460, 33, "Rkanaalwand", "[dB]", {"10,0", "11,0", "12,0", "13,0", "14,0", "15,0", "16,0"});
  goed.push_back(K(7622, 33, "(Staal 1 mm)"));
  Rij(goed, 7834, 32, "Rkanaalwand", "[dB]", {"20,0", "21,0", "22,0", "23,0", "24,0", "25,0", "26,0"});
  goed.push_back(K(7996, 32, "(Wand)"));
  Rij(goed, 8158, 32, "Rplafond", "[dB]", {"30,0", "31,0", "32,0", "33,0", "34,0", "35,0", "36,0"});
  goed.push_back(K(8320, 32, "(Plafond)"));
  Rij(goed, 8482, 32, "Lw,kanaalwand", "[dB]", {"1,0", "1,0", "1,0", "1,0", "1,0", "1,0", "1,0", "2,0"});
  goed.push_back(Enkel(8744));  // 8482 + 162 + 50, then 50 of the rule
  goed.push_back(K(8794, 7, "GELUIDSDRUKNIVEAU:"));
  Rij(goed, 8956, 7, "Lp op 1 m afstand van rooster/kanaalwand", "[dB]", Nullen8);
  Rij(goed, 9118, 7, "Lp in galmveld ruimte", "[dB]", Nullen8);
  goed.push_back(Dubbel(9330));
  Voeg(goed, Voet());
  EXPECT_EQ(g.Tekening(), goed);
}

TEST(DrukRapport, OfCrosstalkHasAttenuationOnly) {
  Geval g(rekentype::Overspraak, 1);
  g.project.VrijVeld = 1;  // no matter: crosstalk always has a room
  g.project.Elementen[1].demp = S(1, 2, 3, 4, 5, 6, -7);
  g.resultaten.ElementTekst[1] = {Tekst<20>("een"), Tekst<20>("twee"), Tekst<20>("drie"), Tekst<20>("vier")};
  g.resultaten.HeeftInstraling[1] = true;
  g.resultaten.SysteemDemping = S(10, 20, 30, 40, 50, 60, 70);
  g.resultaten.OverspraakDemping = S(-1, -2, 0, 0, 0, 0, 150.04);
  (void)g.Druk();
  Regels goed = KortHoofd("Overspraak");
  Voeg(goed, Kamer(true));
  Voeg(goed, Bandkop(4630));
  goed.push_back(K(4992, 7, "SYSTEEMDEMPING :"));
  Voeg(goed, {K(5154, 8, "1"), K(5154, 10, "Element 1"), K(5316, 10, Vol("een", 20))});
  Rij(goed, 5316, 32, "geluiddemping", "dB", {"1,0", "2,0", "3,0", "4,0", "5,0", "6,0", "-7,0"});
  goed.push_back(K(5478, 10, Vol("drie", 20)));
  Voeg(goed, {Enkel(5740), K(5790, 7, "GELUIDDEMPING:")});  // 5478 + 162 + 50, then 50 of the rule
  Rij(goed, 5952, 7, "Totale systeemdemping", "[dB]",
      {"10,0", "20,0", "30,0", "40,0", "50,0", "60,0", "70,0"});
  Rij(goed, 6114, 7, "Overspraakdemping (Lpz - Lpo)", "[dB]",
      {"-1,0", "-2,0", "0,0", "0,0", "0,0", "0,0", "150,0"});
  goed.push_back(Dubbel(6326));
  Voeg(goed, Voet());
  EXPECT_EQ(g.Tekening(), goed);
}

TEST(DrukRapport, OfAFreeFieldHasARemarkAndNoReverberantField) {
  for (const std::int16_t type : Waarden{1, 2}) {
    for (const std::int16_t vrijVeld : Waarden{1, -1, 2}) {
      Geval g(type);
      g.project.VrijVeld = vrijVeld;
      (void)g.Druk();
      Regels goed = KortHoofd(type == 1 ? "Installatiegeluid" : "Geluidsuitstraling");
      goed.push_back(H(3550, 3, "Vrij-veldsituatie"));
      Voeg(goed, Bandkop(4090));
      Voeg(goed, Fankop(4090));
      double y = 5038;
      if (type == 2) {
        Rij(goed, y, 32, "Rkanaalwand", "[dB]", Nullen7);
        goed.push_back(K(y + 162, 32, "()"));
        Rij(goed, y + 324, 32, "Rplafond", "[dB]", Nullen7);
        goed.push_back(K(y + 486, 32, "()"));
        Rij(goed, y + 648, 32, "Lw,kanaalwand", "[dB]", Nullen8);
        y += 860;
      }
      Voeg(goed, {Enkel(y + 50), K(y + 100, 7, "GELUIDSDRUKNIVEAU:")});
      Rij(goed, y + 262, 7, "Lp op 1 m afstand van rooster/kanaalwand", "[dB]", Nullen8);
      goed.push_back(Dubbel(y + 474));
      Voeg(goed, Voet());
      EXPECT_EQ(g.Tekening(), goed) << type << " " << vrijVeld;
    }
  }
}

TEST(DrukRapport, OfAnUnknownTypeHasNoTypeFanOrRows) {
  for (const std::int16_t type : Waarden{0, 4, -1}) {
    Geval g(type, 3);
    (void)g.Druk();
    Regels goed = KortHoofd("");
    goed.erase(goed.begin() + 3);  // no type name
    Voeg(goed, Kamer(false));
    Voeg(goed, Bandkop(4630));
    Voeg(goed, Voet());
    EXPECT_EQ(g.Tekening(), goed) << type;
  }
}

TEST(DrukRapport, TakesTheRegionsDecimalSign) {
  Geval g;
  g.decimaal = '.';
  (void)g.Druk();
  EXPECT_EQ(g.blad.Zoek("7.5 m").size(), 1U);
  EXPECT_EQ(g.blad.Zoek("75.3").size(), 1U);
  EXPECT_EQ(g.blad.Zoek("7,5 m").size(), 0U);
}

TEST(DrukRapport, ShowsAFinalBandBelow0As0ButNotItsSum) {
  Geval g;
  g.resultaten.LpEenMeter = S(-0.01, -0.06, -40, -0.0, 0.04, 0.05, -1e-300, -12.35);
  g.resultaten.LpGalmveld = S(-1, -1, -1, -1, -1, -1, -1, 0.06);
  (void)g.Druk();
  Regels goed;
  Cellen(goed, 5840, {"0,0", "0,0", "0,0", "0,0", "0,0", "0,1", "0,0", "-12,4"});
  Cellen(goed, 6002, {"0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,0", "0,1"});
  const Regels tekening = g.Tekening();
  for (const std::string& cel : goed) EXPECT_EQ(std::count(tekening.begin(), tekening.end(), cel), 1) << cel;
}

TEST(DrukRapport, StylesItsThreeAreasAndNothingElse) {
  const struct {
    std::int16_t kop, boven, onder;
    const char *bandStijl, *projectStijl, *kamerStijl;
  } rijen[] = {
      {1, 1, 1, "", "", ""},     {2, 1, 1, "c", "", ""},       {3, 1, 1, "v", "", ""},
      {4, 1, 1, "vc", "", ""},   {1, 2, 1, "", "c", ""},       {1, 3, 1, "", "v", ""},
      {1, 4, 1, "", "vc", ""},   {1, 1, 2, "", "", "c"},       {1, 1, 3, "", "", "v"},
      {1, 1, 4, "", "", "vc"},   {0, 2, 3, "", "c", "v"},      {5, 1, 1, "", "", ""},
      {4, 0, 1, "vc", "vc", ""}, {4, 5, -1, "vc", "vc", "vc"},  // another number changes nothing
      {3, 2, 6, "v", "c", "c"},
  };
  for (const auto& rij : rijen) {
    Geval g;
    g.instelling.KopStijl = rij.kop;
    g.instelling.BlokBovenStijl = rij.boven;
    g.instelling.BlokOnderStijl = rij.onder;
    (void)g.Druk();
    for (const std::string& regel : g.Tekening()) {
      if (regel.find('"') == std::string::npos) continue;
      const double y = std::stod(regel.substr(regel.find(';') + 1));
      const std::string stijl = regel.substr(regel.rfind('"') + 2);
      const std::string goed = y < 1000    ? std::string("12") + rij.bandStijl
                               : y < 3280  ? std::string("12") + rij.projectStijl
                               : y < 4630  ? std::string("12") + rij.kamerStijl
                               : y < 15988 ? std::string("7.2")
                                           : std::string("10v");
      EXPECT_EQ(stijl, goed) << regel << " " << rij.kop << rij.boven << rij.onder;
    }
  }
}

TEST(DrukRapport, ScalesTheHeadWithItsSizeAndNotTheTable) {
  const struct {
    std::int16_t punten;
    double doosOnder, project, kamer, tabel;  // y of box bottom, first project and room line, table head
  } rijen[] = {
      // The head has 1 + 2 + 6 + 1 + 3 + 1 lines of 22.5 times the size.
      {6, 850 + 135 + 150, 850 + 405, 850 + 1350, 850 + 14 * 135 + 100},
      {8, 850 + 180 + 150, 850 + 540, 850 + 1800, 850 + 14 * 180 + 100},
      {10, 850 + 225 + 150, 850 + 675, 850 + 2250, 850 + 14 * 225 + 100},
  };
  for (const auto& rij : rijen) {
    Geval g;
    g.instelling.LetterGrootte = rij.punten;
    (void)g.Druk();
    const double kolom = 12.0 * rij.punten;
    const std::string stijl = std::to_string(rij.punten) + "c";
    const Regels tekening = g.Tekening();
    EXPECT_EQ(tekening[0], "doos 432.0;700.0 " + Plek(11474, rij.doosOnder) + GrijsBand);
    const Regels goed = {T(3 * kolom, rij.project, "Projectnummer", stijl),
                         T(65 * kolom, rij.project, "01-02-2024", stijl),
                         T(69 * kolom, rij.kamer, "0,6 s", stijl), K(rij.tabel, 7, "octaafbanden"),
                         K(rij.tabel, 119, "dB(A)")};
    for (const std::string& regel : goed)
      EXPECT_EQ(std::count(tekening.begin(), tekening.end(), regel), 1) << regel;
    EXPECT_EQ(g.blad.HuidigFont().Punten, rij.punten);
  }
}

TEST(DrukRapport, BreaksBeforeAnElementOnlyBelowItsLimit) {
  // The first element of types 1 and 2 ends at 5578 + 860, that of type 3 at 5154 + 536.
  const struct {
    std::int16_t type;
    double einde;
  } rijen[] = {{1, 6438}, {2, 6438}, {3, 5690}};
  for (const auto& rij : rijen) {
    const double hoogte = rij.einde + 2100 + 850;
    Geval past(rij.type, 2, hoogte);
    (void)past.Druk();
    EXPECT_EQ(past.blad.Zoek("Element 2").at(0).Blad, 1) << rij.type;
    Geval breekt(rij.type, 2, hoogte - 1);
    (void)breekt.Druk();
    EXPECT_EQ(breekt.blad.Zoek("Element 2").at(0).Blad, 2) << rij.type;
    EXPECT_EQ(breekt.blad.Zoek("Element 2").at(0).Y, rij.einde - (rij.type == 3 ? 536 : 860)) << rij.type;
  }
}

TEST(DrukRapport, BreaksBeforeTheWallsOnlyBelowTheirLimit) {
  const double hoogte = 5578 + 1700 + 850;
  Geval past(2, 0, hoogte);
  (void)past.Druk();
  EXPECT_EQ(past.blad.Bladen(), 1);
  Geval breekt(2, 0, hoogte - 1);
  (void)breekt.Druk();
  EXPECT_EQ(breekt.blad.Bladen(), 2);
  EXPECT_EQ(breekt.blad.Zoek("Rplafond").at(0).Blad, 2);
}

TEST(DrukRapport, RepeatsTheWholeHeadBehindAContinuationMark) {
  Geval g(1, 12);  // 10 elements a page: 5578 + 9 * 860 = 13318 is above 13888, 14178 is not
  (void)g.Druk();
  ASSERT_EQ(g.blad.Bladen(), 2);
  EXPECT_EQ(g.blad.Gebeurtenissen(), (Regels{"staand", "NewPage"}));
  const Regels een = g.Tekening(1), twee = g.Tekening(2);
  Regels slot = {Dubbel(14228), K(14278, 115, "<vervolg>")};
  Voeg(slot, Voet("1"));
  EXPECT_EQ(Regels(een.end() - 5, een.end()), slot);
  const Regels hoofd = Hoofd("Installatiegeluid", true);
  EXPECT_EQ(Regels(een.begin(), een.begin() + static_cast<long>(hoofd.size())), hoofd);
  EXPECT_EQ(Regels(twee.begin(), twee.begin() + static_cast<long>(hoofd.size())), hoofd);
  EXPECT_EQ(twee[hoofd.size()], K(5578, 7, "11"));  // both digits end at column 9
  EXPECT_EQ(g.blad.Zoek("Element 10").at(0).Blad, 1);
  EXPECT_EQ(g.blad.Zoek("Element 11").at(0).Blad, 2);
  EXPECT_EQ(Regels(twee.end() - 3, twee.end()), Voet("2"));
  EXPECT_EQ(g.blad.Zoek("GELUIDSDRUKNIVEAU:").size(), 1U);
}

TEST(DrukRapport, PrintsALongChainOnAsManyPagesAsItTakes) {
  const struct {
    std::int16_t type;
    int perBlad, bladen;
  } rijen[] = {
      {1, 10, 10},  // 9 full pages and 9 elements
      {2, 10, 10},  // behind 9 elements the walls still fit: 13318 is above 14288
      {3, 17, 6},   // 5154 + 16 * 536 = 13730 is above 13888; 5 full pages and 14 elements
  };
  for (const auto& rij : rijen) {
    Geval g(rij.type, 99);
    (void)g.Druk();
    EXPECT_EQ(g.blad.Bladen(), rij.bladen);
    for (int i = 1; i <= 99; ++i) {
      const auto gevonden = g.blad.Zoek("Element " + std::to_string(i));
      ASSERT_EQ(gevonden.size(), 1U);
      EXPECT_EQ(gevonden[0].Blad, (i - 1) / rij.perBlad + 1) << i;
    }
    for (int blad = 1; blad <= rij.bladen; ++blad) {
      const Regels tekening = g.Tekening(blad);
      EXPECT_EQ(Regels(tekening.end() - 3, tekening.end()), Voet(std::to_string(blad)));
    }
    EXPECT_EQ(g.blad.Zoek("<vervolg>").size(), static_cast<std::size_t>(rij.bladen - 1));
  }
}

TEST(DrukRapport, HoldsTheTallestGroupAboveTheFooter) {
  Geval g(2, 10);
  g.resultaten.HeeftInstraling[10] = true;  // it starts at 13318 and ends at 13318 + 1396 = 14714
  (void)g.Druk();
  EXPECT_EQ(g.blad.Zoek("*geluidsniveau").at(0).Blad, 1);
  EXPECT_EQ(g.blad.Zoek("Rplafond").at(0).Blad, 2);  // 14714 is below 14288
  for (const auto& woord : g.blad.Woorden())
    EXPECT_TRUE(woord.Y + 22.5 * woord.Font.Punten <= 15988 || woord.Font.Punten == 10) << woord.Tekst;
}

TEST(DrukRapport, StopsAtAsManyElementsAsThereAre) {
  for (const std::int16_t aantal : Waarden{-1, -32768, 0}) {
    Geval g(1, aantal);
    (void)g.Druk();
    EXPECT_EQ(g.blad.Zoek("subtotaal").size(), 0U) << aantal;
  }
}

// The preview.

struct InVoorbeeld : Geval {
  InVoorbeeld(std::int16_t type, std::int16_t elementen) : Geval(type, elementen) { stand.Voorbeeld = true; }
};

TEST(DrukRapport, OfOnePageStoresNothingInThePreview) {
  InVoorbeeld g(1, 10);
  (void)g.Druk();
  EXPECT_EQ(g.blad.Gebeurtenissen(), Regels{});  // no orientation either
  EXPECT_EQ(g.stand, (VoorbeeldStand{true, 1, 1}));
  const Regels tekening = g.Tekening(1);
  EXPECT_EQ(Regels(tekening.end() - 3, tekening.end()), Voet("1"));
}

TEST(DrukRapport, StoresThePagesBeforeTheLastInThePreview) {
  InVoorbeeld g(1, 50);
  (void)g.Druk();
  EXPECT_EQ(g.blad.Gebeurtenissen(), (Regels{"BewaarBlad 0", "Cls", "BewaarBlad 1", "Cls", "BewaarBlad 2",
                                             "Cls", "BewaarBlad 3", "Cls"}));
  EXPECT_EQ(g.stand.VoorbeeldPagina, 5);
  EXPECT_EQ(g.blad.HuidigFont().Punten, 12);
  EXPECT_EQ(g.blad.Zoek("GELUIDSDRUKNIVEAU:").at(0).Blad, 5);
  for (int blad = 1; blad <= 5; ++blad) {
    const Regels tekening = g.Tekening(blad);
    EXPECT_EQ(Regels(tekening.end() - 3, tekening.end()), Voet(std::to_string(blad)));
  }
}

const std::string Limiet = "Afdrukvoorbeeld is helaas gelimiteerd op 5 pagina's!";

TEST(DrukRapport, EndsThePreviewOnTheFifthPageWithAMessage) {
  for (const std::int16_t elementen : Waarden{51, 99}) {
    InVoorbeeld g(1, elementen);
    (void)g.Druk(1, kiesgrafiek::EenMeter);
    EXPECT_EQ(g.stand.VoorbeeldPagina, 5);
    EXPECT_EQ(g.blad.Gebeurtenissen().size(), 8U);
    EXPECT_EQ(g.blad.Bladen(), 5);
    Regels slot = {Dubbel(14228), K(14278, 115, "<vervolg>")};
    Voeg(slot, Voet("5"));
    slot.push_back(T(432, 16263, Limiet, "10v"));
    const Regels tekening = g.Tekening(5);
    EXPECT_EQ(Regels(tekening.end() - 6, tekening.end()), slot);
    EXPECT_EQ(g.blad.HuidigFont().Punten, 10);  // the font is not restored then
    EXPECT_TRUE(g.blad.HuidigFont().Vet);
    EXPECT_TRUE(g.blad.Plaatjes().empty());
    EXPECT_TRUE(g.grafiek.Titel.empty());
  }
}

TEST(DrukRapport, CountsPreviewPagesFromTheStateThatItIsGiven) {
  InVoorbeeld g(3, 18);
  g.stand.VoorbeeldPagina = 3;
  (void)g.Druk();
  EXPECT_EQ(g.blad.Gebeurtenissen(), (Regels{"BewaarBlad 2", "Cls"}));
  EXPECT_EQ(g.stand.VoorbeeldPagina, 4);
  EXPECT_EQ(g.blad.Zoek("Pagina 3").size() + g.blad.Zoek("Pagina 4").size(), 2U);
}

TEST(DrukRapport, OnAPrinterLeavesThePreviewsPageAlone) {
  Geval g(1, 99);
  g.stand.VoorbeeldPagina = 3;
  g.stand.LaatstePagina = 4;
  (void)g.Druk();
  EXPECT_EQ(g.stand, (VoorbeeldStand{false, 3, 4}));
}

// The chart.

TEST(DrukRapport, PutsAChartThatFitsBehindTheFinalRows) {
  Geval g(1, 4);  // the final rows end at 6264 + 4 * 860 = 9704, 6284 above the footer
  EXPECT_EQ(g.Druk(1, kiesgrafiek::EenMeter), GrafiekUitkomst::Goed);
  ASSERT_EQ(g.blad.Plaatjes().size(), 1U);
  const auto& beeld = g.blad.Plaatjes()[0];
  EXPECT_EQ(beeld.Blad, 1);
  EXPECT_EQ(beeld.X, 567.5);  // (11340 - 10205) / 2
  EXPECT_EQ(beeld.Y, 9704);
  EXPECT_EQ(beeld.Breedte, 10205);
  EXPECT_EQ(beeld.Hoogte, 5669);
  EXPECT_EQ(beeld.Grafiek, g.grafiek);
  EXPECT_EQ(beeld.Grafiek.Titel.at(0),
            "Geluidsdrukniveau op 1 meter van rooster/kanaalwand (afgerond op gehele decibellen)");
  const Regels tekening = g.Tekening(1);
  EXPECT_EQ(Regels(tekening.end() - 3, tekening.end()), Voet("1"));
  EXPECT_EQ(tekening[tekening.size() - 4], "beeld 567.5;9704.0 10205.0;5669.0");
}

TEST(DrukRapport, MovesAChartToAPageWithTheShortHead) {
  Geval g(1, 5);  // 10564, only 5424 above the footer
  (void)g.Druk(1, kiesgrafiek::Galmveld);
  ASSERT_EQ(g.blad.Bladen(), 2);
  EXPECT_EQ(g.blad.Zoek("<vervolg>").size(), 0U);
  const Regels een = g.Tekening(1);
  EXPECT_EQ(een[een.size() - 4], Dubbel(10514));
  EXPECT_EQ(Regels(een.end() - 3, een.end()), Voet("1"));
  Regels goed = KortHoofd("Installatiegeluid");
  goed.push_back("beeld 567.5;3550.0 10205.0;5669.0");
  Voeg(goed, Voet("2"));
  EXPECT_EQ(g.Tekening(2), goed);
  EXPECT_EQ(g.grafiek.Titel.at(0), "Geluidsdrukniveau in galmveld ruimte (afgerond op gehele decibellen)");
}

TEST(DrukRapport, FitsAChartToTheLastTwip) {
  const double hoogte = 6264 + 5669 + 850;
  Geval past(1, 0, hoogte);
  (void)past.Druk(1, 1);
  EXPECT_EQ(past.blad.Bladen(), 1);
  Geval niet(1, 0, hoogte - 1);
  (void)niet.Druk(1, 1);
  EXPECT_EQ(niet.blad.Bladen(), 2);
}

TEST(DrukRapport, OfCrosstalkHasItsChartToo) {
  Geval g(3);
  (void)g.Druk(1, kiesgrafiek::Galmveld);
  ASSERT_EQ(g.blad.Plaatjes().size(), 1U);
  EXPECT_EQ(g.blad.Plaatjes()[0].Grafiek.Titel.at(0),
            "Overspraakdemping Lpz - Lpo  (afgerond op gehele decibellen)");
}

TEST(DrukRapport, GivesItsChartTheDecimalSign) {
  Geval g;
  g.decimaal = '.';
  (void)g.Druk(1, kiesgrafiek::Galmveld);
  EXPECT_EQ(g.blad.Plaatjes().at(0).Grafiek.As.Decimaal, '.');
}

TEST(DrukRapport, HasAChartOnlyWhenItIsWantedAndChosen) {
  const struct {
    std::int16_t wens, keuze;
    std::size_t beelden;
  } rijen[] = {{0, 0, 0}, {0, 1, 0}, {1, 0, 0}, {1, -1, 0}, {2, 1, 0}, {-1, 1, 0}, {1, 1, 1}, {1, 3, 1}};
  for (const auto& rij : rijen) {
    Geval g;
    (void)g.Druk(rij.wens, rij.keuze);
    EXPECT_EQ(g.blad.Plaatjes().size(), rij.beelden) << rij.wens << " " << rij.keuze;
    EXPECT_EQ(g.grafiek == Grafiek{}, rij.beelden == 0) << rij.wens << " " << rij.keuze;
  }
}

TEST(DrukRapport, EndsAFullPreviewBeforeItsChart) {
  InVoorbeeld g(1, 50);
  (void)g.Druk(1, 1);  // ten elements on the fifth page leave no room for the chart
  EXPECT_TRUE(g.blad.Plaatjes().empty());
  EXPECT_EQ(g.blad.Zoek(Limiet).at(0).Blad, 5);
  EXPECT_EQ(g.blad.Zoek("<vervolg>").size(), 4U);
  EXPECT_EQ(g.blad.Zoek("GELUIDSDRUKNIVEAU:").size(), 1U);
}

TEST(DrukRapport, KeepsTheFirstPageOfAPreviewWhenItsChartMoves) {
  InVoorbeeld g(1, 5);
  (void)g.Druk(1, 1);
  EXPECT_EQ(g.blad.Gebeurtenissen(), (Regels{"BewaarBlad 0", "Cls"}));
  EXPECT_EQ(g.stand.VoorbeeldPagina, 2);
  EXPECT_EQ(g.blad.Plaatjes().at(0).Blad, 2);
}

TEST(DrukRapport, DrawsTheFormerChartWhenANewOneFails) {
  Geval g;
  g.grafiek.Titel = {"vorige"};
  g.resultaten.LpEenMeter[2] = 40000;
  EXPECT_EQ(g.Druk(1, 1), GrafiekUitkomst::Mislukt);
  ASSERT_EQ(g.blad.Plaatjes().size(), 1U);
  EXPECT_EQ(g.blad.Plaatjes()[0].Grafiek.Titel, Regels{"vorige"});
}

// Failures.

TEST(DrukRapport, SkipsAStatementThatFailsAndRunsTheNext) {
  Geval heel(2, 3);
  heel.resultaten.HeeftInstraling[1] = true;
  (void)heel.Druk(1, 1);
  const int operaties = heel.blad.Operaties();
  ASSERT_GT(operaties, 500);
  for (int n = 0; n < operaties; ++n) {
    Geval g(2, 3);
    g.resultaten.HeeftInstraling[1] = true;
    std::string welke;
    g.blad.Faalt = [&](std::string_view naam, int nummer) {
      if (nummer == n) welke = naam;
      return nummer == n;
    };
    (void)g.Druk(1, 1);
    // At most one text less, except where whether a page is full could not be told.
    EXPECT_GE(g.blad.Woorden().size() + 1, heel.blad.Woorden().size()) << n << " " << welke;
    EXPECT_EQ(g.blad.HuidigFont().Punten, welke == "ZetFontSize" && n > operaties - 3 ? 10 : 12) << n;
  }
}

TEST(DrukRapport, DrawsEverythingItCanOnASurfaceThatRefusesAKindOfOperation) {
  for (const char* soort :
       {"ScaleWidth",    "ScaleHeight", "ZetStaand", "ZetFontNaam", "ZetFontSize", "ZetFontBold",
        "ZetFontItalic", "FontSize",    "CurrentX",  "CurrentY",    "ZetCurrentX", "ZetCurrentY",
        "TextWidth",     "TextHeight",  "Print",     "PrintRegel",  "Lijn",        "Doos",
        "PaintPicture",  "NewPage",     "Page"}) {
    Geval g(1, 12);
    g.blad.Faalt = [&](std::string_view naam, int) { return naam == soort; };
    EXPECT_EQ(g.Druk(1, 1), GrafiekUitkomst::Goed) << soort;
    EXPECT_GT(g.blad.Operaties(), 300) << soort;
  }
}

TEST(DrukRapport, LeavesOutACellThatIsNoNumberAndKeepsItsRow) {
  for (const double waarde :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    Geval g(1, 1);
    g.project.Elementen[1].demp = S(1, waarde, 3, 4, 5, 6, 7);
    g.resultaten.LpEenMeter[2] = waarde;
    (void)g.Druk();
    Regels cellen;
    Cellen(cellen, 5740, {"1,0", "2,0", "3,0"});
    const Regels tekening = g.Tekening();
    EXPECT_EQ(std::count(tekening.begin(), tekening.end(), cellen[0]), 1);
    EXPECT_EQ(std::count(tekening.begin(), tekening.end(), cellen[2]), 1);
    EXPECT_EQ(g.blad.Zoek("subtotaal").at(0).Y, 5578 + 648);
    EXPECT_EQ(g.blad.Zoek("NaN").size() + g.blad.Zoek("INF").size(), 0U);
  }
}

// The helpers.

TEST(NaarKolom, IsAGridOf12TwipsAPoint) {
  Opnemer blad;
  blad.ZetFontSize(7.2);
  EXPECT_EQ(NaarKolom(blad, 51), "");
  EXPECT_DOUBLE_EQ(blad.CurrentX(), 4406.4);
  blad.ZetFontSize(12);
  EXPECT_EQ(NaarKolom(blad, 3), "");
  EXPECT_EQ(blad.CurrentX(), 432);  // exactly the margin
}

TEST(RechtsOpKolom, EndsTheTextAtItsColumn) {
  Opnemer blad;
  blad.ZetFontSize(10);
  EXPECT_EQ(RechtsOpKolom(blad, 58, -0.04, Formaat::Een, 6, ','), "0,0");
  EXPECT_EQ(blad.CurrentX(), 64 * 120 - 3 * 120);
  EXPECT_EQ(RechtsOpKolom(blad, 117, 123456.25, Formaat::Een, 6, '.'), "123456.3");
  EXPECT_EQ(blad.CurrentX(), 123 * 120 - 8 * 120);
  EXPECT_EQ(RechtsOpKolom(blad, 7, 9, Formaat::Heel, 2, ','), "9");
  EXPECT_EQ(blad.CurrentX(), 9 * 120 - 120);
}

TEST(DrukLijn, IsALineOrABarWith50TwipsAround) {
  Opnemer blad(9000, 5000);
  blad.ZetCurrentX(77);
  blad.ZetCurrentY(1000);
  DrukLijn(blad, LijnSoort::Dubbel);
  EXPECT_EQ(blad.CurrentY(), 1100);
  DrukLijn(blad, LijnSoort::Enkel);
  EXPECT_EQ(blad.CurrentY(), 1200);
  EXPECT_EQ(blad.CurrentX(), 77);
  EXPECT_EQ(blad.Tekening(1),
            (Regels{"doos 432.0;1040.0 8568.0;1050.0 70,70,70", "lijn 432.0;1150.0 8568.0;1150.0 70,70,70"}));
}

}  // namespace
}  // namespace murvane
