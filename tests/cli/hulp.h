#pragma once
// What the tests of the command line share: a directory of their own, small projects, and a run in-process.

#include <filesystem>
#include <limits>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "basis/bestand.h"
#include "basis/tekst.h"
#include "cli/opdrachten.h"
#include "project/projectfile.h"
#include "project/records.h"
#include "shell/settings.h"
#include "shell/startup.h"
#include "tests/hulp/bestanden.h"

namespace murvane::clitest {

/// A fresh directory with a murvane.set, whose files are named as on a command line.
class Proefmap {
 public:
  Proefmap() {
    Instellingen instellingen;
    ZetGebruikersnaam(instellingen, "Bureau één"_cp);
    SchrijfInstellingen(instellingen, map_ / InstellingenNaam);
  }

  [[nodiscard]] std::string operator/(std::string_view naam) const { return PadTekst(map_ / naam); }
  [[nodiscard]] std::string Naam() const { return PadTekst(map_.Pad()); }

  /// Saves a project under a name that may have directories.
  std::string Zet(const Project& project, std::string_view naam) const {
    std::filesystem::create_directories((map_ / naam).parent_path());
    return ZetBytes(ProjectBytes(project), naam);
  }
  std::string ZetBytes(std::string_view bytes, std::string_view naam) const {
    proef::Schrijf(map_ / naam, bytes);
    return *this / naam;
  }
  [[nodiscard]] bool Heeft(std::string_view naam) const { return std::filesystem::exists(map_ / naam); }
  [[nodiscard]] std::string Lees(std::string_view naam) const { return proef::Lees(map_ / naam); }

 private:
  proef::TijdelijkeMap map_;
};

/// A duct and an outlet to a room, complete: it passes the checks and its run ends well.
inline Project GoedProject(std::string_view naam = "Proefproject",
                           std::int16_t type = rekentype::Installatiegeluid) {
  Project project;
  project.Kop.ProNaam = naam;
  project.Kop.RekenType = type;
  project.Fan.FanNaam = "Toevoerventilator";
  for (std::size_t b = 0; b < Banden; ++b) project.Fan.Lw[b] = 80 - 2 * static_cast<double>(b);
  project.Fan.FanDebiet = 1;
  project.ElementCount = 2;
  ElementRec& kanaal = project.Elementen[1];
  kanaal.Naam = "Kanaal rechthoekig";
  kanaal.ElementType = elementtype::KanaalRecht;
  kanaal.Hoogte = 400;
  kanaal.Breedte = 500;
  kanaal.Lengte = 5;
  kanaal.Debiet = 1;
  ElementRec& rooster = project.Elementen[2];
  rooster.Naam = "Rooster";
  rooster.ElementType = elementtype::Rooster;
  rooster.Snetto = 1000;
  rooster.Weerstand = 20;
  RuimteRec& ruimte = project.Ruimte;
  ruimte.RLengte = 5;
  ruimte.RBreedte = 4;
  ruimte.RHoogte = 3;
  ruimte.RNagalm = 0.6;
  ruimte.RDI = 2;
  ruimte.RNR = 35;
  ruimte.RAantal = 2;
  return project;
}

/// Refused by the checks with "Geen kanaalelementen ingevoerd".
inline Project ZonderElementen() {
  Project project = GoedProject();
  project.ElementCount = 0;
  return project;
}

/// Ends in Fout 6: a level that is not a finite number.
inline Project MetOneindig() {
  Project project = GoedProject();
  project.Fan.Lw[3] = std::numeric_limits<double>::infinity();
  return project;
}

struct Afloop {
  int Code = -1;
  std::string Uit, Err;
};

/// How a command line is run: what its channels are, and what stands on standard input.
struct Omstandigheid {
  bool Terminal = false;
  bool UitTerminal = false;
  std::string Invoer = {};
};

inline Kanalen KanalenVan(std::ostream& uit, std::ostream& err, const Omstandigheid& hoe) {
  return {uit, err, hoe.Terminal, hoe.UitTerminal,
          [hoe](std::size_t hoogstens) { return hoe.Invoer.substr(0, hoogstens); }};
}

inline Afloop Draai(const std::vector<std::string>& argumenten, const Omstandigheid& hoe = {}) {
  std::ostringstream uit;
  std::ostringstream err;
  const int code = VoerOpdrachtUit(argumenten, KanalenVan(uit, err, hoe));
  return {code, uit.str(), err.str()};
}

/// `reken` with the settings of the directory and a fixed decimal sign.
inline Afloop Reken(const Proefmap& map, std::vector<std::string> argumenten, const Omstandigheid& hoe = {}) {
  argumenten.insert(argumenten.begin(), "reken");
  argumenten.insert(argumenten.end(), {"--data", map.Naam(), "--decimaal", "komma"});
  return Draai(argumenten, hoe);
}

/// Accepts nothing, as a full disk or a closed pipe.
class Dicht : public std::streambuf {
 protected:
  int overflow(int) override { return traits_type::eof(); }
  std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
  int sync() override { return -1; }
};

}  // namespace murvane::clitest
