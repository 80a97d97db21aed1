#pragma once
// The artwork the design tables name: Qt resources ":/art/NAME.svg" or
// ":/art/NAME.png". A missing picture draws nothing.
#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <string>

namespace tessaron::view {

bool hasArt(const std::string& name);
// Draws the picture centred in the rectangle, keeping its proportions.
void paintArt(QPainter& painter, const std::string& name, const QRectF& rect);
QIcon artIcon(const std::string& name, QSize size);

}  // namespace tessaron::view
