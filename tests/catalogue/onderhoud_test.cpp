#include "catalogue/onderhoud.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <csignal>
#include <functional>

#include "basis/fout.h"
#include "basis/tekst.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/ingreep.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

using proef::Aanroep;
using proef::Ingreep;
using proef::Lees;
using proef::NummerVan;
using proef::Schijfgrens;
using proef::Schrijf;
using proef::Script;
using proef::TijdelijkeMap;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array<CatalogusSoort, 4> Soorten = {CatalogusSoort::Kanaalelementen,
                                                   CatalogusSoort::Ventilatoren, CatalogusSoort::Luchtkanalen,
                                                   CatalogusSoort::Plafonds};

std::string I16(int n) {
  return {static_cast<char>(n & 0xFF), static_cast<char>(n >> 8 & 0xFF)};
}

Melding Waarschuwing(std::string_view tekst) {
  return {MeldingSoort::Uitroep, "Waarschuwing", std::string(tekst)};
}

/// One window over catalogues of its own, with a user who answers by script.
class Venster {
 public:
  template <typename Stap>
  auto Met(Stap stap) {
    return MetCatalogus(catalogi, soort, stap);
  }

  explicit Venster(CatalogusSoort welke, std::initializer_list<std::string_view> namen = {})
      : soort(welke), o(Form_Load(welke)) {
    catalogi.CatElementen.Aantal = IngebouwdeElementen;
    for (const std::string_view naam : namen) {
      const int k = ZetAantal(Aantal() + 1);
      Met([&](auto& catalogus) { NaamVan(catalogus.Records[static_cast<std::size_t>(k)]) = naam; });
      ZetWaarden(k, 10.0 * k);
    }
  }

  int Aantal() {
    return Met([](auto& catalogus) -> int { return catalogus.Aantal; });
  }
  int ZetAantal(int aantal) {
    Met([aantal](auto& catalogus) { catalogus.Aantal = static_cast<std::int16_t>(aantal); });
    return aantal;
  }
  std::string Naam(int k) {
    return Met([k](auto& catalogus) {
      return std::string(NaamVan(catalogus.Records[static_cast<std::size_t>(k)]).Getrimd());
    });
  }
  Spectrum Waarden(int k) {
    return Met([k](auto& catalogus) { return WaardenVan(catalogus.Records[static_cast<std::size_t>(k)]); });
  }
  /// Band b of record k becomes begin + b, slot 7 included.
  void ZetWaarden(int k, double begin) {
    Met([&](auto& catalogus) {
      for (std::size_t b = 0; b < 8; ++b)
        WaardenVan(catalogus.Records[static_cast<std::size_t>(k)])[b] = begin + static_cast<double>(b);
    });
  }
  std::vector<std::string> Rijen() {
    std::vector<std::string> uit;
    for (const std::string& rij : OnderhoudRijen(catalogi, soort)) uit.emplace_back(Trim(rij));
    return uit;
  }
  [[nodiscard]] std::vector<std::string> Demp() const {
    std::vector<std::string> uit;
    for (const OnderhoudVak& vak : o.Velden.txtdemp) uit.push_back(vak.Tekst);
    return uit;
  }
  [[nodiscard]] std::vector<std::string> Ruis() const {
    std::vector<std::string> uit;
    for (const OnderhoudVak& vak : o.Velden.txtruis) uit.push_back(vak.Tekst);
    return uit;
  }

  OnderhoudUitkomst Klik(int rij) { return lstSpectrum_Click(o, catalogi, rij, ','); }
  OnderhoudUitkomst Toevoegen() { return cmdToevoegen_Click(o, catalogi, ','); }
  OnderhoudUitkomst Wijzig() { return cmdwijzig_Click(o, catalogi); }
  OnderhoudUitkomst OK() { return cmdOK_Click(o, catalogi, script, ','); }
  OnderhoudUitkomst Cancel() { return cmdCancel_Click(o, catalogi, ','); }
  OnderhoudUitkomst Wissen() { return cmdWissen_Click(o, catalogi, script, ','); }
  [[nodiscard]] const OnderhoudVerschil& Verschil() const { return OnderhoudVan(soort); }
  [[nodiscard]] int Eerste() const { return EersteRecord(soort); }

  CatalogusSoort soort;
  Catalogi catalogi;
  Onderhoud o;
  Script script{[](const std::string& fout) { ADD_FAILURE() << fout; }};
};

class ElkVenster : public testing::TestWithParam<CatalogusSoort> {};
INSTANTIATE_TEST_SUITE_P(Onderhoud, ElkVenster, testing::ValuesIn(Soorten),
                         [](const auto& geval) { return std::string(OnderhoudVan(geval.param).Venster); });

const std::vector<std::string> Blank(7, "");
const std::vector<std::string> Nullen(7, "0,0");

// The table of differences.

