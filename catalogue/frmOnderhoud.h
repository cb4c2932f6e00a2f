#pragma once
// The maintenance window of a catalogue: frmElementen, frmFan, frmDuct or frmPlafond. It shows the state of
// catalogue/onderhoud and carries out what its procedures return.

#include <QDialog>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "catalogue/onderhoud.h"
#include "estimators/schatting.h"

class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace murvane {

class BandRij;
class InvoerVeld;
class Lijstvak;
struct OverzichtUitslag;

/// What a maintenance window works with. The references outlive the window.
struct OnderhoudOmgeving {
  murvane::Catalogi& Catalogi;
  murvane::SchatInvoer& SchatInvoer;  ///< what the estimators had last
  murvane::Dialogen& Dialogen;
  std::filesystem::path Map;  ///< of the catalogues' files
  std::string Vandaag;        ///< dd-mm-yyyy
  char Decimaal;
};

class frmOnderhoud : public QDialog {
  Q_OBJECT

 public:
  frmOnderhoud(CatalogusSoort soort, OnderhoudOmgeving omgeving, QWidget* ouder = nullptr);

  /// Whether the window was left by cmdSluiten: its file was written.
  [[nodiscard]] bool IsBewaard() const { return result() == Accepted; }

  /// Escape outside a field: drops an open entry and closes nothing.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* gebeurtenis) override;
  void keyPressEvent(QKeyEvent* gebeurtenis) override;

 private:
  QMenuBar* BouwMenu();
  QWidget* BouwLijst();
  QWidget* BouwVelden();
  QWidget* BouwInvoerKnoppen();
  QWidget* BouwKnoppen();
  QWidget* BouwStatusbalk();
  void VoegRij(QVBoxLayout* kolom, std::string_view naam, std::string_view label);
  void MeldAan(InvoerVeld* vak);
  QPushButton* MaakKnop(const char* naam, const QString& tekst, QWidget* ouder);

  void LeesVelden();
  void ToonVelden();
  void ToonVak(InvoerVeld& vak);
  void ToonToestand();
  void VulLijst();
  void Toon(const OnderhoudUitkomst& uitkomst);
  [[nodiscard]] OnderhoudVak& VakVan(VeldId veld);

  void Verlaat(InvoerVeld& vak);
  void GaTerug(InvoerVeld* vak);
  void ToonVoortgang(int record, int meest);
  [[nodiscard]] std::optional<OverzichtUitslag> MaakOverzicht(std::string_view naam);
  void ToonOverzicht(OverzichtUitslag overzicht);
  OnderhoudUitkomst Schat(const OnderhoudMenu& item);
  OnderhoudUitkomst Menu(std::string_view naam);
  void Sluit();

  /// Gathers the fields, does a step, and shows what came of it; a failure is told and the window stays open.
  template <typename Stap>
  void Doe(std::string_view procedure, Stap stap);

  OnderhoudOmgeving omgeving_;
  Onderhoud onderhoud_;
  InvoerVeld* terugNaar_ = nullptr;  ///< a red field that is about to have the focus again

  Lijstvak* lstSpectrum = nullptr;
  std::vector<InvoerVeld*> velden_;
  std::map<std::string_view, QWidget*> besturing_;  ///< the controls of the table, except menus and fields
  std::map<std::string_view, QAction*> menus_;
  QLabel *paneel1_ = nullptr, *paneel2_ = nullptr;
  QProgressBar* ProgressBar1 = nullptr;
};

}  // namespace murvane
