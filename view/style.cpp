#include "view/style.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

#include "view/metrics.h"

namespace tessaron::view {

void setupLook(QApplication& app) {
  app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  // A light, quiet face: the forms' colours stand out against it.
  QPalette p = app.style()->standardPalette();
  p.setColor(QPalette::Window, QColor(0xF0, 0xF0, 0xF0));
  p.setColor(QPalette::Button, QColor(0xF0, 0xF0, 0xF0));
  p.setColor(QPalette::Base, Qt::white);
  p.setColor(QPalette::Highlight, QColor(0x33, 0x66, 0xCC));
  p.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
  p.setColor(QPalette::ToolTipText, Qt::black);
  app.setPalette(p);
  app.setFont(formFont(8));
  app.setQuitOnLastWindowClosed(false);
  app.setApplicationName(QStringLiteral("Tessaron"));
  app.setApplicationVersion(QStringLiteral("7.3"));
}

}  // namespace tessaron::view
