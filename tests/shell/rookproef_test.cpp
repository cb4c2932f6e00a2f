#include "shell/rookproef.h"

#include <gtest/gtest.h>

#include <sstream>

#include "basis/tekst.h"
#include "shell/opstart.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

TEST(Rookproef, IsAskedForByOneAlone) {
  EXPECT_STREQ(RookproefVariabele, "MURVANE_ROOKPROEF");
  EXPECT_TRUE(IsRookproef("1"));
  for (const char* const waarde : {"", "0", "11", "ja"}) EXPECT_FALSE(IsRookproef(waarde)) << waarde;
}

TEST(Rookproef, CancelsEveryQuestionAndWritesItDown) {
  std::ostringstream uit;
  StilleDialogen stil(uit);
  EXPECT_FALSE(stil.IetsGevraagd());
  EXPECT_EQ(stil.Toon({MeldingSoort::Vraag, "Titel",
                       "Geluid h\xD7"
                       "b?",
                       Knoppen::YesNo}),
            Antwoord::Cancel);
  EXPECT_TRUE(stil.IetsGevraagd());
  EXPECT_EQ(stil.Invoer({"Naam", "Uw naam", "A"}), "");
  EXPECT_EQ(proef::NummerVan([&] { return stil.OpenDialoog({"Openen", "Project|*.mrv", {}, {}}); }), 32755);
  EXPECT_EQ(proef::NummerVan([&] { return stil.OpslaanDialoog({"Opslaan als", "P|*.mrv", {}, {}}); }), 32755);
  EXPECT_EQ(proef::NummerVan([&] { return stil.AfdrukDialoog({}).Exemplaren; }), 32755);
  EXPECT_EQ(uit.str(),
            "Titel: Geluid h×b?\nNaam: Uw naam\nOpenen: Project|*.mrv\nOpslaan als: P|*.mrv\nAfdrukken: \n");
}

TEST(Rookproef, ShowsControlCharactersByTheirNumber) {
  std::ostringstream uit;
  StilleDialogen stil(uit);
  (void)stil.Toon({MeldingSoort::Uitroep, "Titel\n\x1b", "Een\nTwee \x1b]0;x\x07\x8d", Knoppen::OK});
  EXPECT_EQ(uit.str(), "Titel\\x0a\\x1b: Een\nTwee \\x1b]0;x\\x07\\x8d\n");
}

TEST(Rookproef, WaitingIsNoQuestion) {
  std::ostringstream uit;
  StilleDialogen stil(uit);
  { const Zandloper wacht(stil); }
  EXPECT_FALSE(stil.IetsGevraagd());
}

TEST(Rookproef, AStartWithoutFilesGivesUp) {
  const proef::TijdelijkeMap map;
  std::ostringstream uit;
  StilleDialogen stil(uit);
  Programma programma;
  EXPECT_EQ(MDIForm_Load(programma, stil, {map.Pad(), DatumVeld("20-11-2026"), "", ','}), Vervolg::Einde);
  EXPECT_TRUE(stil.IetsGevraagd());
}

}  // namespace
}  // namespace murvane