TEST(OnderhoudTabel, HasEveryRowOfEveryWindow) {
  struct Rij {
    const char* wat;
    std::string_view OnderhoudVerschil::*veld;
    std::array<const char*, 4> teksten;
  };
  const Rij rijen[] = {
      {"window", &OnderhoudVerschil::Venster, {"frmElementen", "frmFan", "frmDuct", "frmPlafond"}},
      {"file", &OnderhoudVerschil::Bestand, {"Duct.dat", "Fan.dat", "Rduct.dat", "Rplaf.dat"}},
      {"title", &OnderhoudVerschil::Titel, {"Kanaalelementen", "Ventilatoren", "Luchtkanalen", "Plafonds"}},
      {"row label", &OnderhoudVerschil::Rijlabel, {"Demping in dB", "Lw in dB", "R in dB", "R in dB"}},
      {"second row", &OnderhoudVerschil::RuisLabel, {"Eigenruis in dB", "", "", ""}},
      {"empty name",
       &OnderhoudVerschil::LegeNaam,
       {"Geen elementnaam ingevuld", "Geen ventilatornaam ingevuld", "Geen omschrijving luchtkanaal ingevuld",
        "Geen omschrijving plafond ingevuld"}},
      {"limit",
       &OnderhoudVerschil::Limiet,
       {"Maximaal aantal elementen bereikt (= 500)", "Maximaal aantal ventilatoren bereikt (= 500)",
        "Maximaal aantal luchtkanalen bereikt (= 500)", "Maximaal aantal plafonds bereikt (= 500)"}},
      {"adding",
       &OnderhoudVerschil::Toevoegen,
       {"Kanaalelementen toevoegen", "Ventilatoren toevoegen", "Luchtkanalen toevoegen",
        "Plafonds toevoegen"}},
      {"changing",
       &OnderhoudVerschil::Wijzigen,
       {"Kanaalelementen wijzigen", "Ventilatoren wijzigen", "Luchtkanalen wijzigen", "Plafonds wijzigen"}},
      {"panel 2",
       &OnderhoudVerschil::InLijst,
       {" elementen in lijst", " ventilatoren in lijst", " luchtkanalen in lijst", " plafonds in lijst"}},
      {"empty list",
       &OnderhoudVerschil::LegeLijst,
       {"Geen elementen aanwezig", "Geen ventilatoren aanwezig", "Geen luchtkanalen aanwezig",
        "Geen plafonds aanwezig"}},
      {"change nothing",
       &OnderhoudVerschil::WijzigLeeg,
       {"Geen element geselecteerd", "Geen ventilator geselecteerd", "Geen luchtkanaal geselecteerd",
        "Geen plafond geselecteerd"}},
      {"delete nothing",
       &OnderhoudVerschil::WissenLeeg,
       {"Geen element geselecteerd", "Geen ventilator geselecteerd", "Geen luchtkanalen geselecteerd",
        "Geen plafonds geselecteerd"}},
      {"delete title",
       &OnderhoudVerschil::WisTitel,
       {"Wissen van kanaalelementen", "Wissen van ventilatoren", "Wissen van luchtkanalen",
        "Wissen van plafonds"}},
      {"delete question",
       &OnderhoudVerschil::WisVraag,
       {"Element '", "Ventilator '", "Luchtkanaal '", "Luchtkanaal '"}},
      {"protected",
       &OnderhoudVerschil::Beschermd,
       {"", "", "<geen kanaalwand geselecteerd>", "<geen plafond geselecteerd>"}},
      {"change protected",
       &OnderhoudVerschil::WijzigBeschermd,
       {"", "", "Geen luchtkanalen geselecteerd", "Geen plafond geselecteerd"}},
      {"delete protected",
       &OnderhoudVerschil::WissenBeschermd,
       {"", "", "Geen luchtkanalen geselecteerd", "Geen plafonds geselecteerd"}},
      {"all",
       &OnderhoudVerschil::AlleOpschrift,
       {"&Alle elementen", "&Alle elementen", "&Alle luchtkanalen", "&Alle plafonds"}},
      {"sort",
       &OnderhoudVerschil::SorteerOpschrift,
       {"&Sorteren op Naam", "&Sorteren op Naam", "&Sorteren op Omschrijving", "&Sorteren op Omschrijving"}},
  };
  const std::array<Slot7, 4> slots = {Slot7::SomVanRuis, Slot7::SomVanWaarden, Slot7::Blijft, Slot7::Blijft};
  const std::array<Ververs, 4> vult = {Ververs::lstTotaal, Ververs::lstFan, Ververs::Niets, Ververs::Niets};
  for (std::size_t i = 0; i < Soorten.size(); ++i) {
    const OnderhoudVerschil& v = OnderhoudVan(Soorten[i]);
    EXPECT_EQ(v.Soort, Soorten[i]);
    for (const Rij& rij : rijen) EXPECT_EQ(v.*rij.veld, rij.teksten[i]) << rij.wat;
    EXPECT_EQ(v.Slot7, slots[i]);
    EXPECT_EQ(v.Vult, vult[i]);
  }
}

