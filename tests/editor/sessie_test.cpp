#include "editor/sessie.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {
namespace {

const std::vector<Toestand> AlleToestanden = {Toestand::GeenProject, Toestand::Open, Toestand::Berekend};

Sessie In(Toestand toestand) {
  Sessie sessie;
  if (toestand == Toestand::GeenProject) return sessie;
  sessie.Toestand = toestand;
  sessie.Bestand = "Hal.mrv";
  return sessie;
}

void VerwachtFout5(const std::function<void()>& opdracht) {
  try {
    opdracht();
    ADD_FAILURE() << "no Fout";
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Nummer(), FoutNummer::OngeldigArgument);
  }
}

// ---- Tables ----

TEST(Menu, EnablesTheCommandsOfEachState) {
  struct Rij {
    const char* naam;
    bool geenProject, open, berekend;
  };
  const std::vector<Rij> rijen = {
      {"mnuNieuw", true, false, false},     {"mnuOpen", true, false, false},
      {"mnuReken", false, true, false},     {"mnuPreview", false, false, true},
      {"mnuSluiten", false, true, true},    {"mnuOpslaan", false, true, true},
      {"mnuAfdrukken", false, false, true}, {"mnuExit", true, true, true},
      {"mnuBeheer", true, true, true},      {"mnuElementen", true, true, true},
      {"mnuFan", true, true, true},         {"mnuDuct", true, false, false},
      {"mnuPlafonds", true, false, false},  {"mnuLetterType", true, true, true},
      {"mnuGebruiker", true, true, true},   {"mnuTypReken", true, true, true},
      {"mnuVent", true, true, true},        {"mnuUitstraling", true, true, true},
      {"mnuOverspraak", true, true, true},  {"mnuCalc", true, true, true},
      {"mnuHelpFile", true, true, true},    {"mnuInfo", true, true, true},
      {"mnuTaakInfo", true, true, true},    {"mnuTaakExit", true, true, true},
  };
  for (const Rij& rij : rijen) {
    EXPECT_EQ(MenuAan(rij.naam, Toestand::GeenProject), rij.geenProject) << rij.naam;
    EXPECT_EQ(MenuAan(rij.naam, Toestand::Open), rij.open) << rij.naam;
    EXPECT_EQ(MenuAan(rij.naam, Toestand::Berekend), rij.berekend) << rij.naam;
  }
  EXPECT_EQ(MenuRegels.size(), rijen.size());
}

TEST(Menu, KnowsNoOtherCommand) {
  for (const char* naam : {"", "mnuVenster", "mnunieuw"})
    VerwachtFout5([&] { (void)MenuAan(naam, Toestand::Open); });
}

TEST(Toolbar, HasFiveButtonsWithTheirPlaceKeyAndTip) {
  struct Rij {
    const char* toolbar;
    int plaats;
    const char* sleutel;
    const char* tip;
  };
  const std::vector<Rij> rijen = {
      {"Toolbar1", 2, "Add", "Kanaalelementen toevoegen"},
      {"Toolbar1", 3, "Prop", "Kanaalelementen invoegen"},
      {"Toolbar2", 2, "Delete", "Kanaalelementen wissen"},
      {"Toolbar2", 3, "Down", "Kanaalelementen verplaatsen"},
      {"Toolbar2", 4, "Up", "Kanaalelementen verplaatsen"},
  };
  ASSERT_EQ(Toolbarknoppen.size(), rijen.size());
  for (std::size_t i = 0; i < rijen.size(); ++i) {
    EXPECT_EQ(Toolbarknoppen[i].Toolbar, rijen[i].toolbar);
    EXPECT_EQ(Toolbarknoppen[i].Plaats, rijen[i].plaats);
    EXPECT_EQ(Toolbarknoppen[i].Sleutel, rijen[i].sleutel);
    EXPECT_EQ(Toolbarknoppen[i].ToolTip, rijen[i].tip);
  }
}

