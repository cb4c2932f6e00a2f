#include "basis/vensters_stijl.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QIconEngine>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace murvane {

namespace {

/// A picture of the style that is looked up when it is painted.
class LuiIcoon final : public QIconEngine {
 public:
  LuiIcoon(const QStyle& stijl, QStyle::StandardPixmap welke) : stijl_(stijl), welke_(welke) {}

  [[nodiscard]] QIconEngine* clone() const override { return new LuiIcoon(stijl_, welke_); }
  void paint(QPainter* schilder, const QRect& vlak, QIcon::Mode stand, QIcon::State aan) override {
    stijl_.standardIcon(welke_).paint(schilder, vlak, Qt::AlignCenter, stand, aan);
  }
  QPixmap pixmap(const QSize& maat, QIcon::Mode stand, QIcon::State aan) override {
    return stijl_.standardIcon(welke_).pixmap(maat, stand, aan);
  }

 private:
  const QStyle& stijl_;
  QStyle::StandardPixmap welke_;
};

constexpr double ZwartWit = 20.5;      ///< nearly that of black and white, which is 21
constexpr double LeesbaarVanaf = 4.0;  ///< somewhat under what WCAG 2.1 asks of text that is not disabled

/// The buttons of a window in the menu bar, in the colours of the theme: the style's own are dark in a dark
/// one.
class Titelicoon final : public QIconEngine {
 public:
  explicit Titelicoon(QStyle::StandardPixmap welke) : welke_(welke) {}

  [[nodiscard]] QIconEngine* clone() const override { return new Titelicoon(welke_); }
  [[nodiscard]] bool isNull() override { return false; }
  void paint(QPainter* schilder, const QRect& vlak, QIcon::Mode stand, QIcon::State /*aan*/) override {
    const auto groep = stand == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const double deel = std::min(vlak.width(), vlak.height()) / 10.0;
    schilder->save();
    schilder->setRenderHint(QPainter::Antialiasing);
    schilder->setPen(QPen(QApplication::palette().color(groep, QPalette::ButtonText), 1));
    schilder->translate(vlak.topLeft());
    schilder->scale(deel, deel);
    Teken(*schilder);
    schilder->restore();
  }
  QPixmap pixmap(const QSize& maat, QIcon::Mode stand, QIcon::State aan) override {
    QPixmap beeld(maat);
    beeld.fill(Qt::transparent);
    QPainter schilder(&beeld);
    paint(&schilder, QRect(QPoint(), maat), stand, aan);
    return beeld;
  }

 private:
  /// On a square of ten by ten.
  void Teken(QPainter& schilder) const {
    if (welke_ == QStyle::SP_TitleBarMinButton) return schilder.drawLine(QLineF(2.5, 7, 7.5, 7));
    if (welke_ == QStyle::SP_TitleBarMaxButton) return schilder.drawRect(QRectF(2.5, 2.5, 5, 5));
    if (welke_ == QStyle::SP_TitleBarNormalButton) {
      schilder.drawRect(QRectF(2.5, 4, 3.5, 3.5));
      return schilder.drawPolyline(QPolygonF({{4, 4}, {4, 2.5}, {7.5, 2.5}, {7.5, 6}, {6, 6}}));
    }
    schilder.drawLine(QLineF(2.5, 2.5, 7.5, 7.5));
    schilder.drawLine(QLineF(2.5, 7.5, 7.5, 2.5));
  }

