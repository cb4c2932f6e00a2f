#include "shell/frmAbout.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"
#include "shell/info.h"
#include "shell/vensters_verloop.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr int Kolommen = 88;  ///< letters beside each other in the window

/// The user's name is made for a label, its first "&" doubled: every one is shown as it was entered.
QString Ingevoerd(QString tekst) {
  const qsizetype eerste = tekst.indexOf('&');
  if (eerste >= 0 && tekst.indexOf("&&") == eerste) tekst.remove(eerste, 1);
  return tekst;
}

QLabel* Product(const std::string& tekst, VerloopVlak* ouder) {
  QLabel* const label = ouder->MaakLabel("lblProduct", tekst);
  label->setText(Ingevoerd(label->text()));
  QFont letter = label->font();
  letter.setBold(true);
  label->setFont(letter);
  return label;
}

QLabel* Beeldmerk(VerloopVlak* ouder) {
  QLabel* const label = ouder->MaakLabel("lblBeeld", {});
  label->setAccessibleName("MurVane");
  label->setPixmap(Icoon("murvane").pixmap(64, 64));
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
  QFont letter = knop->font();
  letter.setUnderline(true);
  knop->setFont(letter);
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
  auto* const indeling = new QVBoxLayout(vlak);
  indeling->setContentsMargins(24, 20, 24, 16);
  indeling->setSpacing(Marge);
  auto* const kop = new QHBoxLayout;
  kop->setSpacing(2 * Marge);
  kop->addWidget(Beeldmerk(vlak));
  kop->addWidget(Product(info.Product, vlak), 1);
  indeling->addLayout(kop);
  indeling->addWidget(vlak->MaakLabel("lblOmschrijving", info.Omschrijving));
  indeling->addWidget(MailKnop(vlak), 0, Qt::AlignLeft);
  indeling->addWidget(Levering(levering, dialogen, vlak), 1);
  auto* const knoppen = new QDialogButtonBox(QDialogButtonBox::Ok, vlak);
  QPushButton* const cmdOK = knoppen->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setAccessibleDescription("Sluit het venster.");
  connect(knoppen, &QDialogButtonBox::accepted, this, &QDialog::accept);
  indeling->addWidget(knoppen);
  auto* const geheel = new QVBoxLayout(this);
  geheel->setContentsMargins(0, 0, 0, 0);
  geheel->addWidget(vlak);
  const int breedte = Kolommen * fontMetrics().averageCharWidth();
  resize(breedte, breedte * 5 / 6);
  cmdOK->setFocus();
}

}  // namespace murvane
