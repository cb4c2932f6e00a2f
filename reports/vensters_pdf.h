#pragma once
// The printed form as a PDF.

#include <cstdint>
#include <string>

#include "reports/paginas.h"
#include "reports/pdf.h"

namespace murvane {

/// Draws the form as a PDF: real text in embedded fonts on whole A4 sheets, with title and author. Fout 75
/// when the document cannot be made.
[[nodiscard]] PdfBytes MaakPdf(const Formulier& formulier, std::int16_t grafiekWens,
                               std::int16_t grafiekKeuze, Grafiek& grafiek);

}  // namespace murvane
