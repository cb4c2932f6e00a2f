// The real boxes and file dialogs.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QWidget>
#include <array>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/tekst.h"
#include "editor/vensters_dialogen.h"
#include "shell/vensters_taal.h"
#include "tests/hulp/bestanden.h"
#include "tests/vensters/robot.h"

namespace murvane::proef {
namespace {

namespace fs = std::filesystem;

/// A German system with the program's translation, and a window that is open.
class Dialoogvensters : public testing::Test {
 protected:
  Dialoogvensters() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_TRUE(LaadVertaling(vertaling));
    QCoreApplication::installTranslator(&vertaling);
    hoofd.show();
    hoofd.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&hoofd));
  }
  ~Dialoogvensters() override {
    QCoreApplication::removeTranslator(&vertaling);
    QLocale::setDefault(was);
  }
  Dialoogvensters(const Dialoogvensters&) = delete;
  Dialoogvensters& operator=(const Dialoogvensters&) = delete;

  static QStringList Opschriften(const QDialog& dialoog) {
    QStringList uit;
    for (const auto* vak : dialoog.findChildren<QDialogButtonBox*>()) {
      for (const QAbstractButton* knop : vak->buttons()) uit << knop->text();
    }
    uit.sort();
    return uit;
  }
  Antwoord Vraag(Knoppen knoppen, const Robot::Stap& stap) {
    robot.Dan(stap);
    return dialogen.Toon({MeldingSoort::Vraag, "Titel", "Tekst", knoppen});
  }
  [[nodiscard]] BestandVraag Opslaan(const fs::path& naam = {}) const {
    return {"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", map.Pad(), naam, true, false, true};
  }
  [[nodiscard]] BestandVraag Open(const fs::path& naam = {}) const {
    return {"Openen", "Bestand MurVane (*.mrv)|*.mrv", map.Pad(), naam, false, true, true};
  }
  static QString Pad(const fs::path& pad) { return QString::fromStdString(PadTekst(pad)); }
  static void TypNaam(QDialog& dialoog, const QString& naam) {
    auto* const vak = dialoog.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(vak, nullptr);
    Robot::Activeer(dialoog);  // a box that stood before it took the keys
    EXPECT_TRUE(vak->hasFocus());
    vak->selectAll();
    for (const QChar teken : naam) Robot::Druk(dialoog, static_cast<Qt::Key>(teken.unicode()), teken);
    Robot::Druk(dialoog, Qt::Key_Return);
  }

  QLocale was;
  Vertaling vertaling;
  TijdelijkeMap map;
  QWidget hoofd;
  SchermDialogen dialogen;
  Robot robot;
};

TEST_F(Dialoogvensters, ABoxHasItsIconTitleAndText) {
  const std::array<std::pair<MeldingSoort, QMessageBox::Icon>, 3> soorten = {
      {{MeldingSoort::Uitroep, QMessageBox::Warning},
       {MeldingSoort::Kritiek, QMessageBox::Critical},
       {MeldingSoort::Vraag, QMessageBox::Question}}};
  for (const auto& [soort, icoon] : soorten) {
    robot.Dan([icoon = icoon, this](QDialog& dialoog) {
      auto& box = dynamic_cast<QMessageBox&>(dialoog);
      EXPECT_EQ(box.icon(), icoon);
      EXPECT_EQ(box.windowTitle(), "Waarschuwing één");
      EXPECT_EQ(box.text(), "Regel <b>1</b> & m³\nregel 2");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_TRUE(box.isModal());
      EXPECT_EQ(box.parentWidget(), &hoofd);
      Robot::Druk(box, Qt::Key_Return);
    });
    EXPECT_EQ(dialogen.Toon({soort, std::string("Waarschuwing één"_cp),
                             std::string("Regel <b>1</b> & m³\nregel 2"_cp)}),
              Antwoord::OK);
  }
}

