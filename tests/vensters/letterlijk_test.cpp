// Names out of a file are text, never mark-up: a project, catalogues and settings of which every text looks
// like mark-up are shown to the letter in every window and box, and nothing that they name is opened.

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <QComboBox>
#include <QFileDialog>
#include <QHelpEvent>
#include <QImage>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "catalogue/frmOnderhoud.h"
#include "catalogue/frmOverzicht.h"
#include "editor/frmMurvane.h"
#include "editor/vensters_dialogen.h"
#include "project/projectfile.h"
#include "reports/frmGrafiek.h"
#include "reports/frmLettertype.h"
#include "reports/frmPreView.h"
#include "reports/frmResultaat.h"
#include "shell/afdrukken.h"
#include "shell/frmAbout.h"
#include "shell/settings.h"
#include "tests/vensters/bediening.h"
#include "tests/vensters/robot.h"

namespace murvane::proef {
namespace {

namespace fs = std::filesystem;

constexpr const char* Beeld = "p.png";
constexpr const char* Kwaad = "<b>x</b><img src=p.png>&y";
constexpr const char* Kort = "<i>x</i>&y";                     // where twelve characters fit
constexpr const char* Bestandsnaam = "<img src=p.png>&y.mrv";  // which no slash can be in

/// Sees whether a file is opened.
class Waker {
 public:
  explicit Waker(const fs::path& bestand) : kanaal_(inotify_init1(IN_NONBLOCK)) {
    EXPECT_GE(inotify_add_watch(kanaal_, bestand.c_str(), IN_OPEN), 0);
  }
  Waker(const Waker&) = delete;
  Waker& operator=(const Waker&) = delete;
  ~Waker() { close(kanaal_); }
  /// Whether it was since the last time it was asked.
  [[nodiscard]] bool Geopend() const {
    char bytes[4096];
    bool uit = false;
    while (read(kanaal_, bytes, sizeof bytes) > 0) uit = true;
    return uit;
  }

 private:
  int kanaal_;
};

bool IsKwaad(const QString& tekst) {
  return tekst.contains("<b>") || tekst.contains("<img") || tekst.contains("<i>");
}

/// What a label shows: for a control of its own it makes mnemonics.
QString Getoond(const QLabel& label) {
  if (label.buddy() == nullptr) return label.text();
  QString tekst = label.text();
  tekst.replace("&&", "\x01");
  return tekst.remove('&').replace('\x01', '&');
}

/// Walks the labels of a window; how many of them show one of the texts.
int Labels(const QWidget& venster) {
  int aantal = 0;
  for (const QLabel* const label : venster.findChildren<QLabel*>()) {
    if (!IsKwaad(label->text())) continue;
    ++aantal;
    const std::string naam = venster.objectName().toStdString() + ' ' + label->objectName().toStdString();
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << naam;
    EXPECT_TRUE(Getoond(*label).contains("&y")) << naam << ": " << Getoond(*label).toStdString();
  }
  return aantal;
}

class Letterlijk : public Gestart {
 protected:
  Letterlijk() {
    fs::current_path(map.Pad());
    QImage beeld(300, 300, QImage::Format_RGB32);
    beeld.fill(Qt::red);
    EXPECT_TRUE(beeld.save(Beeld));
    waker = std::make_unique<Waker>(map / Beeld);
    VergiftigCatalogi();
    Schrijf(data / "murvane.set", Instellingenregels());
    VergiftigProject();
  }
  ~Letterlijk() override { fs::current_path(vorige); }
  Letterlijk(const Letterlijk&) = delete;
  Letterlijk& operator=(const Letterlijk&) = delete;

