#include "catalogue/onderhoud.h"

#include <algorithm>
#include <utility>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/getal.h"
#include "calc/spectrum.h"
#include "catalogue/overzicht.h"
#include "editor/bewaarvraag.h"

namespace murvane {

namespace {

constexpr std::string_view Naamloos = "<naamloos>";

constexpr auto Verschillen = std::to_array<OnderhoudVerschil>({
    {.Soort = CatalogusSoort::Kanaalelementen,
     .Venster = "frmElementen",
     .Bestand = "Duct.dat",
     .Titel = "Kanaalelementen",
     .Rijlabel = "Demping in dB",
     .RuisLabel = "Eigenruis in dB",
     .Slot7 = Slot7::SomVanRuis,
     .LegeNaam = "Geen elementnaam ingevuld",
     .Limiet = "Maximaal aantal elementen bereikt (= 500)",
     .Toevoegen = "Kanaalelementen toevoegen",
     .Wijzigen = "Kanaalelementen wijzigen",
     .InLijst = " elementen in lijst",
     .LegeLijst = "Geen elementen aanwezig",
     .WijzigLeeg = "Geen element geselecteerd",
     .WissenLeeg = "Geen element geselecteerd",
     .WisTitel = "Wissen van kanaalelementen",
     .WisVraag = "Element '",
     .Beschermd = "",
     .WijzigBeschermd = "",
     .WissenBeschermd = "",
     .Vult = Ververs::lstTotaal,
     .AlleOpschrift = "&Alle elementen",
     .SorteerOpschrift = "&Sorteren op Naam"},
    {.Soort = CatalogusSoort::Ventilatoren,
     .Venster = "frmFan",
     .Bestand = "Fan.dat",
     .Titel = "Ventilatoren",
     .Rijlabel = "Lw in dB",
     .RuisLabel = "",
     .Slot7 = Slot7::SomVanWaarden,
     .LegeNaam = "Geen ventilatornaam ingevuld",
     .Limiet = "Maximaal aantal ventilatoren bereikt (= 500)",
     .Toevoegen = "Ventilatoren toevoegen",
     .Wijzigen = "Ventilatoren wijzigen",
     .InLijst = " ventilatoren in lijst",
     .LegeLijst = "Geen ventilatoren aanwezig",
     .WijzigLeeg = "Geen ventilator geselecteerd",
     .WissenLeeg = "Geen ventilator geselecteerd",
     .WisTitel = "Wissen van ventilatoren",
     .WisVraag = "Ventilator '",
     .Beschermd = "",
     .WijzigBeschermd = "",
     .WissenBeschermd = "",
     .Vult = Ververs::lstFan,
     .AlleOpschrift = "&Alle elementen",
     .SorteerOpschrift = "&Sorteren op Naam"},
    {.Soort = CatalogusSoort::Luchtkanalen,
     .Venster = "frmDuct",
     .Bestand = "Rduct.dat",
     .Titel = "Luchtkanalen",
     .Rijlabel = "R in dB",
     .RuisLabel = "",
     .Slot7 = Slot7::Blijft,
     .LegeNaam = "Geen omschrijving luchtkanaal ingevuld",
     .Limiet = "Maximaal aantal luchtkanalen bereikt (= 500)",
     .Toevoegen = "Luchtkanalen toevoegen",
     .Wijzigen = "Luchtkanalen wijzigen",
     .InLijst = " luchtkanalen in lijst",
     .LegeLijst = "Geen luchtkanalen aanwezig",
     .WijzigLeeg = "Geen luchtkanaal geselecteerd",
     .WissenLeeg = "Geen luchtkanalen geselecteerd",
     .WisTitel = "Wissen van luchtkanalen",
     .WisVraag = "Luchtkanaal '",
     .Beschermd = "<geen kanaalwand geselecteerd>",
     .WijzigBeschermd = "Geen luchtkanalen geselecteerd",
     .WissenBeschermd = "Geen luchtkanalen geselecteerd",
     .Vult = Ververs::Niets,
     .AlleOpschrift = "&Alle luchtkanalen",
     .SorteerOpschrift = "&Sorteren op Omschrijving"},
    {.Soort = CatalogusSoort::Plafonds,
     .Venster = "frmPlafond",
     .Bestand = "Rplaf.dat",
     .Titel = "Plafonds",
     .Rijlabel = "R in dB",
     .RuisLabel = "",
     .Slot7 = Slot7::Blijft,
     .LegeNaam = "Geen omschrijving plafond ingevuld",
     .Limiet = "Maximaal aantal plafonds bereikt (= 500)",
     .Toevoegen = "Plafonds toevoegen",
     .Wijzigen = "Plafonds wijzigen",
     .InLijst = " plafonds in lijst",
     .LegeLijst = "Geen plafonds aanwezig",
     .WijzigLeeg = "Geen plafond geselecteerd",
     .WissenLeeg = "Geen plafonds geselecteerd",
     .WisTitel = "Wissen van plafonds",
     .WisVraag = "Luchtkanaal '",
     .Beschermd = "<geen plafond geselecteerd>",
     .WijzigBeschermd = "Geen plafond geselecteerd",
     .WissenBeschermd = "Geen plafonds geselecteerd",
     .Vult = Ververs::Niets,
     .AlleOpschrift = "&Alle plafonds",
     .SorteerOpschrift = "&Sorteren op Omschrijving"},
});

constexpr std::string_view Getal = "1234567890.,";
constexpr auto Regels = std::to_array<VeldRegel>({
    {"txtSpectrum", VeldSoort::Tekst, 0, 0, Formaat::Heel},
    {"txtdemp", VeldSoort::Numeriek, 0, 150, Formaat::Een, Getal, 0, {}, {}, 0, Banden},
    {"txtruis", VeldSoort::Numeriek, 0, 150, Formaat::Een, Getal, 0, {}, {}, 0, Banden},
});

const OnderhoudBesturing& Besturing(std::string_view naam) {
  const auto* const rij = std::find_if(OnderhoudBesturingen.begin(), OnderhoudBesturingen.end(),
                                       [naam](const auto& r) { return r.Naam == naam; });
  if (rij == OnderhoudBesturingen.end()) throw Fout(FoutNummer::OngeldigArgument);
  return *rij;
}

OnderhoudUitkomst Waarschuw(std::string_view tekst, std::string_view titel = "Waarschuwing") {
  OnderhoudUitkomst uit;
  uit.Box = Melding{MeldingSoort::Uitroep, std::string(titel), std::string(tekst)};
  return uit;
}

bool MetRuis(const Onderhoud& venster) {
  return !OnderhoudVan(venster.Soort).RuisLabel.empty();
}

int AantalVan(const Catalogi& catalogi, CatalogusSoort soort) {
  return MetCatalogus(catalogi, soort, [](const auto& catalogus) -> int { return catalogus.Aantal; });
}

/// How many records the list shows.
int InLijst(const Catalogi& catalogi, CatalogusSoort soort) {
  return std::max(AantalVan(catalogi, soort) + 1 - EersteRecord(soort), 0);
}

std::int16_t RecordVan(const Onderhoud& venster) {
  return static_cast<std::int16_t>(venster.Gekozen + EersteRecord(venster.Soort));
}

auto& RecordRij(auto& catalogus, int k) {
  return catalogus.Records.at(static_cast<std::size_t>(k));
}

std::string GekozenNaam(const Onderhoud& venster, const Catalogi& catalogi) {
  return MetCatalogus(catalogi, venster.Soort, [&venster](const auto& catalogus) {
    return std::string(TrimRechts(NaamVan(RecordRij(catalogus, RecordVan(venster))).Heel()));
  });
}

/// The warning of a command on the selected record that cannot be done: nothing selected, or the entry that
/// stands for no choice in the project window.
std::optional<OnderhoudUitkomst> Weiger(const Onderhoud& venster, const Catalogi& catalogi,
                                        std::string_view leeg, std::string_view beschermd) {
  if (venster.Gekozen < 0) return Waarschuw(leeg);
  const std::string_view naam = OnderhoudVan(venster.Soort).Beschermd;
  if (!naam.empty() && GekozenNaam(venster, catalogi) == naam) return Waarschuw(beschermd);
  return std::nullopt;
}

void ToonWaarden(std::array<OnderhoudVak, Banden>& vakken, const Spectrum& waarden, char decimaal) {
  for (std::size_t b = 0; b < vakken.size(); ++b)
    vakken[b] = {.Tekst = Opmaak(waarden[b], Formaat::Een, decimaal)};
}

void ToonRuis(OnderhoudVelden& velden, const CatElementRec& rec, char decimaal) {
  ToonWaarden(velden.txtruis, rec.CatRuis, decimaal);
}
void ToonRuis(OnderhoudVelden&, const SpectrumRec&, char) {}

/// The entry fields as numbers; nothing when one is red then, which gets the focus.
struct Waarden {
  std::array<double, Banden> demp{}, ruis{};
  std::optional<VeldId> Rood;
};

std::optional<double> GetalVan(OnderhoudVak& vak, VeldId veld, char decimaal) {
  vak = OnderhoudVerlaat(veld, vak.Tekst, decimaal);
  if (vak.Achtergrond == FoutKleur) return std::nullopt;
  return LeesGetal(vak.Tekst);
}

Waarden LeesWaarden(Onderhoud& venster, char decimaal) {
  Waarden uit;
  const auto lees = [&](std::string_view naam, auto& vakken, auto& getallen) {
    for (int b = 0; b < Banden; ++b) {
      const auto i = static_cast<std::size_t>(b);
      const auto getal = GetalVan(vakken[i], {naam, b}, decimaal);
      getallen[i] = getal.value_or(0);
      if (!getal && !uit.Rood) uit.Rood = VeldId{naam, b};
    }
  };
  lees("txtdemp", venster.Velden.txtdemp, uit.demp);
  if (MetRuis(venster)) lees("txtruis", venster.Velden.txtruis, uit.ruis);
  return uit;
}

void Bewaar(CatElementRec& rec, const Waarden& waarden, Slot7) {
  std::copy(waarden.demp.begin(), waarden.demp.end(), rec.CatDemp.begin());
  std::copy(waarden.ruis.begin(), waarden.ruis.end(), rec.CatRuis.begin());
  rec.PerMeter = 0;
  rec.CatRuis[SomPlaats] = EnergetischeSom(rec.CatRuis, true);
}

void Bewaar(SpectrumRec& rec, const Waarden& waarden, Slot7 slot) {
  std::copy(waarden.demp.begin(), waarden.demp.end(), rec.SpecWaarde.begin());
  if (slot == Slot7::SomVanWaarden) rec.SpecWaarde[SomPlaats] = EnergetischeSom(rec.SpecWaarde, true);
}

void NaarLijst(Onderhoud& venster) {
  venster.Invoer = false;
  venster.Velden = {};
}

OnderhoudUitkomst NaarInvoer(Onderhoud& venster, Modus modus) {
  venster.Invoer = true;
  venster.Mode = modus;
  OnderhoudUitkomst uit;
  uit.Focus = VeldId{"txtSpectrum"};
  return uit;
}

/// Selects the row of `Rij`, if the list has it; the record in front of the first row stands for none.
void KiesRij(Onderhoud& venster, const Catalogi& catalogi) {
  const int rij = venster.Rij - EersteRecord(venster.Soort);
  venster.Gekozen = rij < InLijst(catalogi, venster.Soort) ? rij : -1;
}

OnderhoudUitkomst MetFocusOpLijst(OnderhoudUitkomst uitkomst) {
  uitkomst.Focus = VeldId{"lstSpectrum"};
  return uitkomst;
}

OnderhoudUitkomst MetNieuweRijen(OnderhoudUitkomst uitkomst) {
  uitkomst.NieuweRijen = true;
  return uitkomst;
}

void WisRecord(Catalogi& catalogi, const Onderhoud& venster) {
  MetCatalogus(catalogi, venster.Soort, [&venster](auto& catalogus) {
    --catalogus.Aantal;
    for (int k = venster.Rij; k <= catalogus.Aantal; ++k)
      RecordRij(catalogus, k) = RecordRij(catalogus, k + 1);
  });
}

Melding Wisvraag(const OnderhoudVerschil& v, const std::string& naam) {
  return {MeldingSoort::Vraag, std::string(v.WisTitel), std::string(v.WisVraag) + naam + "' wissen?",
          Knoppen::OkCancel};
}

/// Saves a catalogue, or takes what another program made of an unchanged one; false when the user would
/// rather do neither.
template <typename Rec>
bool BewaarCatalogus(Catalogus<Rec>& catalogus, const std::filesystem::path& pad, Dialogen& dialogen) {
  return OverBestand(PadTekst(pad), [&] {
    const Bewaardoel doel{.Pad = pad, .Staart = Staart::Blijft, .Gelezen = catalogus.Gelezen};
    const BewaarAntwoord antwoord = BewaarMetVraag(doel, CatalogusBytes(catalogus), dialogen);
    if (antwoord.Hoe != Antwoord::Overschrijven) return false;
    if (antwoord.Bewaring.Besluit == Bewaarbesluit::NeemHunne) {
      LeesUit(catalogus, antwoord.Bewaring.Hunne);
    } else {
      catalogus.Gelezen = antwoord.Bewaring.Daarna;
    }
    return true;
  });
}

}  // namespace

const OnderhoudVerschil& OnderhoudVan(CatalogusSoort soort) {
  return Verschillen[static_cast<std::size_t>(soort)];
}

std::vector<OnderhoudMenu> OnderhoudMenus(CatalogusSoort soort) {
  const OnderhoudVerschil& v = OnderhoudVan(soort);
  std::vector<OnderhoudMenu> uit = {{"", "mnuZoek", "Overzicht", true},
                                    {"mnuZoek", "mnuZoekNaam", "Overzicht op &Naam"},
                                    {"mnuZoek", "mnuZoekAlles", v.AlleOpschrift},
                                    {"", "mnuSort", "Sorteren", true},
                                    {"mnuSort", "mnuSortNaam", v.SorteerOpschrift}};
  if (soort == CatalogusSoort::Kanaalelementen) {
    uit.insert(uit.end(), {{"", "mnuTools", "Tools", true},
                           {"mnuTools", "mnuBerDemp", "Indicatieve berekening geluiddemping", true},
                           {"mnuBerDemp", "mnuKanBekleed", "&Beklede luchtkanalen", false, "frmCalc1"},
                           {"mnuBerDemp", "mnuPlenum", "&Plenumdemper", false, "frmCalc3"},
                           {"mnuBerDemp", "mnuKwartLambda", "&Kwartlambda-demper", false, "frmCalc2"}});
  } else if (soort == CatalogusSoort::Luchtkanalen) {
    uit.insert(uit.end(), {{"", "mnuTools", "Tools", true},
                           {"mnuTools", "mnuKwand", "&Indicatieve berekening geluidsisolatie", false,
                            "frmDuctCalc", true}});
  }
  return uit;
}

bool OnderhoudZichtbaar(std::string_view naam, bool invoer) {
  return invoer ? Besturing(naam).ZichtbaarInvoer : Besturing(naam).ZichtbaarLijst;
}

bool OnderhoudAan(std::string_view naam, bool invoer) {
  return invoer ? Besturing(naam).AanInvoer : Besturing(naam).AanLijst;
}

std::vector<std::string> OnderhoudRijen(const Catalogi& catalogi, CatalogusSoort soort) {
  return MetCatalogus(catalogi, soort, [soort](const auto& catalogus) {
    std::vector<std::string> uit;
    for (int k = EersteRecord(soort); k <= catalogus.Aantal; ++k)
      uit.emplace_back(NaamVan(RecordRij(catalogus, k)).Heel());
    return uit;
  });
}

std::string_view OnderhoudPaneel1(const Onderhoud& venster) {
  const OnderhoudVerschil& v = OnderhoudVan(venster.Soort);
  if (!venster.Invoer) return Lijstweergave;
  return venster.Mode == Modus::add ? v.Toevoegen : v.Wijzigen;
}

std::string OnderhoudPaneel2(const Catalogi& catalogi, CatalogusSoort soort) {
  return std::to_string(InLijst(catalogi, soort)).append(OnderhoudVan(soort).InLijst);
}

const VeldRegel& OnderhoudRegel(std::string_view naam) {
  const auto* const regel =
      std::find_if(Regels.begin(), Regels.end(), [naam](const VeldRegel& r) { return r.Naam == naam; });
  if (regel == Regels.end()) throw Fout(FoutNummer::OngeldigArgument);
  return *regel;
}

VeldId OnderhoudVolgend(VeldId veld) {
  if (veld.Index < 0) return {"txtdemp", 0};
  return {veld.Naam, (veld.Index + 1) % Banden};
}

std::string_view OnderhoudEscape(VeldId veld) {
  return veld.Index < 0 ? "" : "0";
}

OnderhoudVak OnderhoudVerlaat(VeldId veld, std::string_view tekst, char decimaal) {
  Validatie uit{.Geldig = false, .Tekst = std::string(tekst), .Getal = 0, .ToolTip = GeenGeldigGetal};
  try {
    uit = ValiDate(tekst, OnderhoudRegel(veld.Naam), {}, decimaal);
  } catch (const Fout&) {
    // a number that is too large for a double is no valid one either
  }
  return {std::move(uit.Tekst), uit.Geldig ? VeldKleur : FoutKleur, uit.ToolTip};
}

Onderhoud Form_Load(CatalogusSoort soort) {
  Onderhoud venster;
  venster.Soort = soort;
  return venster;
}

OnderhoudUitkomst lstSpectrum_Click(Onderhoud& venster, const Catalogi& catalogi, int rij, char decimaal) {
  if (rij < 0) return Waarschuw(OnderhoudVan(venster.Soort).LegeLijst);
  if (rij >= InLijst(catalogi, venster.Soort)) throw Fout(FoutNummer::IndexBuitenBereik);
  venster.Gekozen = rij;
  venster.Rij = RecordVan(venster);
  MetCatalogus(catalogi, venster.Soort, [&](const auto& catalogus) {
    const auto& rec = RecordRij(catalogus, venster.Rij);
    venster.Velden.txtSpectrum = {.Tekst = std::string(NaamVan(rec).Getrimd())};
    ToonWaarden(venster.Velden.txtdemp, WaardenVan(rec), decimaal);
    ToonRuis(venster.Velden, rec, decimaal);
  });
  return {};
}

OnderhoudUitkomst cmdToevoegen_Click(Onderhoud& venster, const Catalogi& catalogi, char decimaal) {
  if (AantalVan(catalogi, venster.Soort) >= MaxCatalogus)
    return Waarschuw(OnderhoudVan(venster.Soort).Limiet, "Invoer-stop");
  venster.Velden = {};
  ToonWaarden(venster.Velden.txtdemp, {}, decimaal);
  if (MetRuis(venster)) ToonWaarden(venster.Velden.txtruis, {}, decimaal);
  return NaarInvoer(venster, Modus::add);
}

OnderhoudUitkomst cmdwijzig_Click(Onderhoud& venster, const Catalogi& catalogi) {
  const OnderhoudVerschil& v = OnderhoudVan(venster.Soort);
  if (auto weigering = Weiger(venster, catalogi, v.WijzigLeeg, v.WijzigBeschermd)) return *weigering;
  std::string& naam = venster.Velden.txtSpectrum.Tekst;
  naam = TrimRechts(naam);
  return NaarInvoer(venster, Modus::edit);
}

OnderhoudUitkomst cmdOK_Click(Onderhoud& venster, Catalogi& catalogi, Dialogen& dialogen, char decimaal) {
  const OnderhoudVerschil& v = OnderhoudVan(venster.Soort);
  const Waarden waarden = LeesWaarden(venster, decimaal);
  if (waarden.Rood) return {.Focus = waarden.Rood};
  std::string& naam = venster.Velden.txtSpectrum.Tekst;
  if (naam.empty()) {
    (void)dialogen.Toon(*Waarschuw(v.LegeNaam).Box);
    naam = Naamloos;
  }
  MetCatalogus(catalogi, venster.Soort, [&](auto& catalogus) {
    const int nieuw = std::max<int>(catalogus.Aantal + 1, EersteRecord(v.Soort));
    const int k = venster.Mode == Modus::edit ? RecordVan(venster) : nieuw;
    auto& rec = RecordRij(catalogus, k);
    NaamVan(rec) = naam;
    Bewaar(rec, waarden, v.Slot7);
    venster.Rij = static_cast<std::int16_t>(k);
    if (venster.Mode != Modus::edit) catalogus.Aantal = venster.Rij;
  });
  NaarLijst(venster);
  KiesRij(venster, catalogi);
  return MetNieuweRijen(MetFocusOpLijst(lstSpectrum_Click(venster, catalogi, venster.Gekozen, decimaal)));
}

OnderhoudUitkomst cmdCancel_Click(Onderhoud& venster, const Catalogi& catalogi, char decimaal) {
  NaarLijst(venster);
  if (venster.Gekozen < 0) return MetFocusOpLijst({});
  return MetFocusOpLijst(lstSpectrum_Click(venster, catalogi, venster.Gekozen, decimaal));
}

OnderhoudUitkomst cmdWissen_Click(Onderhoud& venster, Catalogi& catalogi, Dialogen& dialogen, char decimaal) {
  const OnderhoudVerschil& v = OnderhoudVan(venster.Soort);
  if (auto weigering = Weiger(venster, catalogi, v.WissenLeeg, v.WissenBeschermd)) return *weigering;
  if (dialogen.Toon(Wisvraag(v, GekozenNaam(venster, catalogi))) != Antwoord::OK) return {};
  const Zandloper zandloper(dialogen);
  venster.Rij = RecordVan(venster);
  WisRecord(catalogi, venster);
  venster.Velden = {};
  if (venster.Rij > AantalVan(catalogi, venster.Soort)) --venster.Rij;
  KiesRij(venster, catalogi);
  return MetNieuweRijen(lstSpectrum_Click(venster, catalogi, venster.Gekozen, decimaal));
}

OnderhoudUitkomst mnuSortNaam_Click(Onderhoud& venster, Catalogi& catalogi, Dialogen& dialogen) {
  const Zandloper zandloper(dialogen);
  Sorteren(catalogi, venster.Soort);
  venster.Gekozen = -1;
  return MetNieuweRijen({});
}

bool cmdSluiten_Click(const Onderhoud& venster, Catalogi& catalogi, const std::filesystem::path& map,
                      Dialogen& dialogen) {
  bool bewaard = false;
  const auto fout = Probeer([&] {
    bewaard = MetCatalogus(catalogi, venster.Soort, [&](auto& catalogus) {
      return BewaarCatalogus(catalogus, map / OnderhoudVan(venster.Soort).Bestand, dialogen);
    });
  });
  if (fout) (void)dialogen.Toon(OnverwachteFout("cmdSluiten_Click", "frmDuct", *fout));
  return bewaard;
}

void NeemSchatting(Onderhoud& venster, std::string_view omschrijving,
                   const std::array<std::string, Banden>& demping) {
  venster.Velden.txtSpectrum = {.Tekst = std::string(omschrijving)};
  for (std::size_t b = 0; b < demping.size(); ++b) venster.Velden.txtdemp[b] = {.Tekst = demping[b]};
}

}  // namespace murvane
