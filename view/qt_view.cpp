#include "view/qt_view.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QTimer>

#include "surface/application.h"
#include "view/form_window.h"
#include "view/metrics.h"

namespace tessaron::view {

namespace {
// The help page reads like any notice: Esc puts it away.
class HelpWindow : public QTextBrowser {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape)
      close();
    else
      QTextBrowser::keyPressEvent(event);
  }
};
}  // namespace

QFont formFont(double pointSize, bool bold) {
  // A narrow sans face keeps captions within the widths the forms were laid
  // out for; Hangul falls back to a face that has the glyphs.
  QFont f(QStringLiteral("DejaVu Sans Condensed"));
  f.setFamilies({QStringLiteral("DejaVu Sans Condensed"), QStringLiteral("DejaVu Sans"),
                 QStringLiteral("NanumBarunGothic"), QStringLiteral("NanumGothic")});
  f.setPointSizeF(pointSize > 0 ? pointSize : 8);
  f.setBold(bold);
  return f;
}

QtView::QtView(Application& app, bool liveTimers)
    : app_(app), liveTimers_(liveTimers), context_(std::make_unique<QObject>()) {}

QtView::~QtView() {
  if (app_.observer() == this) app_.setObserver(nullptr);
  for (auto& [form, window] : windows_) delete window.data();
  delete help_.data();
}

FormWindow* QtView::window(const Form& form) const {
  const auto it = windows_.find(&form);
  return it == windows_.end() ? nullptr : it->second.data();
}

void QtView::formShown(Form& form) {
  FormWindow* w = window(form);
  if (!w) {
    w = new FormWindow(*this, form);
    windows_[&form] = w;
  }
  w->sync();
  w->show();
  // The offscreen platform keeps no stacking order.
  if (QGuiApplication::platformName() != QLatin1String("offscreen")) w->raise();
  w->activateWindow();
}

void QtView::formUnloading(Form& form) {
  const auto it = windows_.find(&form);
  if (it == windows_.end()) return;
  // The window may be inside one of its own widgets' handlers: it goes once
  // control is back in the event loop.
  if (FormWindow* w = it->second) {
    w->detach();
    w->deleteLater();
  }
  windows_.erase(it);
}

void QtView::refresh() {
  // A widget hidden or disabled here passes the focus on by the toolkit's own
  // rule; the model has already moved it as a real window does, so the moves
  // made while syncing are not the user's and showFocus() applies the model's.
  applyingFocus_ = true;
  for (auto& [form, window] : windows_)
    if (window) window->sync();
  applyingFocus_ = false;
  showFocus();
  if (ticksWaiting_) QTimer::singleShot(0, context_.get(), [this] { runWaitingTicks(); });
}

void QtView::showFocus() {
  applyingFocus_ = true;
  Control* focused = app_.focused();
  for (auto& [form, window] : windows_) {
    if (!window || !window->form()) continue;
    QWidget* want =
        focused && &focused->form() == window->form() ? window->widget(*focused) : nullptr;
    if (want && want->focusPolicy() == Qt::NoFocus) want = nullptr;
    if (!want) {
      // No control of this form has the focus: keys go to the form itself.
      QWidget* has = window->focusWidget();
      if (has && has != window) window->setFocus(Qt::OtherFocusReason);
      continue;
    }
    if (window->focusWidget() != want && want->isVisibleTo(window) && want->isEnabled())
      want->setFocus(Qt::OtherFocusReason);
  }
  applyingFocus_ = false;
}

void QtView::tickWaiting() { ticksWaiting_ = true; }

void QtView::runWaitingTicks() {
  if (app_.busy() || !ticksWaiting_) return;
  ticksWaiting_ = false;
  std::vector<QPointer<FormWindow>> all;
  for (auto& [form, window] : windows_) all.push_back(window);
  for (auto& w : all)
    if (w && !w->runWaitingTicks()) ticksWaiting_ = true;
}

void QtView::showHelp(const std::string& page) {
  if (!help_) {
    help_ = new HelpWindow;
    help_->setAttribute(Qt::WA_DeleteOnClose);
    help_->setOpenExternalLinks(false);
    help_->setWindowTitle(QStringLiteral("Tessaron Help"));
    help_->resize(640, 600);
    QFont f = formFont(10);
    help_->setFont(f);
  }
  QString path = qs(page);
  if (!path.startsWith(QLatin1String(":/"))) path = QStringLiteral(":/help/") + path + ".html";
  if (QFile::exists(path)) {
    help_->setSource(QUrl(QStringLiteral("qrc") + path));
    if (!help_->documentTitle().isEmpty()) help_->setWindowTitle(help_->documentTitle());
  } else {
    help_->setHtml(QStringLiteral("<p>This help page is not part of this build.</p>"));
  }
  help_->show();
  help_->raise();
  help_->activateWindow();
}

}  // namespace tessaron::view
