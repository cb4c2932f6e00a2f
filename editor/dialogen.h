#pragma once
// What the program asks and tells its user, behind one abstract seam: the windows stand on its other side, a
// script does in a test. Texts are Windows-1252, file names are paths.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "editor/melding.h"

namespace murvane {

/// An input box: one line of text.
struct InvoerVraag {
  std::string Titel;
  std::string Tekst;      ///< the prompt; lines are parted by "\n"
  std::string Standaard;  ///< the text that the box opens with, selected

  friend bool operator==(const InvoerVraag&, const InvoerVraag&) = default;
};

/// A file dialog, to open or to save.
struct BestandVraag {
  std::string Titel;
  std::string Filter;                ///< one filter as "description|pattern"
  std::filesystem::path BeginMap{};  ///< where it opens, unless `Naam` has a directory of its own
  std::filesystem::path Naam{};      ///< the file name that it proposes; may be empty
  bool OverschrijfVraag = false;     ///< asks before a file that exists is chosen
  bool BestandMoetBestaan = false;   ///< takes no name of a file that does not exist
  bool MapBlijft = false;            ///< leaves the current directory alone
  std::string Extensie{};            ///< added to a name to save under that has none; empty adds nothing
  std::int16_t Bladen = 0;           ///< so many numbered files are saved instead, those of BitmapNamen

  friend bool operator==(const BestandVraag&, const BestandVraag&) = default;
};

class Vlak;

/// The print dialog: no choice of pages and no selection.
struct AfdrukVraag {
  bool NaarBestandMogelijk = true;                     ///< offers to print to a file
  bool Liggend = false;                                ///< lays the sheets on their long side
  std::string_view Document = "Berekeningsformulier";  ///< what the printer's queue calls it

  friend bool operator==(const AfdrukVraag&, const AfdrukVraag&) = default;
};

/// What the user chose in a print dialog; nothing to print before one was shown.
struct AfdrukKeuze {
  int Exemplaren = 0;
  bool NaarBestand = false;  ///< ticked printing to a file
  /// Begins a document on the chosen printer: one sheet a page, printing one copy.
  std::function<std::unique_ptr<Vlak>()> NieuwDocument;
};

class Dialogen {
 public:
  Dialogen() = default;
  Dialogen(const Dialogen&) = delete;
  Dialogen& operator=(const Dialogen&) = delete;
  virtual ~Dialogen() = default;

  /// Shows a message or a question and waits for its answer.
  virtual Antwoord Toon(const Melding& melding) = 0;
  /// The line that was entered; empty when the box was cancelled.
  virtual std::string Invoer(const InvoerVraag& vraag) = 0;
  /// The name that was chosen. Fout 32755 when the dialog was cancelled.
  virtual std::filesystem::path OpenDialoog(const BestandVraag& vraag) = 0;
  virtual std::filesystem::path OpslaanDialoog(const BestandVraag& vraag) = 0;
  /// What was chosen. Fout 32755 when the dialog was cancelled.
  virtual AfdrukKeuze AfdrukDialoog(const AfdrukVraag& vraag) = 0;
  /// Shows the wait cursor or restores the normal one. Raises nothing.
  virtual void Wachten(bool aan) = 0;
};

/// The wait cursor for as long as it lives.
class Zandloper {
 public:
  explicit Zandloper(Dialogen& dialogen) : dialogen_(dialogen) { dialogen_.Wachten(true); }
  Zandloper(const Zandloper&) = delete;
  Zandloper& operator=(const Zandloper&) = delete;
  ~Zandloper() { dialogen_.Wachten(false); }

 private:
  Dialogen& dialogen_;
};

/// Does a step of a command; what it raised, or nothing.
template <typename Stap>
[[nodiscard]] std::optional<Fout> Probeer(Stap stap) {
  try {
    stap();
    return std::nullopt;
  } catch (...) {
    return HuidigeFout();
  }
}

}  // namespace murvane
