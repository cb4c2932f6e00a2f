#include "shell/frmSplashII.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"

namespace murvane {

namespace {

QLabel* Regel(const char* naam, const std::string& tekst, double factor, bool vet, VerloopVlak* ouder) {
  QLabel* const label = ouder->MaakLabel(naam, tekst);
  QFont letter = label->font();
  letter.setPointSizeF(letter.pointSizeF() * factor);
  letter.setBold(vet);
  label->setFont(letter);
  return label;
}

}  // namespace

frmSplashII::frmSplashII() : VerloopVlak(SplashBegin, VerloopEinde, nullptr) {
  setObjectName("frmSplashII");
  setWindowFlags(Qt::SplashScreen);
  const SplashTeksten teksten = SplashTekst();
  setWindowTitle(VanCp(teksten.Titel));
  QLabel* const beeld = MaakLabel("lblBeeld", {});
  beeld->setAccessibleName("MurVane");
  beeld->setPixmap(Icoon("murvane").pixmap(96, 96));
  auto* const kolom = new QVBoxLayout;
  kolom->setSpacing(12);
  kolom->addStretch();
  kolom->addWidget(Regel("lblTitel", teksten.Titel, 2.6, true, this));
  kolom->addWidget(Regel("lblOmschrijving", teksten.Omschrijving, 1.1, false, this));
  kolom->addWidget(Regel("lblVersie", teksten.Versie, 1, false, this));
  kolom->addStretch();
  auto* const rij = new QHBoxLayout(this);
  rij->setContentsMargins(36, 28, 36, 28);
  rij->setSpacing(28);
  rij->addWidget(beeld, 0, Qt::AlignVCenter);
  rij->addLayout(kolom, 1);
  resize(sizeHint().expandedTo({520, 260}));
  Timer1.setSingleShot(true);
  connect(&Timer1, &QTimer::timeout, this, &frmSplashII::Beeindig);
}

void frmSplashII::Toon() {
  if (const QScreen* const scherm = QGuiApplication::primaryScreen())
    move(scherm->availableGeometry().center() - rect().center());
  show();
  activateWindow();                   // the window system gives a splash no keys by itself
  QCoreApplication::processEvents();  // it is drawn before the slow loading starts
  Timer1.start(SplashMs);
}

void frmSplashII::Daarna(QObject& ontvanger, const std::function<void()>& stap) {
  if (voorbij_) return stap();
  connect(this, &frmSplashII::Voorbij, &ontvanger, stap);
}

void frmSplashII::mousePressEvent(QMouseEvent* /*event*/) {
  Beeindig();
}

void frmSplashII::keyPressEvent(QKeyEvent* /*event*/) {
  Beeindig();
}

void frmSplashII::Beeindig() {
  if (voorbij_) return;
  voorbij_ = true;
  Timer1.stop();
  emit Voorbij();
  close();
}

}  // namespace murvane
