#include "reports/vensters_vlak.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/vensters_hulp.h"
#include "reports/lettertype.h"
#include "reports/vensters_grafiek.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr double TwipsPerInch = 1440, TwipsPerPunt = 20;
constexpr double DunsteLijn = 5;  // twips
constexpr double BeginPunten = 12;
constexpr double Kant = 432;  // twips that stay free at the sheet's right-hand edge
constexpr double SmalsteDeel = 0.5;

/// As a surface prints it: a control character, as in a field that was never filled, is a blank.
QString Leesbaar(std::string_view tekst) {
  QString uit = VanCp(tekst);
  std::replace_if(
      uit.begin(), uit.end(), [](QChar c) { return c.unicode() < 0x20; }, QChar(u' '));
  return uit;
}

/// The file that a printer writes its PDF to; empty when it prints on paper.
std::filesystem::path PdfBestandVan(const QPagedPaintDevice& apparaat) {
  const auto* printer = dynamic_cast<const QPrinter*>(&apparaat);
  if (printer == nullptr || printer->outputFormat() != QPrinter::PdfFormat) return {};
  return PadVan(printer->outputFileName().toStdString());
}

/// The writer of the PDF that this printer would write, to the buffer.
std::shared_ptr<QPdfWriter> SchrijverVoor(const QPrinter& printer, QBuffer& buffer) {
  buffer.open(QIODevice::WriteOnly);
  auto schrijver = std::make_shared<QPdfWriter>(&buffer);
  schrijver->setResolution(static_cast<int>(TwipsPerInch));
  schrijver->setTitle(printer.docName());
  schrijver->setCreator(QString("MurVane ") + VersieTekst);
  return schrijver;
}

QColor NaarQt(Kleur kleur) {
  return {kleur.Rood, kleur.Groen, kleur.Blauw};
}

}  // namespace

QFont FontVan(std::string_view naam) {
  QFont font(VanCp(naam));
  if (naam == StandaardLettertype && !QFontDatabase::hasFamily(font.family())) {
    // The same widths and heights first, so that the form fits its page.
    font.setFamilies({"Liberation Mono", "Cousine", "Nimbus Mono PS", "FreeMono", "DejaVu Sans Mono"});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
  }
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

std::string BitmapBytes(const QImage& beeld) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!beeld.save(&buffer, "BMP")) throw Fout(FoutNummer::OnvoldoendeGeheugen);
  return buffer.data().toStdString();
}

Schildervlak::Schildervlak(std::shared_ptr<QPagedPaintDevice> apparaat, bool liggend)
    : pdfBestand_(PdfBestandVan(*apparaat)), apparaat_(std::move(apparaat)) {
  if (auto* printer = dynamic_cast<QPrinter*>(apparaat_.get())) {
    printer->setFullPage(true);
    // The printer's own writer empties the old file first and tells nobody of a full disk.
    if (!pdfBestand_.empty()) apparaat_ = SchrijverVoor(*printer, pdf_);
  }
  const QPageLayout blad(QPageSize(QPageSize::A4), liggend ? QPageLayout::Landscape : QPageLayout::Portrait,
                         QMarginsF(), QPageLayout::Point);
  apparaat_->setPageLayout(blad);
  const QSizeF punten = QPageSize::size(QPageSize::A4, QPageSize::Millimeter) / 25.4 * TwipsPerInch;
  breedte_ = liggend ? punten.height() : punten.width();
  hoogte_ = liggend ? punten.width() : punten.height();
  lijndikte_ = DunsteLijn;
  Begin(*apparaat_, apparaat_->logicalDpiX() / TwipsPerInch);
}

Schildervlak::Schildervlak(double breedte, double hoogte, double pixelsPerInch)
    : breedte_(breedte), hoogte_(hoogte) {
  const double pixelsPerTwip = pixelsPerInch / TwipsPerInch;
  beeld_ = QImage(static_cast<int>(std::lround(breedte * pixelsPerTwip)),
                  static_cast<int>(std::lround(hoogte * pixelsPerTwip)), QImage::Format_RGB32);
  if (beeld_.isNull()) throw Fout(FoutNummer::OnvoldoendeGeheugen);
  const int perMeter = static_cast<int>(std::lround(pixelsPerInch / 0.0254));
  beeld_.setDotsPerMeterX(perMeter);
  beeld_.setDotsPerMeterY(perMeter);
  beeld_.fill(Qt::white);
  lijndikte_ = std::max(DunsteLijn, 1 / pixelsPerTwip);
  Begin(beeld_, pixelsPerTwip);
}

Schildervlak::~Schildervlak() {
  if (!apparaat_ || !schilder_.isActive()) return;
  // A document that was not ended must not reach the paper.
  if (auto* printer = dynamic_cast<QPrinter*>(apparaat_.get())) printer->abort();
}

void Schildervlak::Begin(QPaintDevice& apparaat, double eenhedenPerTwip) {
  if (!schilder_.begin(&apparaat)) throw Fout(FoutNummer::PadToegang, "De printer kan niet beginnen");
  schilder_.scale(eenhedenPerTwip, eenhedenPerTwip);
  schilder_.setPen(Qt::black);
  schilder_.setRenderHint(QPainter::TextAntialiasing);
  font_ = FontVan(StandaardLettertype);
  ZetFontSize(BeginPunten);
}

void Schildervlak::ZetFontNaam(std::string_view naam) {
  const QFont oud = font_;
  font_ = FontVan(naam.empty() ? StandaardLettertype : naam);  // empty was never set
  font_.setPixelSize(oud.pixelSize());
  font_.setBold(oud.bold());
  font_.setItalic(oud.italic());
}