/// The keys of the enabled buttons.
std::set<std::string_view> Aan(const Elementlijst& lijst) {
  std::set<std::string_view> uit;
  for (const Toolbarknop& knop : Toolbarknoppen) {
    if (KnopAan(knop, lijst)) uit.insert(knop.Sleutel);
  }
  return uit;
}

TEST(Toolbar, EnablesTheButtonsOfTheListThatWasClicked) {
  Project project;
  project.ElementCount = 1;
  Elementlijst lijst;
  EXPECT_EQ(Aan(lijst), (std::set<std::string_view>{}));
  lstTotaal_Click(lijst, 0);
  EXPECT_EQ(Aan(lijst), (std::set<std::string_view>{"Add", "Prop"}));
  lstProject_Click(lijst, project, 0);
  EXPECT_EQ(Aan(lijst), (std::set<std::string_view>{"Delete", "Down", "Up"}));
  lstTotaal_Click(lijst, 0);
  EXPECT_EQ(Aan(lijst), (std::set<std::string_view>{"Add", "Prop"}));
}

TEST(Toolbar, EnablesTheButtonsOfTheChainAtAFirstClickThere) {
  Project project;
  project.ElementCount = 1;
  Elementlijst lijst;
  lstProject_Click(lijst, project, 0);
  EXPECT_EQ(Aan(lijst), (std::set<std::string_view>{"Delete", "Down", "Up"}));
}

TEST(Toolbar, FollowsARowSelectedByAnAddition) {
  ElementCatalogus catalogus;
  catalogus.Aantal = 11;
  Project project;
  Elementlijst lijst;
  lstTotaal_Click(lijst, 7);
  lstTotaal_DblClick(lijst, project, catalogus);
  EXPECT_EQ(Aan(lijst), (std::set<std::string_view>{"Delete", "Down", "Up"}));
}

TEST(RekenType, ChecksOneCommandAndShowsItsPages) {
  struct Rij {
    std::int16_t type;
    const char* menu;
    const char* paneel2;
    bool pagina0, vrijVeld;
  };
  const std::vector<Rij> rijen = {
      {1, "mnuVent", "Installatiegeluid", true, true},
      {2, "mnuUitstraling", "Geluidsuitstraling", true, true},
      {3, "mnuOverspraak", "Overspraak", false, false},
      {0, "", "", true, true},  // what only a file can hold
      {4, "", "", true, true},
      {-1, "", "", true, true},
  };
  for (const Rij& rij : rijen) {
    const TypeRegel& regel = TypeVan(rij.type);
    EXPECT_EQ(regel.Menu, rij.menu) << rij.type;
    EXPECT_EQ(regel.Paneel2, rij.paneel2) << rij.type;
    EXPECT_EQ(regel.Pagina0, rij.pagina0) << rij.type;
    EXPECT_EQ(regel.VrijVeldZichtbaar, rij.vrijVeld) << rij.type;
  }
  EXPECT_EQ(TypeRegels.size(), 3u);
  EXPECT_EQ(static_cast<int>(StartPagina), 3);
}

