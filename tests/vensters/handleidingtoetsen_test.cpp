// Every key that the manual promises, played on the real windows. A row quotes the sentence or the table row
// of the manual that promises it, and presses the keys that are named there.

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "basis/vensters_stijl.h"
#include "editor/vensters_dialogen.h"
#include "project/projectfile.h"
#include "shell/frmSplashII.h"
#include "tests/help/bladen.h"
#include "tests/hulp/opnemer.h"
#include "tests/vensters/bediening.h"
#include "tests/vensters/robot.h"

namespace murvane::proef {
namespace {

// ---- What the manual promises ----

/// A sentence, or a row of a table with its cells apart, that names keys.
struct Belofte {
  std::string Blad;
  std::string Zin;
  std::vector<std::string> Toetsen;  ///< those marked as keys, one by one
};

constexpr char ToetsBegin = '\1', ToetsEinde = '\2';

/// The text of a block; keys stand between marks, cells behind " | ".
std::string MetTekens(const std::string& html) {
  std::string tekst =
      std::regex_replace(html, std::regex("<kbd>([^<]*)</kbd>"), std::string{ToetsBegin} + "$1" + ToetsEinde);
  tekst = std::regex_replace(tekst, std::regex("</t[dh]>\\s*(?=<t[dh])"), " | ");
  return Gelezen(ZonderMerken(tekst));
}

/// A sentence ends before the next capital letter or bracket.
std::vector<std::string> Zinnen(const std::string& tekst) {
  std::vector<std::string> uit;
  std::size_t begin = 0;
  for (std::size_t i = 0; i + 2 < tekst.size(); ++i) {
    const char volgende = tekst[i + 2] == ToetsBegin ? 'A' : tekst[i + 2];
    const bool einde = std::string(".?!").find(tekst[i]) != std::string::npos && tekst[i + 1] == ' ';
    if (!einde || !((volgende >= 'A' && volgende <= 'Z') || volgende == '(')) continue;
    uit.push_back(tekst.substr(begin, i + 1 - begin));
    begin = i + 2;
  }
  uit.push_back(tekst.substr(begin));
  return uit;
}

bool NoemtToetsen(const std::string& zin) {
  static const std::regex woorden(
      "\\b(toets|toetsen|toetsenbord|[Pp]ijltjes?|pijltjestoetsen|Enter|Esc|Escape|Tab|Alt|Ctrl|Shift|"
      "Insert|Delete|Spatie|F[0-9]+|Page ?Up|Page ?Down|zonder muis|letters, cijfers, spaties|"
      "spaties en al)\\b");
  return zin.find(ToetsBegin) != std::string::npos || std::regex_search(zin, woorden);
}

Belofte MaakBelofte(const std::string& blad, const std::string& zin) {
  Belofte uit{blad, zin, {}};
  for (std::size_t i = 0; (i = zin.find(ToetsBegin, i)) != std::string::npos; ++i)
    uit.Toetsen.push_back(zin.substr(i + 1, zin.find(ToetsEinde, i) - i - 1));
  std::erase(uit.Zin, ToetsBegin);
  std::erase(uit.Zin, ToetsEinde);
  return uit;
}

std::vector<Belofte> ZoekBeloften() {
  std::vector<Belofte> uit;
  for (const Blad& blad : Bladen()) {
    if (blad.Bestand == "index.html" || blad.Bestand == "trefwoorden.html") continue;
    for (const Merk& merk : blad.Merken) {
      const std::string html = blad.Binnen(merk);
      const bool regel = merk.Naam == "tr" && html.find("<td") != std::string::npos;
      if (!regel && merk.Naam != "p" && merk.Naam != "li" && merk.Naam != "figcaption") continue;
      if (html.find("<a href=\"#") == 0) continue;  // the headings in front of a chapter
      const std::string tekst = MetTekens(html);
      for (const std::string& zin : regel ? std::vector{tekst} : Zinnen(tekst))
        if (NoemtToetsen(zin)) uit.push_back(MaakBelofte(blad.Bestand, zin));
    }
  }
  return uit;
}

/// Of all chapters: the contents and the index only name headings.
const std::vector<Belofte>& Beloften() {
  static const std::vector<Belofte> beloften = ZoekBeloften();
  return beloften;
}

// ---- The reader who tries them ----

/// Boxes are the real ones; for files, paper and a line of text the script stands in.
class BoxenOpScherm final : public SchermDialogen {
 public:
  explicit BoxenOpScherm(Script& script) : script_(script) {}
  std::string Invoer(const InvoerVraag& vraag) override { return script_.Invoer(vraag); }
  std::filesystem::path OpenDialoog(const BestandVraag& vraag) override { return script_.OpenDialoog(vraag); }
  std::filesystem::path OpslaanDialoog(const BestandVraag& vraag) override {
    return script_.OpslaanDialoog(vraag);
  }
  AfdrukKeuze AfdrukDialoog(const AfdrukVraag& vraag) override { return script_.AfdrukDialoog(vraag); }
  void Wachten(bool aan) override { script_.Wachten(aan); }

