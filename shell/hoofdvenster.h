#pragma once
// The main window without the window: its menu bar as a table.

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace murvane {

enum class MenuSoort : std::uint8_t {
  Menu,      ///< a menu of the bar
  Kop,       ///< a heading inside a menu, no command
  Opdracht,  ///< a command
  SubMenu,   ///< a menu inside a menu
  Keuze,     ///< a command that can be checked
};

/// One entry of the menu bar; it stands in the menu `In`, in the order of the table. Captions are
/// Windows-1252; "&" is the mnemonic.
struct MenuItem {
  std::string_view In;  ///< empty for a menu of the bar
  std::string_view Naam;
  std::string_view Opschrift;
  MenuSoort Soort;
};

inline constexpr auto MenuBalk = std::to_array<MenuItem>({
    {"", "mnuBestand", "Berekening", MenuSoort::Menu},
    {"mnuBestand", "mnuBestandSB", "Berekening..", MenuSoort::Kop},
    {"mnuBestand", "mnuNieuw", "&Nieuw", MenuSoort::Opdracht},
    {"mnuBestand", "mnuOpen", "&Openen", MenuSoort::Opdracht},
    {"mnuBestand", "mnuReken", "S&tart berekening", MenuSoort::Opdracht},
    {"mnuBestand", "mnuPreview", "Berekenin&gsresultaten", MenuSoort::Opdracht},
    {"mnuBestand", "mnuSluiten", "&Sluiten", MenuSoort::Opdracht},
    {"mnuBestand", "mnuOpslaan", "O&pslaan", MenuSoort::Opdracht},
    {"mnuBestand", "mnuAfdrukken", "&Afdrukken", MenuSoort::Opdracht},
    {"mnuBestand", "mnuExit", "&Exit", MenuSoort::Opdracht},
    {"", "mnuBeheer", "Lijsten", MenuSoort::Menu},
    {"mnuBeheer", "mnuBeheerSB", "Lijsten..", MenuSoort::Kop},
    {"mnuBeheer", "mnuElementen", "&Kanaalelementen", MenuSoort::Opdracht},
    {"mnuBeheer", "mnuFan", "&Ventilatoren", MenuSoort::Opdracht},
    {"mnuBeheer", "mnuDuct", "&Luchtkanalen", MenuSoort::Opdracht},
    {"mnuBeheer", "mnuPlafonds", "Pla&fonds", MenuSoort::Opdracht},
    {"", "mnuInstel", "Instellingen", MenuSoort::Menu},
    {"mnuInstel", "mnuInstelSB", "Instelling..", MenuSoort::Kop},
    {"mnuInstel", "mnuLetterType", "Lettert&ype", MenuSoort::Opdracht},
    {"mnuInstel", "mnuGebruiker", "Gebruike&rsnaam", MenuSoort::Opdracht},
    {"mnuInstel", "mnuTypReken", "Type berekening", MenuSoort::SubMenu},
    {"mnuTypReken", "mnuVent", "Installatiegeluid (roosters)", MenuSoort::Keuze},
    {"mnuTypReken", "mnuUitstraling", "Geluidsuitstraling (kanalen)", MenuSoort::Keuze},
    {"mnuTypReken", "mnuOverspraak", "Overspraak (roosters)", MenuSoort::Keuze},
    {"", "mnuVenster", "Venster", MenuSoort::Menu},
    {"", "mnuHelp", "Help", MenuSoort::Menu},
    {"mnuHelp", "mnuHelpSB", "Info..", MenuSoort::Kop},
    {"mnuHelp", "mnuCalc", "&Calculator", MenuSoort::Opdracht},
    {"mnuHelp", "mnuHelpFile", "&Help", MenuSoort::Opdracht},
    {"mnuHelp", "mnuInfo", "&Info over MurVane", MenuSoort::Opdracht},
});

/// The icon of a menu command: its number in the main window's image list, and its drawing in shell/beelden.
struct MenuBeeld {
  std::string_view Naam;
  int Beeld;
  std::string_view Tekening;
};

inline constexpr auto MenuBeelden = std::to_array<MenuBeeld>({
    {"mnuOpen", 2, "openen"},
    {"mnuNieuw", 13, "nieuw"},
    {"mnuSluiten", 12, "sluiten"},
    {"mnuReken", 8, "reken"},
    {"mnuPreview", 6, "berekend"},
    {"mnuExit", 10, "exit"},
    {"mnuOpslaan", 11, "opslaan"},
    {"mnuAfdrukken", 3, "printen"},
    {"mnuTypReken", 18, "type"},
    {"mnuLetterType", 5, "letter"},
    {"mnuGebruiker", 7, "gebruiker"},
    {"mnuDuct", 14, "luchtkanaal"},
    {"mnuPlafonds", 15, "plafond"},
    {"mnuFan", 16, "ventilator"},
    {"mnuElementen", 17, "kanaalelement"},
    {"mnuCalc", 9, "calculator"},
    {"mnuHelpFile", 1, "help"},
    {"mnuInfo", 4, "info"},
});

/// The popup of the tray icon; its default command is the second.
inline constexpr auto TaakBalk = std::to_array<MenuItem>({
    {"mnuTaakBar", "mnuTaakInfo", "Info", MenuSoort::Opdracht},
    {"mnuTaakBar", "mnuTaakExit", "Afsluiten", MenuSoort::Opdracht},
});

/// The least size of the main window, twips; 15 twips are one logical pixel.
inline constexpr int MinBreedte = 9600;
inline constexpr int MinHoogte = 7200;
inline constexpr int TwipsPerPixel = 15;

/// A size in logical pixels.
struct Maat {
  int Breedte = 0;
  int Hoogte = 0;
};

/// The size at which the main window opens where a screen leaves it so much room, its frame included: never
/// past the screen, unless that is smaller than its least size.
constexpr Maat OpenMaat(Maat vrij) {
  constexpr Maat gewoon{1024, 740};
  constexpr int titelbalk = 28;
  return {std::clamp(vrij.Breedte, MinBreedte / TwipsPerPixel, gewoon.Breedte),
          std::clamp(vrij.Hoogte - titelbalk, MinHoogte / TwipsPerPixel, gewoon.Hoogte)};
}

}  // namespace murvane
