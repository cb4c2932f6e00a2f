#pragma once
// The dialogs of the program on screen, before the window that is in hand.

#include "editor/dialogen.h"

namespace murvane {

class SchermDialogen : public Dialogen {
 public:
  Antwoord Toon(const Melding& melding) override;
  std::string Invoer(const InvoerVraag& vraag) override;
  std::filesystem::path OpenDialoog(const BestandVraag& vraag) override;
  std::filesystem::path OpslaanDialoog(const BestandVraag& vraag) override;
  AfdrukKeuze AfdrukDialoog(const AfdrukVraag& vraag) override;
  void Wachten(bool aan) override;
};

}  // namespace murvane
