#include "reports/grafiek.h"

#include <algorithm>
#include <utility>

#include "basis/fout.h"
#include "basis/getal.h"
#include "calc/spectrum.h"

namespace murvane {

namespace {

/// A level as the whole number that a bar shows; below 0 there is no bar.
std::int16_t Afgerond(double niveau) {
  const double getal = RondEven(niveau < 0 ? 0 : niveau);
  if (!(getal <= 32767)) throw Fout(FoutNummer::Overloop);
  return static_cast<std::int16_t>(getal);
}

/// The steps that both scales share: the top of the axis is the ten at or above the value.
bool ZetTop(VerticaleAs& as, double x) {
  for (const int top : {50, 60, 70, 80}) {
    if (x > top) continue;
    as.Maximum = top;
    as.Verdelingen = top / 10;
    return true;
  }
  as.Maximum = 100;
  return false;
}

void SchaalNiveau(VerticaleAs& as, double x) {
  as.Minimum = 0;
  if (ZetTop(as, x)) return;
  as.Minimum = 20;
  as.Verdelingen = 8;
}

/// The minimum stays as the last chart set it.
void SchaalOverspraak(VerticaleAs& as, double x) {
  if (!ZetTop(as, x)) as.Verdelingen = 10;
}

/// A sound pressure level as the chart shows it: its bands A-weighted, its sum as it is.
Spectrum Gewogen(const Spectrum& lp) {
  Spectrum uit = lp;
  for (std::size_t b = 0; b < Banden; ++b) uit[b] += AWeging[b];
  return uit;
}

/// The chosen result; another choice has no levels and keeps the title of the chart before.
Spectrum GekozenNiveau(const Resultaten& resultaten, std::int16_t kiesGrafiek, Grafiek& grafiek) {
  switch (kiesGrafiek) {
    case kiesgrafiek::EenMeter:
      grafiek.Titel = {"Geluidsdrukniveau op 1 meter van rooster/kanaalwand (afgerond op gehele decibellen)"};
      return Gewogen(resultaten.LpEenMeter);
    case kiesgrafiek::Galmveld:
      grafiek.Titel = {"Geluidsdrukniveau in galmveld ruimte (afgerond op gehele decibellen)"};
      return Gewogen(resultaten.LpGalmveld);
    default:
      return {};
  }
}

std::string NummerEnNaam(const ProjectRec& kop) {
  return std::string(kop.ProNum.Getrimd()).append(" - ").append(kop.ProNaam.Getrimd());
}

void VulNiveau(const Project& project, const Resultaten& resultaten, std::int16_t kiesGrafiek,
               Grafiek& grafiek) {
  grafiek.As.Titel = "dB(A)";
  const Spectrum totaal = GekozenNiveau(resultaten, kiesGrafiek, grafiek);
  SchaalNiveau(grafiek.As, totaal[SomPlaats]);
  grafiek.Kolommen = 3;
  grafiek.Rijen = 8;
  grafiek.Legenda = true;
  for (std::size_t r = 0; r < 8; ++r) {
    const double basis = totaal[r] - resultaten.LwEind[r];
    grafiek.Waarden[0][r] = Afgerond(totaal[r]);
    grafiek.Waarden[1][r] = Afgerond(basis + resultaten.FanNaDemping[r]);
    grafiek.Waarden[2][r] = Afgerond(basis + resultaten.SysteemGeluid[r]);
  }
  grafiek.Voetnoot = "  " + NummerEnNaam(project.Kop) + "  ";
  grafiek.VoetnootTerugloop = true;
}

void VulOverspraak(const Project& project, const Resultaten& resultaten, Grafiek& grafiek) {
  const Spectrum& demping = resultaten.OverspraakDemping;
  grafiek.As.Titel = "dB";
  grafiek.Titel = {"Overspraakdemping Lpz - Lpo  (afgerond op gehele decibellen)"};
  SchaalOverspraak(grafiek.As, std::max(0.0, *std::max_element(demping.begin(), demping.end() - 1)));
  grafiek.Kolommen = 1;
  grafiek.Rijen = 7;
  grafiek.Legenda = false;
  for (std::size_t r = 0; r < 7; ++r) grafiek.Waarden[0][r] = Afgerond(demping[r]);
  grafiek.Voetnoot = NummerEnNaam(project.Kop);
}

}  // namespace

void Grafiek2(const Project& project, const Resultaten& resultaten, std::int16_t kiesGrafiek,
              Grafiek& grafiek) {
  Grafiek nieuw = grafiek;
  switch (project.Kop.RekenType) {
    case rekentype::Installatiegeluid:
    case rekentype::Geluidsuitstraling:
      VulNiveau(project, resultaten, kiesGrafiek, nieuw);
      break;
    case rekentype::Overspraak:
      VulOverspraak(project, resultaten, nieuw);
      break;
    default:
      return;
  }
  const ProjectRec& kop = project.Kop;
  for (const Tekst<80>* regel : {&kop.Omschrijving, &kop.Toelichting1, &kop.Toelichting2, &kop.Toelichting3})
    nieuw.Titel.emplace_back(regel->Heel());
  nieuw.Labels = LabelOpmaak{};
  grafiek = std::move(nieuw);
}

}  // namespace murvane
