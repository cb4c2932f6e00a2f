// A run that is refused, in the real window: the message, and where the user is brought.

#include <gtest/gtest.h>

#include <QComboBox>
#include <functional>

#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Controle : public ProjectVenster {
 protected:
  /// Refused with this message; the tab, the selected row of the chain and the focus afterwards.
  void Weigert(const std::string& melding, Tab tab, int rij, const QString& focus = {}) {
    SCOPED_TRACE(melding);
    script.Box(Waarschuwing(melding));
    EXPECT_FALSE(venster->NeemOverEnBeoordeel());
    QCoreApplication::processEvents();
    script.IsKlaar();
    EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), static_cast<int>(tab));
    EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), rij);
    if (!focus.isEmpty()) {
      EXPECT_EQ(Focus(), focus);
    }
  }
  ElementRec& Element(int n) { return project.Elementen.at(static_cast<std::size_t>(n)); }
  /// A sample with one thing changed in its records before it is shown.
  void Open(const char* naam, const std::function<void()>& verander) {
    project = LeesProject(Data / naam);
    verander();
    ZetGeopend(venster->DeSessie(), venster->DeLijst(), naam);
    venster->ToonProject(true);
  }
  int Aantal() const { return project.ElementCount; }
};

TEST_F(Controle, AFanThatIsNotWholeBringsTheFanTab) {
  Open("kantoor.mrv", [this] { project.Fan.Lw[4] = 0; });
  Weigert("Geluidsspectrum ventilator niet (volledig) ingevuld", Tab::Ventilator, -1);
  Open("kantoor.mrv", [this] { project.Fan.FanNaam = std::string_view(" "); });
  Weigert("Naam ventilator niet ingevuld", Tab::Ventilator, -1);
}

TEST_F(Controle, AnEmptyChainBringsTheElementTab) {
  Open("kantoor.mrv", [this] { project.ElementCount = 0; });
  Weigert("Geen kanaalelementen ingevoerd", Tab::Kanaalelementen, -1);
}

TEST_F(Controle, TheEndsOfTheChainSelectNoRow) {
  Open("kantoor.mrv", [this] { Element(1).ElementType = elementtype::BochtRecht; });
  Weigert("Eerste kanaalelement is geen rechthoekig of rond kanaal", Tab::Kanaalelementen, -1);
  Open("kantoor.mrv", [this] { --project.ElementCount; });
  ASSERT_NE(Element(Aantal()).ElementType, elementtype::Catalogus);
  Weigert("Laatste kanaalelement is geen rooster", Tab::Kanaalelementen, -1);
  Open("kantoor.mrv", [this] { project.Kop.RekenType = rekentype::Geluidsuitstraling; });
  Weigert("Laatste kanaalelement is geen rechthoekig of rond kanaal", Tab::Kanaalelementen, -1);
}

TEST_F(Controle, AnOutletBeforeTheEndIsSelected) {
  Open("kantoor.mrv", [this] { Element(2).ElementType = elementtype::Rooster; });
  Weigert("Kanaalelement 2 mag geen rooster zijn", Tab::Kanaalelementen, 1);
  EXPECT_EQ(venster->DeLijst().HuidigElement, 2);
  EXPECT_TRUE(Veld("txtSnetto")->isVisible());
}

TEST_F(Controle, ABranchThatFailsOpensWithItsRounding) {
  Open("kantoor.mrv", [] {});
  int tak = 1;
  while (Element(tak).ElementType != elementtype::AftakRecht) ++tak;
  Open("kantoor.mrv", [&] {
    Element(tak).RAftak = 0;
    Element(tak).HDoor = 0;
  });
  Weigert("Kanaalelement " + std::to_string(tak) + " niet correct gedimensioneerd", Tab::Kanaalelementen,
          tak - 1);
  EXPECT_EQ(Veld("txtRAftak")->text(), "0,15");
  EXPECT_EQ(Element(tak).RAftak, 0.15);
  EXPECT_EQ(Focus(), "txtRAftak") << "the first field of the element that was 0";
}

TEST_F(Controle, AMissingRoomValueGetsTheFocus) {
  struct Rij {
    const char* Melding;
    double RuimteRec::*Maat;
    const char* Veld;
  };
  for (const Rij& rij : {Rij{"Vertreklengte niet ingevuld", &RuimteRec::RLengte, "txtRLengte"},
                         Rij{"Vertrekbreedte niet ingevuld", &RuimteRec::RBreedte, "txtRBreedte"},
                         Rij{"Vertrekhoogte niet ingevuld", &RuimteRec::RHoogte, "txtRHoogte"},
                         Rij{"Nagalmtijd niet ingevuld", &RuimteRec::RNagalm, "txtRNagalm"},
                         Rij{"Aantal roosters niet ingevuld", &RuimteRec::RAantal, "txtRAantal"}}) {
    Open("kantoor.mrv", [&] { project.Ruimte.*rij.Maat = 0; });
    Weigert(rij.Melding, Tab::Ruimtegegevens, -1, rij.Veld);
  }
}

// What is typed next replaces the value: behind a 0.0 it would be no number.
TEST_F(Controle, TheFieldToFillInIsSelectedWhole) {
  Open("kantoor.mrv", [this] { project.Ruimte.RAantal = 0; });
  for (int keer = 1; keer <= 2; ++keer) {
    Weigert("Aantal roosters niet ingevuld", Tab::Ruimtegegevens, -1, "txtRAantal");
    EXPECT_EQ(Zoek<InvoerVeld>("txtRAantal")->selectedText(), "0") << keer;
    Zoek<InvoerVeld>("txtRAantal")->deselect();  // as a menu leaves the field in hand
  }
}

TEST_F(Controle, AMissingWallGetsTheFocus) {
  Open("plafond.mrv", [this] { project.Ruimte.RkanaalNaam = GeenKanaalwandTekst(); });
  ASSERT_EQ(project.Kop.RekenType, rekentype::Geluidsuitstraling);
  Weigert("Geen kanaalwand geselecteerd", Tab::Ruimtegegevens, -1, "cmbRkanaal");
}

}  // namespace
}  // namespace murvane
