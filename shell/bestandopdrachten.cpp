#include "shell/bestandopdrachten.h"

#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "basis/bestand.h"
#include "project/projectfile.h"
#include "shell/startup.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view OpenFilter = "Bestand MurVane (*.mrv)|*.mrv";
constexpr std::string_view OpslaanFilter = "Bestanden MurVane (*.mrv)|*.mrv";

BestandVraag Vraag(const Programma& programma, std::string_view titel, std::string_view filter) {
  BestandVraag vraag;
  vraag.Titel = titel;
  vraag.Filter = filter;
  vraag.BeginMap = programma.DataDir;
  vraag.Naam = programma.DialoogNaam;
  vraag.MapBlijft = true;
  return vraag;
}

void VraagOpenNaam(Programma& programma, Dialogen& dialogen) {
  BestandVraag vraag = Vraag(programma, "Openen", OpenFilter);
  vraag.BestandMoetBestaan = true;
  programma.DialoogNaam = dialogen.OpenDialoog(vraag);
}

void VraagOpslaanNaam(Programma& programma, Dialogen& dialogen) {
  BestandVraag vraag = Vraag(programma, "Opslaan als", OpslaanFilter);
  vraag.OverschrijfVraag = true;
  programma.DialoogNaam = dialogen.OpslaanDialoog(vraag);
}

/// The exact test: a name in capitals is refused.
void EisProjectNaam(const fs::path& naam) {
  if (!PadTekst(naam).ends_with("mrv")) throw Fout(FoutNummer::OngeldigeBestandsnaam);
}

/// One attempt to open; the text for panel 1, empty when the dialog gave no name.
std::string OpenVolgende(Programma& programma, Dialogen& dialogen) {
  if (!programma.OpenBestand.empty()) {
    std::string naam = Openen(programma, dialogen, programma.OpenBestand);
    programma.OpenBestand.clear();
    return naam;
  }
  VraagOpenNaam(programma, dialogen);
  if (programma.DialoogNaam.empty()) return {};
  EisProjectNaam(programma.DialoogNaam);
  return Openen(programma, dialogen, programma.DialoogNaam);
}

void Bewaar(const Programma& programma, Dialogen& dialogen) {
  if (programma.DialoogNaam.empty()) return;
  EisProjectNaam(programma.DialoogNaam);
  const Zandloper zandloper(dialogen);
  SchrijfProject(programma.Project, programma.DialoogNaam);
}

void NaarDataDir(const Programma& programma) {
  std::error_code code;
  fs::current_path(programma.DataDir, code);
  if (code == std::errc::permission_denied) throw Fout(FoutNummer::GeenToestemming);
  if (code) throw Fout(FoutNummer::PadNietGevonden);
}

/// A relative name means another file once the current directory has changed.
fs::path Volledig(const fs::path& pad) {
  std::error_code code;
  fs::path volledig = fs::absolute(pad, code);
  return code ? pad : volledig;
}

bool IsGeannuleerd(const Fout& fout) {
  return fout.Nummer() == FoutNummer::DialoogGeannuleerd;
}

}  // namespace

void mnuNieuw_Click(Programma& programma) {
  programma.Project.Kop.MyDate = programma.Vandaag;
  programma.DialoogNaam.clear();
}

std::string Openen(Programma& programma, Dialogen& dialogen, const fs::path& pad) {
  const Zandloper zandloper(dialogen);
  Project gelezen = LeesProject(pad);
  fs::path naam = Volledig(pad);
  std::string panel1 = PadTekst(naam.filename());
  programma.Project = std::move(gelezen);
  programma.DialoogNaam = std::move(naam);
  return panel1;
}

OpenUitkomst mnuOpen_Click(Programma& programma, Dialogen& dialogen) {
  std::string panel1;
  while (const auto fout = Probeer([&] { panel1 = OpenVolgende(programma, dialogen); })) {
    if (IsGeannuleerd(*fout)) return {};
    if (dialogen.Toon(OnverwachteFout("mnuOpen_Click", "MDIMurvane", *fout)) == Antwoord::OK) continue;
    programma.OpenBestand.clear();
    return {};
  }
  return {true, panel1};
}

OpslagUitkomst OpSlag(Programma& programma, Dialogen& dialogen) {
  bool gekozen = false;
  const auto stap = [&] {
    if (!gekozen) VraagOpslaanNaam(programma, dialogen);
    gekozen = true;
    Bewaar(programma, dialogen);
  };
  while (const auto fout = Probeer(stap)) {
    if (IsGeannuleerd(*fout)) return OpslagUitkomst::Geannuleerd;
    if (fout->Nummer() == FoutNummer::OngeldigeBestandsnaam) gekozen = false;
    if (dialogen.Toon(OnverwachteFout("OpSlag", "frmMurvane", *fout)) != Antwoord::OK)
      return OpslagUitkomst::Opgegeven;
  }
  return OpslagUitkomst::Gesloten;
}

bool mnuSluiten_Click(Programma& programma, Dialogen& dialogen) {
  const Melding vraag{MeldingSoort::Vraag, "Bestand sluiten",
                      "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
                      "bestandsgegevens?",
                      Knoppen::OkCancel};
  if (dialogen.Toon(vraag) != Antwoord::OK) return false;
  programma.DialoogNaam.clear();
  return true;
}

Vervolg mnuExit_Click(Programma& programma, Dialogen& dialogen, bool projectOpen) {
  const Melding vraag{
      MeldingSoort::Vraag, "Programma-stop",
      "Wilt u het programma beeindigen zonder data-opslag van eventueel ingevoerde/gewijzigde "
      "bestandsgegevens?",
      Knoppen::OkCancel};
  if (projectOpen && dialogen.Toon(vraag) != Antwoord::OK) return Vervolg::GaatDoor;
  const auto fout = Probeer([&] {
    NaarDataDir(programma);
    const Zandloper zandloper(dialogen);
    SchrijfInstellingen(programma.Instellingen, programma.DataDir / InstellingenNaam);
  });
  if (fout) dialogen.Toon(OnverwachteFout("mnuExit_Click", "MDIMurvane", *fout));
  return Vervolg::Einde;
}

Vervolg Form_Unload(Programma& programma, Dialogen& dialogen, bool projectOpen,
                    const std::function<bool()>& bewaarVeld) {
  // A directory that is gone is no reason to withhold the question below.
  static_cast<void>(Probeer([&] { NaarDataDir(programma); }));
  const Melding vraag{MeldingSoort::Vraag, "Programma afsluiten", "Geopend bestand eerst opslaan?",
                      Knoppen::YesNo};
  if (!projectOpen || dialogen.Toon(vraag) != Antwoord::Yes) return Vervolg::Einde;
  if (!bewaarVeld()) return Vervolg::GaatDoor;
  return OpSlag(programma, dialogen) == OpslagUitkomst::Opgegeven ? Vervolg::GaatDoor : Vervolg::Einde;
}

void mnuGebruiker_Click(Programma& programma, Dialogen& dialogen) {
  const std::string naam(programma.Instellingen.Gebruikersnaam.Getrimd());
  const InvoerVraag vraag{
      "Instelling gebruikersnaam",
      "Huidige instelling gebruikersnaam: \n" + naam + "\n\nVoer nieuwe gebruikersnaam in", naam};
  ZetGebruikersnaam(programma.Instellingen, dialogen.Invoer(vraag));
}

}  // namespace murvane
