// Makes the icons of the desktop from their drawings; the build runs it. murvane-maakbeelden MAP APP.svg
// BESTAND.svg writes MAP/hicolor/NxN/apps/murvane.png, MAP/hicolor/NxN/mimetypes/application-x-murvane.png
// and MAP/murvane.ico.

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>
#include <array>
#include <iostream>
#include <stdexcept>

namespace {

constexpr std::array Maten = {16, 22, 24, 32, 48, 64, 128, 256, 512};
constexpr std::array IcoMaten = {16, 24, 32, 48, 64, 256};

QByteArray Png(QSvgRenderer& tekening, int maat) {
  QImage beeld(maat, maat, QImage::Format_ARGB32);
  beeld.fill(Qt::transparent);
  QPainter schilder(&beeld);
  schilder.setRenderHint(QPainter::Antialiasing);
  tekening.render(&schilder);
  schilder.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !beeld.save(&buffer, "PNG")) throw std::runtime_error("geen PNG");
  return bytes;
}

template <typename Getal>
void Voeg(QByteArray& uit, Getal getal) {
  std::array<char, sizeof(Getal)> bytes{};
  qToLittleEndian(getal, bytes.data());
  uit.append(bytes.data(), bytes.size());
}

/// An icon file of Windows: a list of pictures, each a whole PNG. A size of 256 is written as 0.
QByteArray Ico(QSvgRenderer& tekening) {
  constexpr quint32 KopMaat = 6;
  constexpr quint32 RegelMaat = 16;
  QByteArray kop;
  QByteArray beelden;
  Voeg<quint16>(kop, 0);
  Voeg<quint16>(kop, 1);  // icons
  Voeg<quint16>(kop, IcoMaten.size());
  for (const int maat : IcoMaten) {
    const QByteArray png = Png(tekening, maat);
    Voeg<quint8>(kop, static_cast<quint8>(maat % 256));
    Voeg<quint8>(kop, static_cast<quint8>(maat % 256));
    Voeg<quint16>(kop, 0);  // no palette
    Voeg<quint16>(kop, 1);  // colour planes
    Voeg<quint16>(kop, 32);
    Voeg<quint32>(kop, static_cast<quint32>(png.size()));
    Voeg<quint32>(kop, KopMaat + RegelMaat * quint32{IcoMaten.size()} + static_cast<quint32>(beelden.size()));
    beelden += png;
  }
  return kop + beelden;
}

void Schrijf(const QString& naam, const QByteArray& bytes) {
  QFile bestand(naam);
  if (!QDir().mkpath(QFileInfo(naam).path()) || !bestand.open(QIODevice::WriteOnly) ||
      bestand.write(bytes) != bytes.size() || !bestand.flush())
    throw std::runtime_error("kan niet schrijven: " + naam.toStdString());
}

void MaakMaten(QSvgRenderer& tekening, const QString& map, const QString& naam) {
  for (const int maat : Maten)
    Schrijf(QStringLiteral("%1/hicolor/%2x%2/%3.png").arg(map).arg(maat).arg(naam), Png(tekening, maat));
}

void Maak(const QString& map, const QString& app, const QString& bestand) {
  QSvgRenderer appTekening(app);
  QSvgRenderer bestandTekening(bestand);
  if (!appTekening.isValid() || !bestandTekening.isValid()) throw std::runtime_error("geen tekening");
  MaakMaten(appTekening, map, "apps/murvane");
  MaakMaten(bestandTekening, map, "mimetypes/application-x-murvane");
  Schrijf(map + "/murvane.ico", Ico(appTekening));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "Gebruik: murvane-maakbeelden MAP APP.svg BESTAND.svg\n";
    return 64;
  }
  try {
    Maak(QFile::decodeName(argv[1]), QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    return 0;
  } catch (const std::exception& fout) {
    std::cerr << "murvane-maakbeelden: " << fout.what() << '\n';
    return 1;
  }
}