  static std::string Instellingenregels() {
    const std::string naam = Kwaad;
    return naam + "\r\n 12 \r\n 3 \r\n 2 \r\n 2 \r\n" + naam + "          \r\n" + naam + "          \r\n";
  }
  void VergiftigCatalogi() const {
    Catalogi catalogi = LeesCatalogi(data);
    for (CatElementRec& rec : catalogi.CatElementen.Records) rec.CatNaam = rec.CatExtra = Tekst<80>(Kwaad);
    for (auto* const soort : {&catalogi.CatFans, &catalogi.CatRduct, &catalogi.CatRplaf})
      for (SpectrumRec& rec : soort->Records) rec.SpecNaam = Kwaad;
    SchrijfCatalogus(catalogi.CatElementen, data / "Duct.dat");
    SchrijfCatalogus(catalogi.CatFans, data / "Fan.dat");
    SchrijfCatalogus(catalogi.CatRduct, data / "Rduct.dat");
    SchrijfCatalogus(catalogi.CatRplaf, data / "Rplaf.dat");
  }
  void VergiftigProject() const {
    Project project = LeesProject(BronData / "plafond.mrv");
    project.Kop.ProNaam = project.Kop.Omschrijving = Tekst<80>(Kwaad);
    project.Kop.Toelichting1 = project.Kop.Toelichting2 = project.Kop.Toelichting3 = Tekst<80>(Kwaad);
    project.Kop.ProNum = Kort;
    project.Fan.FanNaam = Kwaad;
    for (ElementRec& element : project.Elementen) element.Naam = element.Kanaal = Tekst<80>(Kwaad);
    project.Ruimte.RNaam = Kwaad;
    project.Ruimte.RkanaalNaam = project.Ruimte.RplafondNaam = Kwaad;
    SchrijfProject(project, map / Bestandsnaam);
  }
  void StartMetProject() {
    Start(PadTekst(map / Bestandsnaam));
    ASSERT_EQ(Paneel(1), Bestandsnaam);
  }
  void Teken(QWidget& wat) {
    wat.show();
    QCoreApplication::processEvents();
    (void)wat.grab();
  }
  /// The tool tip of a row, as it comes up when the mouse rests on it; what it shows.
  static QString TipVan(QListWidget& lijst, int rij) {
    lijst.scrollToItem(lijst.item(rij));
    const QPoint plek = lijst.visualItemRect(lijst.item(rij)).center();
    QHelpEvent rust(QEvent::ToolTip, plek, lijst.viewport()->mapToGlobal(plek));
    QApplication::sendEvent(lijst.viewport(), &rust);
    QString uit;
    for (QWidget* const boven : QApplication::topLevelWidgets()) {
      auto* const tip = qobject_cast<QLabel*>(boven);
      if (tip == nullptr || !tip->isVisible() || !tip->inherits("QTipLabel")) continue;
      (void)tip->grab();
      EXPECT_EQ(tip->textFormat(), Qt::PlainText);
      uit = tip->text();
    }
    QToolTip::hideText();
    return uit;
  }
  void IsNietGeopend(const char* waar) const { EXPECT_FALSE(waker->Geopend()) << waar; }

