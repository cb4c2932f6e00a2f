// The printed form on real surfaces, and the program that writes it without a screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPdfWriter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <cmath>
#include <initializer_list>
#include <map>
#include <sstream>
#include <tuple>
#include <utility>

#include "cli/vensters_druk.h"
#include "editor/vensters_dialogen.h"
#include "project/projectfile.h"
#include "reports/preview.h"
#include "reports/vensters_grafiek.h"
#include "reports/vensters_pdf.h"
#include "reports/vensters_vlak.h"
#include "shell/afdrukken.h"
#include "shell/run.h"
#include "tests/cli/hulp.h"
#include "tests/hulp/opnemer.h"
#include "tests/hulp/paden.h"
#include "tests/vensters/robot.h"

namespace murvane::clitest {
namespace {

using testing::HasSubstr;

Afloop Druk(const std::vector<std::string>& argumenten, const Omstandigheid& hoe = {}) {
  std::ostringstream uit;
  std::ostringstream err;
  const int code = VoerProgrammaUit(Opdracht::Druk, argumenten, KanalenVan(uit, err, hoe), VoerDruk);
  return {code, uit.str(), err.str()};
}

/// What a program of the system prints.
QString Uitvoer(const QString& programma, const QStringList& argumenten) {
  QProcess proces;
  proces.start(programma, argumenten);
  EXPECT_TRUE(proces.waitForFinished()) << programma.toStdString();
  EXPECT_EQ(proces.exitCode(), 0) << proces.readAllStandardError().toStdString();
  return QString::fromUtf8(proces.readAllStandardOutput());
}

struct Woord {
  int Blad;
  double Links, Boven, Rechts, Onder;  // points
  QString Tekst;
};

std::vector<Woord> WoordenVan(const std::string& pdf) {
  std::vector<Woord> uit;
  static const QRegularExpression Woordregel(
      R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*)</word>)re");
  int blad = 0;
  for (const QString& regel : Uitvoer("pdftotext", {"-bbox", QString::fromStdString(pdf), "-"}).split('\n')) {
    if (regel.contains("<page ")) ++blad;
    const auto m = Woordregel.match(regel);
    if (m.hasMatch())
      uit.push_back({blad, m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3).toDouble(),
                     m.captured(4).toDouble(), m.captured(5)});
  }
  return uit;
}

/// A sample, calculated.
struct Voorbeeldproject {
  Project project;
  Resultaten resultaten;
  Rapport rapport;
  Tekst<35> gebruiker{"Bureau De Wit"};
  DrukInstelling instelling = StandaardDrukInstelling();

  explicit Voorbeeldproject(const std::string& naam)
      : project(LeesProject(proef::BronMap() / "data" / naam)) {
    const auto bevinding = VoerUit(project, InvoerVan(project, ','), gebruiker, ',', resultaten, rapport);
    EXPECT_FALSE(bevinding.has_value());
  }
  [[nodiscard]] Formulier HetFormulier() const { return {project, resultaten, gebruiker, instelling, ','}; }
};

/// The numbers of the table that a form has, counted by themselves on the recorder.
std::map<std::string, int> Tabelgetallen(const Formulier& formulier) {
  proef::Opnemer blad;
  VoorbeeldStand stand;
  Grafiek grafiek;
  (void)DrukRapport(blad, formulier, 0, 0, stand, grafiek);
  std::map<std::string, int> uit;
  static const QRegularExpression Getal(R"(^-?\d+,\d$)");
  for (const auto& woord : blad.Woorden())
    if (woord.Font.Punten == 7.2 && Getal.match(QString::fromStdString(woord.Tekst)).hasMatch())
      ++uit[woord.Tekst];
  return uit;
}

constexpr double Kolompunten = 7.2 * 0.6;
constexpr double Einden[] = {64, 72, 80, 88, 96, 104, 112, 123};

bool OpRaster(double rechts) {
  return std::any_of(std::begin(Einden), std::end(Einden),
                     [&](double einde) { return std::fabs(rechts - einde * Kolompunten) <= 1.5; });
}

/// The numbers of the table that a PDF has at their grid positions, whatever page they are on.
std::map<std::string, int> OpRasterVan(const std::vector<Woord>& woorden) {
  std::map<std::string, int> uit;
  for (const Woord& woord : woorden)
    if (woord.Onder - woord.Boven < 9.5 && OpRaster(woord.Rechts)) ++uit[woord.Tekst.toStdString()];
  return uit;
}

