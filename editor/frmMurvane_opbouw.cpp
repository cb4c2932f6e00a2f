// The controls of the project window: their names, texts and places. The order in which they are made is the
// order of the Tab key.

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "basis/vensters_hulp.h"
#include "editor/frmMurvane.h"
#include "editor/vensters_blad.h"
#include "editor/vensters_tekening.h"
#include "editor/vensters_veld.h"

namespace murvane {

namespace {

struct KnopTekst {
  std::string_view Sleutel;
  const char* Tekst;
  const char* Beeld;
};

constexpr auto KnopTeksten = std::to_array<KnopTekst>({
    {"Add", "Toevoegen", "toevoegen"},
    {"Prop", "Invoegen", "invoegen"},
    {"Delete", "Wissen", "wissen"},
    {"Down", "Omlaag", "omlaag"},
    {"Up", "Omhoog", "omhoog"},
});

/// What the controls do that are no input fields.
constexpr auto Uitleggen = std::to_array<Uitleg>({
    {"optInvoer", "Het geluidsvermogen komt uit de lijst ventilatoren."},
    {"optPrognose", "Het geluidsvermogen wordt geschat uit debiet, drukverlies en type."},
    {"lstFan", "Een rij kiezen neemt naam en geluidsvermogen van die ventilator over."},
    {"optAxiaal", "Type ventilator van de prognose."},
    {"optCentriVoor", "Type ventilator van de prognose."},
    {"optCentriAchter", "Type ventilator van de prognose."},
    {"cmdFanOK", "Berekent de prognose van het geluidsvermogen."},
    {"cmdFanCancel", "Gaat terug naar de ventilator uit de lijst."},
    {"lblLwA", "A-gewogen som van de banden."},
    {"lstTotaal",
     "Enter voegt het gekozen element achteraan het project toe, Insert voor het gekozen element."},
    {"lstProject", "De keten van ventilator tot vertrek. Enter opent het gekozen element, Delete wist het."},
    {"cmbKanaal", "Een wand uit de lijst luchtkanalen, met zijn isolatie tegen instraling."},
    {"Tekening", "De maten van het element; die van het veld in bewerking is geaccentueerd."},
    {"VrijVeld", "De bron staat in het vrije veld: afmetingen en nagalmtijd van het vertrek doen niet mee."},
    {"cmbRkanaal", "Een wand uit de lijst luchtkanalen, met zijn geluidsisolatie."},
    {"cmbRplafond", "Een plafond uit de lijst plafonds, met zijn geluidsisolatie."},
    {"TekeningRuimte", "De maten van het vertrek; die van het veld in bewerking is geaccentueerd."},
    {"Image1", "Kiest de datum met een kalender."},
});

const KnopTekst& TekstVanKnop(std::string_view sleutel) {
  for (const KnopTekst& knop : KnopTeksten) {
    if (knop.Sleutel == sleutel) return knop;
  }
  return KnopTeksten.front();
}

/// Room for the widest number or date that a field takes, in the letters that the user has.
int GetalBreedte(const QWidget& vak) {
  return vak.fontMetrics().horizontalAdvance("100000,00") + 30;
}

QVBoxLayout* Kolom(QWidget* ouder, int marge = Marge) {
  auto* const indeling = new QVBoxLayout(ouder);
  indeling->setContentsMargins(marge, marge, marge, marge);
  indeling->setSpacing(Ruimte);
  return indeling;
}

/// Room for a caption that is not there yet, so that the fields behind it stay where they are.
void HoudVrij(QGridLayout* indeling, const QWidget& letters, const char* opschrift) {
  indeling->setColumnMinimumWidth(0, letters.fontMetrics().horizontalAdvance(opschrift) + Ruimte);
}

QGridLayout* Rooster(QWidget* ouder, int marge = 0) {
  auto* const indeling = new QGridLayout(ouder);
  indeling->setContentsMargins(marge, marge, marge, marge);
  indeling->setHorizontalSpacing(Ruimte);
  indeling->setVerticalSpacing(Ruimte);
  return indeling;
}

template <typename Knop>
Knop* MaakKnop(const char* naam, const QString& tekst, QWidget* ouder) {
  auto* const knop = new Knop(tekst, ouder);
  knop->setObjectName(naam);
  knop->setAccessibleName(tekst);
  if constexpr (std::is_same_v<Knop, QPushButton>) knop->setAutoDefault(true);  // Enter presses it
  return knop;
}

}  // namespace

QLabel* frmMurvane::MaakLabel(const QString& tekst, const char* reeks, QWidget* buddy) {
  auto* const label = new QLabel(tekst, this);
  label->setObjectName(QString(reeks) + "_" + QString::number(labels_[reeks]++));
  label->setBuddy(buddy);
  return label;
}

/// The label to the left of a row of bands, level with its boxes.
QLabel* frmMurvane::BandLabel(const QString& tekst, const char* reeks, const BandRij* rij) {
  QLabel* const label = MaakLabel(tekst, reeks, rij->Vakken()[0]);
  label->setMinimumHeight(rij->Vakken()[0]->sizeHint().height());
  return label;
}

void frmMurvane::MeldAan(InvoerVeld* veld) {
  velden_[{veld->Veld().Naam, veld->Veld().Index}] = veld;
  connect(veld, &QLineEdit::textChanged, this, [this, veld] { Gewijzigd(*veld); });
  connect(veld, &InvoerVeld::Verlaten, this, [this, veld] { Verlaat(*veld); });
  connect(veld, &InvoerVeld::Enter, this, [this, veld] { NaarVolgende(*veld); });
  connect(veld, &InvoerVeld::Escape, this, [this, veld] { Herstel(*veld); });
  connect(veld, &InvoerVeld::Gekregen, this, [this, veld] {
    tekening_->Belicht(veld->objectName());
    ruimteTekening_->Belicht(veld->objectName());
  });
}

InvoerVeld* frmMurvane::VoegVeld(QGridLayout* indeling, int rij, VeldId veld, const QString& tekst,
                                 const QString& eenheid, const char* labels, int kolom) {
  const QString naam = eenheid.isEmpty() ? tekst : tekst + " in " + eenheid;
  auto* const vak = new InvoerVeld(veld, naam, this);
  QLabel* const label = MaakLabel(tekst, labels, vak);
  indeling->addWidget(label, rij, kolom);
  indeling->addWidget(vak, rij, kolom + 1);
  std::vector<QWidget*>& mee = mee_[{veld.Naam, veld.Index}];
  mee.push_back(label);
  if (vak->alignment() & Qt::AlignRight) {
    vak->setFixedWidth(GetalBreedte(*vak));
    QLabel* const achter = MaakLabel(eenheid, labels, vak);
    indeling->addWidget(achter, rij, kolom + 2);
    mee.push_back(achter);
  }
  MeldAan(vak);
  return vak;
}

/// Says height or diameter, as the shape of the element has it. The unit stays as it was.
void frmMurvane::ZetOpschriften(std::int16_t elementType) {
  for (const auto& [sleutel, vak] : velden_) {
    const QString tekst = VanCp(MaatOpschrift(elementType, sleutel.first));
    if (tekst.isEmpty()) continue;
    qobject_cast<QLabel*>(mee_[sleutel].front())->setText(tekst);
    vak->setAccessibleName(tekst + " in mm");
  }
}

BandRij* frmMurvane::VoegBanden(std::string_view naam, int eerste, const QString& tekst) {
  auto* const rij = new BandRij(naam, eerste, tekst, this);
  for (InvoerVeld* const vak : rij->Vakken()) MeldAan(vak);
  mee_[{naam, eerste}].push_back(rij);
  return rij;
}

void frmMurvane::BouwOp() {
  setObjectName("frmMurvane");
  setAccessibleName("Project");
  setWindowTitle(VanCp(VensterTitel()));
  auto* const indeling = Kolom(this, 0);
  SSTab1 = new QTabWidget(this);
  SSTab1->setObjectName("SSTab1");
  SSTab1->setAccessibleName("Invoer van het project");
  SSTab1->tabBar()->setAccessibleDescription("Ctrl+Page Down en Ctrl+Page Up gaan van blad naar blad.");
  SSTab1->tabBar()->installEventFilter(this);
  indeling->addWidget(SSTab1, 1);
  leeg_ = new Tekening(this);
  leeg_->setObjectName("TekeningLeeg");
  leeg_->setAccessibleDescription("Er is geen project open.");
  indeling->addWidget(leeg_, 1);
  ProgressBar1 = new QProgressBar(this);
  ProgressBar1->setObjectName("ProgressBar1");
  ProgressBar1->setAccessibleName("Voortgang van de berekening");
  ProgressBar1->setAccessibleDescription("Telt de berekende kanaalelementen.");
  KleurVoortgang(*ProgressBar1);
  indeling->addWidget(ProgressBar1);
}

/// Most of the window, built when it is first shown: without a project none of it is in view.
void frmMurvane::BouwTabs() {
  if (SSTab1->count() > 0) return;
  SSTab1->addTab(BouwVentilator(), "Ventilator");
  SSTab1->addTab(BouwElementen(), "Kanaalelementen");
  SSTab1->addTab(BouwRuimte(), "Ruimtegegevens");
  SSTab1->addTab(BouwProject(), "Projectgegevens");
  VerbindTabs();
  VerbindFan();
  VerbindLijsten();
  VerbindKeuzes();
  ZetIconen();
  ZetUitleg(*this, Uitleggen);
  for (QWidget* const vak : findChildren<QWidget*>()) vak->installEventFilter(this);
}

QWidget* frmMurvane::BouwVentilator() {
  auto* const blad = new Blad(this);
  auto* const indeling = Kolom(blad->Blok(), 0);
  optInvoer = MaakKnop<Optieknop>("optInvoer", "Ventilator uit de lijst", blad);
  optPrognose = MaakKnop<Optieknop>("optPrognose", "Prognose uit de ventilatorgegevens", blad);
  auto* const bron = new QHBoxLayout;
  bron->setSpacing(3 * Ruimte);
  bron->addWidget(optInvoer);
  bron->addWidget(optPrognose);
  bron->addStretch();
  indeling->addLayout(bron);
  vakFan_ = BouwFanLijst();
  indeling->addWidget(vakFan_, 1);
  indeling->addWidget(BouwFanPrognose());
  auto* const rooster = Rooster(nullptr);
  VoegVeld(rooster, 0, {"txtSpectrum"}, "Naam ventilator", "", "lblspectrum");
  BandRij* const rij = VoegBanden("txtLw", 0, "Geluidsvermogen Lw in dB");
  rooster->addWidget(BandLabel("Lw in dB", "lblspectrum", rij), 1, 0, Qt::AlignBottom);
  rooster->addWidget(rij, 1, 1);
  lblLwA = new QLabel(blad);
  lblLwA->setObjectName("lblLwA");
  lblLwA->setAccessibleName("Geluidsvermogen in dB(A)");
  rooster->addWidget(lblLwA, 2, 1);
  indeling->addLayout(rooster);
  indeling->addStretch(0);
  return blad;
}

QWidget* frmMurvane::BouwFanLijst() {
  auto* const vak = new QWidget(this);
  auto* const indeling = Kolom(vak, 0);
  lstFan = new Lijstvak("lstFan", "Lijst ventilatoren", vak);
  indeling->addWidget(MaakLabel("Lijst ventilatoren", "lblspectrum", lstFan));
  indeling->addWidget(lstFan, 1);
  return vak;
}

QWidget* frmMurvane::BouwFanPrognose() {
  frameFan = new QGroupBox("Ventilatorgegevens", this);
  frameFan->setObjectName("frameFan");
  auto* const indeling = Rooster(frameFan, Marge);
  VoegVeld(indeling, 0, {"txtfan", 0}, "Totale luchtverplaatsing", "m³/s", "lblfan");
  VoegVeld(indeling, 1, {"txtfan", 1}, "Totaal drukverlies", "Pa", "lblfan");
  VoegVeld(indeling, 2, {"txtfan", 2}, "Toerental", "omw/min", "lblfan");
  VoegVeld(indeling, 3, {"txtfan", 3}, "Aantal schoepen", "stuks", "lblfan");
  VoegVeld(indeling, 4, {"txtfan", 4}, "Asvermogen", "W", "lblfan");
  optAxiaal = MaakKnop<Optieknop>("optAxiaal", "Axiaal", frameFan);
  optCentriVoor = MaakKnop<Optieknop>("optCentriVoor", "Centrifugaal, voorwaarts gebogen", frameFan);
  optCentriAchter = MaakKnop<Optieknop>("optCentriAchter", "Centrifugaal, achterwaarts gebogen", frameFan);
  auto* const typen = new QButtonGroup(frameFan);
  int rij = 0;
  for (QRadioButton* const type : {optAxiaal, optCentriVoor, optCentriAchter}) {
    typen->addButton(type);
    indeling->addWidget(type, rij++, 4);
  }
  indeling->setColumnMinimumWidth(3, 3 * Ruimte);
  cmdFanOK = MaakKnop<QPushButton>("cmdFanOK", "OK", frameFan);
  cmdFanCancel = MaakKnop<QPushButton>("cmdFanCancel", "Annuleren", frameFan);
  auto* const knoppen = new QHBoxLayout;
  knoppen->addWidget(cmdFanOK);
  knoppen->addWidget(cmdFanCancel);
  knoppen->addStretch();
  indeling->addLayout(knoppen, 4, 4);
  indeling->setColumnStretch(4, 1);
  return frameFan;
}

QWidget* frmMurvane::BouwElementen() {
  auto* const blad = new Blad(this);
  auto* const indeling = Kolom(blad->Blok(), 0);
  auto* const lijsten = new QHBoxLayout;
  lijsten->setSpacing(2 * Marge);
  lstTotaal = new Lijstvak("lstTotaal", "Lijst kanaalelementen", blad);
  lijsten->addWidget(BouwLijst(lstTotaal, "Lijst kanaalelementen", "Toolbar1"));
  lstProject = new Lijstvak("lstProject", "Kanaalelementen project", blad);
  lijsten->addWidget(BouwLijst(lstProject, "Kanaalelementen project", "Toolbar2"));
  indeling->addLayout(lijsten, 1);
  indeling->addSpacing(Ruimte);
  indeling->addWidget(BouwPaginas(), 1);
  return blad;
}

QWidget* frmMurvane::BouwLijst(Lijstvak* lijst, const QString& titel, const QString& toolbar) {
  auto* const vak = new QWidget(this);
  auto* const indeling = Kolom(vak, 0);
  indeling->addWidget(MaakLabel(titel, "lbllijst", lijst));
  indeling->addWidget(lijst, 1);
  indeling->addWidget(BouwKnoppen(toolbar));
  return vak;
}

QWidget* frmMurvane::BouwKnoppen(const QString& toolbar) {
  auto* const balk = new QWidget(this);
  balk->setObjectName(toolbar);
  auto* const indeling = new QHBoxLayout(balk);
  indeling->setContentsMargins(0, 0, 0, 0);
  for (const Toolbarknop& regel : Toolbarknoppen) {
    if (VanCp(regel.Toolbar) != toolbar) continue;
    auto* const knop = new Balkknop(balk);
    knop->setObjectName(toolbar + "_" + VanCp(regel.Sleutel));
    knop->setText(TekstVanKnop(regel.Sleutel).Tekst);
    knop->setToolTip(VanCp(regel.ToolTip));
    knop->setAccessibleName(knop->text());
    knop->setAccessibleDescription(knop->toolTip());
    knop->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(knop, &QToolButton::clicked, this, [this, &regel] { KnopKlik(regel); });
    indeling->addWidget(knop);
    knoppen_.push_back(knop);
  }
  indeling->addStretch();
  return balk;
}

QWidget* frmMurvane::BouwPaginas() {
  SSTab2 = new QStackedWidget(this);
  SSTab2->setObjectName("SSTab2");
  tekening_ = new Tekening(this);
  for (QWidget* const pagina : {BouwKanaalPagina(), BouwAftakPagina(), BouwDoorsneePagina(),
                                BouwWeerstandPagina(), BouwSpectrumPagina()})
    SSTab2->addWidget(pagina);
  lblElement = MaakLabel({}, "lblElement", lstProject);
  lblElement->setObjectName("lblElement");
  QFont vet = lblElement->font();
  vet.setBold(true);
  lblElement->setFont(vet);
  auto* const vak = new QWidget(this);
  auto* const indeling = Rooster(vak);
  indeling->setHorizontalSpacing(2 * Marge);
  indeling->addWidget(lblElement, 0, 0, 1, 2);
  indeling->addWidget(SSTab2, 1, 0);
  indeling->addWidget(tekening_, 1, 1);
  indeling->setColumnStretch(1, 1);
  indeling->setRowStretch(1, 1);
  // The page keeps its place when the element's is hidden, so that the lists do not jump.
  vak->setMinimumHeight(vak->sizeHint().height());
  return vak;
}

QWidget* frmMurvane::BouwKanaalPagina() {
  auto* const pagina = new QWidget(this);
  auto* const indeling = Kolom(pagina, 0);
  auto* const maten = Rooster(nullptr);
  VoegVeld(maten, 0, {"txtHoogte"}, "Diameter", "mm", "lblPlan");
  VoegVeld(maten, 1, {"txtBreedte"}, "Breedte", "mm", "lblPlan");
  VoegVeld(maten, 2, {"txtLengte"}, "Lengte", "m", "lblPlan");
  VoegVeld(maten, 3, {"txtDebiet"}, "Luchtdebiet", "m³/s", "lblPlan");
  HoudVrij(maten, *this, "Luchtdebiet");
  maten->setColumnStretch(3, 1);
  indeling->addLayout(maten);
  BandRij* const rij = VoegBanden("txtdemp", 0, "Geluidsinstraling, LAeq in dB(A)");
  auto* const titels = new QHBoxLayout;
  for (const char* titel : {"Geluidsinstraling", "LAeq in dB(A)"}) {
    QLabel* const label = MaakLabel(titel, "lblPlan", rij->Vakken()[0]);
    mee_[{"txtdemp", 0}].push_back(label);
    titels->addWidget(label);
  }
  titels->addStretch();
  indeling->addLayout(titels);
  indeling->addWidget(rij);
  cmbKanaal = new Keuzevak("cmbKanaal", "Kanaalwand", this);
  QLabel* const wand = MaakLabel("Kanaalwand", "lblPlan", cmbKanaal);
  mee_[{"cmbKanaal", -1}] = {wand, cmbKanaal};
  indeling->addWidget(wand);
  indeling->addWidget(cmbKanaal);
  indeling->addStretch();
  return pagina;
}

QWidget* frmMurvane::BouwAftakPagina() {
  auto* const pagina = new QWidget(this);
  auto* const kolom = Kolom(pagina, 0);
  auto* const maten = Rooster(nullptr);
  VoegVeld(maten, 0, {"txtHAftak"}, "Diameter aftakking", "mm", "lblPlan");
  VoegVeld(maten, 1, {"txtBAftak"}, "Breedte aftakking", "mm", "lblPlan");
  VoegVeld(maten, 2, {"txtRAftak"}, "Afronding r/d aftakking", "", "lblPlan");
  VoegVeld(maten, 3, {"txtQAftak"}, "Luchtdebiet aftakking", "m³/s", "lblPlan");
  VoegVeld(maten, 4, {"txtHHoofd"}, "Hoogte of diameter hoofdkanaal", "mm", "lblPlan");
  VoegVeld(maten, 5, {"txtBHoofd"}, "Breedte hoofdkanaal", "mm, 0 is rond", "lblPlan");
  VoegVeld(maten, 6, {"txtHDoor"}, "Hoogte of diameter doorgaand kanaal", "mm", "lblPlan");
  VoegVeld(maten, 7, {"txtBDoor"}, "Breedte doorgaand kanaal", "mm, 0 is rond", "lblPlan");
  maten->setColumnStretch(3, 1);
  kolom->addLayout(maten);
  kolom->addStretch();
  return pagina;
}

QWidget* frmMurvane::BouwDoorsneePagina() {
  auto* const pagina = new QWidget(this);
  auto* const kolom = Kolom(pagina, 0);
  auto* const maten = Rooster(nullptr);
  VoegVeld(maten, 0, {"txtH1Doorsnee"}, "Diameter intrede", "mm", "lblPlan");
  VoegVeld(maten, 1, {"txtB1Doorsnee"}, "Breedte intrede", "mm", "lblPlan");
  VoegVeld(maten, 2, {"txtH2Doorsnee"}, "Diameter uittrede", "mm", "lblPlan");
  VoegVeld(maten, 3, {"txtB2Doorsnee"}, "Breedte uittrede", "mm", "lblPlan");
  VoegVeld(maten, 4, {"txtLDoorsnee"}, "Lengte", "m", "lblPlan");
  HoudVrij(maten, *this, "Diameter uittrede");
  maten->setColumnStretch(3, 1);
  kolom->addLayout(maten);
  kolom->addStretch();
  return pagina;
}

QWidget* frmMurvane::BouwWeerstandPagina() {
  auto* const pagina = new QWidget(this);
  auto* const kolom = Kolom(pagina, 0);
  auto* const maten = Rooster(nullptr);
  VoegVeld(maten, 0, {"txtSnetto"}, "Netto doorlaat", "cm²", "lblPlan");
  VoegVeld(maten, 1, {"txtWeerstand"}, "Weerstand", "Pa", "lblPlan");
  maten->setColumnStretch(3, 1);
  kolom->addLayout(maten);
  kolom->addStretch();
  return pagina;
}

QWidget* frmMurvane::BouwSpectrumPagina() {
  auto* const pagina = new QWidget(this);
  auto* const indeling = Kolom(pagina, 0);
  BandRij* const demping = VoegBanden("txtdemp", 7, "Invoegdemping in dB");
  indeling->addWidget(MaakLabel("Invoegdemping in dB", "lblPlan", demping->Vakken()[0]));
  indeling->addWidget(demping);
  BandRij* const ruis = VoegBanden("txtruis", 0, "Eigenruis in dB");
  indeling->addWidget(MaakLabel("Eigenruis in dB", "lblPlan", ruis->Vakken()[0]));
  indeling->addWidget(ruis);
  indeling->addStretch();
  return pagina;
}

QWidget* frmMurvane::BouwRuimte() {
  auto* const blad = new Blad(this);
  auto* const indeling = Kolom(blad->Blok(), 0);
  VrijVeld = MaakKnop<QCheckBox>("VrijVeld", "vrij-veldsituatie", blad);
  indeling->addWidget(VrijVeld);
  auto* const maten = Rooster(nullptr);
  VoegVeld(maten, 0, {"txtRLengte"}, "Lengte vertrek", "m", "lblruimte");
  VoegVeld(maten, 1, {"txtRBreedte"}, "Breedte vertrek", "m", "lblruimte");
  VoegVeld(maten, 2, {"txtRHoogte"}, "Hoogte vertrek", "m", "lblruimte");
  VoegVeld(maten, 3, {"txtRNagalm"}, "Nagalmtijd", "s", "lblruimte");
  VoegVeld(maten, 4, {"txtRNR"}, "Toelaatbaar geluidsniveau", "dB(A)", "lblruimte");
  VoegVeld(maten, 5, {"txtRDI"}, "Richtingsfactor", "1, 2, 4 of 8", "lblruimte")
      ->setAccessibleName("Richtingsfactor: 1, 2, 4 of 8");
  VoegVeld(maten, 6, {"txtRAantal"}, "Aantal roosters", "stuks", "lblruimte");
  ruimteTekening_ = new Tekening(blad);
  ruimteTekening_->setObjectName("TekeningRuimte");
  ruimteTekening_->ZetRuimte(false);
  maten->addWidget(ruimteTekening_, 0, 3, 7, 1);
  mee_[{"txtRLengte", -1}].push_back(ruimteTekening_);
  const auto voeg = [&](int rij, Keuzevak* vak, const char* naam, const char* tekst) {
    BandRij* const banden = VoegBanden(naam, 0, QString(tekst) + ", isolatie in dB");
    QLabel* const keuze = MaakLabel(tekst, "lblruimte", vak);
    QLabel* const isolatie = BandLabel("Isolatie in dB", "lblruimte", banden);
    maten->addWidget(keuze, rij, 0);
    maten->addWidget(vak, rij, 1, 1, 3);
    maten->addWidget(isolatie, rij + 1, 0, Qt::AlignBottom);
    maten->addWidget(banden, rij + 1, 1, 1, 3);
    mee_[{naam, 0}].insert(mee_[{naam, 0}].end(), {keuze, vak, isolatie});
  };
  cmbRkanaal = new Keuzevak("cmbRkanaal", "Kanaalwand", blad);
  voeg(7, cmbRkanaal, "txtRkanaal", "Kanaalwand");
  cmbRplafond = new Keuzevak("cmbRplafond", "Plafond", blad);
  voeg(9, cmbRplafond, "txtRplafond", "Plafond");
  maten->setColumnStretch(3, 1);
  indeling->addLayout(maten);
  indeling->addStretch();
  return blad;
}

QWidget* frmMurvane::BouwProject() {
  auto* const blad = new Blad(this);
  auto* const kolom = Kolom(blad->Blok(), 0);
  auto* const indeling = Rooster(nullptr);
  InvoerVeld* const nummer = VoegVeld(indeling, 0, {"txtProNum"}, "Projectnummer", "", "lblproject");
  nummer->setMaximumWidth(2 * GetalBreedte(*nummer));
  indeling->addWidget(MaakLabel("Datum", "lblproject", nullptr), 1, 0);
  indeling->addWidget(BouwDatum(), 1, 1);
  qobject_cast<QLabel*>(indeling->itemAtPosition(1, 0)->widget())->setBuddy(Vak({"txtMyDate"}));
  VoegVeld(indeling, 2, {"txtProNaam"}, "Projectnaam", "", "lblproject");
  VoegVeld(indeling, 3, {"txtOmschrijving"}, "Omschrijving", "", "lblproject");
  VoegVeld(indeling, 4, {"txtToelichting1"}, "Toelichting", "", "lblproject");
  VoegVeld(indeling, 5, {"txtToelichting2"}, "", "", "lblproject")->setAccessibleName("Toelichting, regel 2");
  VoegVeld(indeling, 6, {"txtToelichting3"}, "", "", "lblproject")->setAccessibleName("Toelichting, regel 3");
  kolom->addLayout(indeling);
  kolom->addStretch();
  return blad;
}

/// Built when it is first asked for: it takes as long as a whole tab.
void frmMurvane::BouwKalender() {
  MonthView = new Kalender(SSTab1->widget(static_cast<int>(Tab::Projectgegevens)));
  MonthView->setObjectName("MonthView");
  MonthView->setAccessibleName("Kalender");
  MonthView->setAccessibleDescription("Enter neemt de dag over, Escape sluit de kalender.");
  MonthView->installEventFilter(this);
  MonthView->hide();
  connect(MonthView, &QCalendarWidget::clicked, this, &frmMurvane::MonthView_DateClick);
  connect(MonthView, &QCalendarWidget::activated, this, &frmMurvane::MonthView_DateClick);
}

QWidget* frmMurvane::BouwDatum() {
  auto* const vak = new QWidget(this);
  auto* const indeling = new QHBoxLayout(vak);
  indeling->setContentsMargins(0, 0, 0, 0);
  auto* const datum = new InvoerVeld({"txtMyDate"}, "Datum", vak);
  datum->setMaximumWidth(2 * GetalBreedte(*datum));
  MeldAan(datum);
  Image1 = new Balkknop(vak);
  Image1->setObjectName("Image1");
  Image1->setAccessibleName("Kalender tonen of verbergen");
  Image1->setToolTip("Kalender");
  indeling->addWidget(datum);
  indeling->addWidget(Image1);
  indeling->addStretch();
  return vak;
}

/// Ctrl+PageDown and Ctrl+PageUp walk through the tabs from any field.
void frmMurvane::VerbindTabs() {
  for (const auto& [toets, stap] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* const sneltoets = new QShortcut(QKeySequence(Qt::CTRL | toets), this);
    sneltoets->setContext(Qt::WidgetWithChildrenShortcut);
    connect(sneltoets, &QShortcut::activated, this, [this, richting = stap] { WandelTab(richting); });
  }
}

/// An option that is chosen already is not chosen again: its click would clear what it brought.
void frmMurvane::VerbindFan() {
  connect(optInvoer, &QRadioButton::clicked, this, [this] {
    if (Houdt() || FanZichtVan(project_).optInvoer) return ToonFan(FanZichtVan(project_));
    Veilig("optInvoer_Click",
           [this] { VoerUit(optInvoer_Click(project_, catalogi_.CatFans, laatsteFan_, decimaal_)); });
  });
  connect(optPrognose, &QRadioButton::clicked, this, [this] {
    if (Houdt() || FanZichtVan(project_).optPrognose) return ToonFan(FanZichtVan(project_));
    Veilig("optPrognose_Click", [this] { VoerUit(optPrognose_Click(project_, SSTab1->currentIndex())); });
  });
  const std::array<std::pair<QRadioButton*, std::int16_t>, 3> typen = {
      {{optAxiaal, fantype::Axiaal},
       {optCentriVoor, fantype::CentrifugaalVoorwaarts},
       {optCentriAchter, fantype::CentrifugaalAchterwaarts}}};
  for (const auto& [knop, type] : typen) {
    connect(knop, &QRadioButton::clicked, this, [this, fanType = type, naam = knop->objectName()] {
      if (Houdt() || project_.Fan.FanType == fanType) return ToonFan(FanZichtVan(project_));
      Veilig(naam.toStdString() + "_Click", [this, fanType] { VoerUit(FanTypeGekozen(project_, fanType)); });
    });
  }
  connect(cmdFanOK, &QPushButton::clicked, this, &frmMurvane::FanOK);
  connect(cmdFanCancel, &QPushButton::clicked, this, [this] {
    if (Houdt()) return;
    Veilig("cmdFanCancel_Click",
           [this] { VoerUit(cmdFanCancel_Click(project_, catalogi_.CatFans, laatsteFan_, decimaal_)); });
  });
  connect(lstFan, &Lijstvak::Geklikt, this, [this](int rij) {
    if (Houdt()) return lstFan->ZetRij(fanRij_);
    Veilig("lstFan_Click",
           [&] { VoerUit(lstFan_Click(project_, rij, catalogi_.CatFans, laatsteFan_, decimaal_)); });
  });
}

void frmMurvane::VerbindLijsten() {
  connect(lstTotaal, &Lijstvak::Geklikt, this, [this](int rij) {
    if (Houdt()) return ToonLijsten();
    Veilig("lstTotaal_Click", [&] { VoerUit(lstTotaal_Click(lijst_, rij)); });
    ToonLijsten();  // also after a failure the lists show the state
  });
  connect(lstProject, &Lijstvak::Geklikt, this, [this](int rij) {
    if (Houdt()) return ToonLijsten();
    Veilig("lstProject_Click", [&] { VoerUit(lstProject_Click(lijst_, project_, rij)); });
    ToonLijsten();
  });
  connect(lstTotaal, &QListWidget::itemDoubleClicked, this, &frmMurvane::Voegtoe);
  connect(lstProject, &QListWidget::itemDoubleClicked, this, &frmMurvane::Wis);
  connect(lstTotaal, &Lijstvak::Toets, this, &frmMurvane::TotaalToets);
  connect(lstProject, &Lijstvak::Toets, this, &frmMurvane::ProjectToets);
}

void frmMurvane::VerbindKeuzes() {
  connect(VrijVeld, &QCheckBox::clicked, this, [this](bool aan) {
    if (Houdt()) return VrijVeld->setChecked(!aan);
    Veilig("VrijVeld_Click", [&] { VoerUit(VrijVeld_Click(project_, aan)); });
  });
  connect(cmbKanaal, &QComboBox::activated, this, [this](int rij) {
    if (Houdt()) return;
    Veilig("cmbKanaal_Click", [&] {
      if (cmbKanaal_Click(project_, lijst_.HuidigElement, rij, catalogi_.CatRduct))
        RoepBerekend(WandBerekend);
    });
  });
  connect(cmbKanaal, &QComboBox::editTextChanged, this, [this](const QString& tekst) {
    if (vult_) return;
    Veilig("cmbKanaal_Change", [&] {
      if (const auto nieuw = cmbKanaal_Change(NaarCp(tekst))) cmbKanaal->ZetTekst(VanCp(*nieuw));
    });
  });
  connect(cmbKanaal, &Keuzevak::Verlaten, this, [this] {
    if (Houdt()) return;
    Veilig("cmbKanaal_LostFocus", [this] {
      const std::string tekst = NaarCp(cmbKanaal->currentText());
      VoerUit(*cmbKanaal, cmbKanaal_LostFocus(project_, lijst_.HuidigElement, tekst));
    });
  });
  connect(cmbKanaal->lineEdit(), &QLineEdit::returnPressed, cmbKanaal, &Keuzevak::Verlaten);
  const auto verbind = [this](Keuzevak* vak, const SpectrumCatalogus& catalogus, auto klik, auto wijzig,
                              auto verlaat) {
    const std::string naam = vak->objectName().toStdString();
    connect(vak, &QComboBox::activated, this, [=, this, &catalogus](int rij) {
      if (Houdt()) return;
      Veilig(naam + "_Click", [&] { VoerUit(*vak, klik(project_, rij, catalogus, decimaal_)); });
    });
    connect(vak, &QComboBox::editTextChanged, this, [=, this](const QString& tekst) {
      if (!vult_) Veilig(naam + "_Change", [&] { VoerUit(*vak, wijzig(NaarCp(tekst))); });
    });
    connect(vak, &Keuzevak::Verlaten, this, [=, this] {
      if (Houdt()) return;
      Veilig(naam + "_LostFocus",
             [&] { VoerUit(*vak, verlaat(project_, NaarCp(vak->currentText()), decimaal_)); });
    });
  };
  verbind(cmbRkanaal, catalogi_.CatRduct, cmbRkanaal_Click, cmbRkanaal_Change, cmbRkanaal_LostFocus);
  verbind(cmbRplafond, catalogi_.CatRplaf, cmbRplafond_Click, cmbRplafond_Change, cmbRplafond_LostFocus);
  connect(Image1, &QToolButton::clicked, this, &frmMurvane::Image1_Click);
}

void frmMurvane::ZetIconen() {
  for (std::size_t i = 0; i < knoppen_.size(); ++i)
    knoppen_[i]->setIcon(Icoon(TekstVanKnop(Toolbarknoppen[i].Sleutel).Beeld, palette()));
  Image1->setIcon(Icoon("kalender", palette()));
}

}  // namespace murvane
