#include "editor/invoer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {

namespace {

using enum VeldSoort;
using enum Formaat;

constexpr std::string_view Getal = "1234567890,.";
constexpr std::string_view Cijferreeks = "1234567890";
constexpr std::string_view DatumTekens = "1234567890-";

/// The limits of fields of plain text have no effect; those of the band fields are what the labels promise.
/// Name, kind, limits, format, keys, number of the change event, record field, Enter; of an array its first
/// index and its length. The later txtdemp are the attenuation of a catalogue element, which is only shown.
// clang-format off
constexpr auto Velden = std::to_array<VeldRegel>({
    // fan
    {"txtSpectrum", VeldSoort::Tekst, 0, 0, Heel, {}, 38, &FanRec::FanNaam, {}},
    {"txtLw", VeldSoort::Tekst, 0, 150, Een, Getal, 20, &FanRec::Lw, {}, 0, 7},
    {"txtfan(0)", Numeriek, 0, 150, Twee, Getal, 0, &FanRec::FanDebiet, {}, 0, 5},
    {"txtfan(1)", Numeriek, 0, 100000, Heel, Cijferreeks, 0, &FanRec::FanDruk, {}, 0, 5},
    {"txtfan(2)", Numeriek, 0, 100000, Heel, Cijferreeks, 0, &FanRec::FanToeren, {}, 0, 5},
    {"txtfan(3)", Numeriek, 0, 50, Heel, Cijferreeks, 0, &FanRec::FanSchoepen, {}, 0, 5},
    {"txtfan(4)", Numeriek, 0, 100000, Heel, Cijferreeks, 0, &FanRec::FanVermogen, {}, 0, 5},
    // ducts and bends
    {"txtHoogte", Numeriek, 0, 5000, Heel, Getal, 17, &ElementRec::Hoogte,
     {"txtBreedte", "txtLengte", "txtDebiet", "lstProject"}},
    {"txtBreedte", Numeriek, 0, 5000, Heel, Getal, 9, &ElementRec::Breedte,
     {"txtLengte", "txtDebiet", "txtHoogte"}},
    {"txtLengte", Numeriek, 0, 100, Een, Getal, 19, &ElementRec::Lengte, {"txtDebiet", "txtHoogte"}},
    {"txtDebiet", Numeriek, 0, 5000, Twee, Getal, 10, &ElementRec::Debiet, {"txtHoogte"}},
    {"txtdemp", Numeriek, 0, 150, Een, Getal, 11, &ElementRec::LAeq, {}, 0, 7},
    // branches
    {"txtHAftak", Numeriek, 0, 5000, Heel, Getal, 14, &ElementRec::Hoogte, {"txtBAftak", "txtRAftak"}},
    {"txtBAftak", Numeriek, 0, 5000, Heel, Getal, 6, &ElementRec::Breedte, {"txtRAftak"}},
    {"txtHHoofd", Numeriek, 0, 5000, Heel, Getal, 16, &ElementRec::HHoofd, {"txtBHoofd"}},
    {"txtBHoofd", Numeriek, 0, 5000, Heel, Getal, 8, &ElementRec::BHoofd, {"txtHDoor"}},
    {"txtHDoor", Numeriek, 0, 5000, Heel, Getal, 15, &ElementRec::HDoor, {"txtBDoor"}},
    {"txtBDoor", Numeriek, 0, 5000, Heel, Getal, 7, &ElementRec::BDoor, {"txtHHoofd"}},
    {"txtQAftak", Numeriek, 0, 5000, Twee, Getal, 25, &ElementRec::QAftak, {"txtHAftak"}},
    {"txtRAftak", Numeriek, 0, 1, Twee, Getal, 27, &ElementRec::RAftak, {"txtQAftak", "txtHAftak"}},
    // section changes
    {"txtH1Doorsnee", Numeriek, 0, 5000, Heel, Getal, 12, &ElementRec::HHoofd,
     {"txtB1Doorsnee", "txtH2Doorsnee"}},
    {"txtB1Doorsnee", Numeriek, 0, 5000, Heel, Getal, 4, &ElementRec::BHoofd, {"txtH2Doorsnee"}},
    {"txtH2Doorsnee", Numeriek, 0, 5000, Heel, Getal, 13, &ElementRec::HDoor, {"txtB2Doorsnee"}},
    {"txtB2Doorsnee", Numeriek, 0, 5000, Heel, Getal, 5, &ElementRec::BDoor, {"txtLDoorsnee"}},
    {"txtLDoorsnee", Numeriek, 0, 100, Twee, Getal, 18, &ElementRec::Lengte, {"txtH1Doorsnee"}},
    // dampers, outlets, catalogue elements
    {"txtSnetto", Numeriek, 0, 5000, Heel, Getal, 37, &ElementRec::Snetto, {"txtWeerstand"}},
    {"txtWeerstand", Numeriek, 0, 5000, Heel, Getal, 42, &ElementRec::Weerstand, {"txtSnetto", "lstProject"}},
    {"txtdemp", VeldSoort::Tekst, 0, 150, Een, Getal, 11, &ElementRec::demp, {}, 7, 7, true},
    {"txtruis", VeldSoort::Tekst, 0, 150, Een, Getal, 36, &ElementRec::ruis, {}, 0, 7, true},
    // room
    {"txtRLengte", Numeriek, 0, 300, Een, Getal, 33, &RuimteRec::RLengte, {"txtRBreedte"}},
    {"txtRBreedte", Numeriek, 0, 300, Een, Getal, 29, &RuimteRec::RBreedte, {"txtRHoogte"}},
    {"txtRHoogte", Numeriek, 0, 10, Een, Getal, 31, &RuimteRec::RHoogte, {"txtRNagalm"}},
    {"txtRNagalm", Numeriek, 0, 10, Twee, Getal, 34, &RuimteRec::RNagalm, {"txtRNR"}},
    {"txtRNR", Numeriek, 0, 150, Heel, Getal, 0, &RuimteRec::RNR, {"txtRDI", "txtRAantal", "txtRLengte"}},
    {"txtRDI", Numeriek, 1, 8, Heel, Getal, 30, &RuimteRec::RDI, {"txtRAantal", "txtRLengte"}},
    {"txtRAantal", Numeriek, 0, 50, Heel, Getal, 26, &RuimteRec::RAantal, {"txtRLengte"}},
    {"txtRkanaal", VeldSoort::Tekst, 0, 150, Een, Getal, 32, &RuimteRec::Rkanaal, {}, 0, 7},
    {"txtRplafond", VeldSoort::Tekst, 0, 150, Een, Getal, 35, &RuimteRec::Rplafond, {}, 0, 7},
    // project
    {"txtProNaam", VeldSoort::Tekst, 0, 0, Heel, {}, 23, &ProjectRec::ProNaam, {"txtOmschrijving"}},
    {"txtProNum", VeldSoort::Tekst, 0, 0, Heel, {}, 24, &ProjectRec::ProNum, {"txtMyDate"}},
    {"txtMyDate", Datum, -1e99, 1e99, Heel, DatumTekens, 21, &ProjectRec::MyDate, {"txtProNaam"}},
    {"txtOmschrijving", VeldSoort::Tekst, 0, 0, Heel, {}, 22, &ProjectRec::Omschrijving, {"txtToelichting1"}},
    {"txtToelichting1", VeldSoort::Tekst, 0, 0, Heel, {}, 39, &ProjectRec::Toelichting1, {"txtToelichting2"}},
    {"txtToelichting2", VeldSoort::Tekst, 0, 0, Heel, {}, 40, &ProjectRec::Toelichting2, {"txtToelichting3"}},
    {"txtToelichting3", VeldSoort::Tekst, 0, 0, Heel, {}, 41, &ProjectRec::Toelichting3, {"txtProNum"}},
});
// clang-format on

/// The digits of a text as a number; -1 when a character is not a digit.
constexpr int Cijfers(std::string_view tekst) {
  int uit = 0;
  for (const char c : tekst) {
    if (c < '0' || c > '9') return -1;
    uit = 10 * uit + (c - '0');
  }
  return uit;
}

/// Whether the text is dd-mm-yyyy and that day exists; dates start at the year 100.
bool IsDatum(std::string_view tekst) {
  if (tekst.size() != 10 || tekst[2] != '-' || tekst[5] != '-') return false;
  const int dag = Cijfers(tekst.substr(0, 2));
  const int maand = Cijfers(tekst.substr(3, 2));
  const int jaar = Cijfers(tekst.substr(6));
  if (dag < 1 || maand < 1 || jaar < 100) return false;
  return std::chrono::year_month_day(std::chrono::year(jaar),
                                     std::chrono::month(static_cast<unsigned>(maand)),
                                     std::chrono::day(static_cast<unsigned>(dag)))
      .ok();
}

Validatie Geldig(std::string tekst, double getal = 0) {
  return {.Geldig = true, .Tekst = std::move(tekst), .Getal = getal, .ToolTip = {}};
}

Validatie Ongeldig(std::string_view tekst, std::string_view toolTip) {
  return {.Geldig = false, .Tekst = std::string(tekst), .Getal = 0, .ToolTip = toolTip};
}

Validatie ValiDateGetal(std::string_view tekst, const VeldRegel& regel, char decimaal) {
  const std::string_view werk = tekst.empty() ? "0" : tekst;
  if (!IsNumeriek(werk)) return Ongeldig(tekst, GeenGeldigGetal);
  const double getal = std::clamp(LeesGetal(werk), regel.Onder, regel.Boven);
  return Geldig(Opmaak(getal, regel.Weergave, decimaal), LeesGetal(Opmaak(getal, regel.Weergave, '.')));
}

Validatie ValiDateDatum(std::string_view tekst, std::string_view vandaag) {
  const std::string_view werk = Trim(tekst.empty() ? vandaag : tekst);
  if (!IsDatum(werk)) return Ongeldig(tekst, GeenGeldigeDatum);
  return Geldig(std::string(werk));
}

std::string GetalUitleg(const VeldRegel& regel) {
  const std::string bereik =
      "etal van " + Opmaak(regel.Onder, Heel, ',') + " t/m " + Opmaak(regel.Boven, Heel, ',');
  if (regel.Weergave == Heel) return "Geheel g" + bereik + ".";
  return "G" + bereik + (regel.Weergave == Een ? " met 1 decimaal." : " met 2 decimalen.");
}

/// The name of a rule without the index that some have.
constexpr std::string_view Reeksnaam(std::string_view naam) {
  return naam.substr(0, naam.find('('));
}

bool Beschrijft(const VeldRegel& regel, VeldId veld) {
  if (Reeksnaam(regel.Naam) != veld.Naam) return false;
  if (regel.Aantal == 0) return veld.Index == -1;
  if (regel.Naam != veld.Naam)
    return regel.Naam.substr(veld.Naam.size() + 1) == std::to_string(veld.Index) + ")";
  return veld.Index >= regel.Eerste && veld.Index < regel.Eerste + regel.Aantal;
}

template <typename Voorwaarde>
const VeldRegel& Zoek(Voorwaarde voldoet) {
  const auto* const regel = std::find_if(Velden.begin(), Velden.end(), voldoet);
  if (regel == Velden.end()) throw Fout(FoutNummer::OngeldigArgument);
  return *regel;
}

VeldId VolgendeInReeks(const VeldRegel& regel, VeldId veld) {
  const int volgende = veld.Index + 1;
  return {veld.Naam, volgende < regel.Eerste + regel.Aantal ? volgende : regel.Eerste};
}

}  // namespace

