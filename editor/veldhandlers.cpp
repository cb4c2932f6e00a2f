#include "editor/veldhandlers.h"

#include <type_traits>
#include <utility>

#include "basis/fout.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

template <typename>
constexpr bool IsVasteTekst = false;
template <std::size_t N>
constexpr bool IsVasteTekst<Tekst<N>> = true;

/// The record of the given kind that the fields of the window stand for.
template <typename Rec, typename EenProject>
auto& Deel(EenProject& project, int element) {
  if constexpr (std::is_same_v<Rec, ElementRec>) {
    if (element < 0 || element > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
    return project.Elementen[static_cast<std::size_t>(element)];
  } else if constexpr (std::is_same_v<Rec, RuimteRec>) {
    return project.Ruimte;
  } else if constexpr (std::is_same_v<Rec, FanRec>) {
    return project.Fan;
  } else {
    return project.Kop;
  }
}

/// The slot of a field in its spectrum.
std::size_t Plaats(const VeldRegel& regel, VeldId veld) {
  return static_cast<std::size_t>(veld.Index - regel.Eerste);
}

bool IsVasteTekstVeld(const VeldRegel& regel) {
  return std::visit(
      []<typename Lid>(Lid) {
        if constexpr (std::is_same_v<Lid, std::monostate>) {
          return false;
        } else {
          return []<typename Waarde, typename Rec>(Waarde Rec::*) { return IsVasteTekst<Waarde>; }(Lid{});
        }
      },
      regel.Record);
}

template <typename Waarde, typename Rec>
void BewaarIn(Rec& rec, Waarde Rec::*lid, std::size_t plaats, double getal, std::string_view tekst) {
  if constexpr (std::is_same_v<Waarde, Spectrum>) {
    (rec.*lid)[plaats] = getal;
  } else if constexpr (std::is_arithmetic_v<Waarde>) {
    rec.*lid = static_cast<Waarde>(getal);
  } else {
    rec.*lid = tekst;
  }
}

/// Stores the number, or in a text field the text.
void Bewaar(Project& project, int element, VeldId veld, double getal, std::string_view tekst) {
  const VeldRegel& regel = Regel(veld);
  const auto bewaar = [&]<typename Waarde, typename Rec>(Waarde Rec::*lid) {
    Rec& rec = Deel<Rec>(project, element);
    if (std::is_same_v<Rec, ElementRec> && element == 0) return;
    BewaarIn(rec, lid, Plaats(regel, veld), getal, tekst);
  };
  std::visit(
      [&bewaar]<typename Lid>(Lid lid) {
        if constexpr (!std::is_same_v<Lid, std::monostate>) bewaar(lid);
      },
      regel.Record);
}

VeldUitslag Uitslag(VeldId veld, const Validatie& validatie) {
  return {.Veld = veld,
          .Geldig = validatie.Geldig,
          .Tekst = validatie.Tekst,
          .Achtergrond = validatie.Geldig ? VeldKleur : FoutKleur,
          .ToolTip = validatie.ToolTip,
          .lblLwA = {}};
}

Validatie OngeldigGetal(std::string_view tekst) {
  return {.Geldig = false, .Tekst = std::string(tekst), .Getal = 0, .ToolTip = GeenGeldigGetal};
}

/// ValiDate for a numeric field, with a number too large for a double as an invalid one.
Validatie ValiDateVeilig(std::string_view tekst, const VeldRegel& regel, char decimaal) {
  try {
    return ValiDate(tekst, regel, {}, decimaal);
  } catch (const Fout&) {
    return OngeldigGetal(tekst);
  }
}

/// The check of a field without a tag whose text has to be a number: it is only trimmed, neither clamped nor
/// formatted, and has to be one that the energetic sum can carry.
Validatie ValiDateBand(std::string_view tekst) {
  try {
    const double getal = LeesGetal(tekst);
    (void)EnergetischeSom({getal}, false);
    return {.Geldig = true, .Tekst = std::string(Trim(tekst)), .Getal = getal, .ToolTip = {}};
  } catch (const Fout&) {
    return OngeldigGetal(tekst);
  }
}

/// The uneven steps of the directivity factor are those of the method.
int Richtingsfactor(int getal) {
  if (getal >= 7) return 8;
  return getal >= 3 ? 4 : getal;
}

void NeemUitlaatOver(ElementRec& element) {
  if (element.ElementType != elementtype::DrsneeRecht && element.ElementType != elementtype::DrsneeRond)
    return;
  element.Hoogte = element.H2Doorsnee();
  element.Breedte = element.B2Doorsnee();
}

VeldUitslag VerlaatGetal(Project& project, int element, VeldId veld, std::string_view tekst, char decimaal) {
  const VeldRegel& regel = Regel(veld);
  Validatie validatie = ValiDateVeilig(tekst, regel, decimaal);
  if (veld.Naam == "txtRDI" && validatie.Geldig) {
    validatie.Getal = Richtingsfactor(static_cast<int>(validatie.Getal));
    validatie.Tekst = Opmaak(validatie.Getal, regel.Weergave, decimaal);
  }
  Bewaar(project, element, veld, validatie.Getal, {});
  if (veld.Naam == "txtH2Doorsnee" || veld.Naam == "txtB2Doorsnee")
    NeemUitlaatOver(Deel<ElementRec>(project, element));
  return Uitslag(veld, validatie);
}

void WerkSomBij(FanRec& fan) {
  try {
    fan.Lw[SomPlaats] = EnergetischeSom(fan.Lw, true);
  } catch (const Fout&) {
    // Another band, out of a file, is no number; its own field says so when it is left.
  }
}

VeldUitslag VerlaatBand(Project& project, int element, VeldId veld, std::string_view tekst, char decimaal) {
  const Validatie validatie = ValiDateBand(tekst);
  VeldUitslag uitslag = Uitslag(veld, validatie);
  if (!validatie.Geldig) return uitslag;
  Bewaar(project, element, veld, validatie.Getal, {});
  if (veld.Naam == "txtLw") {
    WerkSomBij(project.Fan);
    uitslag.lblLwA = LwATekst(project.Fan, decimaal);
  }
  return uitslag;
}

VeldUitslag VerlaatDatum(Project& project, VeldId veld, std::string_view tekst, std::string_view vandaag,
                         char decimaal) {
  const Validatie validatie = ValiDate(tekst, Regel(veld), vandaag, decimaal);
  if (validatie.Geldig) Bewaar(project, 0, veld, 0, validatie.Tekst);
  return Uitslag(veld, validatie);
}

}  // namespace

