#pragma once
// The life of a project in the program: no project, open, calculated. What each state enables and shows
// stands in tables; the procedures here are the only ones that pass from one state to another.
//
// There is no flag for unsaved changes, and no state is kept that the records tell: panel 2 follows
// RekenType, panel 3 the number of elements.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "basis/fout.h"
#include "editor/elementlijst.h"
#include "editor/melding.h"
#include "editor/validate.h"
#include "project/records.h"

namespace murvane {

enum class Toestand : std::uint8_t {
  GeenProject,
  Open,      ///< not calculated, or changed since
  Berekend,  ///< the results on screen are those of the project
};

/// The flags of the procedure Berekend.
namespace vlag {
inline constexpr std::int16_t Gewijzigd = 0;
inline constexpr std::int16_t Berekend = -1;
}  // namespace vlag

inline constexpr std::string_view GeenBestand = "Geen bestand";
inline constexpr std::string_view NieuweNaam = "Naamloos";
inline constexpr std::string_view GeenInvoer = "Geen invoer";

struct Sessie {
  murvane::Toestand Toestand = Toestand::GeenProject;
  std::string Bestand{GeenBestand};     ///< panel 1: a file's own name, in UTF-8
  std::int16_t Vlag = vlag::Gewijzigd;  ///< Berekend's last flag; nothing reads it back
  std::string Aanroep;                  ///< Berekend's last caller, by number; it decides nothing
};

[[nodiscard]] inline bool ProjectOpen(const Sessie& sessie) {
  return sessie.Toestand != Toestand::GeenProject;
}

// ---- Commands ----

/// Whether a command is enabled in each state.
struct MenuRegel {
  std::string_view Naam;
  bool GeenProject;
  bool Open;
  bool Berekend;
};

inline constexpr auto MenuRegels = std::to_array<MenuRegel>({
    {"mnuNieuw", true, false, false},
    {"mnuOpen", true, false, false},
    {"mnuReken", false, true, false},
    {"mnuPreview", false, false, true},
    {"mnuSluiten", false, true, true},
    {"mnuOpslaan", false, true, true},
    {"mnuAfdrukken", false, false, true},
    {"mnuExit", true, true, true},
    {"mnuBeheer", true, true, true},
    {"mnuElementen", true, true, true},
    {"mnuFan", true, true, true},
    {"mnuDuct", true, false, false},  // their windows refresh nothing in an open project
    {"mnuPlafonds", true, false, false},
    {"mnuLetterType", true, true, true},
    {"mnuGebruiker", true, true, true},
    {"mnuTypReken", true, true, true},
    {"mnuVent", true, true, true},
    {"mnuUitstraling", true, true, true},
    {"mnuOverspraak", true, true, true},
    {"mnuCalc", true, true, true},
    {"mnuHelpFile", true, true, true},
    {"mnuInfo", true, true, true},
    {"mnuTaakInfo", true, true, true},
    {"mnuTaakExit", true, true, true},
});

/// Whether a command is enabled. Fout 5 for a name that is not in the table.
[[nodiscard]] bool MenuAan(std::string_view naam, Toestand toestand);

/// A button of the toolbars beside the lists.
struct Toolbarknop {
  std::string_view Toolbar;
  int Plaats;
  std::string_view Sleutel;
  std::string_view ToolTip;
  Lijst Bij;  ///< the list whose click enables it
};

inline constexpr auto Toolbarknoppen = std::to_array<Toolbarknop>({
    {"Toolbar1", 2, "Add", "Kanaalelementen toevoegen", Lijst::lstTotaal},
    {"Toolbar1", 3, "Prop", "Kanaalelementen invoegen", Lijst::lstTotaal},
    {"Toolbar2", 2, "Delete", "Kanaalelementen wissen", Lijst::lstProject},
    {"Toolbar2", 3, "Down", "Kanaalelementen verplaatsen", Lijst::lstProject},
    {"Toolbar2", 4, "Up", "Kanaalelementen verplaatsen", Lijst::lstProject},
});

/// Whether a button is enabled: all are disabled until a list is clicked, then those of that list are.
[[nodiscard]] bool KnopAan(const Toolbarknop& knop, const Elementlijst& lijst);

// ---- Calculation type ----

/// What a calculation type shows. Pages 1, 2 and 3 of SSTab1 are enabled in every type.
struct TypeRegel {
  std::int16_t RekenType;
  std::string_view Menu;  ///< the one command of the three that is checked
  std::string_view Paneel2;
  bool Pagina0;            ///< the fan's page of SSTab1 is enabled
  bool VrijVeldZichtbaar;  ///< the control VrijVeld
};

inline constexpr auto TypeRegels = std::to_array<TypeRegel>({
    {rekentype::Installatiegeluid, "mnuVent", "Installatiegeluid", true, true},
    {rekentype::Geluidsuitstraling, "mnuUitstraling", "Geluidsuitstraling", true, true},
    {rekentype::Overspraak, "mnuOverspraak", "Overspraak", false, false},
});

/// The rule of a calculation type; for a number that is none (a file may hold any) nothing is checked and
/// panel 2 is empty.
[[nodiscard]] const TypeRegel& TypeVan(std::int16_t rekenType);

/// The page of SSTab1 that a switch of type selects, and a project just made or opened too.
inline constexpr Tab StartPagina = Tab::Projectgegevens;

// ---- What the windows show ----

/// The status bar. Panel 1 is UTF-8, as a file's name may have any character.
struct StatusBalk {
  std::string Paneel1;
  int Paneel1Beeld = 0;  ///< number in the main window's image list; 0 for none
  std::string Paneel2;
  std::string Paneel3;

