#pragma once
// The print preview: the pages as pictures, drawn once.

#include <QWidget>
#include <memory>

#include "reports/preview.h"

class QScrollBar;

namespace murvane {

class Schildervlak;
class Werkbalk;
class Zoom;

/// The page on show.
class Documentvak : public QWidget {
  Q_OBJECT

 public:
  explicit Documentvak(QWidget* ouder);
  void Toon(const QImage& blad);
  /// The size of the page, against that of paper.
  void ZetMaal(double maal);

 protected:
  void paintEvent(QPaintEvent* gebeurtenis) override;

 private:
  QPixmap beeld_;
};

class frmPreView : public QWidget {
  Q_OBJECT

 public:
  /// `stand` is the program's state of its preview and outlives the window.
  explicit frmPreView(VoorbeeldStand& stand, QWidget* ouder = nullptr);
  ~frmPreView() override;

  /// The surface to draw the pages on, before ToonBlad.
  [[nodiscard]] Vlak& Document();
  /// Shows the page that the state says.
  void ToonBlad();
  /// The bytes of the bitmap of a page, from 0. Fout 9 for a page that there is not.
  [[nodiscard]] std::string Bitmap(int index) const;

 signals:
  void Printen();
  void Opslaan();
  void Pdf();

 protected:
  void resizeEvent(QResizeEvent* gebeurtenis) override;
  bool focusNextPrevChild(bool verder) override;
  void closeEvent(QCloseEvent* gebeurtenis) override;
  void wheelEvent(QWheelEvent* gebeurtenis) override;
  void keyPressEvent(QKeyEvent* gebeurtenis) override;

 private:
  void ButtonClick(const QString& sleutel);
  void VerbindBalk(QScrollBar& balk);
  void DeelIn();
  void Schuif();
  void PasZoomToe();

  VoorbeeldStand& stand_;
  std::unique_ptr<Schildervlak> vlak_;
  Werkbalk* Toolbar1;
  QWidget* DocumentContainer;
  Documentvak* document_;
  QScrollBar* HScroll1;
  QScrollBar* VScroll1;
  Zoom* zoom_;
  Schuifbalken balken_;
};

}  // namespace murvane