TEST(OnderhoudTabel, HasTheMenusOfEveryWindow) {
  const OnderhoudMenu zoek{"", "mnuZoek", "Overzicht", true};
  const OnderhoudMenu opNaam{"mnuZoek", "mnuZoekNaam", "Overzicht op &Naam"};
  const OnderhoudMenu sort{"", "mnuSort", "Sorteren", true};
  const OnderhoudMenu tools{"", "mnuTools", "Tools", true};
  EXPECT_THAT(
      OnderhoudMenus(CatalogusSoort::Kanaalelementen),
      ElementsAre(zoek, opNaam, OnderhoudMenu{"mnuZoek", "mnuZoekAlles", "&Alle elementen"}, sort,
                  OnderhoudMenu{"mnuSort", "mnuSortNaam", "&Sorteren op Naam"}, tools,
                  OnderhoudMenu{"mnuTools", "mnuBerDemp", "Indicatieve berekening geluiddemping", true},
                  OnderhoudMenu{"mnuBerDemp", "mnuKanBekleed", "&Beklede luchtkanalen", false, "frmCalc1"},
                  OnderhoudMenu{"mnuBerDemp", "mnuPlenum", "&Plenumdemper", false, "frmCalc3"},
                  OnderhoudMenu{"mnuBerDemp", "mnuKwartLambda", "&Kwartlambda-demper", false, "frmCalc2"}));
  EXPECT_THAT(OnderhoudMenus(CatalogusSoort::Ventilatoren),
              ElementsAre(zoek, opNaam, OnderhoudMenu{"mnuZoek", "mnuZoekAlles", "&Alle elementen"}, sort,
                          OnderhoudMenu{"mnuSort", "mnuSortNaam", "&Sorteren op Naam"}));
  EXPECT_THAT(OnderhoudMenus(CatalogusSoort::Luchtkanalen),
              ElementsAre(zoek, opNaam, OnderhoudMenu{"mnuZoek", "mnuZoekAlles", "&Alle luchtkanalen"}, sort,
                          OnderhoudMenu{"mnuSort", "mnuSortNaam", "&Sorteren op Omschrijving"}, tools,
                          OnderhoudMenu{"mnuTools", "mnuKwand", "&Indicatieve berekening geluidsisolatie",
                                        false, "frmDuctCalc", true}));
  EXPECT_THAT(OnderhoudMenus(CatalogusSoort::Plafonds),
              ElementsAre(zoek, opNaam, OnderhoudMenu{"mnuZoek", "mnuZoekAlles", "&Alle plafonds"}, sort,
                          OnderhoudMenu{"mnuSort", "mnuSortNaam", "&Sorteren op Omschrijving"}));
}

TEST(OnderhoudTabel, TellsWhatIsShownAndEnabledInBothModes) {
  for (const char* naam : {"cmdOK", "cmdCancel"}) {
    EXPECT_FALSE(OnderhoudZichtbaar(naam, false)) << naam;
    EXPECT_TRUE(OnderhoudZichtbaar(naam, true) && OnderhoudAan(naam, true)) << naam;
  }
  for (const char* naam : {"cmdToevoegen", "cmdwijzig", "cmdWissen", "lstSpectrum", "mnuZoek", "mnuSort"}) {
    EXPECT_TRUE(OnderhoudZichtbaar(naam, false) && OnderhoudZichtbaar(naam, true)) << naam;
    EXPECT_TRUE(OnderhoudAan(naam, false)) << naam;
    EXPECT_FALSE(OnderhoudAan(naam, true)) << naam;
  }
  for (const char* naam : {"mnuTools", "txtSpectrum", "txtdemp", "txtruis"}) {
    EXPECT_TRUE(OnderhoudZichtbaar(naam, false) && OnderhoudZichtbaar(naam, true)) << naam;
    EXPECT_FALSE(OnderhoudAan(naam, false)) << naam;
    EXPECT_TRUE(OnderhoudAan(naam, true)) << naam;
  }
  EXPECT_TRUE(OnderhoudAan("cmdSluiten", false) && OnderhoudAan("cmdSluiten", true));
  EXPECT_EQ(NummerVan([] { return OnderhoudAan("cmdHelp", true); }), 5);
}

// Fields.

TEST(OnderhoudVeld, EnterStaysInTheRowAndTheNameGoesToTheFirstBand) {
  for (const char* rij : {"txtdemp", "txtruis"}) {
    for (int b = 0; b < 6; ++b) EXPECT_EQ(OnderhoudVolgend({rij, b}), (VeldId{rij, b + 1}));
    EXPECT_EQ(OnderhoudVolgend({rij, 6}), (VeldId{rij, 0}));
  }
  EXPECT_EQ(OnderhoudVolgend({"txtSpectrum"}), (VeldId{"txtdemp", 0}));
}

TEST(OnderhoudVeld, EscapeGivesZeroInEveryBandAndNoName) {
  for (const char* rij : {"txtdemp", "txtruis"}) {
    for (int b = 0; b < Banden; ++b) EXPECT_EQ(OnderhoudEscape({rij, b}), "0") << rij << b;
  }
  EXPECT_EQ(OnderhoudEscape({"txtSpectrum"}), "");
}

TEST(OnderhoudVeld, TakesDigitsAndBothDecimalSigns) {
  for (const char* rij : {"txtdemp", "txtruis"}) {
    for (const char32_t teken : U"1234567890.,") {
      if (teken == 0) continue;
      EXPECT_TRUE(MagToets(OnderhoudRegel(rij), teken).Toegestaan);
    }
    for (const char32_t teken : {U'-', U'a', U'e', U' ', U'+'})
      EXPECT_EQ(MagToets(OnderhoudRegel(rij), teken).Achtergrond, FoutKleur);
    for (const char32_t teken : {char32_t{8}, char32_t{27}})
      EXPECT_TRUE(MagToets(OnderhoudRegel(rij), teken).Toegestaan);
  }
  EXPECT_TRUE(MagToets(OnderhoudRegel("txtSpectrum"), U'é').Toegestaan);
  EXPECT_EQ(NummerVan([] { return OnderhoudRegel("txtLw").Boven; }), 5);
}

