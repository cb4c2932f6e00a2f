// What comes with the program: the data files against their sources, the catalogues against the formulas that
// their names state, and the sample projects from file to level.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <regex>
#include <set>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/getal.h"
#include "basis/json.h"
#include "calc/prognose.h"
#include "calc/reken.h"
#include "calc/spectrum.h"
#include "catalogue/catfiles.h"
#include "cli/databouw.h"
#include "editor/validate.h"
#include "project/projectfile.h"
#include "tests/hulp/paden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;

fs::path Map() {
  return proef::BronMap() / "data";
}

const Catalogi& Mee() {
  static const Catalogi catalogi = LeesCatalogi(Map());
  return catalogi;
}

std::string Utf8(const Tekst<80>& naam) {
  return NaarUtf8(naam.Getrimd());
}

std::size_t Laatste(std::int16_t aantal) {
  return static_cast<std::size_t>(aantal);
}

bool IsIndicatief(const std::string& naam) {
  return naam.ends_with(" (indicatief)");
}

/// The seven bands as whole numbers; -1 for one that is not.
std::vector<int> Heel(const Spectrum& s) {
  std::vector<int> uit;
  for (std::size_t b = 0; b < Banden; ++b)
    uit.push_back(s[b] == std::floor(s[b]) ? static_cast<int>(s[b]) : -1);
  return uit;
}

// ---- files and sources ----

TEST(Data, EveryFileIsMadeFromItsSource) {
  std::set<std::string> gemaakt;
  for (const Databestand& bestand : MaakDatabestanden(Map() / "bron")) {
    EXPECT_EQ(LeesBestand(Map() / bestand.Naam), bestand.Bytes) << bestand.Naam << ": run murvane-maakdata";
    gemaakt.insert(bestand.Naam);
  }
  std::set<std::string> aanwezig;
  for (const fs::directory_entry& bestand : fs::directory_iterator(Map())) {
    const std::string soort = bestand.path().extension().string();
    if (soort == ".set" || soort == ".dat" || soort == ".mrv")
      aanwezig.insert(bestand.path().filename().string());
  }
  EXPECT_EQ(aanwezig, gemaakt);
  EXPECT_EQ(gemaakt, (std::set<std::string>{"Duct.dat", "Fan.dat", "Rduct.dat", "Rplaf.dat", "kantoor.mrv",
                                            "murvane.set", "overspraak.mrv", "plafond.mrv"}));
}

/// Every text fits its field: the reader would cut a longer one in silence.
void EisTekstenPassen(const JsonWaarde& waarde, const std::string& sleutel, const std::string& bestand) {
  if (const auto* const tekst = std::get_if<std::string>(&waarde.inhoud)) {
    const std::size_t lengte = sleutel == "ProNum" ? 12 : sleutel == "MyDate" ? 10 : 80;
    EXPECT_LE(NaarCp1252(*tekst).size(), lengte) << bestand << ": " << *tekst;
  } else if (const auto* const lijst = std::get_if<JsonWaarde::Lijst>(&waarde.inhoud)) {
    for (const JsonWaarde& deel : *lijst) EisTekstenPassen(deel, sleutel, bestand);
  } else if (const auto* const object = std::get_if<JsonWaarde::Object>(&waarde.inhoud)) {
    for (const auto& [naam, deel] : *object) EisTekstenPassen(deel, naam, bestand);
  }
}

TEST(Data, NoTextInTheSourcesIsLongerThanItsField) {
  for (const fs::directory_entry& bron : fs::directory_iterator(Map() / "bron")) {
    EisTekstenPassen(LeesJson(LeesBestand(bron.path())), "", bron.path().filename().string());
  }
}

TEST(Data, SettingsAreTheDefaults) {
  EXPECT_EQ(LeesBestand(Map() / "murvane.set"),
            "Courier New\r\n 12 \r\n 3 \r\n 2 \r\n 2 \r\n"
            "..Gebruikersnaam..                 \r\n"
            "..Gebruikersnaam..                 \r\n");
}

// ---- catalogues ----