// Beside the caption of a window's frame stand an icon and three buttons, each as high as a line and its rim.
TEST_F(Dialoogvensters, TheCaptionOfABoxIsNotCut) {
  const auto past = [](QDialog& box) {
    QFont vet = box.font();
    vet.setBold(true);
    EXPECT_GE(box.width(), QFontMetrics(vet).horizontalAdvance(box.windowTitle()) + 4 * 30);
    box.reject();
  };
  robot.Dan(past);
  (void)dialogen.Toon(
      {MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 1 wissen?", Knoppen::OkCancel});
  robot.Dan(past);
  EXPECT_EQ(dialogen.Invoer({"Instelling gebruikersnaam", "Naam", "naam"}), "");
}

TEST_F(Dialoogvensters, AFolderIsCalledSoInDutch) {
  fs::create_directory(map.Pad() / PadVan("Één map"));
  robot.Dan([](QDialog& dialoog) {
    const auto* const lijst = dialoog.findChild<QTreeView*>("treeView");
    ASSERT_NE(lijst, nullptr);
    const auto soort = [&] { return lijst->model()->index(0, 2, lijst->rootIndex()).data().toString(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return soort() == "Map"; })) << soort().toStdString();
    dialoog.reject();
  });
  EXPECT_THROW((void)dialogen.OpenDialoog(Open()), Fout);
}

TEST_F(Dialoogvensters, TheButtonsAreDutchOnAnySystem) {
  const std::array<std::pair<Knoppen, QStringList>, 3> rijen = {
      {{Knoppen::OK, {"OK"}}, {Knoppen::OkCancel, {"Annuleren", "OK"}}, {Knoppen::YesNo, {"&Ja", "&Nee"}}}};
  for (const auto& [knoppen, opschriften] : rijen) {
    Vraag(knoppen, [opschriften = opschriften](QDialog& box) {
      EXPECT_EQ(Opschriften(box), opschriften);
      Robot::Druk(box, Qt::Key_Return);
    });
  }
}

TEST_F(Dialoogvensters, ABoxTellsHowItWasLeft) {
  const struct {
    Knoppen Welke;
    Antwoord Enter, Escape;
  } rijen[] = {{Knoppen::OK, Antwoord::OK, Antwoord::Cancel},
               {Knoppen::OkCancel, Antwoord::OK, Antwoord::Cancel}};
  for (const auto& rij : rijen) {
    const auto toets = [&](Qt::Key welke) {
      return Vraag(rij.Welke, [welke](QDialog& box) { Robot::Druk(box, welke); });
    };
    EXPECT_EQ(toets(Qt::Key_Return), rij.Enter);
    EXPECT_EQ(toets(Qt::Key_Space), rij.Enter);
    EXPECT_EQ(toets(Qt::Key_Escape), rij.Escape);
    EXPECT_EQ(Vraag(rij.Welke, [](QDialog& box) { box.close(); }), rij.Escape);
  }
}

TEST_F(Dialoogvensters, AQuestionOfYesAndNoIsLeftByItsButtonsOnly) {
  const auto wegklikken = [](QDialog& box) {
    Robot::Druk(box, Qt::Key_Escape);
    box.close();
    EXPECT_TRUE(box.isVisible()) << "neither answer changes nothing";
  };
  for (const auto& [knop, antwoord] :
       {std::pair{QMessageBox::No, Antwoord::No}, {QMessageBox::Yes, Antwoord::Yes}}) {
    EXPECT_EQ(Vraag(Knoppen::YesNo,
                    [&, welke = knop](QDialog& box) {
                      wegklikken(box);
                      dynamic_cast<QMessageBox&>(box).button(welke)->click();
                    }),
              antwoord);
  }
}

TEST_F(Dialoogvensters, TheQuestionAboutAChangedFileHasItsOwnButtonsAndChangesNothingByItself) {
  const struct {
    Knoppen Welke;
    QStringList Opschriften;
  } rijen[] = {{Knoppen::OverschrijvenCancel, {"Annuleren", "Overschrijven"}},
               {Knoppen::OverschrijvenAndersCancel, {"Anders opslaan…", "Annuleren", "Overschrijven"}}};
  const auto druk = [](const QString& opschrift) {
    return [opschrift](QDialog& box) {
      for (QAbstractButton* const knop : box.findChildren<QPushButton*>())
        if (knop->text() == opschrift) return knop->click();
      ADD_FAILURE() << opschrift.toStdString();
      box.close();
    };
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(Vraag(rij.Welke,
                    [&rij](QDialog& box) {
                      EXPECT_EQ(Opschriften(box), rij.Opschriften);
                      const auto* const focus = qobject_cast<QPushButton*>(box.focusWidget());
                      ASSERT_NE(focus, nullptr);
                      EXPECT_EQ(focus->text(), "Annuleren");
                      EXPECT_TRUE(focus->isDefault());
                      Robot::Druk(box, Qt::Key_Return);
                    }),
              Antwoord::Cancel);
    EXPECT_EQ(Vraag(rij.Welke, [](QDialog& box) { Robot::Druk(box, Qt::Key_Escape); }), Antwoord::Cancel);
    EXPECT_EQ(Vraag(rij.Welke, [](QDialog& box) { box.close(); }), Antwoord::Cancel);
    EXPECT_EQ(Vraag(rij.Welke, druk("Overschrijven")), Antwoord::Overschrijven);
    EXPECT_EQ(Vraag(rij.Welke, druk("Annuleren")), Antwoord::Cancel);
  }
  EXPECT_EQ(Vraag(Knoppen::OverschrijvenAndersCancel, druk("Anders opslaan…")), Antwoord::Anders);
}

TEST_F(Dialoogvensters, ABoxShowsAFileNameInItsOwnCharacters) {
  robot.Dan([](QDialog& dialoog) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(dialoog).text(),
              "'Łódź <b>&x.mrv' is intussen door een ander programma gewijzigd.");
    Robot::Druk(dialoog, Qt::Key_Escape);
  });
  EXPECT_EQ(dialogen.Toon(GewijzigdVraag(PadVan("/d/Łódź <b>&x.mrv"), false)), Antwoord::Cancel);
}