TEST(OnderhoudVeld, IsCheckedWhenItIsLeft) {
  const struct {
    const char *in, *uit;
  } rijen[] = {{"", "0,0"},      {" 1.25 ", "1,3"}, {"1,25", "1,3"},     {"150", "150,0"},
               {"151", "150,0"}, {"-1", "0,0"},     {"149.96", "150,0"}, {"1e2", "100,0"}};
  for (const auto& rij : rijen)
    EXPECT_EQ(OnderhoudVerlaat({"txtdemp", 0}, rij.in, ','), (OnderhoudVak{rij.uit, VeldKleur, ""}))
        << rij.in;
  for (const char* in : {"x", "1,2,3", "1..2", "1e999"})
    EXPECT_EQ(OnderhoudVerlaat({"txtruis", 6}, in, ','),
              (OnderhoudVak{in, FoutKleur, "Voer geldig getal in"}));
}

// List view.

TEST_P(ElkVenster, OpensOnTheListWithNothingSelected) {
  Venster v(GetParam(), {"een", "twee"});
  EXPECT_EQ(v.o.Mode, Modus::Geen);
  EXPECT_FALSE(v.o.Invoer);
  EXPECT_EQ(v.o.Gekozen, -1);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "");
  EXPECT_EQ(v.Demp(), Blank);
  EXPECT_EQ(v.Ruis(), Blank);
  EXPECT_EQ(OnderhoudPaneel1(v.o), "Lijstweergave");
  EXPECT_EQ(OnderhoudPaneel2(v.catalogi, v.soort), "2" + std::string(v.Verschil().InLijst));
  EXPECT_EQ(OnderhoudRijen(v.catalogi, v.soort)[0], "een" + std::string(77, ' '));
  EXPECT_EQ(OnderhoudRijen(v.catalogi, v.soort).size(), 2U);
}

TEST_P(ElkVenster, ShowsTheRecordOfARow) {
  Venster v(GetParam(), {"een", " twee ", "drie"});
  EXPECT_EQ(v.Klik(1), OnderhoudUitkomst{});
  EXPECT_EQ(v.o.Rij, v.Eerste() + 1);
  EXPECT_EQ(v.o.Gekozen, 1);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "twee");
  v.ZetWaarden(v.Eerste() + 2, 3.25);
  v.Klik(2);
  EXPECT_THAT(v.Demp(), ElementsAre("3,3", "4,3", "5,3", "6,3", "7,3", "8,3", "9,3"));
  EXPECT_EQ(v.Ruis(), v.Verschil().RuisLabel.empty() ? Blank : Nullen);
  EXPECT_EQ(NummerVan([&v] { return v.Klik(3).Focus; }), 9);
}

TEST_P(ElkVenster, WarnsAtAClickWithoutARow) {
  Venster v(GetParam());
  EXPECT_EQ(v.Klik(-1).Box, Waarschuwing(v.Verschil().LegeLijst));
  EXPECT_EQ(v.o.Rij, 0);
}

TEST(Onderhoud, OfAShortElementFileShowsAnEmptyList) {
  Venster v(CatalogusSoort::Kanaalelementen);
  for (const int aantal : {11, 10, 1, 0, -1, -32768}) {
    v.ZetAantal(aantal);
    EXPECT_THAT(v.Rijen(), IsEmpty());
    EXPECT_EQ(OnderhoudPaneel2(v.catalogi, v.soort), "0 elementen in lijst");
    v.ZetAantal(aantal);
    v.Toevoegen();
    v.o.Velden.txtSpectrum.Tekst = "eigen";
    v.OK();
    EXPECT_EQ(v.Aantal(), 12) << aantal;  // never a built-in one's place
    EXPECT_THAT(v.Rijen(), ElementsAre("eigen"));
  }
}

TEST(Onderhoud, OfANegativeCountAddsTheFirstRecord) {
  Venster v(CatalogusSoort::Plafonds);
  v.ZetAantal(-3);
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "eerste";
  v.OK();
  EXPECT_EQ(v.Aantal(), 1);
  EXPECT_THAT(v.Rijen(), ElementsAre("eerste"));
}

// Adding.

TEST_P(ElkVenster, AddsAtTheEndAndSelectsIt) {
  Venster v(GetParam(), {"een"});
  v.Klik(0);
  EXPECT_EQ(v.Toevoegen(), (OnderhoudUitkomst{VeldId{"txtSpectrum"}, {}}));
  EXPECT_EQ(v.o.Mode, Modus::add);
  EXPECT_TRUE(v.o.Invoer);
  EXPECT_EQ(OnderhoudPaneel1(v.o), v.Verschil().Toevoegen);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "");
  EXPECT_EQ(v.Demp(), Nullen);
  EXPECT_EQ(v.Ruis(), v.Verschil().RuisLabel.empty() ? Blank : Nullen);

  v.o.Velden.txtSpectrum.Tekst = "nieuw é"_cp;
  for (std::size_t b = 0; b < 7; ++b) v.o.Velden.txtdemp[b].Tekst = std::to_string(b) + ".25";
  EXPECT_EQ(v.OK(), (OnderhoudUitkomst{VeldId{"lstSpectrum"}, {}, true}));
  EXPECT_EQ(v.o.Mode, Modus::add);  // it keeps its value
  EXPECT_FALSE(v.o.Invoer);
  EXPECT_EQ(OnderhoudPaneel1(v.o), "Lijstweergave");
  EXPECT_EQ(OnderhoudPaneel2(v.catalogi, v.soort), "2" + std::string(v.Verschil().InLijst));
  EXPECT_THAT(v.Rijen(), ElementsAre("een", "nieuw é"_cp));
  EXPECT_EQ(v.o.Rij, v.Eerste() + 1);
  EXPECT_EQ(v.o.Gekozen, 1);
  EXPECT_THAT(v.Demp(), ElementsAre("0,3", "1,3", "2,3", "3,3", "4,3", "5,3", "6,3"));
  EXPECT_EQ(v.Waarden(v.Eerste() + 1)[3], 3.3);  // what the field shows is what is stored
}

