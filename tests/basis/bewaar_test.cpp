#include "basis/bewaar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "basis/slot.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/ingreep.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Aanroep;
using proef::Ingreep;
using proef::Lees;
using proef::NummerVan;
using proef::Schrijf;
using proef::TijdelijkeMap;
using testing::ElementsAre;

// What is remembered.

TEST(Stempel, TellsWhetherAFileHoldsWhatItHeld) {
  const Stempel toen{.Grootte = 10, .Tijd = 5, .Hash = 77, .Gelezen = 10};
  const Stempel lang{.Grootte = 20, .Tijd = 5, .Hash = 77, .Gelezen = 10};  // its end was not read
  const struct {
    Stempel toen, nu;
    bool ongewijzigd;
  } rijen[] = {
      {toen, toen, true},
      {toen, {10, 6, 77, 10}, true},   // written again with the same bytes
      {toen, {10, 5, 78, 10}, false},  // the time was set back
      {toen, {11, 5, 77, 11}, false},
      {lang, lang, true},
      {lang, {20, 6, 77, 10}, false},  // who knows what stands at its end
      {lang, {21, 5, 77, 10}, false},
  };
  for (const auto& rij : rijen) EXPECT_EQ(IsOngewijzigd(rij.toen, rij.nu), rij.ongewijzigd);
}

TEST(Stempel, HashesByTheirOrderAndNumber) {
  EXPECT_EQ(HashVan(""), 0xCBF29CE484222325U);  // the published values of FNV-1a
  EXPECT_EQ(HashVan("a"), 0xAF63DC4C8601EC8CU);
  EXPECT_EQ(HashVan("foobar"), 0x85944171F73967E8U);
}

// The decision.

Inhoud InhoudVan(const std::string& bytes) {
  return {bytes, {bytes.size(), 0, HashVan(bytes), bytes.size()}};
}

TEST(Beslis, IsMadeOfWhatWasReadWhatStandsThereAndWhatWeWant) {
  using B = Bewaarbesluit;
  constexpr auto Niet = nullptr;
  const struct {
    const char *gelezen, *beeldToen;  // the file as it was read, if it was, and the image of its records
    const char *nu, *beeld;           // what stands there, if anything, and what we want to write
    B vervalt, blijft;                // without and with the old tail
  } rijen[] = {
      // never read
      {Niet, "", Niet, "ons", B::Schrijf, B::Schrijf},
      {Niet, "", "hun", "ons", B::Schrijf, B::Schrijf},
      {Niet, "", "ons", "ons", B::Niets, B::Niets},
      // nobody changed it
      {"toen", "toen", "toen", "toen", B::Niets, B::Niets},
      {"toen en staart", "toen", "toen en staart", "toen", B::Schrijf, B::Niets},
      // we did
      {"toen", "toen", "toen", "ons", B::Schrijf, B::Schrijf},
      {"toen en staart", "toen", "toen en staart", "to", B::Schrijf, B::Niets},  // a count of records apart
      {"toen", "toen", "toen", "toen en meer", B::Schrijf, B::Schrijf},
      // they did
      {"toen", "toen", "hun", "toen", B::NeemHunne, B::NeemHunne},
      {"toen", "toen", "", "toen", B::NeemHunne, B::NeemHunne},
      {"toen", "toen", "toen en staart", "toen", B::NeemHunne, B::Niets},
      {"in een andere vorm", "toen", "hun", "toen", B::NeemHunne, B::NeemHunne},
      // both did
      {"toen", "toen", "hun", "ons", B::Vraag, B::Vraag},
      {"toen", "toen", "ons", "ons", B::Niets, B::Niets},  // alike
      {"toen", "toen", "ons en staart", "ons", B::Vraag, B::Niets},
      {"in een andere vorm", "toen", "hun", "ons", B::Vraag, B::Vraag},
      // they removed it
      {"toen", "toen", Niet, "toen", B::Schrijf, B::Schrijf},
      {"toen", "toen", Niet, "ons", B::Schrijf, B::Schrijf},
  };
  for (const auto& rij : rijen) {
    std::optional<Herinnering> gelezen;
    if (rij.gelezen != nullptr) gelezen = Onthoud(InhoudVan(rij.gelezen), rij.beeldToen);
    std::optional<Inhoud> nu;
    if (rij.nu != nullptr) nu = InhoudVan(rij.nu);
    const auto zin = testing::Message() << (rij.gelezen ? rij.gelezen : "-") << " / "
                                        << (rij.nu ? rij.nu : "-") << " / " << rij.beeld;
    EXPECT_EQ(Beslis(gelezen, nu, rij.beeld, Staart::Vervalt), rij.vervalt) << zin;
    EXPECT_EQ(Beslis(gelezen, nu, rij.beeld, Staart::Blijft), rij.blijft) << zin;
  }
}

