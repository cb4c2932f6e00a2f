// The manual: its links and pictures, what the help compiler is told, that it tells every field with its
// limits and every command, and that the numbers in it are those of the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

#include "basis/getal.h"
#include "basis/tekst.h"
#include "calc/reken.h"
#include "catalogue/onderhoud.h"
#include "cli/help.h"
#include "editor/elementlijst.h"
#include "editor/elementpagina.h"
#include "editor/fantab.h"
#include "editor/invoer.h"
#include "editor/validate.h"
#include "editor/veldhandlers.h"
#include "estimators/schatters.h"
#include "project/projectfile.h"
#include "project/projectjson.h"
#include "reports/lettertype.h"
#include "reports/preview.h"
#include "reports/resultaatjson.h"
#include "shell/hoofdvenster.h"
#include "shell/startup.h"
#include "tests/cli/hulp.h"
#include "tests/help/bladen.h"
#include "tests/hulp/paden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::AlleTekst;
using proef::Blad;
using proef::Bladen;
using proef::Gelezen;
using proef::Merk;
using proef::ZoekBlad;
using proef::ZonderMerken;
using testing::HasSubstr;

const fs::path Help = proef::BronMap() / "help";
const fs::path Data = proef::BronMap() / "data";

/// A file of the help compiler, as UTF-8 with plain line ends.
std::string HulpBestand(const char* naam) {
  std::string tekst = NaarUtf8(proef::Lees(Help / naam));
  std::erase(tekst, '\r');
  return tekst;
}

/// Whether "blad.html" or "blad.html#anker" is there; `van` is the page that an address without one is on.
bool Bestaat(const std::string& adres, const Blad* van) {
  const std::size_t hek = adres.find('#');
  const Blad* const blad = hek == 0 ? van : ZoekBlad(adres.substr(0, hek));
  return blad != nullptr && (hek == std::string::npos || blad->HeeftAnker(adres.substr(hek + 1)));
}

// ---- Pages, links and pictures ----

constexpr const char* Inhoud = "index.html";
constexpr const char* Trefwoorden = "trefwoorden.html";

TEST(Handleiding, HasAContentsFourteenChaptersAndAnIndex) {
  EXPECT_EQ(Bladen().size(), 16U);
  EXPECT_NE(ZoekBlad(Inhoud), nullptr);
  EXPECT_NE(ZoekBlad(Trefwoorden), nullptr);
}

TEST(Handleiding, EveryPageHasOneTitleAndNoHeadingThatSkipsALevel) {
  for (const Blad& blad : Bladen()) {
    SCOPED_TRACE(blad.Bestand);
    int vorig = 0;
    int titels = 0;
    for (const Merk& merk : blad.Merken) {
      if (merk.Naam.size() != 2 || merk.Naam[0] != 'h' || merk.Naam[1] < '1' || merk.Naam[1] > '6') continue;
      const int rang = merk.Naam[1] - '0';
      EXPECT_LE(rang, vorig + 1) << blad.Tekst(merk);
      titels += rang == 1 ? 1 : 0;
      vorig = rang;
    }
    EXPECT_EQ(titels, 1);
  }
}

// Some viewers of compiled help pass over the character set that a page names.
TEST(Handleiding, EveryPageIsDutchInAsciiWithEntitiesAndWithoutScripts) {
  for (const Blad& blad : Bladen()) {
    SCOPED_TRACE(blad.Bestand);
    EXPECT_THAT(blad.Html,
                testing::StartsWith("<!DOCTYPE html>\n<html lang=\"nl\">\n<head>\n<meta charset=\"utf-8\">"));
    EXPECT_THAT(blad.Html, HasSubstr("<link rel=\"stylesheet\" href=\"stijl.css\">"));
    for (const Merk& merk : blad.Merken) EXPECT_NE(merk.Naam, "script");
    EXPECT_TRUE(std::ranges::all_of(blad.Html, [](char c) { return c > 0; }));
    EXPECT_EQ(ZonderMerken(blad.Html).find('&'), std::string::npos);  // no entity that the tests do not know
  }
}

