// The first project of the manual, built in the windows by following its steps to the letter.

#include <QTabWidget>
#include <QTextEdit>

#include "tests/help/bladen.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

using proef::Blad;
using proef::Gelezen;
using proef::Merk;

class EersteProject : public testing::Test {
 protected:
  EersteProject() {
    programma.Catalogi = LeesCatalogi(Data);
    programma.DataDir = map.Pad();
    programma.Vandaag = std::string_view("20-11-2026");
    hoofd = std::make_unique<MDIMurvane>(programma, script);
    hoofd->resize(1024, 728);
    hoofd->show();
    QApplication::setActiveWindow(hoofd.get());
  }

  template <typename Soort>
  Soort* Zoek(const std::string& naam) {
    auto* const gevonden = hoofd->findChild<Soort*>(QString::fromStdString(naam));
    if (gevonden == nullptr) throw std::runtime_error("geen " + naam);
    return gevonden;
  }

  /// What a reader does with a step.
  void Doe(const Blad& blad, const Merk& merk) {
    if (merk.Heeft("data-fan")) Kies("lstFan", Gelezen(blad.Tekst(merk)), Qt::Key_Space);
    if (merk.Heeft("data-element")) Kies("lstTotaal", Gelezen(blad.Tekst(merk)), Qt::Key_Return);
    if (merk.Heeft("data-typ")) Typ(merk.Kenmerk("data-typ"), blad.Tekst(merk));
  }

  void Kies(const char* lijst, const std::string& naam, Qt::Key toets) {
    auto* const vak = Zoek<QListWidget>(lijst);
    NaarTab(*vak);
    for (int rij = 0; rij < vak->count(); ++rij) {
      if (vak->item(rij)->text().trimmed() != QString::fromStdString(naam)) continue;
      vak->setFocus();
      vak->setCurrentRow(rij);
      QTest::keyClick(vak, toets);
      return;
    }
    ADD_FAILURE() << naam;
  }

  void Typ(const std::string& naam, const std::string& tekst) {
    auto* const vak = Zoek<QLineEdit>(naam);
    NaarTab(*vak);
    ASSERT_TRUE(vak->isVisible() && vak->isEnabled()) << naam;
    vak->setFocus();
    QTest::keyClicks(vak, QString::fromStdString(tekst));
    QTest::keyClick(vak, Qt::Key_Return);
  }

  void NaarTab(const QWidget& vak) {
    auto* const tabs = Zoek<QTabWidget>("SSTab1");
    for (int tab = 0; tab < tabs->count(); ++tab)
      if (tabs->widget(tab)->isAncestorOf(&vak)) tabs->setCurrentIndex(tab);
  }

  proef::TijdelijkeMap map;
  proef::Script script{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  Programma programma;
  std::unique_ptr<MDIMurvane> hoofd;
};

TEST_F(EersteProject, ComesOutInTheWindowsAsTheManualSays) {
  const Blad* const blad = proef::ZoekBlad("beginnen.html");
  ASSERT_NE(blad, nullptr);
  Zoek<QAction>("mnuNieuw")->trigger();
  for (const Merk& merk : blad->Merken) Doe(*blad, merk);
  Zoek<QAction>("mnuReken")->trigger();
  script.IsKlaar();
  const QString rapport =
      Zoek<frmResultaat>("frmResultaat")->findChild<QTextEdit*>("RichTextBox1")->toPlainText();
  int gezien = 0;
  for (const Merk& merk : blad->Merken) {
    if (!merk.Heeft("data-eerste")) continue;
    const QString getal = QString::fromStdString(blad->Tekst(merk));
    EXPECT_TRUE(rapport.contains("  " + getal + "\n")) << getal.toStdString();
    ++gezien;
  }
  EXPECT_EQ(gezien, 3);
}

}  // namespace
}  // namespace murvane
