#include "estimators/schatters.h"

#include <gtest/gtest.h>

#include <vector>

#include "basis/tekst.h"
#include "tests/estimators/hulp.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

constexpr std::array Soorten = {Schatter::Bekleed, Schatter::KwartLambda, Schatter::Plenum,
                                Schatter::Kanaalwand};

struct VeldRij {
  std::string_view naam, label, eenheid;
  Formaat weergave;
  double boven;
  std::string_view toetsen, volgende;
};

constexpr std::string_view Heel = "1234567890";
constexpr std::string_view Getal = "1234567890,.";

void VerwachtVenster(Schatter soort, std::string_view naam, std::string_view titel,
                     const std::vector<VeldRij>& rijen) {
  SCOPED_TRACE(naam);
  const SchatVenster& venster = VensterVan(soort);
  EXPECT_EQ(venster.Soort, soort);
  EXPECT_EQ(venster.Naam, naam);
  EXPECT_EQ(venster.Titel, titel);
  ASSERT_EQ(venster.Velden.size(), rijen.size());
  for (std::size_t i = 0; i < rijen.size(); ++i) {
    SCOPED_TRACE(i);
    const SchatVeld& veld = venster.Velden[i];
    EXPECT_EQ(veld.Regel.Naam, rijen[i].naam);
    EXPECT_EQ(veld.Label, rijen[i].label);
    EXPECT_EQ(veld.Eenheid, rijen[i].eenheid);
    EXPECT_EQ(veld.Regel.Soort, VeldSoort::Numeriek);
    EXPECT_EQ(veld.Regel.Weergave, rijen[i].weergave);
    EXPECT_EQ(veld.Regel.Onder, 0);
    EXPECT_EQ(veld.Regel.Boven, rijen[i].boven);
    EXPECT_EQ(veld.Regel.Toetsen, rijen[i].toetsen);
    EXPECT_EQ(veld.Regel.Opvolgers[0], rijen[i].volgende);
  }
}

TEST(Schatters, HaveTheirTitlesAndFields) {
  constexpr auto Een = Formaat::Een;
  constexpr auto Nul = Formaat::Heel;
  VerwachtVenster(Schatter::Bekleed, "frmCalc1", "Geluiddemping beklede luchtkanalen",
                  {{"Text1", "Hoogte/diameter kanaal", "mm", Nul, 5000, Heel, "Text2"},
                   {"Text2", "Breedte kanaal", "mm (= 0 bij rond kanaal)", Nul, 5000, Heel, "Text3"},
                   {"Text3", "Dikte bekledingsmateriaal", "mm", Nul, 5000, Heel, "Text4"},
                   {"Text4", "Lengte kanaal", "m", Een, 5000, Getal, "Text1"}});
  VerwachtVenster(Schatter::KwartLambda, "frmCalc2", "Geluiddemping kwartlambda-demper",
                  {{"Text1", "Hoogte/diameter kanaal", "mm", Nul, 5000, Heel, "Text2"},
                   {"Text2", "Breedte kanaal", "mm (= 0 bij rond kanaal)", Nul, 5000, Heel, "Text3"},
                   {"Text3", "Lengte demper", "m", Een, 5000, Getal, "Text4"},
                   {"Text4", "Doorsnede demper", "m²"_cp, Formaat::Twee, 5000, Getal, "Text1"}});
  VerwachtVenster(Schatter::Plenum, "frmCalc3", "Geluiddemping plenumdemper",
                  {{"Text1", "Hoogte plenumdemper", "mm", Nul, 5000, Heel, "Text2"},
                   {"Text2", "Breedte plenumdemper", "mm", Nul, 5000, Heel, "Text3"},
                   {"Text3", "Lengte plenumdemper", "m", Een, 5000, Getal, "Text4"},
                   {"Text4", "Hoogte/diameter kanaal", "mm (intredekanaal)", Nul, 5000, Heel, "Text5"},
                   {"Text5", "Breedte kanaal", "mm (= 0 bij rond kanaal)", Nul, 5000, Heel, "Text6"},
                   {"Text6", "Dikte bekledingsmateriaal", "mm", Nul, 5000, Heel, "Text1"}});
  VerwachtVenster(Schatter::Kanaalwand, "frmDuctCalc", "Geluidsisolatie kanaalwand (massawet)",
                  {{"txtDikte", "dikte kanaalwand", "mm", Nul, 100, Heel, "txtMassa"},
                   {"txtMassa", "massa ontdreuning", "kg/m²"_cp, Een, 100, Getal, "txtDikte"}});
}