std::string LwATekst(const FanRec& fan, char decimaal) {
  return "Lw,A = " + Opmaak(fan.Lw[SomPlaats], Formaat::Een, decimaal) + " dB(A)";
}

std::string HerstelTekst(const Project& project, int element, VeldId veld, char decimaal) {
  const VeldRegel& regel = Regel(veld);
  const auto toon = [&]<typename Waarde, typename Rec>(Waarde Rec::*lid) -> std::string {
    const Waarde& waarde = Deel<Rec>(project, element).*lid;
    if constexpr (std::is_same_v<Waarde, Spectrum>) {
      return Opmaak(waarde[Plaats(regel, veld)], regel.Weergave, decimaal);
    } else if constexpr (std::is_arithmetic_v<Waarde>) {
      return Opmaak(waarde, regel.Weergave, decimaal);
    } else {
      return std::string(TrimRechts(waarde.Heel()));
    }
  };
  return std::visit(
      [&toon]<typename Lid>(Lid lid) -> std::string {
        if constexpr (std::is_same_v<Lid, std::monostate>) {
          return {};
        } else {
          return toon(lid);
        }
      },
      regel.Record);
}

VeldGevolg VeldGewijzigd(VeldId veld) {
  const VeldRegel& regel = Regel(veld);
  VeldGevolg gevolg;
  if (regel.Berekend != 0) gevolg.Berekend = std::to_string(regel.Berekend);
  if (veld.Naam == "txtfan") {  // the prognosis no longer holds
    for (int band = 0; band < Banden; ++band) gevolg.Zet.push_back({{"txtLw", band}, "0"});
    gevolg.lblLwA = "";
  }
  return gevolg;
}

VeldUitslag VerlaatVeld(Project& project, int element, VeldId veld, std::string_view tekst,
                        std::string_view vandaag, char decimaal) {
  const VeldRegel& regel = Regel(veld);
  if (regel.AlleenLezen)
    return Uitslag(veld, {.Geldig = true, .Tekst = std::string(tekst), .Getal = 0, .ToolTip = {}});
  if (regel.Soort == VeldSoort::Numeriek) return VerlaatGetal(project, element, veld, tekst, decimaal);
  if (regel.Soort == VeldSoort::Datum) return VerlaatDatum(project, veld, tekst, vandaag, decimaal);
  if (!IsVasteTekstVeld(regel)) return VerlaatBand(project, element, veld, tekst, decimaal);
  Bewaar(project, element, veld, 0, Trim(tekst));
  return Uitslag(veld, {.Geldig = true, .Tekst = std::string(tekst), .Getal = 0, .ToolTip = {}});
}

std::optional<VeldUitslag> OngeldigeLw(const ProjectInvoer& invoer) {
  for (std::size_t band = 0; band < Banden; ++band) {
    const Validatie validatie = ValiDateBand(invoer.txtLw[band]);
    if (!validatie.Geldig) return Uitslag({"txtLw", static_cast<int>(band)}, validatie);
  }
  return {};
}

}  // namespace murvane
