// The commands catalogus toon, catalogus maak, catalogus sorteer and overzicht.

#include <algorithm>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

#include "basis/bestand.h"
#include "basis/bewaar.h"
#include "basis/fout.h"
#include "basis/stroom.h"
#include "basis/tekst.h"
#include "catalogue/catjson.h"
#include "catalogue/onderhoud.h"
#include "catalogue/overzicht.h"
#include "cli/opdrachten.h"
#include "cli/systeem.h"
#include "cli/uitvoer.h"
#include "editor/invoer.h"
#include "shell/programma.h"
#include "shell/startup.h"

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

template <typename Cat>
Cat Uit(const Inhoud& inhoud) {
  Cat catalogus;
  LeesUit(catalogus, inhoud);
  return catalogus;
}

CatalogusInhoud LeesCatalogus(const Keuzes& keuzes) {
  const std::string& naam = keuzes.Bestanden.front();
  return OverBestand(naam, [&]() -> CatalogusInhoud {
    const Inhoud inhoud = LeesInhoud(PadVan(naam));
    const CatalogusSoort soort = SoortVan(keuzes.Waarde(Optie::Soort).value_or(""), naam, inhoud.Bytes);
    if (soort == CatalogusSoort::Kanaalelementen) return {soort, Uit<ElementCatalogus>(inhoud)};
    return {soort, Uit<SpectrumCatalogus>(inhoud)};
  });
}

void Lees(ElementCatalogus& catalogus, const std::filesystem::path& pad) {
  catalogus = LeesElementen(pad);
}
void Lees(SpectrumCatalogus& catalogus, const std::filesystem::path& pad) {
  catalogus = LeesSpectra(pad);
}

CatalogusInhoud LeesCatalogusJson(const std::string& naam) {
  return OverBestand(naam, [&naam] { return CatalogusUitJson(LeesJsonVan(naam)); });
}

std::string Bytes(const CatalogusInhoud& catalogus, const std::string& naam) {
  return OverBestand(naam, [&catalogus] {
    return std::visit([](const auto& inhoud) { return CatalogusBytes(inhoud); }, catalogus.Inhoud);
  });
}

/// Saves a catalogue over the file that it was read from, unless another program changed that meanwhile.
void BewaarOverInvoer(const CatalogusInhoud& catalogus, const std::string& uitvoer) {
  const auto gelezen = std::visit([](const auto& inhoud) { return inhoud.Gelezen; }, catalogus.Inhoud);
  const Bewaring bewaring = BewaarBeeld(PadVan(uitvoer), Bytes(catalogus, uitvoer), Staart::Blijft, gelezen);
  if (bewaring.Besluit == Bewaarbesluit::Vraag)
    throw Fout(FoutNummer::PadToegang,
               "Het bestand is intussen door een ander programma gewijzigd; er is niets geschreven", {},
               uitvoer);
}

/// Saves a catalogue as the command line says: a longer file keeps its tail.
void Bewaar(const CatalogusInhoud& catalogus, const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string uitvoer = *keuzes.Waarde(Optie::UitvoerMaak);
  if (uitvoer == Standaardstroom) {
    SchrijfUit(Bytes(catalogus, keuzes.Bestanden.front()), kanalen);
  } else {
    std::visit([&](const auto& inhoud) { SchrijfCatalogus(inhoud, PadVan(uitvoer)); }, catalogus.Inhoud);
  }
}

CatalogusSoort SoortVanWoord(const std::string& woord) {
  if (const auto soort = SoortVanNaam(woord, "")) return *soort;
  throw Gebruiksfout("overzicht vraagt kanaalelementen, ventilatoren, luchtkanalen of plafonds, niet \"" +
                     woord + "\".");
}

std::filesystem::path CatalogusPad(const Keuzes& keuzes, CatalogusSoort soort) {
  return Gegevensmap(keuzes) / OnderhoudVan(soort).Bestand;
}

/// A listing must not take the place of the catalogue that is read, nor of another one beside it.
void WeigerOverCatalogus(const Keuzes& keuzes, CatalogusSoort soort, const std::string& uitvoer) {
  WeigerOverschrijven(PadTekst(CatalogusPad(keuzes, soort)), uitvoer);
  for (const SoortNaam& naam : SoortNamen) {
    if (ZelfdeBestand(PadTekst(CatalogusPad(keuzes, naam.Soort)), uitvoer))
      throw Gebruiksfout(uitvoer + " is een catalogus en zou worden overschreven.");
  }
}

/// The catalogue of one kind, the others empty.
Catalogi LeesEen(const std::filesystem::path& pad, CatalogusSoort soort) {
  Catalogi uit;
  MetCatalogus(uit, soort, [&pad](auto& catalogus) { Lees(catalogus, pad); });
  return uit;
}

std::string DatumVan(const Keuzes& keuzes) {
  const auto& datum = keuzes.Waarde(Optie::Datum);
  if (!datum) return std::string(DatumTekst(Vandaag()).Heel());
  VeldRegel regel{};
  regel.Soort = VeldSoort::Datum;
  if (!ValiDate(*datum, regel, {}, '.').Geldig)
    throw Gebruiksfout("--datum vraagt een bestaande datum als dd-mm-jjjj, niet \"" + *datum + "\".");
  return *datum;
}

}  // namespace

int VoerCatalogusToon(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string uitvoer = keuzes.Waarde(Optie::UitvoerToon).value_or(std::string(Standaardstroom));
  WeigerOverschrijven(keuzes.Bestanden.front(), uitvoer);
  SchrijfNaar(uitvoer, CatalogusNaarJson(LeesCatalogus(keuzes)), kanalen);
  return status::Klaar;
}

int VoerCatalogusMaak(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string& naam = keuzes.Bestanden.front();
  WeigerOverschrijven(naam, *keuzes.Waarde(Optie::UitvoerMaak));
  Bewaar(LeesCatalogusJson(naam), keuzes, kanalen);
  return status::Klaar;
}

int VoerCatalogusSorteer(const Keuzes& keuzes, Kanalen& kanalen) {
  CatalogusInhoud catalogus = LeesCatalogus(keuzes);
  std::visit([](auto& inhoud) { Sorteren(inhoud); }, catalogus.Inhoud);
  const std::string& uitvoer = *keuzes.Waarde(Optie::UitvoerMaak);
  if (ZelfdeBestand(keuzes.Bestanden.front(), uitvoer)) {
    BewaarOverInvoer(catalogus, uitvoer);
  } else {
    Bewaar(catalogus, keuzes, kanalen);
  }
  return status::Klaar;
}

int VoerOverzicht(const Keuzes& keuzes, Kanalen& kanalen) {
  const CatalogusSoort soort = SoortVanWoord(keuzes.Bestanden.front());
  const std::string datum = DatumVan(keuzes);
  const std::filesystem::path pad = CatalogusPad(keuzes, soort);
  const auto& uitvoer = keuzes.Waarde(Optie::UitvoerToon);
  if (uitvoer) WeigerOverCatalogus(keuzes, soort, *uitvoer);
  const auto& zoek = keuzes.Waarde(Optie::Zoek);
  const std::string bytes = OverzichtBytes(
      Overzicht(LeesEen(pad, soort), soort, zoek ? OverzichtWijze::Zoeken : OverzichtWijze::Alles,
                zoek ? NaarCp1252(*zoek) : std::string(ZoekAlles), datum, Decimaalteken(keuzes)));
  if (uitvoer) {
    SchrijfNaar(*uitvoer, bytes, kanalen);
  } else {
    SchrijfUit(NaarUtf8(bytes), kanalen);
  }
  return status::Klaar;
}

}  // namespace murvane