TEST_F(Dialoogvensters, TheFirstButtonIsTheDefault) {
  const std::array<std::pair<Knoppen, QMessageBox::StandardButton>, 3> rijen = {
      {{Knoppen::OK, QMessageBox::Ok},
       {Knoppen::OkCancel, QMessageBox::Ok},
       {Knoppen::YesNo, QMessageBox::Yes}}};
  for (const auto& [knoppen, eerste] : rijen) {
    Vraag(knoppen, [eerste = eerste](QDialog& dialoog) {
      auto& box = dynamic_cast<QMessageBox&>(dialoog);
      auto* const knop = dynamic_cast<QPushButton*>(box.button(eerste));
      EXPECT_TRUE(knop->isDefault());
      EXPECT_TRUE(knop->hasFocus());
      Robot::Druk(box, Qt::Key_Return);
    });
  }
}

TEST_F(Dialoogvensters, EveryButtonGivesItsAnswer) {
  const struct {
    Knoppen Welke;
    QMessageBox::StandardButton Knop;
    Antwoord Wat;
  } rijen[] = {{Knoppen::OK, QMessageBox::Ok, Antwoord::OK},
               {Knoppen::OkCancel, QMessageBox::Ok, Antwoord::OK},
               {Knoppen::OkCancel, QMessageBox::Cancel, Antwoord::Cancel},
               {Knoppen::YesNo, QMessageBox::Yes, Antwoord::Yes},
               {Knoppen::YesNo, QMessageBox::No, Antwoord::No}};
  for (const auto& rij : rijen) {
    EXPECT_EQ(Vraag(rij.Welke,
                    [&](QDialog& box) {
                      QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(rij.Knop), Qt::LeftButton);
                    }),
              rij.Wat);
  }
}