TEST(Aanroepplaatsen, NumberTheCallersOfBerekend) {
  struct Rij {
    const char* nummer;
    const char* aanroeper;
  };
  const std::vector<Rij> rijen = {
      {"1", "Insert"},
      {"2", "lstProject_DblClick"},
      {"3", "lstTotaal_DblClick"},
      {"4", "txtB1Doorsnee_Change"},
      {"5", "txtB2Doorsnee_Change"},
      {"6", "txtBAftak_Change"},
      {"7", "txtBDoor_Change"},
      {"8", "txtBHoofd_Change"},
      {"9", "txtBreedte_Change"},
      {"10", "txtDebiet_Change"},
      {"11", "txtdemp_Change"},
      {"12", "txtH1Doorsnee_Change"},
      {"13", "txtH2Doorsnee_Change"},
      {"14", "txtHAftak_Change"},
      {"15", "txtHDoor_Change"},
      {"16", "txtHHoofd_Change"},
      {"17", "txtHoogte_Change"},
      {"18", "txtLDoorsnee_Change"},
      {"19", "txtLengte_Change"},
      {"20", "txtLw_Change"},
      {"21", "txtMyDate_Change"},
      {"22", "txtOmschrijving_Change"},
      {"23", "txtProNaam_Change"},
      {"24", "txtProNum_Change"},
      {"25", "txtQAftak_Change"},
      {"26", "txtRAantal_Change"},
      {"27", "txtRAftak_Change"},
      {"28", "VrVldSet"},
      {"29", "txtRBreedte_Change"},
      {"30", "txtRDI_Change"},
      {"31", "txtRHoogte_Change"},
      {"32", "txtRkanaal_Change"},
      {"33", "txtRLengte_Change"},
      {"34", "txtRNagalm_Change"},
      {"35", "txtRplafond_Change"},
      {"36", "txtruis_Change"},
      {"37", "txtSnetto_Change"},
      {"38", "txtSpectrum_Change"},
      {"39", "txtToelichting1_Change"},
      {"40", "txtToelichting2_Change"},
      {"41", "txtToelichting3_Change"},
      {"42", "txtWeerstand_Change"},
      {"43", "UpDown"},
      {"50", "cmbKanaal_Click"},
      {"", "Reset"},
      {"", "mnuOpen_Click"},
      {"", "Reken"},
  };
  for (const Rij& rij : rijen) EXPECT_EQ(AanroepNummer(rij.aanroeper), rij.nummer) << rij.aanroeper;
  EXPECT_EQ(Aanroepplaatsen.size(), rijen.size());
}

TEST(Aanroepplaatsen, HoldNoCallerThatChangesNothing) {
  for (const char* naam : {"", "txtfan_Change", "txtRNR_Change", "cmbRkanaal_Click"})
    VerwachtFout5([&] { (void)AanroepNummer(naam); });
}

// ---- What the windows show ----

TEST(StatusBalk, ShowsFileTypeAndCount) {
  Project project;
  project.Kop.RekenType = 2;
  project.ElementCount = 12;
  EXPECT_EQ(StatusVan(In(Toestand::GeenProject), project),
            (StatusBalk{"Geen bestand", 0, "Geluidsuitstraling", "Geen invoer"}));
  EXPECT_EQ(StatusVan(In(Toestand::Open), project),
            (StatusBalk{"Hal.mrv", 0, "Geluidsuitstraling", "12 kanaalelementen"}));
  EXPECT_EQ(StatusVan(In(Toestand::Berekend), project),
            (StatusBalk{"Hal.mrv", 6, "Geluidsuitstraling", "12 kanaalelementen"}));
}

TEST(VensterTitel, PutsTheVersionFirst) {
  EXPECT_EQ(VensterTitel(), "versie 6.7 - MurVane");
}

// ---- From state to state ----

TEST(FormLoad, StartsWithoutAProjectInTheFirstCalculationType) {
  Project project;
  const Sessie sessie = Form_Load(project);
  EXPECT_EQ(sessie.Toestand, Toestand::GeenProject);
  EXPECT_FALSE(ProjectOpen(sessie));
  EXPECT_EQ(project.Kop.RekenType, 1);
  EXPECT_EQ(TypeVan(project.Kop.RekenType).Menu, "mnuVent");
  EXPECT_EQ(StatusVan(sessie, project), (StatusBalk{"Geen bestand", 0, "Installatiegeluid", "Geen invoer"}));
}

TEST(Settings, LeavesNoProjectFromEveryState) {
  for (const Toestand toestand : AlleToestanden) {
    Sessie sessie = In(toestand);
    Settings(sessie);
    EXPECT_EQ(sessie.Toestand, Toestand::GeenProject);
    EXPECT_EQ(StatusVan(sessie, Project()), (StatusBalk{"Geen bestand", 0, "", "Geen invoer"}));
  }
}

