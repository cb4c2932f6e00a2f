#pragma once
// The dialogs of the program on screen.

#include "editor/dialogen.h"

class QWidget;

namespace murvane {

class SchermDialogen : public Dialogen {
 public:
  /// `ouder` is the window that the dialogs stand before; it outlives this object.
  explicit SchermDialogen(QWidget* ouder) : ouder_(ouder) {}

  Antwoord Toon(const Melding& melding) override;
  std::string Invoer(const InvoerVraag& vraag) override;
  std::filesystem::path OpenDialoog(const BestandVraag& vraag) override;
  std::filesystem::path OpslaanDialoog(const BestandVraag& vraag) override;
  AfdrukKeuze AfdrukDialoog(const AfdrukVraag& vraag) override;
  void Wachten(bool aan) override;

 private:
  QWidget* ouder_;
};

}  // namespace murvane
