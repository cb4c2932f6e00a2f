#pragma once
// What all windows share: text between Windows-1252 and the toolkit, colours, and boxes.

#include <QColor>
#include <QSize>
#include <QString>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

class QLabel;
class QProgressBar;
class QWidget;

namespace murvane {

/// Text of the program for the screen.
[[nodiscard]] QString VanCp(std::string_view tekst);

/// Text of the screen for the program; a character that the code page lacks becomes a question mark.
[[nodiscard]] std::string NaarCp(const QString& tekst);

/// A text for a menu, a button or a label that belongs to a control: the toolkit takes an "&" there for the
/// mark of a mnemonic, unless it is doubled.
[[nodiscard]] QString ZonderSneltoets(QString tekst);

/// The colour of a blue-green-red number.
[[nodiscard]] QColor KleurVan(std::uint32_t bgr);

/// Gives a field a fixed light background with dark text on it, whatever the theme; a selection in it shows.
void ZetAchtergrond(QWidget& veld, std::uint32_t bgr);

/// Pixels around the content of a window, and between its parts.
inline constexpr int Marge = 12;
inline constexpr int Ruimte = 8;

/// The label of a control, which is its buddy.
[[nodiscard]] QLabel* MaakLabel(const QString& tekst, const QString& naam, QWidget* buddy, QWidget* ouder);

/// What a control does, for a screen reader; in UTF-8.
struct Uitleg {
  const char* Naam;  ///< of the control, as the window names it
  const char* Tekst;
};

/// Gives the controls of a window their accessible descriptions. Fout 5 for a name that the window lacks.
void ZetUitleg(QWidget& venster, std::span<const Uitleg> uitleg);

/// The width of a frame in which a title is whole between the icon and three buttons.
[[nodiscard]] int TitelBreedte(const QWidget& vak, const QString& titel);
/// Makes a part of a small window, or the window itself, so wide.
void PasTitel(QWidget& vak, const QString& titel);

/// The size that a window opens with, or as much of it as its screen has room for beside the frame.
void ZetMaat(QWidget& venster, QSize maat);

/// The colours of every progress bar: dark grey on light grey, whatever the theme.
void KleurVoortgang(QProgressBar& balk);

}  // namespace murvane
