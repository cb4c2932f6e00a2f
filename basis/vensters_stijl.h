#pragma once
// How the whole program looks on top of the system's own style: the control that has the focus always shows
// it, and what is disabled can still be read, in a light and in a dark theme.

#include <QIcon>
#include <QProxyStyle>

class QApplication;
class QLineEdit;

namespace murvane {

/// The system's style with a clear ring around the control that has the focus.
class Stijl : public QProxyStyle {
  Q_OBJECT

 public:
  /// On top of `onder`, which it takes over; without one on top of the system's own.
  explicit Stijl(QStyle* onder = nullptr) : QProxyStyle(onder) {}

  using QProxyStyle::polish;
  using QProxyStyle::unpolish;
  /// Also makes a label that would guess whether its text is mark-up show it as it stands: those of the
  /// program, of the toolkit's own boxes, and tool tips. A name out of a file loads no pictures.
  void polish(QWidget* vak) override;
  void unpolish(QWidget* vak) override;
  void drawPrimitive(PrimitiveElement deel, const QStyleOption* optie, QPainter* schilder,
                     const QWidget* vak = nullptr) const override;
  void drawControl(ControlElement deel, const QStyleOption* optie, QPainter* schilder,
                   const QWidget* vak = nullptr) const override;
  /// Pictures that are rarely seen are looked up when they are: each lookup loads every picture format that
  /// there is, and the program would do it at each start.
  [[nodiscard]] QIcon standardIcon(StandardPixmap welke, const QStyleOption* optie = nullptr,
                                   const QWidget* vak = nullptr) const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

/// Room that a scrolling control leaves inside its frame for the ring.
inline constexpr int Ringruimte = 1;

/// A colour between two: `deel` (0 to 1) of the first.
[[nodiscard]] QColor Meng(const QColor& voor, const QColor& achter, double deel);

/// The contrast of two colours as the eye takes it: from 1 for the same ones to 21 for black on white.
[[nodiscard]] double Contrast(const QColor& een, const QColor& ander);

/// The contrast from which two colours are told apart beside each other.
inline constexpr double Zichtbaar = 1.5;

/// A theme of light letters on a dark ground.
[[nodiscard]] bool IsDonker(const QPalette& palet);

/// A box whose text cannot be typed in, by itself and not because its window waits: it looks like text.
[[nodiscard]] bool IsWaarde(const QLineEdit& veld);

/// A palette in which text of disabled controls stands out from its ground.
[[nodiscard]] QPalette Leesbaar(QPalette palet);

/// Gives the program its style, and keeps disabled text legible in every theme that the system turns to.
void ZetStijl(QApplication& toepassing, QStyle* onder = nullptr);

}  // namespace murvane
