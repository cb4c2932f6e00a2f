// The room tab in the real window: what shows for each calculation type, the free field, wall and ceiling.

#include "editor/ruimtetab.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <functional>

#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Ruimtetab : public ProjectVenster {
 protected:
  /// Whether a control and every label that belongs to it show as they should.
  void Toont(const QString& naam, bool zichtbaar) {
    auto* const vak = Zoek<QWidget>(naam);
    EXPECT_EQ(vak->isVisible(), zichtbaar) << naam.toStdString();
    int labels = 0;
    for (const QLabel* const label : venster->findChildren<QLabel*>()) {
      if (label->buddy() != vak) continue;
      ++labels;
      EXPECT_EQ(label->isVisible(), zichtbaar) << naam.toStdString() << ": " << label->text().toStdString();
    }
    EXPECT_GT(labels, 0) << naam.toStdString();
  }
  void ToontZicht(const RuimteZicht& zicht) {
    KiesTab(Tab::Ruimtegegevens);
    Toont("txtRLengte", zicht.txtRLengte);
    Toont("txtRBreedte", zicht.txtRBreedte);
    Toont("txtRHoogte", zicht.txtRHoogte);
    Toont("txtRNagalm", zicht.txtRNagalm);
    Toont("txtRNR", zicht.txtRNR);
    Toont("txtRDI", zicht.txtRDI);
    Toont("txtRAantal", zicht.txtRAantal);
    Toont("cmbRkanaal", zicht.cmbRkanaal);
    Toont("cmbRplafond", zicht.cmbRplafond);
    for (int band = 0; band < Banden; ++band) {
      Toont("txtRkanaal_" + QString::number(band), zicht.cmbRkanaal);
      Toont("txtRplafond_" + QString::number(band), zicht.cmbRplafond);
    }
    EXPECT_EQ(Zoek<QCheckBox>("VrijVeld")->isVisible(), zicht.VrijVeld);
    EXPECT_EQ(Zoek<QWidget>("TekeningRuimte")->accessibleName(),
              zicht.cmbRplafond ? "Tekening: Vertrek onder een kanaal" : "Tekening: Vertrek");
  }
  QStringList Banden7(const QString& naam) {
    QStringList uit;
    for (int band = 0; band < Banden; ++band) uit << Veld(naam + "_" + QString::number(band))->text();
    return uit;
  }
  QComboBox* Keuze(const char* naam) { return Zoek<QComboBox>(naam); }
  /// Chooses a row of a combo box as a user does.
  void Kies(QComboBox* keuze, int rij) {
    keuze->setCurrentIndex(rij);
    emit keuze->activated(rij);
  }
};

// From row to row something shows that was hidden and hides that showed.
constexpr std::array<std::pair<std::int16_t, std::int16_t>, 7> Rijen = {
    {{2, 0}, {1, 1}, {1, 0}, {2, 1}, {3, 0}, {3, 1}, {2, 0}}};

TEST_F(Ruimtetab, ShowsTheFieldsOfAProjectThatWasOpened) {
  for (const auto& [type, vrij] : Rijen) {
    SCOPED_TRACE(std::to_string(type) + "/" + std::to_string(vrij));
    OpenVoorbeeld("kantoor.mrv");
    project.Kop.RekenType = type;
    project.VrijVeld = vrij;
    venster->ToonProject(true);
    ToontZicht(RuimteZichtVan(type, vrij));
    EXPECT_EQ(Zoek<QCheckBox>("VrijVeld")->isChecked(), vrij != 0);
  }
}

TEST_F(Ruimtetab, ShowsTheFieldsThatTheUserSwitchedTo) {
  OpenVoorbeeld("kantoor.mrv");
  for (const auto& [type, vrij] : Rijen) {
    SCOPED_TRACE(std::to_string(type) + "/" + std::to_string(vrij));
    venster->KiesType(rekentype::Installatiegeluid);
    if (Zoek<QCheckBox>("VrijVeld")->isChecked() != (vrij != 0)) Zoek<QCheckBox>("VrijVeld")->click();
    EXPECT_EQ(project.VrijVeld, vrij);
    venster->KiesType(type);
    ToontZicht(RuimteZichtVan(type, vrij));
  }
}

