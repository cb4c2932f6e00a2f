// A keystroke in every field of the project window, with 99 elements in the chain, against one in a bare line
// edit.

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <algorithm>
#include <set>
#include <vector>

#include "bench/vensters/meting.h"
#include "bench/vensters/opstelling.h"
#include "editor/elementpagina.h"

namespace murvane::bench {
namespace {

constexpr int Beurten = 7;
constexpr int Keer = 15;
constexpr int Elementen = 99;

/// A line edit in a window of its own, as large as the field that it is held against: a wide one takes the
/// toolkit longer to paint.
class KaalVeld {
 public:
  KaalVeld() : veld_(&venster_) {
    venster_.resize(1024, 740);
    veld_.setFocus();
  }
  void Word(const QSize& maat) {
    veld_.resize(maat);
    venster_.show();
    QApplication::processEvents();
  }
  [[nodiscard]] QLineEdit& Veld() { return veld_; }

 private:
  QWidget venster_;
  QLineEdit veld_;
};

QString NaamVan(const QLineEdit& veld) {
  return veld.objectName().startsWith("qt_") || veld.objectName().isEmpty()
             ? veld.parentWidget()->objectName()
             : veld.objectName();
}

/// A character and its removal: both change the text.
double Aanslag(QLineEdit& veld) {
  return Duur([&] {
           Druk(veld, Qt::Key_1, "1");
           Druk(veld, Qt::Key_Backspace, "\b");
         }) /
         2;
}

/// The median of some keystrokes in a row, in the window that the user types in: it becomes the active one,
/// and what that brings about is over before the first is measured.
double Aanslagen(QLineEdit& veld) {
  veld.activateWindow();
  for (int k = 0; k < 3; ++k) (void)Aanslag(veld);
  if (!veld.hasFocus()) qFatal("%s krijgt de focus niet", qPrintable(NaamVan(veld)));
  std::vector<double> duren;
  for (int k = 0; k < Keer; ++k) duren.push_back(Aanslag(veld));
  return Mediaan(std::move(duren));
}

struct Ergste {
  Paar Tijden;
  QString Veld;
};

class Ronde {
 public:
  /// Measures the fields in view that were not measured before.
  void Meet() {
    for (auto* const veld : opstelling.Venster().findChildren<QLineEdit*>()) {
      if (!veld->isVisible() || veld->isReadOnly() || !gemeten_.insert(NaamVan(*veld)).second) continue;
      const Paar paar = MeetVeld(*veld);
      if (ergste.Tijden.Vloer == 0 || paar.Maal() > ergste.Tijden.Maal()) ergste = {paar, NaamVan(*veld)};
    }
  }
  [[nodiscard]] std::size_t Aantal() const { return gemeten_.size(); }

  Opstelling opstelling;
  Ergste ergste;

 private:
  Paar MeetVeld(QLineEdit& veld) {
    kaal_.Word(veld.size());
    veld.activateWindow();
    QApplication::processEvents();
    veld.setFocus(Qt::TabFocusReason);
    const QString tekst = veld.text();
    const Paar paar = InBeurten(
        Beurten, [&] { return Aanslagen(kaal_.Veld()); }, [&] { return Aanslagen(veld); });
    veld.setText(tekst);  // not every field may be left blank
    return paar;
  }

  KaalVeld kaal_;
  std::set<QString> gemeten_;
};

/// All that can be in view with one calculation type: every tab, both sources of the fan, every element.
void MeetType(Ronde& ronde, std::int16_t rekenType) {
  Opstelling& opstelling = ronde.opstelling;
  opstelling.Open(Elementen, rekenType);
  for (const Tab tab : {Tab::Ventilator, Tab::Ruimtegegevens, Tab::Projectgegevens}) {
    opstelling.KiesTab(static_cast<int>(tab));
    ronde.Meet();
  }
  opstelling.KiesTab(static_cast<int>(Tab::Ventilator));
  opstelling.Zoek<QRadioButton>("optPrognose")->click();
  QApplication::processEvents();
  ronde.Meet();
  opstelling.KiesTab(static_cast<int>(Tab::Kanaalelementen));
  for (int n = 1; n <= Elementen; ++n) {
    opstelling.KiesElement(n);
    ronde.Meet();
  }
}

void Toetsaanslag(benchmark::State& state) {
  for (auto _ : state) {
    Ronde ronde;
    for (const std::int16_t type :
         {rekentype::Installatiegeluid, rekentype::Geluidsuitstraling, rekentype::Overspraak})
      MeetType(ronde, type);
    Toon(state, ronde.ergste.Tijden, 3, "het traagste veld, " + ronde.ergste.Veld.toStdString());
    state.counters["velden"] = static_cast<double>(ronde.Aantal());
  }
}
BENCHMARK(Toetsaanslag)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace murvane::bench