void EisNamen(const std::vector<std::string>& namen) {
  EXPECT_EQ(std::set<std::string>(namen.begin(), namen.end()).size(), namen.size()) << "a name stands twice";
  EXPECT_GT(namen.size(), 20U);
  EXPECT_LT(namen.size(), 250U) << "the stock leaves at least half the room to the user";
  for (const std::string& naam : namen) EXPECT_NE(naam, "");
}

TEST(Data, CatalogueNamesAreUniqueAndLeaveRoom) {
  std::vector<std::string> namen;
  for (std::size_t k = 1; k <= Laatste(Mee().CatElementen.Aantal); ++k) {
    namen.push_back(Utf8(Mee().CatElementen.Records[k].CatNaam));
  }
  EisNamen(namen);
  for (const SpectrumCatalogus* catalogus : {&Mee().CatFans, &Mee().CatRduct, &Mee().CatRplaf}) {
    namen.clear();
    for (std::size_t k = 1; k <= Laatste(catalogus->Aantal); ++k) {
      namen.push_back(Utf8(catalogus->Records[k].SpecNaam));
    }
    EisNamen(namen);
  }
}

TEST(Data, FirstElevenElementsAreTheBuiltInTypesInTheirOrder) {
  const char* const namen[IngebouwdeElementen] = {"Aftakking rechthoekig",
                                                  "Aftakking rond",
                                                  "Bocht rechthoekig, haaks",
                                                  "Bocht rechthoekig, afgerond",
                                                  "Bocht rond",
                                                  "Doorsnedeverandering rechthoekig",
                                                  "Doorsnedeverandering rond",
                                                  "Kanaal rechthoekig",
                                                  "Kanaal rond",
                                                  "Regelklep",
                                                  "Rooster"};
  ASSERT_GT(Mee().CatElementen.Aantal, IngebouwdeElementen);
  for (std::size_t k = 1; k <= IngebouwdeElementen; ++k) {
    const CatElementRec& element = Mee().CatElementen.Records[k];
    EXPECT_EQ(Utf8(element.CatNaam), namen[k - 1]);
    EXPECT_EQ(element.CatDemp, Spectrum{});
    EXPECT_EQ(element.CatRuis, Spectrum{});
  }
}

TEST(Data, AttenuatorsHoldWhatTheEstimatorsDeliver) {
  for (std::size_t k = IngebouwdeElementen + 1; k <= Laatste(Mee().CatElementen.Aantal); ++k) {
    const CatElementRec& element = Mee().CatElementen.Records[k];
    const std::string naam = Utf8(element.CatNaam);
    EXPECT_TRUE(IsIndicatief(naam)) << naam;
    EXPECT_EQ(element.PerMeter, 0) << naam;
    EXPECT_EQ(element.CatRuis, Spectrum{}) << naam;
    EXPECT_EQ(element.CatDemp[SomPlaats], 0) << naam;
    const std::vector<int> demping = Heel(element.CatDemp);
    for (const int waarde : demping) {
      EXPECT_GE(waarde, 0) << naam << ": not a whole number from 0 to 150";
      EXPECT_LE(waarde, 150) << naam;
    }
    EXPECT_GT(*std::max_element(demping.begin(), demping.end()), 0) << naam;
  }
}

const CatElementRec& Element(std::string_view naam) {
  const auto& records = Mee().CatElementen.Records;
  const auto gevonden = std::find_if(records.begin(), records.end(),
                                     [naam](const CatElementRec& e) { return Utf8(e.CatNaam) == naam; });
  if (gevonden == records.end()) throw Fout(FoutNummer::IndexBuitenBereik, std::string(naam));
  return *gevonden;
}

// Round 500 mm, lining 25 mm: perimeter over section 4 / 0.5 = 8 per m, times 1.2 m = 9.6. Absorption 0.04
// 0.12 0.36 0.56 0.80 0.84 0.78; wider than a wavelength from 1000 Hz (0.34 m), so the last three times 0.68,
// 0.34, 0.17. To the power 1.4: 0.011 0.051 0.239 0.444 0.426 0.173 0.059; times 9.6: 0.11
// 0.49 2.30 4.26 4.09 1.66 0.57.
TEST(Data, LinedDuctFollowsTheFormula) {
  EXPECT_EQ(Heel(Element("Bekleed kanaal rond, D = 500 mm, d = 25 mm, L = 1,2 m (indicatief)").CatDemp),
            (std::vector<int>{0, 0, 2, 4, 4, 2, 1}));
}