TEST(Handleiding, EveryLinkIsRelativeAndLeadsSomewhere) {
  int gezien = 0;
  for (const Blad& blad : Bladen()) {
    for (const Merk& merk : blad.Merken) {
      if (merk.Naam != "a") continue;
      EXPECT_TRUE(Bestaat(merk.Kenmerk("href"), &blad)) << blad.Bestand << " " << merk.Kenmerk("href");
      ++gezien;
    }
  }
  EXPECT_GT(gezien, 200);
}

TEST(Handleiding, NoPageHasAnAnchorTwice) {
  for (const Blad& blad : Bladen()) {
    std::set<std::string> ankers;
    for (const Merk& merk : blad.Merken) {
      if (merk.Heeft("id")) {
        EXPECT_TRUE(ankers.insert(merk.Kenmerk("id")).second) << blad.Bestand << " " << merk.Kenmerk("id");
      }
    }
  }
}

std::set<std::string> GetoondeBeelden() {
  std::set<std::string> uit;
  for (const Blad& blad : Bladen()) {
    for (const Merk& merk : blad.Merken) {
      if (merk.Naam != "img") continue;
      EXPECT_GT(merk.Kenmerk("alt").size(), 10U) << blad.Bestand;
      uit.insert(merk.Kenmerk("src"));
    }
  }
  return uit;
}

std::set<std::string> Plaatjes() {
  std::set<std::string> uit;
  for (const auto& bestand : fs::directory_iterator(Help / "beelden"))
    uit.insert("beelden/" + bestand.path().filename().string());
  return uit;
}

TEST(Handleiding, EveryPictureIsThereIsShownAndHasAText) {
  EXPECT_EQ(GetoondeBeelden(), Plaatjes());
  EXPECT_GT(Plaatjes().size(), 20U);
}

TEST(Handleiding, IsSmallerThanTwoMegabytes) {
  std::uintmax_t som = 0;
  for (const auto& bestand : fs::recursive_directory_iterator(Help))
    if (bestand.is_regular_file()) som += bestand.file_size();
  EXPECT_LT(som, 2000000U);
}

// ---- Contents and the help compiler's files ----

/// The chapters in the order of the contents, whose heading stands behind the foreword.
std::vector<std::string> Hoofdstukken() {
  std::vector<std::string> uit;
  bool inhoud = false;
  for (const Merk& merk : ZoekBlad(Inhoud)->Merken) {
    if (merk.Kenmerk("id") == "inhoud") inhoud = true;
    if (inhoud && merk.Kenmerk("href").ends_with(".html")) uit.push_back(merk.Kenmerk("href"));
  }
  return uit;
}

/// Address and title of each chapter and each task, in order.
std::vector<std::pair<std::string, std::string>> Taken() {
  std::vector<std::pair<std::string, std::string>> uit;
  for (const std::string& bestand : Hoofdstukken()) {
    const Blad& blad = *ZoekBlad(bestand);
    for (const Merk& merk : blad.Merken) {
      const std::string tekst = Gelezen(blad.Tekst(merk));
      if (merk.Naam == "h1") uit.emplace_back(bestand, tekst.substr(tekst.find(". ") + 2));
      if (merk.Naam == "h2") uit.emplace_back(bestand + "#" + merk.Kenmerk("id"), tekst);
    }
  }
  return uit;
}

TEST(Handleiding, TheContentsNameEveryChapterAndEveryTask) {
  const Blad& index = *ZoekBlad("index.html");
  std::vector<std::pair<std::string, std::string>> gevonden;
  bool inhoud = false;
  for (const Merk& merk : index.Merken) {
    if (merk.Kenmerk("id") == "inhoud") inhoud = true;
    if (inhoud && merk.Naam == "a") gevonden.emplace_back(merk.Kenmerk("href"), Gelezen(index.Tekst(merk)));
  }
  EXPECT_EQ(gevonden, Taken());
}

/// Name and address of each entry of a contents or index file.
std::vector<std::pair<std::string, std::string>> Ingangen(const char* bestand) {
  std::vector<std::pair<std::string, std::string>> uit;
  for (const Merk& merk : proef::Merken(HulpBestand(bestand))) {
    if (merk.Kenmerk("name") == "Name") uit.emplace_back("", merk.Kenmerk("value"));
    if (merk.Kenmerk("name") == "Local") uit.back().first = merk.Kenmerk("value");
  }
  return uit;
}