 private:
  Script& script_;
};

class Handleidingtoetsen;
struct Rij {
  const char* Blad;
  const char* Zin;
  void (*Speel)(Handleidingtoetsen& lezer);
};
void PrintTo(const Rij& rij, std::ostream* uit) {
  *uit << rij.Blad << ": " << rij.Zin;
}

const std::map<QString, Qt::Key> Toetsnamen = {{"Enter", Qt::Key_Return},
                                               {"Esc", Qt::Key_Escape},
                                               {"Tab", Qt::Key_Tab},
                                               {"Spatie", Qt::Key_Space},
                                               {"Insert", Qt::Key_Insert},
                                               {"Delete", Qt::Key_Delete},
                                               {"PageUp", Qt::Key_PageUp},
                                               {"PageDown", Qt::Key_PageDown},
                                               {"pijltje omlaag", Qt::Key_Down},
                                               {"pijltje omhoog", Qt::Key_Up},
                                               {"pijltje links", Qt::Key_Left},
                                               {"pijltje rechts", Qt::Key_Right},
                                               {"F4", Qt::Key_F4},
                                               {"F8", Qt::Key_F8}};
const std::map<QString, Qt::KeyboardModifier> Bijtoetsen = {
    {"Ctrl", Qt::ControlModifier}, {"Alt", Qt::AltModifier}, {"Shift", Qt::ShiftModifier}};

class Handleidingtoetsen : public Gestart, public testing::WithParamInterface<Rij> {
 public:
  Handleidingtoetsen() {
    dialogen = &boxen_;
    QApplication::setKeyboardInputInterval(60'000);  // a slow machine types slowly
  }
  ~Handleidingtoetsen() override { QApplication::setKeyboardInputInterval(interval_); }
  Handleidingtoetsen(const Handleidingtoetsen&) = delete;
  Handleidingtoetsen& operator=(const Handleidingtoetsen&) = delete;

  using Gestart::IsErEen;
  using Gestart::map;
  using Gestart::OpslaanVraag;
  using Gestart::Paneel;
  using Gestart::programma;
  using Gestart::script;
  using Gestart::Start;
  using Gestart::toetsen;
  using Gestart::venster;
  using Gestart::Zoek;

  void Nieuw() {
    Start();
    Kies("mnuNieuw");
  }
  void Kantoor() { Start(PadTekst(BronData / "kantoor.mrv")); }
  void Resultaten() {
    Kantoor();
    Kies("mnuReken");
  }
  void Kies(const char* opdracht) { Zoek<QAction>(opdracht)->trigger(); }

  /// Presses keys by the names that the manual gives them.
  void Druk(const QString& toets, int keer = 1) {
    Qt::KeyboardModifiers met;
    QStringList delen = toets.split(QRegularExpression("\\+(?=.)"));  // the last one may be + itself
    for (const QString& deel : delen) gedrukt_.insert(deel.toStdString());
    const QString laatste = delen.takeLast();
    for (const QString& deel : delen) met |= Bijtoetsen.at(deel);
    for (int i = 0; i < keer; ++i) Druk(laatste, met);
  }
  void Typ(const QString& tekst) {
    gedrukt_.insert(tekst.toStdString());
    toetsen->Typ(tekst);
  }
  [[nodiscard]] bool HeeftGedrukt(const std::string& toets) const { return gedrukt_.contains(toets); }
  [[nodiscard]] bool HeeftPijltjeGedrukt() const {
    return std::ranges::any_of(gedrukt_, [](const std::string& een) { return een.starts_with("pijltje"); });
  }

  static void Staat(const QString& naam) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bediening::Focus() == naam; }))
        << Bediening::Focus().toStdString() << " in place of " << naam.toStdString();
  }
  /// One key from control to control.
  void Langs(const QString& toets, std::initializer_list<const char*> namen) {
    for (const char* const naam : namen) {
      Druk(toets);
      Staat(naam);
    }
  }
  void LangsBanden(const QString& toets, const QString& reeks) {
    for (const int band : {1, 2, 3, 4, 5, 6, 0}) {
      Druk(toets);
      Staat(reeks + "_" + QString::number(band));
    }
  }
  std::string Tekst(const QString& naam) { return Zoek<QLineEdit>(naam)->text().toStdString(); }
  std::string Bestand() { return Paneel(1).toStdString(); }
  bool IsRood(const QString& naam) {
    return Zoek<QLineEdit>(naam)->palette().color(QPalette::Base) == KleurVan(FoutKleur);
  }
  void Klik(const QString& naam) {
    toetsen->NaarTab(TabVan(naam));
    QTest::mouseClick(Zoek<QWidget>(naam), Qt::LeftButton);
  }
  void Naar(const QString& naam) {
    toetsen->NaarTab(TabVan(naam));
    toetsen->Naar(naam);
  }
  void KlikRij(const QString& lijst, int rij, bool dubbel = false) {
    toetsen->NaarTab(TabVan(lijst));
    auto* const vak = Zoek<QListWidget>(lijst);
    vak->scrollToItem(vak->item(rij));
    const QPoint waar = vak->visualItemRect(vak->item(rij)).center();
    QTest::mouseClick(vak->viewport(), Qt::LeftButton, {}, waar);
    if (dubbel) QTest::mouseDClick(vak->viewport(), Qt::LeftButton, {}, waar);
  }
  /// Adds an element at the end; its page opens.
  void VoegToe(std::int16_t type) {
    KlikRij("lstTotaal", type - 1);
    toetsen->Druk(Qt::Key_Return);
  }
  int Aantal() { return programma.Project.ElementCount; }
  const ElementRec& Element(int n) { return programma.Project.Elementen[static_cast<std::size_t>(n)]; }
  std::string Tab() {
    auto* const tabs = Zoek<QTabWidget>("SSTab1");
    return tabs->tabText(tabs->currentIndex()).toStdString();
  }
  /// The window in front, of those inside the main window.
  QWidget* Voor() { return venster->findChild<QMdiArea*>()->activeSubWindow()->widget(); }
  std::string Boven() { return Voor()->objectName().toStdString(); }

  /// The next box is left by one of its buttons.
  void Antwoord(QMessageBox::StandardButton knop, const std::string& vraag) {
    robot_.Dan([knop, vraag](QDialog& box) {
      auto& melding = dynamic_cast<QMessageBox&>(box);
      EXPECT_THAT(melding.text().toStdString(), testing::HasSubstr(vraag));
      melding.button(knop)->click();
    });
  }
  /// The next dialog is worked in.
  void In(const Robot::Stap& stap) { robot_.Dan(stap); }
  /// The next box is a failure and is left by a key.
  void GeefOp(const QString& toets) {
    robot_.Dan([this, toets](QDialog& box) {
      EXPECT_THAT(box.findChild<QLabel*>("qt_msgbox_label")->text().toStdString(),
                  testing::HasSubstr("Onverwachte fout in procedure OpSlag"));
      Druk(toets);
    });
  }

 private:
  void Druk(const QString& toets, Qt::KeyboardModifiers met) {
    if (toets == "Alt") return toetsen->Alt();
    const bool terug = toets == "Tab" && met == Qt::ShiftModifier;
    if (terug) return toetsen->Druk(Qt::Key_Backtab, met);
    if (const auto een = Toetsnamen.find(toets); een != Toetsnamen.end())
      return toetsen->Druk(een->second, met, toets == "Spatie" ? " " : "");
    if (toets.size() != 1) throw std::runtime_error("no key " + toets.toStdString());
    toetsen->Druk(static_cast<Qt::Key>(toets[0].unicode()), met, toets.toLower());
  }
  QString TabVan(const QString& naam) {
    auto* const tabs = Zoek<QTabWidget>("SSTab1");
    for (int blad = 0; blad < tabs->count(); ++blad)
      if (tabs->widget(blad)->isAncestorOf(Zoek<QWidget>(naam))) return tabs->tabText(blad);
    throw std::runtime_error("on no tab: " + naam.toStdString());
  }

  BoxenOpScherm boxen_{script};
  Robot robot_;
  std::set<std::string> gedrukt_;
  int interval_ = QApplication::keyboardInputInterval();
};

using Lezer = Handleidingtoetsen;

// ---- Plays of more than one row ----

void LangsTabs(Lezer& l) {
  l.Kantoor();
  for (const char* const naam : {"Ventilator", "Kanaalelementen", "Ruimtegegevens", "Projectgegevens"}) {
    l.Druk("Ctrl+PageDown");
    EXPECT_EQ(l.Tab(), naam);
  }
  for (const char* const naam : {"Ruimtegegevens", "Kanaalelementen", "Ventilator"}) {
    l.Druk("Ctrl+PageUp");
    EXPECT_EQ(l.Tab(), naam);
  }
}

/// Every control of the tab in view that takes the focus by Tab, of options the chosen one.
QStringList Onderdelen(const QWidget& tab) {
  QStringList uit;
  for (const QWidget* const vak : tab.findChildren<QWidget*>()) {
    const bool neemt = (vak->focusPolicy() & Qt::TabFocus) != 0 && vak->focusProxy() == nullptr;
    const auto* const optie = qobject_cast<const QRadioButton*>(vak);
    const bool gekozen = optie == nullptr || optie->isChecked();
    const QString naam = vak->objectName();
    if (neemt && gekozen && vak->isVisible() && vak->isEnabled() && !naam.isEmpty() &&
        !naam.startsWith("qt_"))
      uit << naam;
  }
  return uit;
}

