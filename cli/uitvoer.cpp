#include "cli/uitvoer.h"

#include <filesystem>
#include <ostream>
#include <system_error>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {

namespace fs = std::filesystem;

Project LeesProjectVan(const std::string& naam) {
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
  if (naam == Standaarduitvoer) {
    kanalen.uit << bytes;
  } else {
    VervangBestand(PadVan(naam), bytes);
  }
}

bool ZelfdeBestand(const std::string& een, const std::string& ander) {
  if (een == Standaarduitvoer || ander == Standaarduitvoer) return false;
  const fs::path a = PadVan(een);
  const fs::path b = PadVan(ander);
  std::error_code geen;
  if (fs::exists(a, geen) && fs::exists(b, geen))
    return fs::is_regular_file(a, geen) && fs::equivalent(a, b, geen);
  const auto volledig = [&geen](const fs::path& pad) {
    return fs::weakly_canonical(fs::absolute(pad, geen), geen);
  };
  return volledig(a) == volledig(b);
}

void WeigerOverschrijven(const std::string& invoer, const std::string& uitvoer) {
  if (ZelfdeBestand(invoer, uitvoer))
    throw Gebruiksfout(uitvoer + " is het bestand dat wordt gelezen en zou worden overschreven.");
}

}  // namespace murvane
