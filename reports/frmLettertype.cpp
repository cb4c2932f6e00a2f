#include "reports/frmLettertype.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "basis/vensters_hulp.h"

namespace murvane {

namespace {

constexpr auto Uitleggen = std::to_array<Uitleg>({
    {"cboLtype", "Het lettertype van het berekeningsformulier."},
    {"cboLgrootte", "De lettergrootte van het berekeningsformulier, in punten."},
    {"cboKop", "Wat er boven elke bladzijde staat."},
    {"cboBody1", "Wat er in het bovenste tekstblok staat."},
    {"cboBody2", "Wat er in het onderste tekstblok staat."},
    {"cmdOK", "Neemt de instelling over; het programma bewaart haar bij het afsluiten."},
    {"cmdCancel", "Laat de instelling zoals zij was."},
    {"cmdDefault", "Zet de standaardinstelling terug."},
});

/// A list that a wheel passing over it does not change.
class VasteLijst : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* gebeurtenis) override { gebeurtenis->ignore(); }
};

void ToonLijst(QComboBox& vak, const Keuzelijst& lijst) {
  vak.clear();
  for (const std::string& rij : lijst.Rijen) vak.addItem(VanCp(rij));
  vak.setCurrentIndex(lijst.Rij);
  // A font that the system lacks has no row, and keeps its name.
  if (lijst.Rij < 0 && !lijst.Tekst.empty()) {
    vak.addItem(VanCp(lijst.Tekst));
    vak.setCurrentIndex(vak.count() - 1);
  }
}

void LeesLijst(const QComboBox& vak, Keuzelijst& lijst) {
  lijst.Rij = vak.currentIndex();
  lijst.Tekst = NaarCp(vak.currentText());
}

}  // namespace

std::vector<std::string> SysteemFonts() {
  std::vector<std::string> uit;
  for (const QString& naam : QFontDatabase::families()) {
    const std::string cp = NaarCp(naam);
    if (VanCp(cp) == naam && !QFontDatabase::isPrivateFamily(naam)) uit.push_back(cp);
  }
  return uit;
}

frmLettertype::frmLettertype(DrukInstelling& instelling, const Fonts& fonts, QWidget* ouder)
    : QDialog(ouder), instelling_(instelling) {
  setObjectName("frmLettertype");
  setWindowTitle("Afdrukinstelling berekeningsformulier");
  auto* rijen = new QFormLayout;
  cboLtype = Lijst("Ltype", "&Lettertype :", *rijen);
  cboLgrootte = Lijst("Lgrootte", "Letter&grootte :", *rijen);
  cboKop = Lijst("Kop", "&Koptekst :", *rijen);
  cboBody1 = Lijst("Body1", "Tekstblok &boven :", *rijen);
  cboBody2 = Lijst("Body2", "Tekstblok &onder :", *rijen);
  auto* knoppen = new QDialogButtonBox(this);
  auto* accoord = knoppen->addButton("OK", QDialogButtonBox::AcceptRole);
  accoord->setObjectName("cmdOK");
  accoord->setDefault(true);
  knoppen->addButton("&Cancel", QDialogButtonBox::RejectRole)->setObjectName("cmdCancel");
  auto* standaard = knoppen->addButton("&Default", QDialogButtonBox::ResetRole);
  standaard->setObjectName("cmdDefault");
  connect(knoppen, &QDialogButtonBox::accepted, this, &frmLettertype::cmdOK_Click);
  connect(knoppen, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(standaard, &QPushButton::clicked, this, &frmLettertype::cmdDefault_Click);
  auto* geheel = new QVBoxLayout(this);
  geheel->addLayout(rijen);
  geheel->addWidget(knoppen);
  ZetUitleg(*this, Uitleggen);
  laadfout_ = LaadVenster(venster_, instelling_, fonts);
  PasTitel(*this, windowTitle());
  Toon();
}

QComboBox* frmLettertype::Lijst(const QString& naam, const QString& opschrift, QFormLayout& rijen) {
  auto* vak = new VasteLijst(this);
  vak->setObjectName("cbo" + naam);
  vak->setAccessibleName(QString(opschrift).remove('&').remove(" :"));
  auto* label = new QLabel(opschrift, this);
  label->setObjectName("lbl" + naam);
  label->setBuddy(vak);
  rijen.addRow(label, vak);
  return vak;
}

void frmLettertype::Toon() {
  ToonLijst(*cboLtype, venster_.cboLtype);
  ToonLijst(*cboLgrootte, venster_.cboLgrootte);
  ToonLijst(*cboKop, venster_.cboKop);
  ToonLijst(*cboBody1, venster_.cboBody1);
  ToonLijst(*cboBody2, venster_.cboBody2);
}

void frmLettertype::LeesVelden() {
  LeesLijst(*cboLtype, venster_.cboLtype);
  LeesLijst(*cboLgrootte, venster_.cboLgrootte);
  LeesLijst(*cboKop, venster_.cboKop);
  LeesLijst(*cboBody1, venster_.cboBody1);
  LeesLijst(*cboBody2, venster_.cboBody2);
}

void frmLettertype::cmdOK_Click() {
  LeesVelden();
  try {
    NeemOver(venster_, instelling_);
  } catch (const Fout& fout) {
    emit Geweigerd(fout);
    return;
  }
  accept();
}

void frmLettertype::cmdDefault_Click() {
  ZetStandaard(venster_, instelling_);
  Toon();
}

}  // namespace murvane
