#pragma once
// The surface that pages are drawn on, behind one abstract seam: printer, PDF and preview picture stand on
// its other side, a recorder does in a test. Positions and sizes are in twips from the page's upper left-hand
// corner; texts are Windows-1252. Every operation may raise a Fout and then has drawn and moved nothing.

#include <cstdint>
#include <string_view>

namespace murvane {

struct Grafiek;

struct Kleur {
  std::uint8_t Rood = 0, Groen = 0, Blauw = 0;

  friend bool operator==(const Kleur&, const Kleur&) = default;
};

inline constexpr Kleur Zwart{0, 0, 0};
inline constexpr Kleur Wit{255, 255, 255};

class Vlak {
 public:
  Vlak() = default;
  Vlak(const Vlak&) = delete;
  Vlak& operator=(const Vlak&) = delete;
  virtual ~Vlak() = default;

  [[nodiscard]] virtual double ScaleWidth() const = 0;
  [[nodiscard]] virtual double ScaleHeight() const = 0;
  /// Turns the page upright. A preview has no such operation.
  virtual void ZetStaand() = 0;

  virtual void ZetFontNaam(std::string_view naam) = 0;
  virtual void ZetFontSize(double punten) = 0;
  virtual void ZetFontBold(bool vet) = 0;
  virtual void ZetFontItalic(bool cursief) = 0;
  /// The size as it was set, points.
  [[nodiscard]] virtual double FontSize() const = 0;

  [[nodiscard]] virtual double CurrentX() const = 0;
  [[nodiscard]] virtual double CurrentY() const = 0;
  virtual void ZetCurrentX(double x) = 0;
  virtual void ZetCurrentY(double y) = 0;

  /// Size of a text in the current font.
  [[nodiscard]] virtual double TextWidth(std::string_view tekst) const = 0;
  [[nodiscard]] virtual double TextHeight(std::string_view tekst) const = 0;

  /// Prints with the text's upper left-hand corner at the current position, which moves behind the text.
  virtual void Print(std::string_view tekst) = 0;
  /// The same, then CurrentX is 0 and CurrentY lower by the line height of the current font.
  virtual void PrintRegel(std::string_view tekst) = 0;
  virtual void Lijn(double x1, double y1, double x2, double y2, Kleur kleur) = 0;
  /// A filled box between two corners.
  virtual void Doos(double x1, double y1, double x2, double y2, Kleur kleur) = 0;
  /// Draws a chart into a rectangle; the current position stays.
  virtual void PaintPicture(const Grafiek& grafiek, double x, double y, double breedte, double hoogte) = 0;

  // A printer only.

  /// Begins a page; the current position is its upper left-hand corner.
  virtual void NewPage() = 0;
  /// The number of the page, from 1.
  [[nodiscard]] virtual int Page() const = 0;
  /// Ends the document and hands it over. Nothing can be drawn after it.
  virtual void EndDoc() = 0;

  // A preview only.

  /// Keeps what is drawn as the picture with this index, from 0.
  virtual void BewaarBlad(int index) = 0;
  /// Wipes the page; the current position is its upper left-hand corner.
  virtual void Cls() = 0;
};

}  // namespace murvane
