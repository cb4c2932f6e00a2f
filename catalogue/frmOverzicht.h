#pragma once
// The overview of a catalogue on screen, from which it is saved and printed.

#include <QDialog>

#include "catalogue/overzicht.h"

class QPlainTextEdit;
class QToolButton;

namespace murvane {

class frmOverzicht : public QDialog {
  Q_OBJECT

 public:
  /// `dialogen` outlives the window.
  frmOverzicht(OverzichtUitslag overzicht, Dialogen& dialogen, QWidget* ouder = nullptr);

  void done(int uitkomst) override;

 protected:
  void resizeEvent(QResizeEvent* gebeurtenis) override;

 private:
  QToolButton* MaakKnop(const char* sleutel, const QString& tekst, const QString& toolTip,
                        const QString& icoon);
  void PasLetterAan();

  OverzichtUitslag overzicht_;
  Dialogen& dialogen_;
  std::size_t breedste_ = 0;  ///< characters of the widest line
  QPlainTextEdit* txtOverzicht = nullptr;
};

}  // namespace murvane
