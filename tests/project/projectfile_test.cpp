#include "project/projectfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "basis/bestand.h"
#include "tests/hulp/beeld.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::BestandVan;
using proef::F64;
using proef::I16;
using proef::Keurder;
using proef::KleinEerst;
using proef::Lees;
using proef::NummerVan;
using proef::Schijfgrens;
using proef::Schrijf;
using proef::TijdelijkeMap;
using proef::Toeval;
using proef::Vuller;
using proef::Zet;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view Naam = "kantoor één.mrv";
constexpr std::size_t AantalPlaats = 610;  // of ElementCount
constexpr std::size_t Elementen = 612;     // the first element record
constexpr std::size_t ElementLengte = 588;
constexpr std::size_t Leeg = 886;  // a project without elements and names

// The offsets of the file, each written out.

template <typename Stap>
void KopEnFan(Project& p, Stap&& stap) {
  stap(0, p.Kop.ProNaam);
  stap(80, p.Kop.ProNum);
  stap(92, p.Kop.Omschrijving);
  stap(172, p.Kop.Toelichting1);
  stap(252, p.Kop.Toelichting2);
  stap(332, p.Kop.Toelichting3);
  stap(412, p.Kop.MyDate);
  stap(422, p.Kop.RekenType);
  stap(424, p.Fan.FanNaam);
  stap(504, p.Fan.Lw);
  stap(568, p.Fan.FanDebiet);
  stap(576, p.Fan.FanDruk);
  stap(584, p.Fan.FanToeren);
  stap(592, p.Fan.FanSchoepen);
  stap(600, p.Fan.FanVermogen);
  stap(608, p.Fan.FanType);
}

template <typename Stap>
void Element(ElementRec& e, std::size_t begin, Stap&& stap) {
  stap(begin + 0, e.Naam);
  stap(begin + 80, e.Kanaal);
  stap(begin + 160, e.demp);
  stap(begin + 224, e.ruis);
  stap(begin + 288, e.LAeq);
  stap(begin + 352, e.Instraling);
  stap(begin + 416, e.Rkanaalwand);
  stap(begin + 480, e.ElementType);
  stap(begin + 482, e.Lengte);
  stap(begin + 490, e.Debiet);
  stap(begin + 498, e.QAftak);
  stap(begin + 506, e.Hoogte);
  stap(begin + 514, e.Breedte);
  stap(begin + 522, e.HHoofd);
  stap(begin + 530, e.BHoofd);
  stap(begin + 538, e.HDoor);
  stap(begin + 546, e.BDoor);
  stap(begin + 554, e.Snetto);
  stap(begin + 562, e.Weerstand);
  stap(begin + 570, e.ElRDI);
  stap(begin + 572, e.RAftak);
  stap(begin + 580, e.ElRAantal);
}

template <typename Stap>
void Ruimte(RuimteRec& r, std::size_t begin, Stap&& stap) {
  stap(begin + 0, r.RNaam);
  stap(begin + 80, r.RLengte);
  stap(begin + 88, r.RBreedte);
  stap(begin + 96, r.RHoogte);
  stap(begin + 104, r.RVolume);
  stap(begin + 112, r.RDI);
  stap(begin + 114, r.RNagalm);
  stap(begin + 122, r.RNR);
  stap(begin + 130, r.RAantal);
  stap(begin + 138, r.Rkanaal);
  stap(begin + 202, r.Rplafond);
}

/// Every field with a fixed place: all but ElementCount and the two names.
template <typename Stap>
void AlleVelden(Project& p, Stap&& stap) {
  const auto n = static_cast<std::size_t>(p.ElementCount);
  const std::size_t ruimte = Elementen + n * ElementLengte;
  const std::size_t slot = ruimte + 270 + p.Ruimte.RkanaalNaam.size() + p.Ruimte.RplafondNaam.size();
  KopEnFan(p, stap);
  for (std::size_t i = 1; i <= n; ++i) Element(p.Elementen[i], Elementen + (i - 1) * ElementLengte, stap);
  Ruimte(p.Ruimte, ruimte, stap);
  stap(slot, p.FanPrognose);
  stap(slot + 2, p.VrijVeld);
}

