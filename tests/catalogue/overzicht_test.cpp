#include "catalogue/overzicht.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <deque>
#include <memory>
#include <random>

#include "basis/fout.h"
#include "basis/getal.h"
#include "basis/tekst.h"
#include "reports/vlak.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

using proef::Lees;
using proef::Schrijf;
using proef::Script;
using proef::TijdelijkeMap;
using testing::ElementsAre;

constexpr std::array<CatalogusSoort, 4> Soorten = {CatalogusSoort::Kanaalelementen,
                                                   CatalogusSoort::Ventilatoren, CatalogusSoort::Luchtkanalen,
                                                   CatalogusSoort::Plafonds};

std::string B(std::size_t n) {
  return std::string(n, ' ');
}
std::string Naam80(std::string_view naam) {
  return std::string(naam) + B(80 - naam.size());
}
const std::string Streep = B(5) + std::string(180, '-');

Script Gebruiker() {
  return Script([](const std::string& fout) { ADD_FAILURE() << fout; });
}

template <typename Rec>
Rec& Voeg(Catalogus<Rec>& catalogus, std::string_view naam) {
  Rec& rec = catalogus.Records[static_cast<std::size_t>(++catalogus.Aantal)];
  NaamVan(rec) = naam;
  return rec;
}

/// The eleven built-in elements, and those of the user behind them.
Catalogi MetElementen(std::initializer_list<std::string_view> namen) {
  Catalogi uit;
  for (int k = 1; k <= 11; ++k) Voeg(uit.CatElementen, "ingebouwd " + std::to_string(20 - k));
  for (const std::string_view naam : namen) Voeg(uit.CatElementen, naam);
  return uit;
}

std::vector<std::string> NamenVan(const auto& catalogus) {
  std::vector<std::string> uit;
  for (int k = 1; k <= catalogus.Aantal; ++k)
    uit.emplace_back(NaamVan(catalogus.Records[static_cast<std::size_t>(k)]).Getrimd());
  return uit;
}

OverzichtUitslag Alles(const Catalogi& catalogi, CatalogusSoort soort, char decimaal = ',') {
  return Overzicht(catalogi, soort, OverzichtWijze::Alles, ZoekAlles, "20-11-2026", decimaal);
}
OverzichtUitslag Zoek(const Catalogi& catalogi, CatalogusSoort soort, std::string_view zoek) {
  return Overzicht(catalogi, soort, OverzichtWijze::Zoeken, zoek, "20-11-2026", ',');
}

// The table.

TEST(OverzichtTabel, HasEveryRowOfEveryWindow) {
  struct Rij {
    const char *titel, *zoekTitel, *label, *kop;
    std::size_t kopBlanco, bandkoppen;
    const char* rijlabel;
    std::size_t labelBlanco, waarden;
    const char* tweede;
    std::size_t perPagina;
    const char* filter;
  };
  const Rij rijen[] = {
      {"Kanaalelementen - Overzicht", "Kanaalelementen - Overzicht op naam", "Kanaalelementen", "Elementnaam",
       95, 8, "demping   (dB)", 4, 7, "eigenruis (dB)", 14, "Overzichten kanaalelementen (*.elm)|*.elm"},
      {"Ventilatoren - Overzicht", "Ventilatoren - Overzicht op naam", "Ventilatoren", "Ventilator", 95, 8,
       "Lw  (dB)", 9, 8, "", 20, "Overzichten ventilatoren (*.fan)|*.fan"},
      {"Luchtkanalen - Overzicht", "Luchtkanalen - Overzicht op omschrijving", "Luchtkanalen", "Luchtkanaal",
       94, 7, "R   (dB)", 9, 7, "", 20, "Overzichten luchtkanalen (*.dct)|*.dct"},
      {"plafonds - Overzicht", "plafonds - Overzicht op omschrijving", "Plafonds", "Plafond    ", 94, 7,
       "R   (dB)", 9, 7, "", 20, "Overzichten plafonds (*.plf)|*.plf"},
  };
  for (std::size_t i = 0; i < Soorten.size(); ++i) {
    const OverzichtVerschil& v = OverzichtVan(Soorten[i]);
    SCOPED_TRACE(rijen[i].titel);
    EXPECT_EQ(v.Soort, Soorten[i]);
    EXPECT_EQ(v.Titel, rijen[i].titel);
    EXPECT_EQ(v.ZoekTitel, rijen[i].zoekTitel);
    EXPECT_EQ(v.Label, rijen[i].label);
    EXPECT_EQ(v.Kolomkop, rijen[i].kop);
    EXPECT_EQ(v.KopBlanco, rijen[i].kopBlanco);
    EXPECT_EQ(v.Bandkoppen, rijen[i].bandkoppen);
    EXPECT_EQ(v.Rijlabel, rijen[i].rijlabel);
    EXPECT_EQ(v.LabelBlanco, rijen[i].labelBlanco);
    EXPECT_EQ(v.Waarden, rijen[i].waarden);
    EXPECT_EQ(v.Tweede, rijen[i].tweede);
    EXPECT_EQ(v.PerPagina, rijen[i].perPagina);
    EXPECT_EQ(v.Filter, rijen[i].filter);
  }
  EXPECT_EQ(EersteRecord(CatalogusSoort::Kanaalelementen), 12);
  for (const std::size_t i : {1U, 2U, 3U}) EXPECT_EQ(EersteRecord(Soorten[i]), 1);
}

// Listings, byte for byte.

/// What stands above and below the entries, from the texts that differ. `rest` fills the title line: 151
/// characters less those of title and search text.
std::string Omlijst(const std::string& titel, const std::string& zoek, std::size_t rest,
                    const std::string& kop, const std::string& regels, int aantal) {
  return " \r\n \r\n" + B(5) + titel + " : " + zoek + B(rest) + "Aangemaakt op : 20-11-2026\r\n\r\n" +
         Streep + "\r\n" + B(128) + "frequentie in Hz\r\n" + kop + "\r\n" + Streep + "\r\n" + regels +
         Streep + "\r\n     Aantal =  " + std::to_string(aantal);
}