TEST_F(Dialoogvensters, TheInputBoxOpensWithItsTextSelected) {
  const InvoerVraag vraag{"Instelling gebruikersnaam",
                          std::string("Huidige naam:\nBureau één\n\nNieuwe naam"_cp),
                          std::string("Bureau één"_cp)};
  robot.Dan([this](QDialog& box) {
    auto* const vak = box.findChild<QLineEdit*>();
    EXPECT_EQ(box.windowTitle(), "Instelling gebruikersnaam");
    EXPECT_EQ(dynamic_cast<QInputDialog&>(box).labelText(), "Huidige naam:\nBureau één\n\nNieuwe naam");
    const auto* const veld = box.findChild<QLineEdit*>();
    EXPECT_EQ(veld->accessibleName(), "Instelling gebruikersnaam");
    EXPECT_EQ(veld->accessibleDescription(),
              "Huidige naam:\nBureau één\n\nNieuwe naam\nLeeg is hetzelfde als Annuleren.");
    EXPECT_EQ(Opschriften(box), (QStringList{"Annuleren", "OK"}));
    EXPECT_EQ(box.parentWidget(), &hoofd);
    EXPECT_TRUE(vak->hasFocus());
    EXPECT_EQ(vak->selectedText(), "Bureau één");
    Robot::Druk(box, Qt::Key_N, "N");
    Robot::Druk(box, Qt::Key_Eacute, "é");
    Robot::Druk(box, Qt::Key_Return);
  });
  EXPECT_EQ(dialogen.Invoer(vraag), "Né"_cp);
  robot.Dan([](QDialog& box) { Robot::Druk(box, Qt::Key_Return); });
  EXPECT_EQ(dialogen.Invoer(vraag), "Bureau één"_cp);
}

TEST_F(Dialoogvensters, AnInputBoxThatIsCancelledGivesNothing) {
  robot.Dan([](QDialog& box) { Robot::Druk(box, Qt::Key_Escape); });
  EXPECT_EQ(dialogen.Invoer({"Titel", "Tekst", "naam"}), "");
  robot.Dan([](QDialog& box) { box.close(); });
  EXPECT_EQ(dialogen.Invoer({"Titel", "Tekst", "naam"}), "");
}

TEST_F(Dialoogvensters, AnInputBoxIsWideEnoughForItsTitle) {
  const QString titel = "Kanaalelementen - Overzicht op naam";
  robot.Dan([&titel](QDialog& box) {
    // the icon, the three buttons and some room around them stand beside it
    EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(titel) + 100);
    Robot::Druk(box, Qt::Key_Escape);
  });
  EXPECT_EQ(dialogen.Invoer({titel.toStdString(), "", ""}), "");
}

TEST_F(Dialoogvensters, ADialogWithoutADirectoryOpensInTheCurrentOne) {
  robot.Dan([](QDialog& dialoog) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialoog).directory().absolutePath(), QDir::currentPath());
    Robot::Druk(dialoog, Qt::Key_Escape);
  });
  EXPECT_EQ(
      NummerVan([&] { return dialogen.OpslaanDialoog({.Titel = "Opslaan als", .Filter = "A (*.a)|*.a"}); }),
      32755);
}

TEST_F(Dialoogvensters, AFileDialogTellsTheKindsOfItsRowsInDutch) {
  const QFileIconProvider soorten;
  EXPECT_EQ(soorten.type(QFileInfo(Pad(map.Pad()))), "Map");
  EXPECT_EQ(soorten.type(QFileInfo(QDir::rootPath())), "Station");
}

TEST_F(Dialoogvensters, TheSaveDialogHasItsFilterDirectoryAndButtons) {
  Schrijf(map / "project één.mrv", "x");
  robot.Dan([this](QDialog& dialoog) {
    auto& bestand = dynamic_cast<QFileDialog&>(dialoog);
    EXPECT_EQ(bestand.windowTitle(), "Opslaan als");
    EXPECT_EQ(bestand.nameFilters(), QStringList{"Bestanden MurVane (*.mrv)"});
    EXPECT_EQ(bestand.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(bestand.fileMode(), QFileDialog::AnyFile);
    EXPECT_EQ(bestand.directory().absolutePath(), Pad(map.Pad()));
    EXPECT_EQ(bestand.defaultSuffix(), "");
    EXPECT_TRUE(bestand.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_EQ(Opschriften(bestand), (QStringList{"Annuleren", "Op&slaan"}));
    EXPECT_EQ(bestand.parentWidget(), &hoofd);
    EXPECT_EQ(bestand.findChild<QLineEdit*>("fileNameEdit")->text(), "oud.mrv");
    TypNaam(dialoog, "zonder");
  });
  const fs::path hier = fs::current_path();
  EXPECT_EQ(dialogen.OpslaanDialoog(Opslaan(map / "oud.mrv")), map / "zonder");  // no extension is added
  EXPECT_EQ(fs::current_path(), hier);
}

TEST_F(Dialoogvensters, ProposesTheNameInItsOwnDirectory) {
  fs::create_directory(map / "elders");
  robot.Dan([this](QDialog& dialoog) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialoog).directory().absolutePath(), Pad(map / "elders"));
    Robot::Druk(dialoog, Qt::Key_Return);
  });
  EXPECT_EQ(dialogen.OpslaanDialoog(Opslaan(map / "elders" / "oud.mrv")), map / "elders" / "oud.mrv");
}

