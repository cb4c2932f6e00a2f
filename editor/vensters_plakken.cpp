#include "editor/vensters_plakken.h"

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <utility>

#include "basis/tekst.h"
#include "basis/vensters_hulp.h"
#include "editor/invoer.h"
#include "editor/plakken.h"

namespace murvane {

namespace {

/// A letter and its accent, where they come apart, are one character.
std::u32string Punten(const QString& tekst) {
  return tekst.normalized(QString::NormalizationForm_C).toStdU32String();
}

bool IsPlakken(const QAction& actie) {
  return actie.text().startsWith(QCoreApplication::translate("QLineEdit", "&Paste"));
}

/// The toolkit puts in what comes at once by itself, and none of its ways can be overridden.
class Plakwacht : public QObject {
 public:
  Plakwacht(QLineEdit& vak, Vakkleuring kleur, bool ookGetypt)
      : QObject(&vak), vak_(vak), kleur_(std::move(kleur)), ookGetypt_(ookGetypt) {
    vak.installEventFilter(this);
  }

 protected:
  /// Looks at the box only for an event of its own: it also gets events while it is being destroyed.
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
        return NeemtAan() && Toets(*static_cast<QKeyEvent*>(event));
      case QEvent::ContextMenu:
        return NeemtAan() && Menu(*static_cast<QContextMenuEvent*>(event));
      case QEvent::MouseButtonRelease:
        return NeemtAan() && Middenknop(*static_cast<QMouseEvent*>(event));
      case QEvent::Drop:
        return NeemtAan() && Drop(*static_cast<QDropEvent*>(event));
      case QEvent::InputMethod:
        return NeemtAan() && Geschreven(*static_cast<QInputMethodEvent*>(event));
      default:
        return false;
    }
  }

 private:
  [[nodiscard]] bool NeemtAan() const { return vak_.isEnabled() && !vak_.isReadOnly(); }

  void Kleur(const Plakuitslag& uitslag) { kleur_(uitslag.Geweigerd ? FoutKleur : VeldKleur); }

  void Plak(QClipboard::Mode bron) {
    const QString tekst = QGuiApplication::clipboard()->text(bron);
    if (tekst.isEmpty()) return;
    const Plakuitslag uitslag = NeemGeplakt(Punten(tekst));
    if (!uitslag.Tekst.empty()) vak_.insert(VanCp(uitslag.Tekst));
    Kleur(uitslag);
  }

  bool Toets(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste)) {
      constexpr Qt::KeyboardModifiers Selectie = Qt::ControlModifier | Qt::ShiftModifier;
      const bool selectie = event.key() == Qt::Key_Insert && event.modifiers() == Selectie &&
                            QGuiApplication::clipboard()->supportsSelection();
      Plak(selectie ? QClipboard::Selection : QClipboard::Clipboard);
      return true;
    }
    const char32_t teken = TypTeken(event);
    if (!ookGetypt_ || teken == 0) return false;
    const bool mag = TypbaarTeken(teken).has_value();
    kleur_(mag ? VeldKleur : FoutKleur);
    return !mag;
  }

  bool Menu(const QContextMenuEvent& event) {
    QMenu* const menu = vak_.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* const actie : menu->actions()) {
      if (!IsPlakken(*actie)) continue;
      disconnect(actie, &QAction::triggered, &vak_, nullptr);
      connect(actie, &QAction::triggered, this, [this] { Plak(QClipboard::Clipboard); });
    }
    menu->popup(event.globalPos());
    return true;
  }

  bool Middenknop(const QMouseEvent& event) {
    if (event.button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection())
      return false;
    vak_.deselect();
    Plak(QClipboard::Selection);
    return true;
  }

  /// The box gets a drop of its own, of what it may take.
  bool Drop(QDropEvent& event) {
    const Plakuitslag uitslag = NeemGeplakt(Punten(event.mimeData()->text()));
    QMimeData schoon;
    schoon.setText(VanCp(uitslag.Tekst));
    QDropEvent anders(event.position(), event.possibleActions(), &schoon, event.buttons(), event.modifiers());
    anders.setDropAction(event.dropAction());
    if (!uitslag.Tekst.empty()) vak_.event(&anders);
    event.setDropAction(anders.dropAction());
    event.setAccepted(!uitslag.Tekst.empty());
    Kleur(uitslag);
    return true;
  }

  /// The box takes the event, with what it may take in it.
  bool Geschreven(QInputMethodEvent& event) {
    if (event.commitString().isEmpty()) return false;
    const Plakuitslag uitslag = NeemGeschreven(Punten(event.commitString()));
    event.setCommitString(VanCp(uitslag.Tekst), event.replacementStart(), event.replacementLength());
    Kleur(uitslag);
    return false;
  }

  QLineEdit& vak_;
  Vakkleuring kleur_;
  bool ookGetypt_;
};

}  // namespace

char32_t TypTeken(const QKeyEvent& event) {
  const auto tekens = event.text().toUcs4();
  if (tekens.isEmpty() || tekens.front() < ' ' || tekens.front() == 0x7F) return 0;
  const bool sneltoets = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
  return sneltoets ? 0 : tekens.front();
}

void BewaakPlakken(QLineEdit& vak, Vakkleuring kleur) {
  new Plakwacht(vak, std::move(kleur), false);
}

/// Such a box has the colours of the theme until it refuses something.
void BewaakTekst(QLineEdit& vak) {
  const auto kleur = [&vak](std::uint32_t bgr) {
    if (bgr == FoutKleur) return ZetAchtergrond(vak, bgr);
    vak.setPalette({});
  };
  new Plakwacht(vak, kleur, true);
}

/// The combo box has the keys and what is written, its box the mouse.
void BewaakTekst(QComboBox& keuze) {
  const auto kleur = [&keuze](std::uint32_t bgr) { ZetAchtergrond(keuze, bgr); };
  keuze.installEventFilter(new Plakwacht(*keuze.lineEdit(), kleur, true));
}

}  // namespace murvane
