// The drawings of the element pages and the icons: what the windows count on when they recolour them as text.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"

namespace murvane {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::Key;

const std::filesystem::path Bron = proef::BronMap();
const std::set<std::string> Kleuren = {"#111111", "#888888", "#3a6ea5"};

/// A drawing, and of each field of its page or window that has a place in it the letters that stand there.
struct Tekening {
  const char* naam;
  std::map<std::string, std::string> letters;
  const char* map = "editor";  ///< whose drawing it is
};

const std::vector<Tekening>& Tekeningen() {
  static const std::vector<Tekening> tabel = {
      {"aftak-recht",
       {{"txtHAftak", "ha"},
        {"txtBAftak", "ba"},
        {"txtHHoofd", "hh"},
        {"txtBHoofd", "bh"},
        {"txtHDoor", "hd"},
        {"txtBDoor", "bd"},
        {"txtQAftak", "qa"},
        {"txtRAftak", "r/da"}}},
      {"aftak-rond",
       {{"txtHAftak", "Da"},
        {"txtHHoofd", "hh"},
        {"txtBHoofd", "bh"},
        {"txtHDoor", "hd"},
        {"txtBDoor", "bd"},
        {"txtQAftak", "qa"},
        {"txtRAftak", "r/da"}}},
      {"bocht-haaks", {{"txtHoogte", "h"}, {"txtBreedte", "b"}, {"txtDebiet", "q"}}},
      {"bocht-recht", {{"txtHoogte", "h"}, {"txtBreedte", "b"}, {"txtDebiet", "q"}}},
      {"bocht-rond", {{"txtHoogte", "D"}, {"txtDebiet", "q"}}},
      {"catalogus", {}},
      {"doorsnede-recht",
       {{"txtH1Doorsnee", "h1"},
        {"txtB1Doorsnee", "b1"},
        {"txtH2Doorsnee", "h2"},
        {"txtB2Doorsnee", "b2"},
        {"txtLDoorsnee", "l"}}},
      {"doorsnede-rond", {{"txtH1Doorsnee", "D1"}, {"txtH2Doorsnee", "D2"}, {"txtLDoorsnee", "l"}}},
      {"kanaal-recht", {{"txtHoogte", "h"}, {"txtBreedte", "b"}, {"txtLengte", "l"}, {"txtDebiet", "q"}}},
      {"kanaal-rond", {{"txtHoogte", "D"}, {"txtLengte", "l"}, {"txtDebiet", "q"}}},
      {"keten", {}},
      {"regelklep", {{"txtWeerstand", "Δp"}}},
      {"rooster", {{"txtSnetto", "S"}, {"txtWeerstand", "Δp"}}},
      {"ruimte-kanaal", {{"txtRLengte", "l"}, {"txtRBreedte", "b"}, {"txtRHoogte", "h"}}},
      {"ruimte", {{"txtRLengte", "l"}, {"txtRBreedte", "b"}, {"txtRHoogte", "h"}}},
      {"bekleed-kanaal", {{"Text1", "h"}, {"Text2", "b"}, {"Text3", "d"}, {"Text4", "l"}}, "estimators"},
      {"kanaalwand", {{"txtDikte", "d"}, {"txtMassa", "m"}}, "estimators"},
      {"kwartlambda-demper-rond",
       {{"Text1", "D"}, {"Text2", "b = 0"}, {"Text3", "l"}, {"Text4", "S2"}},
       "estimators"},
      {"kwartlambda-demper", {{"Text1", "h"}, {"Text2", "b"}, {"Text3", "l"}, {"Text4", "S2"}}, "estimators"},
      {"plenumdemper",
       {{"Text1", "hp"}, {"Text2", "bp"}, {"Text3", "l"}, {"Text4", "h"}, {"Text5", "b"}, {"Text6", "d"}},
       "estimators"},
  };
  return tabel;
}

const std::vector<std::string> Pictogrammen = {
    "begin",  "berekend",  "calculator", "eind",          "exit",     "gebruiker",   "grafiek", "help",
    "info",   "invoegen",  "kalender",   "kanaalelement", "letter",   "luchtkanaal", "nieuw",   "omhoog",
    "omlaag", "openen",    "opslaan",    "pdf",           "plafond",  "printen",     "reken",   "sluiten",
    "terug",  "toevoegen", "type",       "ventilator",    "volgende", "voorbeeld",   "wissen"};

using Kenmerken = std::map<std::string, std::string>;

/// One element, with its depth (the root's is 0) and the text that stands directly in it.
struct Knoop {
  std::string naam;
  Kenmerken kenmerken;
  std::size_t diepte = 0;
  std::string tekst;
};

/// The elements of a file in their order, and what is wrong with it (nothing when it is well-formed).
struct Ontleed {
  std::vector<Knoop> knopen;
  std::string fout;
};

bool IsNaam(char teken) {
  return (teken >= 'a' && teken <= 'z') || (teken >= 'A' && teken <= 'Z') || teken == '-' || teken == ':';
}

std::string LeesNaam(std::string_view& rest) {
  const auto einde =
      static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), IsNaam) - rest.begin());
  std::string naam(rest.substr(0, einde));
  rest.remove_prefix(einde);
  return naam;
}