void HoudtZichAanHetRaster(Voorbeeldproject& voorbeeld, const proef::TijdelijkeMap& map,
                           const std::string& welke) {
  const auto pad = map / "formulier één.pdf";
  Grafiek grafiek;
  proef::Schrijf(pad, MaakPdf(voorbeeld.HetFormulier(), 1, kiesgrafiek::EenMeter, grafiek).Bytes);
  const auto woorden = WoordenVan(PadTekst(pad));
  const auto opRaster = OpRasterVan(woorden);
  int getallen = 0;
  for (const auto& [getal, aantal] : Tabelgetallen(voorbeeld.HetFormulier())) {
    const auto gevonden = opRaster.find(getal);
    // A fan row that is repeated on more or fewer pages than with the recorder's font differs by some.
    EXPECT_TRUE(gevonden != opRaster.end() && std::abs(gevonden->second - aantal) <= 2)
        << welke << ": " << getal << " " << aantal;
    getallen += aantal;
  }
  EXPECT_GT(getallen, 80) << welke;
  for (const Woord& woord : woorden) {
    const bool voet = woord.Boven > 841.9 - 42.5;
    EXPECT_TRUE(voet || woord.Onder <= 841.9 - 42.5) << welke << ": " << woord.Tekst.toStdString();
    EXPECT_LE(woord.Rechts, 595.3 - 21.6 + 0.1) << welke << ": " << woord.Tekst.toStdString();
    EXPECT_TRUE(!voet || QStringList({"MurVane", "6.7", "Pagina"}).contains(woord.Tekst) ||
                woord.Tekst.toInt() > 0);
  }
}

const std::initializer_list<const char*> Voorbeelden = {"kantoor.mrv", "plafond.mrv", "overspraak.mrv"};

TEST(Formulierpdf, EndsEveryNumberOnItsGridPosition) {
  const proef::TijdelijkeMap map;
  for (const char* naam : Voorbeelden) {
    Voorbeeldproject voorbeeld(naam);
    HoudtZichAanHetRaster(voorbeeld, map, naam);
  }
}

/// The numbers of the table, row by row down the document: each with the grid position at which it ends.
using Tabel = std::vector<std::vector<std::pair<std::string, long>>>;

void Voeg(Tabel& tabel, bool nieuweRij, const std::string& getal, double einde) {
  if (nieuweRij) tabel.emplace_back();
  tabel.back().emplace_back(getal, std::lround(einde));
}

const QRegularExpression EenDecimaal(R"(^-?\d+,\d$)");

Tabel TabelVan(const Formulier& formulier) {
  proef::Opnemer blad;
  VoorbeeldStand stand;
  Grafiek grafiek;
  (void)DrukRapport(blad, formulier, 0, 0, stand, grafiek);
  Tabel uit;
  double y = -1;
  for (const auto& woord : blad.Woorden()) {
    if (woord.Font.Punten != 7.2 || !EenDecimaal.match(QString::fromStdString(woord.Tekst)).hasMatch())
      continue;
    const double einde = woord.X / 86.4 + static_cast<double>(woord.Tekst.size());
    Voeg(uit, woord.Y != std::exchange(y, woord.Y), woord.Tekst, einde);
  }
  return uit;
}

Tabel TabelVan(std::vector<Woord> woorden) {
  std::erase_if(woorden, [](const Woord& woord) {
    return woord.Onder - woord.Boven > 9.5 || woord.Rechts < 63 * Kolompunten ||
           !EenDecimaal.match(woord.Tekst).hasMatch();
  });
  std::sort(woorden.begin(), woorden.end(), [](const Woord& een, const Woord& ander) {
    return std::tuple(een.Blad, std::lround(een.Boven * 2), een.Links) <
           std::tuple(ander.Blad, std::lround(ander.Boven * 2), ander.Links);
  });
  Tabel uit;
  double y = -1;
  for (const Woord& woord : woorden)
    Voeg(uit, std::fabs(woord.Boven - std::exchange(y, woord.Boven)) > 1, woord.Tekst.toStdString(),
         woord.Rechts / Kolompunten);
  return uit;
}

/// Without the fan's row, which comes first and again on each page: with its own font the recorder breaks the
/// pages elsewhere.
Tabel ZonderHerhaling(Tabel tabel) {
  const auto eerste = tabel.at(0);
  tabel.erase(std::remove(tabel.begin() + 1, tabel.end(), eerste), tabel.end());
  return tabel;
}

TEST(Formulierpdf, HasEveryNumberInItsOwnRowAndColumn) {
  const proef::TijdelijkeMap map;
  for (const char* naam : Voorbeelden) {
    Voorbeeldproject voorbeeld(naam);
    Grafiek grafiek;
    proef::Schrijf(map / "x.pdf", MaakPdf(voorbeeld.HetFormulier(), 0, 0, grafiek).Bytes);
    const Tabel gedrukt = ZonderHerhaling(TabelVan(WoordenVan(PadTekst(map / "x.pdf"))));
    const Tabel verwacht = ZonderHerhaling(TabelVan(voorbeeld.HetFormulier()));
    ASSERT_EQ(gedrukt.size(), verwacht.size()) << naam;
    for (std::size_t rij = 0; rij < gedrukt.size(); ++rij)
      EXPECT_EQ(gedrukt[rij], verwacht[rij]) << naam << " " << rij;
  }
}

TEST(Formulierpdf, KeepsTheGridInEverySizeAndInAProportionalFont) {
  const proef::TijdelijkeMap map;
  for (const char* naam : Voorbeelden) {
    for (const std::int16_t grootte : {std::int16_t{6}, std::int16_t{8}, std::int16_t{10}}) {
      Voorbeeldproject voorbeeld(naam);
      voorbeeld.instelling.LetterGrootte = grootte;
      HoudtZichAanHetRaster(voorbeeld, map, naam);
    }
    for (const char* font : {"DejaVu Sans", "Liberation Serif"}) {
      Voorbeeldproject voorbeeld(naam);
      voorbeeld.instelling.LettertypeNaam = font;
      HoudtZichAanHetRaster(voorbeeld, map, std::string(naam) + " " + font);
    }
  }
}

