#pragma once
// Saving a file that other programs may change too: what stands there by now is compared with what was read
// of it, and nothing of theirs is lost without a word.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "basis/bestand.h"

namespace murvane {

enum class Bewaarbesluit : std::uint8_t {
  Niets,      ///< what would stand there after the save stands there already
  NeemHunne,  ///< only they changed it
  Schrijf,
  Vraag  ///< both did
};

/// What to do with a file: what was read of it, when it was (`gelezen`), what stands there now, if anything,
/// and the image that we want to write, behind which the old bytes stay or not.
[[nodiscard]] Bewaarbesluit Beslis(const std::optional<Herinnering>& gelezen, const std::optional<Inhoud>& nu,
                                   std::string_view beeld, Staart staart);

/// How a save ended.
struct Bewaring {
  Bewaarbesluit Besluit = Bewaarbesluit::Schrijf;  ///< what was done; on Vraag nothing was
  /// What to remember from now on. On Vraag for who overwrites: saving again with this does, unless the file
  /// changes once more. On NeemHunne nothing, until their records are in memory.
  std::optional<Herinnering> Daarna{};
  Inhoud Hunne{};  ///< on NeemHunne
};

/// Saves an image under the file's slot, as Beslis says. Failures of Bestandsslot, LeesInhoud and
/// VervangBestand, with the file's name.
[[nodiscard]] Bewaring BewaarBeeld(const std::filesystem::path& pad, std::string_view beeld, Staart staart,
                                   const std::optional<Herinnering>& gelezen);

/// Gives a file this image, whatever it holds, under its slot.
void SchrijfBeeld(const std::filesystem::path& pad, std::string_view beeld, Staart staart);

/// What to remember of a file that was read, as the image of the records that came of it.
[[nodiscard]] Herinnering Onthoud(const Inhoud& inhoud, std::string_view beeld);

/// Whether both paths lead to one file, also when it is not there (any more).
[[nodiscard]] bool IsZelfdePad(const std::filesystem::path& een, const std::filesystem::path& ander);

}  // namespace murvane
