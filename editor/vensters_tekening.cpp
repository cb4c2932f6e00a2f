#include "editor/vensters_tekening.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "project/records.h"

namespace murvane {

namespace {

/// Somewhat over the size at which the drawings were made.
constexpr QSize Grootst(640, 400);

struct Beeld {
  std::int16_t Type;
  const char* Naam;
  const char* Omschrijving;
};

constexpr auto Beelden = std::to_array<Beeld>({
    {elementtype::AftakRecht, "aftak-recht", "Aftakking, rechthoekig"},
    {elementtype::AftakRond, "aftak-rond", "Aftakking, rond"},
    {elementtype::BochtHaaks, "bocht-haaks", "Bocht, haaks"},
    {elementtype::BochtRecht, "bocht-recht", "Bocht, rechthoekig"},
    {elementtype::BochtRond, "bocht-rond", "Bocht, rond"},
    {elementtype::DrsneeRecht, "doorsnede-recht", "Doorsnedeverandering, rechthoekig"},
    {elementtype::DrsneeRond, "doorsnede-rond", "Doorsnedeverandering, rond"},
    {elementtype::KanaalRecht, "kanaal-recht", "Kanaal, rechthoekig"},
    {elementtype::KanaalRond, "kanaal-rond", "Kanaal, rond"},
    {elementtype::Klep, "regelklep", "Regelklep"},
    {elementtype::Rooster, "rooster", "Rooster"},
    {elementtype::Catalogus, "catalogus", "Element uit de catalogus"},
});

QString LeesBron(const QString& pad) {
  QFile bestand(pad);
  return bestand.open(QIODevice::ReadOnly) ? QString::fromUtf8(bestand.readAll()) : QString();
}

QString Meng(const QColor& voor, const QColor& achter) {
  return QColor((voor.red() + achter.red()) / 2, (voor.green() + achter.green()) / 2,
                (voor.blue() + achter.blue()) / 2)
      .name();
}

/// The drawings name three colours: line, shade and flow.
QByteArray InKleur(QString svg, const QPalette& palet) {
  const QColor lijn = palet.color(QPalette::WindowText);
  svg.replace("#888888", Meng(lijn, palet.color(QPalette::Window)));
  svg.replace("#3a6ea5", palet.color(QPalette::Highlight).name());
  svg.replace("#111111", lijn.name());
  return svg.toUtf8();
}

/// Orange stands out on a light and on a dark ground alike.
void BelichtGroep(QString& svg, const QString& id) {
  const qsizetype van = svg.indexOf("<g id=\"" + id + "\"");
  const qsizetype tot = van < 0 ? -1 : svg.indexOf("</g>", van);
  if (tot < 0) return;
  QString groep = svg.mid(van, tot - van);
  groep.replace("#111111", "#e8590c").replace("#3a6ea5", "#e8590c");
  groep.replace("font-style=\"italic\"", "font-style=\"italic\" font-weight=\"bold\"");
  groep.replace("stroke-width=\"1.2\"", "stroke-width=\"2.4\"");
  svg.replace(van, tot - van, groep);
}

/// Draws a size when it is asked for, and keeps it: most icons stand on tabs that nobody opens yet.
class SvgIcoon final : public QIconEngine {
 public:
  SvgIcoon(QString naam, std::optional<QPalette> palet) : naam_(std::move(naam)), palet_(std::move(palet)) {}

  [[nodiscard]] QIconEngine* clone() const override { return new SvgIcoon(naam_, palet_); }
  [[nodiscard]] bool isNull() override { return false; }

  void paint(QPainter* schilder, const QRect& vlak, QIcon::Mode stand, QIcon::State aan) override {
    const qreal schaal = schilder->device()->devicePixelRatio();
    schilder->drawPixmap(vlak, scaledPixmap(vlak.size() * schaal, stand, aan, schaal));
  }

  QPixmap pixmap(const QSize& maat, QIcon::Mode stand, QIcon::State /*aan*/) override {
    QPixmap& beeld = beelden_[{maat.width(), maat.height(), stand}];
    if (beeld.isNull()) beeld = Teken(maat, stand);
    return beeld;
  }

 private:
  [[nodiscard]] QPixmap Teken(const QSize& maat, QIcon::Mode stand) const {
    QPixmap beeld(maat);
    beeld.fill(Qt::transparent);
    const QString bron = LeesBron(":/shell/beelden/" + naam_ + ".svg");
    QSvgRenderer svg(palet_ ? InKleur(bron, *palet_) : bron.toUtf8());
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter schilder(&beeld);
    svg.render(&schilder);
    schilder.end();
    if (stand == QIcon::Normal) return beeld;
    QStyleOption optie;
    if (palet_) optie.palette = *palet_;
    return QApplication::style()->generatedIconPixmap(stand, beeld, &optie);
  }

  QString naam_;
  std::optional<QPalette> palet_;
  std::map<std::tuple<int, int, QIcon::Mode>, QPixmap> beelden_;
};

}  // namespace

QIcon Icoon(const QString& naam, const QPalette& palet) {
  return QIcon(new SvgIcoon(naam, palet));
}

QIcon Icoon(const QString& naam) {
  return QIcon(new SvgIcoon(naam, {}));
}

Tekening::Tekening(QWidget* ouder) : QWidget(ouder) {
  setObjectName("Tekening");
  setMinimumSize(200, 125);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  svg_.setAspectRatioMode(Qt::KeepAspectRatio);
  ZetType(0);
}

void Tekening::ZetType(std::int16_t elementType) {
  const auto* const beeld = std::find_if(Beelden.begin(), Beelden.end(),
                                         [elementType](const Beeld& een) { return een.Type == elementType; });
  if (beeld == Beelden.end()) return ZetBeeld(":/editor/beelden/keten.svg", "Keten van kanaalelementen");
  ZetBeeld(QString(":/editor/beelden/") + beeld->Naam + ".svg", beeld->Omschrijving);
}

void Tekening::ZetRuimte(bool onderKanaal) {
  if (onderKanaal) return ZetBeeld(":/editor/beelden/ruimte-kanaal.svg", "Vertrek onder een kanaal");
  ZetBeeld(":/editor/beelden/ruimte.svg", "Vertrek");
}

void Tekening::ZetBeeld(const QString& pad, const QString& omschrijving) {
  bron_ = LeesBron(pad);
  setAccessibleName("Tekening: " + omschrijving);
  Laad();
}

void Tekening::Belicht(const QString& veldNaam) {
  belicht_ = veldNaam;
  Laad();
}

void Tekening::Laad() {
  QString svg = bron_;
  BelichtGroep(svg, belicht_);
  svg_.load(InKleur(svg, palette()));
  svg_.setAspectRatioMode(Qt::KeepAspectRatio);
  update();
}

void Tekening::paintEvent(QPaintEvent* /*event*/) {
  QPainter schilder(this);
  const QSizeF meest = QSizeF(Grootst).boundedTo(size());  // lines stay lines, however large the window
  svg_.render(&schilder,
              QRectF(QPointF((width() - meest.width()) / 2, (height() - meest.height()) / 2), meest));
}

void Tekening::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) Laad();
  QWidget::changeEvent(event);
}

}  // namespace murvane
