#pragma once
// A user at the keyboard of the real main window. Keys go to the window that has them, as the window system
// sends them; nothing of the program is called. What a user sees (the focus, a current row, a menu) is read
// from the screen to decide which key comes next.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>

#include "shell/MDIMurvane.h"
#include "shell/programma.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"
#include "tests/hulp/script.h"

namespace murvane::proef {

inline const std::filesystem::path BronData = proef::BronMap() / "data";

/// Copies the settings and the four catalogues that come with the program.
void KopieerData(const std::filesystem::path& naar);

class Bediening {
 public:
  explicit Bediening(QWidget& venster) : venster_(venster) {}

  void Druk(Qt::Key toets, Qt::KeyboardModifiers met = Qt::NoModifier, const QString& tekst = {});
  void Herhaal(Qt::Key toets, int keer);
  void Typ(const QString& tekst);
  /// The Alt key alone.
  void Alt();

  /// The name of the control that has the focus.
  [[nodiscard]] static QString Focus();
  /// Walks to a control: by Enter from a field when that gets there, else by Tab or Shift+Tab.
  void Naar(const QString& naam, Qt::Key langs = Qt::Key_Tab);
  /// Brings a tab of SSTab1 into view by the arrow keys on its bar.
  void NaarTab(const QString& opschrift);
  /// Walks through the menu bar: a menu, its submenus, and the command last. An entry is taken by its
  /// mnemonic where it has one, else by the arrow keys and Enter.
  void Menu(std::initializer_list<const char*> namen);

 private:
  [[nodiscard]] QWindow* MetToetsen() const;
  void KiesInMenu(const QString& naam, bool laatste);

  QWidget& venster_;
};

/// The program as it starts: settings and catalogues from a directory with blanks and accents.
class Gestart : public testing::Test {
 protected:
  Gestart();
  void Start(std::string_view opdrachtregel = {});

  template <typename Soort>
  Soort* Zoek(const QString& naam) {
    auto* const gevonden = venster->findChild<Soort*>(naam);
    if (gevonden == nullptr) throw std::runtime_error("no control " + naam.toStdString());
    return gevonden;
  }
  QString Paneel(int nummer) { return Zoek<QLabel>("StatusBar1_" + QString::number(nummer))->text(); }
  bool IsBerekendBeeld() { return Zoek<QLabel>("StatusBar1_1_beeld")->isVisible(); }
  bool IsErEen(const char* naam) {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return venster->findChild<QWidget*>(naam) != nullptr;
  }
  /// Expects that of the commands that depend on the state exactly these are enabled.
  void IsAan(std::initializer_list<const char*> namen);
  [[nodiscard]] BestandVraag OpenVraag(const std::filesystem::path& naam = {}) const;
  [[nodiscard]] BestandVraag OpslaanVraag(const std::filesystem::path& naam = {}) const;

  TijdelijkeMap map;
  std::filesystem::path data;
  Script script;
  murvane::Programma programma;  // proef::Programma is where a program stands
  std::unique_ptr<MDIMurvane> venster;
  std::unique_ptr<Bediening> toetsen;
};

/// The commands that are enabled in each state.
inline constexpr std::initializer_list<const char*> MenuGeenProject = {
    "mnuNieuw", "mnuOpen", "mnuExit", "mnuBeheer", "mnuElementen", "mnuFan", "mnuDuct", "mnuPlafonds"};
inline constexpr std::initializer_list<const char*> MenuOpen = {
    "mnuReken", "mnuSluiten", "mnuOpslaan", "mnuExit", "mnuBeheer", "mnuElementen", "mnuFan"};
inline constexpr std::initializer_list<const char*> MenuBerekend = {
    "mnuPreview", "mnuSluiten", "mnuOpslaan",   "mnuAfdrukken",
    "mnuExit",    "mnuBeheer",  "mnuElementen", "mnuFan"};

}  // namespace murvane::proef
