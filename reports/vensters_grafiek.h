#pragma once
// The chart of the results as a picture: on screen and, as vectors, on a page.

#include <QRectF>
#include <QSizeF>
#include <memory>

#include "reports/grafiek.h"

class QGraphicsScene;
class QPainter;

namespace murvane {

/// The chart as a scene of this size, 96 units to the inch: dark on white, whatever the theme.
[[nodiscard]] std::unique_ptr<QGraphicsScene> MaakTafereel(const Grafiek& grafiek, QSizeF grootte);

/// Draws the chart into a rectangle of twips.
void TekenGrafiek(QPainter& schilder, const Grafiek& grafiek, const QRectF& doel);

}  // namespace murvane
