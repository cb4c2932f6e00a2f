// The samples typed in from an empty program by the keyboard alone.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QRadioButton>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "cli/opdrachten.h"
#include "project/projectfile.h"
#include "project/projectjson.h"
#include "reports/rapport.h"
#include "tests/vensters/bediening.h"

namespace murvane::proef {
namespace {

struct ElementVeld {
  const char* Naam;
  double ElementRec::*Lid;
};

/// The fields of the pages in the order in which a user meets them.
constexpr auto Maten = std::to_array<ElementVeld>({
    {"txtHoogte", &ElementRec::Hoogte},       {"txtBreedte", &ElementRec::Breedte},
    {"txtLengte", &ElementRec::Lengte},       {"txtDebiet", &ElementRec::Debiet},
    {"txtHAftak", &ElementRec::Hoogte},       {"txtBAftak", &ElementRec::Breedte},
    {"txtRAftak", &ElementRec::RAftak},       {"txtQAftak", &ElementRec::QAftak},
    {"txtHHoofd", &ElementRec::HHoofd},       {"txtBHoofd", &ElementRec::BHoofd},
    {"txtHDoor", &ElementRec::HDoor},         {"txtBDoor", &ElementRec::BDoor},
    {"txtH1Doorsnee", &ElementRec::HHoofd},   {"txtB1Doorsnee", &ElementRec::BHoofd},
    {"txtH2Doorsnee", &ElementRec::HDoor},    {"txtB2Doorsnee", &ElementRec::BDoor},
    {"txtLDoorsnee", &ElementRec::Lengte},    {"txtSnetto", &ElementRec::Snetto},
    {"txtWeerstand", &ElementRec::Weerstand},
});

struct Geval {
  const char* Naam;
  char Decimaal;      ///< the sign that this user types; the window shows the comma
  int LaatIngevoegd;  ///< an element that is forgotten at first and inserted later; 0 for none
};

class Overtypen : public Gestart, public testing::WithParamInterface<Geval> {
 protected:
  bool Zichtbaar(const QString& naam) { return Zoek<QWidget>(naam)->isVisible(); }

  void TypGetal(const QString& naam, double waarde) {
    auto* const vak = Zoek<QLineEdit>(naam);
    if (!vak->isVisible() || vak->isReadOnly()) return;
    toetsen->Naar(naam);
    toetsen->Typ(QLocale::c().toString(waarde, 'g', 15).replace('.', GetParam().Decimaal));
  }
  void TypTekst(const QString& naam, std::string_view tekst) {
    toetsen->Naar(naam);
    if (!tekst.empty()) toetsen->Typ(VanCp(tekst));
  }
  void TypProject() {
    toetsen->NaarTab("Projectgegevens");
    const ProjectRec& kop = doel.Kop;
    TypTekst("txtProNum", kop.ProNum.Getrimd());
    TypTekst("txtMyDate", kop.MyDate.Getrimd());
    TypTekst("txtProNaam", kop.ProNaam.Getrimd());
    TypTekst("txtOmschrijving", kop.Omschrijving.Getrimd());
    TypTekst("txtToelichting1", kop.Toelichting1.Getrimd());
    TypTekst("txtToelichting2", kop.Toelichting2.Getrimd());
    TypTekst("txtToelichting3", kop.Toelichting3.Getrimd());
  }