TEST_P(ElkVenster, RefusesToAddAtFiveHundredButChangesAndDeletes) {
  Venster v(GetParam(), {"een"});
  v.ZetAantal(500);
  EXPECT_EQ(v.Toevoegen().Box,
            (Melding{MeldingSoort::Uitroep, "Invoer-stop", std::string(v.Verschil().Limiet)}));
  EXPECT_FALSE(v.o.Invoer);
  EXPECT_EQ(v.o.Mode, Modus::Geen);
  v.Klik(0);
  v.Wijzig();
  v.o.Velden.txtSpectrum.Tekst = "anders";
  v.OK();
  EXPECT_EQ(v.Naam(v.Eerste()), "anders");
  v.script.Box({MeldingSoort::Vraag, std::string(v.Verschil().WisTitel),
                std::string(v.Verschil().WisVraag) + "anders' wissen?", Knoppen::OkCancel});
  v.Wissen();
  EXPECT_EQ(v.Aantal(), 499);
  EXPECT_FALSE(v.Toevoegen().Box.has_value());
  v.o.Velden.txtSpectrum.Tekst = "de laatste";
  v.OK();
  EXPECT_EQ(v.Naam(500), "de laatste");
}

TEST_P(ElkVenster, StoresAnEntryWithoutANameAsNaamloosAfterAWarning) {
  Venster v(GetParam());
  v.Toevoegen();
  v.script.Box(Waarschuwing(v.Verschil().LegeNaam));
  v.OK();
  EXPECT_THAT(v.Rijen(), ElementsAre("<naamloos>"));
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "<naamloos>");
}

TEST(Onderhoud, TakesANameOfBlanksAndCutsALongOne) {
  Venster v(CatalogusSoort::Plafonds);
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "  ";
  v.OK();
  EXPECT_EQ(v.catalogi.CatRplaf.Records[1].SpecNaam.Heel(), std::string(80, ' '));
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = std::string(81, 'n');
  v.OK();
  EXPECT_EQ(v.Naam(2), std::string(80, 'n'));
}

TEST_P(ElkVenster, KeepsWhatTheSlotHeldWhereNothingWrites) {
  Venster v(GetParam(), {"een"});
  const int k = v.Eerste() + 1;
  v.ZetWaarden(k, 0);
  v.catalogi.CatElementen.Records[13].CatExtra = "oud";
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "x";
  v.OK();
  const double slot = v.Waarden(k)[7];
  EXPECT_EQ(slot, v.soort == CatalogusSoort::Ventilatoren ? 0 : 7);
  EXPECT_EQ(v.catalogi.CatElementen.Records[13].CatExtra.Getrimd(), "oud");
}

TEST(Onderhoud, AcceptsAFanWithTheSumOfItsBands) {
  // 80 dB at 63 Hz only: 80 - 26.2 = 53.8 dB(A)
  Venster v(CatalogusSoort::Ventilatoren);
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "x";
  v.o.Velden.txtdemp[0].Tekst = "80";
  v.OK();
  EXPECT_NEAR(v.Waarden(1)[7], 53.8, 1e-12);
}

TEST(Onderhoud, AcceptsAnElementWithTheSumOfItsSelfNoise) {
  Venster v(CatalogusSoort::Kanaalelementen);
  v.catalogi.CatElementen.Records[12].PerMeter = 1;
  v.catalogi.CatElementen.Records[12].CatDemp[7] = 9;
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "x";
  v.o.Velden.txtdemp[6].Tekst = "5";
  v.o.Velden.txtruis[0].Tekst = "80";
  v.OK();
  const CatElementRec& rec = v.catalogi.CatElementen.Records[12];
  EXPECT_NEAR(rec.CatRuis[7], 53.8, 1e-12);
  EXPECT_EQ(rec.CatRuis[0], 80);
  EXPECT_EQ(rec.CatDemp[6], 5);
  EXPECT_EQ(rec.CatDemp[7], 9);
  EXPECT_EQ(rec.PerMeter, 0);
}

// Changing.

