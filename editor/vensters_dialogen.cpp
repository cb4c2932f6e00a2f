#include "editor/vensters_dialogen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/vensters_hulp.h"

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

/// Escape and the close button answer No to a question of yes and no, and Cancel to any other box.
Antwoord AntwoordVan(int knop, Knoppen knoppen, bool weggeklikt) {
  if (knoppen == Knoppen::YesNo) return knop == QMessageBox::Yes ? Antwoord::Yes : Antwoord::No;
  return knop == QMessageBox::Ok && !weggeklikt ? Antwoord::OK : Antwoord::Cancel;
}

/// A message box that knows whether it was left by Escape or its close button: the toolkit itself reports the
/// only button of a box then.
class MeldingVenster : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;
  [[nodiscard]] bool Weggeklikt() const { return weggeklikt_; }

 protected:
  void keyPressEvent(QKeyEvent* gebeurtenis) override {
    if (gebeurtenis->key() == Qt::Key_Escape) weggeklikt_ = true;
    QMessageBox::keyPressEvent(gebeurtenis);
  }
  void closeEvent(QCloseEvent* gebeurtenis) override {
    weggeklikt_ = true;
    QMessageBox::closeEvent(gebeurtenis);
  }

 private:
  bool weggeklikt_ = false;
};

/// Paths go through as they are: a name that is not UTF-8 stays the same file.
QString NaarQt(const std::filesystem::path& pad) {
  return QString::fromStdString(PadTekst(pad));
}

std::filesystem::path VanQt(const QString& pad) {
  return PadVan(pad.toStdString());
}

/// "description|pattern" as the toolkit writes it; the pattern's last part is shown by the description.
QString FilterVan(const std::string& filter) {
  const QString tekst = VanCp(filter);
  const qsizetype streep = tekst.indexOf('|');
  if (streep < 0) return tekst;
  return tekst.left(tekst.indexOf(" (")) + " (" + tekst.mid(streep + 1) + ")";
}

std::filesystem::path Vraag(QWidget* ouder, const BestandVraag& vraag, QFileDialog::AcceptMode wijze) {
  QFileDialog dialoog(ouder, VanCp(vraag.Titel));
  // The toolkit's own dialog: the system's would speak the system's language.
  dialoog.setOption(QFileDialog::DontUseNativeDialog);
  dialoog.setAcceptMode(wijze);
  dialoog.setNameFilter(FilterVan(vraag.Filter));
  dialoog.setFileMode(vraag.BestandMoetBestaan ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialoog.setOption(QFileDialog::DontConfirmOverwrite, !vraag.OverschrijfVraag);
  const bool eigenMap = vraag.Naam.has_parent_path();
  dialoog.setDirectory(NaarQt(eigenMap ? vraag.Naam.parent_path() : vraag.BeginMap));
  dialoog.setDefaultSuffix(VanCp(vraag.Extensie));
  if (vraag.Naam.has_filename()) dialoog.selectFile(NaarQt(vraag.Naam.filename()));
  if (dialoog.exec() != QDialog::Accepted || dialoog.selectedFiles().isEmpty())
    throw Fout(FoutNummer::DialoogGeannuleerd);
  return VanQt(dialoog.selectedFiles().constFirst());
}

}  // namespace

Antwoord SchermDialogen::Toon(const Melding& melding) {
  MeldingVenster box(Icoon(melding.Soort), VanCp(melding.Titel), VanCp(melding.Tekst),
                     KnoppenVan(melding.Knoppen), ouder_);
  box.setTextFormat(Qt::PlainText);
  const int knop = box.exec();
  return AntwoordVan(knop, melding.Knoppen, box.Weggeklikt());
}

std::string SchermDialogen::Invoer(const InvoerVraag& vraag) {
  bool gelukt = false;
  const QString antwoord = QInputDialog::getText(ouder_, VanCp(vraag.Titel), VanCp(vraag.Tekst),
                                                 QLineEdit::Normal, VanCp(vraag.Standaard), &gelukt);
  return gelukt ? NaarCp(antwoord) : std::string();
}

std::filesystem::path SchermDialogen::OpenDialoog(const BestandVraag& vraag) {
  return Vraag(ouder_, vraag, QFileDialog::AcceptOpen);
}

std::filesystem::path SchermDialogen::OpslaanDialoog(const BestandVraag& vraag) {
  return Vraag(ouder_, vraag, QFileDialog::AcceptSave);
}

AfdrukKeuze SchermDialogen::AfdrukDialoog(const AfdrukVraag&) {
  throw Fout(FoutNummer::DialoogGeannuleerd);  // no window prints yet
}

void SchermDialogen::Wachten(bool aan) {
  if (aan) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace murvane