void OveralMetTab(Lezer& l) {
  l.Kantoor();
  l.KlikRij("lstProject", 0);
  for (int tab = 0; tab < 4; ++tab) {
    l.toetsen->Druk(Qt::Key_PageDown, Qt::ControlModifier);
    const QStringList onderdelen = Onderdelen(*l.Zoek<QTabWidget>("SSTab1")->currentWidget());
    EXPECT_GT(onderdelen.size(), 4);
    QStringList gezien;
    for (int i = 0; i < 40; ++i) {
      l.Druk("Tab");
      gezien << Bediening::Focus();
    }
    for (const QString& naam : onderdelen) EXPECT_TRUE(gezien.contains(naam)) << naam.toStdString();
  }
}

/// From field to field of a group.
void TypMetEnter(Lezer& l, std::initializer_list<const char*> teksten) {
  for (const char* const tekst : teksten) {
    l.toetsen->Typ(tekst);
    l.toetsen->Druk(Qt::Key_Return);
  }
}

/// A project from the first menu to the saved file and its results, without one click.
void ZonderMuis(Lezer& l) {
  l.Start();
  l.toetsen->Menu({"mnuBestand", "mnuNieuw"});
  l.toetsen->Typ("P-1");
  l.toetsen->NaarTab("Ventilator");
  l.toetsen->Naar("lstFan");
  l.toetsen->Druk(Qt::Key_Down);
  l.toetsen->NaarTab("Kanaalelementen");
  l.toetsen->Naar("lstTotaal");
  l.toetsen->Typ("kanaal rond");
  l.toetsen->Druk(Qt::Key_Return);
  Lezer::Staat("txtHoogte");
  TypMetEnter(l, {"250", "2", "0,2"});
  l.toetsen->Naar("lstTotaal", Qt::Key_Backtab);
  l.toetsen->Herhaal(Qt::Key_Down, elementtype::Rooster - elementtype::KanaalRond);
  l.toetsen->Druk(Qt::Key_Return);
  Lezer::Staat("txtSnetto");
  TypMetEnter(l, {"300", "15"});
  l.toetsen->NaarTab("Ruimtegegevens");
  l.toetsen->Naar("txtRLengte");
  TypMetEnter(l, {"5", "4", "3", "1", "35", "2", "1"});
  l.toetsen->Menu({"mnuBestand", "mnuReken"});
  EXPECT_EQ(l.Boven(), "frmResultaat");
  const std::filesystem::path pad = l.map / "zonder muis.mrv";
  l.script.Opslaan(l.OpslaanVraag(), pad);
  l.toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  EXPECT_TRUE(std::filesystem::exists(pad));
  EXPECT_EQ(l.Bestand(), "Geen bestand");
}

/// A save that does not succeed is given up by the key and done elsewhere.
void SlaElders(Lezer& l) {
  l.Nieuw();
  l.Klik("txtProNaam");
  l.toetsen->Typ("Werk");
  l.script.Opslaan(l.OpslaanVraag(), l.map / "weg" / "werk.mrv");
  l.GeefOp("Esc");
  l.Kies("mnuOpslaan");
  EXPECT_EQ(l.Bestand(), "Naamloos");
  EXPECT_EQ(l.Tekst("txtProNaam"), "Werk");
  l.script.IsKlaar();
}

void SlaEldersOp(Lezer& l) {
  SlaElders(l);
  l.script.Opslaan(l.OpslaanVraag(l.map / "weg" / "werk.mrv"), l.map / "werk.mrv");
  l.Kies("mnuOpslaan");
  EXPECT_EQ(l.Bestand(), "Geen bestand");
  EXPECT_EQ(LeesProject(l.map / "werk.mrv").Kop.ProNaam.Getrimd(), "Werk");
}

/// The maintenance of the elements, for as long as the step takes.
void InElementen(Lezer& l, const std::function<void(QDialog&)>& stap) {
  l.Start();
  l.In([&](QDialog& dialoog) {
    EXPECT_EQ(dialoog.objectName(), "frmElementen");
    stap(dialoog);
    dialoog.close();
  });
  l.Kies("mnuElementen");
}

void InOverzicht(Lezer& l, const std::function<void(QDialog&)>& stap) {
  InElementen(l, [&](QDialog& lijst) {
    l.In([&](QDialog& dialoog) {
      EXPECT_EQ(dialoog.objectName(), "frmOverzicht");
      stap(dialoog);
      dialoog.close();
    });
    lijst.findChild<QAction*>("mnuZoekAlles")->trigger();
  });
}

void BewaarOverzicht(Lezer& l, const QDialog& overzicht) {
  BestandVraag vraag;
  vraag.Titel = "Opslaan als";
  vraag.Filter = "Overzichten kanaalelementen (*.elm)|*.elm";
  vraag.BeginMap = l.programma.DataDir;
  vraag.OverschrijfVraag = true;
  vraag.Extensie = "elm";
  l.script.Opslaan(vraag, l.map / "alles.elm");
  l.Druk("Ctrl+S");
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(l.map / "alles.elm"); }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !overzicht.findChild<QToolButton*>("Toolbar1_save")->isDown(); }));
}

void DrukOverzicht(Lezer& l, const QDialog& overzicht) {
  int vellen = 0;
  const auto vel = [&vellen] {
    ++vellen;
    return std::make_unique<Opnemer>(Opnemer::A4Hoogte, Opnemer::A4Breedte);
  };
  l.script.Afdrukken({.NaarBestandMogelijk = false, .Liggend = true, .Document = "Overzicht"},
                     AfdrukKeuze{1, false, vel});
  l.Druk("Ctrl+P");
  EXPECT_TRUE(QTest::qWaitFor([&] { return vellen > 0; }));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return !overzicht.findChild<QToolButton*>("Toolbar1_print")->isDown(); }));
}

/// The chart of the results at 1 m, for as long as the step takes.
void InGrafiek(Lezer& l, const std::function<void(QDialog&)>& stap) {
  l.Resultaten();
  l.In([](QDialog& keuze) { keuze.accept(); });
  l.In([&](QDialog& dialoog) {
    EXPECT_EQ(dialoog.objectName(), "frmGrafiek");
    stap(dialoog);
    dialoog.close();
  });
  l.Voor()->findChild<QToolButton*>("Toolbar1_Grafiek")->click();
}

void DrukGrafiekAf(Lezer& l) {
  int vellen = 0;
  const auto vel = [&vellen] {
    ++vellen;
    return std::make_unique<Opnemer>();
  };
  InGrafiek(l, [&](QDialog& /*grafiek*/) {
    l.Antwoord(QMessageBox::Yes, "Grafiek afdrukken op printer?");
    l.script.Afdrukken({false, false, "Grafiek"}, AfdrukKeuze{1, false, vel});
    l.Druk("F8");
  });
  EXPECT_EQ(vellen, 1);
}

void OpenVoorbeeld(Lezer& l) {
  l.Resultaten();
  l.Antwoord(QMessageBox::No, "Afdrukken met grafiek?");
  l.Voor()->findChild<QToolButton*>("Toolbar1_preview")->click();
  EXPECT_EQ(l.Boven(), "frmPreView");
}

