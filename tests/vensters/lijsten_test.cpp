// The two lists and their toolbars in the real window.

#include <gtest/gtest.h>

#include <QStackedWidget>
#include <QToolButton>

#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Lijsten : public ProjectVenster {
 protected:
  QListWidget* Keten() { return Zoek<QListWidget>("lstProject"); }
  void Knop(const char* naam) { Zoek<QToolButton>(naam)->click(); }
  void Toets(const char* lijst, Qt::Key toets) { QTest::keyClick(Zoek<QWidget>(lijst), toets); }
  void Voeg(int record, int keer = 1) {
    for (int i = 0; i < keer; ++i) {
      Zoek<QListWidget>("lstTotaal")->setCurrentRow(record - 1);
      Toets("lstTotaal", Qt::Key_Return);
    }
  }
  std::vector<int> Typen() {
    std::vector<int> uit;
    for (int n = 1; n <= project.ElementCount; ++n)
      uit.push_back(project.Elementen[static_cast<std::size_t>(n)].ElementType);
    return uit;
  }
  QStringList Rijen() {
    QStringList uit;
    for (int rij = 0; rij < Keten()->count(); ++rij) uit << Keten()->item(rij)->text();
    return uit;
  }
  /// The chain is active and no row of it selected, as after a deletion that was refused.
  void KiesGeenRij() {
    KiesElement(1);
    script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 1 wissen?", Knoppen::OkCancel},
               Antwoord::Cancel);
    Toets("lstProject", Qt::Key_Delete);
    ASSERT_EQ(Keten()->currentRow(), -1);
  }
};

TEST_F(Lijsten, LookingAtEveryElementLeavesTheProjectCalculated) {
  for (const char* const naam : VoorbeeldNamen) {
    OpenVoorbeeld(naam);
    ASSERT_TRUE(venster->NeemOverEnBeoordeel());
    const std::string was = ProjectBytes(project);
    MaakBerekend();
    venster->DeSessie().Aanroep = "ongewijzigd";
    for (int n = 1; n <= project.ElementCount; ++n) KiesElement(n);
    KiesElement(1);
    EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend) << naam;
    EXPECT_EQ(venster->DeSessie().Aanroep, "ongewijzigd") << naam;
    EXPECT_EQ(ProjectBytes(project), was) << naam;
  }
}

TEST_F(Lijsten, FillingAnotherProjectOverACalculatedOneRaisesNoChange) {
  for (const char* const eerst : VoorbeeldNamen) {
    for (const char* const dan : VoorbeeldNamen) {
      OpenVoorbeeld(eerst);
      project = LeesProject(Data / dan);
      const std::string was = ProjectBytes(project);
      MaakBerekend();
      venster->DeSessie().Aanroep = "ongewijzigd";
      venster->ToonProject(true);
      EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend) << eerst << dan;
      EXPECT_EQ(venster->DeSessie().Aanroep, "ongewijzigd") << eerst << dan;
      EXPECT_EQ(ProjectBytes(project), was) << eerst << dan;
    }
  }
}

TEST_F(Lijsten, EachButtonDoesWhatItSays) {
  Nieuw();
  Voeg(8, 2);
  KiesRecord(9);
  Knop("Toolbar1_Add");
  EXPECT_EQ(Typen(), (std::vector{8, 8, 9}));
  EXPECT_EQ(venster->DeSessie().Aanroep, "3");
  KiesRecord(10);
  Knop("Toolbar1_Prop");
  EXPECT_EQ(Typen(), (std::vector{8, 8, 10, 9}));
  EXPECT_EQ(venster->DeSessie().Aanroep, "1");
  Knop("Toolbar2_Down");
  EXPECT_EQ(Typen(), (std::vector{8, 8, 9, 10}));
  EXPECT_EQ(venster->DeSessie().Aanroep, "43");
  EXPECT_EQ(Keten()->currentRow(), 3);
  venster->DeSessie().Aanroep.clear();
  Knop("Toolbar2_Up");
  EXPECT_EQ(Typen(), (std::vector{8, 8, 10, 9}));
  EXPECT_EQ(venster->DeSessie().Aanroep, "43");
  EXPECT_EQ(Keten()->currentRow(), 2);
  script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 3 wissen?", Knoppen::OkCancel},
             Antwoord::OK);
  Knop("Toolbar2_Delete");
  EXPECT_EQ(Typen(), (std::vector{8, 8, 9}));
  EXPECT_EQ(venster->DeSessie().Aanroep, "2");
  EXPECT_EQ(Rijen(), (QStringList{"1. Kanaal rechthoekig", "2. Kanaal rechthoekig", "3. Kanaal rond"}));
}

