#pragma once
// A start that tries a build or a package: the program starts whole, shows its window, waits for nobody and
// ends. The environment asks for it with MURVANE_ROOKPROEF=1.

#include <iosfwd>
#include <string_view>

#include "editor/dialogen.h"

namespace murvane {

inline constexpr const char* RookproefVariabele = "MURVANE_ROOKPROEF";

[[nodiscard]] constexpr bool IsRookproef(std::string_view waarde) {
  return waarde == "1";
}

/// Dialogs that nobody answers: each is written as one line (UTF-8, as Toonbaar shows it) and taken as
/// cancelled, so that whatever asked gives up.
class StilleDialogen final : public Dialogen {
 public:
  explicit StilleDialogen(std::ostream& uit) : uit_(uit) {}

  /// Something was told or asked: the start did not go as it should.
  [[nodiscard]] bool IetsGevraagd() const { return gevraagd_; }

  Antwoord Toon(const Melding& melding) override;
  std::string Invoer(const InvoerVraag& vraag) override;
  std::filesystem::path OpenDialoog(const BestandVraag& vraag) override;
  std::filesystem::path OpslaanDialoog(const BestandVraag& vraag) override;
  AfdrukKeuze AfdrukDialoog(const AfdrukVraag& vraag) override;
  void Wachten(bool /*aan*/) override {}

 private:
  void Schrijf(std::string_view titel, std::string_view utf8);

  std::ostream& uit_;
  bool gevraagd_ = false;
};

}  // namespace murvane
