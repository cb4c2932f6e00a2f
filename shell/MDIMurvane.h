#pragma once
// The main window: menus, status bar, the project window and the result windows inside it.

#include <QMainWindow>
#include <QPointer>
#include <map>
#include <string>
#include <string_view>

#include "catalogue/catfiles.h"
#include "editor/dialogen.h"
#include "editor/sessie.h"
#include "shell/programma.h"

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;

namespace murvane {

class Taakbalk;
class frmMurvane;
class frmPreView;
class frmResultaat;

class MDIMurvane : public QMainWindow {
  Q_OBJECT

 public:
  /// `programma` and `dialogen` outlive the window. The program has been started (MDIForm_Load).
  MDIMurvane(Programma& programma, Dialogen& dialogen);

  /// Opens the project that the command line named, if any.
  void OpenVanOpdrachtregel();

 protected:
  void showEvent(QShowEvent* gebeurtenis) override;
  void changeEvent(QEvent* gebeurtenis) override;
  void closeEvent(QCloseEvent* gebeurtenis) override;

 private:
  void MaakMenu();
  void NaStart();
  void ZetMenuBeelden();
  void ZetStatusBeeld();
  void MaakTaakbalk();
  void MaakStatusbalk();
  void Verbind(std::string_view naam, void (MDIMurvane::*opdracht)());
  void Voer(const std::string& naam, void (MDIMurvane::*opdracht)());
  void VulVensterMenu(QMenu& menu);
  void NoemVenster();
  void MeldKort(const QString& tekst);

  void mnuNieuw();
  void mnuOpen();
  void mnuReken();
  void mnuPreview();
  void mnuSluiten();
  void mnuOpslaan();
  void mnuExit();
  void mnuElementen();
  void mnuFan();
  void mnuDuct();
  void mnuPlafonds();
  void mnuGebruiker();
  void mnuVent();
  void mnuUitstraling();
  void mnuOverspraak();
  void mnuCalc();
  void mnuHelpFile();
  void mnuInfo();
  void mnuAfdrukken();
  void mnuLetterType();

  // The buttons of the result window and the preview.
  void Toolbar1_Opslaan();
  void Toolbar1_Grafiek();
  void Toolbar1_preview();
  void Toolbar1_PDF();
  void Toolbar1_save();
  void VerbindResultaat(frmResultaat& venster);
  void LaadPreView();

  void Reken();
  QMdiSubWindow* LaadResultaat();
  void ToonResultaat(QMdiSubWindow& kader);
  void Onderhoud(CatalogusSoort soort);
  void Voer(const Gevolg& gevolg);
  void SluitVensters();
  void ToonToestand();
  void SluitHetProject();

  Programma& programma_;
  Dialogen& dialogen_;
  QMdiArea* gebied_;
  frmMurvane* project_;
  Taakbalk* taakbalk_ = nullptr;
  QPointer<frmResultaat> resultaat_;
  QPointer<frmPreView> preview_;
  std::map<std::string_view, QAction*> acties_;  ///< by name; the names of MenuBalk
  QLabel* beeld_ = nullptr;
  QLabel* paneel1_ = nullptr;
  QLabel* paneel2_ = nullptr;
  QLabel* paneel3_ = nullptr;
  bool einde_ = false;
};

}  // namespace murvane
