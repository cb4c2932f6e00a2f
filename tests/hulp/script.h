#pragma once
// A user in a test: gives the answers of a script in their order. A question that the script does not have
// there, or one that is never asked, fails the test.

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "editor/dialogen.h"

namespace murvane::proef {

class Script final : public Dialogen {
 public:
  /// Tells the test framework of a failure.
  using MeldFout = std::function<void(const std::string&)>;
  /// Done while the box stands there, as what happens outside the program meanwhile.
  using Intussen = std::function<void()>;

  explicit Script(MeldFout meldFout) : meldFout_(std::move(meldFout)) {}
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;
  ~Script() override { IsKlaar(); }

  Script& Box(const Melding& melding, Antwoord antwoord = Antwoord::OK, Intussen intussen = {});
  Script& InvoerBox(const InvoerVraag& vraag, const std::string& antwoord, Intussen intussen = {});
  /// Without an answer the dialog is cancelled.
  Script& Open(const BestandVraag& vraag, std::optional<std::filesystem::path> antwoord,
               Intussen intussen = {});
  Script& Opslaan(const BestandVraag& vraag, std::optional<std::filesystem::path> antwoord,
                  Intussen intussen = {});

  Script& Afdrukken(const AfdrukVraag& vraag, std::optional<AfdrukKeuze> antwoord, Intussen intussen = {});

  /// Fails the test unless every question was asked and the wait cursor is gone.
  void IsKlaar();
  /// Whether the wait cursor is shown now.
  [[nodiscard]] bool Wacht() const { return wacht_; }
  /// How often the wait cursor was shown.
  [[nodiscard]] int KeerGewacht() const { return keerGewacht_; }

  Antwoord Toon(const Melding& melding) override;
  std::string Invoer(const InvoerVraag& vraag) override;
  std::filesystem::path OpenDialoog(const BestandVraag& vraag) override;
  std::filesystem::path OpslaanDialoog(const BestandVraag& vraag) override;
  AfdrukKeuze AfdrukDialoog(const AfdrukVraag& vraag) override;
  void Wachten(bool aan) override;

 private:
  struct Stap {
    std::string Vraag;  ///< the whole question in words, UTF-8
    Antwoord Gekozen = Antwoord::Cancel;
    std::string Tekst;
    std::optional<std::filesystem::path> Pad;
    Intussen Onderwijl;
    std::optional<AfdrukKeuze> Afdruk;
  };

  Script& Voeg(Stap stap);
  /// Answers a question; one that is out of place as a user who cancels it.
  Stap Neem(const std::string& vraag);
  std::filesystem::path NeemPad(const std::string& vraag);

  MeldFout meldFout_;
  std::deque<Stap> stappen_;
  bool wacht_ = false;
  int keerGewacht_ = 0;
};

}  // namespace murvane::proef