const std::string ZevenBanden = "     63     125     250     500    1000    2000    4000 ";
const std::string AchtBanden = ZevenBanden + "   dB(A)";
const std::string ElementKop = B(5) + "Elementnaam" + B(95) + AchtBanden;

TEST(Overzicht, ListsElementsInTwoRowsFromRecordTwelve) {
  Catalogi catalogi = MetElementen({"Demper 1,5 m²"_cp, "Slang"});
  CatElementRec& demper = catalogi.CatElementen.Records[12];
  demper.CatDemp = {1, 2.25, 3.349999, 10.05, 100, 0, -0.04, 77};
  demper.CatRuis = {11, 12, 13, 14, 15, 16, 17, 18.1};
  CatElementRec& slang = catalogi.CatElementen.Records[13];
  slang.PerMeter = 1;
  // "Totaal " is 7 and the title 27 characters: 151 - 34 = 117
  const auto verwacht = [](char d) {
    std::string tekst =
        B(5) + Naam80("Demper 1,5 m²"_cp) + B(5) + "demping   (dB)    " +
        "     1.0     2.3     3.3    10.1   100.0     0.0     0.0\r\n" + B(90) + "eigenruis (dB)    " +
        "    11.0    12.0    13.0    14.0    15.0    16.0    17.0    18.1\r\n\r\n" + B(5) + Naam80("Slang") +
        B(5) + "demping   (dB)    " + "     0.0     0.0     0.0     0.0     0.0     0.0     0.0" + B(8) +
        "demping/m1\r\n" + B(90) + "eigenruis (dB)    " +
        "     0.0     0.0     0.0     0.0     0.0     0.0     0.0     0.0\r\n\r\n";
    for (std::size_t i = 103; i < tekst.size(); ++i)
      if (tekst[i] == '.') tekst[i] = d;
    return Omlijst("KANAALELEMENTEN - OVERZICHT", "Totaal ", 117, ElementKop, tekst, 2);
  };
  for (const char d : {',', '.'})
    EXPECT_EQ(Alles(catalogi, CatalogusSoort::Kanaalelementen, d).OverzichtTekst, verwacht(d));
  EXPECT_EQ(Alles(catalogi, CatalogusSoort::Kanaalelementen).OverzichtTitel, "Kanaalelementen - Overzicht");
}

/// Values with the decimal sign of the listing.
std::string MetTeken(std::string waarden, char decimaal) {
  std::replace(waarden.begin(), waarden.end(), ',', decimaal);
  return waarden;
}

TEST(Overzicht, ListsFansWithTheirSum) {
  Catalogi catalogi;
  Voeg(catalogi.CatFans, "Toevoer 1,5 m").SpecWaarde = {90, 91, 92, 93, 94, 95, 96, 101.25};
  for (const char d : {',', '.'})
    EXPECT_EQ(Alles(catalogi, CatalogusSoort::Ventilatoren, d).OverzichtTekst,
              Omlijst("VENTILATOREN - OVERZICHT", "Totaal ", 120, B(5) + "Ventilator" + B(95) + AchtBanden,
                      B(5) + Naam80("Toevoer 1,5 m") + B(5) + "Lw  (dB)" + B(9) +
                          MetTeken("    90,0    91,0    92,0    93,0    94,0    95,0    96,0   101,3", d) +
                          "\r\n\r\n",
                      1));
}

TEST(Overzicht, ListsDuctsAndCeilingsWithoutASum) {
  Catalogi catalogi;
  Voeg(catalogi.CatRduct, "Staal 1,5 mm").SpecWaarde = {1, 2, 3, 4, 5, 6, 7, 8};
  Voeg(catalogi.CatRplaf, "Gips 9,5 mm").SpecWaarde = {1, 2, 3, 4, 5, 6, 7, 8};
  for (const char d : {',', '.'}) {
    const std::string waarden =
        MetTeken("     1,0     2,0     3,0     4,0     5,0     6,0     7,0", d) + "\r\n\r\n";
    EXPECT_EQ(Alles(catalogi, CatalogusSoort::Luchtkanalen, d).OverzichtTekst,
              Omlijst("LUCHTKANALEN - OVERZICHT", "Totaal ", 120, B(5) + "Luchtkanaal" + B(94) + ZevenBanden,
                      B(5) + Naam80("Staal 1,5 mm") + B(5) + "R   (dB)" + B(9) + waarden, 1));
    EXPECT_EQ(Alles(catalogi, CatalogusSoort::Plafonds, d).OverzichtTekst,
              Omlijst("PLAFONDS - OVERZICHT", "Totaal ", 124, B(5) + "Plafond    " + B(94) + ZevenBanden,
                      B(5) + Naam80("Gips 9,5 mm") + B(5) + "R   (dB)" + B(9) + waarden, 1));
  }
}

/// An element as it is listed: its attenuation and its self-noise at 63 Hz, the other bands 0.
std::string ElementRegels(std::string_view naam, const std::string& demp, const std::string& ruis) {
  std::string nullen;
  for (int b = 0; b < 6; ++b) nullen += "     0,0";
  return B(5) + Naam80(naam) + B(5) + "demping   (dB)    " + demp + nullen + "\r\n" + B(90) +
         "eigenruis (dB)    " + ruis + nullen + "     0,0\r\n\r\n";
}