TEST_F(Dialoogvensters, AsksBeforeItOverwritesInDutch) {
  Schrijf(map / "er al.mrv", "x");
  robot.Dan([](QDialog& dialoog) {
    TypNaam(dialoog, "er al.mrv");
    EXPECT_TRUE(dialoog.isVisible());  // the first answer was no
    TypNaam(dialoog, "er al.mrv");
  });
  robot.Dan([](QDialog& box) {
    EXPECT_EQ(Opschriften(box), (QStringList{"&Ja", "&Nee"}));
    EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains("bestaat")) << "in another language";
    Robot::Druk(box, Qt::Key_Escape);
  });
  robot.Dan([](QDialog& box) {
    QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes), Qt::LeftButton);
  });
  EXPECT_EQ(dialogen.OpslaanDialoog(Opslaan()), map / "er al.mrv");
}

/// Pages saved under numbers, as those of the preview are.
class Bladendialoog : public Dialoogvensters {
 protected:
  [[nodiscard]] BestandVraag Bladen(std::int16_t aantal) const {
    BestandVraag vraag{"Opslaan als", "Bitmap-bestanden (*.bmp)|*.bmp", map.Pad(), {}, true, false, true};
    vraag.Extensie = "bmp";
    vraag.Bladen = aantal;
    return vraag;
  }
};

// The question was about the name in the dialog, which is not written, and not about those that are.
TEST_F(Bladendialoog, AsksAboutTheFilesThatWillBeWritten) {
  for (const char* const naam : {"x.bmp", "x1.bmp", "x3.bmp", "x4.bmp"}) Schrijf(map / naam, "oud");
  robot.Dan([](QDialog& dialoog) {
    TypNaam(dialoog, "x.bmp");
    EXPECT_TRUE(dialoog.isVisible());  // the first answer was no
    TypNaam(dialoog, "x.bmp");
  });
  const auto vraag = [](QMessageBox::StandardButton antwoord) {
    return [antwoord](QDialog& dialoog) {
      auto& box = dynamic_cast<QMessageBox&>(dialoog);
      EXPECT_EQ(box.text(), "x1.bmp\nx3.bmp\n\nDeze bestanden bestaan al. Wilt u ze vervangen?");
      EXPECT_EQ(box.windowTitle(), "Opslaan als");
      EXPECT_EQ(Opschriften(box), (QStringList{"&Ja", "&Nee"}));
      EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
      QTest::mouseClick(box.button(antwoord), Qt::LeftButton);
    };
  };
  robot.Dan(vraag(QMessageBox::No)).Dan(vraag(QMessageBox::Yes));
  EXPECT_EQ(dialogen.OpslaanDialoog(Bladen(3)), map / "x.bmp");
}

