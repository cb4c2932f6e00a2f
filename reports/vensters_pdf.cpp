#include "reports/vensters_pdf.h"

#include <QBuffer>
#include <QPdfWriter>
#include <memory>

#include "basis/vensters_hulp.h"
#include "reports/vensters_vlak.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr int TwipsPerInch = 1440;

/// What a reader shows as the document's name.
QString TitelVan(const ProjectRec& kop) {
  std::string titel = "Berekeningsformulier";
  for (const std::string_view deel : {kop.ProNum.Getrimd(), kop.ProNaam.Getrimd()})
    if (!deel.empty()) titel.append(" - ").append(deel);
  return VanCp(titel);
}

}  // namespace

PdfBytes MaakPdf(const Formulier& formulier, std::int16_t grafiekWens, std::int16_t grafiekKeuze,
                 Grafiek& grafiek) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  PdfBytes uit;
  {
    const auto schrijver = std::make_shared<QPdfWriter>(&buffer);
    schrijver->setResolution(TwipsPerInch);
    schrijver->setTitle(TitelVan(formulier.Project.Kop));
    schrijver->setCreator(QString("MurVane ") + VersieTekst);
    Schildervlak blad(schrijver);
    VoorbeeldStand geenVoorbeeld;
    uit.DeGrafiek = DrukRapport(blad, formulier, grafiekWens, grafiekKeuze, geenVoorbeeld, grafiek);
    blad.EndDoc();
  }
  uit.Bytes = MetAuteur(buffer.data().toStdString(), formulier.Gebruikersnaam.Getrimd());
  return uit;
}

}  // namespace murvane