TEST(Formulierpdf, IsTextInEmbeddedFontsOnA4WithTitleAndAuthor) {
  const proef::TijdelijkeMap map;
  Voorbeeldproject voorbeeld("kantoor.mrv");
  voorbeeld.project.Kop.ProNaam = "Één kantoor"_cp;
  Grafiek grafiek;
  const PdfBytes pdf = MaakPdf(voorbeeld.HetFormulier(), 0, 0, grafiek);
  EXPECT_EQ(pdf.DeGrafiek, GrafiekUitkomst::Goed);
  proef::Schrijf(map / "x.pdf", pdf.Bytes);
  const QString pad = QString::fromStdString(PadTekst(map / "x.pdf"));
  const std::string info = Uitvoer("pdfinfo", {pad}).toStdString();
  EXPECT_THAT(info, HasSubstr("Title:           Berekeningsformulier - VB-1 - Één kantoor\n"));
  EXPECT_THAT(info, HasSubstr("Author:          Bureau De Wit\n"));
  EXPECT_THAT(info, HasSubstr("Creator:         MurVane 6.7\n"));
  EXPECT_THAT(info, HasSubstr("Page size:       595 x 842 pts (A4)\n"));
  for (const QString& regel : Uitvoer("pdffonts", {pad}).split('\n').mid(2)) {
    EXPECT_TRUE(regel.isEmpty() || regel.contains("yes no  yes") || regel.contains("yes yes yes"))
        << regel.toStdString();
  }
  EXPECT_TRUE(Uitvoer("pdftotext", {"-layout", pad, "-"}).contains("h×b = 500×700 mm"));
}

TEST(Formulierpdf, SetsALineThatIsTooLongNarrowerSoThatItStaysOnTheSheet) {
  const proef::TijdelijkeMap map;
  Voorbeeldproject voorbeeld("kantoor.mrv");
  voorbeeld.project.Kop.Omschrijving = std::string(79, 'm') + "W";
  Grafiek grafiek;
  proef::Schrijf(map / "x.pdf", MaakPdf(voorbeeld.HetFormulier(), 0, 0, grafiek).Bytes);
  int gezien = 0;
  for (const Woord& woord : WoordenVan(PadTekst(map / "x.pdf"))) {
    if (!woord.Tekst.endsWith("mW")) continue;
    ++gezien;
    EXPECT_EQ(woord.Tekst.size(), 80);
    EXPECT_NEAR(woord.Links, 180, 0.1);     // column 25 of 7.2 points
    EXPECT_LE(woord.Rechts, 595.3 - 21.6);  // the right-hand margin, that the last letter leans towards
    EXPECT_GE(woord.Rechts, 595.3 - 21.6 - 1);
  }
  EXPECT_EQ(gezien, 2);  // on each page
}

TEST(FontVan, HasTheFormsMeasuresWhereItsFontIsMissing) {
  // 0.6 em wide, and low enough for the final rows to stay above the footer.
  QFont font = FontVan("Courier New");
  font.setPixelSize(1000);
  EXPECT_NEAR(QFontMetricsF(font).horizontalAdvance("0"), 600, 3);
  EXPECT_LE(QFontMetricsF(font).lineSpacing(), 1170);
}

// The print dialog and the printer behind it: without any printer, the one that writes a PDF.

TEST(Afdrukdialoog, PrintsOnTheChosenPrinter) {
  const proef::TijdelijkeMap map;
  const auto pad = map / "gedrukt één.pdf";
  proef::Robot robot;
  robot.Dan([&](QDialog& dialoog) {
    auto* const bestand = dialoog.findChild<QLineEdit*>("filename");
    ASSERT_NE(bestand, nullptr);
    bestand->setText(QString::fromStdString(PadTekst(pad)));
    EXPECT_FALSE(dialoog.findChild<QCheckBox*>("chkNaarBestand")->isChecked());
    EXPECT_EQ(dialoog.findChild<QCheckBox*>("chkNaarBestand")->accessibleDescription(),
              "Bewaart het rapport als tekst en drukt niets af.");
    dialoog.accept();
  });
  SchermDialogen dialogen;
  const AfdrukKeuze keuze = dialogen.AfdrukDialoog({});
  EXPECT_EQ(keuze.Exemplaren, 1);
  EXPECT_FALSE(keuze.NaarBestand);
  EXPECT_FALSE(std::filesystem::exists(pad));  // nothing is printed before the form is drawn
  Voorbeeldproject voorbeeld("kantoor.mrv");
  VoorbeeldStand stand;
  Grafiek grafiek;
  for (int exemplaar = 0; exemplaar < 2; ++exemplaar) {
    const auto document = keuze.NieuwDocument();
    EXPECT_NEAR(document->ScaleWidth(), 11905.5, 0.1);
    EXPECT_NEAR(document->ScaleHeight(), 16837.8, 0.1);
    (void)DrukRapport(*document, voorbeeld.HetFormulier(), 0, 0, stand, grafiek);
    EXPECT_EQ(document->Page(), 2);
    document->EndDoc();
  }
  EXPECT_TRUE(Uitvoer("pdfinfo", {QString::fromStdString(PadTekst(pad))}).contains("(A4)"));
  const auto opRaster = OpRasterVan(WoordenVan(PadTekst(pad)));
  for (const auto& [getal, aantal] : Tabelgetallen(voorbeeld.HetFormulier()))
    EXPECT_TRUE(opRaster.contains(getal)) << getal;
}

