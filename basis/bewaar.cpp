#include "basis/bewaar.h"

#include <system_error>

#include "basis/fout.h"
#include "basis/slot.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// Whether a save would change nothing.
bool StaatErAl(const Inhoud& nu, std::string_view beeld, Staart staart) {
  if (staart == Staart::Blijft) return std::string_view(nu.Bytes).starts_with(beeld);
  return nu.Bytes == beeld && nu.Stempel.Grootte == beeld.size();
}

/// A regular file's content; nothing where none stands. Devices and pipes are written to and never read.
std::optional<Inhoud> WatErStaat(const fs::path& pad) {
  std::error_code geen;
  const fs::file_status staat = fs::status(pad, geen);
  if (fs::exists(staat) && fs::is_other(staat)) return std::nullopt;
  try {
    return LeesInhoud(pad);
  } catch (const Fout& fout) {
    if (fout.Nummer() == FoutNummer::BestandNietGevonden) return std::nullopt;
    throw;
  }
}

}  // namespace

Bewaarbesluit Beslis(const std::optional<Herinnering>& gelezen, const std::optional<Inhoud>& nu,
                     std::string_view beeld, Staart staart) {
  if (!nu) return Bewaarbesluit::Schrijf;
  if (StaatErAl(*nu, beeld, staart)) return Bewaarbesluit::Niets;
  if (!gelezen || IsOngewijzigd(gelezen->Bestand, nu->Stempel)) return Bewaarbesluit::Schrijf;
  return gelezen->Beeld == HashVan(beeld) ? Bewaarbesluit::NeemHunne : Bewaarbesluit::Vraag;
}

Bewaring BewaarBeeld(const fs::path& pad, std::string_view beeld, Staart staart,
                     const std::optional<Herinnering>& gelezen) {
  const Bestandsslot slot(pad);
  std::optional<Inhoud> nu = WatErStaat(pad);
  Bewaring uit{.Besluit = Beslis(gelezen, nu, beeld, staart)};
  switch (uit.Besluit) {
    case Bewaarbesluit::NeemHunne:
      uit.Hunne = std::move(*nu);
      return uit;
    case Bewaarbesluit::Vraag:
      uit.Daarna = Herinnering{nu->Stempel, gelezen->Beeld};
      return uit;
    case Bewaarbesluit::Schrijf:
      VervangBestand(pad, beeld, staart);
      nu = WatErStaat(pad);
      break;
    case Bewaarbesluit::Niets:
      break;
  }
  if (nu) uit.Daarna = Onthoud(*nu, beeld);
  return uit;
}

void SchrijfBeeld(const fs::path& pad, std::string_view beeld, Staart staart) {
  const Bestandsslot slot(pad);
  VervangBestand(pad, beeld, staart);
}

Herinnering Onthoud(const Inhoud& inhoud, std::string_view beeld) {
  return {inhoud.Stempel, HashVan(beeld)};
}

bool IsZelfdePad(const fs::path& een, const fs::path& ander) {
  std::error_code code;
  if (fs::equivalent(een, ander, code)) return true;
  const auto volledig = [&code](const fs::path& pad) {
    return fs::weakly_canonical(fs::absolute(pad, code), code);
  };
  return volledig(een) == volledig(ander);
}

}  // namespace murvane