TEST(Handleiding, TheCompilersContentsAreThose) {
  EXPECT_EQ(Ingangen("murvane.hhc"), Taken());
}

TEST(Handleiding, TheCompilersIndexHasTheTermsOfEveryTask) {
  std::multiset<std::pair<std::string, std::string>> termen;
  for (const Blad& blad : Bladen()) {
    for (const Merk& merk : blad.Merken) {
      if (merk.Naam != "h2" || blad.Bestand == Inhoud || blad.Bestand == Trefwoorden) continue;
      std::istringstream in(merk.Kenmerk("data-index"));
      EXPECT_NE(merk.Kenmerk("data-index"), "") << blad.Bestand << merk.Kenmerk("id");
      for (std::string term; std::getline(in, term, ';');)
        termen.emplace(blad.Bestand + "#" + merk.Kenmerk("id"), Gelezen(term));
    }
  }
  const auto ingangen = Ingangen("murvane.hhk");
  EXPECT_EQ((std::multiset<std::pair<std::string, std::string>>(ingangen.begin(), ingangen.end())), termen);
}

TEST(Handleiding, TheIndexPageHasThoseTermsUnderTheirLetters) {
  const Blad& blad = *ZoekBlad(Trefwoorden);
  std::vector<std::pair<std::string, std::string>> termen;
  std::string letter;
  for (const Merk& merk : blad.Merken) {
    if (merk.Naam == "h2") letter = blad.Tekst(merk);
    if (merk.Naam != "a" || letter.empty()) continue;
    const std::string term = blad.Tekst(merk);
    if (merk.Kenmerk("href") == Inhoud) continue;
    termen.emplace_back(merk.Kenmerk("href"), term);
    const char begin = static_cast<char>(std::toupper(static_cast<unsigned char>(term.at(0))));
    const bool isLetter = begin >= 'A' && begin <= 'Z';
    EXPECT_EQ(letter, isLetter ? std::string(1, begin) : "Cijfers en tekens") << term;
  }
  EXPECT_EQ(termen, Ingangen("murvane.hhk"));
}

TEST(Handleiding, TheCompilersProjectNamesEveryFile) {
  const std::string project = HulpBestand("murvane.hhp");
  for (const char* const regel : {"\nCompiled file=MurVane.chm\n", "\nContents file=murvane.hhc\n",
                                  "\nIndex file=murvane.hhk\n", "\nDefault topic=index.html\n"})
    EXPECT_THAT(project, HasSubstr(regel));
  std::istringstream in(project.substr(project.find("[FILES]\n") + 8));
  std::set<std::string> genoemd;
  for (std::string regel; std::getline(in, regel);) genoemd.insert(regel);
  std::set<std::string> er = Plaatjes();
  er.insert("stijl.css");
  for (const Blad& blad : Bladen()) er.insert(blad.Bestand);
  EXPECT_EQ(genoemd, er);
}

TEST(Handleiding, EveryChapterLeadsToTheNextAndThePrevious) {
  const auto hoofdstukken = Hoofdstukken();
  for (std::size_t i = 0; i < hoofdstukken.size(); ++i) {
    std::string vorige;
    std::string volgende;
    for (const Merk& merk : ZoekBlad(hoofdstukken[i])->Merken) {
      if (merk.Kenmerk("rel") == "prev") vorige = merk.Kenmerk("href");
      if (merk.Kenmerk("rel") == "next") volgende = merk.Kenmerk("href");
    }
    EXPECT_EQ(vorige, i == 0 ? "" : hoofdstukken[i - 1]);
    EXPECT_EQ(volgende, i + 1 == hoofdstukken.size() ? "" : hoofdstukken[i + 1]);
  }
}

// ---- Fields and commands ----

/// The cells of the row of a field, behind its name.
struct VeldRij {
  std::string Label;
  std::vector<std::string> Cellen;  ///< unit, limits, decimals, meaning
};

