#include "cli/uitvoer.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <filesystem>
#include <ostream>
#include <system_error>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

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
  for (char& c : uit)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c | 0x20);
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
  if (nieuw) return;
  throw Gebruiksfout(eerder->second == naam ? naam + " zou twee keer worden geschreven."
                                            : eerder->second + " en " + naam + " zijn hetzelfde bestand.");
}

}  // namespace murvane
