// The commands catalogus toon and catalogus maak.

#include <algorithm>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/stroom.h"
#include "catalogue/catjson.h"
#include "cli/opdrachten.h"
#include "cli/uitvoer.h"

namespace murvane {

namespace {

struct SoortNaam {
  std::string_view Optie;    ///< value of --soort
  std::string_view Bestand;  ///< name of its file, in lower case
  CatalogusSoort Soort;
};

constexpr std::array SoortNamen = {
    SoortNaam{"kanaalelementen", "duct.dat", CatalogusSoort::Kanaalelementen},
    SoortNaam{"ventilatoren", "fan.dat", CatalogusSoort::Ventilatoren},
    SoortNaam{"luchtkanalen", "rduct.dat", CatalogusSoort::Luchtkanalen},
    SoortNaam{"plafonds", "rplaf.dat", CatalogusSoort::Plafonds},
};

std::string KleineLetters(std::string tekst) {
  for (char& c : tekst)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c | 0x20);
  return tekst;
}

std::optional<CatalogusSoort> SoortVanNaam(const std::string& optie, const std::string& bestand) {
  for (const SoortNaam& naam : SoortNamen)
    if (optie.empty() ? bestand == naam.Bestand : optie == naam.Optie) return naam.Soort;
  return std::nullopt;
}

/// The kind that the length gives away: the count and that many records of one size, and nothing behind them.
/// An empty catalogue could be any.
std::optional<CatalogusSoort> SoortVanLengte(std::string_view bytes) {
  std::int16_t aantal = 0;
  Lezer(bytes).Lees(aantal);
  if (aantal <= 0) return std::nullopt;
  const std::size_t inhoud = bytes.size() - 2;
  const auto n = static_cast<std::size_t>(aantal);
  if (inhoud == n * 290) return CatalogusSoort::Kanaalelementen;
  if (inhoud == n * 144) return CatalogusSoort::Ventilatoren;
  return std::nullopt;
}

CatalogusSoort SoortVan(const std::string& optie, const std::string& bestand, std::string_view bytes) {
  auto soort = SoortVanNaam(optie, KleineLetters(PadTekst(PadVan(bestand).filename())));
  if (!soort) soort = SoortVanLengte(bytes);
  if (!soort)
    throw Gebruiksfout(bestand +
                       ": de soort catalogus blijkt niet uit het bestand; geef --soort kanaalelementen, "
                       "ventilatoren, luchtkanalen of plafonds.");
  return *soort;
}

CatalogusInhoud LeesCatalogus(const Keuzes& keuzes) {
  const std::string& naam = keuzes.Bestanden.front();
  return OverBestand(naam, [&]() -> CatalogusInhoud {
    const std::string bytes = LeesBestand(PadVan(naam), RuimGenoeg);
    const CatalogusSoort soort = SoortVan(keuzes.Waarde(Optie::Soort).value_or(""), naam, bytes);
    if (soort == CatalogusSoort::Kanaalelementen) return {soort, ElementenUitBytes(bytes)};
    return {soort, SpectraUitBytes(bytes)};
  });
}

CatalogusInhoud LeesCatalogusJson(const std::string& naam) {
  return OverBestand(naam, [&naam] { return CatalogusUitJson(LeesBestand(PadVan(naam))); });
}

std::string Bytes(const CatalogusInhoud& catalogus, const std::string& naam) {
  return OverBestand(naam, [&catalogus] {
    return std::visit([](const auto& inhoud) { return CatalogusBytes(inhoud); }, catalogus.Inhoud);
  });
}

}  // namespace

int VoerCatalogusToon(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string uitvoer = keuzes.Waarde(Optie::UitvoerToon).value_or(std::string(Standaarduitvoer));
  WeigerOverschrijven(keuzes.Bestanden.front(), uitvoer);
  SchrijfNaar(uitvoer, CatalogusNaarJson(LeesCatalogus(keuzes)), kanalen);
  return status::Klaar;
}

int VoerCatalogusMaak(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string& naam = keuzes.Bestanden.front();
  const std::string uitvoer = *keuzes.Waarde(Optie::UitvoerMaak);
  WeigerOverschrijven(naam, uitvoer);
  const CatalogusInhoud catalogus = LeesCatalogusJson(naam);
  if (uitvoer == Standaarduitvoer) {
    kanalen.uit << Bytes(catalogus, naam);
  } else {
    std::visit([&](const auto& inhoud) { SchrijfCatalogus(inhoud, PadVan(uitvoer)); }, catalogus.Inhoud);
  }
  return status::Klaar;
}

}  // namespace murvane
