#pragma once
// A small bar picture of an estimate: a bar for each octave band with its value above and the band below.

#include <QWidget>
#include <array>
#include <optional>
#include <string>

#include "project/records.h"

namespace murvane {

class Staven : public QWidget {
  Q_OBJECT

 public:
  /// `grootheid` is what the bars are, as "Demping in dB".
  Staven(const QString& grootheid, QWidget* ouder);

  /// Shows seven whole numbers as they stand in their fields, or that there are none yet.
  void Zet(const std::optional<std::array<std::string, Banden>>& waarden);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString grootheid_;
  std::optional<std::array<std::string, Banden>> waarden_;
};

}  // namespace murvane
