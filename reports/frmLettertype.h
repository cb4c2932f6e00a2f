#pragma once
// The window that sets font and styles of the printed form.

#include <QDialog>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "reports/lettertype.h"

class QComboBox;
class QFormLayout;

namespace murvane {

class frmLettertype : public QDialog {
  Q_OBJECT

 public:
  using Fonts = std::function<std::vector<std::string>()>;

  /// Opens on the settings, which outlive the window, with the fonts that `fonts` gives.
  frmLettertype(DrukInstelling& instelling, const Fonts& fonts, QWidget* ouder = nullptr);

  /// What reading the fonts raised, to be told; the window works all the same.
  [[nodiscard]] const std::optional<Fout>& Laadfout() const { return laadfout_; }

 signals:
  /// OK was refused: the settings stayed as they were.
  void Geweigerd(const murvane::Fout& fout);

 private:
  QComboBox* Lijst(const QString& naam, const QString& opschrift, QFormLayout& rijen);
  void Toon();
  void LeesVelden();
  void cmdOK_Click();
  void cmdDefault_Click();

  DrukInstelling& instelling_;
  LettertypeVenster venster_;
  std::optional<Fout> laadfout_;
  QComboBox *cboLtype, *cboLgrootte, *cboKop, *cboBody1, *cboBody2;
};

/// The fonts of the system that the form can be drawn in, by name. Windows-1252: a name outside it is left
/// out.
[[nodiscard]] std::vector<std::string> SysteemFonts();

}  // namespace murvane