TEST_P(ElkVenster, ChangesTheSelectedRecord) {
  Venster v(GetParam(), {"een", "twee"});
  v.Klik(1);
  v.o.Velden.txtSpectrum.Tekst = "twee  ";
  EXPECT_EQ(v.Wijzig(), (OnderhoudUitkomst{VeldId{"txtSpectrum"}, {}}));
  EXPECT_EQ(v.o.Mode, Modus::edit);
  EXPECT_TRUE(v.o.Invoer);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "twee");
  EXPECT_EQ(OnderhoudPaneel1(v.o), v.Verschil().Wijzigen);
  v.o.Velden.txtSpectrum.Tekst = "twee!";
  v.o.Velden.txtdemp[2].Tekst = "151";
  const double slot = v.Waarden(v.Eerste() + 1)[7];
  v.OK();
  EXPECT_EQ(v.o.Mode, Modus::edit);
  EXPECT_EQ(v.o.Rij, v.Eerste() + 1);
  EXPECT_THAT(v.Rijen(), ElementsAre("een", "twee!"));
  EXPECT_EQ(v.Waarden(v.Eerste() + 1)[2], 150);
  EXPECT_EQ(v.o.Velden.txtdemp[2].Tekst, "150,0");
  EXPECT_EQ(v.Waarden(v.Eerste() + 1)[7] == slot, v.soort != CatalogusSoort::Ventilatoren);
  EXPECT_EQ(v.Aantal(), v.Eerste() + 1);
}

TEST(Onderhoud, AnEditedElementLosesItsPerMeter) {
  Venster v(CatalogusSoort::Kanaalelementen, {"slang"});
  v.catalogi.CatElementen.Records[12].PerMeter = 1;
  v.Klik(0);
  v.Wijzig();
  v.OK();
  EXPECT_EQ(v.catalogi.CatElementen.Records[12].PerMeter, 0);
}

TEST_P(ElkVenster, WarnsWhenNothingIsSelected) {
  Venster v(GetParam(), {"een"});
  EXPECT_EQ(v.Wijzig().Box, Waarschuwing(v.Verschil().WijzigLeeg));
  EXPECT_EQ(v.Wissen().Box, Waarschuwing(v.Verschil().WissenLeeg));
  EXPECT_FALSE(v.o.Invoer);
  EXPECT_EQ(v.o.Mode, Modus::Geen);
}

TEST(Onderhoud, RefusesTheProtectedRecordByItsExactName) {
  const struct {
    CatalogusSoort soort;
    const char *naam, *wijzig, *wissen;
  } rijen[] = {{CatalogusSoort::Luchtkanalen, "<geen kanaalwand geselecteerd>",
                "Geen luchtkanalen geselecteerd", "Geen luchtkanalen geselecteerd"},
               {CatalogusSoort::Plafonds, "<geen plafond geselecteerd>", "Geen plafond geselecteerd",
                "Geen plafonds geselecteerd"}};
  for (const auto& rij : rijen) {
    const std::string naam = rij.naam;
    Venster v(rij.soort, {naam, " " + naam, "<Geen" + naam.substr(5)});
    v.Klik(0);
    EXPECT_EQ(v.Wijzig().Box, Waarschuwing(rij.wijzig));
    EXPECT_EQ(v.Wissen().Box, Waarschuwing(rij.wissen));
    EXPECT_FALSE(v.o.Invoer);
    EXPECT_EQ(v.Aantal(), 3);
    for (const int ander : {1, 2}) {
      v.Klik(ander);
      EXPECT_FALSE(v.Wijzig().Box.has_value());
      v.Cancel();
    }
  }
}

TEST(Onderhoud, ProtectsNothingInTheOtherWindows) {
  for (const CatalogusSoort soort : {CatalogusSoort::Kanaalelementen, CatalogusSoort::Ventilatoren}) {
    Venster v(soort, {"<geen kanaalwand geselecteerd>", "<geen plafond geselecteerd>", ""});
    for (const int rij : {0, 1, 2}) {
      v.Klik(rij);
      EXPECT_FALSE(v.Wijzig().Box.has_value());
      v.Cancel();
    }
  }
}

// OK with a red field.

TEST_P(ElkVenster, DoesNothingWhileAFieldIsRed) {
  Venster v(GetParam(), {"een"});
  for (const bool wijzig : {false, true}) {
    v.Klik(0);
    wijzig ? v.Wijzig() : v.Toevoegen();
    v.o.Velden.txtSpectrum.Tekst = "";  // its warning does not come either
    v.o.Velden.txtdemp[2].Tekst = "1,2,3";
    v.o.Velden.txtdemp[4].Tekst = "x";
    EXPECT_EQ(v.OK(), (OnderhoudUitkomst{VeldId{"txtdemp", 2}, {}}));
    EXPECT_TRUE(v.o.Invoer);
    EXPECT_EQ(v.Aantal(), v.Eerste());
    EXPECT_EQ(v.Naam(v.Eerste()), "een");
    EXPECT_EQ(v.o.Velden.txtdemp[2], (OnderhoudVak{"1,2,3", FoutKleur, "Voer geldig getal in"}));
    EXPECT_EQ(v.o.Velden.txtdemp[4].Achtergrond, FoutKleur);
    v.Cancel();
    EXPECT_EQ(v.o.Velden.txtdemp[2].Achtergrond, VeldKleur);
  }
}

TEST(Onderhoud, DoesNothingWhileASelfNoiseIsRed) {
  Venster v(CatalogusSoort::Kanaalelementen);
  v.Toevoegen();
  v.o.Velden.txtruis[6].Tekst = "1e999";
  EXPECT_EQ(v.OK().Focus, (VeldId{"txtruis", 6}));
  EXPECT_EQ(v.Aantal(), 11);
}

