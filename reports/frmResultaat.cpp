#include "reports/frmResultaat.h"

#include <QFont>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextEdit>
#include <utility>

#include "basis/vensters_hulp.h"
#include "reports/vensters_werkbalk.h"

namespace murvane {

namespace {

constexpr int Strook = 420 / 15;  // pixels above the text, for the toolbar

/// The report's fixed-pitch font at a size in points, neither bold nor italic.
QTextCharFormat Letter(double punten) {
  QFont font("Courier New");
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setPointSizeF(punten);
  QTextCharFormat letter;
  letter.setFont(font);
  return letter;
}

void VoegToe(QTextCursor& cursor, const std::string& blok, double punten) {
  cursor.insertText(VanCp(blok).remove('\r'), Letter(punten));
}

}  // namespace

frmResultaat::frmResultaat(const Rapport& rapport, QWidget* ouder)
    : QWidget(ouder), Toolbar1(new Werkbalk(ResultaatKnoppen, this)), tekst_(new QTextEdit(this)) {
  setObjectName("frmResultaat");
  setWindowTitle("Berekeningsresultaten");
  tekst_->setObjectName("RichTextBox1");
  tekst_->setAccessibleName("Rapport van de berekening");
  tekst_->setAccessibleDescription("Alleen ter inzage; de tekst kan worden gekopieerd.");
  tekst_->setReadOnly(true);
  tekst_->setTabChangesFocus(true);
  tekst_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  tekst_->setLineWrapMode(QTextEdit::NoWrap);
  QTextCursor cursor(tekst_->document());
  VoegToe(cursor, rapport.RapProject, 12);
  VoegToe(cursor, rapport.RapRuimte, 12);
  for (const std::string* blok : {&rapport.RapHoofd, &rapport.RapElementen, &rapport.RapResultaat})
    VoegToe(cursor, *blok, 7.2);
  tekst_->moveCursor(QTextCursor::Start);
  setFocusProxy(tekst_);
  tekst_->setFocus();  // it has the keys when the window opens, not the toolbar above it
  connect(Toolbar1, &Werkbalk::ButtonClick, this, &frmResultaat::ButtonClick);
}

bool frmResultaat::focusNextPrevChild(bool verder) {
  FocusBinnen(*this, verder);
  return true;
}

/// Before the text had its room it scrolled to keep its cursor in sight.
void frmResultaat::showEvent(QShowEvent* gebeurtenis) {
  QWidget::showEvent(gebeurtenis);
  if (std::exchange(getoond_, true)) return;  // from then on it stays where the user left it
  tekst_->horizontalScrollBar()->setValue(0);
  tekst_->verticalScrollBar()->setValue(0);
}

void frmResultaat::resizeEvent(QResizeEvent* gebeurtenis) {
  QWidget::resizeEvent(gebeurtenis);
  Toolbar1->setGeometry(0, 0, width(), Strook);
  tekst_->setGeometry(0, Strook, width(), height() - Strook);
}

}  // namespace murvane
