#include "shell/run.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "basis/fout.h"

namespace murvane {
namespace {

constexpr double Geen = std::numeric_limits<double>::quiet_NaN();

/// A duct too short to count, an attenuator, and an outlet or, for break-out, a duct.
Project Keten(std::int16_t type) {
  Project project;
  project.Kop.RekenType = type;
  project.Fan.FanNaam = "Dakventilator";
  project.Fan.Lw = {80.04, 79.96, 70.25, 60, 50, 40, 30, 0};
  project.ElementCount = 3;
  ElementRec& kanaal = project.Elementen[1];
  kanaal.ElementType = elementtype::KanaalRecht;
  kanaal.Hoogte = 300, kanaal.Breedte = 400, kanaal.Lengte = 0.4, kanaal.Debiet = 0.5;
  project.Elementen[2].ElementType = elementtype::Catalogus;
  project.Elementen[2].demp = {1, 1, 1, 1, 1, 1, 1, 0};
  ElementRec& einde = project.Elementen[3];
  if (type == rekentype::Geluidsuitstraling) {
    einde = kanaal;
  } else {
    einde.ElementType = elementtype::Rooster;
    einde.Snetto = 300, einde.Weerstand = 20;
  }
  RuimteRec& ruimte = project.Ruimte;
  ruimte.RLengte = 5, ruimte.RBreedte = 4, ruimte.RHoogte = 3, ruimte.RNagalm = 0.5;
  ruimte.RDI = 2, ruimte.RAantal = 2;
  return project;
}

struct Afloop {
  Resultaten HetResultaat;
  Rapport HetRapport{"a", "b", "c", "d", "e", "f"};

  std::optional<Bevinding> Doe(Project& project) {
    return VoerUit(project, InvoerVan(project, ','), Tekst<35>("Bureau"), ',', HetResultaat, HetRapport);
  }
  [[nodiscard]] bool RapportStaatNog() const { return PrnBytes(HetRapport) == PrnBytes(Afloop().HetRapport); }
};

/// The message of the Fout that ends the run of a project.
std::string FoutVan(Project project) {
  Afloop afloop;
  try {
    (void)afloop.Doe(project);
  } catch (const Fout& fout) {
    EXPECT_TRUE(afloop.RapportStaatNog());
    return fout.Melding();
  }
  return "";
}

TEST(VoerUit, ARefusedRunLeavesResultsElementsAndReport) {
  Project project = Keten(1);
  project.Ruimte.RNagalm = 0;  // the last tab: everything before it was in order
  project.Elementen[1].demp.fill(91);
  project.Elementen[3].ruis.fill(92);
  Afloop afloop;
  afloop.HetResultaat.Subtotaal[1].fill(33);
  afloop.HetResultaat.LwEind.fill(34);
  afloop.HetResultaat.HeeftInstraling[1] = true;
  EXPECT_EQ(afloop.Doe(project).value().Melding, "Nagalmtijd niet ingevuld");
  EXPECT_TRUE(afloop.RapportStaatNog());
  EXPECT_EQ(project.Elementen[1].demp[0], 91);
  EXPECT_EQ(project.Elementen[3].ruis[7], 92);
  EXPECT_EQ(afloop.HetResultaat.Subtotaal[1][0], 33);
  EXPECT_EQ(afloop.HetResultaat.LwEind[7], 34);
  EXPECT_TRUE(afloop.HetResultaat.HeeftInstraling[1]);
}

TEST(VoerUit, StartsFromTheFanLevelsThatTheFieldsShow) {
  Project project = Keten(1);
  Afloop afloop;
  EXPECT_FALSE(afloop.Doe(project));
  // 80,04 shows 80,0; 79,96 shows 80,0; 70,25 shows 70,3. Behind the short duct that is the level.
  const double verwacht[] = {80, 80, 70.3, 60, 50, 40, 30};
  for (std::size_t b = 0; b < Banden; ++b)
    EXPECT_NEAR(afloop.HetResultaat.Subtotaal[1][b], verwacht[b], 1e-9) << b;
  EXPECT_NE(afloop.HetRapport.RapHoofd.find("    80,0    80,0    70,3    60,0"), std::string::npos);
}

TEST(VoerUit, CalculatesWithTheInheritedFlowAndSection) {
  Project project = Keten(1);
  Afloop afloop;
  EXPECT_FALSE(afloop.Doe(project));
  EXPECT_EQ(afloop.HetResultaat.ElementTekst[3][0].Getrimd(), "h×b = 300×400 mm"_cp);
  EXPECT_EQ(afloop.HetResultaat.ElementTekst[3][1].Getrimd(), "q = 0,5 m³/s"_cp);
}

TEST(VoerUit, AnUnknownCalculationTypeKeepsTheBlocksFromTheTableHeadOn) {
  for (const std::int16_t type : {std::int16_t{0}, std::int16_t{4}}) {
    Project project = Keten(type);
    Afloop afloop;
    EXPECT_FALSE(afloop.Doe(project));
    EXPECT_NE(afloop.HetRapport.RapKop, "a");
    EXPECT_NE(afloop.HetRapport.RapRuimte, "c");
    EXPECT_EQ(afloop.HetRapport.RapHoofd + afloop.HetRapport.RapElementen + afloop.HetRapport.RapResultaat,
              "def");
  }
}

TEST(VoerUit, AFaultSaysWhereToLookAndKeepsTheReport) {
  Project project = Keten(1);
  project.VrijVeld = 2;  // waives the rules of the room, but is no free field to the calculation: 4 / 0
  project.Ruimte.RLengte = 0;
  EXPECT_EQ(FoutVan(project), "Fout 11 - Deling door nul (ruimtegegevens).");
  project = Keten(3);
  project.VrijVeld = 1;  // crosstalk knows no free field
  project.Ruimte.RAantal = 0;
  EXPECT_EQ(FoutVan(project), "Fout 5 - Ongeldig argument (ruimtegegevens).");
  project = Keten(2);
  project.Ruimte.Rplafond[4] = Geen;
  EXPECT_EQ(FoutVan(project), "Fout 6 - Overloop: een getal is te groot of onbepaald (einde van de keten).");
  project = Keten(1);
  project.Elementen[2].demp[0] = 5000;  // a power of 0
  EXPECT_EQ(FoutVan(project), "Fout 5 - Ongeldig argument (kanaalelement 2).");
}

TEST(VoerUit, ANumberThatIsOnlyPrintedFaultsWhereItIsPrinted) {
  for (const auto veld : {&ElementRec::ruis, &ElementRec::Instraling}) {
    Project project = Keten(1);
    (project.Elementen[2].*veld)[7] = Geen;  // the sum of a catalogue element stays what it was
    EXPECT_EQ(FoutVan(project), "Fout 6 - Overloop: een getal is te groot of onbepaald (kanaalelement 2).");
    project.Kop.RekenType = rekentype::Overspraak;  // which has no row for either
    EXPECT_EQ(FoutVan(project), "");
  }
  Project project = Keten(1);
  ElementRec& kanaal = project.Elementen[1];
  kanaal.Rkanaalwand[3] = Geen;  // no wall, so not printed
  kanaal.LAeq[0] = 60;
  EXPECT_EQ(FoutVan(project), "");
  kanaal.Kanaal = "staal";  // the band has no level around it, but its row is printed
  EXPECT_EQ(FoutVan(project), "Fout 6 - Overloop: een getal is te groot of onbepaald (kanaalelement 1).");
}

}  // namespace
}  // namespace murvane
