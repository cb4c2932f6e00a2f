#include "shell/info.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "basis/fout.h"
#include "basis/getal.h"
#include "editor/melding.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr std::string_view ProductNaam = "MurVane";
constexpr std::string_view ProductOmschrijving =
    "Geluid in luchtkanalen: van ventilator tot vertrek, per octaafband";
constexpr std::string_view Licentie = "Vrije programmatuur, GPL versie 3 of later";

std::int16_t Stap(std::int16_t van, std::int16_t naar, int hoogte, int y) {
  const double stap = (naar < van ? -1.0 : 1.0) * std::abs(naar - van) / hoogte;
  return static_cast<std::int16_t>(RondEven(van + stap * y));
}

std::string MetNullen(int getal, std::size_t breedte) {
  std::string cijfers = std::to_string(getal);
  if (cijfers.size() < breedte) cijfers.insert(0, breedte - cijfers.size(), '0');
  return cijfers;
}

}  // namespace

std::vector<Verloopkleur> Verloop(Verloopkleur van, Verloopkleur naar, int hoogte) {
  if (hoogte == 0) throw Fout(FoutNummer::DelingDoorNul);
  if (hoogte < 0) throw Fout(FoutNummer::OngeldigArgument);
  std::vector<Verloopkleur> lijnen;
  lijnen.reserve(static_cast<std::size_t>(hoogte) + 1);
  for (int y = 0; y <= hoogte; ++y) {
    lijnen.push_back({Stap(van.Rood, naar.Rood, hoogte, y), Stap(van.Groen, naar.Groen, hoogte, y),
                      Stap(van.Blauw, naar.Blauw, hoogte, y)});
  }
  return lijnen;
}

SplashTeksten SplashTekst() {
  return {std::string(ProgrammaTitel), std::string(ProductOmschrijving),
          "Versie " + std::to_string(VersieHoofd) + "." + std::to_string(VersieSub) + "." +
              std::to_string(VersieRevisie) + "\r\n" + std::string(Licentie)};
}

std::string Bestandsversie(int hoofd, int sub, int revisie) {
  return std::to_string(hoofd) + "." + MetNullen(sub, 2) + "." + MetNullen(revisie, 4);
}

InfoTeksten InfoTekst(const Instellingen& instellingen) {
  constexpr auto omschrijving =
      "Berekening van de geluidsniveaus ten gevolge van luchtbehandelingssystemen op basis van de "
      "rekenregels "
      "en richtlijnen volgens ISSO-publicatie 24 'Installatiegeluid - Ontwerpaanbevelingen en grondslagen "
      "voor "
      "geluidsberekeningen in gebouwen met luchttechnische installaties' (Stichting ISSO Rotterdam, januari "
      "1990) en volgens VDI 2081 'Geräuscherzeugung und Lärmminderung in raumlufttechnischen Anlagen' (VDI "
      "Düsseldorf, 1983)."_cp;
  return {"Info " + std::string(ProgrammaTitel), std::string(omschrijving),
          std::string(ProductNaam) + ", productversie " +
              Bestandsversie(VersieHoofd, VersieSub, VersieRevisie) + "\r\nGebruiker :\r\n" +
              std::string(instellingen.GebruikerLabel.Getrimd())};
}

std::string MailAdres(std::string_view adres) {
  return "mailto:" + std::string(adres) + "?subject= Feedback " + std::string(ProgrammaTitel);
}

std::filesystem::path HandleidingIn(const std::filesystem::path& map,
                                    const std::function<bool()>& heeftHelpProgramma) {
  std::error_code geen;
  std::filesystem::path hulp = map / "MurVane.chm";
  if (std::filesystem::is_regular_file(hulp, geen) && heeftHelpProgramma()) return hulp;
  const std::filesystem::path bladen = map / "help" / "index.html";
  return std::filesystem::is_regular_file(bladen, geen) ? bladen : std::filesystem::path();
}

std::string TrayTip() {
  std::string tip(ProgrammaTitel);
  tip += '\0';
  tip.resize(TrayTipLengte, ' ');
  return tip;
}

}  // namespace murvane