  fs::path vorige = fs::current_path();
  std::unique_ptr<Waker> waker;
};

TEST_F(Letterlijk, TheWakerSeesAPictureThatIsLoaded) {
  QLabel rijk;
  rijk.setTextFormat(Qt::RichText);
  rijk.setText(Kwaad);
  Teken(rijk);
  EXPECT_TRUE(waker->Geopend());
  EXPECT_FALSE(waker->Geopend());
}

// Labels, tool tips and panel 1 guessed whether a name was mark-up, and a mnemonic took its "&".
TEST_F(Letterlijk, TheProjectWindowAndTheStatusBarShowEveryName) {
  StartMetProject();
  Teken(*venster);
  EXPECT_EQ(Labels(*venster), 1);  // panel 1
  for (int blad = 0; blad < 4; ++blad) {
    Zoek<QTabWidget>("SSTab1")->setCurrentIndex(blad);
    Teken(*venster);
  }
  Zoek<QTabWidget>("SSTab1")->setCurrentIndex(1);
  auto* const keten = Zoek<QListWidget>("lstProject");
  for (int rij = 0; rij < keten->count(); ++rij) {
    keten->setCurrentRow(rij);
    Teken(*venster);
    EXPECT_EQ(Labels(*venster), 2) << rij;  // and the element's name
    EXPECT_TRUE(Getoond(*Zoek<QLabel>("lblElement")).endsWith(Kwaad));
  }
  for (const char* const naam : {"txtProNaam", "txtOmschrijving", "txtToelichting1", "txtSpectrum"})
    EXPECT_EQ(Zoek<QLineEdit>(naam)->text(), Kwaad) << naam;
  for (const char* const naam : {"cmbRkanaal", "cmbRplafond"})
    EXPECT_EQ(Zoek<QComboBox>(naam)->currentText(), Kwaad) << naam;
  IsNietGeopend("the project window");
}

TEST_F(Letterlijk, TheToolTipOfARowIsTheRow) {
  StartMetProject();
  const std::array<std::pair<int, const char*>, 3> lijsten = {
      {{0, "lstFan"}, {1, "lstTotaal"}, {1, "lstProject"}}};
  for (const auto& [blad, naam] : lijsten) {
    Zoek<QTabWidget>("SSTab1")->setCurrentIndex(blad);
    auto* const lijst = Zoek<QListWidget>(naam);
    ASSERT_TRUE(lijst->isVisible()) << naam;
    EXPECT_EQ(TipVan(*lijst, 0), lijst->item(0)->text()) << naam;
    EXPECT_TRUE(lijst->item(0)->text().endsWith(Kwaad)) << naam;
  }
  IsNietGeopend("a tool tip");
}

TEST_F(Letterlijk, TheCataloguesAndTheirOverviewsShowEveryName) {
  StartMetProject();
  SchatInvoer schatInvoer;
  for (const CatalogusSoort soort : {CatalogusSoort::Kanaalelementen, CatalogusSoort::Ventilatoren,
                                     CatalogusSoort::Luchtkanalen, CatalogusSoort::Plafonds}) {
    frmOnderhoud lijst(soort, {programma.Catalogi, schatInvoer, script, data, "20-11-2026", ','});
    auto* const rijen = lijst.findChild<QListWidget*>("lstSpectrum");
    rijen->setCurrentRow(0);
    Teken(lijst);
    (void)Labels(lijst);
    EXPECT_EQ(rijen->item(0)->text(), Kwaad);
    EXPECT_EQ(TipVan(*rijen, 0), Kwaad);
    EXPECT_EQ(lijst.findChild<QLineEdit*>("txtSpectrum")->text(), Kwaad);
    frmOverzicht overzicht(
        Overzicht(programma.Catalogi, soort, OverzichtWijze::Zoeken, Kwaad, "20-11-2026", ','), script);
    Teken(overzicht);
    (void)Labels(overzicht);
    EXPECT_TRUE(overzicht.findChild<QPlainTextEdit*>("txtOverzicht")->toPlainText().contains(Kwaad));
  }
  IsNietGeopend("a catalogue");
}

TEST_F(Letterlijk, TheResultsAndTheirWindowsShowEveryName) {
  StartMetProject();
  Zoek<QAction>("mnuReken")->trigger();
  auto* const resultaat = Zoek<frmResultaat>("frmResultaat");
  Teken(*venster);
  EXPECT_TRUE(resultaat->findChild<QTextEdit*>()->toPlainText().contains(Kwaad));
  script.Box({MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo},
             Antwoord::No);
  resultaat->findChild<QToolButton*>("Toolbar1_preview")->click();
  Teken(*venster);
  ASSERT_TRUE(VulGrafiek(programma, script, [] { return kiesgrafiek::EenMeter; }));
  frmGrafiek grafiek(programma.Grafiek, {});
  Teken(grafiek);
  EXPECT_EQ(programma.Grafiek.Voetnoot, std::string("  ") + Kort + " - " + Kwaad + "  ");
  (void)Labels(*venster);
  (void)Labels(grafiek);
  IsNietGeopend("the results");
}

TEST_F(Letterlijk, TheSettingsAreShownAsTheyStand) {
  StartMetProject();
  frmAbout info(programma.Instellingen, BronData.parent_path() / "levering/levering.txt", script, nullptr);
  Teken(info);
  EXPECT_EQ(Labels(info), 1);
  EXPECT_TRUE(info.findChild<QLabel*>("lblProduct")->text().endsWith(Kwaad));
  frmLettertype letters(programma.Instellingen.Druk, SysteemFonts);
  Teken(letters);
  (void)Labels(letters);
  EXPECT_EQ(letters.findChild<QComboBox*>("cboLtype")->currentText(), Kwaad);
  IsNietGeopend("the settings");
}

TEST_F(Letterlijk, AWindowsNameInTheMenuKeepsItsAmpersand) {
  StartMetProject();
  Zoek<QAction>("mnuReken")->trigger();
  auto* const kader = qobject_cast<QMdiSubWindow*>(Zoek<frmResultaat>("frmResultaat")->parentWidget());
  kader->setWindowTitle(Kwaad);
  auto* const menu = Zoek<QMenu>("mnuVenster");
  emit menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions().at(1)->text(), QString(Kwaad).replace('&', "&&"));
  IsNietGeopend("the menu");
}

class Letterlijkdialoog : public Letterlijk {
 protected:
  Robot robot;
  SchermDialogen dialogen;
};

TEST_F(Letterlijkdialoog, ABoxShowsItsTextToTheLetter) {
  robot.Dan([this](QDialog& box) {
    EXPECT_EQ(Labels(box), 1);
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), Kwaad);
    Teken(box);
    box.reject();
  });
  (void)dialogen.Toon({MeldingSoort::Vraag, Kwaad, Kwaad, Knoppen::OkCancel});
  robot.Dan([this](QDialog& box) {
    EXPECT_EQ(Labels(box), 1);
    EXPECT_EQ(box.findChild<QLineEdit*>()->text(), Kwaad);
    Teken(box);
    box.reject();
  });
  (void)dialogen.Invoer({Kwaad, Kwaad, Kwaad});
  IsNietGeopend("a box");
}