void SlaBlancoOver(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(" \n"), rest.size()));
}

/// Reads name="value" pairs to the end of a tag; a fault is named in `fout`.
Kenmerken LeesKenmerken(std::string_view rest, std::string& fout) {
  Kenmerken kenmerken;
  for (SlaBlancoOver(rest); !rest.empty() && fout.empty(); SlaBlancoOver(rest)) {
    const std::string naam = LeesNaam(rest);
    const std::size_t einde = rest.find('"', 2);
    if (naam.empty() || rest.substr(0, 2) != "=\"" || einde == std::string_view::npos) {
      fout = "kenmerk bij " + std::string(rest);
      break;
    }
    if (!kenmerken.emplace(naam, rest.substr(2, einde - 2)).second) fout = "twee keer " + naam;
    rest.remove_prefix(einde + 1);
  }
  return kenmerken;
}

/// Takes the inside of one tag, without its angle brackets.
void VerwerkTag(std::string_view tag, std::vector<std::size_t>& open, Ontleed& uit) {
  if (tag.substr(0, 1) == "/") {
    if (open.empty() || uit.knopen[open.back()].naam != tag.substr(1)) uit.fout = "sluit " + std::string(tag);
    if (!open.empty()) open.pop_back();
    return;
  }
  const bool leeg = !tag.empty() && tag.back() == '/';
  if (leeg) tag.remove_suffix(1);
  Knoop knoop;
  knoop.naam = LeesNaam(tag);
  knoop.kenmerken = LeesKenmerken(tag, uit.fout);
  knoop.diepte = open.size();
  if (open.empty() != uit.knopen.empty()) uit.fout = "meer dan een wortel";
  uit.knopen.push_back(std::move(knoop));
  if (!leeg) open.push_back(uit.knopen.size() - 1);
}

Ontleed OntleedSvg(std::string_view bytes) {
  constexpr std::string_view Kop = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  Ontleed uit;
  std::vector<std::size_t> open;
  if (bytes.substr(0, Kop.size()) != Kop) return {{}, "kop"};
  bytes.remove_prefix(Kop.size());
  while (uit.fout.empty() && !bytes.empty()) {
    const std::size_t begin = std::min(bytes.find('<'), bytes.size());
    if (!open.empty()) uit.knopen[open.back()].tekst += bytes.substr(0, begin);
    if (begin == bytes.size()) break;
    const std::size_t einde = bytes.find('>', begin);
    if (einde == std::string_view::npos) return {{}, "tag zonder einde"};
    VerwerkTag(bytes.substr(begin + 1, einde - begin - 1), open, uit);
    bytes.remove_prefix(einde + 1);
  }
  if (!open.empty()) uit.fout += "niet gesloten";
  return uit;
}

