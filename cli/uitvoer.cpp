#include "cli/uitvoer.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// In small letters, or with `wissel` each letter in its other form; only those of ASCII.
std::string Letters(std::string tekst, bool wissel) {
  for (char& c : tekst) {
    const bool groot = c >= 'A' && c <= 'Z';
    const bool klein = c >= 'a' && c <= 'z';
    if (groot || (klein && wissel)) c = static_cast<char>(c ^ 0x20);
  }
  return tekst;
}

/// Whether a directory takes capitals and small letters for the same, tried on what stands in it.
bool NegeertHoofdletters(const fs::path& map) {
  std::error_code geen;
  for (const fs::directory_entry& ingang : fs::directory_iterator(map, geen)) {
    const std::string naam = PadTekst(ingang.path().filename());
    const std::string anders = Letters(naam, true);
    if (anders != naam) return fs::equivalent(ingang.path(), map / PadVan(anders), geen);
  }
  return false;
}

/// What a link that leads nowhere leads to: there a file would come.
fs::path AchterLinks(fs::path pad) {
  constexpr int MaxLinks = 40;
  std::error_code geen;
  for (int i = 0; i < MaxLinks && fs::is_symlink(fs::symlink_status(pad, geen)); ++i)
    pad = pad.parent_path() / fs::read_symlink(pad, geen);
  return pad;
}

/// The place of a file, however it is spelled.
std::string Plaats(const fs::path& pad) {
  std::error_code geen;
  std::string uit = PadTekst(fs::weakly_canonical(fs::absolute(AchterLinks(pad), geen), geen));
#ifdef _WIN32
  uit = Letters(std::move(uit), false);
#endif
  return uit;
}

/// What tells a file apart from all others; empty for what nothing can be lost in: standard input and output,
/// devices, directories.
std::string Kenmerk(const std::string& naam) {
  if (naam == Standaardstroom) return {};
  const fs::path pad = PadVan(naam);
  std::error_code geen;
  const fs::file_type soort = fs::status(pad, geen).type();
  if (soort == fs::file_type::not_found) return Plaats(pad);
  if (soort != fs::file_type::regular) return {};
#ifndef _WIN32
  struct stat stand {};
  if (::stat(pad.c_str(), &stand) == 0)
    return std::to_string(stand.st_dev) + ":" + std::to_string(stand.st_ino);
#endif
  return Plaats(pad);
}

[[noreturn]] void MeldZelfde(const std::string& een, const std::string& ander) {
  throw Gebruiksfout(een == ander ? een + " zou twee keer worden geschreven."
                                  : een + " en " + ander + " zijn hetzelfde bestand.");
}

}  // namespace

std::string InvoerNaam(const std::string& naam) {
  return naam == Standaardstroom ? "standaardinvoer" : naam;
}

Project LeesProjectVan(const std::string& naam, const Kanalen& kanalen) {
  if (naam == Standaardstroom)
    return OverBestand(InvoerNaam(naam), [&] { return ProjectUitBytes(kanalen.Invoer(RuimGenoeg)); });
  if (!IsProjectNaam(naam))
    throw Fout(FoutNummer::OngeldigeBestandsnaam, "Ongeldige bestandsnaam: een projectbestand eindigt op mrv",
               {}, naam);
  return LeesProject(PadVan(naam));
}

std::string LeesJsonVan(const std::string& naam) {
  std::string json = LeesBestand(PadVan(naam), GrootsteJson + 1);
  if (json.size() > GrootsteJson)
    throw Fout(FoutNummer::PadToegang, "Het bestand is te groot voor een project of catalogus", {}, naam);
  return json;
}

void SchrijfNaar(const std::string& naam, std::string_view bytes, Kanalen& kanalen) {
  if (naam == Standaardstroom) {
    SchrijfUit(bytes, kanalen);
  } else {
    VervangBestand(PadVan(naam), bytes);
  }
}

bool ZelfdeBestand(const std::string& een, const std::string& ander) {
  const std::string kenmerk = Kenmerk(een);
  return !kenmerk.empty() && kenmerk == Kenmerk(ander);
}

void WeigerOverschrijven(const std::string& invoer, const std::string& uitvoer) {
  Bestandenplan plan;
  plan.Leest(invoer);
  plan.Schrijft(uitvoer);
}

void Bestandenplan::Leest(const std::string& naam) {
  leest_.emplace(Kenmerk(naam), naam);
}

void Bestandenplan::Schrijft(const std::string& naam) {
  const std::string kenmerk = Kenmerk(naam);
  if (kenmerk.empty()) return;
  if (leest_.contains(kenmerk))
    throw Gebruiksfout(naam + " is het bestand dat wordt gelezen en zou worden overschreven.");
  const auto [eerder, nieuw] = schrijft_.emplace(kenmerk, naam);
  if (!nieuw) MeldZelfde(eerder->second, naam);
  std::error_code geen;
  const auto [lijkt, anders] = inKleineLetters_.emplace(Letters(kenmerk, false), naam);
  if (!anders && NegeertHoofdletters(fs::absolute(PadVan(naam), geen).parent_path()))
    MeldZelfde(lijkt->second, naam);
}

}  // namespace murvane