TEST_F(Ruimtetab, TheFreeFieldKeepsItsValueWhereItDoesNotShow) {
  OpenVoorbeeld("kantoor.mrv");
  Zoek<QCheckBox>("VrijVeld")->click();
  venster->KiesType(rekentype::Overspraak);
  KiesTab(Tab::Ruimtegegevens);
  EXPECT_FALSE(Zoek<QCheckBox>("VrijVeld")->isVisible());
  venster->KiesType(rekentype::Installatiegeluid);
  KiesTab(Tab::Ruimtegegevens);
  EXPECT_TRUE(Zoek<QCheckBox>("VrijVeld")->isVisible());
  EXPECT_TRUE(Zoek<QCheckBox>("VrijVeld")->isChecked());
  EXPECT_EQ(project.VrijVeld, 1);
}

TEST_F(Ruimtetab, ShowsWallAndCeilingThatWereStored) {
  OpenVoorbeeld("plafond.mrv");
  project.Ruimte.RkanaalNaam = "Eigen wand";
  project.Ruimte.RplafondNaam = "Eigen plafond";
  project.Ruimte.Rkanaal = {1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 0};
  project.Ruimte.Rplafond = {11.5, 12.5, 13.5, 14.5, 15.5, 16.5, 17.5, 0};
  venster->ToonProject(true);
  EXPECT_EQ(Keuze("cmbRkanaal")->currentText(), "Eigen wand");
  EXPECT_EQ(Keuze("cmbRplafond")->currentText(), "Eigen plafond");
  EXPECT_EQ(Banden7("txtRkanaal"), (QStringList{"1,5", "2,5", "3,5", "4,5", "5,5", "6,5", "7,5"}));
  EXPECT_EQ(Banden7("txtRplafond"), (QStringList{"11,5", "12,5", "13,5", "14,5", "15,5", "16,5", "17,5"}));
}

TEST_F(Ruimtetab, AWallOrCeilingThatWasNotChosenShowsItsPlaceholder) {
  OpenVoorbeeld("plafond.mrv");
  project.Ruimte.RkanaalNaam.clear();
  project.Ruimte.RplafondNaam = "   ";
  venster->ToonProject(true);
  EXPECT_EQ(Keuze("cmbRkanaal")->currentText(), "<geen kanaalwand geselecteerd>" + QString(50, ' '));
  EXPECT_EQ(Keuze("cmbRplafond")->currentText(), "<geen plafond geselecteerd>" + QString(53, ' '));
}

struct KeuzeGeval {
  const char* Vak;
  const char* Banden;
  QString Geen;
  std::string RuimteRec::*Naam;
  Spectrum RuimteRec::*Waarden;
  SpectrumCatalogus Catalogi::*Catalogus;
  const char* Nummer;  ///< of the bands' change event
};
const std::array<KeuzeGeval, 2> Keuzes = {
    {{"cmbRkanaal", "txtRkanaal", "<geen kanaalwand geselecteerd>" + QString(50, ' '),
      &RuimteRec::RkanaalNaam, &RuimteRec::Rkanaal, &Catalogi::CatRduct, "32"},
     {"cmbRplafond", "txtRplafond", "<geen plafond geselecteerd>" + QString(53, ' '),
      &RuimteRec::RplafondNaam, &RuimteRec::Rplafond, &Catalogi::CatRplaf, "35"}}};

TEST_F(Ruimtetab, AChoiceTakesNameAndBandsFromItsOwnCatalogue) {
  for (const KeuzeGeval& geval : Keuzes) {
    OpenVoorbeeld("plafond.mrv");
    KiesTab(Tab::Ruimtegegevens);
    project.Ruimte.*geval.Naam = "iets anders";
    (project.Ruimte.*geval.Waarden)[7] = 33;
    const SpectrumRec& record = (catalogi.*geval.Catalogus).Records[2];
    Kies(Keuze(geval.Vak), 1);
    EXPECT_EQ(project.Ruimte.*geval.Naam, record.SpecNaam.Heel());
    for (std::size_t band = 0; band < Banden; ++band) {
      EXPECT_EQ((project.Ruimte.*geval.Waarden)[band], record.SpecWaarde[band]);
      EXPECT_EQ(Banden7(geval.Banden)[static_cast<int>(band)],
                VanCp(HerstelTekst(project, 0, {geval.Banden, static_cast<int>(band)}, ',')));
    }
    EXPECT_EQ((project.Ruimte.*geval.Waarden)[7], 33);
    EXPECT_EQ(venster->DeSessie().Aanroep, geval.Nummer);
  }
}

