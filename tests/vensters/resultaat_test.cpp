// The result window: the report's text, its letters, and where it stands in the window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QWheelEvent>
#include <memory>

#include "reports/frmResultaat.h"

namespace murvane {
namespace {

class Resultaatvenster : public testing::Test {
 protected:
  Resultaatvenster() {
    const Rapport rapport{"kop\r\n",   "project \xE9\r\n\r\n", "ruimte\r\n",
                          "hoofd\r\n", "elementen\r\n",        "resultaat\r\n"};
    venster = std::make_unique<frmResultaat>(rapport);
    tekst = venster->findChild<QTextEdit*>("RichTextBox1");
  }
  [[nodiscard]] QTextCharFormat Letter(int plaats) const {
    QTextCursor cursor(tekst->document());
    cursor.setPosition(plaats + 1);  // the format of the character before the cursor
    return cursor.charFormat();
  }

  std::unique_ptr<frmResultaat> venster;
  QTextEdit* tekst = nullptr;
};

TEST_F(Resultaatvenster, ShowsFiveBlocksAndNotTheHeading) {
  EXPECT_EQ(venster->windowTitle(), "Berekeningsresultaten");
  EXPECT_EQ(tekst->toPlainText(), "project \u00E9\n\nruimte\nhoofd\nelementen\nresultaat\n");
  EXPECT_TRUE(tekst->isReadOnly());
}

TEST_F(Resultaatvenster, SetsProjectAndRoomLargeAndTheTablesSmall) {
  const int groot = static_cast<int>(QString("project e\n\nruimte\n").size());
  const int einde = static_cast<int>(tekst->toPlainText().size());
  for (int plaats = 0; plaats < einde; ++plaats) {
    if (tekst->toPlainText()[plaats] == '\n') continue;  // a line's end has no letter
    const QTextCharFormat letter = Letter(plaats);
    EXPECT_EQ(letter.font().family(), "Courier New") << plaats;
    EXPECT_DOUBLE_EQ(letter.font().pointSizeF(), plaats < groot ? 12 : 7.2) << plaats;
    EXPECT_FALSE(letter.font().bold()) << plaats;
    EXPECT_FALSE(letter.font().italic()) << plaats;
  }
}

TEST_F(Resultaatvenster, StartsAtTheFirstLine) {
  EXPECT_EQ(tekst->textCursor().position(), 0);
  EXPECT_FALSE(tekst->textCursor().hasSelection());
}

TEST_F(Resultaatvenster, OpensOnTheFirstLineAndStaysWhereItWasScrolled) {
  Rapport lang;
  lang.RapHoofd = "hoofd\r\n";
  for (int i = 0; i < 200; ++i) lang.RapHoofd += std::string(400, 'x') + "\r\n";
  frmResultaat groot(lang);
  const auto* const vak = groot.findChild<QTextEdit*>("RichTextBox1");
  groot.resize(600, 400);
  groot.show();
  QApplication::processEvents();
  ASSERT_GT(vak->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(vak->verticalScrollBar()->value(), 0);
  EXPECT_EQ(vak->horizontalScrollBar()->value(), 0);
  vak->verticalScrollBar()->setValue(100);
  groot.hide();
  groot.show();
  EXPECT_EQ(vak->verticalScrollBar()->value(), 100);
}

/// A report with more text than fits, and the answer at its end.
Rapport LangRapport() {
  Rapport lang;
  lang.RapProject = "project\r\n";
  for (int i = 0; i < 200; ++i) lang.RapElementen += "element " + std::to_string(i) + "\r\n";
  lang.RapResultaat = "antwoord\r\neinde\r\n";
  return lang;
}

class LangResultaat : public testing::Test {
 protected:
  LangResultaat() {
    tekst = venster.findChild<QTextEdit*>("RichTextBox1");
    venster.resize(600, 400);
    venster.show();
    QApplication::setActiveWindow(&venster);
    QApplication::processEvents();
  }
  [[nodiscard]] double Punten(int plaats) const {
    QTextCursor cursor(tekst->document());
    cursor.setPosition(plaats + 1);
    return cursor.charFormat().font().pointSizeF();
  }
  void Wiel(int draai, Qt::KeyboardModifiers met) {
    QWheelEvent wiel({20, 20}, tekst->viewport()->mapToGlobal(QPointF(20, 20)), {}, {0, draai}, Qt::NoButton,
                     met, Qt::NoScrollPhase, false);
    QApplication::sendEvent(tekst->viewport(), &wiel);
  }
  void Toets(Qt::Key toets, Qt::KeyboardModifiers met = {}) { QTest::keyClick(tekst, toets, met); }

  frmResultaat venster{LangRapport()};
  QTextEdit* tekst = nullptr;
};

TEST_F(LangResultaat, OpensAtItsEnd) {
  const auto* const balk = tekst->verticalScrollBar();
  ASSERT_GT(balk->maximum(), 0);
  EXPECT_EQ(balk->value(), balk->maximum());
  EXPECT_EQ(tekst->textCursor().position(), 0);
  venster.resize(700, 300);
  EXPECT_EQ(balk->value(), balk->maximum()) << "the answer stays in view";
}

TEST_F(LangResultaat, IsLargerAndSmallerWithCtrlOnScreenOnly) {
  const int einde = static_cast<int>(tekst->toPlainText().size()) - 2;
  const QString was = tekst->toPlainText();
  const auto is = [&](double maal) {
    EXPECT_NEAR(Punten(0), 12 * maal, 1e-9);
    EXPECT_NEAR(Punten(einde), 7.2 * maal, 1e-9);
  };
  is(1);
  Wiel(120, Qt::ControlModifier);
  is(1.1);
  Toets(Qt::Key_Plus, Qt::ControlModifier);
  is(1.1 * 1.1);
  Toets(Qt::Key_Equal, Qt::ControlModifier);
  is(1.1 * 1.1 * 1.1);
  Toets(Qt::Key_Minus, Qt::ControlModifier);
  is(1.1 * 1.1);
  Toets(Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Punten(0), 12);
  EXPECT_DOUBLE_EQ(Punten(einde), 7.2);
  Wiel(60, Qt::ControlModifier);
  is(1);  // half a notch of a touch pad
  Wiel(60, Qt::ControlModifier);
  is(1.1);
  for (int i = 0; i < 40; ++i) Wiel(-120, Qt::ControlModifier);
  EXPECT_GT(Punten(einde), 4);
  for (int i = 0; i < 80; ++i) Wiel(120, Qt::ControlModifier);
  EXPECT_LT(Punten(0), 40);
  EXPECT_EQ(tekst->toPlainText(), was);
}

TEST_F(LangResultaat, KeepsWhatIsInViewWhenItIsEnlarged) {
  auto* const balk = tekst->verticalScrollBar();
  Toets(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(balk->value(), balk->maximum()) << "the answer";
  balk->setValue(balk->maximum() / 2);
  for (int i = 0; i < 5; ++i) Toets(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(static_cast<double>(balk->value()) / balk->maximum(), 0.5, 0.01);
}

TEST_F(LangResultaat, TheWheelAloneScrolls) {
  Wiel(120, {});
  EXPECT_LT(tekst->verticalScrollBar()->value(), tekst->verticalScrollBar()->maximum());
  EXPECT_DOUBLE_EQ(Punten(0), 12);
}

// The cursor stands at the first line, which is not in view.
TEST_F(LangResultaat, TheKeysGoOnFromWhatIsInView) {
  auto* const balk = tekst->verticalScrollBar();
  Toets(Qt::Key_PageUp);
  EXPECT_GT(balk->value(), balk->maximum() / 2);
  EXPECT_LT(balk->value(), balk->maximum());
  Toets(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_LE(balk->value(), 4) << "the first line, if not the margin above it";
  Toets(Qt::Key_Down, Qt::ShiftModifier);
  const QString keuze = tekst->textCursor().selectedText();
  EXPECT_FALSE(keuze.isEmpty());
  balk->setValue(balk->maximum());
  Toets(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_TRUE(tekst->textCursor().selectedText().startsWith(keuze)) << "a selection is not lost";
}

// 420 twips are 28 pixels.
TEST_F(Resultaatvenster, FillsTheWindowBelowTheToolbar) {
  for (const QSize maat : {QSize(800, 600), QSize(500, 333)}) {
    venster->resize(maat);
    venster->show();
    QApplication::processEvents();
    EXPECT_EQ(tekst->geometry(), QRect(0, 28, maat.width(), maat.height() - 28));
  }
}

}  // namespace
}  // namespace murvane
