#pragma once
// A page surface in a test: remembers what was drawn where. Its font is the simplest there is: every
// character is 0.6 of the font size wide, a line 1.125 of it high, so that positions can be worked out by
// hand.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/grafiek.h"
#include "reports/vlak.h"

namespace murvane::proef {

class Opnemer final : public Vlak {
 public:
  /// A4 in whole twips.
  static constexpr double A4Breedte = 11906, A4Hoogte = 16838;

  struct Font {
    std::string Naam = "Courier";
    double Punten = 10;
    bool Vet = false, Cursief = false;
  };
  struct Woord {
    int Blad;
    double X, Y;
    std::string Tekst;
    murvane::proef::Opnemer::Font Font;
  };
  struct Plaatje {
    int Blad;
    double X, Y, Breedte, Hoogte;
    murvane::Grafiek Grafiek;
  };

  explicit Opnemer(double breedte = A4Breedte, double hoogte = A4Hoogte)
      : breedte_(breedte), hoogte_(hoogte) {}

  /// Asked before each operation, by its name and its number from 0: whether it raises a Fout.
  std::function<bool(std::string_view naam, int nummer)> Faalt;

  /// What was drawn, one line each and in order: "x;y "text" size style", "lijn x1;y1 x2;y2 colour", "doos
  /// ...", "beeld x;y width;height". Positions at one decimal; the style is v (vet), c (cursief), both or
  /// none.
  [[nodiscard]] std::vector<std::string> Tekening(int blad) const;
  /// Operations of printers and previews in order: "staand", "NewPage", "EndDoc", "BewaarBlad 0", "Cls".
  [[nodiscard]] const std::vector<std::string>& Gebeurtenissen() const { return gebeurtenissen_; }
  [[nodiscard]] const std::vector<Woord>& Woorden() const { return woorden_; }
  [[nodiscard]] const std::vector<Plaatje>& Plaatjes() const { return plaatjes_; }
  /// The texts with exactly these words.
  [[nodiscard]] std::vector<Woord> Zoek(std::string_view tekst) const;
  [[nodiscard]] int Bladen() const { return blad_; }
  [[nodiscard]] const Font& HuidigFont() const { return font_; }
  [[nodiscard]] int Operaties() const { return operaties_; }

  [[nodiscard]] double ScaleWidth() const override;
  [[nodiscard]] double ScaleHeight() const override;
  void ZetStaand() override;
  void ZetFontNaam(std::string_view naam) override;
  void ZetFontSize(double punten) override;
  void ZetFontBold(bool vet) override;
  void ZetFontItalic(bool cursief) override;
  [[nodiscard]] double FontSize() const override;
  [[nodiscard]] double CurrentX() const override;
  [[nodiscard]] double CurrentY() const override;
  void ZetCurrentX(double x) override;
  void ZetCurrentY(double y) override;
  [[nodiscard]] double TextWidth(std::string_view tekst) const override;
  [[nodiscard]] double TextHeight(std::string_view tekst) const override;
  void Print(std::string_view tekst) override;
  void PrintRegel(std::string_view tekst) override;
  void Lijn(double x1, double y1, double x2, double y2, Kleur kleur) override;
  void Doos(double x1, double y1, double x2, double y2, Kleur kleur) override;
  void PaintPicture(const Grafiek& grafiek, double x, double y, double breedte, double hoogte) override;
  void NewPage() override;
  [[nodiscard]] int Page() const override;
  void EndDoc() override;
  void BewaarBlad(int index) override;
  void Cls() override;

 private:
  void Begin(std::string_view naam) const;
  void Schrijf(std::string_view tekst);
  void NieuwBlad();
  void Streep(const char* soort, double x1, double y1, double x2, double y2, Kleur kleur);

  double breedte_, hoogte_;
  double x_ = 0, y_ = 0;
  int blad_ = 1;
  Font font_;
  mutable int operaties_ = 0;
  std::vector<std::vector<std::string>> tekening_{1};
  std::vector<std::string> gebeurtenissen_;
  std::vector<Woord> woorden_;
  std::vector<Plaatje> plaatjes_;
};

}  // namespace murvane::proef
