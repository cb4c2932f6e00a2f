#include "editor/validate.h"

#include <string_view>
#include <utility>

#include "basis/fout.h"
#include "basis/getal.h"
#include "basis/tekst.h"
#include "calc/spectrum.h"
#include "editor/elementlijst.h"
#include "editor/invoer.h"

namespace murvane {

namespace {

/// A field that shows a stored value without a number for it; such a project must never run.
bool ToontNietEindig(std::string_view tekst) {
  tekst = Trim(tekst);
  return tekst == "NaN" || tekst == "INF" || tekst == "-INF";
}

double LeesBand(std::string_view tekst, std::size_t band, char decimaal) {
  try {
    if (ToontNietEindig(tekst)) throw Fout(FoutNummer::Overloop);
    return LeesGetal(ValiDate(tekst, Regel("txtLw"), {}, decimaal).Tekst);
  } catch (const Fout& fout) {
    throw fout.MetPlaats("geluidsspectrum ventilator, " + std::string(Trim(BandLabel[band])) + " Hz");
  }
}

Spectrum LeesLw(const ProjectInvoer& invoer, char decimaal) {
  Spectrum lw{};
  for (std::size_t band = 0; band < Banden; ++band) lw[band] = LeesBand(invoer.txtLw[band], band, decimaal);
  try {
    lw[SomPlaats] = EnergetischeSom(lw, true);
  } catch (const Fout& fout) {
    throw fout.MetPlaats("geluidsspectrum ventilator");
  }
  return lw;
}

/// What an invalid text comes to is 0, which the room rules then report.
double LeesVeld(std::string_view naam, std::string_view tekst, const char* plaats, char decimaal) {
  try {
    if (ToontNietEindig(tekst)) throw Fout(FoutNummer::Overloop);
    return ValiDate(tekst, Regel(naam), {}, decimaal).Getal;
  } catch (const Fout& fout) {
    throw fout.MetPlaats(plaats);
  }
}

RuimteRec LeesRuimte(RuimteRec ruimte, const ProjectInvoer& invoer, char decimaal) {
  ruimte.RBreedte = LeesVeld("txtRBreedte", invoer.txtRBreedte, "vertrekbreedte", decimaal);
  ruimte.RHoogte = LeesVeld("txtRHoogte", invoer.txtRHoogte, "vertrekhoogte", decimaal);
  ruimte.RLengte = LeesVeld("txtRLengte", invoer.txtRLengte, "vertreklengte", decimaal);
  ruimte.RDI = static_cast<std::int16_t>(LeesVeld("txtRDI", invoer.txtRDI, "richtingsfactor", decimaal));
  ruimte.RNR = LeesVeld("txtRNR", invoer.txtRNR, "toelaatbaar geluidsniveau", decimaal);
  ruimte.RNagalm = LeesVeld("txtRNagalm", invoer.txtRNagalm, "nagalmtijd", decimaal);
  ruimte.RAantal = LeesVeld("txtRAantal", invoer.txtRAantal, "aantal roosters", decimaal);
  return ruimte;
}

void NeemTekstenOver(Project& project, const ProjectInvoer& invoer) {
  project.Kop.ProNaam = Trim(invoer.txtProNaam);
  project.Kop.ProNum = Trim(invoer.txtProNum);
  project.Kop.MyDate = Trim(invoer.txtMyDate);
  project.Kop.Omschrijving = Trim(invoer.txtOmschrijving);
  project.Kop.Toelichting1 = Trim(invoer.txtToelichting1);
  project.Kop.Toelichting2 = Trim(invoer.txtToelichting2);
  project.Kop.Toelichting3 = Trim(invoer.txtToelichting3);
  project.Fan.FanNaam = Trim(invoer.txtSpectrum);
}

using Uitslag = std::optional<Bevinding>;

const ElementRec& Element(const Project& project, int nummer) {
  return project.Elementen[static_cast<std::size_t>(nummer)];
}

Uitslag BeoordeelVentilator(const Project& project) {
  if (project.Kop.RekenType == rekentype::Overspraak) return {};
  for (std::size_t band = 0; band < Banden; ++band) {
    if (project.Fan.Lw[band] == 0)
      return Bevinding{"Geluidsspectrum ventilator niet (volledig) ingevuld", Tab::Ventilator, 0, {}};
  }
  if (project.Fan.FanNaam.Getrimd().empty())
    return Bevinding{"Naam ventilator niet ingevuld", Tab::Ventilator, 0, {}};
  return {};
}

bool IsRechtKanaal(std::int16_t type) {
  return type == elementtype::KanaalRecht || type == elementtype::KanaalRond;
}

Bevinding OverKeten(std::string melding) {
  return {std::move(melding), Tab::Kanaalelementen, 0, {}};
}

Uitslag BeoordeelUiteinden(const Project& project) {
  // A count below 0, which only a file can hold, has no first element.
  if (project.ElementCount < 0 || !IsRechtKanaal(Element(project, 1).ElementType))
    return OverKeten("Eerste kanaalelement is geen rechthoekig of rond kanaal");
  const std::int16_t laatste = Element(project, project.ElementCount).ElementType;
  switch (project.Kop.RekenType) {
    case rekentype::Installatiegeluid:
    case rekentype::Overspraak:
      if (laatste != elementtype::Rooster && laatste != elementtype::Catalogus)
        return OverKeten("Laatste kanaalelement is geen rooster");
      break;
    case rekentype::Geluidsuitstraling:
      if (!IsRechtKanaal(laatste))
        return OverKeten("Laatste kanaalelement is geen rechthoekig of rond kanaal");
      break;
    default:
      break;
  }
  return {};
}

/// A field that an element of this type cannot do without.
struct VerplichtVeld {
  std::int16_t Type;
  std::string_view Veld;
  double ElementRec::*Waarde;
};

/// Per type in the order in which they get the focus. The inlet section is inherited and not asked for, and
/// neither is the width of the through duct or of the outlet of a section change.
constexpr auto VerplichteVelden = std::to_array<VerplichtVeld>({
    {elementtype::AftakRecht, "txtHAftak", &ElementRec::Hoogte},
    {elementtype::AftakRecht, "txtBAftak", &ElementRec::Breedte},
    {elementtype::AftakRecht, "txtRAftak", &ElementRec::RAftak},
    {elementtype::AftakRecht, "txtQAftak", &ElementRec::QAftak},
    {elementtype::AftakRecht, "txtHDoor", &ElementRec::HDoor},
    {elementtype::AftakRond, "txtHAftak", &ElementRec::Hoogte},
    {elementtype::AftakRond, "txtRAftak", &ElementRec::RAftak},
    {elementtype::AftakRond, "txtQAftak", &ElementRec::QAftak},
    {elementtype::AftakRond, "txtHDoor", &ElementRec::HDoor},
    {elementtype::BochtHaaks, "txtHoogte", &ElementRec::Hoogte},
    {elementtype::BochtHaaks, "txtBreedte", &ElementRec::Breedte},
    {elementtype::BochtHaaks, "txtDebiet", &ElementRec::Debiet},
    {elementtype::BochtRecht, "txtHoogte", &ElementRec::Hoogte},
    {elementtype::BochtRecht, "txtBreedte", &ElementRec::Breedte},
    {elementtype::BochtRecht, "txtDebiet", &ElementRec::Debiet},
    {elementtype::BochtRond, "txtHoogte", &ElementRec::Hoogte},
    {elementtype::BochtRond, "txtDebiet", &ElementRec::Debiet},
    {elementtype::DrsneeRecht, "txtH1Doorsnee", &ElementRec::HHoofd},
    {elementtype::DrsneeRecht, "txtB1Doorsnee", &ElementRec::BHoofd},
    {elementtype::DrsneeRecht, "txtH2Doorsnee", &ElementRec::HDoor},
    {elementtype::DrsneeRecht, "txtLDoorsnee", &ElementRec::Lengte},
    {elementtype::DrsneeRond, "txtH1Doorsnee", &ElementRec::HHoofd},
    {elementtype::DrsneeRond, "txtH2Doorsnee", &ElementRec::HDoor},
    {elementtype::DrsneeRond, "txtLDoorsnee", &ElementRec::Lengte},
    {elementtype::KanaalRecht, "txtHoogte", &ElementRec::Hoogte},
    {elementtype::KanaalRecht, "txtBreedte", &ElementRec::Breedte},
    {elementtype::KanaalRecht, "txtLengte", &ElementRec::Lengte},
    {elementtype::KanaalRecht, "txtDebiet", &ElementRec::Debiet},
    {elementtype::KanaalRond, "txtHoogte", &ElementRec::Hoogte},
    {elementtype::KanaalRond, "txtLengte", &ElementRec::Lengte},
    {elementtype::KanaalRond, "txtDebiet", &ElementRec::Debiet},
    {elementtype::Klep, "txtWeerstand", &ElementRec::Weerstand},
    {elementtype::Rooster, "txtSnetto", &ElementRec::Snetto},
    {elementtype::Rooster, "txtWeerstand", &ElementRec::Weerstand},
});

Bevinding OverElement(int nummer, const char* wat, std::string_view veld) {
  return {"Kanaalelement " + std::to_string(nummer) + wat, Tab::Kanaalelementen, nummer, std::string(veld)};
}

Uitslag BeoordeelElement(const Project& project, int nummer) {
  const ElementRec& element = Element(project, nummer);
  if (element.ElementType == elementtype::Rooster && nummer != project.ElementCount)
    return OverElement(nummer, " mag geen rooster zijn", {});
  for (const VerplichtVeld& eis : VerplichteVelden) {
    if (eis.Type == element.ElementType && element.*eis.Waarde == 0)
      return OverElement(nummer, " niet correct gedimensioneerd", eis.Veld);
  }
  return {};
}

Uitslag BeoordeelElementen(const Project& project) {
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  if (project.ElementCount == 0) return OverKeten("Geen kanaalelementen ingevoerd");
  if (Uitslag uitslag = BeoordeelUiteinden(project)) return uitslag;
  for (int nummer = 1; nummer <= project.ElementCount; ++nummer) {
    if (Uitslag uitslag = BeoordeelElement(project, nummer)) return uitslag;
  }
  return {};
}

Bevinding OverRuimte(const char* melding, const char* veld) {
  return {melding, Tab::Ruimtegegevens, 0, veld};
}

/// The rules of the room's own sound field, which a free field does not have.
Uitslag BeoordeelVertrek(const RuimteRec& ruimte) {
  if (ruimte.RLengte == 0) return OverRuimte("Vertreklengte niet ingevuld", "txtRLengte");
  if (ruimte.RBreedte == 0) return OverRuimte("Vertrekbreedte niet ingevuld", "txtRBreedte");
  if (ruimte.RHoogte == 0) return OverRuimte("Vertrekhoogte niet ingevuld", "txtRHoogte");
  if (ruimte.RNagalm == 0) return OverRuimte("Nagalmtijd niet ingevuld", "txtRNagalm");
  return {};
}

Uitslag BeoordeelRuimte(const Project& project) {
  const RuimteRec& ruimte = project.Ruimte;
  const bool uitstraling = project.Kop.RekenType == rekentype::Geluidsuitstraling;
  const bool metRoosters =
      project.Kop.RekenType == rekentype::Installatiegeluid || project.Kop.RekenType == rekentype::Overspraak;
  const bool vrijVeld = project.VrijVeld != 0;
  if (!vrijVeld) {
    if (Uitslag uitslag = BeoordeelVertrek(ruimte)) return uitslag;
  }
  if (ruimte.RDI == 0) return OverRuimte("Richtingsfactor niet ingevuld", "txtRDI");
  if (metRoosters && !vrijVeld && ruimte.RAantal == 0)
    return OverRuimte("Aantal roosters niet ingevuld", "txtRAantal");
  if (uitstraling && Trim(ruimte.RkanaalNaam) == GeenKanaalwand)
    return OverRuimte("Geen kanaalwand geselecteerd", "cmbRkanaal");
  return {};
}

}  // namespace

ProjectInvoer InvoerVan(const Project& project, char decimaal) {
  const auto tekst = [](const auto& vast) { return std::string(TrimRechts(vast.Heel())); };
  const auto getal = [decimaal](std::string_view naam, double waarde) {
    return Opmaak(waarde, Regel(naam).Weergave, decimaal);
  };
  const ProjectRec& kop = project.Kop;
  const RuimteRec& ruimte = project.Ruimte;
  ProjectInvoer uit{.txtProNaam = tekst(kop.ProNaam),
                    .txtProNum = tekst(kop.ProNum),
                    .txtMyDate = tekst(kop.MyDate),
                    .txtOmschrijving = tekst(kop.Omschrijving),
                    .txtToelichting1 = tekst(kop.Toelichting1),
                    .txtToelichting2 = tekst(kop.Toelichting2),
                    .txtToelichting3 = tekst(kop.Toelichting3),
                    .txtSpectrum = tekst(project.Fan.FanNaam),
                    .txtLw = {},
                    .txtRBreedte = getal("txtRBreedte", ruimte.RBreedte),
                    .txtRHoogte = getal("txtRHoogte", ruimte.RHoogte),
                    .txtRLengte = getal("txtRLengte", ruimte.RLengte),
                    .txtRDI = getal("txtRDI", ruimte.RDI),
                    .txtRNR = getal("txtRNR", ruimte.RNR),
                    .txtRNagalm = getal("txtRNagalm", ruimte.RNagalm),
                    .txtRAantal = getal("txtRAantal", ruimte.RAantal)};
  for (std::size_t band = 0; band < Banden; ++band) uit.txtLw[band] = getal("txtLw", project.Fan.Lw[band]);
  return uit;
}

void NeemOver(Project& project, const ProjectInvoer& invoer, char decimaal) {
  // Everything that can fail comes before the first write, so that a fault leaves the project as it was.
  const Spectrum lw = LeesLw(invoer, decimaal);
  RuimteRec ruimte = LeesRuimte(project.Ruimte, invoer, decimaal);
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);

  NeemTekstenOver(project, invoer);
  project.Fan.Lw = lw;
  project.Ruimte = std::move(ruimte);
  for (int nummer = 1; nummer <= project.ElementCount; ++nummer) VoorGanger(project, nummer);
}

Uitslag Beoordeel(const Project& project) {
  if (Uitslag uitslag = BeoordeelVentilator(project)) return uitslag;
  if (Uitslag uitslag = BeoordeelElementen(project)) return uitslag;
  return BeoordeelRuimte(project);
}

Uitslag CheckIt(Project& project, const ProjectInvoer& invoer, char decimaal) {
  NeemOver(project, invoer, decimaal);
  return Beoordeel(project);
}

}  // namespace murvane
