#include "basis/fout.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <set>
#include <stdexcept>
#include <string>

namespace murvane {
namespace {

TEST(Fout, EveryNumberHasItsValueAndItsOwnDescription) {
  struct Rij {
    FoutNummer nummer;
    int waarde;
    const char* omschrijving;
  };
  const Rij rijen[] = {
      {FoutNummer::OngeldigArgument, 5, "Ongeldig argument"},
      {FoutNummer::Overloop, 6, "Overloop: een getal is te groot of onbepaald"},
      {FoutNummer::IndexBuitenBereik, 9, "Index buiten het bereik"},
      {FoutNummer::DelingDoorNul, 11, "Deling door nul"},
      {FoutNummer::GeenGetal, 13, "Geen geldig getal"},
      {FoutNummer::OngeldigeBestandsnaam, 52, "Ongeldige bestandsnaam"},
      {FoutNummer::BestandNietGevonden, 53, "Bestand niet gevonden"},
      {FoutNummer::SchijfVol, 61, "Schijf vol"},
      {FoutNummer::VoorbijEinde, 62, "Het bestand eindigt te vroeg"},
      {FoutNummer::GeenToestemming, 70, "Geen toestemming"},
      {FoutNummer::PadToegang, 75, "Geen toegang tot het bestand of de map"},
      {FoutNummer::PadNietGevonden, 76, "Map niet gevonden"},
      {FoutNummer::DialoogGeannuleerd, 32755, "Dialoog geannuleerd"},
  };
  std::set<std::string> gezien;
  for (const Rij& rij : rijen) {
    EXPECT_EQ(static_cast<int>(rij.nummer), rij.waarde);
    EXPECT_STREQ(Beschrijving(rij.nummer), rij.omschrijving);
    EXPECT_TRUE(gezien.insert(Beschrijving(rij.nummer)).second) << rij.omschrijving;
    EXPECT_EQ(Fout(rij.nummer).Melding(),
              "Fout " + std::to_string(rij.waarde) + " - " + rij.omschrijving + ".");
  }
}

TEST(Fout, ShowsItsPlaceBetweenBrackets) {
  const Fout fout(FoutNummer::Overloop, "Te groot", "kanaalelement 3", "a b.mrv");
  EXPECT_STREQ(fout.what(), "Te groot (kanaalelement 3)");
  EXPECT_EQ(fout.Melding(), "Fout 6 - Te groot (kanaalelement 3).");
  EXPECT_EQ(fout.Plaats(), "kanaalelement 3");
  EXPECT_EQ(fout.Bestand(), "a b.mrv");
  EXPECT_EQ(fout.Nummer(), FoutNummer::Overloop);
}

TEST(Fout, KeepsTheFirstPlaceAndFileThatItGot) {
  const Fout kaal(FoutNummer::GeenGetal);
  const Fout metPlaats = kaal.MetPlaats("regel 2");
  EXPECT_EQ(metPlaats.Melding(), "Fout 13 - Geen geldig getal (regel 2).");
  EXPECT_EQ(metPlaats.MetPlaats("regel 9").Plaats(), "regel 2");
  const Fout metBestand = metPlaats.MetBestand("één.set");
  EXPECT_EQ(metBestand.Bestand(), "één.set");
  EXPECT_EQ(metBestand.Plaats(), "regel 2");
  EXPECT_EQ(metBestand.MetBestand("twee.set").Bestand(), "één.set");
  EXPECT_EQ(metBestand.MetPlaats("regel 9").Bestand(), "één.set");
  EXPECT_EQ(kaal.Plaats(), "");
  EXPECT_EQ(kaal.Bestand(), "");
}

TEST(Fout, CanBeCaughtAsAStandardException) {
  try {
    throw Fout(FoutNummer::DelingDoorNul);
  } catch (const std::exception& fout) {
    EXPECT_STREQ(fout.what(), "Deling door nul");
  }
}

template <typename T>
Fout Gevangen(const T& iets) {
  try {
    throw iets;
  } catch (...) {
    return HuidigeFout();
  }
}

TEST(HuidigeFout, IsTheFoutThatWasCaught) {
  const Fout fout = Gevangen(Fout(FoutNummer::GeenGetal, "Geen getal", "regel 2", "één.set"));
  EXPECT_EQ(fout.Melding(), "Fout 13 - Geen getal (regel 2).");
  EXPECT_EQ(fout.Bestand(), "één.set");
}

TEST(HuidigeFout, GivesOtherExceptionsTheirNumber) {
  EXPECT_EQ(Gevangen(std::bad_alloc()).Nummer(), FoutNummer::OnvoldoendeGeheugen);
  EXPECT_EQ(Gevangen(std::filesystem::filesystem_error("pad", {})).Nummer(), FoutNummer::PadToegang);
  EXPECT_EQ(Gevangen(std::filesystem::filesystem_error("zin", "/een/pad", {})).Bestand(), "/een/pad");
  EXPECT_EQ(Gevangen(std::runtime_error("iets")).Nummer(), FoutNummer::InterneFout);
  EXPECT_EQ(Gevangen(7).Nummer(), FoutNummer::InterneFout);
}

}  // namespace
}  // namespace murvane
