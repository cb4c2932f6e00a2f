#pragma once
// Saving a file of the user's that another program may have changed meanwhile, with the question when both
// did.

#include <filesystem>
#include <optional>
#include <string_view>

#include "basis/bewaar.h"
#include "editor/dialogen.h"

namespace murvane {

/// A file that is saved: what was read of it, and whether the user can give another name for it.
struct Bewaardoel {
  std::filesystem::path Pad;
  murvane::Staart Staart = Staart::Vervalt;
  std::optional<Herinnering> Gelezen{};
  bool AndereNaam = false;
};

/// How it ended: Overschrijven when the file is as it has to be (written, equal already, or theirs, as the
/// Bewaring tells), else the user's answer, Anders or Cancel, and nothing was done.
struct BewaarAntwoord {
  Antwoord Hoe = Antwoord::Overschrijven;
  murvane::Bewaring Bewaring;
};

/// Saves an image as BewaarBeeld does, under the wait cursor, and asks when another program changed the file
/// too. A file that changes once more while the question stands is asked about again. Failures of
/// BewaarBeeld.
[[nodiscard]] BewaarAntwoord BewaarMetVraag(Bewaardoel doel, std::string_view beeld, Dialogen& dialogen);

}  // namespace murvane