struct Paar {
  Project project;
  std::string beeld;
};

/// A project in which every field has a value of its own, and its image made by hand.
Paar Voorbeeld(int elementen, const std::string& kanaal = {}, const std::string& plafond = {}) {
  Paar uit;
  uit.project.ElementCount = static_cast<std::int16_t>(elementen);
  uit.project.Ruimte.RkanaalNaam = kanaal;
  uit.project.Ruimte.RplafondNaam = plafond;
  AlleVelden(uit.project, Vuller{uit.beeld});
  const std::size_t ruimte = Elementen + static_cast<std::size_t>(elementen) * ElementLengte;
  Zet(uit.beeld, AantalPlaats, I16(elementen));
  Zet(uit.beeld, ruimte + 266, KleinEerst(kanaal.size(), 2) + kanaal);
  Zet(uit.beeld, ruimte + 268 + kanaal.size(), KleinEerst(plafond.size(), 2) + plafond);
  return uit;
}

/// An image of `elementen` records of NULs under a count of its own.
std::string Nullen(int aantal, std::size_t elementen) {
  std::string beeld(Leeg + elementen * ElementLengte, '\0');
  Zet(beeld, AantalPlaats, I16(aantal));
  return beeld;
}

int Ontleed(std::string_view bytes) {
  return NummerVan([&] { return ProjectUitBytes(bytes); });
}
int Bewaar(const Project& project, const fs::path& pad) {
  return NummerVan([&] {
    SchrijfProject(project, pad);
    return 0;
  });
}

TEST(ProjectBytes, PutsEveryFieldAtItsOffset) {
  for (const auto& [project, beeld] : {Voorbeeld(0), Voorbeeld(1), Voorbeeld(3, "dubbelwandig", "gips"),
                                       Voorbeeld(2, "", "alleen plafond"), Voorbeeld(2, "alleen kanaal")})
    EXPECT_EQ(ProjectBytes(project), beeld) << project.ElementCount;
}

TEST(ProjectUitBytes, FindsEveryFieldAtItsOffset) {
  for (const auto& [project, beeld] :
       {Voorbeeld(0), Voorbeeld(1), Voorbeeld(3, "dubbelwandig", "gips"), Voorbeeld(2, "", "plafond")}) {
    Project gelezen = ProjectUitBytes(beeld);
    EXPECT_EQ(gelezen.ElementCount, project.ElementCount);
    EXPECT_EQ(gelezen.Ruimte.RkanaalNaam, project.Ruimte.RkanaalNaam);
    EXPECT_EQ(gelezen.Ruimte.RplafondNaam, project.Ruimte.RplafondNaam);
    Keurder keurder;
    AlleVelden(gelezen, keurder);
    EXPECT_EQ(keurder.Anders, -1);
  }
}

TEST(ProjectBytes, HasTheLengthThatItsContentAsks) {
  EXPECT_EQ(ProjectBytes(Voorbeeld(0).project).size(), 886U);
  EXPECT_EQ(ProjectBytes(Voorbeeld(3).project).size(), 886U + 3 * 588);
  EXPECT_EQ(ProjectBytes(Voorbeeld(3, "twaalf bytes", "vijf!").project).size(), 886U + 3 * 588 + 12 + 5);
  EXPECT_EQ(ProjectBytes(Voorbeeld(500).project).size(), 886U + 500 * 588);
}

TEST(ProjectBytes, IsNulsForAProjectToWhichNothingWasAssigned) {
  EXPECT_EQ(ProjectBytes(Project()), std::string(886, '\0'));
}

TEST(ProjectUitBytes, KeepsTheDifferenceBetweenNulsAndBlanks) {
  Project project;
  project.Kop.ProNum = "";
  EXPECT_EQ(ProjectBytes(project).substr(80, 12), std::string(12, ' '));
  EXPECT_EQ(ProjectUitBytes(ProjectBytes(project)).Kop.ProNum, Tekst<12>(""));
  EXPECT_EQ(ProjectUitBytes(ProjectBytes(project)).Kop.ProNaam, Tekst<80>());
}

