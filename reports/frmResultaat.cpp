#include "reports/frmResultaat.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <algorithm>
#include <cmath>
#include <utility>

#include "basis/vensters_hulp.h"
#include "reports/vensters_werkbalk.h"
#include "reports/vensters_zoom.h"

namespace murvane {

namespace {

constexpr int Strook = 420 / 15;           // pixels above the text, for the toolbar
constexpr double Groot = 12, Klein = 7.2;  ///< points, before the user makes them larger
constexpr int MinsteStap = -5, MeesteStap = 12;

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

/// Keys that move the cursor from where it stands.
bool IsLooptoets(int toets) {
  switch (toets) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return false;
  }
}

}  // namespace

frmResultaat::frmResultaat(const Rapport& rapport, QWidget* ouder)
    : QWidget(ouder),
      Toolbar1(new Werkbalk(ResultaatKnoppen, this)),
      tekst_(new QTextEdit(this)),
      zoom_(new Zoom(this, tekst_->viewport(), MinsteStap, MeesteStap)) {
  setObjectName("frmResultaat");
  setWindowTitle("Berekeningsresultaten");
  tekst_->setObjectName("RichTextBox1");
  tekst_->setAccessibleName("Rapport van de berekening");
  tekst_->setAccessibleDescription(
      "Alleen ter inzage; de tekst kan worden gekopieerd. Ctrl met + en - maakt haar "
      "groter en kleiner.");
  tekst_->setReadOnly(true);
  tekst_->setUndoRedoEnabled(false);
  tekst_->setTabChangesFocus(true);
  tekst_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  tekst_->setLineWrapMode(QTextEdit::NoWrap);
  QTextCursor cursor(tekst_->document());
  VoegToe(cursor, rapport.RapProject, Groot);
  VoegToe(cursor, rapport.RapRuimte, Groot);
  tabellen_ = cursor.position();
  for (const std::string* blok : {&rapport.RapHoofd, &rapport.RapElementen}) VoegToe(cursor, *blok, Klein);
  if (!rapport.RapResultaat.empty()) antwoord_ = cursor.position();
  VoegToe(cursor, rapport.RapResultaat, Klein);
  tekst_->moveCursor(QTextCursor::Start);
  setFocusProxy(tekst_);
  tekst_->setFocus();  // it has the keys when the window opens, not the toolbar above it
  tekst_->installEventFilter(this);
  connect(Toolbar1, &Werkbalk::ButtonClick, this, &frmResultaat::ButtonClick);
  connect(zoom_, &Zoom::Gewijzigd, this, &frmResultaat::PasZoomToe);
}

QSize frmResultaat::sizeHint() const {
  const int rand = 2 * tekst_->frameWidth();
  const int breed = static_cast<int>(std::ceil(tekst_->document()->idealWidth()));
  return {
      std::max(breed + rand + tekst_->verticalScrollBar()->sizeHint().width(), Toolbar1->sizeHint().width()),
      Strook + static_cast<int>(tekst_->document()->size().height()) + rand};
}

bool frmResultaat::focusNextPrevChild(bool verder) {
  FocusBinnen(*this, verder);
  return true;
}

/// The last block whole at the bottom of the view, or from its first line when it is higher than that.
void frmResultaat::ToonAntwoord() {
  QScrollBar& balk = *tekst_->verticalScrollBar();
  const QTextDocument& stuk = *tekst_->document();
  const double boven = stuk.documentLayout()->blockBoundingRect(stuk.findBlock(antwoord_)).top();
  balk.setValue(antwoord_ < 0 ? 0 : std::min(balk.maximum(), static_cast<int>(boven)));
  antwoordStand_ = balk.value();
}

bool frmResultaat::IsOpAntwoord() const {
  return tekst_->verticalScrollBar()->value() == antwoordStand_;
}

void frmResultaat::ZetMaat(int van, int tot, double punten) {
  QTextCursor cursor(tekst_->document());
  cursor.setPosition(van);
  cursor.setPosition(tot, QTextCursor::KeepAnchor);
  QTextCharFormat maat;
  maat.setFontPointSize(punten);
  cursor.mergeCharFormat(maat);
}

/// What is in view stays in view.
void frmResultaat::PasZoomToe() {
  QScrollBar& balk = *tekst_->verticalScrollBar();
  const bool opAntwoord = IsOpAntwoord();
  const double deel = balk.maximum() > 0 ? static_cast<double>(balk.value()) / balk.maximum() : 0;
  ZetMaat(0, tabellen_, Groot * zoom_->Maal());
  ZetMaat(tabellen_, tekst_->document()->characterCount() - 1, Klein * zoom_->Maal());
  if (opAntwoord) return ToonAntwoord();
  balk.setValue(static_cast<int>(std::lround(deel * balk.maximum())));
}

/// The keys go on from what is in view, not from a cursor that was scrolled out of it.
bool frmResultaat::eventFilter(QObject* object, QEvent* gebeurtenis) {
  const bool loopt =
      gebeurtenis->type() == QEvent::KeyPress && IsLooptoets(static_cast<QKeyEvent*>(gebeurtenis)->key());
  const bool inBeeld = tekst_->viewport()->rect().intersects(tekst_->cursorRect());
  if (loopt && !inBeeld && !tekst_->textCursor().hasSelection())
    tekst_->setTextCursor(tekst_->cursorForPosition({0, 0}));
  return QWidget::eventFilter(object, gebeurtenis);
}

/// Before the text had its room it scrolled to keep its cursor in sight.
void frmResultaat::showEvent(QShowEvent* gebeurtenis) {
  QWidget::showEvent(gebeurtenis);
  if (std::exchange(getoond_, true)) return;  // from then on it stays where the user left it
  tekst_->horizontalScrollBar()->setValue(0);
  ToonAntwoord();
}

void frmResultaat::resizeEvent(QResizeEvent* gebeurtenis) {
  QWidget::resizeEvent(gebeurtenis);
  const bool opAntwoord = getoond_ && IsOpAntwoord();
  Toolbar1->setGeometry(0, 0, width(), Strook);
  tekst_->setGeometry(0, Strook, width(), height() - Strook);
  if (opAntwoord) ToonAntwoord();
}

}  // namespace murvane
