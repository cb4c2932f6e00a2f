#include "editor/melding.h"

#include <utility>

#include "basis/bestand.h"
#include "basis/stuurtekens.h"
#include "basis/tekst.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

std::string KaleNaam(const fs::path& pad) {
  const fs::path naam = pad.has_filename() ? pad.filename() : pad.parent_path().filename();
  return Toonbaar(PadTekst(naam.empty() ? pad : naam));
}

/// What a failure of a file says: the words before and behind the name.
struct Zin {
  std::string_view Voor, Achter;
};

Zin ZinVan(FoutNummer nummer) {
  switch (nummer) {
    case FoutNummer::OngeldigeBestandsnaam:
      return {"De bestandsnaam '", "' is ongeldig"};
    case FoutNummer::BestandNietGevonden:
      return {"Het bestand '", "' is niet gevonden"};
    case FoutNummer::SchijfVol:
      return {"De schijf is vol; het bestand '", "' is niet geschreven"};
    case FoutNummer::VoorbijEinde:
      return {"Het bestand '", "' eindigt te vroeg"};
    case FoutNummer::GeenToestemming:
      return {"Geen toestemming voor het bestand '", "'"};
    case FoutNummer::PadToegang:
      return {"Geen toegang tot het bestand of de map '", "'"};
    case FoutNummer::PadNietGevonden:
      return {"De map '", "' is niet gevonden"};
    default:
      return {};
  }
}

/// The description without the number, the full stop and the place.
std::string_view OmschrijvingVan(const Fout& fout) {
  std::string_view tekst = fout.what();
  if (!fout.Plaats().empty()) tekst.remove_suffix(fout.Plaats().size() + 3);
  return tekst;
}

/// The description of a failure of a file, with NaamPlaats for its name. What a description says beyond the
/// usual one stays.
std::string MetNaamPlaats(const Fout& fout) {
  const std::string_view omschrijving = OmschrijvingVan(fout);
  const std::string_view gewoon = Beschrijving(fout.Nummer());
  const Zin zin = ZinVan(fout.Nummer());
  if (zin.Voor.empty() || !omschrijving.starts_with(gewoon))
    return std::string(omschrijving).append(" in het bestand '").append(1, NaamPlaats).append("'");
  std::string uit(zin.Voor);
  uit.append(1, NaamPlaats).append(zin.Achter).append(omschrijving.substr(gewoon.size()));
  return uit;
}

/// The bare name that the words above are about: of a failure of a directory that directory's.
std::string NaamVan(const Fout& fout) {
  const fs::path pad = PadVan(fout.Bestand());
  const bool map = fout.Nummer() == FoutNummer::PadNietGevonden && pad.has_parent_path();
  return KaleNaam(map ? pad.parent_path() : pad);
}

}  // namespace

std::string GetoondeTekst(const Melding& melding) {
  const auto plaats = melding.Naam.empty() ? std::string::npos : melding.Tekst.rfind(NaamPlaats);
  if (plaats == std::string::npos) return NaarUtf8(melding.Tekst);
  const std::string_view tekst = melding.Tekst;
  return NaarUtf8(tekst.substr(0, plaats)) + melding.Naam + NaarUtf8(tekst.substr(plaats + 1));
}

void VoegFoutToe(Melding& melding, const Fout& fout) {
  if (fout.Bestand().empty()) {
    melding.Tekst += NaarCp1252Getoond(fout.Melding());
    return;
  }
  const std::string plaats = fout.Plaats().empty() ? "" : " (" + fout.Plaats() + ")";
  const Fout metNaam(fout.Nummer(), MetNaamPlaats(fout) + plaats);
  melding.Tekst += NaarCp1252Getoond(metNaam.Melding());
  melding.Naam = NaamVan(fout);
}

Melding OnverwachteFout(std::string_view procedure, std::string_view venster, const Fout& fout,
                        Knoppen knoppen) {
  std::string tekst = "Onverwachte fout in procedure ";
  tekst.append(procedure).append(" van Form ").append(venster).append(".\n");
  Melding melding{MeldingSoort::Kritiek, std::string(ProgrammaTitel), std::move(tekst), knoppen};
  VoegFoutToe(melding, fout);
  return melding;
}

Melding GewijzigdVraag(const fs::path& bestand, bool anders) {
  return {MeldingSoort::Uitroep, "Waarschuwing",
          std::string("'") + NaamPlaats + "' is intussen door een ander programma gewijzigd.",
          anders ? Knoppen::OverschrijvenAndersCancel : Knoppen::OverschrijvenCancel, KaleNaam(bestand)};
}

}  // namespace murvane