TEST(ProjectUitBytes, IgnoresWhatStandsBehindTheLogicalEnd) {
  const auto [project, beeld] = Voorbeeld(2, "kanaal", "plafond");
  for (const std::string& staart : {std::string("x"), std::string(588, '\xFF'), beeld})
    EXPECT_EQ(ProjectBytes(ProjectUitBytes(beeld + staart)), beeld);
}

TEST(ProjectUitBytes, RefusesAnImageThatIsCutAnywhere) {
  const std::string beeld = Voorbeeld(2, "kanaal", "plafond").beeld;
  for (std::size_t n = 0; n < beeld.size(); ++n) ASSERT_EQ(Ontleed(beeld.substr(0, n)), 62) << n;
  EXPECT_EQ(Ontleed(beeld), 0);
}

TEST(ProjectUitBytes, ReadsAsManyElementsAsTheCountSays) {
  constexpr int TeVeel = 9, TeKort = 62;
  const struct {
    int aantal;
    std::size_t aanwezig;
    int nummer;
  } rijen[] = {
      {0, 0, 0},        {99, 99, 0},          {100, 100, 0},      {499, 499, 0},
      {500, 500, 0},    {501, 501, TeVeel},   {501, 600, TeVeel}, {32767, 501, TeVeel},
      {501, 0, TeKort}, {32767, 300, TeKort}, {500, 498, TeKort},  // 274 bytes of room do not hold two
                                                                   // elements
  };
  for (const auto& rij : rijen) {
    const std::string beeld = Nullen(rij.aantal, rij.aanwezig);
    EXPECT_EQ(Ontleed(beeld), rij.nummer) << rij.aantal << " of " << rij.aanwezig;
    if (rij.nummer == 0) {
      EXPECT_EQ(ProjectUitBytes(beeld).ElementCount, rij.aantal);
      EXPECT_EQ(ProjectBytes(ProjectUitBytes(beeld)), beeld);
    }
  }
}

TEST(ProjectUitBytes, MeetsTheCountAbove500OnlyBehind500WholeElements) {
  const std::string beeld = Nullen(501, 501);
  constexpr std::size_t Einde = 612 + 500 * 588;  // of element 500
  EXPECT_EQ(Ontleed(beeld.substr(0, Einde - 1)), 62);
  EXPECT_EQ(Ontleed(beeld.substr(0, Einde)), 9);
}

TEST(ProjectUitBytes, ReadsNoElementsForANegativeCountAndKeepsIt) {
  for (const int aantal : {-1, -99, -32768}) {
    std::string beeld = Voorbeeld(0, "kanaal", "plafond").beeld;
    Zet(beeld, AantalPlaats, I16(aantal));
    const Project project = ProjectUitBytes(beeld);
    EXPECT_EQ(project.ElementCount, aantal);
    EXPECT_EQ(project.Ruimte.RplafondNaam, "plafond");
    EXPECT_EQ(ProjectBytes(project), beeld);
  }
}

TEST(ProjectBytes, RefusesACountAbove500) {
  for (const int aantal : {501, 32767}) {
    Project project;
    project.ElementCount = static_cast<std::int16_t>(aantal);
    EXPECT_EQ(NummerVan([&] { return ProjectBytes(project); }), 9);
  }
}

TEST(ProjectBytes, NeitherWritesNorReadsElementZero) {
  auto [project, beeld] = Voorbeeld(3);
  project.Elementen[0].Naam = "nul";
  project.Elementen[0].Debiet = 1;
  project.Elementen[4].Naam = "achter het einde";
  EXPECT_EQ(ProjectBytes(project), beeld);
  Project gelezen = ProjectUitBytes(beeld);
  ASSERT_EQ(gelezen.Elementen.size(), 501U);
  for (const std::size_t plaats : {0U, 4U, 500U}) {
    Project een;
    een.ElementCount = 1;
    een.Elementen[1] = gelezen.Elementen[plaats];
    EXPECT_EQ(ProjectBytes(een).substr(612, 588), std::string(588, '\0')) << plaats;
  }
}

