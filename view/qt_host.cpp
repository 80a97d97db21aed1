#include "view/qt_host.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QToolBar>

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
  // Saving a PDF is one step from the preview, besides the print dialog's own.
  if (auto* bar = preview.findChild<QToolBar*>()) {
    bar->addSeparator();
    QAction* save = bar->addAction(QStringLiteral("Save PDF..."));
    QObject::connect(save, &QAction::triggered, &preview, [&job, &preview] {
      const QString file = QFileDialog::getSaveFileName(&preview, QStringLiteral("Save PDF"),
                                                        QStringLiteral("Tessaron.pdf"),
                                                        QStringLiteral("PDF (*.pdf)"));
      if (!file.isEmpty() && !renderJobToPdf(job, ss(file)))
        QMessageBox::warning(&preview, QStringLiteral("Tessaron"),
                             QStringLiteral("The PDF file could not be written."));
    });
  }
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
