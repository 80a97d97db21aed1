#include "view/form_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include "surface/application.h"
#include "surface/form.h"
#include "view/art.h"
#include "view/form_item.h"
#include "view/keys.h"
#include "view/metrics.h"
#include "view/qt_view.h"
#include "view/widgets.h"

namespace tessaron::view {

namespace {
// A grid's current cell keeps its frame whether or not the grid has the
// keyboard focus, so the chosen cell stays marked while the user works
// elsewhere on the form.
class CurrentCellFrame : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* p, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(p, option, index);
    const auto* table = qobject_cast<const QAbstractItemView*>(parent());
    if (!table || table->currentIndex() != index) return;
    p->save();
    p->setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), 2));
    p->setBrush(Qt::NoBrush);
    p->drawRect(QRectF(option.rect).adjusted(1, 1, -1, -1));
    p->restore();
  }
};
}  // namespace

FormWindow::FormWindow(QtView& view, Form& form) : QWidget(nullptr), view_(view), form_(&form) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  setObjectName(qs(form.name()));
  setFocusPolicy(Qt::StrongFocus);
  setFont(formFont(form.design().fontSize));
  build();
  sync();
}

FormWindow::~FormWindow() = default;

void FormWindow::build() {
  for (const auto& c : form_->controls()) {
    auto item = std::make_unique<Item>();
    item->control = c.get();
    items_.push_back(std::move(item));
  }
  for (auto& item : items_) item->widget = create(*item);
  // Controls inside a frame or picture box live in its widget, in table order.
  for (auto& item : items_) {
    Control* container = item->control->container();
    if (!container || !item->widget) continue;
    if (QWidget* parent = widget(*container)) item->widget->setParent(parent);
  }
  for (auto& item : items_) {
    if (!item->widget) continue;
    byObject_.insert(item->widget, item.get());
    item->widget->installEventFilter(this);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(item->widget)) {
      byObject_.insert(area->viewport(), item.get());
      area->viewport()->installEventFilter(this);
    }
  }
}

