// The main window: its menus by name, what its commands leave behind, and its settings.

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTextEdit>
#include <QToolButton>

#include "shell/settings.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Hoofdvensters : public Hoofdvenster {
 protected:
  template <typename Soort>
  Soort* Zoek(const QString& naam) {
    auto* const gevonden = venster->findChild<Soort*>(naam);
    if (gevonden == nullptr) throw std::runtime_error("no control " + naam.toStdString());
    return gevonden;
  }
  bool IsBerekendBeeld() { return Zoek<QLabel>("StatusBar1_1_beeld")->isVisible(); }
  std::vector<const std::string*> Blokken() {
    const Rapport& rapport = programma.Rapport;
    return {&rapport.RapKop,   &rapport.RapProject,   &rapport.RapRuimte,
            &rapport.RapHoofd, &rapport.RapElementen, &rapport.RapResultaat};
  }
};

struct Regel {
  const char* Menu;
  const char* Naam;
  const char* Opschrift;
};
constexpr auto Menuregels = std::to_array<Regel>({
    {"mnuBestand", "mnuBestandSB", "Berekening.."},
    {"mnuBestand", "mnuNieuw", "&Nieuw"},
    {"mnuBestand", "mnuOpen", "&Openen"},
    {"mnuBestand", "mnuReken", "S&tart berekening"},
    {"mnuBestand", "mnuPreview", "Berekenin&gsresultaten"},
    {"mnuBestand", "mnuSluiten", "&Sluiten"},
    {"mnuBestand", "mnuOpslaan", "O&pslaan"},
    {"mnuBestand", "mnuAfdrukken", "&Afdrukken"},
    {"mnuBestand", "mnuExit", "&Exit"},
    {"mnuBeheer", "mnuBeheerSB", "Lijsten.."},
    {"mnuBeheer", "mnuElementen", "&Kanaalelementen"},
    {"mnuBeheer", "mnuFan", "&Ventilatoren"},
    {"mnuBeheer", "mnuDuct", "&Luchtkanalen"},
    {"mnuBeheer", "mnuPlafonds", "Pla&fonds"},
    {"mnuInstel", "mnuInstelSB", "Instelling.."},
    {"mnuInstel", "mnuLetterType", "Lettert&ype"},
    {"mnuInstel", "mnuGebruiker", "Gebruike&rsnaam"},
    {"mnuInstel", "mnuTypReken", "Type berekening"},
    {"mnuTypReken", "mnuVent", "Installatiegeluid (roosters)"},
    {"mnuTypReken", "mnuUitstraling", "Geluidsuitstraling (kanalen)"},
    {"mnuTypReken", "mnuOverspraak", "Overspraak (roosters)"},
    {"mnuHelp", "mnuHelpSB", "Info.."},
    {"mnuHelp", "mnuCalc", "&Calculator"},
    {"mnuHelp", "mnuHelpFile", "&Help"},
    {"mnuHelp", "mnuInfo", "&Info over MurVane"},
});

TEST_F(Hoofdvensters, EveryCommandHasItsNameAndCaption) {
  std::vector<std::string> gevonden;
  std::vector<std::string> verwacht;
  for (const char* const menu : {"mnuBestand", "mnuBeheer", "mnuInstel", "mnuTypReken", "mnuHelp"}) {
    for (const QAction* const actie : Zoek<QMenu>(menu)->actions()) {
      if (actie->isSeparator()) continue;
      gevonden.push_back((QString(menu) + " " + actie->objectName() + " " + actie->text()).toStdString());
    }
  }
  for (const Regel& regel : Menuregels)
    verwacht.push_back(std::string(regel.Menu) + " " + regel.Naam + " " + regel.Opschrift);
  EXPECT_EQ(gevonden, verwacht);
  const std::vector<std::pair<const char*, const char*>> balk = {{"mnuBestand", "Berekening"},
                                                                 {"mnuBeheer", "Lijsten"},
                                                                 {"mnuInstel", "Instellingen"},
                                                                 {"mnuVenster", "Venster"},
                                                                 {"mnuHelp", "Help"}};
  for (const auto& [naam, opschrift] : balk) EXPECT_EQ(Zoek<QMenu>(naam)->title(), opschrift);
}

TEST_F(Hoofdvensters, HeadingsAreNoCommands) {
  for (const bool open : {false, true}) {
    if (open) Open("kantoor.mrv");
    for (const char* const naam : {"mnuBestandSB", "mnuBeheerSB", "mnuInstelSB", "mnuHelpSB"}) {
      EXPECT_FALSE(Actie(naam)->isEnabled()) << naam;
      EXPECT_FALSE(Actie(naam)->isCheckable()) << naam;
    }
  }
}