  friend bool operator==(const StatusBalk&, const StatusBalk&) = default;
};

inline constexpr int BeeldBerekend = 6;

[[nodiscard]] StatusBalk StatusVan(const Sessie& sessie, const Project& project);

/// The project window's caption, the version first.
[[nodiscard]] std::string VensterTitel();

/// What is left for the windows to do; they then show commands, buttons and status bar by their state.
struct Gevolg {
  bool SluitVensters = false;  ///< close every window but frmMurvane and MDIMurvane, last opened first
  bool WisRapport = false;     ///< empty the six report blocks

  friend bool operator==(const Gevolg&, const Gevolg&) = default;
};

// ---- From state to state ----

/// The start: no project, calculation type 1. SSTab1, ProgressBar1 and MonthView start hidden; SSTab1 is
/// shown while a project is open.
[[nodiscard]] Sessie Form_Load(Project& project);

/// The commands, panel 1 and panel 3 of no open project.
void Settings(Sessie& sessie);

/// Blanks the project and empties the lists. The calculation type stays, and so do RNaam and RVolume.
Gevolg Reset(Sessie& sessie, Elementlijst& lijst, Project& project);

/// The state of a new project, behind Reset.
void ZetNieuw(Sessie& sessie, Elementlijst& lijst);

/// The state of a project that was read; `naam` is the bare file name, in UTF-8. The project counts as
/// changed.
Gevolg ZetGeopend(Sessie& sessie, Elementlijst& lijst, std::string_view naam);

/// The end of every project, saved or not: Reset and Settings.
Gevolg SluitProject(Sessie& sessie, Elementlijst& lijst, Project& project);

/// Flag vlag::Gewijzigd at every change, vlag::Berekend at the end of a run; other flags do nothing. `nummer`
/// tells the callers apart. Without a project no command changes: there is nothing to calculate.
Gevolg Berekend(Sessie& sessie, std::int16_t waarde, std::string_view nummer);

/// The commands mnuVent, mnuUitstraling and mnuOverspraak, with a project or without: sets the type and ends
/// as VrVldSet does, as a change. The window shows what TypeVan tells and selects StartPagina. Fout 5 for a
/// number that is no type.
Gevolg KiesRekenType(Sessie& sessie, Project& project, std::int16_t rekenType);

// ---- The callers of Berekend ----

struct Aanroepplaats {
  std::string_view Nummer;
  std::string_view Aanroeper;
};

inline constexpr auto Aanroepplaatsen = std::to_array<Aanroepplaats>({
    {"1", "Insert"},
    {"2", "lstProject_DblClick"},
    {"3", "lstTotaal_DblClick"},
    {"4", "txtB1Doorsnee_Change"},
    {"5", "txtB2Doorsnee_Change"},
    {"6", "txtBAftak_Change"},
    {"7", "txtBDoor_Change"},
    {"8", "txtBHoofd_Change"},
    {"9", "txtBreedte_Change"},
    {"10", "txtDebiet_Change"},
    {"11", "txtdemp_Change"},
    {"12", "txtH1Doorsnee_Change"},
    {"13", "txtH2Doorsnee_Change"},
    {"14", "txtHAftak_Change"},
    {"15", "txtHDoor_Change"},
    {"16", "txtHHoofd_Change"},
    {"17", "txtHoogte_Change"},
    {"18", "txtLDoorsnee_Change"},
    {"19", "txtLengte_Change"},
    {"20", "txtLw_Change"},
    {"21", "txtMyDate_Change"},
    {"22", "txtOmschrijving_Change"},
    {"23", "txtProNaam_Change"},
    {"24", "txtProNum_Change"},
    {"25", "txtQAftak_Change"},
    {"26", "txtRAantal_Change"},
    {"27", "txtRAftak_Change"},
    {"28", "VrVldSet"},
    {"29", "txtRBreedte_Change"},
    {"30", "txtRDI_Change"},
    {"31", "txtRHoogte_Change"},
    {"32", "txtRkanaal_Change"},
    {"33", "txtRLengte_Change"},
    {"34", "txtRNagalm_Change"},
    {"35", "txtRplafond_Change"},
    {"36", "txtruis_Change"},
    {"37", "txtSnetto_Change"},
    {"38", "txtSpectrum_Change"},
    {"39", "txtToelichting1_Change"},
    {"40", "txtToelichting2_Change"},
    {"41", "txtToelichting3_Change"},
    {"42", "txtWeerstand_Change"},
    {"43", "UpDown"},
    {"50", "cmbKanaal_Click"},  // only when the choice changed
    {"", "Reset"},
    {"", "mnuOpen_Click"},
    {"", "Reken"},
});

/// The number of a caller. Fout 5 for one that is not in the table.
[[nodiscard]] constexpr std::string_view AanroepNummer(std::string_view aanroeper) {
  for (const Aanroepplaats& plaats : Aanroepplaatsen) {
    if (plaats.Aanroeper == aanroeper) return plaats.Nummer;
  }
  throw Fout(FoutNummer::OngeldigArgument);
}

}  // namespace murvane
