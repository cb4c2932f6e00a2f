#include "shell/settings.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "basis/bestand.h"
#include "basis/bewaar.h"
#include "basis/fout.h"

namespace murvane {

namespace {

constexpr std::string_view Nl = "\r\n";

bool IsCijfer(char c) {
  return c >= '0' && c <= '9';
}

/// Takes lines off the front of a file image and knows their number.
class Regels {
 public:
  explicit Regels(std::string_view bytes) : rest_(bytes) {}

  /// A CR at the very end counts as a line end that was cut in two.
  std::string_view Tekst() {
    ++nummer_;
    if (rest_.empty()) throw Fout(FoutNummer::VoorbijEinde).MetPlaats(Plaats());
    const std::size_t einde = std::min(rest_.find('\n'), rest_.size());
    std::string_view regel = rest_.substr(0, einde);
    rest_.remove_prefix(std::min(einde + 1, rest_.size()));
    if (!regel.empty() && regel.back() == '\r') regel.remove_suffix(1);
    return regel;
  }

  std::int16_t Getal() {
    std::string_view woord = Tekst();
    woord.remove_prefix(std::min(woord.find_first_not_of(' '), woord.size()));
    woord = woord.substr(0, woord.find(' '));
    return woord.empty() ? std::int16_t{0} : Geheel(woord);
  }

 private:
  [[nodiscard]] std::int16_t Geheel(std::string_view woord) const {
    std::string_view cijfers = woord;
    if (cijfers.front() == '-' || cijfers.front() == '+') cijfers.remove_prefix(1);
    if (cijfers.empty() || !std::all_of(cijfers.begin(), cijfers.end(), IsCijfer))
      throw Fout(FoutNummer::GeenGetal).MetPlaats(Plaats());
    if (woord.front() == '+') woord = cijfers;
    std::int16_t getal = 0;
    if (std::from_chars(woord.data(), woord.data() + woord.size(), getal).ec != std::errc{})
      throw Fout(FoutNummer::Overloop).MetPlaats(Plaats());
    return getal;
  }

  [[nodiscard]] std::string Plaats() const { return "regel " + std::to_string(nummer_); }

  std::string_view rest_;
  int nummer_ = 0;
};

std::string GetalRegel(std::int16_t getal) {
  return (getal < 0 ? "" : " ") + std::to_string(getal) + " ";
}

/// A label shows a doubled "&" as one and takes a single one for its access key.
std::string MetDubbeleEn(std::string_view naam) {
  std::string uit(naam);
  if (const auto plaats = uit.find('&'); plaats != std::string::npos) uit.insert(plaats, 1, '&');
  return uit;
}

}  // namespace

Instellingen InstellingenUitBytes(std::string_view bytes) {
  Regels regels(bytes);
  Instellingen uit;
  uit.Druk.LettertypeNaam = regels.Tekst();
  uit.Druk.LetterGrootte = regels.Getal();
  uit.Druk.KopStijl = regels.Getal();
  uit.Druk.BlokBovenStijl = regels.Getal();
  uit.Druk.BlokOnderStijl = regels.Getal();
  uit.GebruikerLabel = regels.Tekst();
  uit.Gebruikersnaam = regels.Tekst();
  return uit;
}

std::string InstellingenBytes(const Instellingen& instellingen) {
  std::string uit = instellingen.Druk.LettertypeNaam;
  uit.append(Nl);
  for (const std::int16_t getal : {instellingen.Druk.LetterGrootte, instellingen.Druk.KopStijl,
                                   instellingen.Druk.BlokBovenStijl, instellingen.Druk.BlokOnderStijl})
    uit.append(GetalRegel(getal)).append(Nl);
  uit.append(instellingen.GebruikerLabel.Heel()).append(Nl);
  uit.append(instellingen.Gebruikersnaam.Heel()).append(Nl);
  return uit;
}

Instellingen LeesInstellingen(const std::filesystem::path& pad) {
  return OverBestand(PadTekst(pad), [&pad] {
    const Inhoud inhoud = LeesInhoud(pad);
    Instellingen uit = InstellingenUitBytes(inhoud.Bytes);
    uit.Gelezen = Onthoud(inhoud, InstellingenBytes(uit));
    return uit;
  });
}

void SchrijfInstellingen(const Instellingen& instellingen, const std::filesystem::path& pad) {
  SchrijfBeeld(pad, InstellingenBytes(instellingen), Staart::Vervalt);
}

void ZetGebruikersnaam(Instellingen& instellingen, std::string_view antwoord) {
  if (antwoord.empty()) return;
  const std::string_view naam = Trim(antwoord);
  instellingen.Gebruikersnaam = naam;
  instellingen.GebruikerLabel = MetDubbeleEn(naam);
}

}  // namespace murvane
