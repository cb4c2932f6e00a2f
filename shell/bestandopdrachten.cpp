#include "shell/bestandopdrachten.h"

#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "basis/bestand.h"
#include "editor/bewaarvraag.h"
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

/// One attempt to open; the text for panel 1, empty when the dialog gave no name.
std::string OpenVolgende(Programma& programma, Dialogen& dialogen) {
  if (!programma.OpenBestand.empty()) {
    std::string naam = Openen(programma, dialogen, programma.OpenBestand);
    programma.OpenBestand.clear();
    return naam;
  }
  VraagOpenNaam(programma, dialogen);
  if (programma.DialoogNaam.empty()) return {};
  EisOpslagNaam(programma.DialoogNaam);  // in the dialog a name in capitals is refused
  return Openen(programma, dialogen, programma.DialoogNaam);
}

/// What was read of the file under this name, if it is the one that the project came from: about any other
/// the dialog asked.
std::optional<Herinnering> GelezenVan(const Programma& programma, const fs::path& pad) {
  const auto& bestand = programma.VanSchijf;
  return bestand && IsZelfdePad(bestand->Pad, pad) ? std::optional(bestand->Gelezen) : std::nullopt;
}

/// Saves under the chosen name; Overschrijven when that is done, else what the user answered to the question
/// about a file that was changed meanwhile.
Antwoord Bewaar(const Programma& programma, Dialogen& dialogen) {
  const fs::path& pad = programma.DialoogNaam;
  if (pad.empty()) return Antwoord::Overschrijven;
  EisOpslagNaam(pad);
  return OverBestand(PadTekst(pad), [&] {
    const Bewaardoel doel{pad, Staart::Blijft, GelezenVan(programma, pad), true};
    return BewaarMetVraag(doel, ProjectBytes(programma.Project), dialogen).Hoe;
  });
}

fs::path InstellingenPad(const Programma& programma) {
  return programma.DataDir / InstellingenNaam;
}

void NaarDataDir(const Programma& programma) {
  const std::string bestand = PadTekst(InstellingenPad(programma));
  std::error_code code;
  fs::current_path(programma.DataDir, code);
  if (code == std::errc::permission_denied) throw Fout(FoutNummer::GeenToestemming).MetBestand(bestand);
  if (code) throw Fout(FoutNummer::PadNietGevonden).MetBestand(bestand);
}

/// Writes the settings, unless another program's stand there and nothing was changed here.
Antwoord BewaarInstellingen(const Programma& programma, Dialogen& dialogen) {
  const Bewaardoel doel{InstellingenPad(programma), Staart::Vervalt, programma.Instellingen.Gelezen, false};
  return BewaarMetVraag(doel, InstellingenBytes(programma.Instellingen), dialogen).Hoe;
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
  programma.VanSchijf.reset();
}

std::string Openen(Programma& programma, Dialogen& dialogen, const fs::path& pad) {
  const Zandloper zandloper(dialogen);
  GelezenProject gelezen = LeesProjectBestand(pad);
  fs::path naam = Volledig(pad);
  std::string panel1 = PadTekst(naam.filename());
  programma.Project = std::move(gelezen.Project);
  programma.VanSchijf = {naam, gelezen.Bestand};
  programma.DialoogNaam = std::move(naam);
  return panel1;
}

OpenUitkomst mnuOpen_Click(Programma& programma, Dialogen& dialogen) {
  std::string panel1;
  while (const auto fout = Probeer([&] { panel1 = OpenVolgende(programma, dialogen); })) {
    if (IsGeannuleerd(*fout)) return {};
    if (dialogen.Toon(OnverwachteFout("mnuOpen_Click", "MDIMurvane", *fout, Knoppen::OkCancel)) ==
        Antwoord::OK)
      continue;
    programma.OpenBestand.clear();
    return {};
  }
  return {true, panel1};
}

OpslagUitkomst OpSlag(Programma& programma, Dialogen& dialogen) {
  bool gekozen = false;
  Antwoord antwoord = Antwoord::Anders;
  const auto stap = [&] {
    if (!gekozen) VraagOpslaanNaam(programma, dialogen);
    gekozen = true;
    antwoord = Bewaar(programma, dialogen);
    gekozen = antwoord != Antwoord::Anders;
  };
  while (antwoord == Antwoord::Anders) {
    const auto fout = Probeer(stap);
    if (!fout) continue;
    if (IsGeannuleerd(*fout)) return OpslagUitkomst::Geannuleerd;
    if (fout->Nummer() == FoutNummer::OngeldigeBestandsnaam) gekozen = false;
    if (dialogen.Toon(OnverwachteFout("OpSlag", "frmMurvane", *fout, Knoppen::OkCancel)) != Antwoord::OK)
      return OpslagUitkomst::Opgegeven;
  }
  if (antwoord != Antwoord::Overschrijven) return OpslagUitkomst::Opgegeven;
  programma.VanSchijf.reset();
  return OpslagUitkomst::Gesloten;
}

bool mnuSluiten_Click(Programma& programma, Dialogen& dialogen) {
  const Melding vraag{MeldingSoort::Vraag, "Bestand sluiten",
                      "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
                      "bestandsgegevens?",
                      Knoppen::OkCancel};
  if (dialogen.Toon(vraag) != Antwoord::OK) return false;
  programma.DialoogNaam.clear();
  programma.VanSchijf.reset();
  return true;
}

Vervolg mnuExit_Click(Programma& programma, Dialogen& dialogen, bool projectOpen) {
  const Melding vraag{
      MeldingSoort::Vraag, "Programma-stop",
      "Wilt u het programma beeindigen zonder data-opslag van eventueel ingevoerde/gewijzigde "
      "bestandsgegevens?",
      Knoppen::OkCancel};
  if (projectOpen && dialogen.Toon(vraag) != Antwoord::OK) return Vervolg::GaatDoor;
  Antwoord antwoord = Antwoord::Overschrijven;
  const auto fout = Probeer([&] {
    NaarDataDir(programma);
    antwoord = BewaarInstellingen(programma, dialogen);
  });
  if (fout) dialogen.Toon(OnverwachteFout("mnuExit_Click", "MDIMurvane", *fout));
  return antwoord == Antwoord::Overschrijven ? Vervolg::Einde : Vervolg::GaatDoor;
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