// Rectangular 600 x 400 mm, lining 100 mm, 1 m: perimeter over section 2 / 0.24 = 8.333 per m. Absorption of
// 100 mm: that of 50 mm and half the step from 25 mm, at most 1: 0.13 0.42 0.72 1 1 0.96 0.93. Section
// diameter 0.5528 m; where it passes the wavelength, from 1000 Hz, times 0.34, 0.17 and 0.085 over 0.5528:
// 0.6151 0.2952 0.1430. To the power 1.4, times 8.333: 0.48 2.47 5.26 8.33 4.22 1.51 0.55.
TEST(Data, RectangularLinedDuctFollowsTheFormula) {
  EXPECT_EQ(
      Heel(Element("Bekleed kanaal rechthoekig, b×h = 600×400 mm, d = 100 mm, L = 1 m (indicatief)").CatDemp),
      (std::vector<int>{0, 2, 5, 8, 4, 2, 1}));
}

// Box 0.5 x 0.5 x 1 m, inlet 250 mm: S = 0.04909 m²; mean distance (1 + sqrt 1.25) / 2 = 1.0590, so the
// direct term is 1 / (2 pi 1.0590³) = 0.1340; lined surface 2.5 m². Absorption 0.25 0.8 1.5 2.2 2.35 2.3 2.2
// m². -10 log10 of S times (0.1340 + 1 / absorption): 6.93 11.68 14.06 15.39 15.61 15.54 15.39.
TEST(Data, PlenumFollowsTheFormula) {
  EXPECT_EQ(Heel(Element("Plenumdemper 500×500×1000 mm, d = 50 mm, intrede D = 250 mm (indicatief)").CatDemp),
            (std::vector<int>{7, 12, 14, 15, 16, 16, 15}));
}

// Duct 200 mm: S1 = 0.031416 m², m = 0.13 / S1 = 4.1380, (m² - 1) / 2m = 1.9482. Sine of 2 pi 0.3 f / 340:
// 0.3422 0.6388 0.9830 0.3613 -0.6738 -0.9957 -0.1837. 10 log10 (1 + x²): 1.60 4.06 6.69 1.75 4.35 6.78 0.52.
TEST(Data, QuarterWaveSilencerFollowsTheFormula) {
  EXPECT_EQ(Heel(Element("Kwartlambda-demper, D = 200 mm, s2 = 0,13 m², L = 0,3 m (indicatief)").CatDemp),
            (std::vector<int>{2, 4, 7, 2, 4, 7, 1}));
}

/// The fan that a catalogue name states; the stock assumes 8 blades for axial fans, 40 for forward and 11 for
/// backward curved ones.
FanRec FanVan(const std::string& naam) {
  static const std::regex vorm(
      "(Axiaal|Centrifugaal voorwaarts|Centrifugaal achterwaarts), ([0-9,]+) m³/s, ([0-9]+) Pa, ([0-9]+) "
      "toeren, "
      "([0-9]+) W \\(indicatief\\)");
  std::smatch deel;
  if (!std::regex_match(naam, deel, vorm)) throw Fout(FoutNummer::OngeldigArgument, naam);
  FanRec fan;
  fan.FanType = deel[1] == "Axiaal"                    ? fantype::Axiaal
                : deel[1] == "Centrifugaal voorwaarts" ? fantype::CentrifugaalVoorwaarts
                                                       : fantype::CentrifugaalAchterwaarts;
  const double schoepen[] = {0, 8, 40, 11};
  fan.FanSchoepen = schoepen[fan.FanType];
  fan.FanDebiet = LeesGetal(deel[2].str());
  fan.FanDruk = LeesGetal(deel[3].str());
  fan.FanToeren = LeesGetal(deel[4].str());
  fan.FanVermogen = LeesGetal(deel[5].str());
  return fan;
}