TEST_F(Hoofdvensters, IsNeverSmallerThan640By480) {
  EXPECT_EQ(venster->minimumSize(), QSize(640, 480));
  venster->resize(100, 100);
  EXPECT_EQ(venster->size(), QSize(640, 480));
}

TEST_F(Hoofdvensters, OnlyACalculatedProjectHasThePicture) {
  EXPECT_FALSE(IsBerekendBeeld());
  Open("kantoor.mrv");
  EXPECT_FALSE(IsBerekendBeeld());
  Kies("mnuReken");
  EXPECT_TRUE(IsBerekendBeeld());
  EXPECT_FALSE(Zoek<QLabel>("StatusBar1_1_beeld")->pixmap().isNull());
  ProjectVenster()->findChild<QLineEdit*>("txtProNaam")->setText("Ander kantoor");
  EXPECT_FALSE(IsBerekendBeeld());
  Kies("mnuReken");
  ASSERT_TRUE(IsBerekendBeeld());
  script.Box(VraagSluiten, Antwoord::OK);
  Kies("mnuSluiten");
  EXPECT_FALSE(IsBerekendBeeld());
}

TEST_F(Hoofdvensters, ANewProjectStartsOnItsFirstFieldWithTheTypeOfTheMenu) {
  Kies("mnuUitstraling");
  programma.Rapport.RapKop = "van een vorig project";
  Kies("mnuNieuw");
  EXPECT_EQ(programma.Project.Kop.RekenType, rekentype::Geluidsuitstraling);
  EXPECT_TRUE(Actie("mnuUitstraling")->isChecked());
  EXPECT_EQ(Paneel(2), "Geluidsuitstraling");
  EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->isVisible());
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 3);
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtProNum");
  for (const char* const knop :
       {"Toolbar1_Add", "Toolbar1_Prop", "Toolbar2_Delete", "Toolbar2_Down", "Toolbar2_Up"})
    EXPECT_FALSE(Zoek<QToolButton>(knop)->isEnabled()) << knop;
  EXPECT_EQ(programma.Rapport.RapKop, "");
}

TEST_F(Hoofdvensters, ANewProjectAfterAClosedOneHasNothingOfIt) {
  Open("kantoor.mrv");
  Zoek<QTabWidget>("SSTab1")->setCurrentIndex(1);
  Zoek<QListWidget>("lstProject")->setCurrentRow(2);
  script.Box(VraagSluiten, Antwoord::OK);
  Kies("mnuSluiten");
  Kies("mnuNieuw");
  for (const char* const knop :
       {"Toolbar1_Add", "Toolbar1_Prop", "Toolbar2_Delete", "Toolbar2_Down", "Toolbar2_Up"})
    EXPECT_FALSE(Zoek<QToolButton>(knop)->isEnabled()) << knop;
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->count(), 0);
  EXPECT_EQ(Zoek<QLineEdit>("txtProNaam")->text(), "");
  EXPECT_TRUE(programma.DialoogNaam.empty());
}

TEST_F(Hoofdvensters, ClosingTheProjectTakesItsResultsAlong) {
  Open("kantoor.mrv");
  Kies("mnuReken");
  ASSERT_NE(Resultaat(), nullptr);
  for (const std::string* const blok : Blokken()) EXPECT_NE(*blok, "");
  EXPECT_NE(Zoek<QLabel>("lblLwA")->text(), "");
  script.Box(VraagSluiten, Antwoord::OK);
  Kies("mnuSluiten");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Resultaat(), nullptr);
  EXPECT_FALSE(Zoek<QTabWidget>("SSTab1")->isVisible());
  EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), "");
  for (const std::string* const blok : Blokken()) EXPECT_EQ(*blok, "");
  EXPECT_TRUE(programma.DialoogNaam.empty());
}

TEST_F(Hoofdvensters, ClosingTheProjectClosesTheOtherWindowsLastOpenedFirst) {
  Open("kantoor.mrv");
  std::vector<std::string> gesloten;
  for (const char* const naam : {"eerste", "tweede", "derde"}) {
    QMdiSubWindow* const kader = Zoek<QMdiArea>("")->addSubWindow(new QWidget);
    kader->setAttribute(Qt::WA_DeleteOnClose);
    kader->show();
    QObject::connect(kader, &QObject::destroyed, [&gesloten, naam] { gesloten.emplace_back(naam); });
  }
  script.Box(VraagSluiten, Antwoord::OK);
  Kies("mnuSluiten");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(gesloten, (std::vector<std::string>{"derde", "tweede", "eerste"}));
  EXPECT_TRUE(venster->isVisible());
  EXPECT_TRUE(ProjectVenster()->isVisible());
}