TEST_F(Lijsten, TheButtonsTellWhatTheyDo) {
  Nieuw();
  const std::vector<std::pair<const char*, const char*>> knoppen = {
      {"Toolbar1_Add", "Kanaalelementen toevoegen"},
      {"Toolbar1_Prop", "Kanaalelementen invoegen"},
      {"Toolbar2_Delete", "Kanaalelementen wissen"},
      {"Toolbar2_Down", "Kanaalelementen verplaatsen"},
      {"Toolbar2_Up", "Kanaalelementen verplaatsen"}};
  for (const auto& [naam, tip] : knoppen) {
    EXPECT_EQ(Zoek<QToolButton>(naam)->toolTip(), tip) << naam;
    EXPECT_FALSE(Zoek<QToolButton>(naam)->isEnabled()) << naam;
    EXPECT_FALSE(Zoek<QToolButton>(naam)->icon().isNull()) << naam;
  }
}

TEST_F(Lijsten, TheEndsOfTheChainStayWhereTheyAre) {
  OpenVoorbeeld("kantoor.mrv");
  ASSERT_TRUE(venster->NeemOverEnBeoordeel());
  const std::string was = ProjectBytes(project);
  MaakBerekend();
  KiesElement(1);
  Knop("Toolbar2_Up");
  EXPECT_EQ(Keten()->currentRow(), 0);
  KiesElement(project.ElementCount);
  Knop("Toolbar2_Down");
  EXPECT_EQ(Keten()->currentRow(), project.ElementCount - 1);
  EXPECT_EQ(ProjectBytes(project), was);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
}

TEST_F(Lijsten, AFullChainTakesNoMore) {
  const Melding vol{MeldingSoort::Uitroep, "Invoer-stop", "Maximaal aantal kanaalelementen bereikt (99)",
                    Knoppen::OK};
  Nieuw();
  Voeg(9, 98);
  Voeg(8);
  ASSERT_EQ(project.ElementCount, 99);
  const std::string was = ProjectBytes(project);
  KiesRecord(10);
  script.Box(vol);
  Druk(Qt::Key_Return);
  script.Box(vol);
  Knop("Toolbar1_Add");
  script.Box(vol);
  Knop("Toolbar1_Prop");
  script.IsKlaar();
  EXPECT_EQ(ProjectBytes(project), was);
  EXPECT_EQ(Keten()->count(), 99);
}

TEST_F(Lijsten, WithoutARowNothingIsDeletedOrMoved) {
  OpenVoorbeeld("kantoor.mrv");
  const std::string was = ProjectBytes(project);
  KiesGeenRij();
  script.Box(Waarschuwing("Geen kanaalelementen geselecteerd"));
  Toets("lstProject", Qt::Key_Delete);
  script.Box(Waarschuwing("Geen kanaalelementen geselecteerd"));
  Knop("Toolbar2_Delete");
  for (const char* const knop : {"Toolbar2_Up", "Toolbar2_Down"}) {
    script.Box(Waarschuwing("Geen kanaalelement geselecteerd"));
    Knop(knop);
  }
  script.IsKlaar();
  EXPECT_EQ(ProjectBytes(project), was);
}

TEST_F(Lijsten, TheListThatIsNotActiveChangesNothing) {
  OpenVoorbeeld("kantoor.mrv");
  KiesRecord(10);
  KiesElement(2);
  const std::string was = ProjectBytes(project);
  Toets("lstTotaal", Qt::Key_Insert);
  KiesRecord(10);
  Toets("lstProject", Qt::Key_Delete);
  EXPECT_EQ(ProjectBytes(project), was);
}

TEST_F(Lijsten, AClickOnTheCatalogueTakesOverWhatThePageShows) {
  OpenVoorbeeld("kantoor.mrv");
  project.Elementen[1].Lengte = 1.23;
  KiesElement(1);
  ASSERT_EQ(Veld("txtLengte")->text(), "1,2");
  auto* const totaal = Zoek<QListWidget>("lstTotaal");
  QTest::mouseClick(totaal->viewport(), Qt::LeftButton, {}, totaal->visualItemRect(totaal->item(0)).center());
  EXPECT_EQ(project.Elementen[1].Lengte, 1.2);
  EXPECT_FALSE(Zoek<QWidget>("SSTab2")->isVisible());
}

TEST_F(Lijsten, TheWholeTextOfARowIsAtHand) {
  OpenVoorbeeld("kantoor.mrv");
  for (const char* const naam : {"lstTotaal", "lstProject", "lstFan"}) {
    const auto* const lijst = Zoek<QListWidget>(naam);
    ASSERT_GT(lijst->count(), 0);
    for (int rij = 0; rij < lijst->count(); ++rij)
      EXPECT_EQ(lijst->item(rij)->toolTip(), lijst->item(rij)->text());
  }
}

}  // namespace
}  // namespace murvane