TEST(Overzicht, OfASearchHasItsHitsAndNothingElse) {
  Catalogi catalogi = MetElementen({"Demper A", "slang", "DEMPER b", "d e m p e r"});
  catalogi.CatElementen.Records[12].CatDemp[0] = 1;
  catalogi.CatElementen.Records[14].CatRuis[0] = 33.5;
  // The title is 35 characters and the text 6: 151 - 41 = 110
  EXPECT_EQ(Zoek(catalogi, CatalogusSoort::Kanaalelementen, "demper").OverzichtTekst,
            Omlijst("KANAALELEMENTEN - OVERZICHT OP NAAM", "demper", 110, ElementKop,
                    ElementRegels("Demper A", "     1,0", "     0,0") +
                        ElementRegels("DEMPER b", "     0,0", "    33,5"),
                    2));
}

TEST(Overzicht, OfSortedElementsHasThemInOrderWithTheNoiseThatIsLeft) {
  Catalogi catalogi = MetElementen({"c", "A", "b"});
  for (std::size_t k = 12; k <= 14; ++k) {
    catalogi.CatElementen.Records[k].CatDemp[0] = static_cast<double>(k);
    catalogi.CatElementen.Records[k].CatRuis[0] = 30;
  }
  Sorteren(catalogi, CatalogusSoort::Kanaalelementen);
  EXPECT_EQ(Alles(catalogi, CatalogusSoort::Kanaalelementen).OverzichtTekst,
            Omlijst("KANAALELEMENTEN - OVERZICHT", "Totaal ", 117, ElementKop,
                    ElementRegels("A", "    13,0", "    30,0") + ElementRegels("b", "    14,0", "    30,0") +
                        ElementRegels("c", "    12,0", "     0,0"),  // it alone moved down
                    3));
}

TEST(Overzicht, OfAFullElementCatalogueHasTheUsersFourHundredEightyNine) {
  Catalogi catalogi = MetElementen({});
  std::string regels;
  for (int k = 12; k <= 500; ++k) {
    const std::string naam = "nr " + std::to_string(k);
    const std::string demp = std::to_string(k % 100) + ",0";
    const std::string ruis = std::to_string(k % 90) + ",5";
    CatElementRec& rec = Voeg(catalogi.CatElementen, naam);
    rec.CatDemp[0] = k % 100;
    rec.CatRuis[0] = k % 90 + 0.5;
    regels += ElementRegels(naam, B(8 - demp.size()) + demp, B(8 - ruis.size()) + ruis);
  }
  const OverzichtUitslag o = Alles(catalogi, CatalogusSoort::Kanaalelementen);
  EXPECT_EQ(o.OverzichtTekst,
            Omlijst("KANAALELEMENTEN - OVERZICHT", "Totaal ", 117, ElementKop, regels, 489));
  EXPECT_EQ(o.Aantal(), 489U);
}

TEST(Overzicht, OfNothingHasHeadsAndACountOfZero) {
  const std::string leeg = Omlijst("KANAALELEMENTEN - OVERZICHT", "Totaal ", 117, ElementKop, "", 0);
  EXPECT_EQ(Alles(MetElementen({}), CatalogusSoort::Kanaalelementen).OverzichtTekst, leeg);
  Catalogi kort = MetElementen({});
  for (const int aantal : {10, 1, 0, -1, -32768}) {
    kort.CatElementen.Aantal = static_cast<std::int16_t>(aantal);
    kort.CatFans.Aantal = static_cast<std::int16_t>(std::min(aantal, 0));
    EXPECT_EQ(Alles(kort, CatalogusSoort::Kanaalelementen).OverzichtTekst, leeg) << aantal;
    EXPECT_EQ(Alles(kort, CatalogusSoort::Ventilatoren).Aantal(), 0U) << aantal;
  }
  EXPECT_EQ(Zoek(MetElementen({"a"}), CatalogusSoort::Kanaalelementen, "zz").OverzichtTekst,
            Omlijst("KANAALELEMENTEN - OVERZICHT OP NAAM", "zz", 114, ElementKop, "", 0));
}

TEST(Overzicht, OfAFullCatalogueHasEveryRecordInOrder) {
  Catalogi catalogi;
  std::string regels;
  for (int k = 1; k <= 500; ++k) {
    const std::string naam = "nr " + std::to_string(k);
    Voeg(catalogi.CatRplaf, naam).SpecWaarde[0] = k % 100;
    const std::string waarde = std::to_string(k % 100) + ",0";
    regels += B(5) + Naam80(naam) + B(5) + "R   (dB)" + B(9) + B(8 - waarde.size()) + waarde;
    for (int b = 1; b < 7; ++b) regels += "     0,0";
    regels += "\r\n\r\n";
  }
  const OverzichtUitslag o = Alles(catalogi, CatalogusSoort::Plafonds);
  EXPECT_EQ(o.OverzichtTekst, Omlijst("PLAFONDS - OVERZICHT", "Totaal ", 124,
                                      B(5) + "Plafond    " + B(94) + ZevenBanden, regels, 500));
  EXPECT_EQ(o.Aantal(), 500U);
  EXPECT_EQ(o.OverzichtRegels.size(), 500U);
}

TEST(Overzicht, DoesNotCutAValueThatIsWiderThanItsColumn) {
  Catalogi catalogi;
  Voeg(catalogi.CatFans, "x").SpecWaarde = {1234567, 12345.6, -1234567.8, 0, 0, 0, 0, 0};
  EXPECT_EQ(Alles(catalogi, CatalogusSoort::Ventilatoren).OverzichtRegels[0].substr(107, 31),
            "1234567,0 12345,6-1234567,8    ");
}

TEST(Overzicht, LeavesOutTheBlanksThatALongSearchTextHasNoRoomFor) {
  const std::string zoek(130, 'q');  // 24 + 130 characters are more than 151
  const std::string tekst = Zoek({}, CatalogusSoort::Ventilatoren, zoek).OverzichtTekst;
  EXPECT_EQ(tekst.substr(6, tekst.find("\r\n", 6) - 6),
            B(5) + "VENTILATOREN - OVERZICHT OP NAAM : " + zoek + "Aangemaakt op : 20-11-2026");
}

