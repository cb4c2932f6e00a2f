#pragma once
// editor/: what the project window decides, without the window: its states, the element list, the input
// fields and the checks before a run. This header: the chain of elements and the two lists beside each other,
// the element catalogue (lstTotaal) and the project's chain (lstProject).
//
// Elements and catalogue records are numbered from 1, list rows from 0; row -1 is no row. A procedure below
// changes the records and the state of the lists and returns what is left for the window to do; the window
// then shows both lists by the state (ProjectRij, TotaalRij, LijstKleur, SSTab2). A row selected by a
// procedure is a row clicked: the state and the Open of the outcome are those after lstProject_Click, which
// the window therefore does not run again. It stores the field that has the focus before it calls any of
// them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/melding.h"
#include "project/records.h"

namespace murvane {

enum class Lijst : std::uint8_t { lstTotaal, lstProject };

/// Background of the active list, and of the other one: the system's button face. Blue-green-red.
inline constexpr std::uint32_t ActieveKleur = 0xC0FFFF;
inline constexpr std::uint32_t InactieveKleur = 0x8000000F;

/// The state of the two lists; as constructed it is that of a project just opened.
struct Elementlijst {
  int CatalogusPositie = 0;         ///< the record that lstTotaal has selected; 0 for none
  int HuidigElement = 0;            ///< the element that lstProject has selected and is open; 0 for none
  Lijst Actief = Lijst::lstTotaal;  ///< exactly one is
  bool Aangeklikt = false;          ///< a list was clicked: the active list's toolbar buttons are enabled
  bool SSTab2 = false;              ///< an element is open: its page is in view, if its type has one

  friend bool operator==(const Elementlijst&, const Elementlijst&) = default;
};

[[nodiscard]] inline int TotaalRij(const Elementlijst& lijst) {
  return lijst.CatalogusPositie - 1;
}
[[nodiscard]] inline int ProjectRij(const Elementlijst& lijst) {
  return lijst.HuidigElement - 1;
}
[[nodiscard]] std::uint32_t LijstKleur(const Elementlijst& lijst, Lijst welke);

/// What lstProject has to do for its rows to be those of the chain again.
enum class Vulling : std::uint8_t { Ongewijzigd, RijErbij, Opnieuw };

/// What is left for the window to do, in this order; empty, 0 and false mean nothing.
struct LijstUitkomst {
  int Accepteer = 0;                          ///< number of the element to Accept from the page in view
  std::optional<murvane::Melding> Melding;    ///< box to show
  Vulling lstProject = Vulling::Ongewijzigd;  ///< RijErbij: RijProject of the last element, at the end
  int Open = 0;                ///< number of the element whose page is filled, shaped and given the focus
  std::string Paneel3;         ///< new text of the status bar's panel 3
  std::string_view Berekend;   ///< call Berekend with false and this number
  bool BerekendEerst = false;  ///< before the element is opened

  friend bool operator==(const LijstUitkomst&, const LijstUitkomst&) = default;
};

/// Hands air flow and cross-section down to element n from its predecessor (or the fan's flow to element 1);
/// n = 0 does nothing. What is inherited overwrites what stood there; a predecessor with a width of exactly 0
/// is round and hands down no width. Fout 9 for an n below 0 or above 500.
void VoorGanger(Project& project, int n);

/// Blanks element n: texts to blanks, numbers, bands and type to 0. Fout 9 for an n outside 0 to 500.
void LeegMaken(Project& project, int n);

/// The element type that a catalogue record gives: its number up to 11, elementtype::Catalogus above.
[[nodiscard]] std::int16_t TypeVanRecord(int record);

/// The row of element n: number, ". " and the name with its blanks. Fout 9 for an n outside 1 to 500.
[[nodiscard]] std::string RijProject(const Project& project, int n);
/// All rows of lstProject, and of lstTotaal (the names of the records, the built-in ones included).
[[nodiscard]] std::vector<std::string> RijenProject(const Project& project);
[[nodiscard]] std::vector<std::string> RijenTotaal(const ElementCatalogus& catalogus);

/// The status bar's text for a number of elements.
[[nodiscard]] std::string AantalTekst(int aantal);
/// The same as it is read aloud, where one is not more.
[[nodiscard]] std::string AantalGezegd(int aantal);

/// Click on a row of the catalogue: it becomes the active list and the page leaves the view. Fout 9 for a row
/// outside -1 to 499.
LijstUitkomst lstTotaal_Click(Elementlijst& lijst, int rij);

/// Click on a row of the chain: it becomes the active list and the element is opened, after it has inherited.
/// Without a row nothing is open and no page in view. Fout 9 for a row that the chain does not have.
LijstUitkomst lstProject_Click(Elementlijst& lijst, Project& project, int rij);

/// Adds the selected catalogue record at the end of the chain; nothing when no record is selected. A chain of
/// exactly 99 is refused with a message; one that a file made longer may grow. Fout 9, and no change, for a
/// 501st element.
LijstUitkomst lstTotaal_DblClick(Elementlijst& lijst, Project& project, const ElementCatalogus& catalogus);

/// Inserts the selected catalogue record before the selected element, while lstTotaal is active; limits as
/// for adding.
LijstUitkomst Insert(Elementlijst& lijst, Project& project, const ElementCatalogus& catalogus);

/// Asks whether the selected element may go, while lstProject is active: the outcome has the question, or a
/// warning. A question's answer goes to WisElement.
[[nodiscard]] LijstUitkomst lstProject_DblClick(const Elementlijst& lijst);

/// The answer to the question: OK deletes the selected element, Cancel clears the selection of both lists.
LijstUitkomst WisElement(Elementlijst& lijst, Project& project, Antwoord antwoord);

/// Key codes of UpDown.
inline constexpr int ToetsOmhoog = 38;
inline constexpr int ToetsOmlaag = 40;

/// Moves the selected element one place, while lstProject is active; any other key code does nothing.
LijstUitkomst UpDown(Elementlijst& lijst, Project& project, int toets);

/// The catalogue was filled again: no row of lstTotaal is selected any more.
void lstTotaalGevuld(Elementlijst& lijst);

}  // namespace murvane