TEST_F(Ruimtetab, AnEmptiedChoiceGetsItsOwnPlaceholder) {
  for (const KeuzeGeval& geval : Keuzes) {
    OpenVoorbeeld("plafond.mrv");
    KiesTab(Tab::Ruimtegegevens);
    Keuze(geval.Vak)->setEditText("");
    EXPECT_EQ(Keuze(geval.Vak)->currentText(), geval.Geen);
  }
}

TEST_F(Ruimtetab, AChoiceThatIsLeftBlankIsCleared) {
  for (const KeuzeGeval& geval : Keuzes) {
    OpenVoorbeeld("plafond.mrv");
    KiesTab(Tab::Ruimtegegevens);
    project.Ruimte.*geval.Naam = "iets";
    project.Ruimte.*geval.Waarden = {1, 2, 3, 4, 5, 6, 7, 8};
    venster->ToonProject(false);
    KiesTab(Tab::Ruimtegegevens);
    Keuze(geval.Vak)->setFocus(Qt::TabFocusReason);
    Keuze(geval.Vak)->setEditText("  ");
    NaarVeld("txtRDI");
    EXPECT_EQ(Keuze(geval.Vak)->currentText(), geval.Geen);
    EXPECT_EQ(project.Ruimte.*geval.Naam, NaarCp(geval.Geen));
    EXPECT_EQ(project.Ruimte.*geval.Waarden, (Spectrum{0, 0, 0, 0, 0, 0, 0, 8}));
    EXPECT_EQ(Banden7(geval.Banden), QStringList(Banden, "0,0"));
  }
}

TEST_F(Ruimtetab, ATypedNameThatIsNotTakenOverGoesBackOnLeaving) {
  const std::vector<std::pair<const char*, std::function<void()>>> wegen = {
      {"Tab", [&] { Druk(Qt::Key_Tab); }},
      {"the mouse", [&] { QTest::mouseClick(Veld("txtRDI"), Qt::LeftButton, {}, QPoint(5, 5)); }},
      {"another tab",
       [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier); }},
      {"a run", [&] { EXPECT_TRUE(venster->NeemOverEnBeoordeel()); }},
      {"a save", [&] { EXPECT_TRUE(venster->BewaarVeld()); }},
  };
  for (const KeuzeGeval& geval : Keuzes) {
    for (const auto& [naam, verlaat] : wegen) {
      SCOPED_TRACE(std::string(geval.Vak) + ", " + naam);
      OpenVoorbeeld("plafond.mrv");
      KiesTab(Tab::Ruimtegegevens);
      const RuimteRec was = project.Ruimte;
      Keuze(geval.Vak)->setFocus(Qt::TabFocusReason);
      Keuze(geval.Vak)->lineEdit()->selectAll();
      Typ("zelf bedacht");
      ASSERT_EQ(Keuze(geval.Vak)->currentText(), "zelf bedacht");
      verlaat();
      EXPECT_EQ(NaarCp(Keuze(geval.Vak)->currentText()), was.*geval.Naam);
      EXPECT_EQ(project.Ruimte.*geval.Naam, was.*geval.Naam);
      EXPECT_EQ(project.Ruimte.*geval.Waarden, was.*geval.Waarden);
    }
  }
}

TEST_F(Ruimtetab, ATypedNameGivesThePlaceholderBackWhereNothingWasChosen) {
  for (const KeuzeGeval& geval : Keuzes) {
    Nieuw();
    venster->KiesType(rekentype::Geluidsuitstraling);
    KiesTab(Tab::Ruimtegegevens);
    Keuze(geval.Vak)->setFocus(Qt::TabFocusReason);
    Keuze(geval.Vak)->lineEdit()->selectAll();
    Typ("zelf bedacht");
    Druk(Qt::Key_Tab);
    EXPECT_EQ(Keuze(geval.Vak)->currentText(), geval.Geen);
    EXPECT_EQ(project.Ruimte.*geval.Naam, "");
  }
}