TEST_F(Bladendialoog, AsksAboutOneFileAsOfAnyOther) {
  Schrijf(map / "x2.bmp", "oud");
  robot.Dan([](QDialog& dialoog) { TypNaam(dialoog, "x"); });
  robot.Dan([](QDialog& dialoog) {
    auto& box = dynamic_cast<QMessageBox&>(dialoog);
    EXPECT_TRUE(box.text().startsWith("x2.bmp bestaat")) << box.text().toStdString();
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(dialogen.OpslaanDialoog(Bladen(2)), map / "x.bmp");
}

TEST_F(Bladendialoog, AsksNothingAboutTheNameItself) {
  Schrijf(map / "x.bmp", "oud");
  Schrijf(map / "x3.bmp", "oud");
  robot.Dan([](QDialog& dialoog) { TypNaam(dialoog, "x"); });  // which gets the extension
  EXPECT_EQ(dialogen.OpslaanDialoog(Bladen(2)), map / "x.bmp");
}

TEST_F(Bladendialoog, LeavesAWrongExtensionToTheCommand) {
  Schrijf(map / "x.BMP", "oud");
  Schrijf(map / "x.png", "oud");
  for (const char* const naam : {"x.BMP", "x.png"}) {
    robot.Dan([naam](QDialog& dialoog) { TypNaam(dialoog, naam); });
    EXPECT_EQ(dialogen.OpslaanDialoog(Bladen(1)), map / naam);
  }
}

TEST_F(Bladendialoog, GoesIntoADirectoryWithoutAQuestion) {
  fs::create_directory(map / "map.bmp");
  Schrijf(map / "map1.bmp", "oud");
  robot.Dan([this](QDialog& dialoog) {
    TypNaam(dialoog, "map.bmp");
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialoog).directory().absolutePath(), Pad(map / "map.bmp"));
    TypNaam(dialoog, "y");
  });
  EXPECT_EQ(dialogen.OpslaanDialoog(Bladen(1)), map / "map.bmp" / "y.bmp");
}

TEST_F(Dialoogvensters, TheOpenDialogTakesOnlyAFileThatExists) {
  Schrijf(map / "een.mrv", "x");
  robot.Dan([this](QDialog& dialoog) {
    auto& bestand = dynamic_cast<QFileDialog&>(dialoog);
    EXPECT_EQ(bestand.windowTitle(), "Openen");
    EXPECT_EQ(bestand.nameFilters(), QStringList{"Bestand MurVane (*.mrv)"});
    EXPECT_EQ(bestand.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(bestand.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(bestand.directory().absolutePath(), Pad(map.Pad()));
    EXPECT_EQ(Opschriften(bestand), (QStringList{"&Openen", "Annuleren"}));
    TypNaam(dialoog, "geen.mrv");
    EXPECT_TRUE(dialoog.isVisible());
    TypNaam(dialoog, "een.mrv");
  });
  robot.Dan([](QDialog& box) {
    EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains("niet gevonden")) << "in another language";
    Robot::Druk(box, Qt::Key_Return);
  });
  EXPECT_EQ(dialogen.OpenDialoog(Open()), map / "een.mrv");
}

TEST_F(Dialoogvensters, TheStartFileHasItsOwnFilter) {
  robot.Dan([](QDialog& dialoog) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialoog).nameFilters(),
              QStringList{"Bestand murvane.set (murvane.set)"});
    TypNaam(dialoog, "iets anders");
  });
  const BestandVraag vraag{
      "Openen", "Bestand murvane.set (murvane.set)|murvane.set", map.Pad(), {}, false, false, false};
  EXPECT_EQ(dialogen.OpenDialoog(vraag), map / "iets anders");
}

TEST_F(Dialoogvensters, ACancelledFileDialogIsFault32755) {
  for (const bool toets : {true, false}) {
    robot.Dan([toets](QDialog& dialoog) {
      if (toets) Robot::Druk(dialoog, Qt::Key_Escape);
      if (!toets) dialoog.close();
    });
    EXPECT_EQ(NummerVan([&] { return dialogen.OpenDialoog(Open()); }), 32755);
    robot.Dan([toets](QDialog& dialoog) {
      if (toets) Robot::Druk(dialoog, Qt::Key_Escape);
      if (!toets) dialoog.close();
    });
    EXPECT_EQ(NummerVan([&] { return dialogen.OpslaanDialoog(Opslaan()); }), 32755);
  }
}

TEST_F(Dialoogvensters, ShowsTheHourglassAndRestoresThePointer) {
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  {
    const Zandloper zandloper(dialogen);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace murvane::proef