TEST(ProjectBytes, CarriesEveryBitOfANumber) {
  const std::uint64_t rijen[] = {
      0x0000000000000000, 0x8000000000000000,  // 0 and -0
      0x7FF0000000000000, 0xFFF0000000000000,  // infinities
      0x7FF8000000000000, 0xFFF8000000000000,  // quiet NaN
      0x7FF0000000000001, 0xFFF7FFFFFFFFFFFF,  // signalling NaN
      0x7FFFDEADBEEF0123,                      // a NaN that says something
      0x0000000000000001, 0x800FFFFFFFFFFFFF,  // denormal
      0x7FEFFFFFFFFFFFFF, 0x3FB999999999999A,  // the greatest; 0.1
  };
  for (const std::uint64_t bits : rijen) {
    std::string beeld = Nullen(1, 1);
    for (const std::size_t plaats :
         {504U, 560U, 568U, 612U + 160, 612U + 482, 612U + 580, 1200U + 104, 1200U + 258})
      Zet(beeld, plaats, KleinEerst(bits, 8));
    EXPECT_EQ(ProjectBytes(ProjectUitBytes(beeld)), beeld) << std::hex << bits;
  }
}

TEST(ProjectBytes, CarriesTheStoredSumsAsTheyStand) {
  std::string beeld = Nullen(1, 1);
  Zet(beeld, 504 + 56, F64(12.5));         // Lw, slot 7, over seven bands of 0
  Zet(beeld, 612 + 224 + 56, F64(-3.25));  // ruis, slot 7
  const Project project = ProjectUitBytes(beeld);
  EXPECT_EQ(project.Fan.Lw[7], 12.5);
  EXPECT_EQ(project.Elementen[1].ruis[7], -3.25);
}

TEST(ProjectBytes, CarriesEveryByteOfATextAndEveryFlag) {
  std::string alle;
  for (int byte = 0; byte < 256; ++byte) alle += static_cast<char>(byte);
  std::string beeld = Voorbeeld(1, alle, alle + alle).beeld;
  for (std::size_t begin = 0; begin < 256; begin += 64) {
    Zet(beeld, 0, alle.substr(begin, 64));
    Zet(beeld, 612 + 80, alle.substr(begin, 64));
    Zet(beeld, 1200, alle.substr(begin, 64));
    EXPECT_EQ(ProjectBytes(ProjectUitBytes(beeld)), beeld);
  }
  for (const int getal : {-32768, -1, 0, 1, 3, 255, 256, 32767}) {
    for (const std::size_t plaats : {422U, 608U, 612U + 480, 612U + 570, 1200U + 112})
      Zet(beeld, plaats, I16(getal));
    EXPECT_EQ(ProjectBytes(ProjectUitBytes(beeld)), beeld);
    EXPECT_EQ(ProjectUitBytes(beeld).Ruimte.RDI, getal);
  }
}

TEST(ProjectBytes, HoldsRoomTextsUpTo65535Characters) {
  for (const std::size_t n : {0U, 1U, 255U, 256U, 32768U, 65535U}) {
    const auto [project, beeld] = Voorbeeld(0, std::string(n, 'k'), std::string(n, 'p'));
    EXPECT_EQ(ProjectBytes(project), beeld) << n;
    EXPECT_EQ(ProjectUitBytes(beeld).Ruimte.RkanaalNaam.size(), n);
    EXPECT_EQ(ProjectUitBytes(beeld).Ruimte.RplafondNaam, std::string(n, 'p'));
  }
  Project project;
  project.Ruimte.RkanaalNaam = std::string(65536, 'k');
  EXPECT_EQ(NummerVan([&] { return ProjectBytes(project); }), 5);
  std::swap(project.Ruimte.RkanaalNaam, project.Ruimte.RplafondNaam);
  EXPECT_EQ(NummerVan([&] { return ProjectBytes(project); }), 5);
}

TEST(ProjectBytes, GivesAnyImageBack) {
  std::mt19937 bron(20260101);
  for (int ronde = 0; ronde < 300; ++ronde) {
    const int aantal = static_cast<int>(bron() % 12) - 2;  // -2 to 9
    const std::size_t elementen = aantal < 0 ? 0 : static_cast<std::size_t>(aantal);
    const std::size_t n = bron() % 300, m = bron() % 300, ruimte = Elementen + elementen * ElementLengte;
    std::string beeld = Toeval(bron, Leeg + elementen * ElementLengte + n + m);
    Zet(beeld, AantalPlaats, I16(aantal));
    Zet(beeld, ruimte + 266, KleinEerst(n, 2));
    Zet(beeld, ruimte + 268 + n, KleinEerst(m, 2));
    EXPECT_EQ(ProjectBytes(ProjectUitBytes(beeld + Toeval(bron, bron() % 50))), beeld) << "round " << ronde;
  }
}