TEST_F(Ruimtetab, ATypedNameOfTheListIsAChoice) {
  for (const KeuzeGeval& geval : Keuzes) {
    OpenVoorbeeld("plafond.mrv");
    KiesTab(Tab::Ruimtegegevens);
    const SpectrumRec& record = (catalogi.*geval.Catalogus).Records[2];
    Keuze(geval.Vak)->setFocus(Qt::TabFocusReason);
    Keuze(geval.Vak)->lineEdit()->selectAll();
    Typ(VanCp(record.SpecNaam.Getrimd()));
    Druk(Qt::Key_Tab);
    EXPECT_EQ(Keuze(geval.Vak)->currentText(), VanCp(record.SpecNaam.Getrimd()));
    EXPECT_EQ(project.Ruimte.*geval.Naam, record.SpecNaam.Heel());
    EXPECT_EQ((project.Ruimte.*geval.Waarden)[3], record.SpecWaarde[3]);
  }
}

TEST_F(Ruimtetab, EnterPassesOverWhatTheTypeHides) {
  struct Rij {
    std::int16_t Type;
    bool Vrij;
    const char* Van;
    const char* Naar;
  };
  for (const Rij& rij : {Rij{1, false, "txtRNR", "txtRDI"}, Rij{1, false, "txtRDI", "txtRAantal"},
                         Rij{1, false, "txtRAantal", "txtRLengte"}, Rij{2, false, "txtRDI", "txtRLengte"},
                         Rij{3, false, "txtRDI", "txtRAantal"}, Rij{1, true, "txtRDI", "txtRDI"},
                         Rij{2, true, "txtRDI", "txtRDI"}, Rij{3, true, "txtRDI", "txtRDI"}}) {
    OpenVoorbeeld("kantoor.mrv");
    venster->KiesType(rekentype::Installatiegeluid);
    if (rij.Vrij) Zoek<QCheckBox>("VrijVeld")->click();
    venster->KiesType(rij.Type);
    KiesTab(Tab::Ruimtegegevens);
    NaarVeld(rij.Van);
    Druk(Qt::Key_Return);
    EXPECT_EQ(Focus(), rij.Naar) << rij.Type << rij.Vrij << rij.Van;
  }
}

TEST_F(Ruimtetab, HasItsCaptionsAndUnits) {
  Nieuw();
  const std::vector<std::pair<const char*, QStringList>> vakken = {
      {"txtRLengte", {"Lengte vertrek", "m"}},
      {"txtRBreedte", {"Breedte vertrek", "m"}},
      {"txtRHoogte", {"Hoogte vertrek", "m"}},
      {"txtRNagalm", {"Nagalmtijd", "s"}},
      {"txtRNR", {"Toelaatbaar geluidsniveau", "dB(A)"}},
      {"txtRDI", {"Richtingsfactor", "1, 2, 4 of 8"}},
      {"txtRAantal", {"Aantal roosters", "stuks"}},
      {"cmbRkanaal", {"Kanaalwand"}},
      {"cmbRplafond", {"Plafond"}}};
  for (const auto& [naam, opschriften] : vakken) EXPECT_EQ(Opschriften(naam), opschriften) << naam;
  EXPECT_EQ(Zoek<QCheckBox>("VrijVeld")->text(), "vrij-veldsituatie");
}

TEST_F(Ruimtetab, EveryBandRowHasItsBandsAsCaptions) {
  Nieuw();
  const QStringList banden = {"63", "125", "250", "500", "1000", "2000", "4000"};
  struct Rij {
    const char* Naam;
    int Eerste;
  };
  for (const Rij& rij : {Rij{"txtLw", 0}, Rij{"txtRkanaal", 0}, Rij{"txtRplafond", 0}, Rij{"txtdemp", 0},
                         Rij{"txtdemp", 7}, Rij{"txtruis", 0}}) {
    for (int band = 0; band < Banden; ++band) {
      const QString naam = QString(rij.Naam) + "_" + QString::number(rij.Eerste + band);
      EXPECT_TRUE(Opschriften(naam).contains(banden[band])) << naam.toStdString();
      EXPECT_EQ(Opschriften(naam).filter(banden[band]).count(banden[band]), 1);
      EXPECT_TRUE(Veld(naam)->accessibleName().endsWith(", " + banden[band] + " Hz"));
    }
  }
}

}  // namespace
}  // namespace murvane
