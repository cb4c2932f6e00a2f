#pragma once
// The maintenance of the four catalogues: what their windows frmElementen, frmFan, frmDuct and frmPlafond
// decide, which are one design with one table of differences. Texts are Windows-1252.
//
// A window is a list on the left and the fields of one record, locked while the list is in view and unlocked
// while a record is added or changed. It gathers the texts of its fields into the state, calls a procedure,
// and shows the state and the records again: the rows, the panels and what is enabled follow from both. Only
// cmdSluiten_Click writes a file.

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/dialogen.h"
#include "editor/invoer.h"

namespace murvane {

/// What accepting does to slot 7 of a record.
enum class Slot7 : std::uint8_t { Blijft, SomVanRuis, SomVanWaarden };

/// A list of the project window that cmdSluiten fills again.
enum class Ververs : std::uint8_t { Niets, lstTotaal, lstFan };

/// How the four windows differ.
struct OnderhoudVerschil {
  CatalogusSoort Soort;
  std::string_view Venster;
  std::string_view Bestand;
  std::string_view Titel;
  std::string_view Rijlabel;   ///< of txtdemp
  std::string_view RuisLabel;  ///< of txtruis; empty in a window without that row
  murvane::Slot7 Slot7;
  std::string_view LegeNaam;    ///< warning
  std::string_view Limiet;      ///< warning
  std::string_view Toevoegen;   ///< panel 1
  std::string_view Wijzigen;    ///< panel 1
  std::string_view InLijst;     ///< panel 2, behind the count
  std::string_view LegeLijst;   ///< warning at a click without a row
  std::string_view WijzigLeeg;  ///< warning of cmdwijzig without a row
  std::string_view WissenLeeg;  ///< warning of cmdWissen without a row
  std::string_view WisTitel;
  std::string_view WisVraag;   ///< up to the name
  std::string_view Beschermd;  ///< name of the record that is neither changed nor deleted; may be empty
  std::string_view WijzigBeschermd, WissenBeschermd;  ///< the warnings then
  Ververs Vult;
  std::string_view AlleOpschrift;     ///< of mnuZoekAlles
  std::string_view SorteerOpschrift;  ///< of mnuSortNaam
};

[[nodiscard]] const OnderhoudVerschil& OnderhoudVan(CatalogusSoort soort);

// ---- Menus ----

/// An entry of a window's menu bar; it stands in the menu `In`. "&" is the mnemonic.
struct OnderhoudMenu {
  std::string_view In;  ///< empty for a menu of the bar
  std::string_view Naam;
  std::string_view Opschrift;
  bool IsMenu = false;
  std::string_view Schatter = {};  ///< the window that a command of the tools menu shows
  bool ZetUit = false;             ///< the window is disabled while that one is shown

  friend bool operator==(const OnderhoudMenu&, const OnderhoudMenu&) = default;
};

/// The menu bar of a window, every menu in front of its entries.
[[nodiscard]] std::vector<OnderhoudMenu> OnderhoudMenus(CatalogusSoort soort);

// ---- State ----

/// The command that opened the entry fields last; it keeps its value in list view, where nothing reads it.
enum class Modus : std::uint8_t { Geen, add, edit };

struct OnderhoudVak {
  std::string Tekst;
  std::uint32_t Achtergrond = VeldKleur;
  std::string_view ToolTip = {};

  friend bool operator==(const OnderhoudVak&, const OnderhoudVak&) = default;
};

struct OnderhoudVelden {
  OnderhoudVak txtSpectrum;
  std::array<OnderhoudVak, Banden> txtdemp, txtruis;

