#pragma once
// The fan tab: the two sources of the fan's spectrum, a list and a prognosis from the fan's data. Nothing
// here needs a window; it carries out what comes back. Texts are Windows-1252.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/melding.h"
#include "editor/veldhandlers.h"
#include "project/records.h"

namespace murvane {

inline constexpr int FanVakken = 5;  ///< txtfan(0) to txtfan(4)

/// What shows on the fan tab and which options are chosen.
struct FanZicht {
  bool optInvoer, optPrognose;  ///< chosen
  bool optAxiaal, optCentriVoor, optCentriAchter;
  bool lstFan;    ///< shown and thereby available
  bool frameFan;  ///< so are txtfan, lblfan, the type options, cmdFanOK and cmdFanCancel

  friend bool operator==(const FanZicht&, const FanZicht&) = default;
};

[[nodiscard]] FanZicht FanZichtVan(const Project& project);

/// What an event of the fan tab brings about, in this order. The options and the row are set without their
/// own click handling, which is part of this.
struct FanUitslag {
  std::vector<VeldUitslag> Velden;  ///< checked boxes, with their change events where the text differs
  std::vector<VeldTekst> Zet;       ///< then these texts, with theirs
  std::optional<std::string> lblLwA;
  FanZicht Zicht{};
  std::optional<int> KiesRij;      ///< the row of lstFan to select, from 0
  std::optional<Melding> Box;      ///< a refusal
  std::optional<VeldId> Focus;     ///< behind the box
  bool OpenEersteElement = false;  ///< select the first row of lstProject, with its click handling
  bool Gewijzigd = false;          ///< last: Berekend with false, as another source gives another run
};

/// The prognosis: reads and checks the five boxes in order, stores them, names the fan after its data and
/// works out its spectrum. A power of 0 is worked out at an efficiency of 70 %, at least 1 W. Refuses a flow
/// or pressure of 0, a box that holds no number, and a fan without a type; then nothing is stored.
[[nodiscard]] FanUitslag cmdFanOK_Click(Project& project, const std::array<std::string, FanVakken>& txtfan,
                                        char decimaal);

/// A choice of fan type (fantype): clears the display; the stored spectrum stays.
[[nodiscard]] FanUitslag FanTypeGekozen(Project& project, std::int16_t fanType);

/// A choice in lstFan (rij from 0, -1 for none). `laatsteRij` is the catalogue row chosen last, counted from
/// 1, 0 for none; the window keeps it. A row whose record was deleted since the list was filled is left for
/// the one chosen last. Fout 6 for a spectrum without a finite sum; then nothing has changed.
[[nodiscard]] FanUitslag lstFan_Click(Project& project, int rij, const SpectrumCatalogus& CatFans,
                                      int& laatsteRij, char decimaal);

/// The list as the source: clears the display and takes the row chosen last again, if there is one still.
[[nodiscard]] FanUitslag optInvoer_Click(Project& project, const SpectrumCatalogus& CatFans, int& laatsteRij,
                                         char decimaal);

/// The prognosis as the source. `tab` is the tab that SSTab1 shows.
[[nodiscard]] FanUitslag optPrognose_Click(Project& project, int tab);

/// Back to the list, as optInvoer_Click.
[[nodiscard]] FanUitslag cmdFanCancel_Click(Project& project, const SpectrumCatalogus& CatFans,
                                            int& laatsteRij, char decimaal);

}  // namespace murvane
