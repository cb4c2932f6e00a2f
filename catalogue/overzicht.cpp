#include "catalogue/overzicht.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/getal.h"
#include "basis/tekst.h"
#include "calc/spectrum.h"
#include "reports/vlak.h"

namespace murvane {

namespace {

constexpr std::string_view CrLf = "\r\n";
constexpr std::string_view ProjectenFilter = "Overzichten projecten (*.prx)|*.prx";

constexpr auto Verschillen = std::to_array<OverzichtVerschil>({
    {CatalogusSoort::Kanaalelementen, "Kanaalelementen - Overzicht", "Kanaalelementen - Overzicht op naam",
     "Kanaalelementen", "Elementnaam", 95, 8, "demping   (dB)", 4, 7, "eigenruis (dB)", 14,
     "Overzichten kanaalelementen (*.elm)|*.elm"},
    {CatalogusSoort::Ventilatoren, "Ventilatoren - Overzicht", "Ventilatoren - Overzicht op naam",
     "Ventilatoren", "Ventilator", 95, 8, "Lw  (dB)", 9, 8, "", 20, "Overzichten ventilatoren (*.fan)|*.fan"},
    {CatalogusSoort::Luchtkanalen, "Luchtkanalen - Overzicht", "Luchtkanalen - Overzicht op omschrijving",
     "Luchtkanalen", "Luchtkanaal", 94, 7, "R   (dB)", 9, 7, "", 20,
     "Overzichten luchtkanalen (*.dct)|*.dct"},
    {CatalogusSoort::Plafonds, "plafonds - Overzicht", "plafonds - Overzicht op omschrijving", "Plafonds",
     "Plafond    ", 94, 7, "R   (dB)", 9, 7, "", 20, "Overzichten plafonds (*.plf)|*.plf"},
});

std::string Streep() {
  return std::string(5, ' ') + std::string(180, '-');
}

/// The title line; `breedte` is what title, search text and the blanks behind them take.
std::string Titelregel(const OverzichtUitslag& o, std::size_t breedte) {
  const std::size_t bezet = o.OverzichtTitel.size() + o.Zoek.size();
  std::string uit(5, ' ');
  uit.append(InHoofdletters(o.OverzichtTitel)).append(" : ").append(o.Zoek);
  uit.append(bezet < breedte ? breedte - bezet : 0, ' ');
  return uit.append("Aangemaakt op : ").append(o.Vandaag);
}

std::string Frequentieregel() {
  return std::string(128, ' ') + "frequentie in Hz";
}

std::string Kolomregel(const OverzichtVerschil& v) {
  std::string uit(5, ' ');
  uit.append(v.Kolomkop).append(v.KopBlanco, ' ');
  for (std::size_t b = 0; b < v.Bandkoppen; ++b) uit.append(2, ' ').append(BandLabel[b]);
  return uit;
}

std::string Aantalregel(const OverzichtUitslag& o) {
  return "     Aantal =  " + std::to_string(o.Aantal());
}

void VoegWaardenToe(std::string& uit, const Spectrum& waarden, std::size_t aantal, char decimaal) {
  for (std::size_t i = 0; i < aantal; ++i) VoegRechtsToe(uit, waarden[i], Formaat::Een, 8, decimaal);
}

void VoegTweedeRijToe(std::string& uit, const CatElementRec& rec, const OverzichtVerschil& v, char decimaal) {
  if (rec.PerMeter == 1) uit.append(8, ' ').append("demping/m1");
  uit.append(CrLf).append(90, ' ').append(v.Tweede).append(4, ' ');
  VoegWaardenToe(uit, rec.CatRuis, rec.CatRuis.size(), decimaal);
}
void VoegTweedeRijToe(std::string&, const SpectrumRec&, const OverzichtVerschil&, char) {}

template <typename Rec>
std::string Regel(const Rec& rec, const OverzichtVerschil& v, char decimaal) {
  std::string uit;
  uit.reserve(2 * (OverzichtBreedte + CrLf.size()));
  uit.append(5, ' ').append(NaamVan(rec).Heel()).append(5, ' ');
  uit.append(v.Rijlabel).append(v.LabelBlanco, ' ');
  VoegWaardenToe(uit, WaardenVan(rec), v.Waarden, decimaal);
  VoegTweedeRijToe(uit, rec, v, decimaal);
  return uit.append(CrLf);
}

/// Whether `tekst` holds `zoek`, which is in small letters.
bool Bevat(std::string_view tekst, std::string_view zoek) {
  return std::search(tekst.begin(), tekst.end(), zoek.begin(), zoek.end(),
                     [](char a, char b) { return NaarKlein(a) == b; }) != tekst.end();
}

template <typename Rec>
void ZoekRegels(OverzichtUitslag& o, const Catalogus<Rec>& catalogus, OverzichtWijze wijze, char decimaal,
                const OverzichtVoortgang& voortgang) {
  constexpr int MeestZonderRecords = 100;
  const int meest = catalogus.Aantal < 1 ? MeestZonderRecords : catalogus.Aantal;
  const OverzichtVerschil& v = OverzichtVan(o.Soort);
  const std::string zoek = InKleineLetters(o.Zoek);
  if (voortgang) voortgang(0, meest);
  for (int k = EersteRecord(o.Soort); k <= catalogus.Aantal; ++k) {
    if (voortgang) voortgang(k, meest);
    const Rec& rec = catalogus.Records.at(static_cast<std::size_t>(k));
    if (wijze == OverzichtWijze::Zoeken && !Bevat(NaamVan(rec).Heel(), zoek)) continue;
    o.OverzichtRegels.push_back(Regel(rec, v, decimaal));
  }
}

std::string Listing(const OverzichtUitslag& o) {
  std::string uit;
  const auto regel = [&uit](std::string_view tekst) { uit.append(tekst).append(CrLf); };
  uit.reserve((o.Aantal() + 5) * 2 * (OverzichtBreedte + 2 * CrLf.size()));
  regel(" ");
  regel(" ");
  regel(Titelregel(o, 151));
  regel("");
  regel(Streep());
  regel(Frequentieregel());
  regel(Kolomregel(OverzichtVan(o.Soort)));
  regel(Streep());
  for (const std::string& rij : o.OverzichtRegels) regel(rij);
  regel(Streep());
  return uit.append(Aantalregel(o));
}

OverzichtPagina Paginakop(const OverzichtUitslag& o, const OverzichtVerschil& v, std::size_t nummer) {
  return {"",
          "",
          std::string(173, ' ') + "Pagina " + std::to_string(nummer),
          Titelregel(o, 147),
          Streep(),
          Frequentieregel(),
          Kolomregel(v),
          Streep()};
}

/// The lines of an entry and the empty one behind it.
void DrukRegel(OverzichtPagina& pagina, std::string_view rij) {
  while (!rij.empty()) {
    const std::size_t einde = rij.find(CrLf);
    pagina.emplace_back(rij.substr(0, einde));
    rij.remove_prefix(einde + CrLf.size());
  }
  pagina.emplace_back();
}

/// Draws all pages; the widest line stands in the middle of the sheet, so that no printer cuts it.
void Druk(Vlak& blad, const std::vector<OverzichtPagina>& paginas) {
  constexpr double Bovenmarge = 567;  // twips, 10 mm
  blad.ZetFontNaam("Courier New");
  blad.ZetFontSize(7.2);
  const double vrij = blad.ScaleWidth() - blad.TextWidth(std::string(OverzichtBreedte, '-'));
  for (std::size_t p = 0; p < paginas.size(); ++p) {
    if (p > 0) blad.NewPage();
    blad.ZetCurrentY(Bovenmarge);
    for (const std::string& regel : paginas[p]) {
      blad.ZetCurrentX(std::max(vrij / 2, 0.0));
      blad.PrintRegel(regel);
    }
  }
  blad.EndDoc();
}

/// Tells the failure of a command, but not that its dialog was cancelled.
void Meld(std::string_view procedure, const std::optional<Fout>& fout, Dialogen& dialogen) {
  if (!fout || fout->Nummer() == FoutNummer::DialoogGeannuleerd) return;
  (void)dialogen.Toon(OnverwachteFout(procedure, "frmOverzicht", *fout));
}

std::string_view Achtervoegsel(std::string_view filter) {
  return filter.substr(filter.size() - std::min<std::size_t>(filter.size(), 3));
}

/// Whether one name sorts before another. Eight characters at a time while they are the very same: names of a
/// catalogue are alike for long, and folding each character would take longer than reading the catalogue.
bool Voor(const Tekst<80>& een, const Tekst<80>& ander) {
  const char* a = een.Bytes().data();
  const char* b = ander.Bytes().data();
  const char* const einde = a + Tekst<80>::Lengte;
  static_assert(Tekst<80>::Lengte % 8 == 0);
  while (a != einde && std::memcmp(a, b, 8) == 0) a += 8, b += 8;
  for (; a != einde; ++a, ++b) {
    const auto links = static_cast<unsigned char>(NaarKlein(*a));
    const auto rechts = static_cast<unsigned char>(NaarKlein(*b));
    if (links != rechts) return links < rechts;
  }
  return false;
}

template <typename Rec>
bool VoorRec(const Rec& een, const Rec& ander) {
  return Voor(NaamVan(een), NaamVan(ander));
}

void ZaktEenPlaats(CatElementRec& rec) {
  rec.CatRuis[0] = rec.CatDemp[SomPlaats];
}
void ZaktEenPlaats(SpectrumRec&) {}

/// Neighbours that stand the wrong way round change places until none does; so a record moves down just when
/// one that comes before it stands behind it.
template <typename Rec>
void SorteerRecords(Catalogus<Rec>& catalogus, int eerste) {
  if (catalogus.Aantal <= eerste) return;
  const auto begin = catalogus.Records.begin() + eerste;
  const auto einde = catalogus.Records.begin() + catalogus.Aantal + 1;
  if (std::is_sorted(begin, einde, VoorRec<Rec>)) return;
  const Rec* kleinste = &*(einde - 1);
  std::vector<bool> zakt(static_cast<std::size_t>(einde - begin));
  for (std::size_t i = zakt.size(); i-- > 0;) {
    const Rec& rec = *(begin + static_cast<std::ptrdiff_t>(i));
    zakt[i] = VoorRec(*kleinste, rec);
    if (VoorRec(rec, *kleinste)) kleinste = &rec;
  }
  for (std::size_t i = 0; i < zakt.size(); ++i)
    if (zakt[i]) ZaktEenPlaats(*(begin + static_cast<std::ptrdiff_t>(i)));
  std::stable_sort(begin, einde, VoorRec<Rec>);
}

}  // namespace

const OverzichtVerschil& OverzichtVan(CatalogusSoort soort) {
  return Verschillen[static_cast<std::size_t>(soort)];
}

OverzichtUitslag Overzicht(const Catalogi& catalogi, CatalogusSoort soort, OverzichtWijze wijze,
                           std::string_view zoek, std::string_view vandaag, char decimaal,
                           const OverzichtVoortgang& voortgang) {
  const OverzichtVerschil& v = OverzichtVan(soort);
  OverzichtUitslag o;
  o.Soort = soort;
  o.OverzichtTitel = wijze == OverzichtWijze::Zoeken ? v.ZoekTitel : v.Titel;
  o.Zoek = zoek;
  o.Vandaag = vandaag;
  o.OverzichtFilter = v.Filter;
  MetCatalogus(catalogi, soort,
               [&](const auto& catalogus) { ZoekRegels(o, catalogus, wijze, decimaal, voortgang); });
  o.OverzichtTekst = Listing(o);
  return o;
}

OverzichtUitslag mnuZoekAlles_Click(const Catalogi& catalogi, CatalogusSoort soort, Dialogen& dialogen,
                                    std::string_view vandaag, char decimaal,
                                    const OverzichtVoortgang& voortgang) {
  const Zandloper zandloper(dialogen);
  return Overzicht(catalogi, soort, OverzichtWijze::Alles, ZoekAlles, vandaag, decimaal, voortgang);
}

std::optional<OverzichtUitslag> mnuZoekNaam_Click(const Catalogi& catalogi, CatalogusSoort soort,
                                                  Dialogen& dialogen, std::string_view vandaag, char decimaal,
                                                  const OverzichtVoortgang& voortgang) {
  const std::string zoek = dialogen.Invoer({std::string(OverzichtVan(soort).ZoekTitel), "", ""});
  if (zoek.empty()) return std::nullopt;
  const Zandloper zandloper(dialogen);
  return Overzicht(catalogi, soort, OverzichtWijze::Zoeken, zoek, vandaag, decimaal, voortgang);
}

std::string OverzichtBytes(const OverzichtUitslag& overzicht) {
  return overzicht.OverzichtTekst + std::string(CrLf);
}

void Opslaan(const OverzichtUitslag& overzicht, Dialogen& dialogen) {
  const auto fout = Probeer([&] {
    BestandVraag vraag;
    vraag.Titel = "Opslaan als";
    vraag.Filter = overzicht.OverzichtFilter;
    vraag.BeginMap = overzicht.Map;
    vraag.OverschrijfVraag = true;
    vraag.Extensie = Achtervoegsel(overzicht.OverzichtFilter);
    const std::filesystem::path pad = dialogen.OpslaanDialoog(vraag);
    if (pad.empty()) return;
    const Zandloper zandloper(dialogen);
    VervangBestand(pad, OverzichtBytes(overzicht));
  });
  Meld("Opslaan", fout, dialogen);
}

void Printer(const OverzichtUitslag& overzicht, Dialogen& dialogen) {
  const auto fout = Probeer([&] {
    const AfdrukKeuze keuze =
        dialogen.AfdrukDialoog({.NaarBestandMogelijk = false, .Liggend = true, .Document = "Overzicht"});
    const auto soort = SoortVanFilter(overzicht.OverzichtFilter);
    if (!soort) return;
    const Zandloper zandloper(dialogen);
    for (int exemplaar = 0; exemplaar < keuze.Exemplaren; ++exemplaar)
      Druk(*keuze.NieuwDocument(), Uitvoer(overzicht, *soort));
  });
  Meld("Printer", fout, dialogen);
}

std::vector<OverzichtPagina> Uitvoer(const OverzichtUitslag& overzicht, CatalogusSoort soort) {
  const OverzichtVerschil& v = OverzichtVan(soort);
  std::vector<OverzichtPagina> uit{Paginakop(overzicht, v, 1)};
  std::size_t teller = 0;
  for (const std::string& rij : overzicht.OverzichtRegels) {
    if (++teller > v.PerPagina) {
      teller = 1;
      uit.back().push_back(Streep());
      uit.back().emplace_back("     -vervolg-");
      uit.push_back(Paginakop(overzicht, v, uit.size() + 1));
    }
    DrukRegel(uit.back(), rij);
  }
  uit.back().push_back(Streep());
  uit.back().push_back(Aantalregel(overzicht));
  return uit;
}

bool PrintknopAan(std::string_view filter) {
  return Achtervoegsel(filter) != "pln";
}

std::string_view FilterNaSluiten(std::string_view filter) {
  return Achtervoegsel(filter) == "pln" ? ProjectenFilter : filter;
}

std::optional<CatalogusSoort> SoortVanFilter(std::string_view filter) {
  for (const OverzichtVerschil& v : Verschillen)
    if (Achtervoegsel(filter) == Achtervoegsel(v.Filter)) return v.Soort;
  return std::nullopt;
}

void Sorteren(ElementCatalogus& catalogus) {
  SorteerRecords(catalogus, EersteRecord(CatalogusSoort::Kanaalelementen));
}
void Sorteren(SpectrumCatalogus& catalogus) {
  SorteerRecords(catalogus, EersteRecord(CatalogusSoort::Ventilatoren));
}
void Sorteren(Catalogi& catalogi, CatalogusSoort soort) {
  MetCatalogus(catalogi, soort, [](auto& catalogus) { Sorteren(catalogus); });
}

}  // namespace murvane
