#include "editor/fantab.h"

#include <algorithm>
#include <utility>

#include "basis/fout.h"
#include "basis/tekst.h"
#include "calc/prognose.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

constexpr int PrognoseFocusTab = 1;

Melding Waarschuwing(std::string_view tekst) {
  return {MeldingSoort::Uitroep, "Waarschuwing", std::string(tekst)};
}

FanUitslag Begin(const Project& project) {
  FanUitslag uit;
  uit.Zicht = FanZichtVan(project);
  return uit;
}

/// Another source gives another run, also where no text on screen changes.
FanUitslag KiesBron(Project& project, std::int16_t bron) {
  const bool anders = project.FanPrognose != bron;
  project.FanPrognose = bron;
  FanUitslag uit = Begin(project);
  uit.Gewijzigd = anders;
  return uit;
}

void MaakLeeg(FanUitslag& uit) {
  uit.Zet.push_back({{"txtSpectrum"}, ""});
  for (int band = 0; band < Banden; ++band) uit.Zet.push_back({{"txtLw", band}, "0"});
  uit.lblLwA = "";
}

void ToonLw(FanUitslag& uit, const Project& project, char decimaal) {
  for (int band = 0; band < Banden; ++band)
    uit.Zet.push_back({{"txtLw", band}, HerstelTekst(project, 0, {"txtLw", band}, decimaal)});
  uit.lblLwA = LwATekst(project.Fan, decimaal);
}

void ToonNaam(FanUitslag& uit, const Project& project) {
  uit.Zet.push_back({{"txtSpectrum"}, std::string(project.Fan.FanNaam.Getrimd())});
}

bool HeeftType(const FanRec& fan) {
  return fan.FanType >= fantype::Axiaal && fan.FanType <= fantype::CentrifugaalAchterwaarts;
}

/// Why the boxes cannot be taken over; the flow and the pressure come before the type, and a box that holds
/// no number at all comes last, as it has turned red already.
bool Weiger(FanUitslag& uit, const FanRec& vakken) {
  if (vakken.FanDebiet == 0 || vakken.FanDruk == 0) {
    uit.Box = Waarschuwing("Geen geldende waarde ingevuld");
    uit.Focus = VeldId{"txtfan", vakken.FanDebiet == 0 ? 0 : 1};
  } else if (!HeeftType(vakken)) {
    uit.Box = Waarschuwing("Geen ventilatortype geselecteerd");
  } else {
    const auto ongeldig = std::find_if(uit.Velden.begin(), uit.Velden.end(),
                                       [](const VeldUitslag& veld) { return !veld.Geldig; });
    if (ongeldig != uit.Velden.end()) uit.Focus = ongeldig->Veld;
  }
  return uit.Box || uit.Focus;
}

/// The shaft power at an efficiency of 70 %, in whole watts; a fan that small still draws one.
double Asvermogen(const FanRec& fan) {
  const double vermogen = LeesGetal(Opmaak(fan.FanDebiet * fan.FanDruk / 0.7, Formaat::Heel, '.'));
  return std::max(vermogen, 1.0);
}

std::string_view TypeNaam(std::int16_t fanType) {
  switch (fanType) {
    case fantype::Axiaal:
      return "Axiaal, ";
    case fantype::CentrifugaalVoorwaarts:
      return "Centrifugaal voorwaarts, ";
    default:
      return "Centrifugaal achterwaarts, ";
  }
}

void VulNaamAan(FanRec& fan, double getal, std::string_view eenheid, char decimaal) {
  std::string naam(TrimRechts(fan.FanNaam.Heel()));
  naam.append(" ").append(StandaardTekst(getal, decimaal)).append(eenheid);
  fan.FanNaam = naam;
}

void Benoem(FanRec& fan, char decimaal) {
  fan.FanNaam = TypeNaam(fan.FanType);
  VulNaamAan(fan, fan.FanDebiet, " m³/s,"_cp, decimaal);
  VulNaamAan(fan, fan.FanDruk, " Pa,", decimaal);
  VulNaamAan(fan, fan.FanToeren, " toeren,", decimaal);
  VulNaamAan(fan, fan.FanVermogen, " W", decimaal);
}

