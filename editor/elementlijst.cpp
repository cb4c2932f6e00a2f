#include "editor/elementlijst.h"

#include <algorithm>
#include <utility>

#include "basis/fout.h"
#include "editor/sessie.h"

namespace murvane {

namespace {

void ErfDebiet(ElementRec& element, const ElementRec& vorig) {
  switch (vorig.ElementType) {
    case elementtype::AftakRecht:
    case elementtype::AftakRond:
      element.Debiet = vorig.QAftak;  // the chain goes on along the branch
      break;
    case elementtype::BochtHaaks:
    case elementtype::BochtRecht:
    case elementtype::BochtRond:
    case elementtype::DrsneeRecht:
    case elementtype::DrsneeRond:
    case elementtype::KanaalRecht:
    case elementtype::KanaalRond:
    case elementtype::Klep:
    case elementtype::Rooster:
    case elementtype::Catalogus:
      element.Debiet = vorig.Debiet;
      break;
    default:
      break;
  }
}

void ErfDoorsnee(ElementRec& element, const ElementRec& vorig) {
  const bool rond = vorig.Breedte == 0;
  switch (element.ElementType) {
    case elementtype::AftakRecht:
    case elementtype::AftakRond:
    case elementtype::DrsneeRecht:
    case elementtype::DrsneeRond:
      element.HHoofd = vorig.Hoogte;
      if (!rond) element.BHoofd = vorig.Breedte;
      break;
    case elementtype::BochtHaaks:
    case elementtype::BochtRecht:
    case elementtype::Klep:
    case elementtype::Rooster:
    case elementtype::Catalogus:
      element.Hoogte = vorig.Hoogte;
      if (!rond) element.Breedte = vorig.Breedte;
      break;
    case elementtype::BochtRond:
      element.Hoogte = vorig.Hoogte;
      break;
    default:
      break;  // a straight duct keeps its own section
  }
}

/// A count below 0, which only a file can hold, stands for an empty chain.
int KetenLengte(const Project& project) {
  return std::max<int>(project.ElementCount, 0);
}

void ZetLengte(Project& project, int lengte) {
  project.ElementCount = static_cast<std::int16_t>(lengte);
}

/// Where element n stands; n one past the last slot is the end.
auto Plaats(Project& project, int n) {
  return project.Elementen.begin() + n;
}

bool VoorbijMaximum(int lengte) {
  return lengte >= MaxElementen;
}

Melding Uitroep(std::string_view titel, std::string tekst) {
  return {MeldingSoort::Uitroep, std::string(titel), std::move(tekst), Knoppen::OK};
}

LijstUitkomst Melden(Melding melding) {
  LijstUitkomst uit;
  uit.Melding = std::move(melding);
  return uit;
}

/// The outcome of a change of the chain: the element at `rij` is opened as by a click.
LijstUitkomst KetenGewijzigd(Elementlijst& lijst, Project& project, int rij, Vulling vulling,
                             std::string_view nummer) {
  LijstUitkomst uit = lstProject_Click(lijst, project, rij);
  uit.lstProject = vulling;
  uit.Paneel3 = AantalTekst(project.ElementCount);
  uit.Berekend = nummer;
  return uit;
}

/// Only a chain of exactly 99 is full; a longer one came from a file and is not cut down.
std::optional<LijstUitkomst> KetenVol(const Project& project) {
  if (project.ElementCount != MaxKeten) return {};
  return Melden(Uitroep("Invoer-stop", "Maximaal aantal kanaalelementen bereikt (99)"));
}

bool HeeftRecord(const Elementlijst& lijst, const ElementCatalogus& catalogus) {
  return lijst.CatalogusPositie >= 1 && lijst.CatalogusPositie <= catalogus.Aantal;
}

/// Makes element n anew from the selected catalogue record.
void MaakElement(Project& project, int n, const Elementlijst& lijst, const ElementCatalogus& catalogus) {
  const CatElementRec& bron = catalogus.Records[static_cast<std::size_t>(lijst.CatalogusPositie)];
  LeegMaken(project, n);
  ElementRec& element = project.Elementen[static_cast<std::size_t>(n)];
  element.Naam = bron.CatNaam;
  element.demp = bron.CatDemp;
  element.ruis = bron.CatRuis;
  element.ElementType = TypeVanRecord(lijst.CatalogusPositie);
}

/// A name as a list shows it: with its blanks, and blanks for what was never assigned.
std::string LijstNaam(const Tekst<80>& naam) {
  std::string uit(naam.Heel());
  std::replace(uit.begin(), uit.end(), '\0', ' ');
  return uit;
}

LijstUitkomst WisKeuze(Elementlijst& lijst, Project& project) {
  lijst.CatalogusPositie = 0;
  return lstProject_Click(lijst, project, -1);
}

}  // namespace

void VoorGanger(Project& project, int n) {
  if (n < 0 || n > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  if (n == 0) return;
  ElementRec& element = project.Elementen[static_cast<std::size_t>(n)];
  if (n == 1) {
    if (project.FanPrognose == fanbron::Prognose) element.Debiet = project.Fan.FanDebiet;
    return;
  }
  const ElementRec& vorig = project.Elementen[static_cast<std::size_t>(n) - 1];
  ErfDebiet(element, vorig);
  ErfDoorsnee(element, vorig);
}

std::uint32_t LijstKleur(const Elementlijst& lijst, Lijst welke) {
  return lijst.Actief == welke ? ActieveKleur : InactieveKleur;
}

void LeegMaken(Project& project, int n) {
  if (n < 0 || n > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  ElementRec leeg;
  leeg.Naam = "";
  leeg.Kanaal = "";
  project.Elementen[static_cast<std::size_t>(n)] = leeg;
}

std::int16_t TypeVanRecord(int record) {
  return record <= IngebouwdeElementen ? static_cast<std::int16_t>(record) : elementtype::Catalogus;
}

std::string RijProject(const Project& project, int n) {
  if (n < 1 || n > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  return std::to_string(n) + ". " + LijstNaam(project.Elementen[static_cast<std::size_t>(n)].Naam);
}

std::vector<std::string> RijenProject(const Project& project) {
  std::vector<std::string> uit;
  for (int n = 1; n <= KetenLengte(project); ++n) uit.push_back(RijProject(project, n));
  return uit;
}

std::vector<std::string> RijenTotaal(const ElementCatalogus& catalogus) {
  std::vector<std::string> uit;
  for (int n = 1; n <= catalogus.Aantal; ++n)
    uit.push_back(LijstNaam(catalogus.Records.at(static_cast<std::size_t>(n)).CatNaam));
  return uit;
}

std::string AantalTekst(int aantal) {
  return std::to_string(aantal) + " kanaalelementen";
}

std::string AantalGezegd(int aantal) {
  return aantal == 1 ? "1 kanaalelement" : AantalTekst(aantal);
}

LijstUitkomst lstTotaal_Click(Elementlijst& lijst, int rij) {
  if (rij < -1 || rij >= MaxCatalogus) throw Fout(FoutNummer::IndexBuitenBereik);
  LijstUitkomst uit;
  uit.Accepteer = lijst.HuidigElement;
  lijst.CatalogusPositie = rij + 1;
  lijst.Actief = Lijst::lstTotaal;
  lijst.Aangeklikt = true;
  lijst.SSTab2 = false;
  return uit;
}

LijstUitkomst lstProject_Click(Elementlijst& lijst, Project& project, int rij) {
  if (rij < -1 || rij >= KetenLengte(project)) throw Fout(FoutNummer::IndexBuitenBereik);
  LijstUitkomst uit;
  lijst.HuidigElement = rij + 1;
  lijst.Actief = Lijst::lstProject;
  lijst.Aangeklikt = true;
  lijst.SSTab2 = lijst.HuidigElement > 0;
  VoorGanger(project, lijst.HuidigElement);
  uit.Open = lijst.HuidigElement;
  return uit;
}

LijstUitkomst lstTotaal_DblClick(Elementlijst& lijst, Project& project, const ElementCatalogus& catalogus) {
  if (auto vol = KetenVol(project)) return *vol;
  if (!HeeftRecord(lijst, catalogus)) return {};
  const int lengte = KetenLengte(project);
  if (VoorbijMaximum(lengte)) throw Fout(FoutNummer::IndexBuitenBereik);
  ZetLengte(project, lengte + 1);
  MaakElement(project, lengte + 1, lijst, catalogus);
  return KetenGewijzigd(lijst, project, lengte, Vulling::RijErbij, AanroepNummer("lstTotaal_DblClick"));
}

LijstUitkomst Insert(Elementlijst& lijst, Project& project, const ElementCatalogus& catalogus) {
  if (lijst.Actief != Lijst::lstTotaal) return {};
  if (auto vol = KetenVol(project)) return *vol;
  const int n = lijst.HuidigElement;
  if (n == 0) return Melden(Uitroep("Invoer-stop", "Geen invoegpositie aangegeven"));
  if (!HeeftRecord(lijst, catalogus)) return {};
  const int lengte = KetenLengte(project);
  if (n > lengte || VoorbijMaximum(lengte)) throw Fout(FoutNummer::IndexBuitenBereik);
  std::move_backward(Plaats(project, n), Plaats(project, lengte + 1), Plaats(project, lengte + 2));
  ZetLengte(project, lengte + 1);
  MaakElement(project, n, lijst, catalogus);
  LijstUitkomst uit = KetenGewijzigd(lijst, project, n - 1, Vulling::Opnieuw, AanroepNummer("Insert"));
  uit.BerekendEerst = true;
  return uit;
}

LijstUitkomst lstProject_DblClick(const Elementlijst& lijst) {
  if (lijst.Actief != Lijst::lstProject) return {};
  if (lijst.HuidigElement == 0) return Melden(Uitroep("Waarschuwing", "Geen kanaalelementen geselecteerd"));
  return Melden({MeldingSoort::Vraag, "Kanaalelementen wissen",
                 "Kanaalelement " + std::to_string(lijst.HuidigElement) + " wissen?", Knoppen::OkCancel});
}

LijstUitkomst WisElement(Elementlijst& lijst, Project& project, Antwoord antwoord) {
  if (antwoord != Antwoord::OK) return WisKeuze(lijst, project);
  const int n = lijst.HuidigElement;
  const int lengte = KetenLengte(project);
  if (n < 1 || n > lengte || lengte > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  std::move(Plaats(project, n + 1), Plaats(project, lengte + 1), Plaats(project, n));
  LeegMaken(project, lengte);
  ZetLengte(project, lengte - 1);
  return KetenGewijzigd(lijst, project, std::min(n, lengte - 1) - 1, Vulling::Opnieuw,
                        AanroepNummer("lstProject_DblClick"));
}

LijstUitkomst UpDown(Elementlijst& lijst, Project& project, int toets) {
  if (lijst.Actief != Lijst::lstProject) return {};
  const int n = lijst.HuidigElement;
  if (n == 0) return Melden(Uitroep("Waarschuwing", "Geen kanaalelement geselecteerd"));
  if (toets != ToetsOmhoog && toets != ToetsOmlaag) return {};
  const int lengte = KetenLengte(project);
  if (n > lengte || lengte > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  const int doel = toets == ToetsOmlaag ? n + 1 : n - 1;
  if (doel < 1 || doel > lengte) return {};
  std::iter_swap(Plaats(project, n), Plaats(project, doel));
  return KetenGewijzigd(lijst, project, doel - 1, Vulling::Opnieuw, AanroepNummer("UpDown"));
}

void lstTotaalGevuld(Elementlijst& lijst) {
  lijst.CatalogusPositie = 0;
}

}  // namespace murvane