TEST_F(Hoofdvensters, AsksForTheUsersName) {
  const InvoerVraag eerst{"Instelling gebruikersnaam",
                          "Huidige instelling gebruikersnaam: \nProefbureau\n\nVoer nieuwe gebruikersnaam in",
                          "Proefbureau"};
  script.InvoerBox(eerst, "");
  Kies("mnuGebruiker");
  EXPECT_EQ(programma.Instellingen.Gebruikersnaam, Tekst<35>("Proefbureau"));
  script.InvoerBox(eerst, "  Jan & Co & Zn ");
  Kies("mnuGebruiker");
  EXPECT_EQ(programma.Instellingen.Gebruikersnaam, Tekst<35>("Jan & Co & Zn"));
  EXPECT_EQ(programma.Instellingen.GebruikerLabel, Tekst<35>("Jan && Co & Zn"));
  EXPECT_TRUE(map.Namen().empty()) << "the settings are written at the end";
}

TEST_F(Hoofdvensters, OnlyTheCommandToLeaveWritesTheSettings) {
  const std::filesystem::path hier = std::filesystem::current_path();
  EXPECT_TRUE(venster->close());
  std::filesystem::current_path(hier);
  EXPECT_TRUE(map.Namen().empty());
}

TEST_F(Hoofdvensters, LeavingWithoutAProjectAsksNothingAndWritesTheSettings) {
  const std::filesystem::path hier = std::filesystem::current_path();
  Kies("mnuExit");
  std::filesystem::current_path(hier);
  EXPECT_FALSE(venster->isVisible());
  EXPECT_EQ(map.Namen(), std::vector<std::string>{"murvane.set"});
}

TEST_F(Hoofdvensters, AFailureOfACommandIsToldAndTheProgramRunsOn) {
  const auto box = [](const char* naam) {
    return Melding{MeldingSoort::Kritiek, "MurVane",
                   std::string("Onverwachte fout in procedure ") + naam +
                       "_Click van Form MDIMurvane.\nFout 9 - Index buiten het bereik.",
                   Knoppen::OK};
  };
  const auto faal = [] { throw Fout(FoutNummer::IndexBuitenBereik); };
  const auto toestandFaalt = [&] {
    QObject::connect(ProjectVenster(), &frmMurvane::ToestandGewijzigd, venster.get(), faal,
                     Qt::SingleShotConnection);
  };
  toestandFaalt();
  script.Box(box("mnuNieuw"));
  Kies("mnuNieuw");
  script.Box(VraagSluiten, Antwoord::OK, faal);
  script.Box(box("mnuSluiten"));
  Kies("mnuSluiten");
  EXPECT_EQ(Aan(), NietBerekend);
  for (const char* const type : {"mnuVent", "mnuUitstraling", "mnuOverspraak"}) {
    toestandFaalt();
    script.Box(box(type));
    Kies(type);
    EXPECT_EQ(Aan(), NietBerekend);
  }
  script.Opslaan({"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", programma.DataDir, {}, true, false, true},
                 std::filesystem::path());
  toestandFaalt();
  script.Box(box("mnuOpslaan"));
  Kies("mnuOpslaan");
  EXPECT_EQ(Aan(), GeenProject);
  toestandFaalt();
  script.Box(box("mnuOpen"));
  Open("kantoor.mrv");
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
  EXPECT_EQ(Aan(), NietBerekend);
  script.Box({MeldingSoort::Vraag, "Programma-stop",
              "Wilt u het programma beeindigen zonder data-opslag van eventueel ingevoerde/gewijzigde "
              "bestandsgegevens?",
              Knoppen::OkCancel},
             Antwoord::OK, faal);
  script.Box(box("mnuExit"));
  Kies("mnuExit");
  EXPECT_TRUE(venster->isVisible());
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
}

TEST_F(Hoofdvensters, AFailureOfTheInputBoxIsTold) {
  script.InvoerBox(
      {"Instelling gebruikersnaam",
       "Huidige instelling gebruikersnaam: \nProefbureau\n\nVoer nieuwe gebruikersnaam in", "Proefbureau"},
      "Jan", [] { throw Fout(FoutNummer::IndexBuitenBereik); });
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure mnuGebruiker_Click van Form MDIMurvane.\nFout 9 - Index buiten "
              "het bereik.",
              Knoppen::OK});
  Kies("mnuGebruiker");
  EXPECT_EQ(programma.Instellingen.Gebruikersnaam, Tekst<35>("Proefbureau"));
}

}  // namespace
}  // namespace murvane
