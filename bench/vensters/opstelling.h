#pragma once
// The program's main window, off screen, with a mixed chain open in it.

#include <QWidget>
#include <iostream>

#include "shell/MDIMurvane.h"
#include "shell/rookproef.h"

namespace murvane::bench {

class Opstelling {
 public:
  Opstelling();

  /// Opens a project of `aantal` elements.
  void Open(int aantal, std::int16_t rekenType = rekentype::Installatiegeluid);

  /// A control of the window by its name; it must be there.
  template <typename Soort>
  [[nodiscard]] Soort* Zoek(const QString& naam) const {
    auto* const gevonden = venster_.findChild<Soort*>(naam);
    if (gevonden == nullptr) qFatal("geen %s", qPrintable(naam));
    return gevonden;
  }
  [[nodiscard]] const MDIMurvane& Venster() const { return venster_; }
  [[nodiscard]] int Aantal() const { return programma_.Project.ElementCount; }
  void KiesTab(int tab) const;
  /// Opens element n by a click on its row.
  void KiesElement(int n) const;

 private:
  StilleDialogen dialogen_{std::cerr};
  Programma programma_;
  MDIMurvane venster_;
};

/// A key pressed and released in a control, and all that follows from it, painting included.
void Druk(QWidget& vak, int toets, const QString& tekst = {});

}  // namespace murvane::bench