// The toolkit's own question took the name of the file for mark-up.
TEST_F(Letterlijkdialoog, TheQuestionOfOverwritingShowsTheNameToTheLetter) {
  robot.Dan([](QDialog& dialoog) {
    auto* const vak = dialoog.findChild<QLineEdit*>("fileNameEdit");
    vak->setText(Bestandsnaam);
    Robot::Druk(dialoog, Qt::Key_Return);
    EXPECT_TRUE(dialoog.isVisible());  // the answer was no
    dialoog.reject();
  });
  robot.Dan([this](QDialog& vraag) {
    auto& box = dynamic_cast<QMessageBox&>(vraag);
    EXPECT_EQ(Labels(box), 1);
    EXPECT_TRUE(box.text().contains(Bestandsnaam)) << box.text().toStdString();
    EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
    Teken(box);
    Robot::Druk(box, Qt::Key_Return);
  });
  EXPECT_EQ(NummerVan([&] { return dialogen.OpslaanDialoog(OpslaanVraag(map / Bestandsnaam)); }), 32755);
  IsNietGeopend("the question");
}

/// A box that the toolkit shows by itself, as the file dialog does of a directory that cannot be opened.
TEST_F(Letterlijkdialoog, ABoxOfTheToolkitIsPlainTextToo) {
  robot.Dan([this](QDialog& box) {
    EXPECT_EQ(Labels(box), 1);
    Teken(box);
    box.reject();
  });
  (void)QMessageBox::warning(nullptr, "Openen", Kwaad);
  IsNietGeopend("the toolkit's box");
}

}  // namespace
}  // namespace murvane::proef
