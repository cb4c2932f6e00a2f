#pragma once
// The drawings of the elements and the icons, in the colours of the theme.

#include <QIcon>
#include <QSvgRenderer>
#include <QWidget>
#include <cstdint>
#include <string_view>

namespace murvane {

/// An icon out of the program's resources, in the colours of a palette or in its own.
[[nodiscard]] QIcon Icoon(const QString& naam, const QPalette& palet);
[[nodiscard]] QIcon Icoon(const QString& naam);

/// The line drawing of an element type, the room or an estimate, in which the dimension of one field is lit.
class Tekening : public QWidget {
  Q_OBJECT

 public:
  explicit Tekening(QWidget* ouder);

  /// The drawing of an element type; for a number that is none that of a chain of elements.
  void ZetType(std::int16_t elementType);
  /// The room, with outlets in its ceiling or under a duct that radiates through it.
  void ZetRuimte(bool onderKanaal);
  /// Another drawing of the same family, out of the program's resources.
  void ZetBeeld(const QString& pad, const QString& omschrijving);
  /// Lights the dimension of a field; one that the drawing does not show lights nothing.
  void Belicht(const QString& veldNaam);
  [[nodiscard]] const QString& Belicht() const { return belicht_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Laad();

  QString bron_;
  QString belicht_;
  QSvgRenderer svg_;
};

}  // namespace murvane
