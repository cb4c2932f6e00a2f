// The result window: the report's text, its letters, and where it stands in the window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
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
