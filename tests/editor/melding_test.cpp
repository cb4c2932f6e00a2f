#include "editor/melding.h"

#include <gtest/gtest.h>

#include "basis/tekst.h"

namespace murvane {
namespace {

TEST(Melding, OfAnUnexpectedFailureNamesProcedureWindowAndFault) {
  const Melding melding = OnverwachteFout("OpSlag", "frmMurvane", Fout(FoutNummer::SchijfVol));
  EXPECT_EQ(melding.Soort, MeldingSoort::Kritiek);
  EXPECT_EQ(melding.Titel, "MurVane");
  EXPECT_EQ(melding.Tekst,
            "Onverwachte fout in procedure OpSlag van Form frmMurvane.\nFout 61 - Schijf vol.");
  EXPECT_EQ(melding.Knoppen, Knoppen::OK);
}

// A failure of a file.

std::string Getoond(const Fout& fout) {
  const std::string tekst = GetoondeTekst(OnverwachteFout("P", "F", fout));
  const std::string_view kop = "Onverwachte fout in procedure P van Form F.\nFout ";
  EXPECT_TRUE(tekst.starts_with(kop)) << tekst;
  return tekst.substr(kop.size());
}

TEST(Melding, OfAFileNamesItByItsBareName) {
  using F = FoutNummer;
  const struct {
    F nummer;
    const char* bestand;
    std::string tekst;
  } rijen[] = {
      {F::OngeldigeBestandsnaam, "/data/a.MRV", "52 - De bestandsnaam 'a.MRV' is ongeldig."},
      {F::BestandNietGevonden, "/data/kantoor.mrv", "53 - Het bestand 'kantoor.mrv' is niet gevonden."},
      {F::BestandNietGevonden, "los.mrv", "53 - Het bestand 'los.mrv' is niet gevonden."},
      {F::SchijfVol, "/d/Fan.dat", "61 - De schijf is vol; het bestand 'Fan.dat' is niet geschreven."},
      {F::VoorbijEinde, "/d/Fan.dat", "62 - Het bestand 'Fan.dat' eindigt te vroeg."},
      {F::GeenToestemming, "/d/Fan.dat", "70 - Geen toestemming voor het bestand 'Fan.dat'."},
      {F::PadToegang, "/d/Fan.dat", "75 - Geen toegang tot het bestand of de map 'Fan.dat'."},
      {F::PadToegang, "/d/een map/", "75 - Geen toegang tot het bestand of de map 'een map'."},
      {F::PadToegang, "/", "75 - Geen toegang tot het bestand of de map '/'."},
      {F::PadNietGevonden, "/d/weg één/a.mrv", "76 - De map 'weg één' is niet gevonden."},
      {F::PadNietGevonden, "weg/a.mrv", "76 - De map 'weg' is niet gevonden."},
      {F::PadNietGevonden, "bron", "76 - De map 'bron' is niet gevonden."},
      {F::IndexBuitenBereik, "/d/Fan.dat", "9 - Index buiten het bereik in het bestand 'Fan.dat'."},
      {F::VoorbijEinde, "", "62 - Het bestand eindigt te vroeg."},
  };
  for (const auto& rij : rijen) EXPECT_EQ(Getoond(Fout(rij.nummer).MetBestand(rij.bestand)), rij.tekst);
}

TEST(Melding, OfAFileKeepsThePlaceAndWhatElseItSays) {
  const Fout regel = Fout(FoutNummer::VoorbijEinde).MetPlaats("regel 7").MetBestand("/d/murvane.set");
  EXPECT_EQ(Getoond(regel), "62 - Het bestand 'murvane.set' eindigt te vroeg (regel 7).");
  EXPECT_EQ(Getoond(Fout(FoutNummer::GeenGetal).MetPlaats("regel 2").MetBestand("/d/murvane.set")),
            "13 - Geen geldig getal in het bestand 'murvane.set' (regel 2).");
  EXPECT_EQ(
      Getoond(Fout(FoutNummer::OngeldigeBestandsnaam, "Ongeldige bestandsnaam: het waarom", {}, "/a.prn")),
      "52 - De bestandsnaam 'a.prn' is ongeldig: het waarom.");
  EXPECT_EQ(Getoond(Fout(FoutNummer::PadToegang, "Iets anders", "regel 1", "/a.prn")),
            "75 - Iets anders in het bestand 'a.prn' (regel 1).");
}

TEST(Melding, ShowsAFileNameInItsOwnCharacters) {
  const struct {
    std::string naam, getoond;
  } rijen[] = {
      {"Łódź ☃.mrv", "Łódź ☃.mrv"},
      {"a'b\"c&d<b>.mrv", "a'b\"c&d<b>.mrv"},
      {"twee\nregels\t\x1B[31m.mrv", "twee\\x0aregels\\x09\\x1b[31m.mrv"},
      {"\x1A.mrv", "\\x1a.mrv"},  // stands for a name in the text itself
      {"a\u009Bb\u00A0c.mrv", "a\\x9bb\u00A0c.mrv"},
      {"om\u202Evrm.exe\u2069\u061C.mrv", "om\\u202evrm.exe\\u2069\\u061c.mrv"},
      {"\x7F.mrv", "\\x7f.mrv"},
      {"half \xC3.mrv", "half \xC3.mrv"},  // no UTF-8: shown as far as it goes
      {"half \xC2", "half \xC2"},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(Getoond(Fout(FoutNummer::BestandNietGevonden).MetBestand("/d/" + rij.naam)),
              "53 - Het bestand '" + rij.getoond + "' is niet gevonden.");
    EXPECT_EQ(GetoondeTekst(GewijzigdVraag("/d/" + rij.naam, false)),
              "'" + rij.getoond + "' is intussen door een ander programma gewijzigd.");
  }
}

TEST(Melding, LeavesATextWithoutANameAlone) {
  EXPECT_EQ(GetoondeTekst({MeldingSoort::Vraag, "T", std::string("\x1A één"_cp)}), "\x1A één");
  EXPECT_EQ(GetoondeTekst({MeldingSoort::Vraag, "T", "\x1A \x1A!", Knoppen::OK, "Ω"}), "\x1A Ω!");
  EXPECT_EQ(GetoondeTekst({MeldingSoort::Vraag, "T", "geen", Knoppen::OK, "Ω"}), "geen");
}

TEST(Melding, HasCancelWhereTheHandlerTriesAgain) {
  const Fout fout(FoutNummer::SchijfVol);
  EXPECT_EQ(OnverwachteFout("P", "F", fout, Knoppen::OkCancel).Knoppen, Knoppen::OkCancel);
}

TEST(Melding, AsksAboutAFileThatWasChangedMeanwhile) {
  for (const bool anders : {false, true}) {
    const Melding vraag = GewijzigdVraag("/data/Fan.dat", anders);
    EXPECT_EQ(vraag.Soort, MeldingSoort::Uitroep);
    EXPECT_EQ(vraag.Titel, "Waarschuwing");
    EXPECT_EQ(GetoondeTekst(vraag), "'Fan.dat' is intussen door een ander programma gewijzigd.");
    EXPECT_EQ(vraag.Knoppen, anders ? Knoppen::OverschrijvenAndersCancel : Knoppen::OverschrijvenCancel);
  }
}

TEST(Melding, ShowsTheDescriptionInTheCodePage) {
  const Fout fout(FoutNummer::OngeldigArgument, "Het teken 'Ω' is één teken te veel");
  const std::string_view rest = " - Het teken '?' is één teken te veel."_cp;
  EXPECT_EQ(OnverwachteFout("P", "F", fout).Tekst,
            "Onverwachte fout in procedure P van Form F.\nFout 5" + std::string(rest));
}

TEST(Melding, DiffersInEveryPart) {
  const Melding een{MeldingSoort::Vraag, "Titel", "Tekst", Knoppen::YesNo};
  EXPECT_EQ(een, (Melding{MeldingSoort::Vraag, "Titel", "Tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Uitroep, "Titel", "Tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Vraag, "titel", "Tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Vraag, "Titel", "tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Vraag, "Titel", "Tekst", Knoppen::OkCancel}));
}

}  // namespace
}  // namespace murvane