// Files.

TEST(LeesProject, ReadsAFileAndNamesItWhenItCannot) {
  const TijdelijkeMap map;
  const auto [project, beeld] = Voorbeeld(3, "kanaal", "plafond");
  Schrijf(map / Naam, beeld + "een oude staart");
  EXPECT_EQ(ProjectBytes(LeesProject(map / Naam)), beeld);
  Schrijf(map / "kort.mrv", beeld.substr(0, 700));
  Schrijf(map / "veel.mrv", Nullen(501, 501));
  const struct {
    fs::path pad;
    int nummer;
  } rijen[] = {{map / "kort.mrv", 62},
               {map / "veel.mrv", 9},
               {map / "is er niet.mrv", 53},
               {map / "geen map" / "a.mrv", 76},
               {map.Pad(), 75}};
  for (const auto& rij : rijen) {
    EXPECT_EQ(NummerVan([&] { return LeesProject(rij.pad); }), rij.nummer) << rij.pad;
    EXPECT_EQ(BestandVan([&] { return LeesProject(rij.pad); }), PadTekst(rij.pad));
  }
}

TEST(LeesProject, LeavesTheProjectInMemoryWhenTheFileIsCutAnywhere) {
  const TijdelijkeMap map;
  const std::string beeld = Voorbeeld(1, "kanaal", "plafond").beeld;
  auto [project, was] = Voorbeeld(2, "oud kanaal", "oud plafond");
  for (std::size_t n = 0; n < beeld.size(); ++n) {
    Schrijf(map / Naam, beeld.substr(0, n));
    ASSERT_EQ(NummerVan([&, &p = project] { return p = LeesProject(map / Naam); }), 62) << n;
    ASSERT_EQ(ProjectBytes(project), was) << n;
  }
}

TEST(LeesProject, ReadsTheLongestProjectWithATailOfAnyLength) {
  const TijdelijkeMap map;
  const std::string beeld = Voorbeeld(500, std::string(65535, 'k'), std::string(65535, 'p')).beeld;
  Schrijf(map / Naam, beeld);
  fs::resize_file(map / Naam, std::uintmax_t{5} << 30);  // the bytes behind it need not be read
  EXPECT_EQ(ProjectBytes(LeesProject(map / Naam)), beeld);
}

TEST(LeesProject, DropsTheElementsAndNamesOfTheProjectBefore) {
  const TijdelijkeMap map;
  Project project = Voorbeeld(5, "oud kanaal", "oud plafond").project;
  Schrijf(map / Naam, Voorbeeld(1).beeld);
  project = LeesProject(map / Naam);
  EXPECT_EQ(project.Ruimte.RkanaalNaam, "");
  EXPECT_EQ(project.Ruimte.RplafondNaam, "");
  EXPECT_EQ(project.Elementen[2].Naam, Tekst<80>());
}

TEST(SchrijfProject, WritesTheImageToANewFile) {
  const TijdelijkeMap map;
  const auto [project, beeld] = Voorbeeld(3, "kanaal", "plafond");
  EXPECT_EQ(Bewaar(project, map / Naam), 0);
  EXPECT_EQ(Lees(map / Naam), beeld);
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

TEST(SchrijfProject, LeavesALongerFileItsLengthAndItsTail) {
  const TijdelijkeMap map;
  const std::string lang = Voorbeeld(4, "kanaal", "plafond").beeld + "iets onbekends";
  const auto [project, beeld] = Voorbeeld(1);
  Schrijf(map / Naam, lang);
  EXPECT_EQ(Bewaar(project, map / Naam), 0);
  EXPECT_EQ(Lees(map / Naam), beeld + lang.substr(beeld.size()));
  EXPECT_EQ(ProjectBytes(LeesProject(map / Naam)), beeld);
  EXPECT_EQ(Bewaar(Project(), map / Naam), 0);
  EXPECT_EQ(fs::file_size(map / Naam), lang.size());
}

TEST(SchrijfProject, LetsAShorterFileGrow) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, Voorbeeld(0).beeld);
  EXPECT_EQ(Bewaar(Voorbeeld(2).project, map / Naam), 0);
  EXPECT_EQ(Lees(map / Naam), Voorbeeld(2).beeld);
}