TEST(Overzicht, SearchesTheWholeNameWithoutRegardToCase) {
  const Catalogi catalogi = MetElementen({"Demper één"_cp, "DEMPER TWEE", "slang", "Éénvoudig"_cp});
  const auto gevonden = [&catalogi](std::string_view zoek) {
    std::vector<std::string> uit;
    for (const std::string& regel : Zoek(catalogi, CatalogusSoort::Kanaalelementen, zoek).OverzichtRegels)
      uit.emplace_back(Trim(regel.substr(5, 80)));
    return uit;
  };
  EXPECT_THAT(gevonden("demper"), ElementsAre("Demper één"_cp, "DEMPER TWEE"));
  EXPECT_THAT(gevonden("dEMPER t"), ElementsAre("DEMPER TWEE"));
  EXPECT_THAT(gevonden("ÉÉN"_cp), ElementsAre("Demper één"_cp, "Éénvoudig"_cp));
  EXPECT_THAT(gevonden("slang "), ElementsAre("slang"));  // the blanks of the fixed text count
  EXPECT_THAT(gevonden("    "), testing::SizeIs(4));
  EXPECT_THAT(gevonden("ingebouwd"), testing::IsEmpty());
  EXPECT_THAT(gevonden("slang" + B(75)), ElementsAre("slang"));
  EXPECT_THAT(gevonden("slang" + B(76)), testing::IsEmpty());
}

TEST(OverzichtOpdracht, AsksForTheSearchTextUnderTheTitleOfASearch) {
  const Catalogi catalogi = MetElementen({"Demper", "slang"});
  for (const CatalogusSoort soort : Soorten) {
    Script script = Gebruiker();
    script.InvoerBox({std::string(OverzichtVan(soort).ZoekTitel), "", ""}, "dem");
    const auto o = mnuZoekNaam_Click(catalogi, soort, script, "20-11-2026", ',');
    ASSERT_TRUE(o.has_value());
    EXPECT_EQ(o->OverzichtTitel, OverzichtVan(soort).ZoekTitel);
    EXPECT_EQ(o->OverzichtTekst, Zoek(catalogi, soort, "dem").OverzichtTekst);
    EXPECT_EQ(o->OverzichtFilter, OverzichtVan(soort).Filter);
  }
}

TEST(OverzichtOpdracht, DoesNothingOnAnEmptyAnswerAndSearchesBlanks) {
  Script script = Gebruiker();
  script.InvoerBox({"Ventilatoren - Overzicht op naam", "", ""}, "");
  EXPECT_FALSE(mnuZoekNaam_Click({}, CatalogusSoort::Ventilatoren, script, "", ',').has_value());
  script.InvoerBox({"Ventilatoren - Overzicht op naam", "", ""}, " ");
  EXPECT_TRUE(mnuZoekNaam_Click({}, CatalogusSoort::Ventilatoren, script, "", ',').has_value());
}

TEST(OverzichtOpdracht, OfAllListsEveryRecordUnderTheWaitCursor) {
  const Catalogi catalogi = MetElementen({"Demper", "slang"});
  for (const CatalogusSoort soort : Soorten) {
    Script script = Gebruiker();
    bool gewacht = false;
    const OverzichtUitslag o = mnuZoekAlles_Click(catalogi, soort, script, "20-11-2026", ',',
                                                  [&](int, int) { gewacht = script.Wacht(); });
    EXPECT_EQ(o.OverzichtTekst, Alles(catalogi, soort).OverzichtTekst);
    EXPECT_TRUE(gewacht);
  }
}

TEST(OverzichtOpdracht, OfASearchWaitsBehindItsQuestion) {
  Script script = Gebruiker();
  bool gewacht = false;
  script.InvoerBox({"Ventilatoren - Overzicht op naam", "", ""}, "x");  // which fails under the wait cursor
  (void)mnuZoekNaam_Click({}, CatalogusSoort::Ventilatoren, script, "", ',',
                          [&](int, int) { gewacht = script.Wacht(); });
  EXPECT_TRUE(gewacht);
  EXPECT_EQ(script.KeerGewacht(), 1);
}

TEST(OverzichtVoortgang, TellsTheNumberOfEveryRecordAgainstTheCount) {
  using Stand = std::pair<int, int>;
  const auto standen = [](const Catalogi& catalogi, CatalogusSoort soort, std::string_view zoek) {
    std::vector<Stand> uit;
    (void)Overzicht(catalogi, soort, OverzichtWijze::Zoeken, zoek, "20-11-2026", ',',
                    [&uit](int record, int meest) { uit.emplace_back(record, meest); });
    return uit;
  };
  Catalogi catalogi = MetElementen({"a", "b", "c"});
  Voeg(catalogi.CatFans, "a"), Voeg(catalogi.CatFans, "b");
  EXPECT_THAT(standen(catalogi, CatalogusSoort::Kanaalelementen, "b"),  // also of those it does not take
              ElementsAre(Stand(0, 14), Stand(12, 14), Stand(13, 14), Stand(14, 14)));
  EXPECT_THAT(standen(catalogi, CatalogusSoort::Ventilatoren, "a"),
              ElementsAre(Stand(0, 2), Stand(1, 2), Stand(2, 2)));
  for (const int aantal : {0, -1}) {
    catalogi.CatFans.Aantal = static_cast<std::int16_t>(aantal);
    EXPECT_THAT(standen(catalogi, CatalogusSoort::Ventilatoren, "a"), ElementsAre(Stand(0, 100)));
  }
  catalogi.CatElementen.Aantal = 1;
  EXPECT_THAT(standen(catalogi, CatalogusSoort::Kanaalelementen, "a"), ElementsAre(Stand(0, 1)));
}

// Saving.