/// The values of an estimator's fields in their order.
std::vector<double> Waarden(const SchatInvoer& in, Schatter soort) {
  switch (soort) {
    case Schatter::Bekleed:
      return {in.Bekleed.h, in.Bekleed.B, in.Bekleed.Dikte, in.Bekleed.L};
    case Schatter::KwartLambda:
      return {in.KwartLambda.h, in.KwartLambda.B, in.KwartLambda.L, in.KwartLambda.S2};
    case Schatter::Plenum:
      return {in.Plenum.Hdemper, in.Plenum.Bdemper, in.Plenum.L, in.Plenum.h, in.Plenum.B, in.Plenum.Dikte};
    default:
      return {in.Kanaalwand.Dikte, in.Kanaalwand.Massa};
  }
}

TEST(Schatters, EachFieldKeepsItsOwnValueAndNoOther) {
  for (const Schatter soort : Soorten) {
    SchatInvoer invoer;
    std::vector<double> verwacht(VensterVan(soort).Velden.size());
    for (std::size_t i = 0; i < verwacht.size(); ++i) {
      verwacht[i] = 11 + static_cast<double>(i);
      const SchatVeld& veld = VensterVan(soort).Velden[i];
      EXPECT_TRUE(VerlaatVeld(invoer, veld, std::to_string(11 + i), '.').Geldig);
      EXPECT_EQ(Waarden(invoer, soort), verwacht) << veld.Label;
    }
    for (const Schatter ander : Soorten) {
      if (ander == soort) continue;
      for (const double waarde : Waarden(invoer, ander)) EXPECT_EQ(waarde, 0);
    }
  }
}

struct Getypt {
  const char *tekst, *wordt;
  double waarde;
};

TEST(Schatters, AFieldIsClampedAndShownInItsFormat) {
  const SchatVeld& heel = VensterVan(Schatter::Bekleed).Velden[0];
  for (const Getypt& rij : std::initializer_list<Getypt>{{"500", "500", 500},
                                                         {"", "0", 0},
                                                         {"5000", "5000", 5000},
                                                         {"5001", "5000", 5000},
                                                         {"-1", "0", 0},
                                                         {"12,5", "13", 13},  // halves away from zero
                                                         {"12.4", "12", 12}}) {
    SchatInvoer invoer;
    const VeldUitslag uit = VerlaatVeld(invoer, heel, rij.tekst, ',');
    EXPECT_TRUE(uit.Geldig);
    EXPECT_EQ(uit.Veld, VeldId{"Text1"});
    EXPECT_EQ(uit.Tekst, rij.wordt) << rij.tekst;
    EXPECT_EQ(uit.Achtergrond, VeldKleur);
    EXPECT_EQ(uit.ToolTip, "");
    EXPECT_EQ(invoer.Bekleed.h, rij.waarde) << rij.tekst;
    EXPECT_EQ(ToonVeld(invoer, heel, ','), rij.wordt);
  }
}

TEST(Schatters, TheWallIsCutAt100) {
  SchatInvoer invoer;
  const auto velden = VensterVan(Schatter::Kanaalwand).Velden;
  EXPECT_EQ(VerlaatVeld(invoer, velden[0], "101", ',').Tekst, "100");
  EXPECT_EQ(VerlaatVeld(invoer, velden[1], "100.1", ',').Tekst, "100,0");
  EXPECT_EQ(VerlaatVeld(invoer, velden[1], "2.25", ',').Tekst, "2,3");
  EXPECT_EQ(ToonVeld(invoer, velden[1], '.'), "2.3");
}

TEST(Schatters, AFieldWithoutANumberTurnsRedAndCountsAs0) {
  const SchatVeld& veld = VensterVan(Schatter::KwartLambda).Velden[3];
  for (const char* tekst : {"abc", "1,2,3", ".", "1e999"}) {
    SchatInvoer invoer;
    invoer.KwartLambda.S2 = 7;
    const VeldUitslag uit = VerlaatVeld(invoer, veld, tekst, ',');
    EXPECT_FALSE(uit.Geldig);
    EXPECT_EQ(uit.Veld, VeldId{"Text4"});
    EXPECT_EQ(uit.Tekst, tekst);
    EXPECT_EQ(uit.Achtergrond, FoutKleur);
    EXPECT_EQ(uit.ToolTip, "Voer geldig getal in");
    EXPECT_EQ(invoer.KwartLambda.S2, 0);
  }
}