/// All rows that have the attribute, by its value.
std::map<std::string, VeldRij> VeldRijen(const char* kenmerk) {
  std::map<std::string, VeldRij> uit;
  for (const Blad& blad : Bladen()) {
    for (const Merk& merk : blad.Merken) {
      if (!merk.Heeft(kenmerk)) continue;
      const std::string html = blad.Binnen(merk);
      const Blad rij{blad.Bestand, html, proef::Merken(html)};
      VeldRij veld;
      for (const Merk& cel : rij.Merken) {
        if (cel.Naam == "th") veld.Label = Gelezen(rij.Tekst(cel));
        if (cel.Naam == "td") veld.Cellen.push_back(Gelezen(rij.Tekst(cel)));
      }
      EXPECT_EQ(veld.Cellen.size(), 4U) << merk.Kenmerk(kenmerk);
      EXPECT_TRUE(uit.emplace(merk.Kenmerk(kenmerk), veld).second) << merk.Kenmerk(kenmerk);
    }
  }
  return uit;
}

/// The name of a rule in the manual: an array by its first index.
std::string Sleutel(const VeldRegel& regel) {
  std::string naam(regel.Naam);
  if (regel.Aantal == 0 || naam.find('(') != std::string::npos) return naam;
  return naam + "(" + std::to_string(regel.Eerste) + ")";
}

std::string Grenzen(const VeldRegel& regel) {
  if (regel.AlleenLezen) return "alleen lezen";
  if (regel.Soort == VeldSoort::Datum) return "dd-mm-jjjj";
  if (regel.Soort == VeldSoort::Numeriek)
    return Opmaak(regel.Onder, Formaat::Heel, ',') + " \u2013 " + Opmaak(regel.Boven, Formaat::Heel, ',');
  const int tekens = MaxTekens(regel);
  return tekens > 0 ? "tot " + std::to_string(tekens) + " tekens" : "niet begrensd";
}

std::string Decimalen(const VeldRegel& regel) {
  const bool getal = regel.Soort == VeldSoort::Numeriek || MaxTekens(regel) == 0;
  return regel.Soort == VeldSoort::Datum || !getal ? "" : std::to_string(static_cast<int>(regel.Weergave));
}

TEST(Handleiding, TellsEveryFieldOfTheProjectWithItsLimits) {
  auto rijen = VeldRijen("data-veld");
  for (const VeldRegel& regel : VeldRegels()) {
    SCOPED_TRACE(Sleutel(regel));
    const auto rij = rijen.extract(Sleutel(regel));
    ASSERT_FALSE(rij.empty());
    EXPECT_NE(rij.mapped().Label, "");
    EXPECT_EQ(rij.mapped().Cellen[1], Grenzen(regel));
    EXPECT_EQ(rij.mapped().Cellen[2], Decimalen(regel));
    EXPECT_NE(rij.mapped().Cellen[3], "");
  }
  EXPECT_TRUE(rijen.empty()) << rijen.begin()->first << " is no field";
}

TEST(Handleiding, TellsEveryFieldOfTheEstimatorsWithUnitAndLimits) {
  auto rijen = VeldRijen("data-schat");
  for (const Schatter soort :
       {Schatter::Bekleed, Schatter::KwartLambda, Schatter::Plenum, Schatter::Kanaalwand}) {
    for (const SchatVeld& veld : VensterVan(soort).Velden) {
      const auto rij =
          rijen.extract(std::string(VensterVan(soort).Naam) + "/" + std::string(veld.Regel.Naam));
      ASSERT_FALSE(rij.empty()) << veld.Label;
      EXPECT_EQ(rij.mapped().Label, NaarUtf8(veld.Label));
      EXPECT_EQ(rij.mapped().Cellen[0], NaarUtf8(veld.Eenheid));
      EXPECT_EQ(rij.mapped().Cellen[1], Grenzen(veld.Regel));
      EXPECT_EQ(rij.mapped().Cellen[2], Decimalen(veld.Regel));
    }
  }
  EXPECT_TRUE(rijen.empty()) << rijen.begin()->first << " is no field";
}

/// A caption without the mark of its letter.
std::string Opschrift(std::string_view cp1252) {
  std::string uit = NaarUtf8(cp1252);
  std::erase(uit, '&');
  return uit;
}