TEST(Data, FansAreThePrognosisOfTheirNames) {
  std::set<std::int16_t> soorten;
  for (std::size_t k = 1; k <= Laatste(Mee().CatFans.Aantal); ++k) {
    const SpectrumRec& record = Mee().CatFans.Records[k];
    const std::string naam = Utf8(record.SpecNaam);
    FanRec fan = FanVan(naam);
    soorten.insert(fan.FanType);
    BerekenPrognose(fan);
    for (std::size_t b = 0; b < Banden; ++b) {
      const double waarde = record.SpecWaarde[b];
      EXPECT_NEAR(waarde, fan.Lw[b], 0.05 + 1e-9) << naam;
      EXPECT_EQ(waarde, std::round(waarde * 10) / 10) << naam << ": not one decimal";
    }
    EXPECT_NEAR(record.SpecWaarde[SomPlaats], EnergetischeSom(record.SpecWaarde, true), 1e-9) << naam;
  }
  EXPECT_EQ(soorten.size(), 3U);
}

TEST(Data, FansCoverARealisticRange) {
  for (std::size_t k = 1; k <= Laatste(Mee().CatFans.Aantal); ++k) {
    const std::string naam = Utf8(Mee().CatFans.Records[k].SpecNaam);
    const FanRec fan = FanVan(naam);
    EXPECT_TRUE(fan.FanDebiet >= 0.1 && fan.FanDebiet <= 15) << naam;
    EXPECT_TRUE(fan.FanDruk >= 100 && fan.FanDruk <= 2000) << naam;
    EXPECT_TRUE(fan.FanToeren >= 350 && fan.FanToeren <= 4200) << naam;
    const double rendement = fan.FanDebiet * fan.FanDruk / fan.FanVermogen;
    EXPECT_TRUE(rendement > 0.55 && rendement < 0.80) << naam << ": efficiency " << rendement;
  }
}

/// The mass law of duct walls up to 150 kg/m² and above, dB, unrounded.
double Massawet(double massa, double frequentie) {
  const double mf = frequentie * massa / 1000;
  if (massa <= 150) {
    if (mf <= 15) return 16.6 * std::log10(mf) + 14.3;
    return mf <= 62 ? 5 * std::log10(mf) + 28 : 30 * std::log10(mf + 50) - 24.5;
  }
  if (mf <= 40) return 16.6 * std::log10(mf) + 13;
  return mf <= 100 ? 11.6 * std::log10(mf) + 21 : -20 * std::log10(1 / mf + 0.001) + 5;
}

double WandMassa(const std::string& naam) {
  static const std::regex vorm(
      "(Verzinkt staal|Roestvast staal|Aluminium|Kunststof) ([0-9,]+) mm(, massa ontdreuning ([0-9,]+) "
      "kg/m²)? "
      "\\(indicatief\\)");
  std::smatch deel;
  if (!std::regex_match(naam, deel, vorm)) throw Fout(FoutNummer::OngeldigArgument, naam);
  const double perMm = deel[1] == "Aluminium" ? 2.7 : deel[1] == "Kunststof" ? 1.3 : 7.8;
  return LeesGetal(deel[2].str()) * perMm + (deel[3].matched ? LeesGetal(deel[4].str()) : 0);
}

TEST(Data, DuctWallsFollowTheMassLaw) {
  EXPECT_EQ(Utf8(Mee().CatRduct.Records[1].SpecNaam), GeenKanaalwand);
  EXPECT_EQ(Mee().CatRduct.Records[1].SpecWaarde, Spectrum{});
  for (std::size_t k = 2; k <= Laatste(Mee().CatRduct.Aantal); ++k) {
    const SpectrumRec& wand = Mee().CatRduct.Records[k];
    const std::string naam = Utf8(wand.SpecNaam);
    const double massa = WandMassa(naam);
    for (std::size_t b = 0; b < Banden; ++b) {
      EXPECT_EQ(wand.SpecWaarde[b], std::max(0.0, std::round(Massawet(massa, Frequentie[b]))))
          << naam << ", " << b;
      EXPECT_FALSE(std::signbit(wand.SpecWaarde[b])) << naam;
    }
    EXPECT_EQ(wand.SpecWaarde[SomPlaats], 0) << naam;
  }
}

