#include "reports/frmSelGraf.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "basis/vensters_hulp.h"

namespace murvane {

namespace {

constexpr auto Uitleggen = std::to_array<Uitleg>({
    {"Option1", "De grafiek toont het geluidsdrukniveau op 1 meter."},
    {"Option2", "De grafiek toont het geluidsdrukniveau in het galmveld."},
    {"Command1", "Gaat verder met de gekozen grafiek."},
    {"Command2", "Gaat verder zonder grafiek."},
});

}  // namespace

frmSelGraf::frmSelGraf(QWidget* ouder) : QDialog(ouder) {
  setObjectName("frmSelGraf");
  setWindowTitle("Grafische weergave");
  auto* kader = new QGroupBox("Berekeningsresultaten", this);
  kader->setObjectName("frameBerekeningsresultaten");
  auto* rijen = new QVBoxLayout(kader);
  auto* eerste = Optie(1, "Lp, &1 meter");
  rijen->addWidget(eerste);
  rijen->addWidget(Optie(2, "Lp, &galmveld"));
  PasTitel(*kader, windowTitle());
  auto* knoppen = new QDialogButtonBox(this);
  auto* accoord = knoppen->addButton("&OK", QDialogButtonBox::AcceptRole);
  accoord->setObjectName("Command1");
  accoord->setDefault(true);
  knoppen->addButton("&Cancel", QDialogButtonBox::RejectRole)->setObjectName("Command2");
  connect(knoppen, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(knoppen, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* geheel = new QVBoxLayout(this);
  geheel->addWidget(kader);
  geheel->addWidget(knoppen);
  geheel->setSizeConstraint(QLayout::SetFixedSize);
  ZetUitleg(*this, Uitleggen);
  eerste->setChecked(true);
  eerste->setFocus();
}

QRadioButton* frmSelGraf::Optie(int nummer, const QString& opschrift) {
  auto* optie = new QRadioButton(opschrift, this);
  optie->setObjectName("Option" + QString::number(nummer));
  connect(optie, &QRadioButton::toggled, this, [this, nummer](bool aan) {
    if (aan) kiesGrafiek_ = SelGrafOptie(nummer);
  });
  return optie;
}

void frmSelGraf::reject() {
  kiesGrafiek_ = SelGrafCancel();
  QDialog::reject();
}

std::int16_t VraagGrafiekKeuze(QWidget* ouder) {
  frmSelGraf venster(ouder);
  venster.exec();
  return venster.KiesGrafiek();
}

}  // namespace murvane