TEST(Berekend, MarksAProjectCalculatedAndAChangeDropsIt) {
  Sessie sessie = In(Toestand::Open);
  EXPECT_EQ(Berekend(sessie, -1, ""), (Gevolg{false, false}));
  EXPECT_EQ(sessie.Toestand, Toestand::Berekend);
  EXPECT_EQ(sessie.Vlag, -1);
  EXPECT_EQ(sessie.Aanroep, "");
  EXPECT_EQ(Berekend(sessie, 0, AanroepNummer("txtProNaam_Change")), (Gevolg{true, false}));
  EXPECT_EQ(sessie.Toestand, Toestand::Open);
  EXPECT_EQ(sessie.Vlag, 0);
  EXPECT_EQ(sessie.Aanroep, "23");
  EXPECT_EQ(sessie.Bestand, "Hal.mrv");
}

TEST(Berekend, ClosesTheOtherWindowsAtEveryChange) {
  for (const Toestand toestand : AlleToestanden) {
    Sessie sessie = In(toestand);
    EXPECT_TRUE(Berekend(sessie, 0, "4").SluitVensters);
  }
}

TEST(Berekend, IgnoresOtherFlags) {
  for (const Toestand toestand : AlleToestanden) {
    for (const std::int16_t waarde : std::vector<std::int16_t>{1, 2, -2, 32767, -32768}) {
      Sessie sessie = In(toestand);
      sessie.Vlag = 5;
      EXPECT_EQ(Berekend(sessie, waarde, "4"), Gevolg{}) << waarde;
      EXPECT_EQ(sessie.Toestand, toestand) << waarde;
      EXPECT_EQ(sessie.Vlag, 5) << waarde;
      EXPECT_EQ(sessie.Aanroep, "") << waarde;
    }
  }
}

TEST(Berekend, EnablesNothingWithoutAProject) {
  for (const std::int16_t waarde : {vlag::Gewijzigd, vlag::Berekend}) {
    Sessie sessie;
    Berekend(sessie, waarde, "28");
    EXPECT_EQ(sessie.Toestand, Toestand::GeenProject);
    EXPECT_EQ(sessie.Vlag, waarde);
  }
}

TEST(Berekend, HasMinusOneForCalculatedAndZeroForChanged) {
  EXPECT_EQ(vlag::Berekend, -1);
  EXPECT_EQ(vlag::Gewijzigd, 0);
}

/// The header's texts in the order of the record, in calculation type 2.
void ZetKop(ProjectRec& kop, const std::array<std::string_view, 7>& teksten) {
  kop.ProNaam = teksten[0];
  kop.ProNum = teksten[1];
  kop.Omschrijving = teksten[2];
  kop.Toelichting1 = teksten[3];
  kop.Toelichting2 = teksten[4];
  kop.Toelichting3 = teksten[5];
  kop.MyDate = teksten[6];
  kop.RekenType = 2;
}

/// A project in which no field has the value that Reset leaves.
Project Vol() {
  Project project;
  project.ElementCount = 3;
  for (ElementRec& element : project.Elementen) {
    element.Naam = "Element";
    element.ElementType = 8;
    element.demp.fill(4);
  }
  ZetKop(project.Kop, {"naam", "nummer", "omschrijving", "een", "twee", "drie", "01-02-2003"});
  project.Fan.FanNaam = "ventilator";
  project.Fan.Lw.fill(70);
  project.Fan.FanDebiet = project.Fan.FanDruk = project.Fan.FanToeren = project.Fan.FanSchoepen =
      project.Fan.FanVermogen = 3;
  project.Fan.FanType = 2;
  RuimteRec& ruimte = project.Ruimte;
  ruimte.RNaam = "zaal";
  ruimte.RLengte = ruimte.RBreedte = ruimte.RHoogte = ruimte.RNagalm = ruimte.RNR = ruimte.RAantal = 6;
  ruimte.RVolume = 60;
  ruimte.RDI = 4;
  ruimte.Rkanaal.fill(20);
  ruimte.Rplafond.fill(30);
  ruimte.RkanaalNaam = "wand";
  ruimte.RplafondNaam = "plafond";
  project.FanPrognose = -1;
  project.VrijVeld = 1;
  return project;
}