TEST(Data, GalvanisedSteelComesInTheUsualThicknesses) {
  for (const char* const dikte : {"0,6", "0,7", "0,8", "0,9", "1", "1,2", "1,5"}) {
    const std::string naam = std::string("Verzinkt staal ") + dikte + " mm (indicatief)";
    const auto& records = Mee().CatRduct.Records;
    EXPECT_TRUE(std::any_of(records.begin(), records.end(), [&naam](const SpectrumRec& wand) {
      return Utf8(wand.SpecNaam) == naam;
    })) << naam;
  }
}

TEST(Data, CeilingsStayWithinTheMassLawOfTheirMass) {
  EXPECT_EQ(Utf8(Mee().CatRplaf.Records[1].SpecNaam), GeenPlafond);
  EXPECT_EQ(Mee().CatRplaf.Records[1].SpecWaarde, Spectrum{});
  static const std::regex vorm(".+, ([0-9,]+) kg/m² \\(indicatief\\)");
  for (std::size_t k = 2; k <= Laatste(Mee().CatRplaf.Aantal); ++k) {
    const SpectrumRec& plafond = Mee().CatRplaf.Records[k];
    const std::string naam = Utf8(plafond.SpecNaam);
    std::smatch deel;
    ASSERT_TRUE(std::regex_match(naam, deel, vorm)) << naam;
    const double massa = LeesGetal(deel[1].str());
    const std::vector<int> isolatie = Heel(plafond.SpecWaarde);
    EXPECT_TRUE(std::is_sorted(isolatie.begin(), isolatie.end())) << naam;
    EXPECT_GT(isolatie[0], 0) << naam;
    const bool opNaden =
        naam.find("inlegsysteem") != std::string::npos || naam.starts_with("Metalen cassettes");
    for (std::size_t b = 0; b < Banden; ++b) {
      const double hoogstens = std::round(Massawet(massa, Frequentie[b]));
      if (opNaden) {
        EXPECT_LE(isolatie[b], std::min(hoogstens, 20.0)) << naam << ": seams let sound through";
      } else {
        EXPECT_EQ(isolatie[b], hoogstens) << naam;
      }
    }
  }
}

// ---- sample projects ----

class Voorbeeld : public testing::TestWithParam<const char*> {
 protected:
  Project project_ = LeesProject(Map() / GetParam());
  [[nodiscard]] const ElementRec& Nummer(int i) const {
    return project_.Elementen[static_cast<std::size_t>(i)];
  }
};

INSTANTIATE_TEST_SUITE_P(Data, Voorbeeld, testing::Values("kantoor.mrv", "plafond.mrv", "overspraak.mrv"));

TEST_P(Voorbeeld, TakesItsElementsFromTheCatalogue) {
  for (int i = 1; i <= project_.ElementCount; ++i) {
    const ElementRec& element = Nummer(i);
    const CatElementRec& bron = Element(Utf8(element.Naam));
    const auto nummer = &bron - Mee().CatElementen.Records.data();
    EXPECT_EQ(element.ElementType, nummer <= IngebouwdeElementen ? nummer : elementtype::Catalogus);
    if (element.ElementType != elementtype::Catalogus) continue;
    EXPECT_EQ(element.demp, bron.CatDemp) << i;
    EXPECT_EQ(element.ruis, bron.CatRuis) << i;
  }
}

/// The values of a record by name; empty text stands for the record of no choice, zeros.
Spectrum Waarden(const SpectrumCatalogus& catalogus, std::string_view naam) {
  for (const SpectrumRec& record : catalogus.Records) {
    if (!naam.empty() && record.SpecNaam.Getrimd() == naam) return record.SpecWaarde;
  }
  EXPECT_EQ(naam, "");
  return {};
}

TEST_P(Voorbeeld, TakesItsSpectraFromTheCatalogues) {
  for (int i = 1; i <= project_.ElementCount; ++i) {
    EXPECT_EQ(Nummer(i).Rkanaalwand, Waarden(Mee().CatRduct, Nummer(i).Kanaal.Getrimd())) << i;
  }
  EXPECT_EQ(project_.Ruimte.Rkanaal, Waarden(Mee().CatRduct, Trim(project_.Ruimte.RkanaalNaam)));
  EXPECT_EQ(project_.Ruimte.Rplafond, Waarden(Mee().CatRplaf, Trim(project_.Ruimte.RplafondNaam)));
}