TEST(Afdrukdialoog, OffersNoChoiceOfPages) {
  proef::Robot robot;
  robot.Dan([](QDialog& dialoog) {
    for (auto* const knop : dialoog.findChildren<QPushButton*>())
      if (knop->text().contains(">>")) knop->click();  // the options, which the dialog opens without
    EXPECT_TRUE(dialoog.findChild<QWidget*>("copies")->isVisible());
    for (auto* const pagina : dialoog.findChildren<QRadioButton*>())
      EXPECT_FALSE(pagina->isVisible() && pagina->objectName().startsWith("print"))
          << pagina->objectName().toStdString();
    dialoog.reject();
  });
  SchermDialogen dialogen;
  EXPECT_EQ(proef::NummerVan([&] { return dialogen.AfdrukDialoog({}).Exemplaren; }), 32755);
}

/// The button that prints, in the dialog's own language.
QPushButton* PrintKnop(const QDialog& dialoog) {
  return dialoog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

// The button of the toolkit looked at the name of the printer's PDF first: it asked about overwriting a file
// that is never written, or stayed where its directory is missing.
TEST(Afdrukdialoog, TheButtonSavesTheTextWithoutLookingAtThePrintersFile) {
  const proef::TijdelijkeMap map;
  proef::Schrijf(map / "er al.pdf", "oud");
  for (const char* const naam : {"er al.pdf", "geen map/x.pdf", "nieuw.pdf", "."}) {
    proef::Robot robot;
    robot.Dan([&](QDialog& dialoog) {
      dialoog.findChild<QLineEdit*>("filename")->setText(QString::fromStdString(PadTekst(map / naam)));
      QTest::mouseClick(dialoog.findChild<QCheckBox*>("chkNaarBestand"), Qt::LeftButton, {}, QPoint(8, 8));
      ASSERT_TRUE(dialoog.findChild<QCheckBox*>("chkNaarBestand")->isChecked());
      QTest::mouseClick(PrintKnop(dialoog), Qt::LeftButton);
    });
    SchermDialogen dialogen;
    EXPECT_TRUE(dialogen.AfdrukDialoog({}).NaarBestand) << naam;
    EXPECT_EQ(map.Namen(), std::vector<std::string>{"er al.pdf"});
  }
  EXPECT_EQ(proef::Lees(map / "er al.pdf"), "oud");
}

TEST(Afdrukdialoog, ThePrinterComesBackWithTheTickTakenAway) {
  const proef::TijdelijkeMap map;
  proef::Schrijf(map / "er al.pdf", "oud");
  proef::Robot robot;
  robot
      .Dan([&](QDialog& dialoog) {
        auto* const bestand = dialoog.findChild<QLineEdit*>("filename");
        auto* const vinkje = dialoog.findChild<QCheckBox*>("chkNaarBestand");
        bestand->setText(QString::fromStdString(PadTekst(map / "er al.pdf")));
        vinkje->click();
        EXPECT_FALSE(bestand->isEnabled());
        vinkje->click();
        EXPECT_TRUE(bestand->isEnabled());
        QTest::mouseClick(PrintKnop(dialoog), Qt::LeftButton);
        EXPECT_TRUE(dialoog.isVisible());  // the answer was no
        dialoog.reject();
      })
      .Dan([](QDialog& vraag) { dynamic_cast<QMessageBox&>(vraag).button(QMessageBox::No)->click(); });
  SchermDialogen dialogen;
  EXPECT_EQ(proef::NummerVan([&] { return dialogen.AfdrukDialoog({}).Exemplaren; }), 32755);
}

// From the button to the dialog of the text report.
TEST(Afdrukdialoog, TheTickEndsInTheSaveDialogOfTheReport) {
  const proef::TijdelijkeMap map;
  proef::Robot robot;
  robot
      .Dan([&](QDialog& dialoog) {
        dialoog.findChild<QLineEdit*>("filename")
            ->setText(QString::fromStdString(PadTekst(map / "geen map/x.pdf")));
        dialoog.findChild<QCheckBox*>("chkNaarBestand")->click();
        PrintKnop(dialoog)->click();
      })
      .Dan([&](QDialog& dialoog) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialoog).nameFilters(), QStringList{"Uitvoerbestanden (*.prn)"});
        dialoog.findChild<QLineEdit*>("fileNameEdit")
            ->setText(QString::fromStdString(PadTekst(map / "rapport")));
        proef::Robot::Druk(dialoog, Qt::Key_Return);
      });
  Programma programma;
  programma.Rapport.RapKop = "kop";
  SchermDialogen dialogen;
  AfdrukPrinter(programma, dialogen, [] { return kiesgrafiek::Geen; });
  EXPECT_EQ(map.Namen(), std::vector<std::string>{"rapport.prn"});
  EXPECT_EQ(proef::Lees(map / "rapport.prn"), PrnBytes(programma.Rapport));
}

