// The input page of the open element in the real window.

#include "editor/elementpagina.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <functional>

#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Elementpagina : public ProjectVenster {
 protected:
  void Voeg(int record) {
    Zoek<QListWidget>("lstTotaal")->setCurrentRow(record - 1);
    QTest::keyClick(Zoek<QWidget>("lstTotaal"), Qt::Key_Return);
  }
  /// A duct and behind it an element of the catalogue record, which is open.
  void MaakKeten(int record) {
    Nieuw();
    KiesTab(Tab::Kanaalelementen);
    Voeg(8);
    Voeg(record);
  }
  QComboBox* Wand() { return Zoek<QComboBox>("cmbKanaal"); }
  void KiesWand(int rij) {
    Wand()->setCurrentIndex(rij);
    emit Wand()->activated(rij);
  }
  ElementRec& Element(std::size_t n) { return project.Elementen.at(n); }
};

TEST_F(Elementpagina, ABranchWithoutRoundingIsChangedByLookingAtIt) {
  MaakKeten(1);
  KiesElement(1);
  Element(2).RAftak = 0;
  MaakBerekend();
  KiesElement(2);
  EXPECT_EQ(Veld("txtRAftak")->text(), "0,15");
  EXPECT_EQ(Element(2).RAftak, 0.15);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
  EXPECT_EQ(venster->DeSessie().Aanroep, "27");
}

TEST_F(Elementpagina, BetweenTwoRoomsABranchHasItsOwnFlow) {
  MaakKeten(1);
  venster->KiesType(rekentype::Overspraak);
  KiesElement(1);
  Element(2).RAftak = 0.2;
  Element(2).QAftak = 0.5;
  MaakBerekend();
  KiesElement(2);
  EXPECT_FALSE(Veld("txtQAftak")->isVisible());
  EXPECT_EQ(Element(2).QAftak, 0.01);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
  EXPECT_EQ(venster->DeSessie().Aanroep, "25");
}

TEST_F(Elementpagina, AnotherWallIsAChangeAndTheSameIsNone) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  Element(1).Rkanaalwand[7] = 33;
  MaakBerekend();
  KiesWand(3);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
  EXPECT_EQ(venster->DeSessie().Aanroep, "50");
  const SpectrumRec& record = catalogi.CatRduct.Records[4];
  EXPECT_EQ(Element(1).Kanaal.Heel(), record.SpecNaam.Heel());
  for (std::size_t band = 0; band < Banden; ++band)
    EXPECT_EQ(Element(1).Rkanaalwand[band], record.SpecWaarde[band]);
  EXPECT_EQ(Element(1).Rkanaalwand[7], 33);
  MaakBerekend();
  KiesWand(3);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
  EXPECT_EQ(venster->DeSessie().Aanroep, "");
}

TEST_F(Elementpagina, AnEmptiedWallGetsItsPlaceholder) {
  const QString geen = "<geen kanaalwand geselecteerd>" + QString(50, ' ');
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  KiesWand(3);
  Wand()->setEditText("");
  EXPECT_EQ(Wand()->currentText(), geen);
}

TEST_F(Elementpagina, AWallThatIsLeftBlankIsCleared) {
  const QString geen = "<geen kanaalwand geselecteerd>" + QString(50, ' ');
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  KiesWand(3);
  Wand()->setFocus(Qt::TabFocusReason);
  Wand()->setEditText("  ");
  NaarVeld("txtHoogte");
  EXPECT_EQ(Wand()->currentText(), geen);
  EXPECT_EQ(Element(1).Kanaal.Heel(), NaarCp(geen));
}

TEST_F(Elementpagina, ATypedWallIsStoredWhicheverWayItsBoxIsLeft) {
  const auto klik = [](QWidget* vak, QPoint waar) { QTest::mouseClick(vak, Qt::LeftButton, {}, waar); };
  const std::vector<std::pair<const char*, std::function<void()>>> wegen = {
      {"Enter", [&] { Druk(Qt::Key_Return); }},
      {"Tab", [&] { Druk(Qt::Key_Tab); }},
      {"Shift+Tab", [&] { Druk(Qt::Key_Backtab); }},
      {"the mouse", [&] { klik(Veld("txtHoogte"), QPoint(5, 5)); }},
      {"another tab",
       [&] {
         QTabBar* const balk = Zoek<QTabWidget>("SSTab1")->tabBar();
         klik(balk, balk->tabRect(2).center());
       }},
      {"a key to another tab",
       [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier); }},
      {"another element", [&] { KiesElement(2); }},
      {"the catalogue", [&] { klik(Zoek<QListWidget>("lstTotaal")->viewport(), QPoint(20, 5)); }},
      {"a button of the chain", [&] { klik(Zoek<QWidget>("Toolbar2_Up"), QPoint(5, 5)); }},
      {"a run", [&] { EXPECT_TRUE(venster->NeemOverEnBeoordeel()); }},
      {"a save", [&] { EXPECT_TRUE(venster->BewaarVeld()); }},
      {"another type", [&] { venster->KiesType(rekentype::Overspraak); }},
  };
  for (const auto& [naam, verlaat] : wegen) {
    OpenVoorbeeld("kantoor.mrv");
    KiesElement(1);
    Wand()->setFocus(Qt::TabFocusReason);
    Wand()->lineEdit()->selectAll();
    Typ("Eigen wand");
    verlaat();
    EXPECT_EQ(Element(1).Kanaal.Getrimd(), "Eigen wand") << naam;
  }
}