TEST(Beslis, TakesNoFileForEqualOfWhichTheEndWasNotRead) {
  Inhoud nu = InhoudVan("ons");
  nu.Stempel.Grootte = 4;
  EXPECT_EQ(Beslis(std::nullopt, nu, "ons", Staart::Vervalt), Bewaarbesluit::Schrijf);
  EXPECT_EQ(Beslis(std::nullopt, nu, "ons", Staart::Blijft), Bewaarbesluit::Niets);
}

// Saving.

class Bewaren : public testing::Test {
 protected:
  Bewaring Bewaar(std::string_view beeld, Staart staart = Staart::Vervalt) {
    Bewaring uit = BewaarBeeld(pad, beeld, staart, gelezen);
    gelezen = uit.Daarna;
    return uit;
  }
  void LeesToen(const std::string& bytes) {
    Schrijf(pad, bytes);
    gelezen = Onthoud(LeesInhoud(pad), bytes);
  }
  [[nodiscard]] ino_t Knoop() const {
    struct stat is {};
    return ::stat(pad.c_str(), &is) == 0 ? is.st_ino : 0;
  }

  TijdelijkeMap map;
  fs::path pad = map / "Fan één.dat";
  std::optional<Herinnering> gelezen;
};

TEST_F(Bewaren, WritesWhatIsNewAndRemembersIt) {
  EXPECT_EQ(Bewaar("een").Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(gelezen, Onthoud(LeesInhoud(pad), "een"));
  EXPECT_EQ(Bewaar("twee").Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(Lees(pad), "twee");
  EXPECT_THAT(map.Namen(), ElementsAre("Fan één.dat"));
}

TEST_F(Bewaren, WritesNothingWhenTheSameStandsThere) {
  LeesToen("inhoud en staart");
  const ino_t knoop = Knoop();
  EXPECT_EQ(Bewaar("inhoud", Staart::Blijft).Besluit, Bewaarbesluit::Niets);
  EXPECT_EQ(Knoop(), knoop);
  EXPECT_EQ(Bewaar("inhoud", Staart::Vervalt).Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(Lees(pad), "inhoud");
}

TEST_F(Bewaren, NeedsNoRightToWriteWhereNothingIsToBeWritten) {
  LeesToen("inhoud");
  const Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Schrijf ? ENOSPC : 0; });
  EXPECT_EQ(Bewaar("inhoud").Besluit, Bewaarbesluit::Niets);
}

TEST_F(Bewaren, HandsOverWhatOnlyTheyChanged) {
  LeesToen("toen");
  Schrijf(pad, "hun");
  const Bewaring uit = Bewaar("toen");
  EXPECT_EQ(uit.Besluit, Bewaarbesluit::NeemHunne);
  EXPECT_EQ(uit.Hunne.Bytes, "hun");
  EXPECT_EQ(uit.Hunne.Stempel, LeesInhoud(pad).Stempel);
  EXPECT_FALSE(uit.Daarna.has_value());
  EXPECT_EQ(Lees(pad), "hun");
}

TEST_F(Bewaren, OverwritesWhatBothChangedOnlyWhenSavedAgain) {
  LeesToen("toen");
  Schrijf(pad, "hun");
  EXPECT_EQ(Bewaar("ons").Besluit, Bewaarbesluit::Vraag);
  EXPECT_EQ(Lees(pad), "hun");
  Schrijf(pad, "weer hun");  // while the question stands
  EXPECT_EQ(Bewaar("ons").Besluit, Bewaarbesluit::Vraag);
  EXPECT_EQ(Lees(pad), "weer hun");
  EXPECT_EQ(Bewaar("ons").Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(Lees(pad), "ons");
}

TEST_F(Bewaren, WritesAFileThatTheyRemoved) {
  LeesToen("toen");
  fs::remove(pad);
  EXPECT_EQ(Bewaar("toen").Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(Lees(pad), "toen");
}

TEST_F(Bewaren, WritesToADeviceWithoutReadingIt) {
  pad = "/dev/null";
  EXPECT_EQ(Bewaar("weg").Besluit, Bewaarbesluit::Schrijf);
  EXPECT_FALSE(gelezen.has_value());
}

TEST_F(Bewaren, TellsWhyItCannotBeDone) {
  LeesToen("toen");
  const auto nummer = [this] { return NummerVan([this] { return Bewaar("ons").Besluit; }); };
  {
    const Bestandsslot ander(pad);
    EXPECT_EQ(NummerVan([this] { return Bestandsslot(pad, std::chrono::milliseconds(1)), 0; }), 70);
  }
  {
    const Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Schrijf ? ENOSPC : 0; });
    EXPECT_EQ(nummer(), 61);
  }
  EXPECT_EQ(Lees(pad), "toen");
  fs::remove(pad);
  fs::create_directory(pad);
  EXPECT_EQ(nummer(), 75);
  fs::remove(pad);
  pad = map / "weg" / "Fan.dat";
  EXPECT_EQ(nummer(), 76);
}

TEST_F(Bewaren, NeedsNoLock) {
  LeesToen("toen");
  const Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Grendel ? ENOLCK : 0; });
  EXPECT_EQ(Bewaar("ons").Besluit, Bewaarbesluit::Schrijf);
  EXPECT_EQ(Lees(pad), "ons");
}

