#pragma once
// What the toolkit's PDF writer leaves out of a document.

#include <string>
#include <string_view>

#include "reports/paginas.h"

namespace murvane {

/// A PDF of the form, and whether its chart was filled.
struct PdfBytes {
  std::string Bytes;
  GrafiekUitkomst DeGrafiek = GrafiekUitkomst::Goed;
};

/// The PDF with its author named: an update appended to the bytes, which stay as they are. `auteur` is
/// Windows-1252; an empty one changes nothing. Fout 51 when the bytes are no PDF with an information
/// dictionary.
[[nodiscard]] std::string MetAuteur(std::string pdf, std::string_view auteur);

}  // namespace murvane