std::span<const VeldRegel> VeldRegels() {
  return Velden;
}

const VeldRegel& Regel(std::string_view naam) {
  return Zoek([naam](const VeldRegel& regel) { return regel.Naam == naam; });
}

const VeldRegel& Regel(VeldId veld) {
  return Zoek([veld](const VeldRegel& regel) { return Beschrijft(regel, veld); });
}

Toets MagToets(const VeldRegel& regel, char32_t teken) {
  constexpr char32_t Backspace = 8;
  constexpr char32_t Escape = 27;
  const bool mag = teken == Backspace || teken == Escape ||
                   (regel.Toetsen.empty() ? TypbaarTeken(teken).has_value()
                                          : teken < 0x80 && regel.Toetsen.find(static_cast<char>(teken)) !=
                                                                std::string_view::npos);
  return {.Toegestaan = mag, .Achtergrond = mag ? VeldKleur : FoutKleur};
}

std::optional<VeldId> VolgendVeld(VeldId veld, const std::function<bool(VeldId)>& beschikbaar) {
  const VeldRegel* regel = &Regel(veld);
  if (regel->Aantal > 0) return VolgendeInReeks(*regel, veld);
  for (std::size_t stap = 0; stap < Velden.size(); ++stap) {  // a ring that is hidden whole has no end
    std::string_view laatste;
    for (const std::string_view opvolger : regel->Opvolgers) {
      if (opvolger == veld.Naam) return {};
      if (opvolger.empty()) break;
      if (beschikbaar({opvolger})) return VeldId{opvolger};
      laatste = opvolger;
    }
    if (laatste.empty() || laatste == "lstProject") return {};
    regel = &Regel(VeldId{laatste});
  }
  return {};
}