std::filesystem::path TekeningPad(const Tekening& tekening) {
  return Bron / tekening.map / "beelden" / (std::string(tekening.naam) + ".svg");
}
std::filesystem::path PictogramPad(const std::string& naam) {
  return Bron / "shell/beelden" / (naam + ".svg");
}

/// The attribute of an element, or "" where it has none.
std::string Kenmerk(const Knoop& knoop, const std::string& naam) {
  const auto plaats = knoop.kenmerken.find(naam);
  return plaats == knoop.kenmerken.end() ? "" : plaats->second;
}

/// What stands in element `index`: the elements behind it that lie deeper.
std::vector<Knoop> Inhoud(const Ontleed& svg, std::size_t index) {
  const auto begin = svg.knopen.begin() + static_cast<std::ptrdiff_t>(index) + 1;
  const std::size_t diepte = svg.knopen[index].diepte;
  return {begin, std::find_if(begin, svg.knopen.end(), [&](const Knoop& k) { return k.diepte <= diepte; })};
}

/// The numbers of a path; a command other than M, L, H, V, C or Z empties the list of commands that are
/// right.
std::vector<double> Getallen(std::string_view pad) {
  std::vector<double> getallen;
  for (const char* p = pad.data(); p != pad.data() + pad.size();) {
    double getal = 0;
    const auto [einde, fout] = std::from_chars(p, pad.data() + pad.size(), getal);
    if (fout == std::errc{}) getallen.push_back(getal);
    p = fout == std::errc{} ? einde : p + 1;
  }
  return getallen;
}

std::vector<std::string> NamenIn(const std::filesystem::path& map) {
  std::vector<std::string> namen;
  for (const auto& bestand : std::filesystem::directory_iterator(map))
    namen.push_back(bestand.path().filename());
  std::sort(namen.begin(), namen.end());
  return namen;
}

/// Every picture that follows the theme.
std::vector<std::filesystem::path> Themabeelden() {
  std::vector<std::filesystem::path> paden;
  for (const Tekening& tekening : Tekeningen()) paden.push_back(TekeningPad(tekening));
  for (const std::string& naam : Pictogrammen) paden.push_back(PictogramPad(naam));
  return paden;
}

std::vector<std::filesystem::path> AlleBeelden() {
  std::vector<std::filesystem::path> paden = Themabeelden();
  paden.push_back(PictogramPad("murvane"));
  return paden;
}

TEST(Beelden, TheReaderFindsWhatIsNotWellFormed) {
  const std::string kop = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  EXPECT_EQ(OntleedSvg(kop + "<svg a=\"1\"><g/><t>h</t></svg>\n").fout, "");
  for (const char* slecht : {"<svg><g></svg>", "<svg></g></svg>", "<svg><g>", "<svg/><svg/>", "<svg a=1/>",
                             "<svg a=\"1\" a=\"2\"/>", "<svg a=\"1/>", "</svg>", "<svg"}) {
    EXPECT_NE(OntleedSvg(kop + slecht).fout, "") << slecht;
  }
  EXPECT_NE(OntleedSvg("<svg/>").fout, "");
}

TEST(Beelden, EveryElementTypeEstimatorChainAndRoomHasItsDrawingAndNothingElseLiesThere) {
  for (const std::string map : {"editor", "estimators"}) {
    std::vector<std::string> namen;
    for (const Tekening& tekening : Tekeningen())
      if (tekening.map == map) namen.push_back(std::string(tekening.naam) + ".svg");
    EXPECT_THAT(NamenIn(Bron / map / "beelden"), ElementsAreArray(namen));
  }
}

TEST(Beelden, EveryCommandHasItsIconAndNothingElseLiesThere) {
  std::vector<std::string> namen = {"murvane.svg"};
  for (const std::string& naam : Pictogrammen) namen.push_back(naam + ".svg");
  std::sort(namen.begin(), namen.end());
  EXPECT_THAT(NamenIn(Bron / "shell/beelden"), ElementsAreArray(namen));
}