TEST(Afdrukdialoog, HasATickOfItsOwnForTheTextReport) {
  proef::Robot robot;
  robot
      .Dan([](QDialog& dialoog) {
        dialoog.findChild<QCheckBox*>("chkNaarBestand")->setChecked(true);
        dialoog.accept();  // no printer and no file for it is asked for
      })
      .Dan([](QDialog& dialoog) {
        EXPECT_EQ(dialoog.findChild<QCheckBox*>("chkNaarBestand"), nullptr);
        dialoog.reject();
      });
  SchermDialogen dialogen;
  EXPECT_TRUE(dialogen.AfdrukDialoog({true}).NaarBestand);
  EXPECT_EQ(proef::NummerVan([&] { return dialogen.AfdrukDialoog({false}).Exemplaren; }), 32755);
}

TEST(Schildervlak, TellsOfADeviceThatCannotBegin) {
  const proef::TijdelijkeMap map;
  const auto schrijver =
      std::make_shared<QPdfWriter>(QString::fromStdString(PadTekst(map / "geen map/x.pdf")));
  EXPECT_EQ(proef::NummerVan([&] { return Schildervlak(schrijver).Page(); }), 75);
}

// The preview's picture.

TEST(Voorbeeldbeeld, HasTheSizeOfThePageAndKeepsEachPage) {
  Schildervlak blad(VoorbeeldBreedte, VoorbeeldHoogte, 96);
  EXPECT_EQ(blad.ScaleWidth(), VoorbeeldBreedte);
  EXPECT_EQ(blad.ScaleHeight(), VoorbeeldHoogte);
  blad.Doos(0, 0, 1500, 1500, Zwart);
  blad.ZetCurrentX(300);
  blad.BewaarBlad(0);
  blad.Cls();
  EXPECT_EQ(blad.CurrentX(), 0);
  EXPECT_EQ(blad.CurrentY(), 0);
  blad.Doos(3000, 0, 4500, 1500, Kleur{255, 0, 0});
  blad.BewaarBlad(1);
  ASSERT_EQ(blad.Bladen().size(), 2U);
  const QImage& een = blad.Bladen()[0];
  EXPECT_EQ(een.size(), QSize(794, 1100));  // 21.0 and 29.1 cm at 96 pixels to the inch
  EXPECT_EQ(een.pixelColor(50, 50), QColor(Qt::black));
  EXPECT_EQ(een.pixelColor(250, 50), QColor(Qt::white));
  EXPECT_EQ(blad.Bladen()[1].pixelColor(50, 50), QColor(Qt::white));
  EXPECT_EQ(blad.Bladen()[1].pixelColor(250, 50), QColor(Qt::red));
  EXPECT_EQ(blad.Bladen()[1].pixelColor(793, 1099), QColor(Qt::white));
}

TEST(Voorbeeldbeeld, MovesOnByTheFontsLine) {
  Schildervlak blad(5000, 5000, 96);
  blad.ZetFontNaam("Courier New");
  blad.ZetFontSize(10);
  const double regel = blad.TextHeight("x");
  EXPECT_NEAR(regel, 226.6, 6);  // 1.133 of 200
  blad.ZetCurrentX(100);
  blad.Print("abc");
  EXPECT_NEAR(blad.CurrentX(), 100 + 3 * 120, 1);
  EXPECT_EQ(blad.CurrentY(), 0);
  blad.PrintRegel("");
  EXPECT_EQ(blad.CurrentX(), 0);
  EXPECT_EQ(blad.CurrentY(), regel);
  EXPECT_NEAR(blad.TextWidth("0123456789"), 1200, 5);
}

TEST(Voorbeeldbeeld, TakesTheFormsOwnFontAndSizeWhereNoneWasSet) {
  Schildervlak blad(5000, 5000, 96);
  blad.ZetFontNaam("");
  blad.ZetFontSize(0);
  EXPECT_EQ(blad.FontSize(), 12);
  EXPECT_NEAR(blad.TextWidth("0"), 144, 1);
  EXPECT_EQ(proef::NummerVan([&] { return blad.ZetFontSize(-8), 0; }), 5);
  EXPECT_EQ(blad.FontSize(), 12);
}

TEST(Voorbeeldbeeld, ShowsAFieldThatWasNeverFilledAsBlank) {
  Schildervlak blad(3000, 3000, 96);
  blad.Print(std::string(20, '\0') + "\r\n\t");
  blad.BewaarBlad(0);
  QImage wit(blad.Bladen()[0].size(), QImage::Format_RGB32);
  wit.fill(Qt::white);
  EXPECT_EQ(blad.Bladen()[0], wit);
}

// The program.

class Drukprogramma : public testing::Test {
 protected:
  std::vector<std::string> Regel(const std::string& project, std::vector<std::string> meer = {}) {
    std::vector<std::string> uit = {project,    "--pdf",      map / "uit.pdf", "--data",
                                    map.Naam(), "--decimaal", "komma"};
    uit.insert(uit.end(), meer.begin(), meer.end());
    return uit;
  }
  Proefmap map;
};

