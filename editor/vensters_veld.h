#pragma once
// The controls of the project window: an input field with its rule, a row of seven band fields, a list and a
// combo box. They tell what the user does; what it means is decided elsewhere.

#include <QCalendarWidget>
#include <QComboBox>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QToolButton>
#include <array>
#include <cstdint>

#include "editor/invoer.h"

class QHBoxLayout;

namespace murvane {

/// The object name of a field: an element of an array adds its index.
[[nodiscard]] QString ObjectNaam(VeldId veld);

/// An input field, or a value that is only shown: text without a field around it. It swallows the characters
/// that its rule refuses, and selects its text on entry. Its accessible description says what may be typed,
/// behind what is wrong with the text that it holds.
class InvoerVeld : public QLineEdit {
  Q_OBJECT

 public:
  InvoerVeld(VeldId veld, const QString& naam, QWidget* ouder);
  /// A field of another window, by the rule of its own table, which outlives it.
  InvoerVeld(VeldId veld, const VeldRegel& regel, const QString& naam, QWidget* ouder);

  [[nodiscard]] VeldId Veld() const { return veld_; }
  [[nodiscard]] const VeldRegel& DeRegel() const { return regel_; }
  void ZetKleur(std::uint32_t bgr);
  [[nodiscard]] bool IsRood() const { return kleur_ == FoutKleur; }
  /// Whether the check refused its text, which stands there still.
  [[nodiscard]] bool IsOngeldig() const { return IsRood() && !toolTip().isEmpty(); }

 signals:
  void Gekregen();
  /// The focus went to another control; not to a menu, a pop-up or another window.
  void Verlaten();
  void Enter();
  void Escape();

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void Beschrijf();
  void Kleur();

  VeldId veld_;
  const VeldRegel& regel_;
  std::uint32_t kleur_ = VeldKleur;
  bool kiesAlles_ = false;
};

/// Seven fields of an array, band 63 first, under the bands' captions.
class BandRij : public QWidget {
  Q_OBJECT

 public:
  BandRij(std::string_view naam, int eerste, const QString& omschrijving, QWidget* ouder);
  /// A row of another window, by the rule of its own table, which outlives it.
  BandRij(std::string_view naam, int eerste, const VeldRegel& regel, const QString& omschrijving,
          QWidget* ouder);

  [[nodiscard]] const std::array<InvoerVeld*, Banden>& Vakken() const { return vakken_; }

 private:
  std::array<InvoerVeld*, Banden> vakken_{};
};

/// An option. The focus comes to the one that is chosen, unless the mouse points at another.
class Optieknop : public QRadioButton {
  Q_OBJECT

 public:
  using QRadioButton::QRadioButton;

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

/// A button of a toolbar, which Enter presses as the space bar does.
class Balkknop : public QToolButton {
  Q_OBJECT

 public:
  using QToolButton::QToolButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// A list whose rows are clicked: by the mouse, also the row that is selected already, or by the arrow keys.
class Lijstvak : public QListWidget {
  Q_OBJECT

 public:
  Lijstvak(const QString& objectNaam, const QString& naam, QWidget* ouder);

  /// Shows other rows, or selects one, without a click.
  void ZetRijen(const QStringList& rijen);
  void VoegRij(const QString& tekst);
  void ZetRij(int rij);
  /// Shows whether the list is the one that the commands act on, in the colours that the theme has now.
  void ZetActief(bool actief);

 signals:
  void Geklikt(int rij);
  void Toets(int qtToets);  ///< Enter, Insert or Delete; Enter is always Qt::Key_Return

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  /// Goes to the row that starts with what is being typed.
  void keyboardSearch(const QString& tekens) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;

 private:
  [[nodiscard]] bool ZoektNog() const;

  bool stil_ = false;
  bool strook_ = false;  ///< along the left side, in the colour of the active list
  QElapsedTimer gezocht_;
};

/// A calendar that lies over other controls: it has a rim, which lights up while it has the focus.
class Kalender : public QCalendarWidget {
  Q_OBJECT

 public:
  explicit Kalender(QWidget* ouder);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A combo box with a text of its own that the wheel does not change.
class Keuzevak : public QComboBox {
  Q_OBJECT

 public:
  Keuzevak(const QString& objectNaam, const QString& naam, QWidget* ouder);

  void ZetRijen(const QStringList& rijen);
  /// Shows a text, from its beginning.
  void ZetTekst(const QString& tekst);

 signals:
  void Verlaten();

 protected:
  void changeEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace murvane
