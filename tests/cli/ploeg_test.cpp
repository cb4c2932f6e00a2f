#include "cli/ploeg.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <new>
#include <numeric>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace murvane::clitest {
namespace {

std::vector<std::string> Meldingen(std::size_t aantal, unsigned taken,
                                   const std::function<Werk()>& nieuwWerk) {
  std::vector<std::string> uit;
  VerdeelWerk(aantal, taken, nieuwWerk, [&uit](const Uitslag& uitslag) { uit.push_back(uitslag.Melding); });
  return uit;
}

std::vector<std::string> Nummers(std::size_t aantal) {
  std::vector<std::string> uit;
  for (std::size_t i = 0; i < aantal; ++i) uit.push_back(std::to_string(i));
  return uit;
}

Werk Nummer() {
  return [](std::size_t i) { return Uitslag{0, std::to_string(i)}; };
}

TEST(Ploeg, DoesEveryFileOnceAndTellsInOrder) {
  for (const unsigned taken : {1U, 2U, 8U, 100U}) {
    for (const std::size_t aantal : {0U, 1U, 7U, 500U})
      EXPECT_EQ(Meldingen(aantal, taken, Nummer), Nummers(aantal));
  }
}

TEST(Ploeg, NoneAskedForIsOne) {
  EXPECT_EQ(Meldingen(3, 0, Nummer), Nummers(3));
}

TEST(Ploeg, ALaterFileThatIsReadyFirstWaitsWithItsMessage) {
  std::promise<void> klaar;
  std::shared_future<void> eenKlaar = klaar.get_future().share();
  const auto werk = [&]() -> Werk {
    return [&, eenKlaar](std::size_t i) {
      if (i == 0) eenKlaar.wait();  // file 0 ends only after file 1
      if (i == 1) klaar.set_value();
      return Uitslag{0, std::to_string(i)};
    };
  };
  EXPECT_EQ(Meldingen(2, 2, werk), Nummers(2));
}

TEST(Ploeg, EveryThreadHasAWorkOfItsOwnAndNeverMoreThanFiles) {
  int gemaakt = 0;
  const auto werk = [&gemaakt]() -> Werk {
    ++gemaakt;
    return Nummer();
  };
  (void)Meldingen(20, 4, werk);
  EXPECT_EQ(gemaakt, 4);
  gemaakt = 0;
  (void)Meldingen(3, 1000, werk);
  EXPECT_EQ(gemaakt, 3);
}

TEST(Ploeg, WhatAThreadThrowsComesOutAtTheCaller) {
  const auto geenGeheugen = []() -> Werk {
    return [](std::size_t i) -> Uitslag {
      if (i == 5) throw std::bad_alloc();
      return {};
    };
  };
  for (const unsigned taken : {1U, 4U})
    EXPECT_THROW((void)Meldingen(20, taken, geenGeheugen), std::bad_alloc);
}

TEST(Ploeg, WhatTheReceiverThrowsStopsTheWork) {
  const auto meld = [](const Uitslag&) { throw std::runtime_error("weg"); };
  EXPECT_THROW(VerdeelWerk(20, 4, Nummer, meld), std::runtime_error);
}

TEST(Uitslagen, WhateverIsThrownBecomesADutchMessage) {
  const auto na = [](auto gooi) {
    return Bewaakt("a.mrv", [&]() -> Uitslag {
      gooi();
      return {};
    });
  };
  EXPECT_EQ(na([] { throw std::bad_alloc(); }).Melding, "a.mrv: Fout 7 - Onvoldoende geheugen.");
  EXPECT_EQ(na([] { throw std::runtime_error("it broke"); }).Melding, "a.mrv: Fout 51 - Interne fout.");
  EXPECT_EQ(na([] { throw 1; }).Melding, "a.mrv: Fout 51 - Interne fout.");
  EXPECT_EQ(na([] { throw 1; }).Status, 1);
  EXPECT_EQ(na([] { throw std::bad_alloc(); }).Status, 1);
  EXPECT_EQ(na([] { throw Gebruiksfout("Zo niet."); }).Status, 64);
  EXPECT_EQ(na([] { throw Gebruiksfout("Zo niet."); }).Melding, "Zo niet.");
  EXPECT_EQ(na([] {}).Status, 0);
  EXPECT_EQ(na([] {}).Melding, "");
}

TEST(Uitslagen, AFaultGoesBeforeARefusalAndThatBeforeSuccess) {
  EXPECT_EQ(Zwaarste(0, 0), 0);
  EXPECT_EQ(Zwaarste(0, 2), 2);
  EXPECT_EQ(Zwaarste(2, 0), 2);
  EXPECT_EQ(Zwaarste(2, 1), 1);
  EXPECT_EQ(Zwaarste(1, 2), 1);
  EXPECT_EQ(Zwaarste(0, 1), 1);
  EXPECT_EQ(Zwaarste(64, 0), 64);
}

}  // namespace
}  // namespace murvane::clitest
