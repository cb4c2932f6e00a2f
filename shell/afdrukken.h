#pragma once
// The commands that bring the results out of the program: print, save as text, as PDF and as bitmaps, open
// the preview and show the chart. Each shows its failures itself, raises nothing of its own, and goes on
// behind the step that failed.

#include <cstdint>
#include <functional>
#include <string>

#include "editor/dialogen.h"
#include "reports/grafiek.h"
#include "reports/paginas.h"
#include "reports/pdf.h"
#include "reports/vlak.h"
#include "shell/programma.h"

namespace murvane {

/// Shows frmSelGraf and waits; the choice (kiesgrafiek).
using GrafiekKeuze = std::function<std::int16_t()>;

/// What the form shows, out of the program's data.
[[nodiscard]] Formulier FormulierVan(const Programma& programma);

/// The print command: print dialog, chart question, and one document a copy; or the text report, when the
/// user ticked printing to a file.
void AfdrukPrinter(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek);

/// The save command of the result window: the text report under a name that the user chooses.
void Afdruk(const Programma& programma, Dialogen& dialogen);

/// Draws a PDF of the form with this chart wish and choice.
using PdfMaker = std::function<PdfBytes(std::int16_t grafiekWens, std::int16_t grafiekKeuze)>;
/// Asks for the chart and a name and writes the form as PDF.
void OpslaanAlsPdf(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek,
                   const PdfMaker& maakPdf);

/// Draws the form on the preview's page and keeps its last page; the others it kept on the way.
void LaadVoorbeeld(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek, Vlak& document);

/// The bytes of the bitmap of a page, from 0.
using BitmapMaker = std::function<std::string(int index)>;
/// Saves every page of the preview under a name that the user chooses and the page's number.
void OpslaanAlsBitmap(const Programma& programma, Dialogen& dialogen, const BitmapMaker& maakBitmap);

/// The chart command: asks what to show where there is a choice and fills the chart. True: frmGrafiek is
/// shown.
[[nodiscard]] bool VulGrafiek(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek);

/// F8 in frmGrafiek: prints the window, of which `druk` draws one copy.
void DrukGrafiek(Dialogen& dialogen, const std::function<void(Vlak& blad)>& druk);

}  // namespace murvane