TEST_F(Drukprogramma, WritesAPdfAndNothingElse) {
  const Afloop afloop = Druk(Regel(map.Zet(GoedProject(), "één.mrv")));
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_EQ(afloop.Uit + afloop.Err, "");
  EXPECT_TRUE(map.Lees("uit.pdf").starts_with("%PDF-1."));
  const QString pad = QString::fromStdString(map / "uit.pdf");
  EXPECT_TRUE(Uitvoer("pdftotext", {pad, "-"}).contains("Bureau één"));
  EXPECT_FALSE(Uitvoer("pdftotext", {pad, "-"}).contains("Frequentie in Hz"));
}

TEST_F(Drukprogramma, TakesTheDecimalSignThatIsAskedFor) {
  const std::string project = map.Zet(GoedProject(), "a.mrv");
  const auto tekst = [&](const char* decimaal) {
    EXPECT_EQ(Druk({project, "--pdf", map / "uit.pdf", "--data", map.Naam(), "--decimaal", decimaal}).Code,
              0);
    return Uitvoer("pdftotext", {"-layout", QString::fromStdString(map / "uit.pdf"), "-"});
  };
  const QString komma = tekst("komma");
  const QString punt = tekst("punt");
  static const QRegularExpression Cel(R"((?:\[dB\]\*?|Lengte ruimte +:) +-?\d+([.,])\d)");
  int cellen = 0;
  for (auto gevonden = Cel.globalMatch(komma); gevonden.hasNext(); ++cellen)
    EXPECT_EQ(gevonden.next().captured(1), ",");
  EXPECT_GT(cellen, 8);
  for (auto gevonden = Cel.globalMatch(punt); gevonden.hasNext(); --cellen)
    EXPECT_EQ(gevonden.next().captured(1), ".");
  EXPECT_EQ(cellen, 0);
}

TEST_F(Drukprogramma, WritesToStandardOutput) {
  const std::string project = map.Zet(GoedProject(), "a.mrv");
  const Afloop afloop = Druk({project, "--pdf", "-", "--data", map.Naam()});
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_TRUE(afloop.Uit.starts_with("%PDF-1."));
}

TEST_F(Drukprogramma, DrawsTheChartThatIsAskedFor) {
  const std::string project = map.Zet(GoedProject(), "a.mrv");
  const struct {
    const char *keuze, *titel;
  } rijen[] = {{"1m", "Geluidsdrukniveau op 1 meter van rooster/kanaalwand"},
               {"galmveld", "Geluidsdrukniveau in galmveld ruimte"},
               {"geen", nullptr}};
  for (const auto& rij : rijen) {
    EXPECT_EQ(Druk(Regel(project, {"--grafiek", rij.keuze})).Code, 0);
    const QString tekst = Uitvoer("pdftotext", {QString::fromStdString(map / "uit.pdf"), "-"});
    EXPECT_EQ(tekst.contains("Frequentie in Hz"), rij.titel != nullptr) << rij.keuze;
    EXPECT_TRUE(rij.titel == nullptr || tekst.contains(rij.titel)) << rij.keuze;
  }
}

TEST_F(Drukprogramma, WritesBitmapsOfTheFirstFivePages) {
  Project project = GoedProject();
  const ElementRec kanaal = project.Elementen[1], rooster = project.Elementen[2];
  project.ElementCount = 60;
  for (std::size_t i = 1; i < 60; ++i) project.Elementen[i] = kanaal;
  project.Elementen[60] = rooster;
  EXPECT_EQ(Druk(Regel(map.Zet(project, "lang.mrv"), {"--bmp", map / "blad één.bmp"})).Code, 0);
  for (int i = 1; i <= 5; ++i) {
    const QImage beeld(QString::fromStdString(map / ("blad één" + std::to_string(i) + ".bmp")));
    EXPECT_EQ(beeld.size(), QSize(1587, 2200)) << i;  // 21.0 and 29.1 cm at 192 pixels to the inch
    EXPECT_EQ(beeld.pixelColor(60, 97), QColor(200, 200, 200)) << i;  // the border of the head band
    EXPECT_EQ(beeld.pixelColor(2, 2), QColor(Qt::white)) << i;
  }
  EXPECT_FALSE(map.Heeft("blad één6.bmp"));
  EXPECT_FALSE(map.Heeft("blad één.bmp"));
}