TEST(OverzichtOpslaan, WritesTheListingAndALineEnd) {
  const TijdelijkeMap map;
  Schrijf(map / "lijst é.dct", std::string(100000, 'x'));
  Catalogi catalogi;
  Voeg(catalogi.CatRduct, "Staal 1 mm²"_cp);
  OverzichtUitslag o = Alles(catalogi, CatalogusSoort::Luchtkanalen);
  o.Map = map / "gegevens é";
  BestandVraag vraag;
  vraag.BeginMap = o.Map;
  vraag.Titel = "Opslaan als";
  vraag.Filter = "Overzichten luchtkanalen (*.dct)|*.dct";
  vraag.Extensie = "dct";
  vraag.OverschrijfVraag = true;
  Script script = Gebruiker();
  script.Opslaan(vraag, map / "lijst é.dct");
  Opslaan(o, script);
  EXPECT_EQ(Lees(map / "lijst é.dct"), o.OverzichtTekst + "\r\n");
  EXPECT_EQ(script.KeerGewacht(), 1);
}

TEST(OverzichtOpslaan, IsSilentWhenTheDialogIsCancelledAndTellsAFailure) {
  const TijdelijkeMap map;
  const OverzichtUitslag o = Alles({}, CatalogusSoort::Plafonds);
  BestandVraag vraag;
  vraag.Titel = "Opslaan als";
  vraag.Filter = "Overzichten plafonds (*.plf)|*.plf";
  vraag.Extensie = "plf";
  vraag.OverschrijfVraag = true;
  Script script = Gebruiker();
  script.Opslaan(vraag, std::nullopt);
  Opslaan(o, script);
  const auto pad = map / "geen map" / "a.plf";
  script.Opslaan(vraag, pad);
  script.Box(
      {MeldingSoort::Kritiek, "MurVane",
       "Onverwachte fout in procedure Opslaan van Form frmOverzicht.\nFout 76 - De map 'geen map' is niet "
       "gevonden."});
  Opslaan(o, script);
}

TEST(OverzichtVenster, PrintsAnyListingButOneOfProjects) {
  EXPECT_FALSE(PrintknopAan("Overzichten (*.pln)|*.pln"));
  for (const char* filter : {"", "n", "a|*.elm", "a|*.plf", "a|*.PLN", "*.pln|x"})
    EXPECT_TRUE(PrintknopAan(filter));
  for (const CatalogusSoort soort : Soorten) EXPECT_TRUE(PrintknopAan(OverzichtVan(soort).Filter));
  EXPECT_EQ(FilterNaSluiten("x|*.pln"), "Overzichten projecten (*.prx)|*.prx");
  EXPECT_EQ(FilterNaSluiten("x|*.elm"), "x|*.elm");
}

TEST(OverzichtVenster, KnowsTheCatalogueByTheEndOfTheFilter) {
  EXPECT_EQ(SoortVanFilter("elm"), CatalogusSoort::Kanaalelementen);
  EXPECT_EQ(SoortVanFilter("x|*.fan"), CatalogusSoort::Ventilatoren);
  EXPECT_EQ(SoortVanFilter("x|*.dct"), CatalogusSoort::Luchtkanalen);
  EXPECT_EQ(SoortVanFilter("x|*.plf"), CatalogusSoort::Plafonds);
  for (const char* filter : {"", "x|*.prx", "lm", "x|*.elm "})
    EXPECT_FALSE(SoortVanFilter(filter).has_value());
}

// Pages.

TEST(Uitvoer, OfNothingIsOnePageWithItsHead) {
  // The head is 147 characters wide, against 151 of the listing: 147 - 32 - 7 = 108.
  const auto paginas =
      Uitvoer(Zoek({}, CatalogusSoort::Ventilatoren, "Demping"), CatalogusSoort::Ventilatoren);
  ASSERT_EQ(paginas.size(), 1U);
  EXPECT_THAT(
      paginas[0],
      ElementsAre("", "", B(173) + "Pagina 1",
                  B(5) + "VENTILATOREN - OVERZICHT OP NAAM : Demping" + B(108) + "Aangemaakt op : 20-11-2026",
                  Streep, B(128) + "frequentie in Hz", B(5) + "Ventilator" + B(95) + AchtBanden, Streep,
                  Streep, "     Aantal =  0"));
}

TEST(Uitvoer, PrintsAnEntryAndAnEmptyLine) {
  const auto paginas = Uitvoer(Alles(MetElementen({"Demper"}), CatalogusSoort::Kanaalelementen),
                               CatalogusSoort::Kanaalelementen);
  ASSERT_EQ(paginas.size(), 1U);
  ASSERT_EQ(paginas[0].size(), 8U + 3 + 2);
  EXPECT_EQ(paginas[0][3],
            B(5) + "KANAALELEMENTEN - OVERZICHT : Totaal " + B(113) + "Aangemaakt op : 20-11-2026");
  EXPECT_EQ(paginas[0][6], ElementKop);
  EXPECT_EQ(paginas[0][8].substr(0, 104), B(5) + Naam80("Demper") + B(5) + "demping   (dB)");
  EXPECT_EQ(paginas[0][9].substr(0, 104), B(90) + "eigenruis (dB)");
  EXPECT_EQ(paginas[0][10], "");
  EXPECT_EQ(paginas[0][11], Streep);
  EXPECT_EQ(paginas[0][12], "     Aantal =  1");
}

