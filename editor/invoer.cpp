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

/// The limits of fields of plain text have no effect; those of the band fields are what the labels promise.
constexpr auto Velden = std::to_array<VeldRegel>({
    // fan
    {"txtSpectrum", VeldSoort::Tekst, 0, 0, Heel},
    {"txtLw", VeldSoort::Tekst, 0, 150, Een},
    {"txtfan(0)", Numeriek, 0, 150, Twee},
    {"txtfan(1)", Numeriek, 0, 100000, Heel},
    {"txtfan(2)", Numeriek, 0, 100000, Heel},
    {"txtfan(3)", Numeriek, 0, 50, Heel},
    {"txtfan(4)", Numeriek, 0, 100000, Heel},
    // ducts and bends
    {"txtHoogte", Numeriek, 0, 5000, Heel},
    {"txtBreedte", Numeriek, 0, 5000, Heel},
    {"txtLengte", Numeriek, 0, 100, Een},
    {"txtDebiet", Numeriek, 0, 5000, Twee},
    {"txtdemp", Numeriek, 0, 150, Een},
    // branches
    {"txtHAftak", Numeriek, 0, 5000, Heel},
    {"txtBAftak", Numeriek, 0, 5000, Heel},
    {"txtHHoofd", Numeriek, 0, 5000, Heel},
    {"txtBHoofd", Numeriek, 0, 5000, Heel},
    {"txtHDoor", Numeriek, 0, 5000, Heel},
    {"txtBDoor", Numeriek, 0, 5000, Heel},
    {"txtQAftak", Numeriek, 0, 5000, Twee},
    {"txtRAftak", Numeriek, 0, 1, Twee},
    // section changes
    {"txtH1Doorsnee", Numeriek, 0, 5000, Heel},
    {"txtB1Doorsnee", Numeriek, 0, 5000, Heel},
    {"txtH2Doorsnee", Numeriek, 0, 5000, Heel},
    {"txtB2Doorsnee", Numeriek, 0, 5000, Heel},
    {"txtLDoorsnee", Numeriek, 0, 100, Twee},
    // dampers, outlets, catalogue elements
    {"txtSnetto", Numeriek, 0, 5000, Heel},
    {"txtWeerstand", Numeriek, 0, 5000, Heel},
    {"txtruis", VeldSoort::Tekst, 0, 150, Een},
    // room
    {"txtRLengte", Numeriek, 0, 300, Een},
    {"txtRBreedte", Numeriek, 0, 300, Een},
    {"txtRHoogte", Numeriek, 0, 10, Een},
    {"txtRNagalm", Numeriek, 0, 10, Twee},
    {"txtRNR", Numeriek, 0, 150, Heel},
    {"txtRDI", Numeriek, 1, 8, Heel},
    {"txtRAantal", Numeriek, 0, 50, Heel},
    {"txtRkanaal", VeldSoort::Tekst, 0, 150, Een},
    {"txtRplafond", VeldSoort::Tekst, 0, 150, Een},
    // project
    {"txtProNaam", VeldSoort::Tekst, 0, 0, Heel},
    {"txtProNum", VeldSoort::Tekst, 0, 0, Heel},
    {"txtMyDate", Datum, -1e99, 1e99, Heel},
    {"txtOmschrijving", VeldSoort::Tekst, 0, 0, Heel},
    {"txtToelichting1", VeldSoort::Tekst, 0, 0, Heel},
    {"txtToelichting2", VeldSoort::Tekst, 0, 0, Heel},
    {"txtToelichting3", VeldSoort::Tekst, 0, 0, Heel},
});

constexpr int Code(char c) {
  return static_cast<unsigned char>(c);
}

/// The distance of the small letter behind a capital of the code page; 0 for any other character.
constexpr int AfstandTotKlein(int c) {
  if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return 0x20;
  if (c == 0x8A || c == 0x8C || c == 0x8E) return 0x10;  // Š Œ Ž
  return c == 0x9F ? 0x60 : 0;                           // Ÿ
}

constexpr char NaarKlein(char c) {
  return static_cast<char>(Code(c) + AfstandTotKlein(Code(c)));
}

constexpr char NaarGroot(char c) {
  for (const int afstand : {0x20, 0x10, 0x60}) {
    if (AfstandTotKlein(Code(c) - afstand) == afstand) return static_cast<char>(Code(c) - afstand);
  }
  return c;
}

std::string Omgezet(std::string_view tekst, char (*zet)(char)) {
  std::string uit(tekst);
  std::transform(uit.begin(), uit.end(), uit.begin(), zet);
  return uit;
}

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
  if (!IsNumeriek(werk)) return Ongeldig(tekst, "Voer geldig getal in");
  const double getal = std::clamp(LeesGetal(werk), regel.Onder, regel.Boven);
  return Geldig(Opmaak(getal, regel.Weergave, decimaal), LeesGetal(Opmaak(getal, regel.Weergave, '.')));
}

Validatie ValiDateDatum(std::string_view tekst, std::string_view vandaag) {
  const std::string_view werk = Trim(tekst.empty() ? vandaag : tekst);
  if (!IsDatum(werk)) return Ongeldig(tekst, "Voer geldige datum in (dd-mm-yyyy)");
  return Geldig(std::string(werk));
}

}  // namespace

const VeldRegel& Regel(std::string_view naam) {
  const auto* const regel =
      std::find_if(Velden.begin(), Velden.end(), [naam](const VeldRegel& veld) { return veld.Naam == naam; });
  if (regel == Velden.end()) throw Fout(FoutNummer::OngeldigArgument);
  return *regel;
}

Validatie ValiDate(std::string_view tekst, const VeldRegel& regel, std::string_view vandaag, char decimaal) {
  switch (regel.Soort) {
    case Numeriek:
      return ValiDateGetal(tekst, regel, decimaal);
    case Datum:
      return ValiDateDatum(tekst, vandaag);
    case Hoofdletters:
      return Geldig(Omgezet(Trim(tekst), NaarGroot));
    case KleineLetters:
      return Geldig(Omgezet(Trim(tekst), NaarKlein));
    case VeldSoort::Tekst:
      break;
  }
  return Geldig(std::string(Trim(tekst)));
}

}  // namespace murvane