  QStyle::StandardPixmap welke_;
};

bool IsTitelknop(QStyle::StandardPixmap welke) {
  return welke == QStyle::SP_TitleBarMinButton || welke == QStyle::SP_TitleBarMaxButton ||
         welke == QStyle::SP_TitleBarNormalButton || welke == QStyle::SP_TitleBarCloseButton;
}

double Lineair(double deel) {
  return deel <= 0.04045 ? deel / 12.92 : std::pow((deel + 0.055) / 1.055, 2.4);
}

double Helderheid(const QColor& kleur) {
  return 0.2126 * Lineair(kleur.redF()) + 0.7152 * Lineair(kleur.greenF()) + 0.0722 * Lineair(kleur.blueF());
}

/// The palest blend of two colours that can be read on the second.
QColor Flets(const QColor& tekst, const QColor& grond) {
  for (const double deel : {0.5, 0.6, 0.7, 0.8, 0.9}) {
    const QColor kleur = Meng(tekst, grond, deel);
    if (Contrast(kleur, grond) >= LeesbaarVanaf) return kleur;
  }
  return tekst;
}

/// The program's, not the control's own: a list that is not active shows its row in grey.
QColor Ringkleur() {
  return QApplication::palette().color(QPalette::Highlight);
}

void Ring(QPainter& schilder, const QRect& plek, const QColor& kleur, int dikte) {
  schilder.save();
  schilder.setPen(QPen(kleur, dikte, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  schilder.setBrush(Qt::NoBrush);
  const double half = dikte / 2.0;
  schilder.drawRect(QRectF(plek).adjusted(half, half, -half, -half));
  schilder.restore();
}

/// The ring of a field, whose ground may be of the ring's own colour.
QColor Ringkleur(const QPalette& vak) {
  const QColor ring = Ringkleur();
  return Contrast(ring, vak.color(QPalette::Base)) >= Zichtbaar ? ring : vak.color(QPalette::Text);
}

/// A theme of black and white, in which the style's own shades and outlines are lost.
bool IsHoogContrast(const QPalette& palet) {
  return Contrast(palet.color(QPalette::WindowText), palet.color(QPalette::Window)) >= ZwartWit;
}

/// What has no outline of its own in such a theme.
bool HeeftOmtrek(QStyle::PrimitiveElement deel, const QStyleOption& optie) {
  const bool knop = deel == QStyle::PE_PanelButtonTool && !(optie.state & QStyle::State_AutoRaise);
  return knop || deel == QStyle::PE_PanelButtonCommand || deel == QStyle::PE_FrameTabWidget ||
         deel == QStyle::PE_Frame;
}

/// A box to tick is as dark as its ground in a dark theme: its outline makes it seen.
void Omtrek(QPainter& schilder, QStyle::PrimitiveElement deel, const QStyleOption& optie) {
  if (deel != QStyle::PE_IndicatorCheckBox && deel != QStyle::PE_IndicatorRadioButton) return;
  const QPalette& palet = optie.palette;
  schilder.save();
  schilder.setRenderHint(QPainter::Antialiasing);
  schilder.setPen(Flets(palet.color(QPalette::WindowText), palet.color(QPalette::Window)));
  schilder.setBrush(Qt::NoBrush);
  const QRectF plek = QRectF(optie.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (deel == QStyle::PE_IndicatorCheckBox) schilder.drawRect(plek);
  if (deel == QStyle::PE_IndicatorRadioButton) schilder.drawEllipse(plek);
  schilder.restore();
}

/// The rim of a control where the style's own is lost.
void Rand(QPainter& schilder, QStyle::PrimitiveElement deel, const QStyleOption& optie) {
  const bool focus = optie.state & QStyle::State_HasFocus;
  const QPalette& palet = QApplication::palette();
  if (HeeftOmtrek(deel, optie) && IsHoogContrast(palet))
    Ring(schilder, optie.rect, focus ? Ringkleur() : palet.color(QPalette::WindowText), focus ? 2 : 1);
  if (deel == QStyle::PE_PanelLineEdit && focus && Ringkleur(optie.palette) != Ringkleur())
    Ring(schilder, optie.rect.adjusted(1, 1, -1, -1), Ringkleur(optie.palette), 2);
}

/// A value has no field around it, only the ring when it has the focus.
bool IsWaardeVlak(QStyle::PrimitiveElement deel, const QWidget* vak) {
  const auto* const veld = qobject_cast<const QLineEdit*>(vak);
  return deel == QStyle::PE_PanelLineEdit && veld != nullptr && IsWaarde(*veld);
}

bool IsSchuifvak(const QWidget* vak) {
  return qobject_cast<const QAbstractScrollArea*>(vak) != nullptr;
}

/// Applies Leesbaar whenever the system turns to another theme.
class Themavolger : public QObject {
 public:
  using QObject::QObject;

  static void PasToe() {
    const QPalette nu = QApplication::palette();
    const QPalette leesbaar = Leesbaar(nu);
    if (leesbaar != nu) QApplication::setPalette(leesbaar);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == qApp && event->type() == QEvent::ApplicationPaletteChange)
      QMetaObject::invokeMethod(qApp, &Themavolger::PasToe, Qt::QueuedConnection);
    return false;
  }
};

}  // namespace

QColor Meng(const QColor& voor, const QColor& achter, double deel) {
  const auto meng = [deel](int a, int b) { return static_cast<int>(std::lround(a * deel + b * (1 - deel))); };
  return {meng(voor.red(), achter.red()), meng(voor.green(), achter.green()),
          meng(voor.blue(), achter.blue())};
}

double Contrast(const QColor& een, const QColor& ander) {
  const double a = Helderheid(een);
  const double b = Helderheid(ander);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool IsDonker(const QPalette& palet) {
  return Helderheid(palet.color(QPalette::Window)) < Helderheid(palet.color(QPalette::WindowText));
}

bool IsWaarde(const QLineEdit& veld) {
  return veld.isReadOnly() || veld.testAttribute(Qt::WA_ForceDisabled);
}

QPalette Leesbaar(QPalette palet) {
  constexpr std::array<std::pair<QPalette::ColorRole, QPalette::ColorRole>, 3> Paren = {
      {{QPalette::WindowText, QPalette::Window},
       {QPalette::ButtonText, QPalette::Button},
       {QPalette::Text, QPalette::Window}}};
  for (const auto& [tekst, grond] : Paren) {
    const QColor kleur = Flets(palet.color(QPalette::Active, tekst), palet.color(QPalette::Active, grond));
    palet.setColor(QPalette::Disabled, tekst, kleur);
  }
  const QColor keuze = palet.color(QPalette::Disabled, QPalette::Highlight);
  const bool opLicht = Contrast(Qt::black, keuze) > Contrast(Qt::white, keuze);
  palet.setColor(QPalette::Disabled, QPalette::HighlightedText, opLicht ? Qt::black : Qt::white);
  return palet;
}

void Stijl::polish(QWidget* vak) {
  QProxyStyle::polish(vak);
  if (IsSchuifvak(vak)) vak->installEventFilter(this);
  auto* const label = qobject_cast<QLabel*>(vak);
  if (label != nullptr && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
}

void Stijl::unpolish(QWidget* vak) {
  if (IsSchuifvak(vak)) vak->removeEventFilter(this);
  QProxyStyle::unpolish(vak);
}

void Stijl::drawPrimitive(PrimitiveElement deel, const QStyleOption* optie, QPainter* schilder,
                          const QWidget* vak) const {
  if (IsWaardeVlak(deel, vak)) {
    if (optie->state & State_HasFocus) Ring(*schilder, optie->rect, Ringkleur(), 2);
    return;
  }
  if (deel != PE_FrameFocusRect) {
    QProxyStyle::drawPrimitive(deel, optie, schilder, vak);
    Omtrek(*schilder, deel, *optie);
    return Rand(*schilder, deel, *optie);
  }
  const auto* const lijst = qobject_cast<const QAbstractItemView*>(vak);
  if (lijst != nullptr && lijst->frameShape() != QFrame::NoFrame) return;  // its frame shows the ring
  Ring(*schilder, optie->rect, Ringkleur(), 2);
}

void Stijl::drawControl(ControlElement deel, const QStyleOption* optie, QPainter* schilder,
                        const QWidget* vak) const {
  QProxyStyle::drawControl(deel, optie, schilder, vak);
  if (deel == CE_TabBarTabLabel && (optie->state & State_HasFocus))
    return Ring(*schilder, optie->rect.adjusted(4, 4, -4, -3), Ringkleur(), 2);
  constexpr State Toets = State_HasFocus | State_KeyboardFocusChange;
  if (deel == CE_PushButton && (optie->state & Toets) == Toets)  // a default button looks focused always
    return Ring(*schilder, optie->rect.adjusted(3, 3, -3, -3), Ringkleur(), 2);
  if (deel != CE_ShapedFrame || !IsSchuifvak(vak) || !(optie->state & State_HasFocus)) return;
  Ring(*schilder, optie->rect, Ringkleur(), 1 + Ringruimte);
}

QIcon Stijl::standardIcon(StandardPixmap welke, const QStyleOption* optie, const QWidget* vak) const {
  if (IsTitelknop(welke)) return QIcon(new Titelicoon(welke));
  const bool zelden = welke == SP_ToolBarHorizontalExtensionButton ||  // of a menu bar that does not fit
                      qobject_cast<const QMdiSubWindow*>(vak) != nullptr;
  return zelden ? QIcon(new LuiIcoon(*baseStyle(), welke)) : QProxyStyle::standardIcon(welke, optie, vak);
}

/// A scrolling control draws its contents again when the focus comes or goes, but not its frame.
bool Stijl::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
    static_cast<QWidget*>(object)->update();
  return QProxyStyle::eventFilter(object, event);
}

void ZetStijl(QApplication& toepassing, QStyle* onder) {
  QApplication::setStyle(new Stijl(onder));
  Themavolger::PasToe();
  toepassing.installEventFilter(new Themavolger(&toepassing));
}

}  // namespace murvane