TEST_F(Drukprogramma, EndsAsMurvaneCliDoes) {
  const std::string goed = map.Zet(GoedProject(), "goed.mrv");
  const std::string leeg = map.Zet(ZonderElementen(), "leeg.mrv");
  const std::string oneindig = map.Zet(MetOneindig(), "oneindig.mrv");
  const struct {
    std::vector<std::string> regel;
    int code;
    std::string err;
  } rijen[] = {
      {Regel(leeg), 2, leeg + ": Geen kanaalelementen ingevoerd\n"},
      {Regel(map / "weg.mrv"), 1, (map / "weg.mrv") + ": Fout 53 - Bestand niet gevonden.\n"},
      {{goed, "--pdf", map / "geen map/x.pdf", "--data", map.Naam()},
       1,
       (map / "geen map/x.pdf") + ": Fout 76 - Map niet gevonden.\n"},
      {Regel(goed, {"--bmp", map / "x.BMP"}), 1, (map / "x.BMP") + ": Fout 52 - Ongeldige bestandsnaam.\n"},
      {{goed}, 64, "Optie --pdf BESTAND ontbreekt.\nHulp: murvane-druk --help\n"},
      {Regel(goed, {"--grafiek", "2m"}), 64,
       "--grafiek vraagt 1m, galmveld of geen, niet \"2m\".\nHulp: murvane-druk --help\n"},
      {Regel(goed, {"--prn", "x"}), 64, "Onbekende optie: --prn\nHulp: murvane-druk --help\n"},
      {{"--pdf", "x"}, 64, "PROJECT.mrv ontbreekt.\nHulp: murvane-druk --help\n"},
      {{}, 64, "Optie --pdf BESTAND ontbreekt.\nHulp: murvane-druk --help\n"},
  };
  for (const auto& rij : rijen) {
    const Afloop afloop = Druk(rij.regel);
    EXPECT_EQ(afloop.Code, rij.code) << rij.err;
    EXPECT_THAT(afloop.Err, testing::EndsWith(rij.err));
    EXPECT_EQ(afloop.Uit, "");
  }
  EXPECT_FALSE(map.Heeft("uit.pdf"));
  EXPECT_EQ(Druk(Regel(oneindig)).Code, 1);
  EXPECT_EQ(Druk({"--help"}).Code, 0);
  EXPECT_EQ(Druk({"--versie"}).Uit, "MurVane 6.7\n");
}

TEST_F(Drukprogramma, WritesTheFormsOfSeveralProjectsToADirectory) {
  const std::string een = map.Zet(GoedProject("Een"), "een é.mrv");
  const std::string leeg = map.Zet(ZonderElementen(), "m/leeg.mrv");
  const std::string twee = map.Zet(GoedProject("Twee"), "m/twee.mrv");
  std::filesystem::create_directory(PadVan(map / "u"));
  map.ZetBytes("oud", "u/leeg.pdf");
  const Afloop afloop =
      Druk({een, map / "m", "--uit", map / "u", "--data", map.Naam(), "--decimaal", "komma"});
  EXPECT_EQ(afloop.Code, 2);
  EXPECT_EQ(afloop.Uit, "");
  EXPECT_EQ(afloop.Err, leeg + ": Geen kanaalelementen ingevoerd. Oude resultaten verwijderd: " +
                            (map / "u/leeg.pdf") + ".\n");
  EXPECT_FALSE(map.Heeft("u/leeg.pdf"));
  for (const auto& [naam, pdf] : {std::pair("Een", "u/een é.pdf"), std::pair("Twee", "u/twee.pdf")})
    EXPECT_TRUE(Uitvoer("pdftotext", {QString::fromStdString(map / pdf), "-"}).contains(naam)) << pdf;
}

TEST_F(Drukprogramma, TakesWhatOnlyOneProjectCanHaveForOneProject) {
  const std::string een = map.Zet(GoedProject(), "a.mrv");
  const std::string ander = map.Zet(GoedProject(), "m/a.mrv");
  const struct {
    std::vector<std::string> regel;
    std::string melding;
  } rijen[] = {
      {{een, ander, "--pdf", map / "x.pdf"},
       "--pdf en --bmp zijn er voor één project; gebruik --uit MAP voor meer projecten."},
      {{een, "--pdf", map / "x.pdf", "--uit", map / "u"}, "--pdf en --bmp gaan niet samen met --uit."},
      {{een, "--bmp", map / "x.bmp", "--uit", map / "u"}, "--pdf en --bmp gaan niet samen met --uit."},
      {{een, ander}, "Optie --pdf BESTAND ontbreekt."},
      {{een, ander, "--uit", map / "u"},
       een + " en " + ander + " geven allebei a.pdf; geef ze verschillende namen of een eigen map."},
  };
  for (const auto& rij : rijen) {
    const Afloop afloop = Druk(rij.regel);
    EXPECT_EQ(afloop.Code, 64);
    EXPECT_EQ(afloop.Err, rij.melding + "\nHulp: murvane-druk --help\n");
  }
  EXPECT_FALSE(map.Heeft("u") || map.Heeft("x.pdf"));
}

// It wrote the first page over its own document, with status 0.
TEST_F(Drukprogramma, ABitmapThatWouldTakeThePlaceOfTheDocumentIsRefusedBeforeEitherIsWritten) {
  const std::string goed = map.Zet(GoedProject(), "goed.mrv");
  map.ZetBytes("oud", "x1.bmp");
  std::filesystem::create_symlink("x1.bmp", PadVan(map / "link"));
  std::filesystem::create_symlink(
      "../goed.mrv", PadVan((std::filesystem::create_directory(PadVan(map / "m")), map / "m/y2.bmp")));
  const struct {
    std::string pdf, bmp, melding;
  } rijen[] = {
      {map / "x1.bmp", map / "x.bmp", (map / "x1.bmp") + " zou twee keer worden geschreven."},
      {map / "link", map / "m/../x.bmp",
       (map / "link") + " en " + (map / "m/../x1.bmp") + " zijn hetzelfde bestand."},
      {map / "x.pdf", map / "m/y.bmp",
       (map / "m/y2.bmp") + " is het bestand dat wordt gelezen en zou worden overschreven."},
      {map / "murvane.set", map / "z.bmp",
       (map / "murvane.set") + " is het bestand dat wordt gelezen en zou worden overschreven."},
  };
  for (const auto& rij : rijen) {
    const Afloop afloop = Druk({goed, "--pdf", rij.pdf, "--bmp", rij.bmp, "--data", map.Naam()});
    EXPECT_EQ(afloop.Code, 64);
    EXPECT_EQ(afloop.Err, rij.melding + "\nHulp: murvane-druk --help\n");
  }
  EXPECT_EQ(map.Lees("x1.bmp"), "oud");
  EXPECT_EQ(map.Lees("goed.mrv"), ProjectBytes(GoedProject()));
  EXPECT_FALSE(map.Heeft("x.pdf") || map.Heeft("m/y1.bmp"));
}

