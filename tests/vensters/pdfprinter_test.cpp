// Printing on the printer of the dialog that writes a PDF: nothing is lost when it cannot be written.

#include <gtest/gtest.h>

#include <QPrinter>
#include <QProcess>
#include <memory>

#include "basis/bestand.h"
#include "reports/vensters_vlak.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;

class Pdfprinter : public testing::Test {
 protected:
  [[nodiscard]] std::shared_ptr<QPrinter> Printer(const fs::path& pad) const {
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QString::fromStdString(PadTekst(pad)));
    printer->setDocName("Grafiek één");
    return printer;
  }
  /// Prints a page with a word and ends the document; the number of the Fout that came, or 0.
  [[nodiscard]] int Druk(const fs::path& pad, bool liggend = false) const {
    return proef::NummerVan([&] {
      Schildervlak blad(Printer(pad), liggend);
      blad.Print("woord");
      blad.EndDoc();
      return 0;
    });
  }
  static std::string Info(const fs::path& pad) {
    QProcess proces;
    proces.start("pdfinfo", {QString::fromStdString(PadTekst(pad))});
    EXPECT_TRUE(proces.waitForFinished());
    return proces.readAllStandardOutput().toStdString();
  }
  proef::TijdelijkeMap map;
};

TEST_F(Pdfprinter, WritesTheDocumentUnderItsName) {
  ASSERT_EQ(Druk(map / "één.pdf"), 0);
  EXPECT_EQ(map.Namen(), std::vector<std::string>{"één.pdf"});
  const std::string info = Info(map / "één.pdf");
  EXPECT_NE(info.find("Grafiek één"), std::string::npos) << info;
  EXPECT_NE(info.find("595 x 842 pts (A4)"), std::string::npos) << info;
}

TEST_F(Pdfprinter, LaysTheSheetOnItsLongSide) {
  ASSERT_EQ(Druk(map / "één.pdf", true), 0);
  const std::string info = Info(map / "één.pdf");
  EXPECT_NE(info.find("842 x 595 pts (A4)"), std::string::npos) << info;
}

TEST_F(Pdfprinter, TellsOfAFullDiskAndKeepsTheOldFile) {
  for (const bool liggend : {false, true}) {
    proef::Schrijf(map / "oud.pdf", "oud");
    {
      const proef::Schijfgrens vol(100);
      EXPECT_EQ(Druk(map / "oud.pdf", liggend), 61);
    }
    EXPECT_EQ(proef::Lees(map / "oud.pdf"), "oud");
    EXPECT_EQ(map.Namen(), std::vector<std::string>{"oud.pdf"});
  }
}

TEST_F(Pdfprinter, TellsOfADirectoryThatIsNotThere) {
  EXPECT_EQ(Druk(map / "geen map/x.pdf"), 76);
}

TEST_F(Pdfprinter, LeavesTheOldFileOfADocumentThatWasNotEnded) {
  proef::Schrijf(map / "oud.pdf", "oud");
  {
    Schildervlak blad(Printer(map / "oud.pdf"));
    blad.Print("woord");
  }
  EXPECT_EQ(proef::Lees(map / "oud.pdf"), "oud");
}

}  // namespace
}  // namespace murvane
