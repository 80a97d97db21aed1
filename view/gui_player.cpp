#include "view/gui_player.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTableWidget>
#include <algorithm>
#include <cstdio>
#include <iostream>
#include <set>
#include <string>

#include "surface/application.h"
#include "view/fit.h"
#include "view/form_window.h"
#include "view/keys.h"
#include "view/metrics.h"
#include "view/qt_view.h"
#include "view/style.h"

namespace tessaron {

namespace {

using view::FormWindow;

// The offscreen platform warns of window manager requests it has no use for.
void quietOffscreen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

std::unique_ptr<QApplication> startQt(int& argc, char** argv) {
  if (QApplication::instance()) return nullptr;
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  auto qt = std::make_unique<QApplication>(argc, argv);
  if (QGuiApplication::platformName() == QLatin1String("offscreen"))
    qInstallMessageHandler(quietOffscreen);
  view::setupLook(*qt);
  return qt;
}

class GuiPlayer : public Player {
 public:
  GuiPlayer(Application& app, int& argc, char** argv)
      : qt_(startQt(argc, argv)), app_(app), view_(app, false) {
    app_.setObserver(&view_);
  }
  ~GuiPlayer() override {
    if (app_.observer() == &view_) app_.setObserver(nullptr);
  }

  void show(Form& form) override {
    app_.show(form);
    if (FormWindow* w = view_.window(form)) activate(w);
    settle();
  }

  void close(Form& form) override {
    if (FormWindow* w = view_.window(form))
      w->close();
    else
      app_.close(form);
    settle();
  }

  void resize(Form& form, int width, int height) override {
    if (FormWindow* w = view_.window(form))
      w->userResize(width, height);
    else
      app_.resize(form, width, height);
    settle();
  }

  void click(Control& control) override {
    QWidget* w = widget(control);
    switch (control.kind()) {
      case ControlKind::HScrollBar:
      case ControlKind::VScrollBar:
      case ControlKind::FlexGrid:
      case ControlKind::Timer:
      case ControlKind::Line:
        // A click on these is no press of a part of them.
        w = nullptr;
        break;
      default:
        break;
    }
    if (!w) {
      app_.click(control);
    } else {
      activate(w->window());
      QWidget* target = mouseTarget(w);
      const QPoint at = pressPoint(target);
      mouse(target, QEvent::MouseButtonPress, at, Qt::LeftButton);
      mouse(target, QEvent::MouseButtonRelease, at, Qt::NoButton);
    }
    settle();
  }

  void dblclick(Control& control) override {
    QWidget* w = widget(control);
    // As with a click, a double click on a bar or a grid presses no part of it.
    const ControlKind k = control.kind();
    if (!w || k == ControlKind::FlexGrid || k == ControlKind::Timer || k == ControlKind::Line ||
        k == ControlKind::HScrollBar || k == ControlKind::VScrollBar) {
      app_.dblclick(control);
      settle();
      return;
    }
    activate(w->window());
    QWidget* target = mouseTarget(w);
    const QPoint at = pressPoint(target);
    mouse(target, QEvent::MouseButtonPress, at, Qt::LeftButton);
    mouse(target, QEvent::MouseButtonRelease, at, Qt::NoButton);
    if (!view_.window(control.form()) || !widget(control)) return settle();
    mouse(target, QEvent::MouseButtonDblClick, at, Qt::LeftButton);
    // A button takes the second press as a press; letting go off it makes
    // the double click one click, as the forms expect.
    const bool button = control.kind() == ControlKind::CommandButton ||
                        control.kind() == ControlKind::OptionButton ||
                        control.kind() == ControlKind::CheckBox;
    if (widget(control))
      mouse(target, QEvent::MouseButtonRelease, button ? QPoint(-10000, -10000) : at, Qt::NoButton);
    settle();
  }

  void press(Form& form, int keyAscii) override {
    FormWindow* w = view_.window(form);
    if (!w) {
      app_.press(form, keyAscii);
    } else {
      activate(w);
      character(w, keyAscii);
    }
    settle();
  }

  void press(Control& control, int keyAscii) override {
    QWidget* w = widget(control);
    if (!w) {
      app_.press(control, keyAscii);
    } else {
      activate(w->window());
      character(w, keyAscii);
    }
    settle();
  }

