#include "tests/vensters/bediening.h"

#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWindow>
#include <algorithm>

#include "shell/opstart.h"

namespace murvane::proef {

namespace fs = std::filesystem;

namespace {

constexpr int MeesteTabs = 150;

}  // namespace

void KopieerData(const fs::path& naar) {
  fs::create_directories(naar);
  for (const char* naam : {"murvane.set", "Duct.dat", "Fan.dat", "Rduct.dat", "Rplaf.dat"})
    fs::copy_file(BronData / naam, naar / naam, fs::copy_options::overwrite_existing);
}

QWindow* Bediening::MetToetsen() const {
  for (QWidget* const boven : {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
    if (boven != nullptr) return boven->window()->windowHandle();
  }
  return venster_.windowHandle();
}

void Bediening::Druk(Qt::Key toets, Qt::KeyboardModifiers met, const QString& tekst) {
  QTest::sendKeyEvent(QTest::Click, MetToetsen(), toets, tekst, met);
}

void Bediening::Herhaal(Qt::Key toets, int keer) {
  for (int i = 0; i < keer; ++i) Druk(toets);
}

void Bediening::Typ(const QString& tekst) {
  for (const QChar teken : tekst)
    Druk(static_cast<Qt::Key>(teken.toUpper().unicode()),
         teken.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, teken);
}

void Bediening::Alt() {
  // The window system reports the modifiers as they were before the key.
  QTest::simulateEvent(MetToetsen(), true, Qt::Key_Alt, Qt::NoModifier, {}, false, -1);
  QTest::simulateEvent(MetToetsen(), false, Qt::Key_Alt, Qt::AltModifier, {}, false, -1);
}

QString Bediening::Focus() {
  const QWidget* const focus = QApplication::focusWidget();
  return focus == nullptr ? QString() : focus->objectName();
}

void Bediening::Naar(const QString& naam, Qt::Key langs) {
  if (Focus() == naam) return;
  if (qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr) Druk(Qt::Key_Return);
  QStringList weg{Focus()};
  while (Focus() != naam) {
    Druk(langs, langs == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    if (weg.size() > MeesteTabs)
      throw std::runtime_error("no way by keys to " + naam.toStdString() + " over " +
                               weg.join(' ').toStdString());
    weg << Focus();
  }
}

void Bediening::NaarTab(const QString& opschrift) {
  auto* const tabs = venster_.findChild<QTabWidget*>("SSTab1");
  if (tabs->tabText(tabs->currentIndex()) == opschrift) return;
  Naar(tabs->tabBar()->objectName(), Qt::Key_Backtab);
  Herhaal(Qt::Key_Left, tabs->count());
  for (int i = 0; i < tabs->count() && tabs->tabText(tabs->currentIndex()) != opschrift; ++i)
    Druk(Qt::Key_Right);
  if (tabs->tabText(tabs->currentIndex()) != opschrift)
    throw std::runtime_error("no way by keys to the tab " + opschrift.toStdString());
}

void Bediening::Menu(std::initializer_list<const char*> namen) {
  auto* const balk = venster_.findChild<QMenuBar*>();
  Alt();
  if (QApplication::focusWidget() != balk) throw std::runtime_error("Alt does not reach the menu bar");
  const auto geraakt = [balk, namen] {
    return balk->activeAction() != nullptr && balk->activeAction()->objectName() == *namen.begin();
  };
  for (int i = 0; i < balk->actions().size() && !geraakt(); ++i) Druk(Qt::Key_Right);
  Druk(Qt::Key_Down);
  for (const char* const* naam = namen.begin() + 1; naam != namen.end(); ++naam)
    KiesInMenu(*naam, naam + 1 == namen.end());
}

void Bediening::KiesInMenu(const QString& naam, bool laatste) {
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  auto* const actie = menu == nullptr ? nullptr : menu->findChild<QAction*>(naam);
  if (actie == nullptr) throw std::runtime_error("no menu entry " + naam.toStdString());
  if (!actie->isEnabled()) throw std::runtime_error("not enabled: " + naam.toStdString());
  const qsizetype merk = actie->text().indexOf('&');
  if (merk >= 0) {
    const QChar letter = actie->text()[merk + 1];
    return Druk(static_cast<Qt::Key>(letter.toUpper().unicode()), Qt::NoModifier, letter.toLower());
  }
  for (int i = 0; i < menu->actions().size() && menu->activeAction() != actie; ++i) Druk(Qt::Key_Down);
  Druk(laatste ? Qt::Key_Return : Qt::Key_Right);
}

Gestart::Gestart()
    : data(map / "gegevens één"), script([](const std::string& fout) { ADD_FAILURE() << fout; }) {
  KopieerData(data);
}

void Gestart::Start(std::string_view opdrachtregel) {
  ASSERT_EQ(MDIForm_Load(programma, script, {data, DatumVeld("20-11-2026"), opdrachtregel, ','}),
            Vervolg::GaatDoor);
  venster = std::make_unique<MDIMurvane>(programma, *dialogen);
  venster->resize(1024, 740);
  venster->show();
  venster->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
  venster->OpenVanOpdrachtregel();
  toetsen = std::make_unique<Bediening>(*venster);
}

void Gestart::IsAan(std::initializer_list<const char*> namen) {
  for (const char* const naam :
       {"mnuNieuw", "mnuOpen", "mnuReken", "mnuPreview", "mnuSluiten", "mnuOpslaan", "mnuAfdrukken",
        "mnuExit", "mnuBeheer", "mnuElementen", "mnuFan", "mnuDuct", "mnuPlafonds"}) {
    const auto* const actie = Zoek<QAction>(naam);
    // A command that has nothing behind it yet stays disabled.
    if (actie->menu() == nullptr && !actie->property("opdracht").toBool()) continue;
    const bool aan = std::any_of(namen.begin(), namen.end(),
                                 [naam](const char* een) { return std::string_view(een) == naam; });
    EXPECT_EQ(actie->isEnabled(), aan) << naam;
  }
}

BestandVraag Gestart::OpenVraag(const fs::path& naam) const {
  return {"Openen", "Bestand MurVane (*.mrv)|*.mrv", programma.DataDir, naam, false, true, true};
}

BestandVraag Gestart::OpslaanVraag(const fs::path& naam) const {
  return {"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", programma.DataDir, naam, true, false, true};
}

}  // namespace murvane::proef
