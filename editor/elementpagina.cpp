#include "editor/elementpagina.h"

#include <algorithm>
#include <array>
#include <span>

#include "basis/fout.h"
#include "editor/elementlijst.h"

namespace murvane {

namespace {

/// What an element type has of its page.
struct TypeRegel {
  std::int16_t Type;
  Pagina OpPagina;
  std::string_view Focus;
  std::array<std::string_view, 4> Verborgen = {};
};

// clang-format off
constexpr auto TypeRegels = std::to_array<TypeRegel>({
    {elementtype::AftakRecht, Pagina::Aftakking, "txtHAftak"},
    {elementtype::AftakRond, Pagina::Aftakking, "txtHAftak", {"txtBAftak"}},
    {elementtype::BochtHaaks, Pagina::Kanaal, "txtHoogte", {"txtLengte", "txtdemp", "cmbKanaal"}},
    {elementtype::BochtRecht, Pagina::Kanaal, "txtHoogte", {"txtLengte", "txtdemp", "cmbKanaal"}},
    {elementtype::BochtRond, Pagina::Kanaal, "txtHoogte", {"txtLengte", "txtdemp", "cmbKanaal", "txtBreedte"}},
    {elementtype::DrsneeRecht, Pagina::Doorsnee, "txtH1Doorsnee"},
    {elementtype::DrsneeRond, Pagina::Doorsnee, "txtH1Doorsnee", {"txtB1Doorsnee", "txtB2Doorsnee"}},
    {elementtype::KanaalRecht, Pagina::Kanaal, "txtHoogte"},
    {elementtype::KanaalRond, Pagina::Kanaal, "txtHoogte", {"txtBreedte"}},
    {elementtype::Klep, Pagina::Weerstand, "txtWeerstand", {"txtSnetto"}},
    {elementtype::Rooster, Pagina::Weerstand, "txtSnetto"},
    {elementtype::Catalogus, Pagina::VastSpectrum, ""},
});
// clang-format on

constexpr TypeRegel ZonderPagina = {0, Pagina::Geen, ""};

const TypeRegel& RegelVan(std::int16_t type) {
  const auto* const regel = std::find_if(TypeRegels.begin(), TypeRegels.end(),
                                         [type](const TypeRegel& een) { return een.Type == type; });
  return regel == TypeRegels.end() ? ZonderPagina : *regel;
}

constexpr auto Rond = std::to_array<std::int16_t>(
    {elementtype::AftakRond, elementtype::BochtRond, elementtype::DrsneeRond, elementtype::KanaalRond});

struct Maat {
  std::string_view Veld, Hoogte, Diameter;
};

constexpr auto MaatOpschriften = std::to_array<Maat>({
    {"txtHoogte", "Hoogte", "Diameter"},
    {"txtHAftak", "Hoogte aftakking", "Diameter aftakking"},
    {"txtH1Doorsnee", "Hoogte intrede", "Diameter intrede"},
    {"txtH2Doorsnee", "Hoogte uittrede", "Diameter uittrede"},
});

constexpr auto KanaalVelden = std::to_array<VeldId>(
    {{"txtHoogte"}, {"txtBreedte"}, {"txtLengte"}, {"txtDebiet"}, {"txtdemp", 0}, {"cmbKanaal"}});
constexpr auto AftakVelden = std::to_array<VeldId>({{"txtHAftak"},
                                                    {"txtBAftak"},
                                                    {"txtHHoofd"},
                                                    {"txtBHoofd"},
                                                    {"txtHDoor"},
                                                    {"txtBDoor"},
                                                    {"txtQAftak"},
                                                    {"txtRAftak"}});
constexpr auto DoorsneeVelden = std::to_array<VeldId>(
    {{"txtH1Doorsnee"}, {"txtB1Doorsnee"}, {"txtH2Doorsnee"}, {"txtB2Doorsnee"}, {"txtLDoorsnee"}});
constexpr auto WeerstandVelden = std::to_array<VeldId>({{"txtSnetto"}, {"txtWeerstand"}});
constexpr auto SpectrumVelden = std::to_array<VeldId>({{"txtdemp", 7}, {"txtruis", 0}});

constexpr auto BochtAccept = std::to_array<VeldId>({{"txtHoogte"}, {"txtBreedte"}, {"txtDebiet"}});
constexpr auto DoorsneeAccept = std::to_array<VeldId>(
    {{"txtLDoorsnee"}, {"txtH1Doorsnee"}, {"txtB1Doorsnee"}, {"txtH2Doorsnee"}, {"txtB2Doorsnee"}});
constexpr auto KanaalAccept =
    std::to_array<VeldId>({{"txtHoogte"}, {"txtBreedte"}, {"txtLengte"}, {"txtDebiet"}, {"txtdemp", 0}});
constexpr auto KlepAccept = std::to_array<VeldId>({{"txtWeerstand"}});

std::span<const VeldId> VeldenVan(Pagina pagina) {
  switch (pagina) {
    case Pagina::Kanaal:
      return KanaalVelden;
    case Pagina::Aftakking:
      return AftakVelden;
    case Pagina::Doorsnee:
      return DoorsneeVelden;
    case Pagina::Weerstand:
      return WeerstandVelden;
    case Pagina::VastSpectrum:
      return SpectrumVelden;
    case Pagina::Geen:
      break;
  }
  return {};
}

std::span<const VeldId> AcceptVan(std::int16_t type) {
  switch (RegelVan(type).OpPagina) {
    case Pagina::Kanaal:
      if (type == elementtype::KanaalRecht || type == elementtype::KanaalRond) return KanaalAccept;
      return BochtAccept;
    case Pagina::Aftakking:
      return AftakVelden;
    case Pagina::Doorsnee:
      return DoorsneeAccept;
    case Pagina::Weerstand:
      if (type == elementtype::Klep) return KlepAccept;
      return WeerstandVelden;
    default:
      return {};
  }
}

/// The boxes of a list of fields, an array as its seven.
std::vector<VeldId> Vakken(std::span<const VeldId> velden) {
  std::vector<VeldId> uit;
  for (const VeldId& veld : velden) {
    const int aantal = veld.Index < 0 ? 1 : Banden;
    for (int i = 0; i < aantal; ++i) uit.push_back({veld.Naam, veld.Index < 0 ? -1 : veld.Index + i});
  }
  return uit;
}

template <typename EenProject>
auto& Element(EenProject& project, int n) {
  if (n < 0 || n > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  return project.Elementen[static_cast<std::size_t>(n)];
}

const std::string& TekstVan(const ElementInvoer& invoer, VeldId veld) {
  const auto gevonden = std::find_if(invoer.Teksten.begin(), invoer.Teksten.end(),
                                     [veld](const VeldTekst& tekst) { return tekst.Veld == veld; });
  if (gevonden == invoer.Teksten.end()) throw Fout(FoutNummer::OngeldigArgument);
  return gevonden->Tekst;
}

void VulAan(Project& project, int n, std::vector<VeldTekst>& zet, char decimaal) {
  constexpr double Afronding = 0.15;
  constexpr double OverspraakDebiet = 0.01;  // a path between two rooms has no branch flow of its own
  ElementRec& element = Element(project, n);
  if (element.RAftak == 0) {
    element.RAftak = Afronding;
    zet.push_back({{"txtRAftak"}, HerstelTekst(project, n, {"txtRAftak"}, decimaal)});
  }
  if (project.Kop.RekenType == rekentype::Overspraak) {
    element.QAftak = OverspraakDebiet;
    zet.push_back({{"txtQAftak"}, HerstelTekst(project, n, {"txtQAftak"}, decimaal)});
  }
}

/// A hidden box that shows the stored value holds nothing that the user put there.
bool IsOngezien(const Project& project, int n, VeldId veld, std::string_view tekst, char decimaal) {
  return !ElementVeldZichtbaar(project, n, veld) && tekst == HerstelTekst(project, n, veld, decimaal);
}

}  // namespace

Pagina PaginaVan(std::int16_t elementType) {
  return RegelVan(elementType).OpPagina;
}

std::string_view EersteFocus(std::int16_t elementType) {
  return RegelVan(elementType).Focus;
}

std::vector<VeldId> PaginaVelden(Pagina pagina) {
  const auto velden = VeldenVan(pagina);
  return {velden.begin(), velden.end()};
}

std::string_view MaatOpschrift(std::int16_t elementType, std::string_view veld) {
  const auto* const maat = std::find_if(MaatOpschriften.begin(), MaatOpschriften.end(),
                                        [veld](const Maat& een) { return een.Veld == veld; });
  if (maat == MaatOpschriften.end()) return {};
  const bool rond = std::find(Rond.begin(), Rond.end(), elementType) != Rond.end();
  return rond ? maat->Diameter : maat->Hoogte;
}

bool ElementVeldZichtbaar(const Project& project, int n, VeldId veld) {
  const TypeRegel& regel = RegelVan(Element(project, n).ElementType);
  if (veld.Naam == "txtDebiet") return n == 1 && project.FanPrognose == fanbron::Lijst;
  if (veld.Naam == "txtQAftak") return project.Kop.RekenType != rekentype::Overspraak;
  return std::find(regel.Verborgen.begin(), regel.Verborgen.end(), veld.Naam) == regel.Verborgen.end();
}

std::string GeenKanaalwandTekst() {
  return std::string(GeenKanaalwand) + std::string(50, ' ');
}

std::string GeenPlafondTekst() {
  return std::string(GeenPlafond) + std::string(53, ' ');
}

ElementBeeld ProjectSettings(Project& project, int n, char decimaal) {
  ElementBeeld beeld;
  if (n == 0) return beeld;
  ElementRec& element = Element(project, n);
  beeld.OpPagina = PaginaVan(element.ElementType);
  if (beeld.OpPagina == Pagina::Kanaal) {
    if (element.Kanaal.Getrimd().empty()) element.Kanaal = GeenKanaalwandTekst();
    beeld.cmbKanaal = element.Kanaal.Heel();
  }
  for (const VeldId& veld : VeldenVan(beeld.OpPagina))
    beeld.Stand.push_back({veld, ElementVeldZichtbaar(project, n, veld)});
  for (const VeldId& vak : Vakken(VeldenVan(beeld.OpPagina))) {
    if (vak.Naam != "cmbKanaal") beeld.Teksten.push_back({vak, HerstelTekst(project, n, vak, decimaal)});
  }
  return beeld;
}

ElementOpening OpenElement(Project& project, int n, char decimaal) {
  ElementOpening opening;
  VoorGanger(project, n);
  opening.Beeld = ProjectSettings(project, n, decimaal);
  if (opening.Beeld.OpPagina == Pagina::Aftakking) VulAan(project, n, opening.Zet, decimaal);
  opening.Focus = n == 0 ? std::string_view{} : EersteFocus(Element(project, n).ElementType);
  opening.SSTab2Zichtbaar = opening.Beeld.OpPagina != Pagina::Geen;
  return opening;
}

std::vector<VeldId> AcceptVelden(std::int16_t elementType) {
  return Vakken(AcceptVan(elementType));
}

std::vector<VeldUitslag> Accept(Project& project, int n, const ElementInvoer& invoer, char decimaal) {
  std::vector<VeldUitslag> uit;
  if (n == 0) return uit;
  ElementRec& element = Element(project, n);
  const std::vector<VeldId> velden = AcceptVelden(element.ElementType);
  for (const VeldId& veld : velden) (void)TekstVan(invoer, veld);  // all there, before the first write
  for (const VeldId& veld : velden) {
    const std::string& tekst = TekstVan(invoer, veld);
    if (!IsOngezien(project, n, veld, tekst, decimaal))
      uit.push_back(VerlaatVeld(project, n, veld, tekst, {}, decimaal));
  }
  if (PaginaVan(element.ElementType) == Pagina::Doorsnee) {
    element.Breedte = element.B2Doorsnee();
    element.Hoogte = element.H2Doorsnee();
  }
  if (element.ElementType == elementtype::KanaalRecht || element.ElementType == elementtype::KanaalRond)
    element.Kanaal = Trim(invoer.cmbKanaal);
  return uit;
}

bool cmbKanaal_Click(Project& project, int n, int rij, const SpectrumCatalogus& CatRduct) {
  if (n == 0 || rij < 0) return false;
  if (rij >= CatRduct.Aantal) throw Fout(FoutNummer::IndexBuitenBereik);
  const SpectrumRec& wand = CatRduct.Records[static_cast<std::size_t>(rij) + 1];
  ElementRec& element = Element(project, n);
  const bool anders = wand.SpecNaam.Getrimd() != element.Kanaal.Getrimd();
  element.Kanaal = wand.SpecNaam;
  std::copy_n(wand.SpecWaarde.begin(), Banden, element.Rkanaalwand.begin());
  return anders;
}

std::optional<std::string> cmbKanaal_Change(std::string_view tekst) {
  if (tekst.empty()) return GeenKanaalwandTekst();
  return {};
}

KeuzeUitslag cmbKanaal_LostFocus(Project& project, int n, std::string_view tekst) {
  KeuzeUitslag uit;
  if (Trim(tekst).empty()) uit.Tekst = GeenKanaalwandTekst();
  if (n == 0) return uit;
  Tekst<80>& bewaard = Element(project, n).Kanaal;
  const Tekst<80> wand = uit.Tekst ? std::string_view(*uit.Tekst) : Trim(tekst);
  if (wand.Getrimd() == bewaard.Getrimd()) return uit;
  bewaard = wand;
  uit.Berekend = WandBerekend;
  return uit;
}

}  // namespace murvane
