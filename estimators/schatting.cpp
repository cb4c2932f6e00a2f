#include "estimators/schatting.h"

#include <algorithm>

#include "basis/fout.h"
#include "calc/rekenkunde.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

constexpr double Geluidssnelheid = 340;  // m/s

template <typename Invoer>
auto& DeelVan(Invoer& invoer, double BekleedInvoer::*lid) {
  return invoer.Bekleed.*lid;
}
template <typename Invoer>
auto& DeelVan(Invoer& invoer, double KwartLambdaInvoer::*lid) {
  return invoer.KwartLambda.*lid;
}
template <typename Invoer>
auto& DeelVan(Invoer& invoer, double PlenumInvoer::*lid) {
  return invoer.Plenum.*lid;
}
template <typename Invoer>
auto& DeelVan(Invoer& invoer, double KanaalwandInvoer::*lid) {
  return invoer.Kanaalwand.*lid;
}

template <typename Invoer>
auto& Waarde(Invoer& invoer, const SchatVeld& veld) {
  return std::visit(
      [&invoer](auto lid) -> auto& { return DeelVan(invoer, lid); }, veld.Waarde);
}

/// ValiDate, with a number too large for a double as one that is invalid.
Validatie Gecontroleerd(std::string_view tekst, const VeldRegel& regel, char decimaal) {
  try {
    return ValiDate(tekst, regel, {}, decimaal);
  } catch (const Fout&) {
    return {.Geldig = false, .Tekst = std::string(tekst), .Getal = 0, .ToolTip = GeenGeldigGetal};
  }
}

}  // namespace

Melding BoxVan(const Weigering& weigering) {
  return {MeldingSoort::Uitroep, "Waarschuwing", std::string(weigering.Melding)};
}

std::string ToonVeld(const SchatInvoer& invoer, const SchatVeld& veld, char decimaal) {
  return Opmaak(Waarde(invoer, veld), veld.Regel.Weergave, decimaal);
}

VeldUitslag VerlaatVeld(SchatInvoer& invoer, const SchatVeld& veld, std::string_view tekst, char decimaal) {
  const Validatie validatie = Gecontroleerd(tekst, veld.Regel, decimaal);
  Waarde(invoer, veld) = validatie.Getal;
  return {.Veld = {veld.Regel.Naam},
          .Geldig = validatie.Geldig,
          .Tekst = validatie.Tekst,
          .Achtergrond = validatie.Geldig ? VeldKleur : FoutKleur,
          .ToolTip = validatie.ToolTip,
          .lblLwA = {}};
}

std::array<std::string, Banden> HeleDecibels(const std::array<double, Banden>& niveaus) {
  std::array<std::string, Banden> uit;
  std::transform(niveaus.begin(), niveaus.end(), uit.begin(),
                 [](double niveau) { return Opmaak(niveau, Formaat::Heel, '.'); });
  return uit;
}

double KanaalDoorsnede(double h, double B) {
  return B == 0 ? (h * Pi / 2000) * h / 2000 : (B / 1000) * h / 1000;
}

double Golflengte(double frequentie) {
  return Deel(Geluidssnelheid, frequentie);
}

}  // namespace murvane
