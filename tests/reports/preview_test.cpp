#include "reports/preview.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basis/bestand.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

TEST(Werkbalk, OfTheResultsHasItsKeysAndTips) {
  ASSERT_EQ(ResultaatKnoppen.size(), 5U);
  const struct {
    const char *sleutel, *tip, *naam;
  } rijen[] = {{"Printen", "Berekeningsresultaten afdrukken op printer", "Afdrukken"},
               {"Opslaan", "Berekeningsresultaten opslaan in bestand", "Opslaan"},
               {"Grafiek", "Grafische weergave berekeningsresultaten", "Grafiek"},
               {"preview", "Afdrukvoorbeeld berekeningsresultaten", "Afdrukvoorbeeld"},
               {"PDF", "Berekeningsformulier opslaan als PDF", "PDF"}};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(ResultaatKnoppen[i].Sleutel, rijen[i].sleutel);
    EXPECT_EQ(ResultaatKnoppen[i].Tip, rijen[i].tip);
    EXPECT_EQ(ResultaatKnoppen[i].Naam, rijen[i].naam);
  }
}

TEST(Werkbalk, OfThePreviewHasItsKeysTipsAndPositions) {
  ASSERT_EQ(VoorbeeldKnoppen.size(), 7U);
  const Werkknop rijen[] = {{2, "printen", "Afdrukken op printer", "printen", "Afdrukken"},
                            {3, "save", "Afdrukvoorbeeld opslaan als bitmap-bestand", "opslaan", "Opslaan"},
                            {5, "begin", "Naar beginpagina", "begin", "Eerste"},
                            {6, "terug", "Naar vorige pagina", "terug", "Vorige"},
                            {7, "volgende", "Naar volgende pagina", "volgende", "Volgende"},
                            {8, "eind", "Naar laatste pagina", "eind", "Laatste"},
                            {10, "PDF", "Berekeningsformulier opslaan als PDF", "pdf", "PDF"}};
  for (std::size_t i = 0; i < 7; ++i) {
    EXPECT_EQ(VoorbeeldKnoppen[i].Positie, rijen[i].Positie);
    EXPECT_EQ(VoorbeeldKnoppen[i].Sleutel, rijen[i].Sleutel);
    EXPECT_EQ(VoorbeeldKnoppen[i].Tip, rijen[i].Tip);
    EXPECT_EQ(VoorbeeldKnoppen[i].Naam, rijen[i].Naam);
  }
}

TEST(Voorbeeld, HasAPageOf21By291Centimetres) {
  EXPECT_NEAR(VoorbeeldBreedte, 11905.5, 0.05);  // 21 / 2,54 inch of 1440 twips
  EXPECT_NEAR(VoorbeeldHoogte, 16497.6, 0.05);
}

TEST(Voorbeeld, TellsItsPageInItsCaption) {
  EXPECT_EQ(VoorbeeldTitelBegin, "Afdrukvoorbeeld - Pagina ");
  EXPECT_EQ(VoorbeeldTitel({true, 2, 5}), "Afdrukvoorbeeld, pagina 2 van 5");
  EXPECT_EQ(VoorbeeldTitel(NieuwVoorbeeld()), "Afdrukvoorbeeld, pagina 1 van 1");
  EXPECT_EQ(NieuwVoorbeeld(), (VoorbeeldStand{true, 1, 1}));
}

TEST(ButtonEnabled, LetsGoWhereThereArePages) {
  const struct {
    std::int16_t laatste, huidig;
    Bladerknoppen knoppen;
  } rijen[] = {{1, 1, {false, false, false, false}}, {1, 2, {false, false, false, false}},
               {2, 1, {false, false, true, true}},   {2, 2, {true, true, false, false}},
               {3, 2, {true, true, true, true}},     {5, 1, {false, false, true, true}},
               {5, 5, {true, true, false, false}}};
  for (const auto& rij : rijen)
    EXPECT_EQ(ButtonEnabled(rij.laatste, rij.huidig), rij.knoppen) << rij.laatste << " " << rij.huidig;
}