/// What stands in bold somewhere, and so is told as something on screen.
const std::set<std::string>& Vet() {
  static const std::set<std::string> teksten = [] {
    std::set<std::string> uit;
    for (const Blad& blad : Bladen()) {
      for (const Merk& merk : blad.Merken)
        if (merk.Naam == "b") uit.insert(Gelezen(blad.Tekst(merk)));
    }
    return uit;
  }();
  return teksten;
}

TEST(Handleiding, TellsEveryMenuAndCommand) {
  for (const MenuItem& item : MenuBalk) {
    if (item.Soort == MenuSoort::Kop) continue;
    EXPECT_TRUE(Vet().contains(Opschrift(item.Opschrift))) << item.Opschrift;
  }
  for (const MenuItem& item : TaakBalk)
    EXPECT_TRUE(Vet().contains(Opschrift(item.Opschrift))) << item.Opschrift;
}

TEST(Handleiding, TellsEveryButtonOfTheResultsAndThePreview) {
  for (const Werkknop& knop : ResultaatKnoppen) EXPECT_TRUE(Vet().contains(NaarUtf8(knop.Tip))) << knop.Tip;
  for (const Werkknop& knop : VoorbeeldKnoppen) EXPECT_TRUE(Vet().contains(NaarUtf8(knop.Tip))) << knop.Tip;
}

TEST(Handleiding, TellsTheCommandsOfTheMaintenanceWindows) {
  for (const char* const opschrift :
       {"Toevoegen", "Wijzigen", "Wissen", "Sluiten", "OK", "Annuleren", "Overzicht", "Overzicht op Naam",
        "Alle elementen", "Sorteren", "Sorteren op Naam", "Tools", "Indicatieve berekening geluiddemping",
        "Beklede luchtkanalen", "Plenumdemper", "Kwartlambda-demper",
        "Indicatieve berekening geluidsisolatie"})
    EXPECT_TRUE(Vet().contains(opschrift)) << opschrift;
}

TEST(Handleiding, TellsEveryCommandOfTheCommandLine) {
  for (const OpdrachtRegel& opdracht : Opdrachten) {
    if (opdracht.Naam.empty()) continue;
    EXPECT_NE(AlleTekst().find("murvane-cli " + std::string(opdracht.Naam)), std::string::npos)
        << opdracht.Naam;
  }
}

// ---- Numbers ----

std::string MetCijfers(double waarde, const std::string& cijfers) {
  return Opmaak(waarde, static_cast<Formaat>(std::stoi(cijfers)), ',');
}

/// The results of a project that is as it must be.
nlohmann::json Uitslag(Project& project) {
  Resultaten resultaten;
  for (int n = 1; n <= project.ElementCount; ++n) VoorGanger(project, n);
  Reken(project, resultaten, ',');
  return nlohmann::json::parse(ResultaatNaarJson(project, resultaten));
}

/// The number that a mark tells, of the JSON of one sample or its results.
double Waarde(const Merk& merk) {
  const bool uitslag = merk.Heeft("data-uitslag");
  Project project = LeesProject(Data / (merk.Kenmerk(uitslag ? "data-uitslag" : "data-project") + ".mrv"));
  if (merk.Heeft("data-rdi"))
    project.Ruimte.RDI = static_cast<std::int16_t>(std::stoi(merk.Kenmerk("data-rdi")));
  const nlohmann::json json = uitslag ? Uitslag(project) : nlohmann::json::parse(ProjectNaarJson(project));
  return json.at(nlohmann::json::json_pointer(merk.Kenmerk("data-waar"))).get<double>();
}

TEST(Handleiding, TellsTheNumbersOfTheSamples) {
  int gezien = 0;
  for (const Blad& blad : Bladen()) {
    for (const Merk& merk : blad.Merken) {
      if (!merk.Heeft("data-waar")) continue;
      EXPECT_EQ(blad.Tekst(merk), MetCijfers(Waarde(merk), merk.Kenmerk("data-cijfers")))
          << blad.Bestand << " " << merk.Kenmerk("data-waar");
      ++gezien;
    }
  }
  EXPECT_GT(gezien, 25);
}