TEST_F(Elementpagina, ATypedWallIsAChangeAndLeavingTheStoredOneIsNone) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  Wand()->setFocus(Qt::TabFocusReason);
  MaakBerekend();
  NaarVeld("txtHoogte");
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
  Wand()->setFocus(Qt::TabFocusReason);
  Wand()->lineEdit()->selectAll();
  Typ("Eigen wand");
  NaarVeld("txtHoogte");
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
  EXPECT_EQ(venster->DeSessie().Aanroep, "50");
}

TEST_F(Elementpagina, ShowsTheWallThatWasStored) {
  OpenVoorbeeld("kantoor.mrv");
  Element(1).Kanaal = std::string_view("Eigen wand");
  KiesElement(2);
  KiesElement(1);
  EXPECT_EQ(Wand()->currentText().trimmed(), "Eigen wand");
}

struct Opgeschreven {
  const char* Naam;
  QStringList Teksten;  ///< caption and unit
};
const std::vector<Opgeschreven> Maten = {
    {"txtBreedte", {"Breedte", "mm"}},
    {"txtLengte", {"Lengte", "m"}},
    {"txtDebiet", {"Luchtdebiet", "m³/s"}},
    {"cmbKanaal", {"Kanaalwand"}},
    {"txtBAftak", {"Breedte aftakking", "mm"}},
    {"txtRAftak", {"Afronding r/d aftakking", ""}},
    {"txtQAftak", {"Luchtdebiet aftakking", "m³/s"}},
    {"txtHHoofd", {"Hoogte of diameter hoofdkanaal", "mm"}},
    {"txtBHoofd", {"Breedte hoofdkanaal", "mm, 0 is rond"}},
    {"txtHDoor", {"Hoogte of diameter doorgaand kanaal", "mm"}},
    {"txtBDoor", {"Breedte doorgaand kanaal", "mm, 0 is rond"}},
    {"txtB1Doorsnee", {"Breedte intrede", "mm"}},
    {"txtB2Doorsnee", {"Breedte uittrede", "mm"}},
    {"txtLDoorsnee", {"Lengte", "m"}},
    {"txtSnetto", {"Netto doorlaat", "cm²"}},
    {"txtWeerstand", {"Weerstand", "Pa"}},
    {"txtfan_0", {"Totale luchtverplaatsing", "m³/s"}},
    {"txtfan_1", {"Totaal drukverlies", "Pa"}},
    {"txtfan_2", {"Toerental", "omw/min"}},
    {"txtfan_3", {"Aantal schoepen", "stuks"}},
    {"txtfan_4", {"Asvermogen", "W"}},
    {"txtProNum", {"Projectnummer"}},
    {"txtMyDate", {"Datum"}},
    {"txtProNaam", {"Projectnaam"}},
    {"txtOmschrijving", {"Omschrijving"}},
    {"txtToelichting1", {"Toelichting"}},
    {"txtSpectrum", {"Naam ventilator"}},
};

TEST_F(Elementpagina, EveryFieldHasItsCaptionAndUnit) {
  Nieuw();
  for (const Opgeschreven& vak : Maten) EXPECT_EQ(Opschriften(vak.Naam), vak.Teksten) << vak.Naam;
  EXPECT_TRUE(Opschriften("txtdemp_0").contains("Geluidsinstraling"));
  EXPECT_TRUE(Opschriften("txtdemp_0").contains("LAeq in dB(A)"));
  EXPECT_TRUE(Opschriften("txtdemp_7").contains("Invoegdemping in dB"));
  EXPECT_TRUE(Opschriften("txtruis_0").contains("Eigenruis in dB"));
  EXPECT_TRUE(Opschriften("txtLw_0").contains("Lw in dB"));
}