/// Adds a letter to the file so often, each time to what then stands there.
void Voeg(const fs::path& pad, char letter, int keer) {
  for (int gedaan = 0; gedaan < keer;) {
    const Inhoud was = LeesInhoud(pad);
    const std::string nieuw = was.Bytes + letter;
    const Bewaring uit = BewaarBeeld(pad, nieuw, Staart::Vervalt, Onthoud(was, was.Bytes));
    if (uit.Besluit == Bewaarbesluit::Schrijf) ++gedaan;
  }
}

TEST_F(Bewaren, LosesNothingOfTwoProgramsThatSaveBesideEachOther) {
  constexpr int Keer = 50;
  Schrijf(pad, "");
  const pid_t kind = ::fork();
  if (kind == 0) {
    Voeg(pad, 'a', Keer);
    ::_exit(0);
  }
  Voeg(pad, 'b', Keer);
  int status = -1;
  ::waitpid(kind, &status, 0);
  EXPECT_EQ(status, 0);
  const std::string staat = Lees(pad);
  EXPECT_EQ(std::count(staat.begin(), staat.end(), 'a'), Keer);
  EXPECT_EQ(std::count(staat.begin(), staat.end(), 'b'), Keer);
  EXPECT_THAT(map.Namen(), ElementsAre("Fan één.dat"));
}

TEST_F(Bewaren, OverwritesWithoutAskingWhenTold) {
  Schrijf(pad, "wat er ook staat");
  SchrijfBeeld(pad, "ons", Staart::Blijft);
  EXPECT_EQ(Lees(pad), "ons er ook staat");
}

TEST_F(Bewaren, KnowsAFileByAnyOfItsNames) {
  Schrijf(pad, "x");
  fs::create_symlink(pad, map / "link");
  EXPECT_TRUE(IsZelfdePad(pad, map / "link"));
  EXPECT_TRUE(IsZelfdePad(pad, map / "." / "Fan één.dat"));
  EXPECT_FALSE(IsZelfdePad(pad, map / "ander"));
  fs::remove(pad);
  EXPECT_TRUE(IsZelfdePad(pad, pad));  // not there any more
  EXPECT_FALSE(IsZelfdePad(pad, map / "ander"));
}

}  // namespace
}  // namespace murvane