TEST(Schatters, EachIsAskedForItsOwnEstimate) {
  SchatInvoer invoer;
  invoer.Bekleed = {500, 0, 25, 1};
  invoer.KwartLambda = {200, 0, 1, 0.5};
  invoer.Plenum = {600, 800, 1.2, 250, 0, 50};
  invoer.Kanaalwand = {kanaaltype::Alu, 1, 0};
  EXPECT_EQ(proef::NaamVan(cmdOK_Click(invoer, Schatter::Bekleed, '.')),
            "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m");
  EXPECT_EQ(proef::NaamVan(cmdOK_Click(invoer, Schatter::KwartLambda, '.')),
            "kwartlambda-demper, s2/s1 = 15.9 , L = 1 m");
  EXPECT_EQ(proef::NaamVan(cmdOK_Click(invoer, Schatter::Plenum, '.')),
            "plenumdemper, 600×800×1200 mm , d = 50 mm"_cp);
  EXPECT_EQ(proef::NaamVan(cmdOK_Click(invoer, Schatter::Kanaalwand, '.')), "aluminium,  1 mm");
}

TEST(Schatters, OpeningSetsTheMaterialOfTheWallAndNothingElse) {
  for (const Schatter soort : Soorten) {
    SchatInvoer invoer;
    Form_Load(invoer, soort);
    EXPECT_EQ(invoer.Kanaalwand.KanaalType, soort == Schatter::Kanaalwand ? 1 : 0);
  }
}

TEST(Voorproef, ShowsWhatOKWouldGiveAndStoresNothing) {
  const SchatInvoer invoer;
  const std::vector<std::string> goed = {"500,4", "", "25", "1"};
  const auto schatting = Voorproef(invoer, Schatter::Bekleed, goed, ',');
  ASSERT_TRUE(schatting.has_value());
  EXPECT_EQ(schatting->Omschrijving, "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m");
  EXPECT_EQ(schatting->Demping, (std::array<std::string, 7>{"0", "0", "2", "4", "3", "1", "0"}));
  EXPECT_EQ(invoer.Bekleed.h, 0);
}

TEST(Voorproef, TakesTheMaterialThatIsChosen) {
  SchatInvoer invoer;
  invoer.Kanaalwand.KanaalType = kanaaltype::Kunststof;
  const std::vector<std::string> goed = {"1", "0"};
  const auto schatting = Voorproef(invoer, Schatter::Kanaalwand, goed, ',');
  ASSERT_TRUE(schatting.has_value());
  EXPECT_EQ(schatting->Omschrijving, "kunststof,  1 mm");
}

TEST(Voorproef, IsEmptyForWhatOKWouldRefuse) {
  const std::vector<std::string> geenGetal = {"500", "0", "25", "een"};
  const std::vector<std::string> geweigerd = {"500", "0", "250", "1"};
  EXPECT_FALSE(Voorproef({}, Schatter::Bekleed, geenGetal, ',').has_value());
  EXPECT_FALSE(Voorproef({}, Schatter::Bekleed, geweigerd, ',').has_value());
  EXPECT_THROW((void)Voorproef({}, Schatter::Plenum, geweigerd, ','), Fout);
}

TEST(KanaalDoorsnede, IsRoundByAWidthOfExactlyZero) {
  EXPECT_NEAR(KanaalDoorsnede(400, 0), 0.125663706144, 1e-12);  // pi · 0.4² / 4
  EXPECT_NEAR(KanaalDoorsnede(400, 600), 0.24, 1e-12);
  EXPECT_NEAR(KanaalDoorsnede(400, 1e-9), 4e-13, 1e-24);
  EXPECT_NEAR(KanaalDoorsnede(400, -600), -0.24, 1e-12);  // no field lets it through, and no round duct
}

TEST(Weigering, IsShownInAWarningBox) {
  EXPECT_EQ(BoxVan({"Geen dikte kanaalwand ingevuld", "txtDikte"}),
            (Melding{MeldingSoort::Uitroep, "Waarschuwing", "Geen dikte kanaalwand ingevuld"}));
}

TEST(Schatters, DrawAQuarterWaveSilencerWithoutAWidthRound) {
  const SchatInvoer invoer;
  const auto beeld = [&](Schatter soort, const char* breedte) {
    return BeeldVan(invoer, soort, std::vector<std::string>{"200", breedte, "1", "0,5"}, ',');
  };
  for (const char* const rond : {"0", "", "00"})
    EXPECT_EQ(beeld(Schatter::KwartLambda, rond), "kwartlambda-demper-rond") << rond;
  for (const char* const recht : {"1", "300", "9999", "x"})  // what is no number is no round duct either
    EXPECT_EQ(beeld(Schatter::KwartLambda, recht), "kwartlambda-demper") << recht;
  for (const Schatter soort : {Schatter::Bekleed, Schatter::Plenum, Schatter::Kanaalwand})
    EXPECT_EQ(beeld(soort, "0"), VensterVan(soort).Beeld);
  EXPECT_EQ(proef::NummerVan([&] {
              return BeeldVan(invoer, Schatter::KwartLambda, std::vector<std::string>{"200"}, ',').size();
            }),
            9);
}

}  // namespace
}  // namespace murvane
