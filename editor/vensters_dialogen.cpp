#include "editor/vensters_dialogen.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShowEvent>
#include <system_error>
#include <vector>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/vensters_hulp.h"
#include "editor/vensters_plakken.h"
#include "reports/preview.h"
#include "reports/vensters_vlak.h"

namespace murvane {

namespace {

QMessageBox::Icon Icoon(MeldingSoort soort) {
  switch (soort) {
    case MeldingSoort::Kritiek:
      return QMessageBox::Critical;
    case MeldingSoort::Vraag:
      return QMessageBox::Question;
    default:
      return QMessageBox::Warning;
  }
}

QMessageBox::StandardButtons KnoppenVan(Knoppen knoppen) {
  switch (knoppen) {
    case Knoppen::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Knoppen::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

/// A file that was changed meanwhile: its buttons are not among the toolkit's own.
bool IsGewijzigdVraag(Knoppen knoppen) {
  return knoppen == Knoppen::OverschrijvenCancel || knoppen == Knoppen::OverschrijvenAndersCancel;
}

Antwoord VraagGewijzigd(QMessageBox& box, Knoppen knoppen) {
  box.setStandardButtons(QMessageBox::NoButton);
  const QAbstractButton* const over = box.addButton("Overschrijven", QMessageBox::AcceptRole);
  const QAbstractButton* const anders = knoppen == Knoppen::OverschrijvenAndersCancel
                                            ? box.addButton("Anders opslaan…", QMessageBox::AcceptRole)
                                            : nullptr;
  QPushButton* const cancel = box.addButton(QMessageBox::Cancel);
  box.setDefaultButton(cancel);
  box.setEscapeButton(cancel);
  (void)box.exec();
  if (box.clickedButton() == over) return Antwoord::Overschrijven;
  return anders != nullptr && box.clickedButton() == anders ? Antwoord::Anders : Antwoord::Cancel;
}

Antwoord AntwoordVan(int knop, Knoppen knoppen, bool weggeklikt) {
  if (knoppen == Knoppen::YesNo) return knop == QMessageBox::Yes ? Antwoord::Yes : Antwoord::No;
  return knop == QMessageBox::Ok && !weggeklikt ? Antwoord::OK : Antwoord::Cancel;
}

/// A message box that knows whether it was left by Escape or its close button: the toolkit itself reports the
/// only button of a box then. A question of yes and no is only left by its buttons: neither answer is the one
/// that changes nothing.
class MeldingVenster : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;
  void MoetKiezen() { moetKiezen_ = true; }
  [[nodiscard]] bool Weggeklikt() const { return weggeklikt_; }

 protected:
  void keyPressEvent(QKeyEvent* gebeurtenis) override {
    const bool escape = gebeurtenis->key() == Qt::Key_Escape;
    if (escape && moetKiezen_) return;
    if (escape) weggeklikt_ = true;
    QMessageBox::keyPressEvent(gebeurtenis);
  }
  void closeEvent(QCloseEvent* gebeurtenis) override {
    if (moetKiezen_) return gebeurtenis->ignore();
    weggeklikt_ = true;
    QMessageBox::closeEvent(gebeurtenis);
  }

 private:
  bool moetKiezen_ = false;
  bool weggeklikt_ = false;
};

/// A box takes the width of what stands in it; a row of nothing keeps that from cutting its caption.
void MaakBreedGenoeg(QMessageBox& box) {
  if (auto* const indeling = qobject_cast<QGridLayout*>(box.layout()))
    indeling->addItem(new QSpacerItem(TitelBreedte(box, box.windowTitle()), 0), indeling->rowCount(), 0, 1,
                      indeling->columnCount());
}

/// Paths go through as they are: a name that is not UTF-8 stays the same file.
QString NaarQt(const std::filesystem::path& pad) {
  return QString::fromStdString(PadTekst(pad));
}

std::filesystem::path VanQt(const QString& pad) {
  return PadVan(pad.toStdString());
}

/// "description|pattern" as the toolkit writes it; the pattern's last part is shown by the description.
QString FilterVan(const std::string& filter) {
  QString tekst = VanCp(filter);
  const qsizetype streep = tekst.indexOf('|');
  if (streep < 0) return tekst;
  return tekst.left(tekst.indexOf(" (")) + " (" + tekst.mid(streep + 1) + ")";
}

/// The toolkit's file dialog, with a question of its own about what is overwritten.
class Bestandvenster : public QFileDialog {
 public:
  Bestandvenster(QWidget* ouder, const BestandVraag& vraag)
      : QFileDialog(ouder, VanCp(vraag.Titel)), vraag_(vraag) {
    setOption(DontConfirmOverwrite);
  }

  void accept() override {
    const bool akkoord = !vraag_.OverschrijfVraag || selectedFiles().isEmpty() ||
                         MagOverschrijven(VanQt(selectedFiles().constFirst()));
    if (akkoord) QFileDialog::accept();
  }

 private:
  /// A name that no pages can be saved under is refused once the dialog has gone.
  [[nodiscard]] std::vector<std::filesystem::path> Doelen(const std::filesystem::path& naam) const {
    std::vector<std::filesystem::path> uit = {naam};
    if (vraag_.Bladen > 0 && Probeer([&] { uit = BitmapNamen(naam, vraag_.Bladen); })) uit.clear();
    return uit;
  }

  bool MagOverschrijven(const std::filesystem::path& naam) {
    QStringList erAl;
    std::error_code geen;
    if (std::filesystem::is_directory(naam, geen)) return true;  // the dialog goes into it
    for (const auto& doel : Doelen(naam))
      if (std::filesystem::exists(doel, geen)) erAl << NaarQt(doel.filename());
    if (erAl.isEmpty()) return true;
    const QString vraag =
        QCoreApplication::translate("QFileDialog", "%1 already exists.\nDo you want to replace it?");
    QMessageBox box(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setText(erAl.size() == 1 ? QString(vraag).replace("%1", erAl.constFirst())
                                 : erAl.join('\n') + "\n\nDeze bestanden bestaan al. Wilt u ze vervangen?");
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
  }

  const BestandVraag& vraag_;
};

std::filesystem::path Vraag(QWidget* ouder, const BestandVraag& vraag, QFileDialog::AcceptMode wijze) {
  Bestandvenster dialoog(ouder, vraag);
  // The toolkit's own dialog: the system's would speak the system's language.
  dialoog.setOption(QFileDialog::DontUseNativeDialog);
  dialoog.setAcceptMode(wijze);
  dialoog.setNameFilter(FilterVan(vraag.Filter));
  dialoog.setFileMode(vraag.BestandMoetBestaan ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  const std::filesystem::path map = vraag.Naam.has_parent_path() ? vraag.Naam.parent_path() : vraag.BeginMap;
  dialoog.setDirectory(map.empty() ? QDir::currentPath() : NaarQt(map));
  dialoog.setDefaultSuffix(VanCp(vraag.Extensie));
  if (vraag.Naam.has_filename()) dialoog.selectFile(NaarQt(vraag.Naam.filename()));
  if (dialoog.exec() != QDialog::Accepted || dialoog.selectedFiles().isEmpty())
    throw Fout(FoutNummer::DialoogGeannuleerd);
  return VanQt(dialoog.selectedFiles().constFirst());
}

/// The system's print dialog with a tick that saves the text report instead of printing, above the buttons.
class Afdrukvenster : public QPrintDialog {
 public:
  using QPrintDialog::QPrintDialog;

  void VoegNaarBestandToe() {
    auto* indeling = qobject_cast<QBoxLayout*>(layout());
    if (indeling == nullptr) return;
    vinkje_ = new QCheckBox("Afdrukken naar &bestand (tekstrapport, *.prn)", this);
    vinkje_->setObjectName("chkNaarBestand");
    vinkje_->setAccessibleDescription("Bewaart het rapport als tekst en drukt niets af.");
    // The button that prints looks at the name of the printer's file, unless that is disabled.
    if (auto* const printer = findChild<QWidget*>("printerGroup"))
      connect(vinkje_, &QCheckBox::toggled, printer, &QWidget::setDisabled);
    indeling->insertWidget(indeling->count() - 1, vinkje_);
  }
  [[nodiscard]] bool NaarBestand() const { return vinkje_ != nullptr && vinkje_->isChecked(); }

  /// Who saves text needs no printer, nor the name of a file for it.
  void accept() override {
    if (NaarBestand()) {
      done(Accepted);
    } else {
      QPrintDialog::accept();
    }
  }

 protected:
  /// The toolkit shows the choice of pages each time, also without its option; all pages are printed.
  void showEvent(QShowEvent* gebeurtenis) override {
    if (auto* const keuze = findChild<QWidget*>("gbPrintRange")) keuze->hide();
    QPrintDialog::showEvent(gebeurtenis);
  }

 private:
  QCheckBox* vinkje_ = nullptr;
};

/// The window that a dialog stands before: the one in hand. Just after another dialog none is; while the
/// program starts there is none at all.
QWidget* Ouder() {
  if (QApplication::activeWindow() != nullptr) return QApplication::activeWindow();
  for (QWidget* const venster : QApplication::topLevelWidgets()) {
    if (venster->isVisible() && venster->windowType() == Qt::Window) return venster;
  }
  return nullptr;
}

}  // namespace

Antwoord SchermDialogen::Toon(const Melding& melding) {
  MeldingVenster box(Icoon(melding.Soort), VanCp(melding.Titel),
                     QString::fromStdString(GetoondeTekst(melding)), KnoppenVan(melding.Knoppen), Ouder());
  box.setTextFormat(Qt::PlainText);
  MaakBreedGenoeg(box);
  if (IsGewijzigdVraag(melding.Knoppen)) return VraagGewijzigd(box, melding.Knoppen);
  if (melding.Knoppen == Knoppen::YesNo) box.MoetKiezen();
  const int knop = box.exec();
  return AntwoordVan(knop, melding.Knoppen, box.Weggeklikt());
}

std::string SchermDialogen::Invoer(const InvoerVraag& vraag) {
  QInputDialog dialoog(Ouder());
  dialoog.setWindowTitle(VanCp(vraag.Titel));
  dialoog.setLabelText(ZonderSneltoets(VanCp(vraag.Tekst)));
  if (auto* const label = dialoog.findChild<QLabel*>()) label->setTextFormat(Qt::PlainText);
  dialoog.setTextValue(VanCp(vraag.Standaard));
  if (auto* const veld = dialoog.findChild<QLineEdit*>()) {
    veld->setAccessibleName(dialoog.windowTitle());
    veld->setAccessibleDescription(VanCp(vraag.Tekst) + "\nLeeg is hetzelfde als Annuleren.");
    PasTitel(*veld, dialoog.windowTitle());
    BewaakTekst(*veld);
  }
  return dialoog.exec() == QDialog::Accepted ? NaarCp(dialoog.textValue()) : std::string();
}

std::filesystem::path SchermDialogen::OpenDialoog(const BestandVraag& vraag) {
  return Vraag(Ouder(), vraag, QFileDialog::AcceptOpen);
}

std::filesystem::path SchermDialogen::OpslaanDialoog(const BestandVraag& vraag) {
  return Vraag(Ouder(), vraag, QFileDialog::AcceptSave);
}

AfdrukKeuze SchermDialogen::AfdrukDialoog(const AfdrukVraag& vraag) {
  const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(VanCp(vraag.Document));
  printer->setPageOrientation(vraag.Liggend ? QPageLayout::Landscape : QPageLayout::Portrait);
  Afdrukvenster dialoog(printer.get(), Ouder());
  dialoog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies);
  if (vraag.NaarBestandMogelijk) dialoog.VoegNaarBestandToe();
  if (dialoog.exec() != QDialog::Accepted) throw Fout(FoutNummer::DialoogGeannuleerd);
  const int exemplaren = printer->copyCount();
  printer->setCopyCount(1);  // each copy is a document of its own
  return {exemplaren, dialoog.NaarBestand(),
          [printer, liggend = vraag.Liggend] { return std::make_unique<Schildervlak>(printer, liggend); }};
}

void SchermDialogen::Wachten(bool aan) {
  if (aan) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace murvane