  friend bool operator==(const OnderhoudVelden&, const OnderhoudVelden&) = default;
};

struct Onderhoud {
  CatalogusSoort Soort = CatalogusSoort::Kanaalelementen;
  Modus Mode = Modus::Geen;
  std::int16_t Rij = 0;  ///< number of the record being worked on
  bool Invoer = false;   ///< entry mode; otherwise list view
  int Gekozen = -1;      ///< selected row of lstSpectrum, from 0; -1 for none
  OnderhoudVelden Velden;
};

/// What a control of the windows is in list view and in entry mode.
struct OnderhoudBesturing {
  std::string_view Naam;
  bool ZichtbaarLijst, AanLijst;
  bool ZichtbaarInvoer, AanInvoer;
};

inline constexpr auto OnderhoudBesturingen = std::to_array<OnderhoudBesturing>({
    {"cmdOK", false, false, true, true},
    {"cmdCancel", false, false, true, true},
    {"cmdToevoegen", true, true, true, false},
    {"cmdwijzig", true, true, true, false},
    {"cmdWissen", true, true, true, false},
    {"lstSpectrum", true, true, true, false},
    {"mnuZoek", true, true, true, false},
    {"mnuSort", true, true, true, false},
    {"mnuTools", true, false, true, true},
    {"txtSpectrum", true, false, true, true},
    {"txtdemp", true, false, true, true},
    {"txtruis", true, false, true, true},
    {"cmdSluiten", true, true, true, true},
});

/// Whether a control is shown, and enabled. Fout 5 for a name that is not in the table.
[[nodiscard]] bool OnderhoudZichtbaar(std::string_view naam, bool invoer);
[[nodiscard]] bool OnderhoudAan(std::string_view naam, bool invoer);

/// The rows of lstSpectrum, with the blanks of their fixed texts.
[[nodiscard]] std::vector<std::string> OnderhoudRijen(const Catalogi& catalogi, CatalogusSoort soort);

/// The status bar: what the window is doing, and how many records there are besides the built-in ones.
inline constexpr std::string_view Lijstweergave = "Lijstweergave";
[[nodiscard]] std::string_view OnderhoudPaneel1(const Onderhoud& venster);
[[nodiscard]] std::string OnderhoudPaneel2(const Catalogi& catalogi, CatalogusSoort soort);

// ---- Fields ----

/// The rule of a field: txtSpectrum, txtdemp or txtruis. Fout 5 for another name.
[[nodiscard]] const VeldRegel& OnderhoudRegel(std::string_view naam);

/// Where Enter goes, and what Escape makes of the text.
[[nodiscard]] VeldId OnderhoudVolgend(VeldId veld);
[[nodiscard]] std::string_view OnderhoudEscape(VeldId veld);

/// The leaving of a value field. An invalid text turns it red; the focus then goes back to it.
[[nodiscard]] OnderhoudVak OnderhoudVerlaat(VeldId veld, std::string_view tekst, char decimaal);

/// What is left for the window to do after it has shown the state.
struct OnderhoudUitkomst {
  std::optional<VeldId> Focus{};          ///< the control that gets the focus
  std::optional<murvane::Melding> Box{};  ///< to show
  bool NieuweRijen = false;               ///< the rows of lstSpectrum are others

  friend bool operator==(const OnderhoudUitkomst&, const OnderhoudUitkomst&) = default;
};

// ---- Commands ----

/// A window that opens: list view, nothing selected, blank fields.
[[nodiscard]] Onderhoud Form_Load(CatalogusSoort soort);

/// Shows the record of a row, -1 for none. Fout 9 for a row that the list does not have.
OnderhoudUitkomst lstSpectrum_Click(Onderhoud& venster, const Catalogi& catalogi, int rij, char decimaal);

OnderhoudUitkomst cmdToevoegen_Click(Onderhoud& venster, const Catalogi& catalogi, char decimaal);
OnderhoudUitkomst cmdwijzig_Click(Onderhoud& venster, const Catalogi& catalogi);

/// Stores the entry and shows it in the list; nothing while a field is red. A catalogue without all its
/// built-in records gets its first own record behind their places.
OnderhoudUitkomst cmdOK_Click(Onderhoud& venster, Catalogi& catalogi, Dialogen& dialogen, char decimaal);
OnderhoudUitkomst cmdCancel_Click(Onderhoud& venster, const Catalogi& catalogi, char decimaal);
OnderhoudUitkomst cmdWissen_Click(Onderhoud& venster, Catalogi& catalogi, Dialogen& dialogen, char decimaal);

/// Sorts the records; no row is selected any more.
OnderhoudUitkomst mnuSortNaam_Click(Onderhoud& venster, Catalogi& catalogi, Dialogen& dialogen);

/// Writes the catalogue's file in `map`; whether the window closes. When another program changed the file and
/// nothing was changed here, its records are taken over instead; when both did, the user is asked. A failure
/// is told, under the name of frmDuct whichever window it is; window and records then stay as they were.
[[nodiscard]] bool cmdSluiten_Click(const Onderhoud& venster, Catalogi& catalogi,
                                    const std::filesystem::path& map, Dialogen& dialogen);

/// Writes an estimate into the open entry fields.
void NeemSchatting(Onderhoud& venster, std::string_view omschrijving,
                   const std::array<std::string, Banden>& demping);

}  // namespace murvane
