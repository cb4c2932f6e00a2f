// The chart's picture, part by part, and the window that prints it.

#include <gtest/gtest.h>

#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QGroupBox>
#include <QImage>
#include <QLegend>
#include <QLegendMarker>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextDocument>
#include <QValueAxis>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "reports/frmGrafiek.h"
#include "reports/frmSelGraf.h"
#include "reports/vensters_grafiek.h"
#include "tests/hulp/opnemer.h"
#include "tests/vensters/robot.h"

namespace murvane {
namespace {

constexpr QSizeF Scherm(680, 378);

/// Bars of 28: the upper half of their labels lies on the grid line of 30.
Grafiek Proefgrafiek() {
  Grafiek grafiek;
  grafiek.Titel = {"Geluidsdrukniveau", "Omschrijving", "Een", "", "Drie"};
  grafiek.Voetnoot = "  VB-1 - Kantoor  ";
  grafiek.As = {"dB(A)", 0, 50, 5};
  for (std::size_t r = 0; r < 8; ++r) grafiek.Waarden[0][r] = static_cast<std::int16_t>(r == 3 ? 0 : 28);
  grafiek.Labels = LabelOpmaak{};
  return grafiek;
}

template <typename T>
std::vector<T*> Delen(const QGraphicsScene& tafereel) {
  std::vector<T*> uit;
  for (QGraphicsItem* deel : tafereel.items(Qt::AscendingOrder))
    if (deel->parentItem() == nullptr)
      if (auto* gezocht = dynamic_cast<T*>(deel)) uit.push_back(gezocht);
  return uit;
}

QChart& KaartVan(const QGraphicsScene& tafereel) {
  return *Delen<QChart>(tafereel).at(0);
}

/// What lies between the axes.
QRectF Assenvlak(const QGraphicsScene& tafereel) {
  return KaartVan(tafereel).mapRectToScene(KaartVan(tafereel).plotArea());
}

/// The texts of the title and the footnote, downwards.
std::vector<std::string> Teksten(const QGraphicsScene& tafereel) {
  std::vector<std::string> uit;
  for (const auto* tekst : Delen<QGraphicsTextItem>(tafereel))
    uit.push_back(tekst->toPlainText().toStdString());
  return uit;
}

// The first of three bars that together take three quarters of a row has its middle at a quarter of it.
TEST(Grafiekdelen, SetsEachLabelAboveTheMiddleOfItsBar) {
  const auto tafereel = MaakTafereel(Proefgrafiek(), Scherm);
  const QRectF vlak = Assenvlak(*tafereel);
  const auto labels = Delen<QGraphicsSimpleTextItem>(*tafereel);
  ASSERT_EQ(labels.size(), 8U);
  for (std::size_t r = 0; r < 8; ++r) {
    const int waarde = r == 3 ? 0 : 28;
    const QRectF plek = labels[r]->sceneBoundingRect();
    EXPECT_EQ(labels[r]->text(), QString::number(waarde));
    EXPECT_NEAR(plek.center().x(), vlak.left() + (static_cast<double>(r) + 0.25) * vlak.width() / 8, 0.5);
    EXPECT_NEAR(plek.bottom(), vlak.bottom() - waarde / 50.0 * vlak.height() - 1, 0.5);
    EXPECT_TRUE(labels[r]->font().bold());
    EXPECT_EQ(labels[r]->font().family(), "Arial");
    EXPECT_NEAR(labels[r]->font().pixelSize() * labels[r]->scale(), 8 * 4 / 3.0, 0.01);  // 8 points
    EXPECT_EQ(labels[r]->brush().color(), QColor(0, 0, 150));
  }
}

TEST(Grafiekdelen, DrawsNoGridLineThroughALabel) {
  const auto tafereel = MaakTafereel(Proefgrafiek(), Scherm);
  QImage beeld(Scherm.toSize() * 2, QImage::Format_RGB32);
  QPainter schilder(&beeld);
  schilder.setRenderHint(QPainter::Antialiasing);
  tafereel->render(&schilder);
  schilder.end();
  const QRectF vlak = Assenvlak(*tafereel);
  const double raster = vlak.bottom() - 0.6 * vlak.height();
  const auto* const label = Delen<QGraphicsSimpleTextItem>(*tafereel).at(1);
  const QRectF plek = label->sceneBoundingRect();
  ASSERT_TRUE(plek.top() + 1 < raster && raster < plek.bottom() - 1);
  const auto grijs = [&](int x) {
    const QRgb punt = beeld.pixel(x, static_cast<int>(raster * 2));
    return qRed(punt) == qGreen(punt) && qGreen(punt) == qBlue(punt) && qRed(punt) < 250;
  };
  for (int x = static_cast<int>(plek.left() * 2) + 2; x < static_cast<int>(plek.right() * 2) - 2; ++x)
    EXPECT_FALSE(grijs(x)) << x;
  EXPECT_TRUE(grijs(static_cast<int>(plek.left() * 2) - 12));  // beside it the line runs
}

TEST(Grafiekdelen, ScalesItsAxisAsTheChartSays) {
  for (const VerticaleAs& as : {VerticaleAs{"dB(A)", 0, 50, 5}, VerticaleAs{"dB(A)", 0, 80, 8},
                                VerticaleAs{"dB(A)", 20, 100, 8}, VerticaleAs{"dB", 0, 100, 10}}) {
    Grafiek grafiek = Proefgrafiek();
    grafiek.As = as;
    const auto tafereel = MaakTafereel(grafiek, Scherm);
    const auto assen = KaartVan(*tafereel).axes(Qt::Vertical);
    ASSERT_EQ(assen.size(), 1);
    const auto& niveau = dynamic_cast<const QValueAxis&>(*assen[0]);
    EXPECT_EQ(niveau.min(), as.Minimum);
    EXPECT_EQ(niveau.max(), as.Maximum);
    EXPECT_EQ(niveau.tickCount(), as.Verdelingen + 1);
    EXPECT_EQ(niveau.titleText().toStdString(), as.Titel);
    EXPECT_EQ(KaartVan(*tafereel).axes(Qt::Horizontal).at(0)->titleText(), "Frequentie in Hz");
  }
}

/// The labels of the vertical axis, upwards.
QStringList Aslabels(const QGraphicsScene& tafereel) {
  const QRectF vlak = Assenvlak(tafereel);
  std::map<double, QString> opHoogte;
  for (const QGraphicsItem* const deel : tafereel.items()) {
    const auto* const tekst = dynamic_cast<const QGraphicsTextItem*>(deel);
    if (tekst == nullptr || tekst->parentItem() == nullptr || tekst->rotation() != 0) continue;
    const QRectF plek = tekst->sceneBoundingRect();
    if (plek.right() <= vlak.left() && !tekst->toPlainText().isEmpty())
      opHoogte[-plek.center().y()] = tekst->toPlainText();
  }
  QStringList uit;
  for (const auto& [hoogte, tekst] : opHoogte) uit << tekst;
  return uit;
}

// The scale of crosstalk keeps the 20 at the bottom of the chart before, and its divisions are then not
// whole.
TEST(Grafiekdelen, TellsWhatADivisionIsWhereItIsNotWhole) {
  const struct {
    const char* Titel;
    int Minimum, Maximum, Verdelingen;
    char Decimaal;
    const char* Labels;
  } rijen[] = {
      {"dB", 20, 80, 8, '.', "20 27.5 35 42.5 50 57.5 65 72.5 80"},
      {"dB", 20, 80, 8, ',', "20 27,5 35 42,5 50 57,5 65 72,5 80"},
      {"dB", 20, 60, 6, ',', "20 26,7 33,3 40 46,7 53,3 60"},  // steps of 40/6
      {"dB", 20, 50, 5, ',', "20 26 32 38 44 50"},
      {"dB", 20, 100, 10, ',', "20 28 36 44 52 60 68 76 84 92 100"},
      {"dB(A)", 0, 50, 5, ',', "0 10 20 30 40 50"},
  };
  for (const auto& rij : rijen) {
    Grafiek grafiek = Proefgrafiek();
    grafiek.As = {rij.Titel, rij.Minimum, rij.Maximum, rij.Verdelingen, rij.Decimaal};
    const auto tafereel = MaakTafereel(grafiek, Scherm);
    EXPECT_EQ(Aslabels(*tafereel).join(' ').toStdString(), rij.Labels);
  }
}

TEST(Grafiekdelen, HasALegendOnlyWhenItIsOn) {
  Grafiek grafiek = Proefgrafiek();
  const auto met = MaakTafereel(grafiek, Scherm);
  QStringList namen;
  for (const auto* merk : KaartVan(*met).legend()->markers()) namen << merk->label();
  EXPECT_TRUE(KaartVan(*met).legend()->isVisible());
  EXPECT_EQ(namen, QStringList({"Totaal", "Ventilator", "Systeem"}));
  grafiek.Legenda = false;
  grafiek.Kolommen = 1;
  grafiek.Rijen = 7;
  const auto zonder = MaakTafereel(grafiek, Scherm);
  EXPECT_FALSE(KaartVan(*zonder).legend()->isVisible());
  const auto* const reeks = dynamic_cast<QBarSeries*>(KaartVan(*zonder).series().at(0));
  ASSERT_EQ(reeks->barSets().size(), 1);
  EXPECT_EQ(reeks->barSets()[0]->count(), 7);
  EXPECT_EQ(Delen<QGraphicsSimpleTextItem>(*zonder).size(), 7U);
}

TEST(Grafiekdelen, ShowsTitleDescriptionAndFootnote) {
  const auto tafereel = MaakTafereel(Proefgrafiek(), Scherm);
  EXPECT_EQ(Teksten(*tafereel), (std::vector<std::string>{"Geluidsdrukniveau", "Omschrijving", "Een", "Drie",
                                                          "  VB-1 - Kantoor  "}));
  const auto delen = Delen<QGraphicsTextItem>(*tafereel);
  EXPECT_TRUE(delen[0]->font().bold());
  EXPECT_FALSE(delen[1]->font().bold());
  EXPECT_LE(delen.back()->sceneBoundingRect().bottom(), Scherm.height());
  EXPECT_GE(delen.back()->sceneBoundingRect().top(), Assenvlak(*tafereel).bottom());
}

TEST(Grafiekdelen, KeepsLongLinesWithinItsWidth) {
  for (const bool terugloop : {false, true}) {
    for (const double breedte : {680.0, 500.0, 300.0}) {
      Grafiek grafiek = Proefgrafiek();
      grafiek.Titel = {"Geluidsdrukniveau op 1 meter van rooster/kanaalwand (afgerond op gehele decibellen)",
                       std::string(80, 'W'), "kort"};
      grafiek.Voetnoot = std::string(80, 'W');
      grafiek.VoetnootTerugloop = terugloop;
      const auto tafereel = MaakTafereel(grafiek, {breedte, 500});
      double onder = 0;
      for (const auto* tekst : Delen<QGraphicsTextItem>(*tafereel)) {
        const QRectF plek = tekst->sceneBoundingRect();
        EXPECT_LE(tekst->document()->idealWidth() * tekst->scale(), breedte - 11.9) << breedte;
        EXPECT_NEAR(plek.center().x(), breedte / 2, 0.5);
        EXPECT_GE(tekst->scale() * tekst->font().pixelSize(), 0.69 * 12);  // it can still be read
        EXPECT_GE(plek.top(), onder - 0.01);                               // under one another
        onder = plek.bottom();
      }
      EXPECT_LE(onder, 500);
    }
  }
}

TEST(Grafiekkeuze, NamesTheResultsThatItOffers) {
  const frmSelGraf venster;
  EXPECT_EQ(venster.windowTitle(), "Grafische weergave");
  EXPECT_EQ(venster.findChild<QGroupBox*>()->title(), "Berekeningsresultaten");
  // An ampersand marks the key of each and is not shown.
  EXPECT_EQ(venster.findChild<QRadioButton*>("Option1")->text().remove('&'), "Lp, 1 meter");
  EXPECT_EQ(venster.findChild<QRadioButton*>("Option2")->text().remove('&'), "Lp, galmveld");
  EXPECT_EQ(venster.findChild<QPushButton*>("Command2")->text().remove('&'), "Cancel");
  EXPECT_EQ(venster.KiesGrafiek(), kiesgrafiek::EenMeter);
}

TEST(Grafiekkeuze, IsWideEnoughForItsTitle) {
  frmSelGraf venster;
  venster.show();
  EXPECT_GE(venster.width(), venster.fontMetrics().horizontalAdvance(venster.windowTitle()) + 100);
}

TEST(Grafiekvenster, PrintsItsChartOnF8) {
  proef::Opnemer blad;
  int keer = 0;
  frmGrafiek venster(Proefgrafiek(), [&](const std::function<void(Vlak&)>& druk) {
    ++keer;
    druk(blad);
  });
  venster.show();
  venster.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
  proef::Robot::Druk(venster, Qt::Key_F7);
  EXPECT_EQ(keer, 0);
  proef::Robot::Druk(venster, Qt::Key_F8);
  ASSERT_EQ(keer, 1);
  ASSERT_EQ(blad.Plaatjes().size(), 1U);
  EXPECT_EQ(blad.Plaatjes()[0].Grafiek, Proefgrafiek());
  EXPECT_NEAR(blad.Plaatjes()[0].Breedte, venster.width() * 15, 0.01);  // as large as on screen
}

TEST(Grafiekvenster, HasDrawnItsChartBeforeItIsShown) {
  frmGrafiek venster(Proefgrafiek(), {});
  const auto* const kaart = venster.findChild<QGraphicsView*>("MSChart1");
  ASSERT_NE(kaart->scene(), nullptr);
  const auto* const voor = kaart->scene();
  venster.show();
  QApplication::processEvents();
  EXPECT_EQ(kaart->scene(), voor);
  EXPECT_EQ(kaart->sceneRect().size(), QSizeF(venster.size()));
}

}  // namespace
}  // namespace murvane