  void keydown(Form& form, int keyCode, int shift) override {
    FormWindow* w = view_.window(form);
    if (!w) {
      app_.keydown(form, keyCode, shift);
    } else {
      activate(w);
      keyDown(w, keyCode, shift);
    }
    settle();
  }

  void keydown(Control& control, int keyCode, int shift) override {
    QWidget* w = widget(control);
    if (!w) {
      app_.keydown(control, keyCode, shift);
    } else {
      activate(w->window());
      keyDown(w, keyCode, shift);
    }
    settle();
  }

  void focus(Control& control) override {
    moveFocus(control);
    settle();
  }

  void type(Control& control, std::string_view text) override {
    QWidget* w = widget(control);
    if (!w) {
      app_.type(control, text);
      settle();
      return;
    }
    moveFocus(control);
    if (app_.focused() != &control || !widget(control)) return settle();
    // Selecting the box's text and deleting it; then the keys, one by one.
    app_.type(control, "");
    for (uint cp : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUcs4()) {
      QWidget* now = widget(control);
      if (!now) break;
      character(now, static_cast<int>(cp));
    }
    settle();
  }

  void scroll(Control& control, int value) override {
    auto* bar = qobject_cast<QScrollBar*>(widget(control));
    if (!bar) {
      app_.scroll(control, value);
    } else {
      activate(bar->window());
      const int to = std::clamp(value, bar->minimum(), bar->maximum());
      if (bar->sliderPosition() != to)
        bar->setSliderPosition(to);
      else
        bar->triggerAction(QAbstractSlider::SliderMove);
    }
    settle();
  }

  void cell(Control& control, int row, int col) override {
    auto* table = qobject_cast<QTableWidget*>(widget(control));
    QTableWidgetItem* item = table ? table->item(row, col) : nullptr;
    QRect r;
    if (item) {
      table->scrollToItem(item);
      r = table->visualItemRect(item);
    }
    if (!item || r.isEmpty() || !table->viewport()->rect().contains(r.center())) {
      app_.cell(control, row, col);
    } else {
      activate(table->window());
      mouse(table->viewport(), QEvent::MouseButtonPress, r.center(), Qt::LeftButton);
      mouse(table->viewport(), QEvent::MouseButtonRelease, r.center(), Qt::NoButton);
    }
    settle();
  }

  void tick(Control& timer) override {
    if (FormWindow* w = view_.window(timer.form()))
      w->tick(timer);
    else
      app_.tick(timer);
    settle();
  }

  std::optional<Value> read(const Control& control, std::string_view property) override {
    QWidget* w = widget(control);
    if (!w) return std::nullopt;
    if (property == "Visible") return Value(w->isVisibleTo(w->parentWidget()));
    if (property == "Enabled") return Value(w->isEnabledTo(w->parentWidget()));
    if (property == "Caption") {
      QString shown;
      if (auto* l = qobject_cast<QLabel*>(w))
        shown = l->text();
      else if (auto* g = qobject_cast<QGroupBox*>(w))
        shown = g->title();
      else if (auto* b = qobject_cast<QAbstractButton*>(w))
        shown = b->text();
      else
        return std::nullopt;
      // A caption laid over more lines, or with its outer blanks dropped to
      // fit its box, still reads as the same words.
      if (shown.simplified() == view::shownText(control.Caption).simplified())
        return Value(control.Caption);
      return asModel(shown, control.Caption);
    }
    if (property == "Text") {
      if (auto* e = qobject_cast<QLineEdit*>(w)) return asModel(e->text(), control.Text);
      if (auto* p = qobject_cast<QPlainTextEdit*>(w))
        return asModel(p->toPlainText(), control.Text);
      if (auto* t = qobject_cast<QTableWidget*>(w)) {
        const Grid& g = control.grid();
        QTableWidgetItem* it = t->item(g.Row(), g.Col());
        if (!it) return std::nullopt;
        return asModel(it->text(), g.Text());
      }
    }
    return std::nullopt;
  }

  bool snapshot(Form& form, const std::string& file) override {
    FormWindow* w = view_.window(form);
    if (!w) return false;
    settle();
    return w->snapshot().save(view::qs(file), "PNG");
  }

 private:
  QWidget* widget(const Control& control) const {
    FormWindow* w = view_.window(control.form());
    return w ? w->widget(control) : nullptr;
  }