QWidget* FormWindow::create(Item& item) {
  Control& c = *item.control;
  const Design& d = c.design();
  QWidget* w = nullptr;
  switch (c.kind()) {
    case ControlKind::Label: {
      auto* label = new QLabel(this);
      label->setTextFormat(Qt::PlainText);
      label->setWordWrap(true);
      const Qt::Alignment h = d.alignment == Align::Right    ? Qt::AlignRight
                              : d.alignment == Align::Center ? Qt::AlignHCenter
                                                             : Qt::AlignLeft;
      label->setAlignment(h | Qt::AlignTop);
      w = label;
      break;
    }
    case ControlKind::TextBox: {
      const Qt::Alignment h = d.alignment == Align::Right    ? Qt::AlignRight
                              : d.alignment == Align::Center ? Qt::AlignHCenter
                                                             : Qt::AlignLeft;
      if (d.multiLine) {
        auto* edit = new QPlainTextEdit(this);
        edit->setReadOnly(d.locked);
        edit->setTabChangesFocus(true);
        edit->setContextMenuPolicy(Qt::NoContextMenu);
        w = edit;
      } else {
        auto* edit = new QLineEdit(this);
        edit->setReadOnly(d.locked);
        edit->setAlignment(h | Qt::AlignVCenter);
        edit->setContextMenuPolicy(Qt::NoContextMenu);
        w = edit;
      }
      break;
    }
    case ControlKind::CommandButton: {
      auto* button = new QPushButton(this);
      button->setAutoDefault(false);
      connect(button, &QPushButton::clicked, this, [this, &item] { clicked(item); });
      w = button;
      break;
    }
    case ControlKind::Frame:
      w = new QGroupBox(this);
      break;
    case ControlKind::OptionButton: {
      auto* option = new ChoiceButton(this);
      option->setAutoExclusive(false);
      connect(option, &QAbstractButton::clicked, this, [this, &item] { clicked(item); });
      w = option;
      break;
    }
    case ControlKind::CheckBox: {
      auto* box = new ChoiceBox(this);
      connect(box, &QAbstractButton::clicked, this, [this, &item] { clicked(item); });
      w = box;
      break;
    }
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar: {
      auto* bar =
          new QScrollBar(c.kind() == ControlKind::HScrollBar ? Qt::Horizontal : Qt::Vertical, this);
      bar->setSingleStep(std::max(1, d.smallChange));
      bar->setPageStep(std::max(1, d.largeChange));
      // The user's move reaches the model first; the model's value is what shows.
      connect(bar, &QAbstractSlider::actionTriggered, this, [this, &item, bar](int action) {
        if (action == QAbstractSlider::SliderMove && bar->isSliderDown()) return;
        scrolled(item, bar->sliderPosition());
      });
      connect(bar, &QAbstractSlider::sliderReleased, this,
              [this, &item, bar] { scrolled(item, bar->sliderPosition()); });
      w = bar;
      break;
    }
    case ControlKind::Image: {
      auto* art = new ArtView(this);
      art->setPicture(d.picture);
      w = art;
      break;
    }
    case ControlKind::Timer:
      item.timer = new QTimer(this);
      connect(item.timer, &QTimer::timeout, this, [this, &item] {
        if (form_) tick(*item.control);
      });
      return nullptr;
    case ControlKind::Line:
      w = new LineView(this);
      break;
    case ControlKind::PictureBox:
      w = new CanvasView(this, &c);
      break;
    case ControlKind::FlexGrid: {
      const Grid& g = c.grid();
      auto* table = new QTableWidget(0, g.Cols(), this);
      table->horizontalHeader()->hide();
      table->verticalHeader()->hide();
      table->setEditTriggers(QAbstractItemView::NoEditTriggers);
      table->setItemDelegate(new CurrentCellFrame(table));
      table->setSelectionMode(QAbstractItemView::NoSelection);
      table->setTabKeyNavigation(false);
      table->setWordWrap(false);
      table->setCornerButtonEnabled(false);
      // Column widths and row heights are the logic's, however small.
      table->horizontalHeader()->setMinimumSectionSize(0);
      table->verticalHeader()->setMinimumSectionSize(0);
      table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
      table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
      addGridRows(*table, g);
      if (g.FixedRows() == 1 && g.Rows() > 1) {
        table->horizontalHeader()->show();
        table->horizontalHeader()->setSectionsClickable(false);
        table->setRowHidden(0, true);
      }
      connect(table, &QTableWidget::cellClicked, this, [this, &item](int row, int col) {
        if (!form_ || view_.app().busy()) return;
        view_.app().cell(*item.control, row, col);
      });
      w = table;
      break;
    }
    case ControlKind::OlePackage: {
      auto* icon = new HelpIcon(this);
      icon->setCursor(Qt::PointingHandCursor);
      w = icon;
      break;
    }
  }
  w->setObjectName(qs(c.path()));
  w->setFocusPolicy(c.takesFocus() ? (d.tabStop ? Qt::StrongFocus : Qt::ClickFocus) : Qt::NoFocus);
  return w;
}

FormWindow::Item* FormWindow::itemOf(QObject* object) const { return byObject_.value(object); }

QWidget* FormWindow::widget(const Control& control) const {
  for (const auto& item : items_)
    if (item->control == &control) return item->widget;
  return nullptr;
}

void FormWindow::detach() {
  form_ = nullptr;
  for (auto& item : items_) {
    if (item->timer) item->timer->stop();
    if (auto* canvas = dynamic_cast<CanvasView*>(item->widget)) canvas->detach();
    item->control = nullptr;
  }
  hide();
}

void FormWindow::clicked(Item& item) {
  if (!form_ || !item.control || view_.app().busy()) return;
  view_.app().click(*item.control);
}