/// What Reset leaves of Vol(), field by field.
Project NaReset() {
  Project project;
  ZetKop(project.Kop, {});  // the type stays
  project.Fan.FanNaam = "";
  project.Ruimte.RNaam = "zaal";  // this and the volume stay
  project.Ruimte.RVolume = 60;
  return project;
}

TEST(Reset, BlanksTheProjectButTypeRoomNameAndVolume) {
  Sessie sessie = In(Toestand::Berekend);
  Project project = Vol();
  Elementlijst lijst = {3, 2, Lijst::lstProject, true, true};
  EXPECT_EQ(Reset(sessie, lijst, project), (Gevolg{true, true}));
  EXPECT_EQ(ProjectBytes(project), ProjectBytes(NaReset()));
  EXPECT_EQ(project.Kop.ProNum.Heel(), "            ");  // blanks, no NULs
  EXPECT_EQ(project.Kop.MyDate.Heel(), "          ");
  EXPECT_EQ(project.Ruimte.RDI, 0);
  EXPECT_EQ(project.ElementCount, 0);
  EXPECT_EQ(lijst, Elementlijst{});
  EXPECT_EQ(sessie.Toestand, Toestand::Open);  // it counts as a change; closing is another matter
  EXPECT_EQ(sessie.Vlag, 0);
  EXPECT_EQ(sessie.Aanroep, "");
}

TEST(Reset, BlanksEveryElementSlot) {
  Sessie sessie;
  Project project = Vol();
  Elementlijst lijst;
  Reset(sessie, lijst, project);
  project.ElementCount = 500;
  Project blank = NaReset();
  blank.ElementCount = 500;
  for (ElementRec& element : blank.Elementen) element.Naam = element.Kanaal = "";
  EXPECT_EQ(ProjectBytes(project), ProjectBytes(blank));
}

TEST(NieuwProject, IsOpenNotCalculatedAndKeepsTheType) {
  Project project = Vol();
  Sessie sessie;
  Elementlijst lijst = {3, 2, Lijst::lstProject, true, true};
  Reset(sessie, lijst, project);
  ZetNieuw(sessie, lijst);
  EXPECT_EQ(sessie.Toestand, Toestand::Open);
  EXPECT_TRUE(ProjectOpen(sessie));
  EXPECT_EQ(StatusVan(sessie, project),
            (StatusBalk{"Naamloos", 0, "Geluidsuitstraling", "0 kanaalelementen"}));
  EXPECT_TRUE(Aan(lijst).empty());
}

TEST(GeopendProject, IsNotCalculatedAndShowsItsNameTypeAndCount) {
  Project project = Vol();
  project.Kop.RekenType = 3;
  Sessie sessie;
  Elementlijst lijst = {3, 2, Lijst::lstProject, true, true};
  EXPECT_EQ(ZetGeopend(sessie, lijst, "Hal.mrv"), (Gevolg{true, false}));
  EXPECT_EQ(sessie.Toestand, Toestand::Open);
  EXPECT_EQ(sessie.Vlag, 0);
  EXPECT_EQ(sessie.Aanroep, "");
  EXPECT_EQ(StatusVan(sessie, project), (StatusBalk{"Hal.mrv", 0, "Overspraak", "3 kanaalelementen"}));
  EXPECT_EQ(lijst, Elementlijst{});
  EXPECT_EQ(project.ElementCount, 3);
}

TEST(GeopendProject, IsOpenWhateverItsFileIsCalled) {
  const Project project = Vol();
  for (const std::string_view naam : {GeenBestand, NieuweNaam, std::string_view("Łódź.mrv")}) {
    Sessie sessie;
    Elementlijst lijst;
    (void)ZetGeopend(sessie, lijst, naam);
    EXPECT_TRUE(ProjectOpen(sessie)) << naam;
    EXPECT_TRUE(MenuAan("mnuOpslaan", sessie.Toestand)) << naam;
    EXPECT_EQ(StatusVan(sessie, project).Paneel1, naam);
    EXPECT_EQ(StatusVan(sessie, project).Paneel3, "3 kanaalelementen");
  }
}

