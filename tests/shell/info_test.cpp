#include "shell/info.h"

#include <gtest/gtest.h>

#include "basis/tekst.h"
#include "shell/hoofdvenster.h"
#include "tests/hulp/bestanden.h"
#include "versie.h"

namespace murvane {
namespace {

TEST(Verloop, RunsFromTheFirstColourToTheLast) {
  // 100 over 4 lines: 100, 75, 50, 25, 0
  EXPECT_EQ(Verloop({100, 0, 0}, {0, 0, 0}, 4),
            (std::vector<Verloopkleur>{{100, 0, 0}, {75, 0, 0}, {50, 0, 0}, {25, 0, 0}, {0, 0, 0}}));
}

TEST(Verloop, RoundsAHalfToTheEvenComponent) {
  // red falls by 2.5, green rises by 1.5, blue stays: 10, 7.5, 5, 2.5, 0 and 0, 1.5, 3, 4.5, 6
  EXPECT_EQ(Verloop({10, 0, 7}, {0, 6, 7}, 4),
            (std::vector<Verloopkleur>{{10, 0, 7}, {8, 2, 7}, {5, 3, 7}, {2, 4, 7}, {0, 6, 7}}));
}

TEST(Verloop, NeedsAHeight) {
  EXPECT_EQ(proef::NummerVan([] { return Verloop(SplashBegin, VerloopEinde, 0); }), 11);
  EXPECT_EQ(proef::NummerVan([] { return Verloop(SplashBegin, VerloopEinde, -1); }), 5);
}

TEST(Verloop, TheTwoWindowsDifferInTheirRed) {
  EXPECT_EQ(SplashBegin, (Verloopkleur{100, 0, 0}));
  EXPECT_EQ(InfoBegin, (Verloopkleur{120, 0, 0}));
  EXPECT_EQ(VerloopEinde, (Verloopkleur{0, 0, 0}));
  EXPECT_EQ(SplashMs, 2000);
}

TEST(Versie, TheSplashShowsThePlainNumbers) {
  EXPECT_EQ(VersieHoofd, 6);
  EXPECT_EQ(VersieSub, 7);
  EXPECT_EQ(VersieRevisie, 4);
  EXPECT_TRUE(SplashTekst().Versie.starts_with("Versie 6.7.4\r\n"));
  EXPECT_GT(SplashTekst().Versie.size(), std::string_view("Versie 6.7.4\r\n").size());
  EXPECT_EQ(SplashTekst().Titel, "MurVane");
  EXPECT_FALSE(SplashTekst().Omschrijving.empty());
}

TEST(Versie, TheFileVersionIsPadded) {
  EXPECT_EQ(Bestandsversie(6, 7, 4), "6.07.0004");
  EXPECT_EQ(Bestandsversie(6, 7, 3), "6.07.0003");
  EXPECT_EQ(Bestandsversie(10, 12, 34567), "10.12.34567");
}

TEST(Info, TellsProductVersionAndUser) {
  Instellingen instellingen;
  instellingen.GebruikerLabel = std::string_view("  Jansen && Zn");
  const InfoTeksten info = InfoTekst(instellingen);
  EXPECT_EQ(info.Titel, "Info MurVane");
  EXPECT_EQ(info.Product, "MurVane, productversie 6.07.0004\r\nGebruiker :\r\nJansen && Zn");
  EXPECT_EQ(
      NaarUtf8(info.Omschrijving),
      "Berekening van de geluidsniveaus ten gevolge van luchtbehandelingssystemen op basis van de "
      "rekenregels en richtlijnen volgens ISSO-publicatie 24 'Installatiegeluid - Ontwerpaanbevelingen en "
      "grondslagen voor geluidsberekeningen in gebouwen met luchttechnische installaties' (Stichting ISSO "
      "Rotterdam, januari 1990) en volgens VDI 2081 'Geräuscherzeugung und Lärmminderung in "
      "raumlufttechnischen Anlagen' (VDI Düsseldorf, 1983).");
}

TEST(Info, TheMailHasItsSubject) {
  EXPECT_EQ(MailAdres("hulp@voorbeeld.nl"), "mailto:hulp@voorbeeld.nl?subject= Feedback MurVane");
}

TEST(Handleiding, FallsBackToItsPages) {
  const proef::TijdelijkeMap map;
  int gevraagd = 0;
  const auto kent = [&gevraagd] { return ++gevraagd > 0; };
  const auto kentNiet = [] { return false; };
  EXPECT_EQ(HandleidingIn(map.Pad(), kent), "");
  std::filesystem::create_directory(map / "help");
  proef::Schrijf(map.Pad() / "help" / "index.html", "<html>");
  EXPECT_EQ(HandleidingIn(map.Pad(), kent), map.Pad() / "help" / "index.html");
  EXPECT_EQ(gevraagd, 0) << "there is no help file to show";
  proef::Schrijf(map / "MurVane.chm", "ITSF");
  EXPECT_EQ(HandleidingIn(map.Pad(), kent), map / "MurVane.chm");
  EXPECT_EQ(HandleidingIn(map.Pad(), kentNiet), map.Pad() / "help" / "index.html");
}

TEST(Taakbalk, ItsTipIsAFixedText) {
  const std::string tip = TrayTip();
  ASSERT_EQ(tip.size(), 64U);
  EXPECT_EQ(tip.substr(0, 8), std::string("MurVane\0", 8));
  EXPECT_EQ(tip.substr(8), std::string(56, ' '));
}

TEST(Taakbalk, HasTwoCommands) {
  ASSERT_EQ(TaakBalk.size(), 2U);
  EXPECT_EQ(TaakBalk[0].Naam, "mnuTaakInfo");
  EXPECT_EQ(TaakBalk[0].Opschrift, "Info");
  EXPECT_EQ(TaakBalk[1].Naam, "mnuTaakExit");
  EXPECT_EQ(TaakBalk[1].Opschrift, "Afsluiten");
}

TEST(Menubeelden, StandAtTheirPlaces) {
  const std::vector<std::pair<std::string_view, int>> rijen = {
      {"mnuOpen", 2},      {"mnuNieuw", 13},   {"mnuSluiten", 12},  {"mnuReken", 8},     {"mnuPreview", 6},
      {"mnuExit", 10},     {"mnuOpslaan", 11}, {"mnuAfdrukken", 3}, {"mnuTypReken", 18}, {"mnuLetterType", 5},
      {"mnuGebruiker", 7}, {"mnuDuct", 14},    {"mnuPlafonds", 15}, {"mnuFan", 16},      {"mnuElementen", 17},
      {"mnuCalc", 9},      {"mnuHelpFile", 1}, {"mnuInfo", 4}};
  ASSERT_EQ(MenuBeelden.size(), rijen.size());
  for (std::size_t i = 0; i < rijen.size(); ++i) {
    EXPECT_EQ(MenuBeelden[i].Naam, rijen[i].first);
    EXPECT_EQ(MenuBeelden[i].Beeld, rijen[i].second) << rijen[i].first;
  }
}

}  // namespace
}  // namespace murvane
