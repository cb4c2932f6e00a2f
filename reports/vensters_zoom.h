#pragma once
// Larger and smaller on screen, in the windows of the results: Ctrl with the wheel or with + and -, and Ctrl
// and 0 for the size at the start.

#include <QObject>

class QWidget;

namespace murvane {

class Zoom : public QObject {
  Q_OBJECT

 public:
  /// The keys work in `venster`, the wheel over `vlak`. A step is a tenth; `meest` is the largest number of
  /// them, `minst` (below zero) the smallest.
  Zoom(QWidget* venster, QWidget* vlak, int minst, int meest);

  /// What a size is multiplied by: 1 at the start.
  [[nodiscard]] double Maal() const;

 signals:
  void Gewijzigd();

 protected:
  bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

 private:
  void Zet(int stap);
  void VoegToets(const char* toets, int richting);

  int minst_, meest_;
  int stap_ = 0;
  int rest_ = 0;  ///< of the wheel, in eighths of a degree: a touch pad tells of parts of a notch
};

}  // namespace murvane