/// The arguments of a command in the manual, with samples and settings where they are.
std::vector<std::string> Argumenten(const std::string& opdracht) {
  std::istringstream in(opdracht);
  std::vector<std::string> uit;
  for (std::string woord; in >> woord;)
    uit.push_back(woord.ends_with(".mrv") ? PadTekst(Data / woord) : woord);
  uit.insert(uit.end(), {"--data", PadTekst(Data)});
  return uit;
}

/// The lines of a text, each as read.
std::vector<std::string> Regels(const std::string& tekst) {
  std::vector<std::string> uit;
  std::istringstream in(tekst);
  for (std::string regel; std::getline(in, regel);) uit.push_back(Gelezen(regel));
  return uit;
}

TEST(Handleiding, ShowsWhatTheCommandsPrint) {
  int gezien = 0;
  for (const Blad& blad : Bladen()) {
    for (const Merk& merk : blad.Merken) {
      if (!merk.Heeft("data-opdracht")) continue;
      const clitest::Afloop afloop = clitest::Draai(Argumenten(merk.Kenmerk("data-opdracht")));
      EXPECT_EQ(afloop.Code, 0) << afloop.Err;
      const std::vector<std::string> echt = Regels(afloop.Uit);
      const std::vector<std::string> getoond = Regels(blad.Tekst(merk));
      EXPECT_FALSE(std::ranges::search(echt, getoond).empty())
          << blad.Bestand << ": " << merk.Kenmerk("data-opdracht");
      ++gezien;
    }
  }
  EXPECT_EQ(gezien, 9);
}

TEST(Handleiding, TheEstimatesOnTheCommandLineCanBeMade) {
  int gezien = 0;
  const Blad& blad = *ZoekBlad("opdrachtregel.html");
  for (const Merk& merk : blad.Merken) {
    if (merk.Naam != "pre") continue;
    for (const std::string& regel : Regels(blad.Tekst(merk))) {
      if (!regel.starts_with("murvane-cli schat ")) continue;
      EXPECT_EQ(clitest::Draai(Argumenten(regel.substr(12))).Code, 0) << regel;
      ++gezien;
    }
  }
  EXPECT_EQ(gezien, 5);
}

// ---- The projects that a reader makes ----

/// A user who follows a chapter to the letter, from field to field.
class Lezer {
 public:
  explicit Lezer(const Blad& blad) : blad_(blad) {
    project.Kop.RekenType = rekentype::Installatiegeluid;
    for (const Merk& merk : blad.Merken) Doe(merk);
  }

  Project project;

 private:
  void Doe(const Merk& merk) {
    if (merk.Heeft("data-fan")) KiesFan(merk.Kenmerk("data-fan"), blad_.Tekst(merk));
    if (merk.Heeft("data-element")) VoegToe(merk.Kenmerk("data-element"), blad_.Tekst(merk));
    if (merk.Heeft("data-wand")) KiesWand(merk.Kenmerk("data-wand"), blad_.Tekst(merk));
    if (merk.Heeft("data-fantype"))
      KiesFanType(static_cast<std::int16_t>(std::stoi(merk.Kenmerk("data-fantype"))));
    if (merk.Kenmerk("data-knop") == "optPrognose") static_cast<void>(optPrognose_Click(project, 0));
    if (merk.Kenmerk("data-knop") == "cmdFanOK") Prognose();
    if (merk.Heeft("data-typ")) Typ(merk.Kenmerk("data-typ"), blad_.Tekst(merk));
  }

  void KiesFanType(std::int16_t soort) { static_cast<void>(FanTypeGekozen(project, soort)); }

  /// The bands that the button fills go into the record as the boxes show them, as before a run.
  void Prognose() {
    const FanUitslag uitslag = cmdFanOK_Click(project, txtfan_, ',');
    EXPECT_FALSE(uitslag.Box);
    for (const VeldTekst& vak : uitslag.Zet) {
      if (vak.Veld.Naam == "txtLw") Verlaat(vak.Veld, vak.Tekst);
    }
  }

  void KiesWand(const std::string& naam, const std::string& getoond) {
    EXPECT_EQ(Gelezen(getoond), naam);
    for (int n = 1; n <= catalogi_.CatRduct.Aantal; ++n) {
      const auto record = catalogi_.CatRduct.Records[static_cast<std::size_t>(n)];
      if (NaarUtf8(record.SpecNaam.Getrimd()) != naam) continue;
      EXPECT_TRUE(cmbKanaal_Click(project, lijst_.HuidigElement, n - 1, catalogi_.CatRduct));
      return;
    }
    ADD_FAILURE() << naam;
  }

