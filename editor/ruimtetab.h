#pragma once
// The room tab: which fields show, and the choices of duct wall and ceiling. Texts are Windows-1252.

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/veldhandlers.h"
#include "project/records.h"

namespace murvane {

/// What shows on the room tab. A field takes its labels with it, a combo box its seven band boxes.
struct RuimteZicht {
  bool txtRLengte, txtRBreedte, txtRHoogte, txtRNagalm, txtRNR, txtRDI, txtRAantal;
  bool cmbRkanaal, cmbRplafond;
  bool VrijVeld;  ///< the check box itself

  /// The band headings over the boxes of duct wall and ceiling.
  [[nodiscard]] bool Bandkop() const { return cmbRkanaal || cmbRplafond; }

  friend bool operator==(const RuimteZicht&, const RuimteZicht&) = default;
};

/// What shows for a calculation type and a free-field situation (not 0); a type outside 1 to 3 shows what
/// type 1 does.
[[nodiscard]] RuimteZicht RuimteZichtVan(std::int16_t rekenType, std::int16_t vrijVeld);

/// A change on the room tab.
struct RuimteUitslag {
  RuimteZicht Zicht;
  std::vector<VeldTekst> Zet;  ///< with their change events
  std::string_view Berekend;   ///< last: the caller's number for Berekend with false
};

/// Shapes the room tab after the user switched the calculation type or the free-field situation. Break-out
/// through the duct wall knows no number of outlets: txtRAantal is blanked; the record follows when the field
/// is left or a run starts.
[[nodiscard]] RuimteUitslag VrVldSet(const Project& project);

/// A click on the check box: stores it, then VrVldSet.
[[nodiscard]] RuimteUitslag VrijVeld_Click(Project& project, bool aan);

/// The choice of a row (from 0): name and seven bands go into the room; slot 7 stays. No row (-1) changes
/// nothing; Fout 9 for a row that the catalogue does not have.
[[nodiscard]] KeuzeUitslag cmbRkanaal_Click(Project& project, int rij, const SpectrumCatalogus& CatRduct,
                                            char decimaal);
[[nodiscard]] KeuzeUitslag cmbRplafond_Click(Project& project, int rij, const SpectrumCatalogus& CatRplaf,
                                             char decimaal);

/// An edit that leaves the box empty puts the placeholder back.
[[nodiscard]] KeuzeUitslag cmbRkanaal_Change(std::string_view tekst);
[[nodiscard]] KeuzeUitslag cmbRplafond_Change(std::string_view tekst);

/// A box that is left blank: the placeholder becomes text and name, all seven bands 0. A name that was typed
/// and not chosen goes back to the stored one, or its placeholder.
[[nodiscard]] KeuzeUitslag cmbRkanaal_LostFocus(Project& project, std::string_view tekst, char decimaal);
[[nodiscard]] KeuzeUitslag cmbRplafond_LostFocus(Project& project, std::string_view tekst, char decimaal);

/// The text that a combo box of the room shows for a stored name: the placeholder when it is empty.
[[nodiscard]] std::string RkanaalTekst(const RuimteRec& ruimte);
[[nodiscard]] std::string RplafondTekst(const RuimteRec& ruimte);

}  // namespace murvane
