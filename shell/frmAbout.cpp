#include "shell/frmAbout.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "shell/info.h"
#include "shell/vensters_verloop.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr int Kolommen = 84;  ///< letters beside each other in the window

QLabel* Regels(const char* naam, const std::string& tekst, QWidget* ouder) {
  auto* const label = new QLabel(VanCp(tekst).remove('\r'), ouder);
  label->setObjectName(naam);
  label->setWordWrap(true);
  return label;
}

/// The user's name is made for a label: its "&" is doubled.
QLabel* Product(const std::string& tekst, QWidget* ouder) {
  QLabel* const label = Regels("lblProduct", tekst, ouder);
  label->setTextFormat(Qt::PlainText);
  QFont letter = label->font();
  letter.setBold(true);
  label->setFont(letter);
  auto* const knop = new QPushButton(ouder);  // a label turns "&&" into "&" only for a control of its own
  knop->hide();
  label->setBuddy(knop);
  return label;
}

QPushButton* MailKnop(QWidget* ouder) {
  auto* const knop = new QPushButton(SteunAdres, ouder);
  knop->setObjectName("lblMail");
  knop->setAccessibleName(QString("Mail naar ") + SteunAdres);
  knop->setToolTip("Stuur een bericht aan de makers");
  knop->setAccessibleDescription(knop->toolTip());
  knop->setFlat(true);
  knop->setCursor(Qt::PointingHandCursor);
  QPalette palet = knop->palette();
  palet.setColor(QPalette::ButtonText, QColor(0x9c, 0xc8, 0xf5));
  knop->setPalette(palet);
  QObject::connect(knop, &QPushButton::clicked, knop,
                   [] { QDesktopServices::openUrl(QUrl(VanCp(MailAdres(SteunAdres)))); });
  return knop;
}

QPlainTextEdit* Levering(const std::filesystem::path& pad, Dialogen& dialogen, QWidget* ouder) {
  auto* const vak = new QPlainTextEdit(ouder);
  vak->setObjectName("txtLevering");
  vak->setAccessibleName("Over deze levering");
  vak->setAccessibleDescription("Alleen ter inzage; de tekst kan worden gekopieerd.");
  vak->setReadOnly(true);
  vak->setTabChangesFocus(true);
  vak->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const auto fout = Probeer([&] { vak->setPlainText(QString::fromStdString(LeesBestand(pad, RuimGenoeg))); });
  if (fout && fout->Nummer() != FoutNummer::DialoogGeannuleerd)
    (void)dialogen.Toon(OnverwachteFout("Form_Load", "frmAbout", *fout));
  vak->moveCursor(QTextCursor::Start);
  return vak;
}

}  // namespace

frmAbout::frmAbout(const Instellingen& instellingen, const std::filesystem::path& levering,
                   Dialogen& dialogen, QWidget* ouder)
    : QDialog(ouder) {
  setObjectName("frmAbout");
  const InfoTeksten info = InfoTekst(instellingen);
  setWindowTitle(VanCp(info.Titel));
  auto* const vlak = new VerloopVlak(InfoBegin, VerloopEinde, this);
  auto* const boven = new QVBoxLayout(vlak);
  boven->setContentsMargins(24, 20, 24, 16);
  boven->setSpacing(12);
  boven->addWidget(Product(info.Product, vlak));
  boven->addWidget(Regels("lblOmschrijving", info.Omschrijving, vlak));
  boven->addWidget(MailKnop(vlak), 0, Qt::AlignLeft);
  QPlainTextEdit* const tekst = Levering(levering, dialogen, this);
  auto* const knoppen = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  QPushButton* const cmdOK = knoppen->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setAccessibleDescription("Sluit het venster.");
  connect(knoppen, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* const indeling = new QVBoxLayout(this);
  indeling->setContentsMargins(0, 0, 0, 0);
  indeling->addWidget(vlak);
  auto* const onder = new QVBoxLayout;
  onder->setContentsMargins(16, 8, 16, 12);
  onder->setSpacing(10);
  onder->addWidget(tekst, 1);
  onder->addWidget(knoppen);
  indeling->addLayout(onder, 1);
  const int breedte = Kolommen * fontMetrics().averageCharWidth();
  resize(breedte, breedte * 5 / 6);
  cmdOK->setFocus();
}

}  // namespace murvane
