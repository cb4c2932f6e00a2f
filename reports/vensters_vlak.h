#pragma once
// The page surface on the toolkit's painter: printer, PDF and preview picture are the same drawing. One unit
// of the painter is a twip, and a font's size in pixels its size in twips, so that every surface lays text
// out alike.

#include <QBuffer>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QString>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "reports/vlak.h"

class QFontMetricsF;
class QPagedPaintDevice;

namespace murvane {

/// The font that the program takes for a name; for the form's own font one of its measures when it is
/// missing.
[[nodiscard]] QFont FontVan(std::string_view naam);

/// Pixels to the inch of the preview's pictures: twice those of a screen, so that the table can be read.
inline constexpr double VoorbeeldDpi = 192;

/// The bytes of a bitmap file.
[[nodiscard]] std::string BitmapBytes(const QImage& beeld);

/// A line that would run off the sheet is set narrower, so that all of it can be read, and with it all lines
/// that begin under one another in its block: what an empty line, a rule, a box, a picture or the page ends.
class Schildervlak final : public Vlak {
 public:
  /// A document on the whole A4 sheet, upright or on its long side, its origin in the sheet's corner. Fout 75
  /// when the device cannot begin. What a printer prints to a PDF file is held until EndDoc, which then
  /// replaces the file as VervangBestand does and raises its Fout.
  explicit Schildervlak(std::shared_ptr<QPagedPaintDevice> apparaat, bool liggend = false);
  /// A white picture of this size in twips.
  Schildervlak(double breedte, double hoogte, double pixelsPerInch);
  ~Schildervlak() override;

  /// The pictures that BewaarBlad kept.
  [[nodiscard]] const std::vector<QImage>& Bladen() const { return bladen_; }

  [[nodiscard]] double ScaleWidth() const override { return breedte_; }
  [[nodiscard]] double ScaleHeight() const override { return hoogte_; }
  void ZetStaand() override {}  // the sheet was laid before the painting began
  void ZetFontNaam(std::string_view naam) override;
  void ZetFontSize(double punten) override;
  void ZetFontBold(bool vet) override;
  void ZetFontItalic(bool cursief) override;
  [[nodiscard]] double FontSize() const override { return punten_; }
  [[nodiscard]] double CurrentX() const override { return x_; }
  [[nodiscard]] double CurrentY() const override { return y_; }
  void ZetCurrentX(double x) override { x_ = x; }
  void ZetCurrentY(double y) override { y_ = y; }
  [[nodiscard]] double TextWidth(std::string_view tekst) const override;
  [[nodiscard]] double TextHeight(std::string_view tekst) const override;
  void Print(std::string_view tekst) override;
  void PrintRegel(std::string_view tekst) override;
  void Lijn(double x1, double y1, double x2, double y2, Kleur kleur) override;
  void Doos(double x1, double y1, double x2, double y2, Kleur kleur) override;
  void PaintPicture(const Grafiek& grafiek, double x, double y, double breedte, double hoogte) override;
  void NewPage() override;
  [[nodiscard]] int Page() const override { return pagina_; }
  void EndDoc() override;
  void BewaarBlad(int index) override;
  void Cls() override;

 private:
  void Begin(QPaintDevice& apparaat, double eenhedenPerTwip);
  void ZetKlaar(const QString& tekst, const QFontMetricsF& maten);
  void SchrijfBlok();
  void Schrijf(const QString& tekst, const QFont& font, QPointF plaats, double smal);

  /// A text that was printed, until its block is complete.
  struct Stuk {
    QString Tekst;
    QFont Font;
    QPointF Plaats;     // of its baseline
    double Smal = 1.0;  // how much narrower it must be to stay on the sheet
  };

  QBuffer pdf_;                         // of a document that is printed to a file
  std::filesystem::path pdfBestand_{};  // where EndDoc puts it
  std::shared_ptr<QPagedPaintDevice> apparaat_;
  QImage beeld_;
  std::vector<QImage> bladen_;
  QPainter schilder_;
  std::vector<Stuk> blok_;
  QFont font_;
  double breedte_ = 0, hoogte_ = 0;
  double lijndikte_ = 0;
  double punten_ = 0;
  double x_ = 0, y_ = 0;
  int pagina_ = 1;
};

}  // namespace murvane
