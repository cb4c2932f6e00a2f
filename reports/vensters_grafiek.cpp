#include "reports/vensters_grafiek.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QLegend>
#include <QLocale>
#include <QPainter>
#include <QTextDocument>
#include <QTextOption>
#include <QValueAxis>
#include <algorithm>
#include <array>
#include <cmath>

#include "basis/tekst.h"
#include "basis/vensters_hulp.h"

namespace murvane {

namespace {

constexpr double TwipsPerEenheid = 15;
/// Texts are laid out at three times their size and shown at a third: sizes of a third of a unit stay exact.
constexpr int Fijn = 3;
constexpr double Rand = 6;
constexpr double Kleinst = 0.7;  // a line is set no smaller than this part to fit its width; then it wraps
constexpr double Groepbreedte = 0.75;  // part of a row that its bars take
constexpr QColor Inkt{20, 20, 20}, Raster{205, 205, 205};

/// Dark, middle and light, so that they differ without colour too.
constexpr std::array<QColor, Grafiek::MaxKolommen> Kolomkleuren = {QColor(27, 58, 107), QColor(230, 159, 0),
                                                                   QColor(154, 208, 236)};

QFont Letter(double punten, bool vet = false) {
  QFont font("Arial");
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(static_cast<int>(std::lround(punten * 4 / 3)));  // 96 units to the inch
  font.setBold(vet);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// A text centred in the width, from `boven` down; its height. One that is too wide for a line is set
/// smaller, or wraps.
double ZetTekst(QGraphicsScene& tafereel, const QString& tekst, QFont font, double boven, double breedte,
                bool terugloop) {
  font.setPixelSize(font.pixelSize() * Fijn);
  auto* item = tafereel.addText(tekst, font);
  item->setDefaultTextColor(Inkt);
  item->document()->setDocumentMargin(0);
  const double vrij = breedte - 2 * Rand;
  const double past = terugloop ? 1.0 : vrij * Fijn / std::max(1.0, item->document()->idealWidth());
  const double schaal = std::clamp(past, Kleinst, 1.0) / Fijn;
  QTextOption opmaak(Qt::AlignHCenter);
  opmaak.setWrapMode(terugloop || past < Kleinst ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                                 : QTextOption::NoWrap);
  item->document()->setDefaultTextOption(opmaak);
  item->setTextWidth(vrij / schaal);
  item->setScale(schaal);
  item->setPos(Rand, boven);
  return item->boundingRect().height() * schaal;
}

double ZetTitel(QGraphicsScene& tafereel, const Grafiek& grafiek, double breedte) {
  double y = Rand;
  bool eerste = true;
  for (const std::string& regel : grafiek.Titel) {
    const QString tekst = VanCp(TrimRechts(regel));
    if (eerste || !tekst.isEmpty())
      y += ZetTekst(tafereel, tekst, Letter(eerste ? 10 : 9, eerste), y, breedte, false);
    eerste = false;
  }
  return y;
}

/// At the bottom; the height that it takes.
double ZetVoetnoot(QGraphicsScene& tafereel, const Grafiek& grafiek, QSizeF grootte) {
  if (grafiek.Voetnoot.empty()) return 0;
  const double hoogte = ZetTekst(tafereel, VanCp(grafiek.Voetnoot), Letter(9), grootte.height(),
                                 grootte.width(), grafiek.VoetnootTerugloop);
  tafereel.items().constFirst()->moveBy(0, -hoogte - Rand);
  return hoogte + Rand;
}

QBarSeries* Reeksen(const Grafiek& grafiek) {
  auto* reeks = new QBarSeries;
  reeks->setBarWidth(Groepbreedte);
  for (std::size_t k = 0; k < grafiek.Kolommen; ++k) {
    auto* kolom = new QBarSet(VanCp(Grafiek::KolomLabels[k]));
    for (std::size_t r = 0; r < grafiek.Rijen; ++r) kolom->append(grafiek.Waarden[k][r]);
    kolom->setColor(Kolomkleuren[k]);
    kolom->setBorderColor(Inkt);
    reeks->append(kolom);
  }
  return reeks;
}

void Kleed(QAbstractAxis& as, const QString& titel) {
  as.setTitleText(titel);
  as.setTitleFont(Letter(9));
  as.setTitleBrush(Inkt);
  as.setLabelsFont(Letter(8));
  as.setLabelsBrush(Inkt);
  as.setLinePen(QPen(Inkt, 0.75));
  as.setGridLinePen(QPen(Raster, 0.75));
}

void VoegAssenToe(QChart& kaart, const Grafiek& grafiek, QBarSeries& reeks) {
  auto* rijen = new QBarCategoryAxis;
  for (std::size_t r = 0; r < grafiek.Rijen; ++r) rijen->append(VanCp(Grafiek::RijLabels[r]));
  Kleed(*rijen, VanCp(Grafiek::HorizontaleTitel));
  rijen->setGridLineVisible(false);
  auto* niveau = new QValueAxis;
  niveau->setRange(grafiek.As.Minimum, grafiek.As.Maximum);
  niveau->setTickCount(grafiek.As.Verdelingen + 1);
  niveau->setLabelFormat("%.3g");  // decimals only at a division that is not whole
  Kleed(*niveau, VanCp(grafiek.As.Titel));
  kaart.addAxis(rijen, Qt::AlignBottom);
  kaart.addAxis(niveau, Qt::AlignLeft);
  reeks.attachAxis(rijen);
  reeks.attachAxis(niveau);
}

QFont LabelFont(const LabelOpmaak& opmaak) {
  QFont font(VanCp(opmaak.FontNaam));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(static_cast<int>(std::lround(opmaak.FontSize * 4 / 3 * Fijn)));
  font.setBold(opmaak.Stijl == 1);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// The values above the bars of the first series; the toolkit would set them at all bars.
void ZetLabels(QGraphicsScene& tafereel, QChart& kaart, QBarSeries& reeks, const Grafiek& grafiek) {
  if (!grafiek.Labels) return;
  const LabelOpmaak& opmaak = *grafiek.Labels;
  const double kolom = Groepbreedte / static_cast<double>(grafiek.Kolommen);
  for (std::size_t r = 0; r < grafiek.Rijen; ++r) {
    const std::int16_t waarde = grafiek.Waarden[0][r];
    const double midden = static_cast<double>(r) - Groepbreedte / 2 + kolom / 2;
    const double top = std::clamp<double>(waarde, grafiek.As.Minimum, grafiek.As.Maximum);
    auto* label = tafereel.addSimpleText(QString::number(waarde), LabelFont(opmaak));
    label->setBrush(QColor(opmaak.Kleur.Rood, opmaak.Kleur.Groen, opmaak.Kleur.Blauw));
    label->setScale(1.0 / Fijn);
    const QSizeF maat = label->boundingRect().size() / Fijn;
    const QPointF plaats = kaart.mapToScene(kaart.mapToPosition(QPointF(midden, top), &reeks));
    const QRectF vak({plaats.x() - maat.width() / 2, plaats.y() - maat.height() - 1}, maat);
    label->setPos(vak.topLeft());
    // No grid line through its figures.
    auto* ondergrond = tafereel.addRect(vak, Qt::NoPen, tafereel.backgroundBrush());
    ondergrond->stackBefore(label);
  }
}

}  // namespace

std::unique_ptr<QGraphicsScene> MaakTafereel(const Grafiek& grafiek, QSizeF grootte) {
  auto tafereel = std::make_unique<QGraphicsScene>(QRectF(QPointF(), grootte));
  tafereel->setBackgroundBrush(Qt::white);
  const double boven = ZetTitel(*tafereel, grafiek, grootte.width());
  const double onder = ZetVoetnoot(*tafereel, grafiek, grootte);
  auto* kaart = new QChart;
  tafereel->addItem(kaart);
  kaart->setLocale(grafiek.As.Decimaal == ',' ? QLocale(QLocale::Dutch) : QLocale::c());
  kaart->setLocalizeNumbers(true);
  kaart->setTheme(QChart::ChartThemeLight);
  kaart->setBackgroundVisible(false);
  kaart->setMargins(QMargins(4, 4, 4, 2));
  auto* reeks = Reeksen(grafiek);
  kaart->addSeries(reeks);
  VoegAssenToe(*kaart, grafiek, *reeks);
  kaart->legend()->setVisible(grafiek.Legenda);
  kaart->legend()->setAlignment(Qt::AlignRight);
  kaart->legend()->setFont(Letter(9));
  kaart->legend()->setLabelColor(Inkt);
  kaart->setGeometry(QRectF(0, boven, grootte.width(), std::max(50.0, grootte.height() - boven - onder)));
  kaart->layout()->activate();
  ZetLabels(*tafereel, *kaart, *reeks, grafiek);
  return tafereel;
}

void TekenGrafiek(QPainter& schilder, const Grafiek& grafiek, const QRectF& doel) {
  const auto tafereel = MaakTafereel(grafiek, doel.size() / TwipsPerEenheid);
  tafereel->render(&schilder, doel, tafereel->sceneRect(), Qt::IgnoreAspectRatio);
}

}  // namespace murvane