void Schildervlak::ZetFontSize(double punten) {
  if (punten == 0) punten = BeginPunten;  // 0 was never set
  const double twips = std::round(punten * TwipsPerPunt);
  if (!(twips >= 1 && twips <= 20000)) throw Fout(FoutNummer::OngeldigArgument);
  punten_ = punten;
  font_.setPixelSize(static_cast<int>(twips));
}

void Schildervlak::ZetFontBold(bool vet) {
  font_.setBold(vet);
}

void Schildervlak::ZetFontItalic(bool cursief) {
  font_.setItalic(cursief);
}

double Schildervlak::TextWidth(std::string_view tekst) const {
  return QFontMetricsF(font_).horizontalAdvance(Leesbaar(tekst));
}

double Schildervlak::TextHeight(std::string_view) const {
  return QFontMetricsF(font_).lineSpacing();
}

void Schildervlak::Print(std::string_view tekst) {
  const QString leesbaar = Leesbaar(tekst);
  const QFontMetricsF maten(font_);
  // Blanks at the end move the position and need no ink.
  qsizetype lengte = leesbaar.size();
  while (lengte > 0 && leesbaar[lengte - 1] == u' ') --lengte;
  if (lengte > 0) ZetKlaar(leesbaar.left(lengte), maten);
  x_ += maten.horizontalAdvance(leesbaar);
}

void Schildervlak::ZetKlaar(const QString& tekst, const QFontMetricsF& maten) {
  // An italic letter leans out of its own width.
  const double breedte = std::max(maten.horizontalAdvance(tekst), maten.boundingRect(tekst).right());
  const double ruimte = breedte_ - Kant - x_;
  const bool past = breedte <= ruimte + 1 || ruimte <= 0;
  blok_.push_back(
      {tekst, font_, QPointF(x_, y_ + maten.ascent()), past ? 1.0 : std::max(SmalsteDeel, ruimte / breedte)});
}

/// Different widths under one another would look like different fonts.
void Schildervlak::SchrijfBlok() {
  const std::vector<Stuk> blok = std::exchange(blok_, {});
  std::map<double, double> smal;  // by where the text begins
  for (const Stuk& stuk : blok) {
    double& deel = smal.try_emplace(stuk.Plaats.x(), 1.0).first->second;
    deel = std::min(deel, stuk.Smal);
  }
  for (const Stuk& stuk : blok) Schrijf(stuk.Tekst, stuk.Font, stuk.Plaats, smal.at(stuk.Plaats.x()));
}

void Schildervlak::Schrijf(const QString& tekst, const QFont& font, QPointF plaats, double smal) {
  schilder_.setFont(font);
  if (smal == 1.0) {
    schilder_.drawText(plaats, tekst);
    return;
  }
  schilder_.save();
  schilder_.translate(plaats);
  schilder_.scale(smal, 1);
  schilder_.drawText(QPointF(), tekst);
  schilder_.restore();
}

void Schildervlak::PrintRegel(std::string_view tekst) {
  if (tekst.empty()) SchrijfBlok();
  Print(tekst);
  x_ = 0;
  y_ += QFontMetricsF(font_).lineSpacing();
}

void Schildervlak::Lijn(double x1, double y1, double x2, double y2, Kleur kleur) {
  SchrijfBlok();
  const QPen oud = schilder_.pen();
  schilder_.setPen(QPen(NaarQt(kleur), lijndikte_, Qt::SolidLine, Qt::FlatCap));
  schilder_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  schilder_.setPen(oud);
}

void Schildervlak::Doos(double x1, double y1, double x2, double y2, Kleur kleur) {
  SchrijfBlok();
  schilder_.fillRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)), NaarQt(kleur));
}

void Schildervlak::PaintPicture(const Grafiek& grafiek, double x, double y, double breedte, double hoogte) {
  SchrijfBlok();
  schilder_.save();
  schilder_.setRenderHint(QPainter::Antialiasing);
  TekenGrafiek(schilder_, grafiek, QRectF(x, y, breedte, hoogte));
  schilder_.restore();
}

void Schildervlak::NewPage() {
  SchrijfBlok();
  if (!apparaat_ || !apparaat_->newPage()) throw Fout(FoutNummer::PadToegang, "De printer geeft geen blad");
  ++pagina_;
  x_ = y_ = 0;
}

void Schildervlak::EndDoc() {
  if (!apparaat_) return;
  SchrijfBlok();
  const bool gelukt = schilder_.isActive() && schilder_.end();
  const auto* printer = dynamic_cast<QPrinter*>(apparaat_.get());
  if (!gelukt || (printer != nullptr && printer->printerState() == QPrinter::Error))
    throw Fout(FoutNummer::PadToegang, "De printer nam het document niet aan");
  if (!pdfBestand_.empty()) VervangBestand(pdfBestand_, pdf_.data().toStdString());
}

void Schildervlak::BewaarBlad(int index) {
  if (index < 0) throw Fout(FoutNummer::IndexBuitenBereik);
  SchrijfBlok();
  const auto plaats = static_cast<std::size_t>(index);
  if (bladen_.size() <= plaats) bladen_.resize(plaats + 1);
  bladen_[plaats] = beeld_.copy();  // the painter goes on drawing on the original
}

void Schildervlak::Cls() {
  blok_.clear();
  schilder_.fillRect(QRectF(0, 0, breedte_, hoogte_).adjusted(0, 0, 100, 100), Qt::white);
  x_ = y_ = 0;
}

}  // namespace murvane
