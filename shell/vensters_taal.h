#pragma once
// The language of the toolkit's own texts.

class QTranslator;

namespace murvane {

/// Loads Dutch for the toolkit's own texts, whatever the system language: from beside the program first, else
/// from where the toolkit keeps it. False when it is nowhere.
[[nodiscard]] bool LaadVertaling(QTranslator& vertaling);

}  // namespace murvane