/// The five boxes, checked into a project that is not the user's yet.
std::vector<VeldUitslag> LeesVakken(Project& proef, const std::array<std::string, FanVakken>& txtfan,
                                    char decimaal) {
  std::vector<VeldUitslag> uit;
  for (int i = 0; i < FanVakken; ++i) {
    const std::string& tekst = txtfan[static_cast<std::size_t>(i)];
    uit.push_back(VerlaatVeld(proef, 0, {"txtfan", i}, tekst, {}, decimaal));
  }
  return uit;
}

}  // namespace

FanZicht FanZichtVan(const Project& project) {
  const bool prognose = project.FanPrognose == fanbron::Prognose;
  const std::int16_t type = project.Fan.FanType;
  return {.optInvoer = !prognose,
          .optPrognose = prognose,
          .optAxiaal = type == fantype::Axiaal,
          .optCentriVoor = type == fantype::CentrifugaalVoorwaarts,
          .optCentriAchter = type == fantype::CentrifugaalAchterwaarts,
          .lstFan = !prognose,
          .frameFan = prognose};
}

FanUitslag cmdFanOK_Click(Project& project, const std::array<std::string, FanVakken>& txtfan, char decimaal) {
  FanUitslag uit = Begin(project);
  Project proef;
  proef.Fan = project.Fan;
  uit.Velden = LeesVakken(proef, txtfan, decimaal);
  FanRec& fan = proef.Fan;
  if (Weiger(uit, fan)) return uit;
  if (fan.FanVermogen == 0) {
    fan.FanVermogen = Asvermogen(fan);
    uit.Zet.push_back({{"txtfan", 4}, HerstelTekst(proef, 0, {"txtfan", 4}, decimaal)});
  }
  BerekenPrognose(fan);
  Benoem(fan, decimaal);
  project.Fan = fan;
  ToonLw(uit, project, decimaal);
  ToonNaam(uit, project);
  uit.OpenEersteElement = project.ElementCount > 0;
  return uit;
}

FanUitslag FanTypeGekozen(Project& project, std::int16_t fanType) {
  project.Fan.FanType = fanType;
  FanUitslag uit = Begin(project);
  MaakLeeg(uit);
  return uit;
}

FanUitslag lstFan_Click(Project& project, int rij, const SpectrumCatalogus& CatFans, int& laatsteRij,
                        char decimaal) {
  FanUitslag uit = Begin(project);
  if (rij < 0) {
    uit.Box = Waarschuwing("Geen ventilatoren aanwezig");
    return uit;
  }
  if (rij >= CatFans.Aantal) {
    uit.KiesRij = laatsteRij - 1;
    return uit;
  }
  const SpectrumRec& fan = CatFans.Records[static_cast<std::size_t>(rij) + 1];
  const double som = EnergetischeSom(fan.SpecWaarde, true);
  laatsteRij = rij + 1;
  project.Fan.FanNaam = fan.SpecNaam;
  std::copy_n(fan.SpecWaarde.begin(), Banden, project.Fan.Lw.begin());
  project.Fan.Lw[SomPlaats] = som;
  ToonLw(uit, project, decimaal);
  ToonNaam(uit, project);
  return uit;
}

FanUitslag optInvoer_Click(Project& project, const SpectrumCatalogus& CatFans, int& laatsteRij,
                           char decimaal) {
  FanUitslag uit = KiesBron(project, fanbron::Lijst);
  MaakLeeg(uit);
  if (laatsteRij < 1 || laatsteRij > CatFans.Aantal) return uit;
  FanUitslag keuze = lstFan_Click(project, laatsteRij - 1, CatFans, laatsteRij, decimaal);
  uit.Zet.insert(uit.Zet.end(), keuze.Zet.begin(), keuze.Zet.end());
  uit.lblLwA = std::move(keuze.lblLwA);
  uit.KiesRij = laatsteRij - 1;
  return uit;
}

FanUitslag optPrognose_Click(Project& project, int tab) {
  FanUitslag uit = KiesBron(project, fanbron::Prognose);
  if (tab == PrognoseFocusTab) uit.Focus = VeldId{"txtfan", 0};
  return uit;
}

FanUitslag cmdFanCancel_Click(Project& project, const SpectrumCatalogus& CatFans, int& laatsteRij,
                              char decimaal) {
  return optInvoer_Click(project, CatFans, laatsteRij, decimaal);  // which empties lblLwA first, too
}

}  // namespace murvane