void SchuifBlad(Lezer& l) {
  OpenVoorbeeld(l);
  auto* const blad = l.Voor()->findChild<QWidget*>("Document");
  l.Voor()->parentWidget()->showNormal();
  l.Voor()->parentWidget()->resize(500, 400);
  Lezer::Staat("Document");
  for (const auto& [heen, terug] :
       {std::pair{"pijltje omlaag", "pijltje omhoog"}, std::pair{"pijltje rechts", "pijltje links"},
        std::pair{"PageDown", "PageUp"}}) {
    const QPoint begin = blad->pos();
    l.Druk(heen);
    EXPECT_NE(blad->pos(), begin) << heen;
    l.Druk(terug);
    EXPECT_EQ(blad->pos(), begin) << terug;
  }
}

void VergrootTekst(Lezer& l) {
  l.Resultaten();
  const auto* const tekst = l.Voor()->findChild<QTextEdit*>("RichTextBox1");
  const auto punten = [tekst] {
    QTextCursor cursor(tekst->document());
    cursor.setPosition(1);
    return cursor.charFormat().fontPointSize();
  };
  EXPECT_EQ(punten(), 12);
  l.Druk("Ctrl++", 2);
  EXPECT_GT(punten(), 12);
  l.Druk("Ctrl+-", 3);
  EXPECT_LT(punten(), 12);
  l.Druk("Ctrl+0");
  EXPECT_EQ(punten(), 12);
}

void VergrootBlad(Lezer& l) {
  OpenVoorbeeld(l);
  const auto* const blad = l.Voor()->findChild<QWidget*>("Document");
  const int breedte = blad->width();
  l.Druk("Ctrl++", 2);
  EXPECT_GT(blad->width(), breedte);
  l.Druk("Ctrl+-", 3);
  EXPECT_LT(blad->width(), breedte);
  l.Druk("Ctrl+0");
  EXPECT_EQ(blad->width(), breedte);
}

/// In a new straight duct whose height is stored as 250.
void InHoogte(Lezer& l) {
  l.Nieuw();
  l.VoegToe(elementtype::KanaalRecht);
  l.toetsen->Typ("250");
  l.toetsen->Druk(Qt::Key_Return);
  l.Naar("txtHoogte");
  Lezer::Staat("txtHoogte");
  EXPECT_EQ(l.Element(1).Hoogte, 250);
}

/// Leaves the field in hand with a text that cannot be read.
void MaakRood(Lezer& l, const QString& naam, const QString& tekst) {
  l.toetsen->Typ(tekst);
  l.toetsen->Druk(Qt::Key_Tab);
  Lezer::Staat(naam);
  EXPECT_TRUE(l.IsRood(naam)) << naam.toStdString();
  EXPECT_EQ(l.Tekst(naam), tekst.toStdString());
}

void RoodWordtNul(Lezer& l) {
  InHoogte(l);
  MaakRood(l, "txtHoogte", "1,,5");
  EXPECT_EQ(l.Element(1).Hoogte, 0);
  l.Druk("Esc");
  EXPECT_EQ(l.Tekst("txtHoogte"), "0");
  EXPECT_FALSE(l.IsRood("txtHoogte"));
}

/// Element 1 of the sample by a click, and back to the list by the keys that the manual names.
void TerugNaarLijst(Lezer& l) {
  l.Kantoor();
  l.KlikRij("lstProject", 0);
  Lezer::Staat("txtHoogte");
  l.Langs("Shift+Tab", {"Toolbar2_Up", "Toolbar2_Down", "Toolbar2_Delete", "lstProject"});
}

void WisInLijst(Lezer& l) {
  const int aantal = l.Aantal();
  l.Antwoord(QMessageBox::Ok, "Kanaalelement 1 wissen?");
  l.Druk("Delete");
  EXPECT_EQ(l.Aantal(), aantal - 1);
}

void WisInVeld(Lezer& l) {
  l.Kantoor();
  const int aantal = l.Aantal();
  l.KlikRij("lstProject", 0);
  Lezer::Staat("txtHoogte");
  l.Druk("Delete");
  EXPECT_EQ(l.Tekst("txtHoogte"), "");
  EXPECT_EQ(l.Aantal(), aantal);
}

/// Types the row of a branch in the manual's table behind a straight duct: by Enter, and on by Tab.
void TypAftakking(Lezer& l, std::int16_t type, std::initializer_list<const char*> aftakking,
                  const char* hoogte, const char* breedte) {
  l.Nieuw();
  l.VoegToe(elementtype::KanaalRecht);
  l.VoegToe(type);
  Lezer::Staat("txtHAftak");
  for (const char* const getal : aftakking) {
    if (std::string_view(getal) != "") l.toetsen->Typ(getal);
    if (Bediening::Focus() != "txtQAftak") l.toetsen->Druk(Qt::Key_Return);
  }
  l.Langs("Tab", {"txtHHoofd", "txtBHoofd", "txtHDoor"});
  l.toetsen->Typ(hoogte);
  l.toetsen->Druk(Qt::Key_Return);
  Lezer::Staat("txtBDoor");
  l.toetsen->Typ(breedte);
  l.toetsen->Druk(Qt::Key_Return);
  EXPECT_EQ(l.Element(2).HDoor, QString(hoogte).toDouble());
  EXPECT_EQ(l.Element(2).BDoor, QString(breedte).toDouble());
  EXPECT_EQ(l.Element(2).RAftak, 0.15);
}

void SpringNaarNaam(Lezer& l, const QString& naam, const QString& gevonden) {
  l.Nieuw();
  l.KlikRij("lstTotaal", 0);
  l.Typ(naam);
  EXPECT_TRUE(l.Zoek<QListWidget>("lstTotaal")->currentItem()->text().startsWith(gevonden));
}

/// Inserts twice in front of the second element.
void Invoegen(Lezer& l) {
  l.Nieuw();
  l.VoegToe(elementtype::KanaalRecht);
  l.VoegToe(elementtype::Rooster);
  l.KlikRij("lstProject", 1);
  l.KlikRij("lstTotaal", elementtype::KanaalRond - 1);
  l.Druk("Insert");
  EXPECT_EQ(l.Aantal(), 3);
  EXPECT_EQ(l.Element(2).ElementType, elementtype::KanaalRond);
}

// ---- The rows ----

