#include "editor/bewaarvraag.h"

#include <gtest/gtest.h>

#include "basis/fout.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Lees;
using proef::NummerVan;
using proef::Schrijf;
using proef::Script;
using proef::TijdelijkeMap;

class Bewaarvraag : public testing::Test {
 protected:
  Bewaarvraag() {
    Schrijf(pad, "toen");
    doel = {.Pad = pad, .Gelezen = Onthoud(LeesInhoud(pad), "toen"), .AndereNaam = true};
  }
  BewaarAntwoord Bewaar(std::string_view beeld) {
    BewaarAntwoord uit = BewaarMetVraag(doel, beeld, script);
    script.IsKlaar();
    return uit;
  }

  TijdelijkeMap map;
  fs::path pad = map / "Łódź één.mrv";
  Bewaardoel doel;
  Script script{[](const std::string& fout) { ADD_FAILURE() << fout; }};
};

TEST_F(Bewaarvraag, AsksNothingUnlessBothChangedTheFile) {
  EXPECT_EQ(Bewaar("toen").Bewaring.Besluit, Bewaarbesluit::Niets);
  EXPECT_EQ(Bewaar("ons").Bewaring.Besluit, Bewaarbesluit::Schrijf);
  Schrijf(pad, "hun");
  doel.Gelezen->Beeld = HashVan("ons");
  const BewaarAntwoord antwoord = Bewaar("ons");
  EXPECT_EQ(antwoord.Hoe, Antwoord::Overschrijven);
  EXPECT_EQ(antwoord.Bewaring.Besluit, Bewaarbesluit::NeemHunne);
  EXPECT_EQ(antwoord.Bewaring.Hunne.Bytes, "hun");
  EXPECT_EQ(script.KeerGewacht(), 3);
}

TEST_F(Bewaarvraag, OverwritesWhatTheUserWasAskedAbout) {
  Schrijf(pad, "hun");
  script.Box(GewijzigdVraag(pad, true), Antwoord::Overschrijven);
  const BewaarAntwoord antwoord = Bewaar("ons");
  EXPECT_EQ(antwoord.Bewaring.Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(antwoord.Bewaring.Daarna, Onthoud(LeesInhoud(pad), "ons"));
  EXPECT_EQ(Lees(pad), "ons");
}

TEST_F(Bewaarvraag, AsksAgainWhenTheFileChangesWhileTheQuestionStands) {
  Schrijf(pad, "hun");
  script.Box(GewijzigdVraag(pad, true), Antwoord::Overschrijven, [this] { Schrijf(pad, "weer hun"); });
  script.Box(GewijzigdVraag(pad, true), Antwoord::Cancel);
  EXPECT_EQ(Bewaar("ons").Hoe, Antwoord::Cancel);
  EXPECT_EQ(Lees(pad), "weer hun");
}

TEST_F(Bewaarvraag, DoesNothingForEveryOtherAnswer) {
  Schrijf(pad, "hun");
  for (const Antwoord antwoord : {Antwoord::Cancel, Antwoord::Anders}) {
    script.Box(GewijzigdVraag(pad, true), antwoord);
    EXPECT_EQ(Bewaar("ons").Hoe, antwoord);
    EXPECT_EQ(Lees(pad), "hun");
  }
  doel.AndereNaam = false;
  script.Box(GewijzigdVraag(pad, false), Antwoord::Cancel);
  EXPECT_EQ(Bewaar("ons").Hoe, Antwoord::Cancel);
}

TEST_F(Bewaarvraag, RaisesWhatGoesWrongAndRestoresThePointer) {
  doel.Pad = map / "weg" / "a.mrv";
  EXPECT_EQ(NummerVan([this] { return Bewaar("ons").Hoe; }), 76);
  EXPECT_FALSE(script.Wacht());
}

}  // namespace
}  // namespace murvane
