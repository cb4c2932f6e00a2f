// The program itself, started as a package is tried.

#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <filesystem>
#include <string>
#include <vector>

#include "shell/programmahulp.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"

namespace murvane {
namespace {

const std::filesystem::path Data = proef::BronMap() / "data";

struct Afloop {
  int Status = -1;
  QString Geklaagd;
};

Afloop Start(const std::filesystem::path& map, const QStringList& argumenten = {},
             QProcessEnvironment omgeving = QProcessEnvironment::systemEnvironment()) {
  omgeving.insert("MURVANE_ROOKPROEF", "1");
  omgeving.insert("QT_QPA_PLATFORM", "offscreen");
  omgeving.insert("LSAN_OPTIONS", QString::fromStdString("suppressions=" + proef::BronMap().string() +
                                                         "/tests/vensters/lsan.txt:print_suppressions=0"));
  QProcess proces;
  proces.setProcessEnvironment(omgeving);
  proces.setWorkingDirectory(QString::fromStdString(map.string()));
  proces.start(QString::fromStdString(proef::Programma("murvane").string()), argumenten);
  if (!proces.waitForFinished(60000) || proces.exitStatus() != QProcess::NormalExit) return {};
  return {proces.exitCode(), QString::fromUtf8(proces.readAllStandardError())};
}

void Kopieer(const proef::TijdelijkeMap& map) {
  for (const char* const naam :
       {"murvane.set", "Duct.dat", "Fan.dat", "Rduct.dat", "Rplaf.dat", "kantoor.mrv"})
    std::filesystem::copy_file(Data / naam, map / naam);
}

TEST(Rookproef, StartsWholeAndEnds) {
  const proef::TijdelijkeMap map;
  Kopieer(map);
  const std::vector<std::string> namen = map.Namen();
  const Afloop afloop = Start(map.Pad());
  EXPECT_EQ(afloop.Status, 0) << afloop.Geklaagd.toStdString();
  EXPECT_EQ(map.Namen(), namen);
}

TEST(Rookproef, OpensTheProjectOfTheCommandLine) {
  const proef::TijdelijkeMap map;
  Kopieer(map);
  const Afloop afloop = Start(map.Pad(), {"kantoor.mrv"});
  EXPECT_EQ(afloop.Status, 0) << afloop.Geklaagd.toStdString();
  EXPECT_EQ(proef::Lees(map / "kantoor.mrv"), proef::Lees(Data / "kantoor.mrv"));
}

TEST(Rookproef, FailsOnAProjectThatIsNotThere) {
  const proef::TijdelijkeMap map;
  Kopieer(map);
  const Afloop afloop = Start(map.Pad(), {"elders.mrv"});
  EXPECT_EQ(afloop.Status, 1);
  EXPECT_TRUE(afloop.Geklaagd.contains("Het bestand 'elders.mrv' is niet gevonden"))
      << afloop.Geklaagd.toStdString();
}

TEST(Rookproef, FromTheDesktopItWorksInTheUsersOwnDirectory) {
  const proef::TijdelijkeMap map;
  std::filesystem::create_directory(map / "projecten");
  std::filesystem::copy_file(Data / "kantoor.mrv", map / "projecten" / "kantoor noord.mrv");
  QProcessEnvironment omgeving = QProcessEnvironment::systemEnvironment();
  omgeving.insert("MURVANE_BUREAUBLAD", "1");
  omgeving.insert("XDG_DATA_HOME", QString::fromStdString((map / "gegevens").string()));
  const Afloop afloop = Start(map / "projecten", {"kantoor noord.mrv"}, omgeving);
  EXPECT_EQ(afloop.Status, 0) << afloop.Geklaagd.toStdString();
  EXPECT_EQ(proef::Lees(map / "gegevens" / "murvane" / "murvane.set"), proef::Lees(Data / "murvane.set"));
}

TEST(Rookproef, FailsWithoutItsFiles) {
  const proef::TijdelijkeMap map;
  const Afloop afloop = Start(map.Pad());
  EXPECT_EQ(afloop.Status, 1);
  EXPECT_TRUE(afloop.Geklaagd.contains("Opstartbestand(en) niet gevonden")) << afloop.Geklaagd.toStdString();
}

/// The program with nothing to show a window on; what it prints.
QByteArray ZonderScherm(const QString& woord, int* status) {
  QProcessEnvironment omgeving = QProcessEnvironment::systemEnvironment();
  for (const char* naam : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"})
    omgeving.remove(naam);
  QProcess proces;
  proces.setProcessEnvironment(omgeving);
  proces.start(QString::fromStdString(proef::Programma("murvane").string()), {woord});
  EXPECT_TRUE(proces.waitForFinished(60000) && proces.exitStatus() == QProcess::NormalExit);
  EXPECT_EQ(proces.readAllStandardError(), QByteArray());
  *status = proces.exitCode();
  return proces.readAllStandardOutput();
}

TEST(Programma, TellsItsHelpAndVersionWithoutADisplay) {
  for (const Programmawoord& woord : Programmawoorden) {
    int status = -1;
    const std::string naam(woord.Woord);
    const QByteArray uit = ZonderScherm(QString::fromStdString(naam), &status);
    EXPECT_EQ(status, 0) << naam;
    EXPECT_EQ(uit.toStdString(), ProgrammaAntwoord(std::vector<std::string>{naam})) << naam;
  }
}

TEST(Programma, AnAnswerThatCannotBeWrittenIsAFault) {
  QProcess proces;
  const QString naam = QString::fromStdString(proef::Programma("murvane").string());
  proces.start("/bin/sh", {"-c", "\"$0\" --help >/dev/full", naam});
  ASSERT_TRUE(proces.waitForFinished(60000));
  EXPECT_EQ(proces.exitCode(), 1);
  EXPECT_EQ(proces.readAllStandardError().toStdString(),
            "standaarduitvoer: Fout 61 - Schijf vol of uitvoer gesloten.\n");
}

}  // namespace
}  // namespace murvane
