#include "catalogue/frmOverzicht.h"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"
#include "editor/vensters_veld.h"

namespace murvane {

namespace {

QFont VasteLetter(double punten) {
  QFont letter("Courier New");
  letter.setStyleHint(QFont::Monospace);
  letter.setFixedPitch(true);
  letter.setHintingPreference(QFont::PreferNoHinting);  // any width, not whole pixels only
  letter.setPointSizeF(punten);
  return letter;
}

}  // namespace

frmOverzicht::frmOverzicht(OverzichtUitslag overzicht, Dialogen& dialogen, QWidget* ouder)
    : QDialog(ouder, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      overzicht_(std::move(overzicht)),
      dialogen_(dialogen) {
  const Zandloper zandloper(dialogen_);
  setObjectName("frmOverzicht");
  for (const QString& regel : VanCp(overzicht_.OverzichtTekst).split("\r\n"))
    breedste_ = std::max(breedste_, static_cast<std::size_t>(regel.size()));
  setWindowTitle(VanCp(overzicht_.OverzichtTitel));
  auto* const indeling = new QVBoxLayout(this);
  auto* const balk = new QHBoxLayout;
  QToolButton* const print = MaakKnop("print", "Afdrukken", "Overzicht afdrukken op printer", "printen");
  QToolButton* const save = MaakKnop("save", "Opslaan", "Overzicht opslaan in bestand", "opslaan");
  print->setEnabled(PrintknopAan(overzicht_.OverzichtFilter));
  print->setShortcut(QKeySequence::Print);
  save->setShortcut(QKeySequence::Save);
  connect(print, &QToolButton::clicked, this, [this] { Printer(overzicht_, dialogen_); });
  connect(save, &QToolButton::clicked, this, [this] { Opslaan(overzicht_, dialogen_); });
  auto* const label = new QLabel(VanCp(OverzichtVan(overzicht_.Soort).Label), this);
  label->setObjectName("lblOverzicht");
  txtOverzicht = new QPlainTextEdit(this);
  txtOverzicht->setObjectName("txtOverzicht");
  txtOverzicht->setAccessibleName(windowTitle());
  txtOverzicht->setAccessibleDescription("Alleen ter inzage; de tekst kan worden gekopieerd.");
  txtOverzicht->setReadOnly(true);
  txtOverzicht->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  txtOverzicht->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtOverzicht->setTabChangesFocus(true);
  txtOverzicht->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // it would take from the width later
  txtOverzicht->setPlainText(VanCp(overzicht_.OverzichtTekst).remove('\r'));
  label->setBuddy(txtOverzicht);
  balk->addWidget(print);
  balk->addWidget(save);
  balk->addSpacing(24);
  balk->addWidget(label);
  balk->addStretch();
  indeling->addLayout(balk);
  indeling->addWidget(txtOverzicht);
  ZetMaat(*this, {1000, 640});
  PasLetterAan();
  txtOverzicht->setFocus();
}

QToolButton* frmOverzicht::MaakKnop(const char* sleutel, const QString& tekst, const QString& toolTip,
                                    const QString& icoon) {
  auto* const knop = new Balkknop(this);
  knop->setObjectName(QString("Toolbar1_") + sleutel);
  knop->setText(tekst);
  knop->setAccessibleName(tekst);
  knop->setToolTip(toolTip);
  knop->setAccessibleDescription(toolTip);
  knop->setIcon(Icoon(icoon, palette()));
  knop->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  knop->setFocusPolicy(Qt::TabFocus);
  return knop;
}

/// The listing as wide as the window, as far as it stays legible.
void frmOverzicht::PasLetterAan() {
  constexpr double Kleinste = 6, Grootste = 11, Stap = 0.1;
  const QString regel(static_cast<int>(OverzichtBreedte) + 1, '-');
  const double vrij = txtOverzicht->viewport()->width() - 2 * txtOverzicht->document()->documentMargin();
  double punten = Grootste;
  while (punten > Kleinste && QFontMetricsF(VasteLetter(punten)).horizontalAdvance(regel) > vrij)
    punten = std::max(punten - Stap, Kleinste);
  txtOverzicht->setFont(VasteLetter(punten));
  const bool past = punten > Kleinste && breedste_ <= OverzichtBreedte;
  txtOverzicht->setHorizontalScrollBarPolicy(past ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void frmOverzicht::resizeEvent(QResizeEvent* gebeurtenis) {
  QDialog::resizeEvent(gebeurtenis);
  PasLetterAan();
}

void frmOverzicht::done(int uitkomst) {
  overzicht_.OverzichtFilter = FilterNaSluiten(overzicht_.OverzichtFilter);
  QDialog::done(uitkomst);
}

}  // namespace murvane