  /// The arrow key that points from one control to another.
  static Qt::Key Kant(const QWidget& van, const QWidget& naar) {
    const QPoint weg = naar.mapToGlobal(QPoint()) - van.mapToGlobal(QPoint());
    if (std::abs(weg.x()) > std::abs(weg.y())) return weg.x() > 0 ? Qt::Key_Right : Qt::Key_Left;
    return weg.y() > 0 ? Qt::Key_Down : Qt::Key_Up;
  }
  /// To one of a group of option buttons: by Tab into the group, by the arrow keys within it.
  void KiesOptie(const QString& naam, std::initializer_list<const char*> groep) {
    const auto inGroep = [&] {
      return std::any_of(groep.begin(), groep.end(),
                         [](const char* een) { return Bediening::Focus() == een; });
    };
    for (int i = 0; i < 150 && !inGroep(); ++i) toetsen->Druk(Qt::Key_Tab);
    for (std::size_t i = 0; i < groep.size() && Bediening::Focus() != naam; ++i)
      toetsen->Druk(Kant(*QApplication::focusWidget(), *Zoek<QWidget>(naam)));
    if (!Zoek<QRadioButton>(naam)->isChecked()) toetsen->Druk(Qt::Key_Space);
    ASSERT_TRUE(Zoek<QRadioButton>(naam)->isChecked()) << naam.toStdString();
  }
  void TypFan() {
    if (doel.Kop.RekenType == rekentype::Overspraak) return;
    toetsen->NaarTab("Ventilator");
    if (doel.FanPrognose == fanbron::Prognose) return TypPrognose();
    KiesOptie("optInvoer", {"optInvoer", "optPrognose"});
    toetsen->Naar("lstFan");
    KiesRij("lstFan", doel.Fan.FanNaam.Getrimd());
  }
  void TypPrognose() {
    KiesOptie("optPrognose", {"optInvoer", "optPrognose"});
    const FanRec& fan = doel.Fan;
    TypGetal("txtfan_0", fan.FanDebiet);
    TypGetal("txtfan_1", fan.FanDruk);
    TypGetal("txtfan_2", fan.FanToeren);
    TypGetal("txtfan_3", fan.FanSchoepen);
    TypGetal("txtfan_4", fan.FanVermogen);
    constexpr std::array<const char*, 4> Typen = {"", "optAxiaal", "optCentriVoor", "optCentriAchter"};
    KiesOptie(Typen[static_cast<std::size_t>(fan.FanType)], {Typen[1], Typen[2], Typen[3]});
    toetsen->Naar("cmdFanOK");
    toetsen->Druk(Qt::Key_Space);
  }

  /// From the top of a list down to a text; the focus is in the list.
  void KiesRij(const QString& lijst, std::string_view tekst) {
    auto* const rijen = Zoek<QListWidget>(lijst);
    const auto geraakt = [&] {
      return rijen->currentItem() != nullptr && rijen->currentItem()->text() == VanCp(tekst);
    };
    toetsen->Druk(Qt::Key_Home);
    for (int i = 0; i < rijen->count() && !geraakt(); ++i) toetsen->Druk(Qt::Key_Down);
    ASSERT_TRUE(geraakt()) << VanCp(tekst).toStdString();
  }
  void KiesWand(const QString& naam, std::string_view tekst) {
    auto* const keuze = Zoek<QComboBox>(naam);
    if (!keuze->isVisible() || Trim(tekst).empty() || tekst.front() == '<') return;
    toetsen->Naar(naam);
    for (int i = 0; i < keuze->count() && keuze->currentText() != VanCp(Trim(tekst)); ++i)
      toetsen->Druk(Qt::Key_Down);
    ASSERT_EQ(keuze->currentText(), VanCp(Trim(tekst)));
  }
  /// The same through the list that drops down.
  void KiesUitLijst(const QString& naam, std::string_view tekst) {
    auto* const keuze = Zoek<QComboBox>(naam);
    if (!keuze->isVisible() || Trim(tekst).empty() || tekst.front() == '<') return;
    toetsen->Naar(naam);
    toetsen->Druk(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    toetsen->Druk(Qt::Key_Home);
    toetsen->Herhaal(Qt::Key_Down, std::max(0, keuze->findText(VanCp(Trim(tekst)))));
    toetsen->Druk(Qt::Key_Return);
    ASSERT_EQ(keuze->currentText(), VanCp(Trim(tekst)));
  }

  void TypElement(int n, Qt::Key bij = Qt::Key_Return) {
    const ElementRec& element = doel.Elementen[static_cast<std::size_t>(n)];
    toetsen->Naar("lstTotaal", Qt::Key_Backtab);
    KiesRij("lstTotaal", element.Naam.Getrimd());
    toetsen->Druk(bij);
    for (const ElementVeld& maat : Maten) TypGetal(maat.Naam, element.*maat.Lid);
    for (int band = 0; band < Banden; ++band)
      TypGetal("txtdemp_" + QString::number(band), element.LAeq[static_cast<std::size_t>(band)]);
    KiesWand("cmbKanaal", element.Kanaal.Getrimd());
  }
  void OpenElementInKeten(int n) {
    auto* const keten = Zoek<QListWidget>("lstProject");
    toetsen->Naar("lstProject");
    if (keten->currentRow() < 0) toetsen->Druk(Qt::Key_Home);
    for (int i = 0; i < keten->count() && keten->currentRow() != n - 1; ++i) {
      toetsen->Naar("lstProject", Qt::Key_Backtab);
      toetsen->Druk(keten->currentRow() < n - 1 ? Qt::Key_Down : Qt::Key_Up);
    }
    ASSERT_EQ(keten->currentRow(), n - 1);
  }
  void TypKeten() {
    toetsen->NaarTab("Kanaalelementen");
    const int laat = GetParam().LaatIngevoegd;
    for (int n = 1; n <= doel.ElementCount; ++n) {
      if (n != laat) TypElement(n);
      if (n != laat + 1 || laat == 0) continue;
      OpenElementInKeten(laat);
      TypElement(laat, Qt::Key_Insert);
    }
  }
  void WisLaatste() {
    toetsen->Naar("lstTotaal", Qt::Key_Backtab);
    toetsen->Druk(Qt::Key_Home);
    toetsen->Druk(Qt::Key_Return);
    toetsen->Naar("lstProject", Qt::Key_Backtab);
    script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen",
                "Kanaalelement " + std::to_string(doel.ElementCount + 1) + " wissen?", Knoppen::OkCancel},
               Antwoord::OK);
    toetsen->Druk(Qt::Key_Delete);
  }