int MaxTekens(const VeldRegel& regel) {
  if (regel.Soort != VeldSoort::Tekst) return 0;
  if (std::holds_alternative<murvane::Tekst<12> ProjectRec::*>(regel.Record)) return 12;
  const bool tachtig = std::holds_alternative<murvane::Tekst<80> ProjectRec::*>(regel.Record) ||
                       std::holds_alternative<murvane::Tekst<80> FanRec::*>(regel.Record);
  return tachtig ? 80 : 0;
}

std::string RegelUitleg(const VeldRegel& regel) {
  if (regel.AlleenLezen) return "Alleen ter inzage.";
  if (regel.Soort == Datum) return "Datum als dd-mm-jjjj; leeg is vandaag.";
  if (regel.Soort == Numeriek) return GetalUitleg(regel);
  if (regel.Aantal > 0) return "Getal.";  // a band that is not clamped
  const int tekens = MaxTekens(regel);
  return tekens == 0 ? "Tekst." : "Tekst van ten hoogste " + std::to_string(tekens) + " tekens.";
}

Validatie ValiDate(std::string_view tekst, const VeldRegel& regel, std::string_view vandaag, char decimaal) {
  switch (regel.Soort) {
    case Numeriek:
      return ValiDateGetal(tekst, regel, decimaal);
    case Datum:
      return ValiDateDatum(tekst, vandaag);
    case Hoofdletters:
      return Geldig(InHoofdletters(Trim(tekst)));
    case KleineLetters:
      return Geldig(InKleineLetters(Trim(tekst)));
    case VeldSoort::Tekst:
      break;
  }
  return Geldig(std::string(Trim(tekst)));
}

}  // namespace murvane
