#include "tests/hulp/opnemer.h"

#include "basis/fout.h"
#include "basis/getal.h"

namespace murvane::proef {

namespace {

std::string Plek(double x, double y) {
  return Opmaak(x, Formaat::Een, '.') + ";" + Opmaak(y, Formaat::Een, '.');
}

std::string KleurTekst(Kleur kleur) {
  return std::to_string(kleur.Rood) + "," + std::to_string(kleur.Groen) + "," + std::to_string(kleur.Blauw);
}

}  // namespace

std::vector<std::string> Opnemer::Tekening(int blad) const {
  return tekening_.at(static_cast<std::size_t>(blad - 1));
}

std::vector<Opnemer::Woord> Opnemer::Zoek(std::string_view tekst) const {
  std::vector<Woord> uit;
  for (const Woord& woord : woorden_)
    if (woord.Tekst == tekst) uit.push_back(woord);
  return uit;
}

void Opnemer::Begin(std::string_view naam) const {
  const int nummer = operaties_++;
  if (Faalt && Faalt(naam, nummer)) throw Fout(FoutNummer::InterneFout);
}

void Opnemer::Schrijf(std::string_view tekst) {
  if (tekst.empty()) return;
  woorden_.push_back({blad_, x_, y_, std::string(tekst), font_});
  tekening_.back().push_back(Plek(x_, y_) + " \"" + std::string(tekst) + "\" " +
                             StandaardTekst(font_.Punten, '.') + (font_.Vet ? "v" : "") +
                             (font_.Cursief ? "c" : ""));
}

void Opnemer::Streep(const char* soort, double x1, double y1, double x2, double y2, Kleur kleur) {
  tekening_.back().push_back(std::string(soort) + " " + Plek(x1, y1) + " " + Plek(x2, y2) + " " +
                             KleurTekst(kleur));
}

void Opnemer::NieuwBlad() {
  ++blad_;
  tekening_.emplace_back();
  x_ = y_ = 0;
}

double Opnemer::ScaleWidth() const {
  Begin("ScaleWidth");
  return breedte_;
}
double Opnemer::ScaleHeight() const {
  Begin("ScaleHeight");
  return hoogte_;
}
void Opnemer::ZetStaand() {
  Begin("ZetStaand");
  gebeurtenissen_.emplace_back("staand");
}
void Opnemer::ZetFontNaam(std::string_view naam) {
  Begin("ZetFontNaam");
  font_.Naam = naam;
}
void Opnemer::ZetFontSize(double punten) {
  Begin("ZetFontSize");
  font_.Punten = punten;
}
void Opnemer::ZetFontBold(bool vet) {
  Begin("ZetFontBold");
  font_.Vet = vet;
}
void Opnemer::ZetFontItalic(bool cursief) {
  Begin("ZetFontItalic");
  font_.Cursief = cursief;
}
double Opnemer::FontSize() const {
  Begin("FontSize");
  return font_.Punten;
}
double Opnemer::CurrentX() const {
  Begin("CurrentX");
  return x_;
}
double Opnemer::CurrentY() const {
  Begin("CurrentY");
  return y_;
}
void Opnemer::ZetCurrentX(double x) {
  Begin("ZetCurrentX");
  x_ = x;
}
void Opnemer::ZetCurrentY(double y) {
  Begin("ZetCurrentY");
  y_ = y;
}
double Opnemer::TextWidth(std::string_view tekst) const {
  Begin("TextWidth");
  return static_cast<double>(tekst.size()) * 12 * font_.Punten;
}
double Opnemer::TextHeight(std::string_view) const {
  Begin("TextHeight");
  return 22.5 * font_.Punten;
}
void Opnemer::Print(std::string_view tekst) {
  Begin("Print");
  Schrijf(tekst);
  x_ += static_cast<double>(tekst.size()) * 12 * font_.Punten;
}
void Opnemer::PrintRegel(std::string_view tekst) {
  Begin("PrintRegel");
  Schrijf(tekst);
  x_ = 0;
  y_ += 22.5 * font_.Punten;
}
void Opnemer::Lijn(double x1, double y1, double x2, double y2, Kleur kleur) {
  Begin("Lijn");
  Streep("lijn", x1, y1, x2, y2, kleur);
}
void Opnemer::Doos(double x1, double y1, double x2, double y2, Kleur kleur) {
  Begin("Doos");
  Streep("doos", x1, y1, x2, y2, kleur);
}
void Opnemer::PaintPicture(const Grafiek& grafiek, double x, double y, double breedte, double hoogte) {
  Begin("PaintPicture");
  plaatjes_.push_back({blad_, x, y, breedte, hoogte, grafiek});
  tekening_.back().push_back("beeld " + Plek(x, y) + " " + Plek(breedte, hoogte));
}
void Opnemer::NewPage() {
  Begin("NewPage");
  gebeurtenissen_.emplace_back("NewPage");
  NieuwBlad();
}
int Opnemer::Page() const {
  Begin("Page");
  return blad_;
}
void Opnemer::EndDoc() {
  Begin("EndDoc");
  gebeurtenissen_.emplace_back("EndDoc");
}
void Opnemer::BewaarBlad(int index) {
  Begin("BewaarBlad");
  gebeurtenissen_.push_back("BewaarBlad " + std::to_string(index));
}
void Opnemer::Cls() {
  Begin("Cls");
  gebeurtenissen_.emplace_back("Cls");
  NieuwBlad();
}

}  // namespace murvane::proef