TEST_P(Voorbeeld, HoldsAlreadyWhatARunTakesOver) {
  const std::string vooraf = ProjectBytes(project_);
  const double som = project_.Fan.Lw[SomPlaats];
  NeemOver(project_, InvoerVan(project_, ','), ',');
  EXPECT_NEAR(project_.Fan.Lw[SomPlaats], som, 1e-9);
  project_.Fan.Lw[SomPlaats] = som;
  EXPECT_EQ(ProjectBytes(project_), vooraf);
}

TEST_P(Voorbeeld, PassesTheChecksAndCalculates) {
  const std::optional<Bevinding> bevinding = CheckIt(project_, InvoerVan(project_, ','), ',');
  EXPECT_FALSE(bevinding) << bevinding->Melding;
  Resultaten resultaten;
  EXPECT_NO_THROW(Reken(project_, resultaten, ','));
}

Resultaten Uitkomst(Project& project) {
  EXPECT_FALSE(CheckIt(project, InvoerVan(project, ','), ','));
  Resultaten resultaten;
  Reken(project, resultaten, ',');
  return resultaten;
}

// The levels below come from a calculation of their own, outside the program, from the JSON and the formulas.

TEST(Data, OfficeStaysUnderThirtyFiveDbA) {
  Project project = LeesProject(Map() / "kantoor.mrv");
  const Resultaten r = Uitkomst(project);
  EXPECT_EQ(project.Kop.RekenType, rekentype::Installatiegeluid);
  EXPECT_EQ(project.FanPrognose, fanbron::Prognose);
  EXPECT_NEAR(r.LpGalmveld[SomPlaats], 34.0748, 0.0005);
  EXPECT_NEAR(r.LpEenMeter[SomPlaats], 33.0514, 0.0005);
  EXPECT_LT(r.LpGalmveld[SomPlaats], project.Ruimte.RNR);
  EXPECT_TRUE(r.HeeftInstraling[3]);  // the duct through the plant room
  EXPECT_NEAR(project.Elementen[3].Instraling[SomPlaats], 48.3, 0.05);
}

TEST(Data, OfficeFanIsThePrognosisOfItsOwnData) {
  const FanRec fan = LeesProject(Map() / "kantoor.mrv").Fan;
  FanRec prognose = fan;
  BerekenPrognose(prognose);
  for (std::size_t b = 0; b < Banden; ++b) EXPECT_NEAR(fan.Lw[b], prognose.Lw[b], 0.05 + 1e-9) << b;
  EXPECT_EQ(fan.FanNaam.Getrimd(), "Centrifugaal achterwaarts, 2,5 m³/s, 800 Pa, 1450 toeren, 2860 W"_cp);
}

TEST(Data, DuctAboveTheCeilingStaysUnderThirtyFiveDbA) {
  Project project = LeesProject(Map() / "plafond.mrv");
  const Resultaten r = Uitkomst(project);
  EXPECT_EQ(project.Kop.RekenType, rekentype::Geluidsuitstraling);
  EXPECT_EQ(project.FanPrognose, fanbron::Lijst);
  EXPECT_EQ(project.Fan.Lw, Waarden(Mee().CatFans, project.Fan.FanNaam.Getrimd()));
  EXPECT_NEAR(r.LpGalmveld[SomPlaats], 33.2330, 0.0005);
  EXPECT_NEAR(r.LpEenMeter[SomPlaats], 34.3001, 0.0005);
}

TEST(Data, CrosstalkBetweenMeetingRoomsIsWellDamped) {
  Project project = LeesProject(Map() / "overspraak.mrv");
  const Resultaten r = Uitkomst(project);
  EXPECT_EQ(project.Kop.RekenType, rekentype::Overspraak);
  EXPECT_EQ(project.Fan.FanType, fantype::Geen);
  const double verwacht[Banden] = {58.5, 54.8, 54.7, 58.3, 67.3, 70.8, 54.8};
  for (std::size_t b = 0; b < Banden; ++b) EXPECT_NEAR(r.OverspraakDemping[b], verwacht[b], 0.05) << b;
}

}  // namespace
}  // namespace murvane