  // Where a user presses: an option button or check box on its mark, since
  // only the mark and its text take the press.
  static QPoint pressPoint(QWidget* w) {
    if (qobject_cast<QRadioButton*>(w) || qobject_cast<QCheckBox*>(w)) {
      QStyleOptionButton option;
      option.initFrom(w);
      const auto element = qobject_cast<QRadioButton*>(w) ? QStyle::SE_RadioButtonIndicator
                                                          : QStyle::SE_CheckBoxIndicator;
      const QRect mark = w->style()->subElementRect(element, &option, w);
      if (mark.isValid()) return mark.center();
    }
    return w->rect().center();
  }

  static QWidget* mouseTarget(QWidget* w) {
    if (auto* area = qobject_cast<QAbstractScrollArea*>(w)) return area->viewport();
    return w;
  }

  // The widget shows the model's text as the model holds it: report that, so
  // line breaks read back as written; anything else is what the widget shows.
  static Value asModel(const QString& shown, const std::string& model) {
    return Value(shown == view::shownText(model) ? model : view::ss(shown));
  }

  void activate(QWidget* window) {
    if (!window || QApplication::activeWindow() == window) return;
    window->activateWindow();
    QApplication::setActiveWindow(window);
    QCoreApplication::processEvents();
  }

  static void mouse(QWidget* target, QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    const QPointF local(at);
    QMouseEvent e(type, local, target->mapTo(target->window(), local), target->mapToGlobal(local),
                  Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &e);
  }

  // A character key alone: the key under it is not told.
  static void character(QWidget* target, int keyAscii) {
    if (keyAscii < 0 || keyAscii > 0x10FFFF) return;  // no key types it
    // Built unit by unit: read as UTF-32 text, U+FEFF would be taken for a
    // byte order mark and the key would type nothing.
    const char32_t c = static_cast<char32_t>(keyAscii);
    QString text;
    if (QChar::requiresSurrogates(c)) {
      text += QChar(QChar::highSurrogate(c));
      text += QChar(QChar::lowSurrogate(c));
    } else {
      text += QChar(static_cast<char16_t>(c));
    }
    QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &down);
  }

  // A key down alone, as the key-down routine sees it.
  static void keyDown(QWidget* target, int keyCode, int shift) {
    auto [key, modifiers] = view::qtKey(keyCode, shift);
    // Keys that the widgets keep for themselves (Tab, the copy and select
    // shortcuts) go by their code, so the routine still sees them.
    if (keyCode == 9 || (shift & 2)) key = Qt::Key_unknown;
    QKeyEvent down(QEvent::KeyPress, key, modifiers, 0, static_cast<quint32>(keyCode), 0);
    QCoreApplication::sendEvent(target, &down);
  }

  void moveFocus(Control& control) {
    QWidget* w = widget(control);
    if (!w || w->focusPolicy() == Qt::NoFocus) {
      app_.focus(control);
      return;
    }
    activate(w->window());
    // Without an active window no focus event comes; the model is told directly.
    if (!w->window()->isActiveWindow() || QApplication::focusWidget() == w)
      app_.focus(control);
    else
      w->setFocus(Qt::TabFocusReason);
  }

  void settle() {
    for (int i = 0; i < 3; ++i) {
      QCoreApplication::sendPostedEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      QCoreApplication::processEvents();
    }
    if (checkFit_) tellUnfit();
  }

  // With TESSARON_CHECK_FIT set, each text that its box cuts is told once on
  // standard error, as the scripts fill the windows.
  void tellUnfit() {
    for (Form* form : app_.loadedForms()) {
      view::FormWindow* w = view_.window(*form);
      if (!w || !w->isVisible()) continue;
      for (const view::Unfit& u : view::unfitTexts(*w)) {
        const std::string line = form->name() + "." + u.control + " \"" + u.text + "\" needs " +
                                 std::to_string(u.need) + " px, has " + std::to_string(u.room);
        if (toldUnfit_.insert(line).second) std::cerr << "unfit " << line << '\n';
      }
    }
  }

  std::unique_ptr<QApplication> qt_;
  Application& app_;
  view::QtView view_;
  const bool checkFit_ = qEnvironmentVariableIsSet("TESSARON_CHECK_FIT");
  std::set<std::string> toldUnfit_;
};

}  // namespace

std::unique_ptr<Player> makeGuiPlayer(Application& app, int& argc, char** argv) {
  return std::make_unique<GuiPlayer>(app, argc, argv);
}

}  // namespace tessaron
