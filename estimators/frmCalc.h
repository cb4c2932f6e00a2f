#pragma once
// The windows of the estimators: frmCalc1 (lined duct), frmCalc2 (quarter-wave silencer), frmCalc3 (plenum
// silencer) and frmDuctCalc (duct wall). One design: the inputs with a drawing in which the dimension of the
// focused field is lit, a live preview of the seven values, OK and Cancel. What differs stands in
// estimators/schatters.
//
// A catalogue window in entry mode asks and fills its own fields; it keeps no estimator open:
//
//   const auto schatting = frmCalc::Vraag(Schatter::Bekleed, invoer, dialogen, decimaal, this);
//   if (schatting) { txtSpectrum = schatting->Omschrijving; txtdemp(0..6) = schatting->Demping; }

#include <QDialog>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/dialogen.h"
#include "estimators/schatters.h"

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace murvane {

class InvoerVeld;
class Staven;
class Tekening;

class frmCalc : public QDialog {
  Q_OBJECT

 public:
  /// Shows an estimator and waits for its user: what OK delivers; nothing when the window was left otherwise.
  /// `invoer` holds the last inputs, which it opens with and brings up to date; `decimaal` is the decimal
  /// sign.
  [[nodiscard]] static std::optional<Schatting> Vraag(Schatter soort, SchatInvoer& invoer, Dialogen& dialogen,
                                                      char decimaal, QWidget* ouder);

  /// The references outlive the window.
  frmCalc(Schatter soort, SchatInvoer& invoer, Dialogen& dialogen, char decimaal, QWidget* ouder = nullptr);

  /// What OK delivered; nothing before it did.
  [[nodiscard]] const std::optional<Schatting>& Uitkomst() const { return uitkomst_; }

 public slots:
  /// Leaves without an estimate; the fields keep what was entered for the next time.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BouwOp();
  QWidget* BouwInvoer();
  QWidget* BouwMaterialen();
  void VoegVeld(QGridLayout* indeling, int rij, const SchatVeld& veld);
  QWidget* BouwVoorproef();
  QWidget* BouwKnoppen();

  [[nodiscard]] InvoerVeld* Vak(std::string_view naam) const;
  void Verlaat(std::size_t nummer);
  bool BewaarVelden();
  void GaTerug(InvoerVeld* veld);
  void ToonVoorproef();
  void ToonTekening(const QString& beeld);
  void cmdOK_Click();

  /// Handles an event; a failure is shown and the window stays open.
  template <typename Stap>
  void Veilig(std::string_view procedure, Stap stap) {
    if (const auto fout = Probeer(stap))
      dialogen_.Toon(OnverwachteFout(procedure, VensterVan(soort_).Naam, *fout));
  }

  Schatter soort_;
  SchatInvoer& invoer_;
  Dialogen& dialogen_;
  char decimaal_;
  std::optional<Schatting> uitkomst_;
  InvoerVeld* terugNaar_ = nullptr;  ///< an invalid field that is about to have the focus again

  std::vector<InvoerVeld*> velden_;  ///< in the order of the table
  QString beeld_;                    ///< the drawing on show
  Tekening* tekening_ = nullptr;
  QLabel* lblOmschrijving = nullptr;
  Staven* staven_ = nullptr;
};

}  // namespace murvane