TEST(Blader, TurnsPages) {
  const struct {
    const char* sleutel;
    std::int16_t pagina;
  } rijen[] = {{"begin", 1}, {"volgende", 4}, {"terug", 2}, {"eind", 5}, {"save", 3}, {"Eind", 3}};
  for (const auto& rij : rijen) {
    VoorbeeldStand stand{true, 3, 5};
    Blader(stand, rij.sleutel);
    EXPECT_EQ(stand, (VoorbeeldStand{true, rij.pagina, 5})) << rij.sleutel;
  }
}

TEST(SizeScrolls, PlacesTheBarsBesideTheVisiblePart) {
  const Schuifbalken balken = SizeScrolls({0, 420, 9000, 6000}, 11905, 16497);
  EXPECT_EQ(balken.Horizontaal, (Schuifbalk{true, 6420, 0, 9000, -150, 11905 + 150 - 9000, -150, 100, 9000}));
  EXPECT_EQ(balken.Verticaal, (Schuifbalk{true, 9000, 420, 6000, -150, 16497 + 150 - 6000, -150, 100, 6000}));
}

TEST(SizeScrolls, HidesABarOfAPageThatIsSmallerWithItsMargins) {
  const struct {
    double pagina;
    bool zichtbaar;
  } rijen[] = {{699, false}, {699.9, false}, {700, true}, {701, true}, {5000, true}};
  for (const auto& rij : rijen) {
    EXPECT_EQ(SizeScrolls({0, 0, 1000, 9}, rij.pagina, 9).Horizontaal.Zichtbaar, rij.zichtbaar);
    EXPECT_EQ(SizeScrolls({0, 0, 9, 1000}, 9, rij.pagina).Verticaal.Zichtbaar, rij.zichtbaar);
  }
}

TEST(BladPlaats, IsInTheMiddleOfMoreRoomAndElseWhereItsBarSays) {
  const auto balk = [](double pagina) { return SizeScrolls({0, 0, 1000, 9}, pagina, 9).Horizontaal; };
  EXPECT_EQ(BladPlaats(balk(500), -150, 500), 250);
  EXPECT_EQ(BladPlaats(balk(699), -150, 699), 150.5);
  EXPECT_EQ(BladPlaats(balk(700), -150, 700), 150) << "the bar shows, with its margin";
  EXPECT_EQ(BladPlaats(balk(5000), -150, 5000), 150);
  EXPECT_EQ(BladPlaats(balk(5000), 4150, 5000), -4150);
}

TEST(PlaatsHouder, LeavesRoomForToolbarAndBars) {
  EXPECT_EQ(PlaatsHouder(10000, 8000, 420, 255, 240), (Rechthoek{0, 420, 9745, 7340}));
}

TEST(BitmapNamen, NumbersThePagesFrom1) {
  const auto namen = BitmapNamen(PadVan("/mijn map/één.bmp"), 3);
  ASSERT_EQ(namen.size(), 3U);
  EXPECT_EQ(PadTekst(namen[0]), "/mijn map/één1.bmp");
  EXPECT_EQ(PadTekst(namen[2]), "/mijn map/één3.bmp");
  EXPECT_EQ(PadTekst(BitmapNamen("a.b.bmp", 1).at(0)), "a.b1.bmp");
  EXPECT_TRUE(BitmapNamen("a.bmp", 0).empty());
}

TEST(BitmapNamen, RefusesAnyOtherExtension) {
  for (const char* naam : {"a.BMP", "a.Bmp", "a", "bmp", "a.bmp ", "a.bmpx", "a.png", "abmp"})
    EXPECT_EQ(proef::NummerVan([&] { return BitmapNamen(naam, 1).size(); }), 52) << naam;
}

}  // namespace
}  // namespace murvane