TEST(Beelden, AreWellFormedAndTitled) {
  for (const auto& pad : AlleBeelden()) {
    const Ontleed svg = OntleedSvg(proef::Lees(pad));
    ASSERT_EQ(svg.fout, "") << pad;
    ASSERT_GT(svg.knopen.size(), 2U) << pad;
    EXPECT_EQ(svg.knopen[0].naam, "svg") << pad;
    EXPECT_EQ(Kenmerk(svg.knopen[0], "xmlns"), "http://www.w3.org/2000/svg") << pad;
    EXPECT_EQ(svg.knopen[1].naam, "title") << pad;
    EXPECT_NE(svg.knopen[1].tekst, "") << pad;
  }
}

void VerwachtMaat(const std::filesystem::path& pad, const std::string& breed, const std::string& hoog) {
  const Knoop wortel = OntleedSvg(proef::Lees(pad)).knopen.at(0);
  EXPECT_EQ(Kenmerk(wortel, "viewBox"), "0 0 " + breed + " " + hoog) << pad;
  EXPECT_EQ(Kenmerk(wortel, "width"), breed) << pad;
  EXPECT_EQ(Kenmerk(wortel, "height"), hoog) << pad;
}

TEST(Beelden, HaveTheSizeOfTheirFamily) {
  for (const Tekening& tekening : Tekeningen()) VerwachtMaat(TekeningPad(tekening), "480", "300");
  for (const std::string& naam : Pictogrammen) VerwachtMaat(PictogramPad(naam), "24", "24");
  VerwachtMaat(PictogramPad("murvane"), "256", "256");
}

// Qt draws SVG Tiny 1.2: no style sheets, markers, filters, clipping or elliptical arcs.
TEST(Beelden, StayWithinTheTinyProfile) {
  const std::set<std::string> elementen = {"svg", "title", "g", "path", "text"};
  const std::set<std::string> kenmerken = {"xmlns",
                                           "version",
                                           "baseProfile",
                                           "viewBox",
                                           "width",
                                           "height",
                                           "id",
                                           "d",
                                           "x",
                                           "y",
                                           "stroke",
                                           "fill",
                                           "stroke-width",
                                           "stroke-linecap",
                                           "stroke-linejoin",
                                           "stroke-dasharray",
                                           "stroke-opacity",
                                           "fill-opacity",
                                           "font-family",
                                           "font-size",
                                           "font-style",
                                           "text-anchor"};
  for (const auto& pad : AlleBeelden()) {
    for (const Knoop& knoop : OntleedSvg(proef::Lees(pad)).knopen) {
      EXPECT_THAT(elementen, Contains(knoop.naam)) << pad;
      for (const auto& [naam, waarde] : knoop.kenmerken) EXPECT_THAT(kenmerken, Contains(naam)) << pad;
      EXPECT_EQ(Kenmerk(knoop, "d").find_first_not_of("MLHVCZ 0123456789.-"), std::string::npos) << pad;
    }
  }
}

// What the window replaces as text has to be all the colour there is.
TEST(Beelden, UseOnlyTheThreeColoursThatTheThemeReplaces) {
  for (const auto& pad : Themabeelden()) {
    const std::string bytes = proef::Lees(pad);
    for (std::size_t i = bytes.find('#'); i != std::string::npos; i = bytes.find('#', i + 1)) {
      EXPECT_THAT(Kleuren, Contains(bytes.substr(i, 7))) << pad;
    }
    for (const Knoop& knoop : OntleedSvg(bytes).knopen) {
      for (const char* naam : {"stroke", "fill"}) {
        const std::string kleur = Kenmerk(knoop, naam);
        EXPECT_TRUE(kleur.empty() || kleur == "none" || Kleuren.count(kleur) == 1) << pad << ": " << kleur;
      }
    }
  }
}