TEST(Uitvoer, BreaksBehindFourteenElementsAndTwentyOthers) {
  const struct {
    CatalogusSoort soort;
    int perPagina;
    std::size_t regelsPerStuk;
  } rijen[] = {{CatalogusSoort::Kanaalelementen, 14, 3},
               {CatalogusSoort::Ventilatoren, 20, 2},
               {CatalogusSoort::Luchtkanalen, 20, 2},
               {CatalogusSoort::Plafonds, 20, 2}};
  for (const auto& rij : rijen) {
    for (const int aantal : {rij.perPagina, rij.perPagina + 1, 2 * rij.perPagina, 2 * rij.perPagina + 1}) {
      SCOPED_TRACE(aantal);
      Catalogi catalogi = MetElementen({});
      MetCatalogus(catalogi, rij.soort, [aantal](auto& catalogus) {
        for (int k = 1; k <= aantal; ++k) Voeg(catalogus, "nr " + std::to_string(k) + ".");
      });
      const auto paginas = Uitvoer(Alles(catalogi, rij.soort), rij.soort);
      ASSERT_EQ(paginas.size(), static_cast<std::size_t>((aantal - 1) / rij.perPagina + 1));
      for (std::size_t p = 0; p < paginas.size(); ++p) {
        EXPECT_EQ(paginas[p][2], B(173) + "Pagina " + std::to_string(p + 1));
        EXPECT_EQ(paginas[p][8].substr(5, 7).substr(0, 4),
                  ("nr " + std::to_string(static_cast<int>(p) * rij.perPagina + 1)).substr(0, 4));
        if (p + 1 == paginas.size()) continue;
        EXPECT_EQ(paginas[p].size(), 8 + static_cast<std::size_t>(rij.perPagina) * rij.regelsPerStuk + 2);
        EXPECT_THAT(std::vector<std::string>(paginas[p].end() - 2, paginas[p].end()),
                    ElementsAre(Streep, "     -vervolg-"));
      }
      EXPECT_THAT(std::vector<std::string>(paginas.back().end() - 2, paginas.back().end()),
                  ElementsAre(Streep, "     Aantal =  " + std::to_string(aantal)));
    }
  }
}

TEST(Uitvoer, KeepsEveryLineWithinItsWidth) {
  Catalogi catalogi = MetElementen({});
  for (int k = 12; k <= 500; ++k) {
    CatElementRec& rec = Voeg(catalogi.CatElementen, std::string(80, 'w'));
    rec.PerMeter = 1;
    rec.CatDemp.fill(150);
    rec.CatRuis.fill(150);
  }
  std::size_t breedste = 0;
  for (const OverzichtPagina& pagina :
       Uitvoer(Alles(catalogi, CatalogusSoort::Kanaalelementen), CatalogusSoort::Kanaalelementen))
    for (const std::string& regel : pagina) breedste = std::max(breedste, regel.size());
  EXPECT_EQ(breedste, OverzichtBreedte);
}

// Printing.

constexpr AfdrukVraag Drukvraag{.NaarBestandMogelijk = false, .Liggend = true, .Document = "Overzicht"};

/// What was printed on one document.
struct Drukwerk {
  std::string Font;
  double Punten = 0;
  bool Klaar = false;
  std::vector<OverzichtPagina> Paginas{1};
  std::vector<std::pair<double, double>> Plaatsen;  ///< of every line, twips
};

/// A printer with an A4 sheet on its long side. A character is 0.6 of the font size wide.
class Papier final : public Vlak {
 public:
  explicit Papier(Drukwerk& naar) : naar_(naar) {}
  [[nodiscard]] double ScaleWidth() const override { return 16838; }
  [[nodiscard]] double ScaleHeight() const override { return 11906; }
  void ZetStaand() override { ADD_FAILURE() << "upright"; }
  void ZetFontNaam(std::string_view naam) override { naar_.Font = naam; }
  void ZetFontSize(double punten) override { naar_.Punten = punten; }
  void ZetFontBold(bool) override {}
  void ZetFontItalic(bool) override {}
  [[nodiscard]] double FontSize() const override { return naar_.Punten; }
  [[nodiscard]] double CurrentX() const override { return x_; }
  [[nodiscard]] double CurrentY() const override { return y_; }
  void ZetCurrentX(double x) override { x_ = x; }
  void ZetCurrentY(double y) override { y_ = y; }
  [[nodiscard]] double TextWidth(std::string_view tekst) const override {
    return 12 * naar_.Punten * static_cast<double>(tekst.size());
  }
  [[nodiscard]] double TextHeight(std::string_view) const override { return 22.5 * naar_.Punten; }
  void Print(std::string_view) override { ADD_FAILURE() << "no whole line"; }
  void PrintRegel(std::string_view tekst) override {
    naar_.Paginas.back().emplace_back(tekst);
    naar_.Plaatsen.emplace_back(x_, y_);
    x_ = 0;
    y_ += TextHeight(tekst);
    EXPECT_LE(y_, ScaleHeight());
  }
  void Lijn(double, double, double, double, Kleur) override { ADD_FAILURE() << "line"; }
  void Doos(double, double, double, double, Kleur) override { ADD_FAILURE() << "box"; }
  void PaintPicture(const Grafiek&, double, double, double, double) override { ADD_FAILURE() << "chart"; }
  void NewPage() override { naar_.Paginas.emplace_back(), x_ = 0, y_ = 0; }
  [[nodiscard]] int Page() const override { return static_cast<int>(naar_.Paginas.size()); }
  void EndDoc() override { naar_.Klaar = true; }
  void BewaarBlad(int) override { ADD_FAILURE() << "preview"; }
  void Cls() override { ADD_FAILURE() << "preview"; }

 private:
  Drukwerk& naar_;
  double x_ = 0, y_ = 0;
};

AfdrukKeuze Exemplaren(int aantal, std::deque<Drukwerk>& naar) {
  return {aantal, false,
          [&naar]() -> std::unique_ptr<Vlak> { return std::make_unique<Papier>(naar.emplace_back()); }};
}

Catalogi MetDempers(int aantal) {
  Catalogi catalogi = MetElementen({});
  for (int k = 1; k <= aantal; ++k) Voeg(catalogi.CatElementen, "nr " + std::to_string(k));
  return catalogi;
}

