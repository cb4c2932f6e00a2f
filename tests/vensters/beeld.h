#pragma once
// How windows look, in tests: the themes of users, and pictures of a window.

#include <QPalette>
#include <QString>

class QWidget;

namespace murvane::proef {

/// A theme that the user has chosen for the whole system, while it lives.
class Thema {
 public:
  explicit Thema(const QPalette& palet);
  Thema(const Thema&) = delete;
  Thema& operator=(const Thema&) = delete;
  ~Thema();

 private:
  QPalette was_;
};

/// Light letters on a dark ground.
[[nodiscard]] QPalette Donker();
/// White on black without a shade between them, and yellow for what is chosen.
[[nodiscard]] QPalette HoogContrast();

/// Expects that no label or button of a window is smaller than its text, and saves a picture of it in the
/// directory that MURVANE_BEELDEN names, if it does.
void Fotografeer(QWidget& venster, const QString& naam);

}  // namespace murvane::proef