// Without a colour of its own a shape would be black, also on a dark window.
TEST(Beelden, EveryShapeTakesItsColoursFromAGroup) {
  for (const auto& pad : Themabeelden()) {
    for (const Knoop& knoop : OntleedSvg(proef::Lees(pad)).knopen) {
      EXPECT_TRUE((knoop.naam != "path" && knoop.naam != "text") || knoop.diepte == 2) << pad;
      if (knoop.naam != "g") continue;
      EXPECT_NE(Kenmerk(knoop, "stroke"), "") << pad;
      EXPECT_NE(Kenmerk(knoop, "fill"), "") << pad;
    }
  }
}

TEST(Beelden, ADrawingHasAGroupForEachVisibleFieldAndForNoOther) {
  for (const Tekening& tekening : Tekeningen()) {
    std::vector<std::string> groepen;
    for (const Knoop& knoop : OntleedSvg(proef::Lees(TekeningPad(tekening))).knopen) {
      if (Kenmerk(knoop, "id").empty()) continue;
      EXPECT_EQ(knoop.naam, "g") << tekening.naam;
      groepen.push_back(Kenmerk(knoop, "id"));
    }
    std::vector<std::string> velden;
    for (const auto& [veld, letters] : tekening.letters) velden.push_back(veld);
    EXPECT_THAT(groepen, testing::UnorderedElementsAreArray(velden)) << tekening.naam;
  }
}

TEST(Beelden, TheLettersOfADimensionStandInItsGroupAndNowhereElse) {
  for (const Tekening& tekening : Tekeningen()) {
    const Ontleed svg = OntleedSvg(proef::Lees(TekeningPad(tekening)));
    for (std::size_t i = 0; i < svg.knopen.size(); ++i) {
      if (svg.knopen[i].naam != "g") continue;
      std::string letters;
      for (const Knoop& knoop : Inhoud(svg, i)) letters += knoop.naam == "text" ? knoop.tekst : "";
      const auto veld = tekening.letters.find(Kenmerk(svg.knopen[i], "id"));
      EXPECT_EQ(letters, veld == tekening.letters.end() ? "" : veld->second) << tekening.naam;
    }
  }
}

// The window lights a dimension up by the colour of its group alone.
TEST(Beelden, AGroupOfAFieldHasOneColourForAllThatIsInIt) {
  for (const Tekening& tekening : Tekeningen()) {
    const Ontleed svg = OntleedSvg(proef::Lees(TekeningPad(tekening)));
    for (std::size_t i = 0; i < svg.knopen.size(); ++i) {
      const std::string veld = Kenmerk(svg.knopen[i], "id");
      if (veld.empty()) continue;
      const bool lucht = veld == "txtDebiet" || veld == "txtQAftak";
      EXPECT_EQ(Kenmerk(svg.knopen[i], "stroke"), lucht ? "#3a6ea5" : "#111111") << tekening.naam << veld;
      EXPECT_EQ(Kenmerk(svg.knopen[i], "fill"), Kenmerk(svg.knopen[i], "stroke")) << tekening.naam << veld;
      for (const Knoop& knoop : Inhoud(svg, i)) {
        for (const char* naam : {"stroke", "fill"}) {
          const std::string kleur = Kenmerk(knoop, naam);
          EXPECT_TRUE(kleur.empty() || kleur == "none") << tekening.naam << veld << kleur;
        }
      }
    }
  }
}

TEST(Beelden, ADimensionHasALineAnArrowHeadAndALetter) {
  for (const Tekening& tekening : Tekeningen()) {
    const Ontleed svg = OntleedSvg(proef::Lees(TekeningPad(tekening)));
    for (std::size_t i = 0; i < svg.knopen.size(); ++i) {
      if (Kenmerk(svg.knopen[i], "id").empty()) continue;
      std::map<std::string, int> aantal;
      for (const Knoop& knoop : Inhoud(svg, i)) {
        ++aantal[knoop.naam != "path" ? knoop.naam : Kenmerk(knoop, "fill") == "none" ? "lijn" : "vlak"];
      }
      for (const char* deel : {"lijn", "vlak", "text"}) {
        EXPECT_THAT(aantal, Contains(Key(deel))) << tekening.naam << " " << Kenmerk(svg.knopen[i], "id");
      }
    }
  }
}