void FormWindow::scrolled(Item& item, int value) {
  if (!form_ || !item.control || view_.app().busy()) return;
  auto* bar = static_cast<QScrollBar*>(item.widget);
  view_.app().scroll(*item.control, value);
  // What the model kept is what the bar shows once this action ends.
  if (form_ && item.control) bar->setSliderPosition(item.control->value().AsInt16());
}

void FormWindow::tick(Control& timer) {
  for (auto& item : items_) {
    if (item->control != &timer) continue;
    if (view_.app().busy()) {
      item->tickWaiting = true;
      view_.tickWaiting();
      return;
    }
    item->tickWaiting = false;
    view_.app().tick(timer);
    return;
  }
}

bool FormWindow::runWaitingTicks() {
  for (size_t i = 0; i < items_.size(); ++i) {
    Item& item = *items_[i];
    if (!item.tickWaiting) continue;
    if (!form_ || !item.control) {
      item.tickWaiting = false;
      continue;
    }
    if (view_.app().busy()) return false;
    item.tickWaiting = false;
    view_.app().tick(*item.control);
  }
  return true;
}

void FormWindow::userResize(int width, int height) {
  if (!form_ || view_.app().busy()) return;
  view_.app().resize(*form_, width, height);
}

void FormWindow::key(Item* item, QKeyEvent* event) {
  Application& app = view_.app();
  if (!form_ || app.busy()) return;
  Form& form = *form_;
  Control* control = item ? item->control : nullptr;
  if (control && control->kind() == ControlKind::TextBox && event->matches(QKeySequence::Paste)) {
    // Pasting types the clipboard's text, key by key, through the model.
    for (uint cp : QGuiApplication::clipboard()->text().toUcs4()) {
      if (!form_ || !item->control) return;
      if (cp >= 32) app.press(*item->control, static_cast<int>(cp));
    }
    return;
  }
  // F1 opens the help page from any form; the form still hears the key.
  if (event->key() == Qt::Key_F1) view_.showHelp("CalcHelp");
  const int code = keyCode(*event);
  // The model's key down types the character of Enter, Backspace and Escape.
  const int ascii = code != 0 && Application::keyTypes(code) ? 0 : keyAscii(*event);
  const int shift = shiftState(event->modifiers());
  if (code != 0) {
    if (control)
      app.keydown(*control, code, shift);
    else
      app.keydown(form, code, shift);
  }
  // The key-down routine may have closed the form or moved on.
  if (ascii == 0 || !form_ || (item && !item->control)) return;
  if (control)
    app.press(*control, ascii);
  else
    app.press(form, ascii);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
    QWidget::keyPressEvent(event);
    return;
  }
  key(nullptr, event);
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) { event->accept(); }

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  Item* item = itemOf(watched);
  if (!item) return QWidget::eventFilter(watched, event);
  const bool live = form_ && item->control;
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto* k = static_cast<QKeyEvent*>(event);
      if (k->key() == Qt::Key_Tab || k->key() == Qt::Key_Backtab) return false;
      // Copying and selecting change nothing the model keeps.
      if (k->matches(QKeySequence::Copy) || k->matches(QKeySequence::SelectAll)) return false;
      if (live) key(item, k);
      return true;
    }
    case QEvent::KeyRelease: {
      auto* k = static_cast<QKeyEvent*>(event);
      return k->key() != Qt::Key_Tab && k->key() != Qt::Key_Backtab;
    }
    case QEvent::ShortcutOverride:
      // Every key on a control is the model's, not a shortcut's.
      event->accept();
      return true;
    case QEvent::InputMethod: {
      auto* im = static_cast<QInputMethodEvent*>(event);
      if (live && !view_.app().busy())
        for (uint cp : im->commitString().toUcs4()) {
          if (!form_ || !item->control) break;
          view_.app().press(*item->control, static_cast<int>(cp));
        }
      return true;
    }
    case QEvent::FocusIn: {
      const Qt::FocusReason why = static_cast<QFocusEvent*>(event)->reason();
      const bool byUser =
          why == Qt::MouseFocusReason || why == Qt::TabFocusReason || why == Qt::BacktabFocusReason;
      Application& app = view_.app();
      if (live && byUser && !view_.applyingFocus() && !app.busy() &&
          app.focused() != item->control && item->control->usable())
        app.focus(*item->control);
      return false;
    }
    case QEvent::MouseButtonRelease: {
      if (!live) return false;
      auto* m = static_cast<QMouseEvent*>(event);
      if (m->button() != Qt::LeftButton) return false;
      if (item->afterDoubleClick) {
        item->afterDoubleClick = false;
        return false;
      }
      const ControlKind k = item->control->kind();
      const bool clicks = k == ControlKind::Label || k == ControlKind::Image ||
                          k == ControlKind::Frame || k == ControlKind::PictureBox ||
                          k == ControlKind::TextBox || k == ControlKind::OlePackage;
      auto* w = static_cast<QWidget*>(watched);
      if (clicks && w->rect().contains(m->position().toPoint()) && !view_.app().busy())
        view_.app().click(*item->control);
      return false;
    }
    case QEvent::MouseButtonDblClick: {
      if (!live) return false;
      auto* m = static_cast<QMouseEvent*>(event);
      if (m->button() != Qt::LeftButton) return false;
      Control& c = *item->control;
      // A press-type control without a double-click routine takes the second
      // press as another press.
      const bool pressable =
          c.kind() == ControlKind::CommandButton || c.kind() == ControlKind::OptionButton ||
          c.kind() == ControlKind::CheckBox || c.kind() == ControlKind::HScrollBar ||
          c.kind() == ControlKind::VScrollBar || c.kind() == ControlKind::FlexGrid;
      if (pressable && !c.form().handles(&c, Event::DblClick)) return false;
      item->afterDoubleClick = true;
      if (!view_.app().busy())
        view_.app().run([&c] {
          EventArgs args;
          c.form().fire(&c, Event::DblClick, args);
        });
      // The embedded page opens on the platform's own double click.
      if (form_ && item->control && item->control->kind() == ControlKind::OlePackage)
        view_.showHelp(item->control->design().picture);
      return !(form_ && item->control && item->control->kind() == ControlKind::TextBox);
    }
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_ && !view_.app().busy()) view_.app().close(*form_);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!form_ || applying_ || !event->spontaneous() || form_->design().fixedSize) return;
  if (event->size() == clientSize()) return;
  userResize(twips(event->size().width() + kFrameWidthPx),
             twips(event->size().height() + kFrameHeightPx));
}