TEST_F(Drukprogramma, TakesAProjectFromStandardInput) {
  const Omstandigheid hoe{.Invoer = ProjectBytes(GoedProject())};
  const Afloop afloop = Druk({"-", "--pdf", "-", "--data", map.Naam()}, hoe);
  EXPECT_EQ(afloop.Code, 0) << afloop.Err;
  EXPECT_TRUE(afloop.Uit.starts_with("%PDF-1."));
}

TEST_F(Drukprogramma, NeverOverwritesItsProject) {
  const std::string goed = map.Zet(GoedProject(), "goed.mrv");
  const std::string voor = map.Lees("goed.mrv");
  EXPECT_EQ(Druk({goed, "--pdf", goed, "--data", map.Naam()}).Code, 64);
  EXPECT_EQ(map.Lees("goed.mrv"), voor);
}

TEST_F(Drukprogramma, RunsWithoutAScreenAndInSilence) {
  const std::string goed = map.Zet(GoedProject(), "goed.mrv");
  QProcess proces;
  QProcessEnvironment omgeving = QProcessEnvironment::systemEnvironment();
  for (const char* naam : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"})
    omgeving.remove(naam);
  proces.setProcessEnvironment(omgeving);
  QStringList argumenten;
  for (const std::string& woord : Regel(goed)) argumenten << QString::fromStdString(woord);
  proces.start(QString::fromStdString(proef::Programma("murvane-druk").string()), argumenten);
  ASSERT_TRUE(proces.waitForFinished(60000));
  EXPECT_EQ(proces.exitCode(), 0);
  EXPECT_EQ(proces.readAllStandardError().toStdString(), "");
  EXPECT_TRUE(map.Lees("uit.pdf").starts_with("%PDF-1."));
}

// The chart as a picture.

Grafiek Voorbeeldgrafiek() {
  Grafiek grafiek;
  grafiek.Titel = {"Titel", "regel"};
  grafiek.Voetnoot = "  voet  ";
  grafiek.As = {"dB(A)", 0, 50, 5};
  for (std::size_t r = 0; r < 8; ++r) grafiek.Waarden[0][r] = 25;
  grafiek.Labels = LabelOpmaak{};
  return grafiek;
}

TEST(Grafiekbeeld, FillsItsRectangleAndNothingBesideIt) {
  Schildervlak blad(12000, 8000, 96);
  blad.PaintPicture(Voorbeeldgrafiek(), 600, 750, GrafiekBreedte, GrafiekHoogte);
  blad.BewaarBlad(0);
  const QImage& beeld = blad.Bladen()[0];
  QRect inkt;
  for (int y = 0; y < beeld.height(); ++y)
    for (int x = 0; x < beeld.width(); ++x)
      if (beeld.pixelColor(x, y) != QColor(Qt::white)) inkt |= QRect(x, y, 1, 1);
  EXPECT_TRUE(QRect(40, 50, 681, 378).contains(inkt));
  EXPECT_GT(inkt.width(), 600);
  EXPECT_GT(inkt.height(), 340);
}

TEST(Grafiekbeeld, LabelsOnlyTheFirstSeries) {
  const proef::TijdelijkeMap map;
  Voorbeeldproject voorbeeld("kantoor.mrv");
  Grafiek grafiek;
  proef::Schrijf(map / "x.pdf", MaakPdf(voorbeeld.HetFormulier(), 1, kiesgrafiek::EenMeter, grafiek).Bytes);
  const auto woorden = WoordenVan(PadTekst(map / "x.pdf"));
  const int laatste = woorden.back().Blad;
  std::vector<std::string> getallen;
  for (const Woord& woord : woorden) {
    bool geheel = false;
    (void)woord.Tekst.toInt(&geheel);
    if (woord.Blad == laatste && geheel && std::fabs(woord.Onder - woord.Boven - 9) < 1.0 && woord.Links > 70)
      getallen.push_back(woord.Tekst.toStdString());
  }
  // The eight values and the names of the bands; the values of the other series have no labels.
  std::vector<std::string> goed = {"63", "125", "250", "500", "1000", "2000", "4000"};
  for (const std::int16_t waarde : grafiek.Waarden[0]) goed.push_back(std::to_string(waarde));
  EXPECT_THAT(getallen, testing::UnorderedElementsAreArray(goed));
}

}  // namespace
}  // namespace murvane::clitest