constexpr auto Rijen = std::to_array<Rij>({
    {"beginnen.html",
     "Eerst verschijnt het openingsscherm; na twee seconden gaat het vanzelf weg, en met een klik of "
     "een toets meteen.",
     [](Lezer& /*l*/) {
       frmSplashII splash;
       QSignalSpy voorbij(&splash, &frmSplashII::Voorbij);
       splash.Toon();
       QTest::keyClick(&splash, Qt::Key_Space);
       EXPECT_EQ(voorbij.count(), 1);
       EXPECT_FALSE(splash.isVisible());
     }},
    {"beginnen.html", "Met Ctrl+PageDown en Ctrl+PageUp wandelt u langs de tabbladen.", LangsTabs},
    {"beginnen.html",
     "Klik in het eerste veld van een groep; Enter brengt u naar het volgende, en na het laatste weer "
     "naar het eerste.",
     [](Lezer& l) {
       l.Nieuw();
       l.Klik("txtProNum");
       l.Langs("Enter", {"txtMyDate", "txtProNaam", "txtOmschrijving", "txtToelichting1", "txtToelichting2",
                         "txtToelichting3", "txtProNum"});
       l.Klik("txtRLengte");
       l.Langs("Enter",
               {"txtRBreedte", "txtRHoogte", "txtRNagalm", "txtRNR", "txtRDI", "txtRAantal", "txtRLengte"});
     }},
    {"beginnen.html", "Met Tab komt u overal.", OveralMetTab},
    {"beginnen.html",
     "Klik in de lijst en typ vlot het begin van een naam (bijvoorbeeld plenumdemper 5) om erheen te "
     "springen; met pijltje omlaag gaat u verder.",
     [](Lezer& l) {
       SpringNaarNaam(l, "plenumdemper 5", "Plenumdemper 5");
       const int rij = l.Zoek<QListWidget>("lstTotaal")->currentRow();
       l.Druk("pijltje omlaag");
       EXPECT_EQ(l.Zoek<QListWidget>("lstTotaal")->currentRow(), rij + 1);
     }},
    {"elementen.html", "Zolang u er nog in staat, zet Esc de bewaarde waarde terug.",
     [](Lezer& l) {
       InHoogte(l);
       l.toetsen->Typ("99");
       l.Druk("Esc");
       EXPECT_EQ(l.Tekst("txtHoogte"), "250");
     }},
    {"elementen.html",
     "Kan een getal niet worden gelezen als u het veld verlaat, dan wordt het veld rood, telt het als "
     "0 en blijft u erin tot het goed is; Esc maakt het dan 0.",
     RoodWordtNul},
    {"elementen.html",
     "Enter gaat naar het volgende veld van dezelfde groep en na het laatste weer naar het eerste.",
     [](Lezer& l) {
       InHoogte(l);
       l.Langs("Enter", {"txtBreedte", "txtLengte", "txtDebiet", "txtHoogte"});
     }},
    {"elementen.html",
     "Tab gaat ook naar de groep daarna: van de maten naar de geluidsinstraling, of bij een aftakking "
     "van de aftakking naar het hoofdkanaal.",
     [](Lezer& l) {
       InHoogte(l);
       l.Langs("Tab", {"txtBreedte", "txtLengte", "txtDebiet", "txtdemp_0"});
       l.VoegToe(elementtype::AftakRecht);
       l.Langs("Tab", {"txtBAftak", "txtRAftak", "txtQAftak", "txtHHoofd"});
     }},
    {"elementen.html", "Kies de kanaalwand uit de lijst: klik op het pijltje of gebruik de pijltjestoetsen.",
     [](Lezer& l) {
       InHoogte(l);
       l.Naar("cmbKanaal");
       l.Druk("pijltje omlaag", 2);
       EXPECT_EQ(VanCp(l.Element(1).Kanaal.Getrimd()), l.Zoek<QComboBox>("cmbKanaal")->currentText());
       EXPECT_GT(l.Element(1).Rkanaalwand[0], 0);
     }},
    {"keten.html", "Typ in de linkerlijst vlot het begin van een naam, spaties en al, en u springt erheen.",
     [](Lezer& l) { SpringNaarNaam(l, "bocht rechthoekig, a", "Bocht rechthoekig, afgerond"); }},
    {"keten.html",
     "Dubbelklik op een element in de linkerlijst, of kies het en druk op Enter of op de knop Toevoegen.",
     [](Lezer& l) {
       l.Nieuw();
       l.KlikRij("lstTotaal", 7, true);
       EXPECT_EQ(l.Aantal(), 1);
       l.KlikRij("lstTotaal", 8);
       l.Druk("Enter");
       EXPECT_EQ(l.Aantal(), 2);
       l.KlikRij("lstTotaal", 10);
       l.Klik("Toolbar1_Add");
       EXPECT_EQ(l.Aantal(), 3);
     }},
    {"keten.html", "Druk op Insert of op de knop Invoegen.",
     [](Lezer& l) {
       Invoegen(l);
       l.KlikRij("lstTotaal", elementtype::Klep - 1);
       l.Klik("Toolbar1_Prop");
       EXPECT_EQ(l.Element(2).ElementType, elementtype::Klep);
     }},
    {"keten.html",
     "De toets Delete wist een element alleen als u in de lijst zelf staat: na een klik staat u al in "
     "het eerste veld van zijn pagina, en Shift+Tab brengt u vandaar terug naar de lijst.",
     [](Lezer& l) {
       TerugNaarLijst(l);
       WisInLijst(l);
     }},
    {"lijsten.html",
     "Enter gaat van de naam naar 63 Hz, dan naar de volgende band, en na 4000 Hz terug naar 63 Hz; "
     "met Tab komt u ook in de rij Eigenruis.",
     [](Lezer& l) {
       InElementen(l, [&](QDialog& lijst) {
         lijst.findChild<QPushButton*>("cmdToevoegen")->click();
         Lezer::Staat("txtSpectrum");
         l.Druk("Enter");
         Lezer::Staat("txtdemp_0");
         l.LangsBanden("Enter", "txtdemp");
         l.Druk("Tab", 7);
         Lezer::Staat("txtruis_0");
         l.LangsBanden("Enter", "txtruis");
       });
     }},
    {"lijsten.html",
     "Overzicht opslaan in bestand (Ctrl+S) bewaart het als tekst (.elm, .fan, .dct of .plf); "
     "Overzicht afdrukken op printer (Ctrl+P) drukt het liggend af.",
     [](Lezer& l) {
       InOverzicht(l, [&](QDialog& overzicht) {
         BewaarOverzicht(l, overzicht);
         DrukOverzicht(l, overzicht);
       });
     }},
    {"project.html",
     "OK probeert het opnieuw, zo vaak u wilt; met Annuleren, Esc of het kruisje van de melding geeft u het "
     "op en gaat u terug naar het open project.",
     SlaEldersOp},
    {"resultaten.html", "Met F8 drukt u de grafiek af.", DrukGrafiekAf},
    {"resultaten.html",
     "Blader met Naar beginpagina, Naar vorige pagina, Naar volgende pagina en Naar laatste pagina; "
     "schuif met de pijltjestoetsen, PageUp en PageDown.",
     SchuifBlad},
    {"resultaten.html",
     "Ctrl++ en Ctrl+-, of het muiswiel met Ctrl, maken de tekst op het scherm groter en kleiner; Ctrl+0 zet "
     "hem terug.",
     VergrootTekst},
    {"resultaten.html", "Ctrl++ en Ctrl+-, of het muiswiel met Ctrl, vergroten en verkleinen de bladzijde.",
     VergrootBlad},
    {"toetsen.html", "Alles in MurVane gaat ook zonder muis.", ZonderMuis},
    {"toetsen.html", "Alt | naar de menubalk; daarna de pijltjes, Enter of de onderstreepte letter",
     [](Lezer& l) {
       l.Start();
       l.Druk("Alt");
       EXPECT_EQ(QApplication::focusWidget(), l.venster->findChild<QMenuBar*>());
       l.Druk("pijltje omlaag");
       l.Druk("Enter");
       EXPECT_EQ(l.Bestand(), "Naamloos");
       l.Antwoord(QMessageBox::Ok, "Wilt u het bestand sluiten zonder data-opslag");
       l.Druk("Alt");
       l.Druk("pijltje omlaag");
       l.Druk("S");
       EXPECT_EQ(l.Bestand(), "Geen bestand");
     }},
    {"toetsen.html",
     "Alt+letter | drukt op de knop met die onderstreepte letter, bijvoorbeeld Alt+T voor Toevoegen in "
     "een lijst",
     [](Lezer& l) {
       InElementen(l, [&](QDialog& lijst) {
         l.Druk("Alt+T");
         EXPECT_TRUE(QTest::qWaitFor([&] { return Bediening::Focus() == "txtSpectrum"; }));
         EXPECT_TRUE(lijst.findChild<QPushButton*>("cmdOK")->isVisible());
       });
     }},
    {"toetsen.html", "Tab, Shift+Tab | naar het volgende of vorige onderdeel",
     [](Lezer& l) {
       OveralMetTab(l);
       l.Klik("txtProNum");
       l.Langs("Tab", {"txtMyDate", "Image1", "txtProNaam"});
       l.Langs("Shift+Tab", {"Image1", "txtMyDate", "txtProNum"});
     }},
    {"toetsen.html", "Ctrl+PageDown, Ctrl+PageUp | naar het volgende of vorige tabblad", LangsTabs},
    {"toetsen.html",
     "Spatie, Enter | drukt op de knop waar u staat; Spatie zet ook een vinkje en kiest een optie",
     [](Lezer& l) {
       l.Resultaten();
       l.toetsen->Naar("Toolbar1_Grafiek");
       for (const char* const toets : {"Spatie", "Enter"}) {
         l.In([](QDialog& keuze) {
           EXPECT_EQ(keuze.objectName(), "frmSelGraf");
           keuze.reject();
         });
         l.Druk(toets);
       }
       l.Antwoord(QMessageBox::Ok, "Wilt u het bestand sluiten");
       l.Kies("mnuSluiten");
       l.Kies("mnuNieuw");
       l.Naar("Image1");
       for (const char* const toets : {"Spatie", "Enter"}) {
         l.Druk(toets);
         EXPECT_TRUE(l.Zoek<QCalendarWidget>("MonthView")->isVisible()) << toets;
         l.Druk("Esc");
         l.Naar("Image1");
       }
       l.Naar("VrijVeld");
       l.Druk("Spatie");
       EXPECT_TRUE(l.Zoek<QCheckBox>("VrijVeld")->isChecked());
       l.Naar("optInvoer");
       l.toetsen->Druk(Qt::Key_Right);
       l.Naar("optAxiaal");  // none of the three is chosen yet
       EXPECT_FALSE(l.Zoek<QRadioButton>("optAxiaal")->isChecked());
       l.Druk("Spatie");
       EXPECT_TRUE(l.Zoek<QRadioButton>("optAxiaal")->isChecked());
       l.Naar("cmdFanCancel");
       l.Druk("Enter");
       EXPECT_TRUE(l.Zoek<QRadioButton>("optInvoer")->isChecked());
     }},
    {"toetsen.html", "pijltje omlaag, pijltje omhoog | kiest in een groep opties de volgende of de vorige",
     [](Lezer& l) {
       l.Kantoor();
       l.Naar("optCentriAchter");
       l.Druk("pijltje omhoog");
       EXPECT_TRUE(l.Zoek<QRadioButton>("optCentriVoor")->isChecked());
       l.Druk("pijltje omlaag");
       EXPECT_TRUE(l.Zoek<QRadioButton>("optCentriAchter")->isChecked());
     }},
    {"toetsen.html",
     "Alt+pijltje omlaag | opent een keuzelijst, zoals Kanaalwand; daarna de pijltjes en Enter",
     [](Lezer& l) {
       InHoogte(l);
       l.Naar("cmbKanaal");
       l.Druk("Alt+pijltje omlaag");
       EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
       l.Druk("pijltje omlaag", 2);
       l.Druk("Enter");
       EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
       EXPECT_GT(l.Element(1).Rkanaalwand[0], 0);
     }},
    {"toetsen.html",
     "Ctrl+Tab | naar het venster waar u het laatst was: Project, Berekeningsresultaten of Afdrukvoorbeeld",
     [](Lezer& l) {
       OpenVoorbeeld(l);
       for (const char* const naam : {"frmResultaat", "frmPreView"}) {
         l.Druk("Ctrl+Tab");
         EXPECT_EQ(l.Boven(), naam);
       }
     }},
    {"toetsen.html", "Ctrl+F4 | sluit Berekeningsresultaten of het afdrukvoorbeeld",
     [](Lezer& l) {
       OpenVoorbeeld(l);
       for (const char* const naam : {"frmPreView", "frmResultaat"}) {
         EXPECT_EQ(l.Boven(), naam);
         l.Druk("Ctrl+F4");
         EXPECT_FALSE(l.IsErEen(naam)) << naam;
         if (l.IsErEen("frmResultaat")) l.Kies("mnuPreview");
       }
     }},
    {"toetsen.html",
     "Enter | naar het volgende veld van de groep, en na het laatste weer naar het eerste; in een rij "
     "octaafbanden naar de volgende band, en na 4000 Hz weer naar 63 Hz",
     [](Lezer& l) {
       l.Kantoor();
       l.KlikRij("lstProject", 5);
       Lezer::Staat("txtHAftak");
       l.Langs("Enter", {"txtBAftak", "txtRAftak", "txtQAftak", "txtHAftak"});
       l.Naar("txtHHoofd");
       l.Langs("Enter", {"txtBHoofd", "txtHDoor", "txtBDoor", "txtHHoofd"});
       l.KlikRij("lstProject", 0);
       l.Langs("Enter", {"txtBreedte", "txtLengte", "txtHoogte"});  // the flow is the fan's
       l.Naar("txtdemp_0");
       l.LangsBanden("Enter", "txtdemp");
       l.KlikRij("lstProject", 14);
       l.Langs("Enter", {"txtH2Doorsnee", "txtLDoorsnee", "txtH1Doorsnee"});
       l.KlikRij("lstProject", 15);
       l.Langs("Enter", {"txtWeerstand", "txtSnetto"});
       l.Naar("txtfan_0");
       l.Langs("Enter", {"txtfan_1", "txtfan_2", "txtfan_3", "txtfan_4", "txtfan_0"});
     }},
    {"toetsen.html", "Tab | naar het volgende veld, ook dat van de volgende groep",
     [](Lezer& l) {
       l.Kantoor();
       l.KlikRij("lstProject", 5);
       l.Langs("Tab", {"txtBAftak", "txtRAftak", "txtQAftak", "txtHHoofd", "txtBHoofd", "txtHDoor"});
     }},
    {"toetsen.html",
     "Esc | zet de bewaarde waarde terug; had u iets getypt, dan telt het project wel als veranderd",
     [](Lezer& l) {
       l.Resultaten();
       l.Kies("mnuPreview");
       const auto berekend = [&l] { return l.Zoek<QWidget>("StatusBar1_1_beeld")->isVisible(); };
       l.Druk("Ctrl+Tab");
       l.Naar("txtRHoogte");
       const std::string hoogte = l.Tekst("txtRHoogte");
       l.Druk("Esc");
       EXPECT_TRUE(berekend());
       l.toetsen->Typ("9");
       l.Druk("Esc");
       EXPECT_EQ(l.Tekst("txtRHoogte"), hoogte);
       EXPECT_FALSE(berekend());
     }},
    {"toetsen.html",
     "Heeft een element maar één veld, zoals een ronde bocht of een regelklep, dan brengt Enter u "
     "naar de lijst Kanaalelementen project.",
     [](Lezer& l) {
       l.Nieuw();
       l.VoegToe(elementtype::KanaalRond);
       for (const std::int16_t type : {elementtype::BochtRond, elementtype::Klep}) {
         l.VoegToe(type);
         EXPECT_TRUE(Bediening::Focus().startsWith("txt"));
         l.Langs("Enter", {"lstProject"});
       }
     }},
    {"toetsen.html",
     "Elders doet Enter niets in een veld dat alleen staat, zoals Naam ventilator: verlaat het met Tab.",
     [](Lezer& l) {
       l.Kantoor();
       l.Naar("txtSpectrum");
       l.Langs("Enter", {"txtSpectrum"});
       l.Langs("Tab", {"txtLw_0"});
       l.Naar("VrijVeld");
       l.toetsen->Druk(Qt::Key_Space);
       l.Naar("txtRDI");
       l.Langs("Enter", {"txtRDI"});
     }},
    {"toetsen.html",
     "Wordt een getalveld rood als u het verlaat, dan is het onleesbare getal bewaard als 0, en dat "
     "zet Esc er ook in.",
     RoodWordtNul},
    {"toetsen.html",
     "Alleen de datum, Lw en de isolatie in dB van het vertrek houden dan hun vorige waarde: die komt "
     "met Esc terug.",
     [](Lezer& l) {
       l.Start(PadTekst(BronData / "plafond.mrv"));
       for (const auto& [naam, tekst] :
            {std::pair{"txtMyDate", "31-02-2026"}, std::pair{"txtLw_0", "1,,5"},
             std::pair{"txtRkanaal_0", "1,,5"}, std::pair{"txtRplafond_0", ",,"}}) {
         l.Naar(naam);
         const std::string was = l.Tekst(naam);
         MaakRood(l, naam, tekst);
         l.Druk("Esc");
         EXPECT_EQ(l.Tekst(naam), was);
         EXPECT_FALSE(l.IsRood(naam));
       }
     }},
    {"toetsen.html", "Enter | voegt het element achteraan toe | opent het element",
     [](Lezer& l) {
       l.Nieuw();
       l.KlikRij("lstTotaal", 7);
       l.Druk("Enter");
       EXPECT_EQ(l.Element(1).ElementType, elementtype::KanaalRecht);
       l.Naar("lstProject");
       l.Druk("Enter");
       Lezer::Staat("txtHoogte");
     }},
    {"toetsen.html",
     "pijltje omlaag, pijltje omhoog | kiest de volgende of vorige regel | opent het volgende of "
     "vorige element",
     [](Lezer& l) {
       l.Kantoor();
       l.KlikRij("lstTotaal", 3);
       l.Druk("pijltje omlaag");
       EXPECT_EQ(l.Zoek<QListWidget>("lstTotaal")->currentRow(), 4);
       l.Druk("pijltje omhoog");
       EXPECT_EQ(l.Zoek<QListWidget>("lstTotaal")->currentRow(), 3);
       l.KlikRij("lstProject", 1);  // an attenuator: the focus stays in the list
       Lezer::Staat("lstProject");
       l.Druk("pijltje omlaag");
       Lezer::Staat("txtHoogte");
       l.toetsen->Naar("lstProject", Qt::Key_Backtab);
       l.Druk("pijltje omhoog");
       EXPECT_EQ(l.Zoek<QListWidget>("lstProject")->currentRow(), 1);
     }},
    {"toetsen.html", "Insert | voegt het in vóór het gekozen element van het project |", Invoegen},
    {"toetsen.html", "Delete | | wist het element",
     [](Lezer& l) {
       l.Kantoor();
       const int aantal = l.Aantal();
       l.KlikRij("lstProject", 1);  // an attenuator: the focus stays in the list
       l.Antwoord(QMessageBox::Ok, "Kanaalelement 2 wissen?");
       l.Druk("Delete");
       EXPECT_EQ(l.Aantal(), aantal - 1);
     }},
    {"toetsen.html", "Spatie | kiest de regel | opent het element",
     [](Lezer& l) {
       TerugNaarLijst(l);
       l.Druk("Spatie");
       Lezer::Staat("txtHoogte");
       l.toetsen->Naar("lstTotaal", Qt::Key_Backtab);
       l.toetsen->Druk(Qt::Key_Down);
       l.KlikRij("lstProject", 1);
       l.toetsen->Naar("lstTotaal", Qt::Key_Backtab);
       EXPECT_FALSE(l.Zoek<QWidget>("Toolbar1_Add")->isEnabled());
       l.Druk("Spatie");
       EXPECT_TRUE(l.Zoek<QWidget>("Toolbar1_Add")->isEnabled());
     }},
    {"toetsen.html", "letters, cijfers, spaties | springt naar de naam die zo begint, als u vlot typt |",
     [](Lezer& l) { SpringNaarNaam(l, "plenumdemper 1000", "Plenumdemper 1000"); }},
    {"toetsen.html",
     "Opent u een element van het project, met een klik of een toets, dan staat u meteen in het eerste "
     "veld van zijn pagina.",
     [](Lezer& l) {
       TerugNaarLijst(l);
       l.Druk("Enter");
       Lezer::Staat("txtHoogte");
     }},
    {"toetsen.html", "Delete wist daar wat er in het veld staat, en niet het element.", WisInVeld},
    {"toetsen.html",
     "Met Shift+Tab gaat u van dat veld terug: naar Omhoog, Omlaag en Wissen, en dan naar de lijst "
     "zelf, waar Delete het element wist.",
     [](Lezer& l) {
       TerugNaarLijst(l);
       WisInLijst(l);
     }},
    {"toetsen.html", "Insert werkt als Lijst kanaalelementen de actieve, lichtgele lijst is.",
     [](Lezer& l) {
       Invoegen(l);
       l.toetsen->Naar("lstTotaal", Qt::Key_Backtab);
       l.Druk("Insert");
       EXPECT_EQ(l.Aantal(), 3);
     }},
    {"toetsen.html",
     "Na het toevoegen of invoegen is de andere lijst dat: ga terug en kies de regel eerst met Spatie.",
     [](Lezer& l) {
       Invoegen(l);
       l.toetsen->Naar("lstTotaal", Qt::Key_Backtab);
       l.Druk("Spatie");
       l.Druk("Insert");
       EXPECT_EQ(l.Aantal(), 4);
     }},
    {"toetsen.html", "grafiek | F8 | drukt de grafiek af, na een vraag", DrukGrafiekAf},
    {"toetsen.html", "grafiek | Esc | sluit de grafiek",
     [](Lezer& l) {
       InGrafiek(l, [&](QDialog& grafiek) {
         l.Druk("Esc");
         EXPECT_FALSE(grafiek.isVisible());
       });
     }},
    {"toetsen.html", "afdrukvoorbeeld | pijltjes, PageUp, PageDown | schuift de bladzijde", SchuifBlad},
    {"toetsen.html",
     "resultaten, afdrukvoorbeeld | Ctrl++, Ctrl+- | maakt de tekst of de bladzijde op het scherm groter of "
     "kleiner",
     [](Lezer& l) {
       VergrootTekst(l);
       l.Antwoord(QMessageBox::No, "Afdrukken met grafiek?");
       l.Voor()->findChild<QToolButton*>("Toolbar1_preview")->click();
       const auto* const blad = l.Voor()->findChild<QWidget*>("Document");
       const int breedte = blad->width();
       l.Druk("Ctrl++");
       EXPECT_GT(blad->width(), breedte);
     }},
    {"toetsen.html", "resultaten, afdrukvoorbeeld | Ctrl+0 | zet de grootte terug", VergrootBlad},
    {"toetsen.html", "kalender | pijltjes, Enter | kiest een dag en neemt hem over",
     [](Lezer& l) {
       l.Nieuw();
       l.Klik("Image1");
       l.Druk("pijltje links");
       l.Druk("pijltje omlaag");
       l.Druk("Enter");
       EXPECT_EQ(l.Tekst("txtMyDate"), "26-11-2026");
       EXPECT_FALSE(l.Zoek<QCalendarWidget>("MonthView")->isVisible());
     }},
    {"toetsen.html", "kalender | Esc | sluit de kalender; de datum blijft",
     [](Lezer& l) {
       l.Nieuw();
       l.Klik("Image1");
       l.toetsen->Druk(Qt::Key_Left);
       l.Druk("Esc");
       EXPECT_EQ(l.Tekst("txtMyDate"), "20-11-2026");
       EXPECT_FALSE(l.Zoek<QCalendarWidget>("MonthView")->isVisible());
     }},
    {"toetsen.html", "overzicht van een lijst | Ctrl+S | bewaart het overzicht",
     [](Lezer& l) { InOverzicht(l, [&](QDialog& overzicht) { BewaarOverzicht(l, overzicht); }); }},
    {"toetsen.html", "overzicht van een lijst | Ctrl+P | drukt het overzicht af",
     [](Lezer& l) { InOverzicht(l, [&](QDialog& overzicht) { DrukOverzicht(l, overzicht); }); }},
    {"toetsen.html",
     "onderhoud van een lijst | Esc | in een veld: maakt het leeg of 0; erbuiten: laat de open regel vallen",
     [](Lezer& l) {
       InElementen(l, [&](QDialog& lijst) {
         lijst.findChild<QPushButton*>("cmdToevoegen")->click();
         const auto veld = [&](const char* naam) { return lijst.findChild<QLineEdit*>(naam)->text(); };
         l.toetsen->Typ("Naam");
         l.Druk("Esc");
         EXPECT_EQ(veld("txtSpectrum"), "");
         l.toetsen->Druk(Qt::Key_Tab);
         l.toetsen->Typ("12");
         l.Druk("Esc");
         EXPECT_EQ(veld("txtdemp_0"), "0");
         lijst.findChild<QPushButton*>("cmdOK")->setFocus();
         EXPECT_TRUE(lijst.findChild<QPushButton*>("cmdOK")->isVisible());
         l.Druk("Esc");
         EXPECT_FALSE(lijst.findChild<QPushButton*>("cmdOK")->isVisible());
         EXPECT_TRUE(lijst.isVisible());
       });
     }},
    {"toetsen.html",
     "schatting | Esc | in een veld: maakt het 0; erbuiten: sluit het venster zonder schatting",
     [](Lezer& l) {
       InElementen(l, [&](QDialog& lijst) {
         lijst.findChild<QPushButton*>("cmdToevoegen")->click();
         l.In([&](QDialog& schatting) {
           l.toetsen->Typ("300");
           l.Druk("Esc");
           EXPECT_EQ(schatting.findChild<QLineEdit*>("Text1")->text(), "0");
           EXPECT_TRUE(schatting.isVisible());
           schatting.findChild<QPushButton*>("cmdOK")->setFocus();
           l.Druk("Esc");
           EXPECT_FALSE(schatting.isVisible());
         });
         lijst.findChild<QAction*>("mnuKanBekleed")->trigger();
         EXPECT_EQ(lijst.findChild<QLineEdit*>("txtSpectrum")->text(), "");
       });
     }},
    {"ventilator.html", "Enter gaat van band naar band en na 4000 Hz terug naar 63 Hz.",
     [](Lezer& l) {
       l.Kantoor();
       l.Naar("txtLw_0");
       l.LangsBanden("Enter", "txtLw");
     }},
    {"voorbeelden.html",
     "6 | Aftakking rechthoekig | Hoogte aftakking 300 mm, Breedte aftakking 400 mm, Luchtdebiet "
     "aftakking 0,7 m³/s; met Tab verder: doorgaand kanaal Hoogte 450 mm, Breedte 700 mm",
     [](Lezer& l) {
       TypAftakking(l, elementtype::AftakRecht, {"300", "400", "", "0,7"}, "450", "700");
       EXPECT_EQ(l.Element(2).QAftak, 0.7);
     }},
    {"voorbeelden.html",
     "11 | Aftakking rond | Diameter aftakking 160 mm, Luchtdebiet aftakking 0,05 m³/s; met Tab "
     "verder: doorgaand kanaal Hoogte 300 mm, Breedte 400 mm",
     [](Lezer& l) {
       TypAftakking(l, elementtype::AftakRond, {"160", "", "0,05"}, "300", "400");
       EXPECT_EQ(l.Element(2).QAftak, 0.05);
     }},
    {"vragen.html", "Met Esc gaat het rood weg.", RoodWordtNul},
    {"vragen.html", "Alles gaat met het toetsenbord.", ZonderMuis},
});