TEST(Beelden, LettersHaveOneFontAndTwoSizes) {
  for (const Tekening& tekening : Tekeningen()) {
    const Ontleed svg = OntleedSvg(proef::Lees(TekeningPad(tekening)));
    for (std::size_t i = 0; i < svg.knopen.size(); ++i) {
      if (Kenmerk(svg.knopen[i], "id").empty()) continue;
      EXPECT_EQ(Kenmerk(svg.knopen[i], "font-family"), "sans-serif") << tekening.naam;
      EXPECT_EQ(Kenmerk(svg.knopen[i], "font-size"), "19") << tekening.naam;
      for (const Knoop& knoop : Inhoud(svg, i)) {
        const std::string maat = Kenmerk(knoop, "font-size");
        EXPECT_TRUE(maat.empty() || maat == "13") << tekening.naam << ": " << maat;
      }
    }
  }
}

TEST(Beelden, EveryDrawingShowsTheAirInTheAccentColour) {
  for (const Tekening& tekening : Tekeningen()) {
    const std::string bytes = proef::Lees(TekeningPad(tekening));
    EXPECT_NE(bytes.find("#3a6ea5"), std::string::npos) << tekening.naam;
  }
}

// All commands are absolute. Drawings use M, L, C and Z alone, so that their numbers are x and y in turn.
TEST(Beelden, NoLineLeavesTheDrawing) {
  for (const Tekening& tekening : Tekeningen()) {
    for (const Knoop& knoop : OntleedSvg(proef::Lees(TekeningPad(tekening))).knopen) {
      const std::string pad = Kenmerk(knoop, "d");
      EXPECT_EQ(pad.find_first_of("HV"), std::string::npos) << tekening.naam;
      const std::vector<double> getallen = Getallen(pad);
      for (std::size_t i = 0; i < getallen.size(); ++i) {
        EXPECT_TRUE(getallen[i] >= 2 && getallen[i] <= (i % 2 == 0 ? 478 : 298)) << tekening.naam << pad;
      }
    }
  }
}

// A letter is at most 19 high and some 30 wide with its index.
TEST(Beelden, NoLetterLeavesTheDrawing) {
  for (const Tekening& tekening : Tekeningen()) {
    for (const Knoop& knoop : OntleedSvg(proef::Lees(TekeningPad(tekening))).knopen) {
      if (knoop.naam != "text") continue;
      const double x = Getallen(Kenmerk(knoop, "x")).at(0);
      const double y = Getallen(Kenmerk(knoop, "y")).at(0);
      const double breed = Kenmerk(knoop, "text-anchor") == "middle" ? 10 : 20;
      EXPECT_TRUE(x >= (Kenmerk(knoop, "text-anchor") == "start" ? 0 : breed))
          << tekening.naam << knoop.tekst;
      EXPECT_TRUE(x <= 480 - (Kenmerk(knoop, "text-anchor") == "end" ? 0 : breed))
          << tekening.naam << knoop.tekst;
      EXPECT_TRUE(y >= 19 && y <= 294) << tekening.naam << knoop.tekst;
    }
  }
}

TEST(Beelden, NoLineLeavesTheIcon) {
  for (const std::string& naam : Pictogrammen) {
    for (const Knoop& knoop : OntleedSvg(proef::Lees(PictogramPad(naam))).knopen) {
      for (const double getal : Getallen(Kenmerk(knoop, "d"))) EXPECT_TRUE(getal >= 1 && getal <= 23) << naam;
    }
  }
}

}  // namespace
}  // namespace murvane
