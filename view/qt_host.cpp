#include "view/qt_host.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "surface/printer.h"
#include "view/metrics.h"
#include "view/print.h"

namespace tessaron::view {

int QtHost::messageBox(const std::string& text, int flags, const std::string& title) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(qs(title));
  box.setText(shownText(text));
  box.setTextFormat(Qt::PlainText);
  if (flags == 4) {
    box.setIcon(QMessageBox::NoIcon);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? 6 : 7;
  }
  box.setIcon(flags == 64 ? QMessageBox::Information : QMessageBox::Warning);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  return 1;
}

std::string QtHost::inputBox(const std::string& prompt) {
  bool ok = false;
  const QString text =
      QInputDialog::getText(QApplication::activeWindow(), QStringLiteral("Tessaron"),
                            shownText(prompt), QLineEdit::Normal, QString(), &ok);
  return ok ? ss(text) : std::string();
}

void QtHost::beep() { QApplication::beep(); }

void QtHost::printed(const PrintJob& job) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setCreator(QStringLiteral("Tessaron"));
  printer.setDocName(QStringLiteral("Tessaron"));
  QPrintPreviewDialog preview(&printer, QApplication::activeWindow());
  preview.setWindowTitle(QStringLiteral("Tessaron - Print"));
  preview.resize(820, 900);
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                   [&job](QPrinter* p) { renderJob(job, *p); });
  preview.exec();
}

std::string QtHost::clipboardText() { return ss(QGuiApplication::clipboard()->text()); }

void QtHost::setClipboardText(const std::string& text) {
  if (text.empty())
    QGuiApplication::clipboard()->clear();
  else
    QGuiApplication::clipboard()->setText(qs(text));
}

void QtHost::fatal(const std::string& words) {
  QMessageBox::critical(QApplication::activeWindow(), QStringLiteral("Tessaron"), qs(words));
  QCoreApplication::exit(3);
}

void QtHost::ended() { QCoreApplication::quit(); }

}  // namespace tessaron::view
