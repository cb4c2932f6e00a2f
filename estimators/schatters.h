#pragma once
// The four estimators by one interface: the table of their windows, and what a window asks of its estimator.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "estimators/schatting.h"

namespace murvane {

enum class Schatter : std::uint8_t { Bekleed, KwartLambda, Plenum, Kanaalwand };

/// What tells an estimator's window from the others; texts are Windows-1252.
struct SchatVenster {
  Schatter Soort;
  std::string_view Naam;  ///< of the window
  std::string_view Titel;
  std::string_view Beeld;  ///< of the drawing, unless its duct is round: see BeeldVan
  std::span<const SchatVeld> Velden;
};

[[nodiscard]] const SchatVenster& VensterVan(Schatter soort);

/// The opening of a window: puts right what its inputs cannot be.
void Form_Load(SchatInvoer& invoer, Schatter soort);

/// The estimate from the stored inputs, or a refusal.
[[nodiscard]] SchatUitslag cmdOK_Click(const SchatInvoer& invoer, Schatter soort, char decimaal);

/// The estimate that OK would give for texts that stand in the fields but are not stored yet, in the order of
/// the fields; nothing when one of them is no number or OK would refuse.
[[nodiscard]] std::optional<Schatting> Voorproef(const SchatInvoer& invoer, Schatter soort,
                                                 std::span<const std::string> teksten, char decimaal);

/// The drawing of an estimate for texts that stand in the fields: a duct without a width is round.
[[nodiscard]] std::string_view BeeldVan(const SchatInvoer& invoer, Schatter soort,
                                        std::span<const std::string> teksten, char decimaal);

}  // namespace murvane
