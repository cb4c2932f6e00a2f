#pragma once
// The language of the toolkit's own texts.

#include <QTranslator>

namespace murvane {

/// A translation with the few Dutch words that the toolkit's own lacks.
class Vertaling : public QTranslator {
 public:
  [[nodiscard]] QString translate(const char* context, const char* bron, const char* uitleg,
                                  int aantal) const override;
};

/// Loads Dutch for the toolkit's own texts, whatever the system language: from beside the program first, else
/// from where the toolkit keeps it. False when it is nowhere.
[[nodiscard]] bool LaadVertaling(QTranslator& vertaling);

}  // namespace murvane
