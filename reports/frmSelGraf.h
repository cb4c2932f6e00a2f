#pragma once
// The window that asks which result a chart shows.

#include <QDialog>
#include <cstdint>

#include "reports/grafiek.h"

class QRadioButton;

namespace murvane {

class frmSelGraf : public QDialog {
  Q_OBJECT

 public:
  explicit frmSelGraf(QWidget* ouder = nullptr);

  /// The choice so far (kiesgrafiek).
  [[nodiscard]] std::int16_t KiesGrafiek() const { return kiesGrafiek_; }

  void reject() override;

 private:
  QRadioButton* Optie(int nummer, const QString& opschrift);

  std::int16_t kiesGrafiek_ = SelGrafGeladen();
};

/// Shows the window and waits; the choice.
[[nodiscard]] std::int16_t VraagGrafiekKeuze(QWidget* ouder);

}  // namespace murvane
