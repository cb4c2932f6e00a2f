// The project window at the sizes that a user gives the main window.

#include <gtest/gtest.h>

#include <algorithm>

#include "editor/vensters_blad.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

/// Letters in which the design of a sheet is smaller than a 1024x768 screen.
class KleineLetters {
 protected:
  KleineLetters() {
    QFont klein = gewoon_;
    klein.setPixelSize(8);
    QApplication::setFont(klein);
  }
  KleineLetters(const KleineLetters&) = delete;
  KleineLetters& operator=(const KleineLetters&) = delete;
  ~KleineLetters() { QApplication::setFont(gewoon_); }

 private:
  QFont gewoon_ = QApplication::font();
};

constexpr std::array<Tab, 4> Bladen = {Tab::Ventilator, Tab::Kanaalelementen, Tab::Ruimtegegevens,
                                       Tab::Projectgegevens};

class Formaat : private KleineLetters, public Hoofdvenster {
 protected:
  Formaat() {
    Open("kantoor.mrv");
    QCoreApplication::processEvents();
    ontwerp =
        QSize(190 * HetBlad().fontMetrics().averageCharWidth(), 60 * HetBlad().fontMetrics().lineSpacing());
    rand = venster->size() - HetBlad().size();
  }

  QTabWidget& Tabs() { return *venster->findChild<QTabWidget*>("SSTab1"); }
  Blad& HetBlad() { return dynamic_cast<Blad&>(*Tabs().currentWidget()); }
  void KiesTab(Tab tab) {
    Tabs().setCurrentIndex(static_cast<int>(tab));
    QCoreApplication::processEvents();
  }
  void ZetMaat(const QSize& maat) {
    venster->resize(maat);
    QCoreApplication::processEvents();
  }
  /// The main window in which a sheet is so much larger than its design, with 12 pixels around it.
  QSize Groter(int breedte, int hoogte) { return ontwerp + QSize(24, 24) + rand + QSize(breedte, hoogte); }
  /// Half of what the sheet is larger than its design, a half pixel cut off; a smaller one is filled.
  int Midden(int nu, int design) { return 12 + std::max(0, (nu - 24 - design) / 2); }
  QRect Verwacht() {
    const QSize blad = HetBlad().size();
    return {QPoint(Midden(blad.width(), ontwerp.width()), Midden(blad.height(), ontwerp.height())),
            (blad - QSize(24, 24)).boundedTo(ontwerp)};
  }
  void Controleer(const char* waar) {
    SCOPED_TRACE(waar);
    const auto* const project = ProjectVenster();
    EXPECT_EQ(Tabs().geometry(), project->rect()) << "it fills the project window";
    for (const Tab tab : Bladen) {
      KiesTab(tab);
      EXPECT_EQ(HetBlad().Blok()->geometry(), Verwacht()) << static_cast<int>(tab);
      for (const Tab ander : Bladen) {
        EXPECT_EQ(Tabs().widget(static_cast<int>(ander))->isVisible(), ander == tab);
      }
    }
  }

  QSize ontwerp;  ///< of a sheet's content
  QSize rand;     ///< what the main window is larger than a sheet
};

TEST_F(Formaat, EverySheetStandsInTheMiddleAtEverySize) {
  ASSERT_LT(Groter(0, 0).width(), 1000) << "the design fits a small screen";
  ASSERT_LT(Groter(0, 0).height(), 760);
  ZetMaat(Groter(0, 0));
  const QRect eerst = HetBlad().Blok()->geometry();
  EXPECT_EQ(eerst, QRect(QPoint(12, 12), ontwerp));
  Controleer("design");
  for (const auto& [breedte, hoogte] :
       {std::pair{1024, 768}, {1025, 768}, {1024, 769}, {1600, 1000}, {1366, 700}, {1920, 1080}}) {
    ZetMaat({breedte, hoogte});
    EXPECT_EQ(venster->size(), QSize(breedte, hoogte));
    Controleer(std::to_string(breedte).c_str());
  }
  ZetMaat(Groter(0, 0));
  EXPECT_EQ(HetBlad().Blok()->geometry(), eerst) << "nothing has drifted";
}

TEST_F(Formaat, AnOddDifferenceIsCutTowardsTheTopLeft) {
  // 7.5 twips of 15 to a pixel and half a pixel more are cut off; a smaller sheet is filled
  for (const auto& [verschil, schuif] : {std::pair{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 2}, {101, 50}}) {
    ZetMaat(Groter(verschil, 0));
    EXPECT_EQ(HetBlad().Blok()->geometry(), QRect(QPoint(12 + schuif, 12), ontwerp)) << verschil;
    ZetMaat(Groter(0, verschil));
    EXPECT_EQ(HetBlad().Blok()->geometry(), QRect(QPoint(12, 12 + schuif), ontwerp)) << verschil;
  }
  ZetMaat(Groter(-1, -1));
  EXPECT_EQ(HetBlad().Blok()->geometry(), QRect(QPoint(12, 12), ontwerp - QSize(1, 1)));
}

TEST_F(Formaat, ManySizesLeaveNoTrace) {
  ZetMaat({1024, 768});
  const QRect eerst = HetBlad().Blok()->geometry();
  for (int stap = 1; stap <= 60; ++stap) {
    ZetMaat({1024 + 7 * stap, 768 + 5 * (stap % 9)});
    ASSERT_EQ(HetBlad().Blok()->geometry(), Verwacht()) << stap;
  }
  ZetMaat({1024, 768});
  EXPECT_EQ(HetBlad().Blok()->geometry(), eerst);
}

TEST_F(Formaat, MinimisingMovesNothingAndRestoringDoesTheUsualShift) {
  ZetMaat({1024, 768});
  const QRect eerst = HetBlad().Blok()->geometry();
  venster->showMinimized();
  QCoreApplication::processEvents();
  ASSERT_TRUE(venster->isMinimized());
  ZetMaat({1324, 968});
  EXPECT_EQ(HetBlad().Blok()->geometry(), eerst);
  venster->showNormal();
  QCoreApplication::processEvents();
  ASSERT_FALSE(venster->isMinimized());
  EXPECT_EQ(venster->size(), QSize(1324, 968));
  EXPECT_EQ(HetBlad().Blok()->geometry(), Verwacht());
  EXPECT_NE(HetBlad().Blok()->geometry(), eerst);
  ZetMaat({1024, 768});
  EXPECT_EQ(HetBlad().Blok()->geometry(), eerst);
}

// A sheet larger than the letters of the screen make it pleasant to read has its design worked out anew.
TEST_F(Formaat, LargerLettersMakeALargerDesign) {
  ZetMaat({1600, 1000});
  QFont groot = QApplication::font();
  groot.setPixelSize(9);
  QApplication::setFont(groot);
  QCoreApplication::processEvents();
  const QFontMetrics maten = HetBlad().fontMetrics();
  ASSERT_GT(190 * maten.averageCharWidth() + 60 * maten.lineSpacing(), ontwerp.width() + ontwerp.height());
  ontwerp = QSize(190 * maten.averageCharWidth(), 60 * maten.lineSpacing());
  EXPECT_EQ(HetBlad().Blok()->geometry(), Verwacht());
}

}  // namespace
}  // namespace murvane