TEST_F(Elementpagina, AHeightIsADiameterWhereTheElementIsRound) {
  struct Rij {
    int Record;
    const char* Naam;
    const char* Opschrift;
  };
  for (const Rij& rij :
       {Rij{8, "txtHoogte", "Hoogte"}, Rij{9, "txtHoogte", "Diameter"}, Rij{3, "txtHoogte", "Hoogte"},
        Rij{5, "txtHoogte", "Diameter"}, Rij{1, "txtHAftak", "Hoogte aftakking"},
        Rij{2, "txtHAftak", "Diameter aftakking"}, Rij{6, "txtH1Doorsnee", "Hoogte intrede"},
        Rij{7, "txtH1Doorsnee", "Diameter intrede"}, Rij{6, "txtH2Doorsnee", "Hoogte uittrede"},
        Rij{7, "txtH2Doorsnee", "Diameter uittrede"}}) {
    MaakKeten(rij.Record);
    EXPECT_EQ(Opschriften(rij.Naam), (QStringList{rij.Opschrift, "mm"})) << rij.Record;
  }
}

TEST_F(Elementpagina, LabelsComeAndGoWithTheirFields) {
  for (const int record : {8, 5, 9, 3, 2, 1, 7, 6, 10, 11, 12, 8}) {
    MaakKeten(record);
    const Pagina pagina = PaginaVan(Element(2).ElementType);
    for (const VeldId& veld : PaginaVelden(pagina)) {
      const bool zichtbaar = ElementVeldZichtbaar(project, 2, veld);
      auto* const vak = Zoek<QWidget>(ObjectNaam(veld));
      for (const QLabel* const label : venster->findChildren<QLabel*>()) {
        if (label->buddy() == vak) {
          EXPECT_EQ(label->isVisible(), zichtbaar) << record << veld.Naam << label->text().toStdString();
        }
      }
    }
  }
}

TEST_F(Elementpagina, EnterLeavesALoneFieldForTheChain) {
  struct Rij {
    int Record;
    const char* Van;
  };
  for (const Rij& rij : {Rij{5, "txtHoogte"}, Rij{10, "txtWeerstand"}}) {
    MaakKeten(rij.Record);
    ASSERT_EQ(Focus(), rij.Van);
    Druk(Qt::Key_Return);
    EXPECT_EQ(Focus(), "lstProject") << rij.Record;
    EXPECT_EQ(venster->DeLijst().HuidigElement, 2);
  }
}

TEST_F(Elementpagina, EnterWalksRoundEveryPage) {
  struct Rij {
    int Record;
    QStringList Velden;
  };
  const std::vector<Rij> rijen = {
      {3, {"txtHoogte", "txtBreedte", "txtHoogte"}},
      {8, {"txtHoogte", "txtBreedte", "txtLengte", "txtHoogte"}},
      {9, {"txtHoogte", "txtLengte", "txtHoogte"}},
      {1, {"txtHAftak", "txtBAftak", "txtRAftak", "txtQAftak", "txtHAftak"}},
      {2, {"txtHAftak", "txtRAftak", "txtQAftak", "txtHAftak"}},
      {6,
       {"txtH1Doorsnee", "txtB1Doorsnee", "txtH2Doorsnee", "txtB2Doorsnee", "txtLDoorsnee", "txtH1Doorsnee"}},
      {7, {"txtH1Doorsnee", "txtH2Doorsnee", "txtLDoorsnee", "txtH1Doorsnee"}},
      {11, {"txtSnetto", "txtWeerstand", "txtSnetto"}},
  };
  for (const Rij& rij : rijen) {
    MaakKeten(rij.Record);
    for (const QString& naam : rij.Velden) {
      EXPECT_EQ(Focus(), naam) << rij.Record;
      Druk(Qt::Key_Return);
    }
  }
}

TEST_F(Elementpagina, EscapePutsBackWhatEachPageHad) {
  for (int record = 1; record <= 12; ++record) {
    MaakKeten(record);
    for (const VeldId& veld : PaginaVelden(PaginaVan(Element(2).ElementType))) {
      if (veld.Naam == "cmbKanaal" || !ElementVeldZichtbaar(project, 2, veld)) continue;
      InvoerVeld* const vak = Zoek<InvoerVeld>(ObjectNaam(veld));
      if (vak->isReadOnly()) continue;
      vak->setFocus(Qt::TabFocusReason);
      Typ("7");
      Druk(Qt::Key_Backtab);  // stores it
      vak->setFocus(Qt::TabFocusReason);
      const QString was = vak->text();
      EXPECT_EQ(was, VanCp(HerstelTekst(project, 2, veld, ','))) << record << veld.Naam;
      Typ("3");
      ASSERT_NE(vak->text(), was) << record << veld.Naam;
      MaakBerekend();
      Druk(Qt::Key_Escape);
      EXPECT_EQ(vak->text(), was) << record << veld.Naam;
      EXPECT_EQ(vak->selectedText(), was) << record << veld.Naam;
      EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
      EXPECT_EQ(venster->DeSessie().Aanroep, std::to_string(Regel(veld).Berekend));
    }
  }
}

}  // namespace
}  // namespace murvane