QImage FormWindow::snapshot() {
  const QSize client = size();
  const QSize outer(client.width() + kFrameWidthPx, client.height() + kFrameHeightPx);
  QImage image(outer, QImage::Format_ARGB32_Premultiplied);
  image.fill(QColor(0x3A, 0x5F, 0x8F));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing, true);
  const QRect title(kFrameBorderPx, kFrameBorderPx, client.width(), kTitleBarPx);
  QLinearGradient g(title.topLeft(), title.bottomLeft());
  g.setColorAt(0, QColor(0x4F, 0x7C, 0xB8));
  g.setColorAt(1, QColor(0x2F, 0x55, 0x8A));
  p.fillRect(title, g);
  QFont f = formFont(9, true);
  p.setFont(f);
  p.setPen(Qt::white);
  p.drawText(title.adjusted(6, 0, -60, 0), Qt::AlignVCenter | Qt::AlignLeft, windowTitle());
  // The close box, so the picture reads as a window.
  const QRect close(title.right() - 22, title.top() + 3, 18, title.height() - 6);
  p.setPen(QPen(Qt::white, 1.6));
  p.drawLine(close.center() + QPoint(-4, -4), close.center() + QPoint(4, 4));
  p.drawLine(close.center() + QPoint(-4, 4), close.center() + QPoint(4, -4));
  p.drawPixmap(kFrameBorderPx, kFrameBorderPx + kTitleBarPx, grab());
  p.end();
  return image;
}

}  // namespace tessaron::view