  void KiesFan(const std::string& naam, const std::string& getoond) {
    EXPECT_EQ(Gelezen(getoond), naam);
    for (int n = 1; n <= catalogi_.CatFans.Aantal; ++n) {
      const auto record = catalogi_.CatFans.Records[static_cast<std::size_t>(n)];
      if (NaarUtf8(record.SpecNaam.Getrimd()) != naam) continue;
      int laatste = 0;
      static_cast<void>(lstFan_Click(project, n - 1, catalogi_.CatFans, laatste, ','));
      return;
    }
    ADD_FAILURE() << naam;
  }

  void VoegToe(const std::string& naam, const std::string& getoond) {
    EXPECT_EQ(Gelezen(getoond), naam);
    for (int n = 1; n <= catalogi_.CatElementen.Aantal; ++n) {
      const auto record = catalogi_.CatElementen.Records[static_cast<std::size_t>(n)];
      if (NaarUtf8(record.CatNaam.Getrimd()) != naam) continue;
      lstTotaal_Click(lijst_, n - 1);
      lstTotaal_DblClick(lijst_, project, catalogi_.CatElementen);
      static_cast<void>(OpenElement(project, lijst_.HuidigElement, ','));
      return;
    }
    ADD_FAILURE() << naam;
  }

  /// A field by its name, one of an array with its index: "txtdemp(0)".
  void Typ(const std::string& veld, const std::string& tekst) {
    const std::size_t haak = veld.find('(');
    const int index = haak == std::string::npos ? -1 : std::stoi(veld.substr(haak + 1));
    const std::string naam = veld.substr(0, haak);
    if (naam == "txtfan") txtfan_.at(static_cast<std::size_t>(index)) = tekst;
    Verlaat({naam, index}, NaarCp1252(tekst));
  }

  void Verlaat(VeldId veld, const std::string& tekst) {
    const VeldUitslag uitslag = VerlaatVeld(project, lijst_.HuidigElement, veld, tekst, "20-11-2026", ',');
    EXPECT_TRUE(uitslag.Geldig) << veld.Naam;
  }

  const Blad& blad_;
  Catalogi catalogi_ = LeesCatalogi(Data);
  Elementlijst lijst_;
  std::array<std::string, FanVakken> txtfan_;
};

TEST(Handleiding, TheOfficeTypedFromItsTableIsTheSample) {
  Lezer lezer(*ZoekBlad("voorbeelden.html"));
  Project kantoor = LeesProject(Data / "kantoor.mrv");
  EXPECT_EQ(lezer.project.ElementCount, kantoor.ElementCount);
  EXPECT_EQ(lezer.project.FanPrognose, kantoor.FanPrognose);
  EXPECT_EQ(lezer.project.Ruimte.RNR, kantoor.Ruimte.RNR);
  EXPECT_EQ(Uitslag(lezer.project), Uitslag(kantoor));
}

TEST(Handleiding, TheFirstProjectComesOutAsItSays) {
  const Blad& blad = *ZoekBlad("beginnen.html");
  Lezer lezer(blad);
  for (int n = 1; n <= lezer.project.ElementCount; ++n) VoorGanger(lezer.project, n);
  const auto bevinding = Beoordeel(lezer.project);
  ASSERT_FALSE(bevinding) << bevinding->Melding;
  const nlohmann::json uitslag = Uitslag(lezer.project);
  int gezien = 0;
  for (const Merk& merk : blad.Merken) {
    if (!merk.Heeft("data-eerste")) continue;
    const double waarde = uitslag.at(nlohmann::json::json_pointer(merk.Kenmerk("data-eerste"))).get<double>();
    EXPECT_EQ(blad.Tekst(merk), MetCijfers(waarde, merk.Kenmerk("data-cijfers")))
        << merk.Kenmerk("data-eerste");
    ++gezien;
  }
  EXPECT_EQ(gezien, 3);
}

}  // namespace
}  // namespace murvane