// Cancelling.

TEST_P(ElkVenster, CancelShowsTheStoredRecordAgain) {
  Venster v(GetParam(), {"een"});
  v.Klik(0);
  const std::vector<std::string> was = v.Demp();
  for (const bool wijzig : {false, true}) {
    wijzig ? v.Wijzig() : v.Toevoegen();
    v.o.Velden.txtSpectrum.Tekst = "anders";
    v.o.Velden.txtdemp[0].Tekst = "99";
    EXPECT_EQ(v.Cancel(), (OnderhoudUitkomst{VeldId{"lstSpectrum"}, {}}));
    EXPECT_FALSE(v.o.Invoer);
    EXPECT_EQ(OnderhoudPaneel1(v.o), "Lijstweergave");
    EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "een");
    EXPECT_EQ(v.Demp(), was);
    EXPECT_EQ(v.Aantal(), v.Eerste());
  }
}

TEST_P(ElkVenster, CancelBlanksTheFieldsWhenNothingIsSelected) {
  Venster v(GetParam(), {"een"});
  v.Toevoegen();
  v.Cancel();
  EXPECT_EQ(v.Demp(), Blank);
  EXPECT_EQ(v.Ruis(), Blank);
  EXPECT_EQ(v.o.Gekozen, -1);
}

// Deleting.

TEST_P(ElkVenster, DeletesAfterTheQuestionAndMovesTheRestUp) {
  Venster v(GetParam(), {"een", "twee", "drie"});
  const int e = v.Eerste();
  v.Klik(1);
  const Melding vraag{MeldingSoort::Vraag, std::string(v.Verschil().WisTitel),
                      std::string(v.Verschil().WisVraag) + "twee' wissen?", Knoppen::OkCancel};
  v.script.Box(vraag, Antwoord::Cancel);
  EXPECT_EQ(v.Wissen(), OnderhoudUitkomst{});
  EXPECT_EQ(v.Aantal(), e + 2);
  v.script.Box(vraag);
  EXPECT_EQ(v.Wissen(), (OnderhoudUitkomst{{}, {}, true}));
  EXPECT_THAT(v.Rijen(), ElementsAre("een", "drie"));
  EXPECT_EQ(v.Waarden(e + 1), v.Waarden(e + 2));  // the slot behind the end keeps its content
  EXPECT_EQ(v.o.Rij, e + 1);
  EXPECT_EQ(v.o.Gekozen, 1);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "drie");
  EXPECT_EQ(OnderhoudPaneel2(v.catalogi, v.soort), "2" + std::string(v.Verschil().InLijst));
  EXPECT_EQ(v.script.KeerGewacht(), 1);
}

TEST_P(ElkVenster, SelectsTheOneBeforeTheLast) {
  Venster v(GetParam(), {"een", "twee"});
  v.Klik(1);
  v.script.Box({MeldingSoort::Vraag, std::string(v.Verschil().WisTitel),
                std::string(v.Verschil().WisVraag) + "twee' wissen?", Knoppen::OkCancel});
  v.Wissen();
  EXPECT_EQ(v.o.Rij, v.Eerste());
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "een");
}

TEST_P(ElkVenster, WarnsOfAnEmptyListWhenTheOnlyRecordIsDeleted) {
  Venster v(GetParam(), {"een"});
  v.Klik(0);
  v.script.Box({MeldingSoort::Vraag, std::string(v.Verschil().WisTitel),
                std::string(v.Verschil().WisVraag) + "een' wissen?", Knoppen::OkCancel});
  EXPECT_EQ(v.Wissen().Box, Waarschuwing(v.Verschil().LegeLijst));
  EXPECT_EQ(v.o.Rij, v.Eerste() - 1);  // 11 in frmElementen
  EXPECT_EQ(v.o.Gekozen, -1);
  EXPECT_EQ(v.Demp(), Blank);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "");
}

// Sorting.

TEST_P(ElkVenster, SortsAndDropsTheSelectionButNotTheFields) {
  Venster v(GetParam(), {"b", "a"});
  v.Klik(0);
  EXPECT_EQ(mnuSortNaam_Click(v.o, v.catalogi, v.script), (OnderhoudUitkomst{{}, {}, true}));
  EXPECT_THAT(v.Rijen(), ElementsAre("a", "b"));
  EXPECT_EQ(v.o.Gekozen, -1);
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "b");
  EXPECT_EQ(v.script.KeerGewacht(), 1);
}

// Estimates.

TEST(Onderhoud, TakesAnEstimateIntoTheOpenFieldsOnly) {
  Venster v(CatalogusSoort::Kanaalelementen);
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "mijn naam";
  v.o.Velden.txtruis[3].Tekst = "33";
  v.o.Velden.txtdemp[1] = {"x", FoutKleur, "Voer geldig getal in"};
  NeemSchatting(v.o, "bekleed kanaal", {"1", "2", "3", "4", "5", "6", "151"});
  EXPECT_EQ(v.o.Velden.txtSpectrum.Tekst, "bekleed kanaal");
  EXPECT_THAT(v.Demp(), ElementsAre("1", "2", "3", "4", "5", "6", "151"));
  EXPECT_EQ(v.o.Velden.txtdemp[1], (OnderhoudVak{"2", VeldKleur, ""}));
  EXPECT_EQ(v.o.Velden.txtruis[3].Tekst, "33");
  v.OK();
  EXPECT_EQ(v.catalogi.CatElementen.Records[12].CatDemp[6], 150);
  EXPECT_EQ(v.catalogi.CatElementen.Records[12].CatRuis[3], 33);
}