  void TypRuimte() {
    toetsen->NaarTab("Ruimtegegevens");
    if (Zichtbaar("VrijVeld") && Zoek<QCheckBox>("VrijVeld")->isChecked() != (doel.VrijVeld != 0)) {
      toetsen->Naar("VrijVeld");
      toetsen->Druk(Qt::Key_Space);
    }
    const RuimteRec& ruimte = doel.Ruimte;
    TypGetal("txtRLengte", ruimte.RLengte);
    TypGetal("txtRBreedte", ruimte.RBreedte);
    TypGetal("txtRHoogte", ruimte.RHoogte);
    TypGetal("txtRNagalm", ruimte.RNagalm);
    TypGetal("txtRNR", ruimte.RNR);
    TypGetal("txtRDI", ruimte.RDI);
    TypGetal("txtRAantal", ruimte.RAantal);
    KiesWand("cmbRkanaal", ruimte.RkanaalNaam);
    KiesUitLijst("cmbRplafond", ruimte.RplafondNaam);
  }

  [[nodiscard]] std::string PrnVanOpdrachtregel() const {
    std::ostringstream uit;
    std::ostringstream err;
    EXPECT_EQ(VoerOpdrachtUit({"reken", PadTekst(BronData / GetParam().Naam), "--prn", "-", "--data",
                               PadTekst(data), "--decimaal", "komma"},
                              {uit, err}),
              0)
        << err.str();
    return uit.str();
  }

  Project doel = LeesProject(BronData / GetParam().Naam);
};

TEST_P(Overtypen, GivesTheReportAndTheFileOfTheSample) {
  Start();
  constexpr std::array<const char*, 4> Typen = {"", "mnuVent", "mnuUitstraling", "mnuOverspraak"};
  toetsen->Menu({"mnuInstel", "mnuTypReken", Typen[static_cast<std::size_t>(doel.Kop.RekenType)]});
  toetsen->Menu({"mnuBestand", "mnuNieuw"});
  EXPECT_EQ(Bediening::Focus(), "txtProNum");
  TypProject();
  TypFan();
  TypKeten();
  WisLaatste();
  TypRuimte();
  toetsen->Menu({"mnuBestand", "mnuReken"});
  ASSERT_TRUE(IsErEen("frmResultaat"));
  EXPECT_EQ(PrnBytes(programma.Rapport), PrnVanOpdrachtregel());
  const std::filesystem::path bestand = map / "overgetypt één.mrv";
  script.Opslaan(OpslaanVraag(), bestand);
  toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  IsAan(MenuGeenProject);
  EXPECT_EQ(ProjectNaarJson(LeesProject(bestand)), ProjectNaarJson(doel));
  EXPECT_TRUE(Lees(bestand) == Lees(BronData / GetParam().Naam));
}

INSTANTIATE_TEST_SUITE_P(Data, Overtypen,
                         testing::Values(Geval{"kantoor.mrv", ',', 0}, Geval{"plafond.mrv", '.', 3},
                                         Geval{"overspraak.mrv", ',', 2}),
                         [](const auto& geval) {
                           const std::string naam = geval.param.Naam;
                           return naam.substr(0, naam.find('.'));
                         });

}  // namespace
}  // namespace murvane::proef
