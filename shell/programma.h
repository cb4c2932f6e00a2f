#pragma once
// The whole program's data: one project, the catalogues, the last run and the settings. Built in main and
// handed down by reference.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

#include "basis/tekst.h"
#include "calc/resultaten.h"
#include "catalogue/catfiles.h"
#include "estimators/schatting.h"
#include "project/records.h"
#include "reports/grafiek.h"
#include "reports/paginas.h"
#include "reports/rapport.h"
#include "shell/settings.h"

namespace murvane {

/// Date as the program writes it: dd-mm-yyyy.
using DatumVeld = Tekst<10>;
[[nodiscard]] DatumVeld DatumTekst(std::chrono::year_month_day datum);

struct Programma {
  murvane::Project Project;
  murvane::Catalogi Catalogi;
  murvane::Resultaten Resultaten;      ///< of the last run
  murvane::Rapport Rapport;            ///< of the last run
  murvane::SchatInvoer SchatInvoer;    ///< that each estimator had last
  murvane::Grafiek Grafiek;            ///< as the last Grafiek2 filled it
  std::int16_t KiesGrafiek = 0;        ///< kiesgrafiek: what the user chose to see in it
  VoorbeeldStand Voorbeeld;            ///< of the preview
  murvane::Instellingen Instellingen;  ///< written by mnuExit_Click only

  std::filesystem::path DataDir;  ///< of murvane.set and the catalogues; fixed once the start is over
  std::filesystem::path ProgrammaBestanden;  ///< of the manual and the notes on the delivered version
  std::filesystem::path OpenBestand;         ///< the project that the command line named, until it was opened
  DatumVeld Vandaag;                         ///< the day of the start
  char Decimaal = ',';                       ///< the region's decimal sign

  /// The file that the open project was read from, for as long as it is open.
  struct Projectbestand {
    std::filesystem::path Pad;
    Herinnering Gelezen;
  };
  std::optional<Projectbestand> VanSchijf;

  /// The file name that stands in the file dialog: the one chosen last, or the project that was opened. The
  /// next dialog proposes it. Closing a project and making a new one empty it.
  std::filesystem::path DialoogNaam;
};

/// What a command means for the program as a whole.
enum class Vervolg { GaatDoor, Einde };

}  // namespace murvane