// Closing.

TEST_P(ElkVenster, WritesItsOwnFileOnly) {
  const TijdelijkeMap map;
  Venster v(GetParam(), {"een", "twee"});
  EXPECT_TRUE(cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script));
  EXPECT_THAT(map.Namen(), ElementsAre(std::string(v.Verschil().Bestand)));
  EXPECT_EQ(Lees(map / v.Verschil().Bestand),
            v.Met([](auto& catalogus) { return CatalogusBytes(catalogus); }));
  EXPECT_EQ(v.script.KeerGewacht(), 1);
}

TEST_P(ElkVenster, DropsAnOpenEntryAndKeepsTheTailOfALongerFile) {
  const TijdelijkeMap map;
  Venster v(GetParam(), {"een", "twee"});
  ASSERT_TRUE(cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script));
  const std::string was = Lees(map / v.Verschil().Bestand);
  v.Klik(1);
  v.script.Box({MeldingSoort::Vraag, std::string(v.Verschil().WisTitel),
                std::string(v.Verschil().WisVraag) + "twee' wissen?", Knoppen::OkCancel});
  v.Wissen();
  v.Toevoegen();
  v.o.Velden.txtSpectrum.Tekst = "niet bewaard";
  EXPECT_TRUE(cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script));
  EXPECT_EQ(Lees(map / v.Verschil().Bestand), I16(v.Eerste()) + was.substr(2));
}

TEST_P(ElkVenster, TellsAFailedSaveUnderTheNameOfFrmDuctAndLosesNothing) {
  const TijdelijkeMap map;
  Venster v(GetParam(), {"een"});
  const auto pad = map / v.Verschil().Bestand;
  Schrijf(pad, "oud");
  v.Klik(0);
  v.Wijzig();
  const Onderhoud was = v.o;
  const std::string bytes = v.Met([](auto& catalogus) { return CatalogusBytes(catalogus); });
  v.script.Box(
      {MeldingSoort::Kritiek, "MurVane",
       "Onverwachte fout in procedure cmdSluiten_Click van Form frmDuct.\nFout 61 - De schijf is vol; "
       "het bestand '" +
           std::string(v.Verschil().Bestand) + "' is niet geschreven."});
  {
    const Schijfgrens vol(100);
    EXPECT_FALSE(cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script));
  }
  EXPECT_EQ(Lees(pad), "oud");
  EXPECT_EQ(v.Met([](auto& catalogus) { return CatalogusBytes(catalogus); }), bytes);
  EXPECT_EQ(v.o.Velden, was.Velden);
  EXPECT_TRUE(v.o.Invoer);
  v.script.Box({MeldingSoort::Kritiek, "MurVane",
                "Onverwachte fout in procedure cmdSluiten_Click van Form frmDuct.\nFout 76 - De map 'geen "
                "map' is niet "
                "gevonden."});
  EXPECT_FALSE(cmdSluiten_Click(v.o, v.catalogi, map / "geen map", v.script));
  EXPECT_TRUE(cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script));
  EXPECT_EQ(Lees(pad), bytes);
}

/// Runs `roep` in a process of its own that kills itself at watched system call `k`; whether it got there.
bool GedoodBij(int k, const std::function<void()>& roep) {
  const pid_t kind = ::fork();
  if (kind == 0) {
    int geteld = 0;
    Ingreep ingreep([&](Aanroep) { return ++geteld == k ? ::kill(::getpid(), SIGKILL) : 0; });
    ingreep.GrootsteStuk = 50;
    roep();
    ::_exit(0);
  }
  int status = 0;
  return ::waitpid(kind, &status, 0) == kind && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

TEST_P(ElkVenster, LeavesTheOldFileOrTheNewOneWhenKilledAnywhereInASave) {
  const TijdelijkeMap map;
  Venster v(GetParam(), {"een", "twee", "drie"});
  const auto pad = map / v.Verschil().Bestand;
  ASSERT_TRUE(cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script));
  const std::string oud = Lees(pad);
  v.ZetAantal(v.Aantal() - 1);
  v.ZetWaarden(v.Eerste(), 77);
  const std::string kort = v.Met([](auto& catalogus) { return CatalogusBytes(catalogus); });
  const std::string nieuw = kort + oud.substr(kort.size());
  bool zagOud = false, zagNieuw = false;
  int k = 1;
  for (;; ++k) {
    ASSERT_LT(k, 1000);
    Schrijf(pad, oud);
    const bool gedood = GedoodBij(k, [&] { (void)cmdSluiten_Click(v.o, v.catalogi, map.Pad(), v.script); });
    const std::string staat = Lees(pad);
    ASSERT_TRUE(staat == oud || staat == nieuw) << "killed at call " << k;
    (staat == oud ? zagOud : zagNieuw) = true;
    if (!gedood) break;
  }
  EXPECT_GT(k, 20);
  EXPECT_TRUE(zagOud && zagNieuw);
  EXPECT_EQ(Lees(pad), nieuw);
}

}  // namespace
}  // namespace murvane
