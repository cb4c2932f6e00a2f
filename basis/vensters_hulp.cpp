#include "basis/vensters_hulp.h"

#include <QFont>
#include <QFontMetrics>
#include <QLabel>
#include <QPalette>
#include <QProgressBar>
#include <QScreen>
#include <QWidget>

#include "basis/fout.h"
#include "basis/tekst.h"
#include "basis/vensters_stijl.h"

namespace murvane {

QString VanCp(std::string_view tekst) {
  return QString::fromStdString(NaarUtf8(tekst));
}

std::string NaarCp(const QString& tekst) {
  std::string uit;
  for (const char32_t teken : tekst.toUcs4()) {
    try {
      uit += NaarCp1252(QString::fromUcs4(&teken, 1).toStdString());
    } catch (const Fout&) {
      uit += '?';
    }
  }
  return uit;
}

QString ZonderSneltoets(QString tekst) {
  return tekst.replace('&', "&&");
}

QColor KleurVan(std::uint32_t bgr) {
  return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>(bgr >> 8 & 0xFF),
                static_cast<int>(bgr >> 16 & 0xFF));
}

/// What is selected has the theme's own colour, as everywhere; in black and white where that does not show on
/// the ground.
void ZetAchtergrond(QWidget& veld, std::uint32_t bgr) {
  QPalette palet;
  const QColor grond = KleurVan(bgr);
  palet.setColor(QPalette::Base, grond);
  palet.setColor(QPalette::Text, Qt::black);
  palet.setColor(QPalette::PlaceholderText, QColor(90, 90, 90));
  if (Contrast(palet.color(QPalette::Highlight), grond) < Zichtbaar) {
    palet.setColor(QPalette::Highlight, Qt::black);
    palet.setColor(QPalette::HighlightedText, Qt::white);
  }
  veld.setPalette(palet);
}

QLabel* MaakLabel(const QString& tekst, const QString& naam, QWidget* buddy, QWidget* ouder) {
  auto* const label = new QLabel(tekst, ouder);
  label->setObjectName(naam);
  label->setBuddy(buddy);
  return label;
}

void ZetUitleg(QWidget& venster, std::span<const Uitleg> uitleg) {
  for (const auto& [naam, tekst] : uitleg) {
    auto* const vak = venster.findChild<QWidget*>(naam);
    if (vak == nullptr) throw Fout(FoutNummer::OngeldigArgument);
    vak->setAccessibleDescription(tekst);
  }
}

int TitelBreedte(const QWidget& vak, const QString& titel) {
  constexpr int Ernaast = 140;
  QFont vet = vak.font();
  vet.setBold(true);  // as most frames write it
  return QFontMetrics(vet).horizontalAdvance(titel) + Ernaast;
}

void PasTitel(QWidget& vak, const QString& titel) {
  vak.setMinimumWidth(TitelBreedte(vak, titel));
}

void ZetMaat(QWidget& venster, QSize maat) {
  constexpr QSize Kader(16, 48);
  const QSize vrij = venster.screen()->availableSize() - Kader;
  venster.resize(maat.boundedTo(vrij));
}

void KleurVoortgang(QProgressBar& balk) {
  QPalette palet = balk.palette();
  palet.setColor(QPalette::Highlight, KleurVan(0x808080));
  palet.setColor(QPalette::HighlightedText, Qt::white);
  palet.setColor(QPalette::Base, KleurVan(0xE0E0E0));
  palet.setColor(QPalette::Window, KleurVan(0xE0E0E0));
  palet.setColor(QPalette::Text, Qt::black);
  palet.setColor(QPalette::WindowText, Qt::black);
  balk.setPalette(palet);
}

}  // namespace murvane
