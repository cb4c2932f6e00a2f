#pragma once
// The checks before a run: the contents of the input fields go into the records, then the project is judged
// rule by rule. Neither needs a window.

#include <array>
#include <optional>
#include <string>

#include "project/records.h"

namespace murvane {

/// The texts of the fields that a run takes over, Windows-1252.
struct ProjectInvoer {
  std::string txtProNaam, txtProNum, txtMyDate, txtOmschrijving, txtToelichting1, txtToelichting2,
      txtToelichting3;
  std::string txtSpectrum;
  std::array<std::string, Banden> txtLw;
  std::string txtRBreedte, txtRHoogte, txtRLengte, txtRDI, txtRNR, txtRNagalm, txtRAantal;
};

/// The fields as the project window shows them after opening the project: texts trimmed, numbers in their
/// display formats.
[[nodiscard]] ProjectInvoer InvoerVan(const Project& project, char decimaal);

/// Takes the fields over into the records, works out Lw's dB(A) sum and hands flow and section down the
/// chain. Fout 13 for a band of txtLw that is not a number; Fout 6 for one that is too large or for a field
/// that shows a stored value that is infinite or not a number; Fout 9 for an ElementCount above 500. A fault
/// leaves the project as it was.
void NeemOver(Project& project, const ProjectInvoer& invoer, char decimaal);

/// The tabs of the project window, in their order.
enum class Tab { Ventilator = 0, Kanaalelementen = 1, Ruimtegegevens = 2, Projectgegevens = 3 };

/// The first rule that a project fails: its message (Windows-1252) and where the user has to look.
struct Bevinding {
  std::string Melding;
  Tab OpTab;
  int Element = 0;   ///< number of the element to select; 0 for none
  std::string Veld;  ///< name of the control for the focus; empty for none
};

/// Judges the records by the rules of a run; nothing when the project may be calculated. Changes nothing.
/// Fout 9 for an ElementCount above 500.
[[nodiscard]] std::optional<Bevinding> Beoordeel(const Project& project);

/// Both steps: takes the fields over, then judges.
[[nodiscard]] std::optional<Bevinding> CheckIt(Project& project, const ProjectInvoer& invoer, char decimaal);

}  // namespace murvane