TEST(OverzichtPrinter, DrawsEveryPageOnceACopyInTheFixedFont) {
  const OverzichtUitslag o = Alles(MetDempers(30), CatalogusSoort::Kanaalelementen);
  std::deque<Drukwerk> documenten;
  Script script = Gebruiker();
  script.Afdrukken(Drukvraag, Exemplaren(2, documenten));
  Printer(o, script);
  ASSERT_EQ(documenten.size(), 2U);
  for (const Drukwerk& document : documenten) {
    EXPECT_EQ(document.Font, "Courier New");
    EXPECT_EQ(document.Punten, 7.2);
    EXPECT_TRUE(document.Klaar);
    EXPECT_EQ(document.Paginas, Uitvoer(o, CatalogusSoort::Kanaalelementen));
    EXPECT_EQ(document.Paginas.size(), 3U);
    // 185 characters of 0.6 x 7.2 points are 15984 of the sheet's 16838 twips: 427 remain on either side
    for (const auto& [x, y] : document.Plaatsen) {
      EXPECT_NEAR(x, 427, 0.01);
      EXPECT_GE(y, 567);
    }
  }
  EXPECT_EQ(script.KeerGewacht(), 1);
}

TEST(OverzichtPrinter, GoesByTheEndOfTheFilterAndPrintsNothingForAnother) {
  const struct {
    const char* filter;
    CatalogusSoort soort;
    std::size_t paginas;  // of 30 entries, by 14 or by 20
  } rijen[] = {{"x|*.elm", CatalogusSoort::Kanaalelementen, 3},
               {"x|*.fan", CatalogusSoort::Ventilatoren, 2},
               {"x|*.dct", CatalogusSoort::Luchtkanalen, 2},
               {"x|*.plf", CatalogusSoort::Plafonds, 2}};
  Catalogi catalogi;
  for (int k = 1; k <= 30; ++k) Voeg(catalogi.CatFans, "nr " + std::to_string(k));
  OverzichtUitslag o = Alles(catalogi, CatalogusSoort::Ventilatoren);
  for (const auto& rij : rijen) {
    o.OverzichtFilter = rij.filter;
    std::deque<Drukwerk> documenten;
    Script script = Gebruiker();
    script.Afdrukken(Drukvraag, Exemplaren(1, documenten));
    Printer(o, script);
    ASSERT_EQ(documenten.size(), 1U) << rij.filter;
    EXPECT_EQ(documenten[0].Paginas.size(), rij.paginas) << rij.filter;
    EXPECT_EQ(documenten[0].Paginas, Uitvoer(o, rij.soort)) << rij.filter;
  }
  for (const char* const filter : {"", "x|*.prx", "x|*.pln", "x|*.ELM"}) {
    o.OverzichtFilter = filter;
    std::deque<Drukwerk> documenten;
    Script script = Gebruiker();
    script.Afdrukken(Drukvraag, Exemplaren(1, documenten));
    Printer(o, script);
    EXPECT_TRUE(documenten.empty()) << filter;
  }
}

TEST(OverzichtPrinter, IsSilentWhenCancelledAndTellsAFailure) {
  const OverzichtUitslag o = Alles(MetDempers(1), CatalogusSoort::Kanaalelementen);
  Script script = Gebruiker();
  script.Afdrukken(Drukvraag, std::nullopt);
  Printer(o, script);
  const auto faalt = []() -> std::unique_ptr<Vlak> { throw Fout(FoutNummer::PadToegang); };
  script.Afdrukken(Drukvraag, AfdrukKeuze{1, false, faalt});
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure Printer van Form frmOverzicht.\nFout 75 - " +
                  std::string(Beschrijving(FoutNummer::PadToegang)) + "."});
  Printer(o, script);
}

// Sorting.

/// The rule as it is told: passes over neighbours, a swap through a list in which slot 7 is written twice.
void SorteerMetDeHand(ElementCatalogus& catalogus) {
  const auto sleutel = [](const CatElementRec& rec) { return InKleineLetters(rec.CatNaam.Heel()); };
  for (bool gewisseld = true; gewisseld;) {
    gewisseld = false;
    for (std::size_t i = 12; i + 1 <= static_cast<std::size_t>(catalogus.Aantal); ++i) {
      CatElementRec& een = catalogus.Records[i];
      CatElementRec& ander = catalogus.Records[i + 1];
      if (sleutel(een) <= sleutel(ander)) continue;
      std::array<double, 19> lijst{};
      for (std::size_t k = 0; k < 8; ++k) lijst[k] = een.CatDemp[k], lijst[k + 7] = een.CatRuis[k];
      const CatElementRec oud = een;
      een = ander;
      ander = oud;
      for (std::size_t k = 0; k < 8; ++k) ander.CatDemp[k] = lijst[k], ander.CatRuis[k] = lijst[k + 7];
      gewisseld = true;
    }
  }
}

void Nummer(CatElementRec& rec, double n) {
  for (std::size_t b = 0; b < 8; ++b) {
    rec.CatDemp[b] = n + static_cast<double>(b) / 10;
    rec.CatRuis[b] = 100 + n + static_cast<double>(b) / 10;
  }
  rec.PerMeter = static_cast<std::int16_t>(n);
  rec.CatExtra = "extra " + StandaardTekst(n, '.');
}

TEST(Sorteren, PutsNamesInOrderAndEqualOnesAsTheyStood) {
  SpectrumCatalogus catalogus;
  const char* namen[] = {"b", "A", "B", "a", "_", "Zz", "é", "z"};
  for (int i = 0; i < 8; ++i)
    Voeg(catalogus, NaarCp1252(namen[i])).SpecWaarde = {1.0 * i, 0, 0, 0, 0, 0, 0, 7.0 * i};
  Sorteren(catalogus);
  EXPECT_THAT(NamenVan(catalogus), ElementsAre("_", "A", "a", "b", "B", "z", "Zz", "é"_cp));
  const double was[] = {4, 1, 3, 0, 2, 7, 5, 6};
  for (std::size_t k = 1; k <= 8; ++k) {
    EXPECT_EQ(catalogus.Records[k].SpecWaarde[0], was[k - 1]);
    EXPECT_EQ(catalogus.Records[k].SpecWaarde[7], 7 * was[k - 1]);
  }
}