TEST(SluitProject, EndsWithoutAProjectFromEveryState) {
  for (const Toestand toestand : AlleToestanden) {
    Sessie sessie = In(toestand);
    Project project = Vol();
    Elementlijst lijst = {3, 2, Lijst::lstProject, true, true};
    EXPECT_EQ(SluitProject(sessie, lijst, project), (Gevolg{true, true}));
    EXPECT_EQ(sessie.Toestand, Toestand::GeenProject);
    EXPECT_EQ(StatusVan(sessie, project),
              (StatusBalk{"Geen bestand", 0, "Geluidsuitstraling", "Geen invoer"}));
    EXPECT_EQ(ProjectBytes(project), ProjectBytes(NaReset()));
    EXPECT_EQ(lijst, Elementlijst{});
  }
}

TEST(KiesRekenType, SwitchesTheTypeAloneAndDropsTheCalculatedState) {
  struct Rij {
    std::int16_t type;
    const char* paneel2;
  };
  for (const Rij& rij :
       std::vector<Rij>{{1, "Installatiegeluid"}, {2, "Geluidsuitstraling"}, {3, "Overspraak"}}) {
    for (const std::int16_t was : std::vector<std::int16_t>{1, 2, 3}) {
      Sessie sessie = In(Toestand::Berekend);
      Project project = Vol();
      project.Kop.RekenType = was;
      EXPECT_EQ(KiesRekenType(sessie, project, rij.type), (Gevolg{true, false}));
      EXPECT_EQ(StatusVan(sessie, project), (StatusBalk{"Hal.mrv", 0, rij.paneel2, "3 kanaalelementen"}));
      EXPECT_EQ(sessie.Toestand, Toestand::Open);
      EXPECT_EQ(sessie.Aanroep, "28");
      EXPECT_EQ(project.VrijVeld, 1);
      Project verwacht = Vol();
      verwacht.Kop.RekenType = rij.type;
      EXPECT_EQ(ProjectBytes(project), ProjectBytes(verwacht));
    }
  }
}

TEST(KiesRekenType, WorksOnABlankWindow) {
  Project project;
  Sessie sessie = Form_Load(project);
  KiesRekenType(sessie, project, 3);
  EXPECT_EQ(sessie.Toestand, Toestand::GeenProject);
  EXPECT_EQ(StatusVan(sessie, project), (StatusBalk{"Geen bestand", 0, "Overspraak", "Geen invoer"}));
}

TEST(KiesRekenType, RefusesANumberThatIsNoType) {
  for (const std::int16_t type : std::vector<std::int16_t>{0, 4, -1}) {
    Project project = Vol();
    Sessie sessie = In(Toestand::Berekend);
    VerwachtFout5([&] { KiesRekenType(sessie, project, type); });
    EXPECT_EQ(project.Kop.RekenType, 2);
    EXPECT_EQ(sessie.Toestand, Toestand::Berekend);
  }
}

TEST(Sessie, GoesThroughTheLifeOfAProject) {
  Project project;
  Elementlijst lijst;
  ElementCatalogus catalogus;
  catalogus.Aantal = 11;
  Sessie sessie = Form_Load(project);
  Reset(sessie, lijst, project);
  ZetNieuw(sessie, lijst);
  lstTotaal_Click(lijst, 7);
  Berekend(sessie, vlag::Berekend, AanroepNummer("Reken"));
  EXPECT_EQ(sessie.Toestand, Toestand::Berekend);

  const LijstUitkomst uitkomst = lstTotaal_DblClick(lijst, project, catalogus);
  EXPECT_TRUE(Berekend(sessie, vlag::Gewijzigd, uitkomst.Berekend).SluitVensters);
  EXPECT_EQ(sessie.Toestand, Toestand::Open);
  EXPECT_EQ(StatusVan(sessie, project).Paneel3, uitkomst.Paneel3);

  SluitProject(sessie, lijst, project);
  EXPECT_EQ(sessie.Toestand, Toestand::GeenProject);
}

}  // namespace
}  // namespace murvane
