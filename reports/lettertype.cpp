#include "reports/lettertype.h"

#include <algorithm>
#include <span>

#include "basis/getal.h"
#include "basis/tekst.h"

namespace murvane {

namespace {

void Vul(Keuzelijst& lijst, std::span<const std::string_view> rijen) {
  lijst = {};
  lijst.Rijen.assign(rijen.begin(), rijen.end());
}

/// Selects a row; one that the list does not have selects nothing.
void Kies(Keuzelijst& lijst, int rij) {
  const bool bestaat = rij >= 0 && rij < static_cast<int>(lijst.Rijen.size());
  lijst.Rij = bestaat ? rij : -1;
  lijst.Tekst = bestaat ? lijst.Rijen[static_cast<std::size_t>(rij)] : std::string();
}

int RijVanGrootte(std::int16_t grootte) {
  switch (grootte) {
    case 6:
      return 0;
    case 8:
      return 1;
    case 10:
      return 2;
    case 12:
      return 3;
    default:
      return -1;
  }
}

std::int16_t Geheel(const std::string& tekst) {
  const double getal = RondEven(LeesGetal(tekst));
  if (getal < -32768 || getal > 32767) throw Fout(FoutNummer::Overloop);
  return static_cast<std::int16_t>(getal);
}

std::int16_t StijlVan(const Keuzelijst& lijst) {
  return static_cast<std::int16_t>(lijst.Rij + 1);
}

}  // namespace

DrukInstelling StandaardDrukInstelling() {
  return {std::string(StandaardLettertype), 12, stijl::Vet, stijl::Cursief, stijl::Cursief};
}

void VulAan(DrukInstelling& instelling) {
  const DrukInstelling standaard = StandaardDrukInstelling();
  if (instelling.LetterGrootte == 0) instelling.LetterGrootte = standaard.LetterGrootte;
  if (instelling.LettertypeNaam.empty()) instelling.LettertypeNaam = standaard.LettertypeNaam;
  if (instelling.KopStijl == 0) instelling.KopStijl = standaard.KopStijl;
  if (instelling.BlokBovenStijl == 0) instelling.BlokBovenStijl = standaard.BlokBovenStijl;
  if (instelling.BlokOnderStijl == 0) instelling.BlokOnderStijl = standaard.BlokOnderStijl;
}

std::optional<Fout> LaadVenster(LettertypeVenster& venster, DrukInstelling& instelling,
                                const std::function<std::vector<std::string>()>& fonts) {
  VulAan(instelling);
  venster = {};
  std::optional<Fout> fout;
  try {
    venster.cboLtype.Rijen = fonts();
  } catch (...) {
    fout = HuidigeFout();
    instelling.LettertypeNaam = StandaardLettertype;
    venster.cboLtype.Rijen = {instelling.LettertypeNaam};
  }
  Vul(venster.cboLgrootte, LetterGrootten);
  for (Keuzelijst* lijst : {&venster.cboKop, &venster.cboBody1, &venster.cboBody2}) Vul(*lijst, Stijlnamen);
  LoadPropertySettings(venster, instelling);
  return fout;
}

void LoadPropertySettings(LettertypeVenster& venster, const DrukInstelling& instelling) {
  const auto& fonts = venster.cboLtype.Rijen;
  const auto plaats = std::find(fonts.begin(), fonts.end(), instelling.LettertypeNaam);
  venster.cboLtype.Rij = plaats == fonts.end() ? -1 : static_cast<int>(plaats - fonts.begin());
  venster.cboLtype.Tekst = instelling.LettertypeNaam;
  Kies(venster.cboLgrootte, RijVanGrootte(instelling.LetterGrootte));
  Kies(venster.cboKop, instelling.KopStijl - 1);
  Kies(venster.cboBody1, instelling.BlokBovenStijl - 1);
  Kies(venster.cboBody2, instelling.BlokOnderStijl - 1);
}

void NeemOver(const LettertypeVenster& venster, DrukInstelling& instelling) {
  instelling.LetterGrootte = Geheel(venster.cboLgrootte.Tekst);
  instelling.LettertypeNaam = venster.cboLtype.Tekst;
  instelling.KopStijl = StijlVan(venster.cboKop);
  instelling.BlokBovenStijl = StijlVan(venster.cboBody1);
  instelling.BlokOnderStijl = StijlVan(venster.cboBody2);
}

void ZetStandaard(LettertypeVenster& venster, DrukInstelling& instelling) {
  instelling = StandaardDrukInstelling();
  LoadPropertySettings(venster, instelling);
}

}  // namespace murvane
