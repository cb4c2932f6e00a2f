#include "editor/sessie.h"

#include "versie.h"

namespace murvane {

namespace {

/// A type that is none: nothing is checked, nothing is shut off.
constexpr TypeRegel GeenType = {0, "", "", true, true};

/// The calculation type stays: it is the shell's, and what the menu shows.
void WisKop(ProjectRec& kop) {
  kop.ProNaam = kop.Omschrijving = "";
  kop.Toelichting1 = kop.Toelichting2 = kop.Toelichting3 = "";
  kop.ProNum = "";
  kop.MyDate = "";
}

void WisFan(FanRec& fan) {
  fan = {};
  fan.FanNaam = "";
}

void WisRuimte(RuimteRec& ruimte) {
  RuimteRec leeg;
  leeg.RNaam = ruimte.RNaam;  // nothing in the program feeds these two
  leeg.RVolume = ruimte.RVolume;
  ruimte = leeg;
}

void WisProject(Project& project) {
  project.ElementCount = 0;
  for (int n = 1; n <= MaxElementen; ++n) LeegMaken(project, n);
  WisFan(project.Fan);
  WisKop(project.Kop);
  project.FanPrognose = fanbron::Lijst;
  WisRuimte(project.Ruimte);
  project.VrijVeld = 0;
}

void ZetOpen(Sessie& sessie, Elementlijst& lijst, std::string_view naam) {
  sessie.Toestand = Toestand::Open;
  sessie.Bestand = naam;
  lijst = {};
}

}  // namespace

bool MenuAan(std::string_view naam, Toestand toestand) {
  for (const MenuRegel& regel : MenuRegels) {
    if (regel.Naam != naam) continue;
    if (toestand == Toestand::GeenProject) return regel.GeenProject;
    return toestand == Toestand::Berekend ? regel.Berekend : regel.Open;
  }
  throw Fout(FoutNummer::OngeldigArgument);
}

bool KnopAan(const Toolbarknop& knop, const Elementlijst& lijst) {
  return lijst.Aangeklikt && lijst.Actief == knop.Bij;
}

const TypeRegel& TypeVan(std::int16_t rekenType) {
  for (const TypeRegel& regel : TypeRegels) {
    if (regel.RekenType == rekenType) return regel;
  }
  return GeenType;
}

StatusBalk StatusVan(const Sessie& sessie, const Project& project) {
  return {sessie.Bestand, sessie.Toestand == Toestand::Berekend ? BeeldBerekend : 0,
          std::string(TypeVan(project.Kop.RekenType).Paneel2),
          ProjectOpen(sessie) ? AantalTekst(project.ElementCount) : std::string(GeenInvoer)};
}

std::string VensterTitel() {
  return "versie " + std::to_string(VersieHoofd) + "." + std::to_string(VersieSub) + " - " +
         std::string(ProgrammaTitel);
}

Sessie Form_Load(Project& project) {
  project.Kop.RekenType = rekentype::Installatiegeluid;
  return {};
}

void Settings(Sessie& sessie) {
  sessie.Toestand = Toestand::GeenProject;
  sessie.Bestand = GeenBestand;
}

Gevolg Reset(Sessie& sessie, Elementlijst& lijst, Project& project) {
  WisProject(project);
  lijst = {};
  Gevolg gevolg = Berekend(sessie, vlag::Gewijzigd, AanroepNummer("Reset"));
  gevolg.WisRapport = true;
  return gevolg;
}

void ZetNieuw(Sessie& sessie, Elementlijst& lijst) {
  ZetOpen(sessie, lijst, NieuweNaam);
}

Gevolg ZetGeopend(Sessie& sessie, Elementlijst& lijst, std::string_view naam) {
  ZetOpen(sessie, lijst, naam);
  return Berekend(sessie, vlag::Gewijzigd, AanroepNummer("mnuOpen_Click"));
}

Gevolg SluitProject(Sessie& sessie, Elementlijst& lijst, Project& project) {
  const Gevolg gevolg = Reset(sessie, lijst, project);
  Settings(sessie);
  return gevolg;
}

Gevolg Berekend(Sessie& sessie, std::int16_t waarde, std::string_view nummer) {
  if (waarde != vlag::Gewijzigd && waarde != vlag::Berekend) return {};
  sessie.Vlag = waarde;
  sessie.Aanroep = nummer;
  if (ProjectOpen(sessie)) sessie.Toestand = waarde == vlag::Berekend ? Toestand::Berekend : Toestand::Open;
  return {.SluitVensters = waarde == vlag::Gewijzigd};
}

Gevolg KiesRekenType(Sessie& sessie, Project& project, std::int16_t rekenType) {
  if (TypeVan(rekenType).Menu.empty()) throw Fout(FoutNummer::OngeldigArgument);
  project.Kop.RekenType = rekenType;
  return Berekend(sessie, vlag::Gewijzigd, AanroepNummer("VrVldSet"));
}

}  // namespace murvane
