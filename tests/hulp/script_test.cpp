// The scripted user itself: a test that relies on it must fail when the program asks something else.

#include "tests/hulp/script.h"

#include <gtest/gtest.h>

#include <vector>

namespace murvane {
namespace {

using proef::Script;

struct Fouten {
  std::vector<std::string> lijst;
  [[nodiscard]] Script::MeldFout Meld() {
    return [this](const std::string& fout) { lijst.push_back(fout); };
  }
};

const Melding Ja{MeldingSoort::Vraag, "T", "Ja?", Knoppen::YesNo};

TEST(Script, AnswersInOrder) {
  Fouten fouten;
  {
    Script script(fouten.Meld());
    script.Box(Ja, Antwoord::Yes).InvoerBox({"T", "Naam", "A"}, "B");
    EXPECT_EQ(script.Toon(Ja), Antwoord::Yes);
    EXPECT_EQ(script.Invoer({"T", "Naam", "A"}), "B");
  }
  EXPECT_TRUE(fouten.lijst.empty());
}

TEST(Script, FailsOnAnotherQuestionAndCancelsIt) {
  Fouten fouten;
  Script script(fouten.Meld());
  EXPECT_EQ(script.Toon(Ja), Antwoord::Cancel);
  EXPECT_EQ(fouten.lijst.size(), 1U);
  EXPECT_EQ(script.Invoer({}), "");
  EXPECT_EQ(fouten.lijst.size(), 2U);
  EXPECT_THROW((void)script.OpenDialoog({}), Fout);
  EXPECT_THROW((void)script.OpslaanDialoog({}), Fout);
  EXPECT_EQ(fouten.lijst.size(), 4U);
  script.Open({}, "a.mrv");
  EXPECT_THROW((void)script.OpslaanDialoog({}), Fout);
  EXPECT_EQ(fouten.lijst.size(), 5U);
  EXPECT_EQ(script.OpenDialoog({}), "a.mrv");
  EXPECT_EQ(fouten.lijst.size(), 5U);
}

TEST(Script, SeesEveryPartOfAFileDialog) {
  const BestandVraag goed{"T", "F", "map", "naam", false, false, false};
  std::vector<BestandVraag> anders(7, goed);
  anders[0].Titel = "t";
  anders[1].Filter = "f";
  anders[2].BeginMap = "Map";
  anders[3].Naam = "Naam";
  anders[4].OverschrijfVraag = true;
  anders[5].BestandMoetBestaan = true;
  anders[6].MapBlijft = true;
  for (const BestandVraag& vraag : anders) {
    Fouten fouten;
    Script script(fouten.Meld());
    script.Open(goed, "x");
    EXPECT_THROW((void)script.OpenDialoog(vraag), Fout);
    EXPECT_EQ(fouten.lijst.size(), 1U);
  }
}

TEST(Script, FailsOnAQuestionThatIsNeverAsked) {
  Fouten fouten;
  { Script(fouten.Meld()).Box(Ja); }
  EXPECT_EQ(fouten.lijst.size(), 1U);
}

TEST(Script, FailsOnAWaitCursorThatStaysOrStandsOverAQuestion) {
  Fouten fouten;
  {
    Script script(fouten.Meld());
    script.Box(Ja);
    script.Wachten(true);
    (void)script.Toon(Ja);
    EXPECT_EQ(fouten.lijst.size(), 1U);
  }
  EXPECT_EQ(fouten.lijst.size(), 2U);
}

}  // namespace
}  // namespace murvane