TEST(SchrijfProject, WantsANameWhoseLastThreeCharactersAreMrv) {
  const TijdelijkeMap map;
  const struct {
    const char* naam;
    int nummer;
  } rijen[] = {
      {"a.mrv", 0},  {"mrv", 0},    {"xmrv", 0},     {"a.b.mrv", 0},    {".mrv", 0},    {"a.MRV", 52},
      {"a.Mrv", 52}, {"a.mrV", 52}, {"a", 52},       {"a.mrv ", 52},    {"a.mrv.", 52}, {"a.mrvx", 52},
      {"a.mr", 52},  {"rv", 52},    {"mrv.txt", 52}, {"a.mrv.bak", 52},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(Bewaar(Project(), map / rij.naam), rij.nummer) << rij.naam;
    EXPECT_EQ(fs::exists(map / rij.naam), rij.nummer == 0) << rij.naam;
  }
  EXPECT_EQ(Bewaar(Project(), ""), 52);
  EXPECT_EQ(map.Namen().size(), 5U);
}

TEST(SchrijfProject, LeavesAFileWithAnotherNameAlone) {
  const TijdelijkeMap map;
  Schrijf(map / "a.MRV", "oud");
  EXPECT_EQ(Bewaar(Project(), map / "a.MRV"), 52);
  EXPECT_EQ(BestandVan([&] { return SchrijfProject(Project(), map / "a.MRV"), 0; }), PadTekst(map / "a.MRV"));
  EXPECT_EQ(Lees(map / "a.MRV"), "oud");
}

TEST(SchrijfProject, LeavesTheFileWhenTheProjectHasNoImage) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  Project teVeel, teLang;
  teVeel.ElementCount = 501;
  teLang.Ruimte.RkanaalNaam = std::string(65536, 'k');
  EXPECT_EQ(Bewaar(teVeel, map / Naam), 9);
  EXPECT_EQ(Bewaar(teLang, map / Naam), 5);
  EXPECT_EQ(BestandVan([&] { return SchrijfProject(teVeel, map / Naam), 0; }), PadTekst(map / Naam));
  EXPECT_EQ(Lees(map / Naam), "oud");
}

TEST(SchrijfProject, LeavesFileAndProjectWhenTheDiskIsFullAtAnyByte) {
  const TijdelijkeMap map;
  const auto [project, beeld] = Voorbeeld(1, "kanaal", "plafond");
  const std::string oud = Voorbeeld(2).beeld;  // its tail is written anew too: 886 + 2 * 588 bytes
  Schrijf(map / Naam, oud);
  for (std::size_t n = 0; n < oud.size(); ++n) {
    const Schijfgrens grens(n);
    ASSERT_EQ(Bewaar(project, map / Naam), 61) << n;
    ASSERT_EQ(Lees(map / Naam), oud) << n;
    ASSERT_EQ(ProjectBytes(project), beeld) << n;
    ASSERT_THAT(map.Namen(), ElementsAre(Naam)) << n;
  }
  const Schijfgrens grens(oud.size());
  EXPECT_EQ(Bewaar(project, map / Naam), 0);
  EXPECT_EQ(Lees(map / Naam), beeld + oud.substr(beeld.size()));
}

TEST(SchrijfProject, LeavesNothingWhenTheDiskIsFullAtAnyByteOfANewFile) {
  const TijdelijkeMap map;
  for (std::size_t n = 0; n < Leeg; ++n) {
    const Schijfgrens grens(n);
    ASSERT_EQ(Bewaar(Project(), map / Naam), 61) << n;
    ASSERT_THAT(map.Namen(), IsEmpty()) << n;
  }
}

}  // namespace
}  // namespace murvane