TEST(Sorteren, ComparesAllEightyCharacters) {
  SpectrumCatalogus catalogus;
  Voeg(catalogus, std::string(79, 'x') + "b");
  Voeg(catalogus, std::string(79, 'X') + "A");
  Voeg(catalogus, "  x");
  Sorteren(catalogus);
  EXPECT_THAT(NamenVan(catalogus), ElementsAre("x", std::string(79, 'X') + "A", std::string(79, 'x') + "b"));
}

TEST(Sorteren, TakesTheFirstSelfNoiseOfARecordThatMovesDown) {
  Catalogi catalogi = MetElementen({"c", "a", "b", "d"});
  for (std::size_t k = 12; k <= 15; ++k) Nummer(catalogi.CatElementen.Records[k], static_cast<double>(k));
  Sorteren(catalogi, CatalogusSoort::Kanaalelementen);
  const auto& records = catalogi.CatElementen.Records;
  EXPECT_EQ(records[12].CatNaam.Getrimd(), "a");
  EXPECT_EQ(records[12].CatRuis[0], 113);
  EXPECT_EQ(records[13].CatRuis[0], 114);
  EXPECT_EQ(records[14].CatNaam.Getrimd(), "c");
  EXPECT_EQ(records[14].CatRuis[0], 12.7);   // its CatDemp(7)
  EXPECT_EQ(records[14].CatRuis[7], 112.7);  // nothing is worked out anew
  EXPECT_EQ(records[14].PerMeter, 12);
  EXPECT_EQ(records[14].CatExtra.Getrimd(), "extra 12");
  EXPECT_EQ(records[15].CatRuis[0], 115);
}

TEST(Sorteren, ShowsZeroAsTheFirstSelfNoiseInTheNextOverview) {
  Catalogi catalogi = MetElementen({"b", "a"});
  catalogi.CatElementen.Records[12].CatRuis[0] = 33;
  Sorteren(catalogi, CatalogusSoort::Kanaalelementen);
  const std::string regel = Alles(catalogi, CatalogusSoort::Kanaalelementen).OverzichtRegels[1];
  EXPECT_EQ(regel.substr(5, 1), "b");
  EXPECT_EQ(regel.substr(regel.find("eigenruis") + 18, 8), "     0,0");
}

TEST(Sorteren, DoesWhatPassesOverNeighboursDo) {
  std::mt19937 bron(20261120);
  for (int ronde = 0; ronde < 200; ++ronde) {
    Catalogi catalogi = MetElementen({});
    const int aantal = static_cast<int>(bron() % 30);
    for (int k = 0; k < aantal; ++k) {
      CatElementRec& rec =
          Voeg(catalogi.CatElementen, std::string(1, static_cast<char>(0x40 + bron() % 0xC0)));
      Nummer(rec, k);
    }
    ElementCatalogus hand = catalogi.CatElementen;
    SorteerMetDeHand(hand);
    Sorteren(catalogi, CatalogusSoort::Kanaalelementen);
    EXPECT_EQ(CatalogusBytes(catalogi.CatElementen), CatalogusBytes(hand)) << "round " << ronde;
    Sorteren(catalogi, CatalogusSoort::Kanaalelementen);
    EXPECT_EQ(CatalogusBytes(catalogi.CatElementen), CatalogusBytes(hand)) << "again, round " << ronde;
  }
}

TEST(Sorteren, LeavesAnOrderedCatalogueAndTheBuiltInRecordsAlone) {
  Catalogi geordend = MetElementen({"a", "B", "b", "c"});
  for (std::size_t k = 12; k <= 15; ++k) Nummer(geordend.CatElementen.Records[k], static_cast<double>(k));
  const std::string was = CatalogusBytes(geordend.CatElementen);
  Sorteren(geordend, CatalogusSoort::Kanaalelementen);
  EXPECT_EQ(CatalogusBytes(geordend.CatElementen), was);

  Catalogi omgekeerd = MetElementen({"b", "a"});  // the built-in names stand the wrong way round
  const std::vector<std::string> namen = NamenVan(omgekeerd.CatElementen);
  Sorteren(omgekeerd, CatalogusSoort::Kanaalelementen);
  const std::vector<std::string> nu = NamenVan(omgekeerd.CatElementen);
  EXPECT_TRUE(std::equal(namen.begin(), namen.begin() + 11, nu.begin()));
  EXPECT_EQ(nu[11], "a");
}

TEST(Sorteren, DoesNothingWithoutRecords) {
  for (const int aantal : {11, 10, 1, 0, -1, -32768}) {
    Catalogi catalogi = MetElementen({});
    catalogi.CatElementen.Aantal = static_cast<std::int16_t>(aantal);
    catalogi.CatFans.Aantal = static_cast<std::int16_t>(std::min(aantal, 0));
    const std::string was = CatalogusBytes(catalogi.CatElementen);
    Sorteren(catalogi, CatalogusSoort::Kanaalelementen);
    Sorteren(catalogi, CatalogusSoort::Ventilatoren);
    EXPECT_EQ(CatalogusBytes(catalogi.CatElementen), was);
  }
}

TEST(Sorteren, SortsTheCatalogueThatItIsGiven) {
  for (const CatalogusSoort soort : Soorten) {
    Catalogi catalogi = MetElementen({});
    for (const CatalogusSoort alle : Soorten)
      MetCatalogus(catalogi, alle, [](auto& catalogus) { Voeg(catalogus, "b"), Voeg(catalogus, "a"); });
    Sorteren(catalogi, soort);
    for (const CatalogusSoort alle : Soorten)
      EXPECT_EQ(MetCatalogus(catalogi, alle, [](auto& catalogus) { return NamenVan(catalogus).back(); }),
                alle == soort ? "b" : "a");
  }
}

}  // namespace
}  // namespace murvane
