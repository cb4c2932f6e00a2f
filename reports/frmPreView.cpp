#include "reports/frmPreView.h"

#include <QCloseEvent>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>
#include <cmath>

#include "basis/fout.h"
#include "basis/vensters_hulp.h"
#include "reports/vensters_vlak.h"
#include "reports/vensters_werkbalk.h"
#include "reports/vensters_zoom.h"

namespace murvane {

namespace {

constexpr double TwipsPerPixel = 15;
constexpr int MinsteStap = -7, MeesteStap = 7;  ///< half the size of paper, and the pictures' own pixels

int Pixels(double twips) {
  return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

void ZetBalk(QScrollBar& balk, const Schuifbalk& stand) {
  balk.setVisible(stand.Zichtbaar);
  balk.setRange(static_cast<int>(stand.Minimum), static_cast<int>(stand.Maximum));
  balk.setSingleStep(static_cast<int>(stand.KleineStap));
  balk.setPageStep(static_cast<int>(stand.GroteStap));
  balk.setValue(static_cast<int>(stand.Waarde));
}

/// The point of the page in the middle of what is in view, as a part of the page; 0 for a page all in view.
double Midden(const QScrollBar& balk, const Schuifbalk& stand, double pagina) {
  return stand.Zichtbaar ? (balk.value() + stand.Lengte / 2) / pagina : 0;
}

void ZetMidden(QScrollBar& balk, const Schuifbalk& stand, double pagina, double deel) {
  if (stand.Zichtbaar) balk.setValue(static_cast<int>(deel * pagina - stand.Lengte / 2));
}

}  // namespace

Documentvak::Documentvak(QWidget* ouder) : QWidget(ouder) {
  setObjectName("Document");
  setAccessibleName("Bladzijde van het berekeningsformulier");
  setAccessibleDescription(
      "De pijltoetsen en Page Up en Page Down schuiven de bladzijde; Ctrl met + en - "
      "vergroot en verkleint haar.");
  setFocusPolicy(Qt::StrongFocus);
  ZetMaal(1);
}

void Documentvak::ZetMaal(double maal) {
  setFixedSize(Pixels(VoorbeeldBreedte * maal), Pixels(VoorbeeldHoogte * maal));
}

void Documentvak::Toon(const QImage& blad) {
  const QSize maat = size() * devicePixelRatioF();
  beeld_ = QPixmap::fromImage(blad.scaled(maat, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  beeld_.setDevicePixelRatio(devicePixelRatioF());
  update();
}

void Documentvak::paintEvent(QPaintEvent* /*gebeurtenis*/) {
  QPainter schilder(this);
  schilder.drawPixmap(0, 0, beeld_);
}

frmPreView::frmPreView(VoorbeeldStand& stand, QWidget* ouder)
    : QWidget(ouder),
      stand_(stand),
      vlak_(std::make_unique<Schildervlak>(VoorbeeldBreedte, VoorbeeldHoogte, VoorbeeldDpi)),
      Toolbar1(new Werkbalk(VoorbeeldKnoppen, this)),
      DocumentContainer(new QWidget(this)),
      document_(new Documentvak(DocumentContainer)),
      HScroll1(new QScrollBar(Qt::Horizontal, this)),
      VScroll1(new QScrollBar(Qt::Vertical, this)),
      zoom_(new Zoom(this, this, MinsteStap, MeesteStap)) {
  setObjectName("frmPreView");
  setWindowTitle(VanCp(VoorbeeldTitelBegin));
  DocumentContainer->setObjectName("DocumentContainer");
  DocumentContainer->setBackgroundRole(QPalette::Dark);
  DocumentContainer->setAutoFillBackground(true);
  HScroll1->setObjectName("HScroll1");
  HScroll1->setAccessibleName("Bladzijde opzij schuiven");
  HScroll1->setAccessibleDescription("Ook met de pijltoetsen links en rechts.");
  VScroll1->setObjectName("VScroll1");
  VScroll1->setAccessibleName("Bladzijde op en neer schuiven");
  VScroll1->setAccessibleDescription("Ook met de pijltoetsen omhoog en omlaag.");
  VerbindBalk(*HScroll1);
  VerbindBalk(*VScroll1);
  connect(Toolbar1, &Werkbalk::ButtonClick, this, &frmPreView::ButtonClick);
  connect(zoom_, &Zoom::Gewijzigd, this, &frmPreView::PasZoomToe);
  setFocusProxy(document_);
}

frmPreView::~frmPreView() {
  stand_.Voorbeeld = false;
}

Vlak& frmPreView::Document() {
  return *vlak_;
}

void frmPreView::VerbindBalk(QScrollBar& balk) {
  connect(&balk, &QScrollBar::valueChanged, this, &frmPreView::Schuif);
}

void frmPreView::Schuif() {
  const double maal = zoom_->Maal();
  const auto& [h, v] = balken_;
  document_->move(Pixels(BladPlaats(h, HScroll1->value(), maal * VoorbeeldBreedte)),
                  Pixels(BladPlaats(v, VScroll1->value(), maal * VoorbeeldHoogte)));
}

/// What stands in the middle stays there.
void frmPreView::PasZoomToe() {
  const double maal = zoom_->Maal();
  const double breedte = document_->width() * TwipsPerPixel, hoogte = document_->height() * TwipsPerPixel;
  const double x = Midden(*HScroll1, balken_.Horizontaal, breedte);
  const double y = Midden(*VScroll1, balken_.Verticaal, hoogte);
  document_->ZetMaal(maal);
  DeelIn();
  ZetMidden(*HScroll1, balken_.Horizontaal, maal * VoorbeeldBreedte, x);
  ZetMidden(*VScroll1, balken_.Verticaal, maal * VoorbeeldHoogte, y);
  ToonBlad();
}

void frmPreView::ToonBlad() {
  setWindowTitle(VanCp(VoorbeeldTitel(stand_)));
  const Bladerknoppen knoppen = ButtonEnabled(stand_.LaatstePagina, stand_.VoorbeeldPagina);
  Toolbar1->Knop("begin")->setEnabled(knoppen.Begin);
  Toolbar1->Knop("terug")->setEnabled(knoppen.Terug);
  Toolbar1->Knop("volgende")->setEnabled(knoppen.Volgende);
  Toolbar1->Knop("eind")->setEnabled(knoppen.Eind);
  const auto index = static_cast<std::size_t>(stand_.VoorbeeldPagina - 1);
  if (index < vlak_->Bladen().size()) document_->Toon(vlak_->Bladen()[index]);
}

std::string frmPreView::Bitmap(int index) const {
  const auto plaats = static_cast<std::size_t>(index);
  if (plaats >= vlak_->Bladen().size()) throw Fout(FoutNummer::IndexBuitenBereik);
  return BitmapBytes(vlak_->Bladen()[plaats]);
}

void frmPreView::ButtonClick(const QString& sleutel) {
  if (sleutel == "printen") return emit Printen();
  if (sleutel == "save") return emit Opslaan();
  if (sleutel == "PDF") return emit Pdf();
  Blader(stand_, NaarCp(sleutel));
  ToonBlad();
}

bool frmPreView::focusNextPrevChild(bool verder) {
  FocusBinnen(*this, verder);
  return true;
}

void frmPreView::resizeEvent(QResizeEvent* gebeurtenis) {
  QWidget::resizeEvent(gebeurtenis);
  DeelIn();
}

void frmPreView::DeelIn() {
  const int werkbalk = Toolbar1->sizeHint().height();
  const int dikte = VScroll1->sizeHint().width();
  Toolbar1->setGeometry(0, 0, width(), werkbalk);
  const Rechthoek houder =
      PlaatsHouder(width() * TwipsPerPixel, height() * TwipsPerPixel, werkbalk * TwipsPerPixel,
                   dikte * TwipsPerPixel, dikte * TwipsPerPixel);
  DocumentContainer->setGeometry(Pixels(houder.Links), Pixels(houder.Boven), Pixels(houder.Breedte),
                                 Pixels(houder.Hoogte));
  const double maal = zoom_->Maal();
  balken_ = SizeScrolls(houder, maal * VoorbeeldBreedte, maal * VoorbeeldHoogte);
  const auto& [h, v] = balken_;
  ZetBalk(*HScroll1, h);
  ZetBalk(*VScroll1, v);
  HScroll1->setGeometry(Pixels(h.Langs), Pixels(h.Dwars), Pixels(h.Lengte), dikte);
  VScroll1->setGeometry(Pixels(v.Dwars), Pixels(v.Langs), dikte, Pixels(v.Lengte));
  Schuif();
  document_->setFocus();
}

void frmPreView::closeEvent(QCloseEvent* gebeurtenis) {
  stand_.Voorbeeld = false;
  QWidget::closeEvent(gebeurtenis);
}

/// The wheel moves the page, three steps a notch.
void frmPreView::wheelEvent(QWheelEvent* gebeurtenis) {
  const QPoint hoek = gebeurtenis->angleDelta();
  HScroll1->setValue(HScroll1->value() - hoek.x() * 3 * HScroll1->singleStep() / 120);
  VScroll1->setValue(VScroll1->value() - hoek.y() * 3 * VScroll1->singleStep() / 120);
  gebeurtenis->accept();
}

/// The arrows and page keys move the page as its bars do.
void frmPreView::keyPressEvent(QKeyEvent* gebeurtenis) {
  switch (gebeurtenis->key()) {
    case Qt::Key_Up:
      return VScroll1->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
      return VScroll1->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Left:
      return HScroll1->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Right:
      return HScroll1->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_PageUp:
      return VScroll1->triggerAction(QAbstractSlider::SliderPageStepSub);
    case Qt::Key_PageDown:
      return VScroll1->triggerAction(QAbstractSlider::SliderPageStepAdd);
    default:
      QWidget::keyPressEvent(gebeurtenis);
  }
}

}  // namespace murvane
