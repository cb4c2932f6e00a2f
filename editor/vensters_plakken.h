#pragma once
// One-line boxes of the toolkit that take what comes at once by the rule of NeemGeplakt: by a key, their
// menu, the middle button, a drag or an input method.

#include <cstdint>
#include <functional>

class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace murvane {

/// The character that a key types; 0 for a key that edits, moves or is a shortcut.
[[nodiscard]] char32_t TypTeken(const QKeyEvent& event);

/// Colours a box: VeldKleur, or FoutKleur when it refused a character.
using Vakkleuring = std::function<void(std::uint32_t bgr)>;

/// Holds a box to the rule, for as long as the box lives. What is typed in it is its own business.
void BewaakPlakken(QLineEdit& vak, Vakkleuring kleur);

/// Holds a box that has no rule of its own to the code page, also for what is typed.
void BewaakTekst(QLineEdit& vak);
/// The same of the box of a combo box that can be typed in.
void BewaakTekst(QComboBox& keuze);

}  // namespace murvane