// ---- The tests ----

bool IsToets(const Merk& merk) {
  return merk.Naam == "kbd" && !merk.Heeft("data-typ");
}

TEST(Handleidingbeloften, NoMarkedKeyStandsOutsideASentenceOrARow) {
  std::ptrdiff_t gemerkt = 0;
  for (const Blad& blad : Bladen()) gemerkt += std::ranges::count_if(blad.Merken, IsToets);
  std::ptrdiff_t gevonden = 0;
  for (const Belofte& belofte : Beloften()) gevonden += std::ssize(belofte.Toetsen);
  EXPECT_EQ(gevonden, gemerkt);
}

TEST(Handleidingbeloften, EveryKeyThatIsPromisedIsPlayedAndNoOther) {
  std::vector<std::string> beloofd;
  for (const Belofte& belofte : Beloften()) beloofd.push_back(belofte.Blad + ": " + belofte.Zin);
  std::vector<std::string> gespeeld;
  for (const Rij& rij : Rijen) gespeeld.push_back(std::string(rij.Blad) + ": " + rij.Zin);
  EXPECT_THAT(gespeeld, testing::UnorderedElementsAreArray(beloofd));
}

TEST_P(Handleidingtoetsen, DoWhatTheManualSays) {
  const Rij& rij = GetParam();
  rij.Speel(*this);
  for (const Belofte& belofte : Beloften()) {
    if (belofte.Blad != rij.Blad || belofte.Zin != rij.Zin) continue;
    for (const std::string& toets : belofte.Toetsen) EXPECT_TRUE(HeeftGedrukt(toets)) << toets;
    const bool pijltje = belofte.Zin.find("pijltje") != std::string::npos;
    EXPECT_TRUE(!pijltje || HeeftPijltjeGedrukt());
  }
}

/// The page and its row's number.
std::string Proefnaam(const testing::TestParamInfo<Rij>& info) {
  const std::string blad = info.param.Blad;
  return blad.substr(0, blad.find('.')) + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Handleiding, Handleidingtoetsen, testing::ValuesIn(Rijen), Proefnaam);

}  // namespace
}  // namespace murvane::proef
