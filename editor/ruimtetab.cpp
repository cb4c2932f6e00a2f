#include "editor/ruimtetab.h"

#include <algorithm>
#include <array>

#include "basis/fout.h"
#include "editor/elementpagina.h"

namespace murvane {

namespace {

constexpr std::string_view VrVldBerekend = "28";

struct ZichtRegel {
  std::int16_t RekenType;
  bool Vrij;
  RuimteZicht Zicht;
};

// clang-format off
constexpr auto ZichtRegels = std::to_array<ZichtRegel>({
    //                                        L      B      H      T      NR     DI     N      wall   ceil.  box
    {rekentype::Installatiegeluid, true,   {false, false, false, false, false, true,  false, false, false, true}},
    {rekentype::Installatiegeluid, false,  {true,  true,  true,  true,  true,  true,  true,  false, false, true}},
    {rekentype::Geluidsuitstraling, true,  {false, false, false, false, false, true,  false, true,  false, true}},
    {rekentype::Geluidsuitstraling, false, {true,  true,  true,  true,  true,  true,  false, true,  true,  true}},
    {rekentype::Overspraak, true,          {false, false, false, false, false, true,  false, false, false, false}},
    {rekentype::Overspraak, false,         {true,  true,  true,  true,  true,  true,  true,  false, false, false}},
});
// clang-format on

/// One of the two choices: where its name and bands are kept and what stands there without a choice.
struct Keuze {
  std::string RuimteRec::*Naam;
  Spectrum RuimteRec::*Waarden;
  std::string_view Veld;
  std::string (*Geen)();
};

constexpr Keuze Wand = {&RuimteRec::RkanaalNaam, &RuimteRec::Rkanaal, "txtRkanaal", GeenKanaalwandTekst};
constexpr Keuze Plafond = {&RuimteRec::RplafondNaam, &RuimteRec::Rplafond, "txtRplafond", GeenPlafondTekst};

std::vector<VeldTekst> BandTeksten(const Project& project, const Keuze& keuze, char decimaal) {
  std::vector<VeldTekst> uit;
  for (int band = 0; band < Banden; ++band) {
    const VeldId veld = {keuze.Veld, band};
    uit.push_back({veld, HerstelTekst(project, 0, veld, decimaal)});
  }
  return uit;
}

KeuzeUitslag Kies(Project& project, const Keuze& keuze, int rij, const SpectrumCatalogus& catalogus,
                  char decimaal) {
  if (rij < 0) return {};
  if (rij >= catalogus.Aantal) throw Fout(FoutNummer::IndexBuitenBereik);
  const SpectrumRec& gekozen = catalogus.Records[static_cast<std::size_t>(rij) + 1];
  std::string& naam = project.Ruimte.*keuze.Naam;
  const bool anders = gekozen.SpecNaam.Getrimd() != Trim(naam);
  naam = gekozen.SpecNaam.Heel();
  std::copy_n(gekozen.SpecWaarde.begin(), Banden, (project.Ruimte.*keuze.Waarden).begin());
  return {.Tekst = {},
          .Zet = BandTeksten(project, keuze, decimaal),
          .Berekend = anders ? WandBerekend : std::string_view{}};
}

KeuzeUitslag Wijzig(const Keuze& keuze, std::string_view tekst) {
  KeuzeUitslag uit;
  if (tekst.empty()) uit.Tekst = keuze.Geen();
  return uit;
}

std::string KeuzeTekst(const RuimteRec& ruimte, const Keuze& keuze) {
  const std::string& naam = ruimte.*keuze.Naam;
  return Trim(naam).empty() ? keuze.Geen() : naam;
}

/// Only a choice gives a wall or a ceiling its name, as only a choice gives it its bands.
KeuzeUitslag ZetTerug(const RuimteRec& ruimte, const Keuze& keuze, std::string_view tekst) {
  KeuzeUitslag uit;
  const std::string bewaard = KeuzeTekst(ruimte, keuze);
  if (Trim(tekst) != Trim(bewaard)) uit.Tekst = bewaard;
  return uit;
}

KeuzeUitslag Verlaat(Project& project, const Keuze& keuze, std::string_view tekst, char decimaal) {
  if (!Trim(tekst).empty()) return ZetTerug(project.Ruimte, keuze, tekst);
  KeuzeUitslag uit;
  uit.Tekst = project.Ruimte.*keuze.Naam = keuze.Geen();
  std::fill_n((project.Ruimte.*keuze.Waarden).begin(), Banden, 0);
  uit.Zet = BandTeksten(project, keuze, decimaal);
  return uit;
}

}  // namespace

RuimteZicht RuimteZichtVan(std::int16_t rekenType, std::int16_t vrijVeld) {
  const bool vrij = vrijVeld != 0;
  const auto* const regel = std::find_if(ZichtRegels.begin(), ZichtRegels.end(), [=](const ZichtRegel& een) {
    return een.RekenType == rekenType && een.Vrij == vrij;
  });
  if (regel == ZichtRegels.end()) return RuimteZichtVan(rekentype::Installatiegeluid, vrijVeld);
  return regel->Zicht;
}

RuimteUitslag VrVldSet(const Project& project) {
  RuimteUitslag uit{RuimteZichtVan(project.Kop.RekenType, project.VrijVeld), {}, VrVldBerekend};
  if (project.Kop.RekenType == rekentype::Geluidsuitstraling && project.VrijVeld == 0)
    uit.Zet.push_back({{"txtRAantal"}, ""});
  return uit;
}

RuimteUitslag VrijVeld_Click(Project& project, bool aan) {
  project.VrijVeld = aan ? 1 : 0;
  return VrVldSet(project);
}

KeuzeUitslag cmbRkanaal_Click(Project& project, int rij, const SpectrumCatalogus& CatRduct, char decimaal) {
  return Kies(project, Wand, rij, CatRduct, decimaal);
}

KeuzeUitslag cmbRplafond_Click(Project& project, int rij, const SpectrumCatalogus& CatRplaf, char decimaal) {
  return Kies(project, Plafond, rij, CatRplaf, decimaal);
}

KeuzeUitslag cmbRkanaal_Change(std::string_view tekst) {
  return Wijzig(Wand, tekst);
}

KeuzeUitslag cmbRplafond_Change(std::string_view tekst) {
  return Wijzig(Plafond, tekst);
}

KeuzeUitslag cmbRkanaal_LostFocus(Project& project, std::string_view tekst, char decimaal) {
  return Verlaat(project, Wand, tekst, decimaal);
}

KeuzeUitslag cmbRplafond_LostFocus(Project& project, std::string_view tekst, char decimaal) {
  return Verlaat(project, Plafond, tekst, decimaal);
}

std::string RkanaalTekst(const RuimteRec& ruimte) {
  return KeuzeTekst(ruimte, Wand);
}

std::string RplafondTekst(const RuimteRec& ruimte) {
  return KeuzeTekst(ruimte, Plafond);
}

}  // namespace murvane
