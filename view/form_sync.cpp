// Keeping the widgets in step with the model after every event. Each item
// remembers what it last applied, so a refresh costs a few comparisons.
#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <functional>

#include "surface/application.h"
#include "surface/form.h"
#include "view/art.h"
#include "view/fit.h"
#include "view/form_item.h"
#include "view/metrics.h"
#include "view/qt_view.h"
#include "view/widgets.h"

namespace tessaron::view {

namespace {

bool boxKind(ControlKind k) {
  return k == ControlKind::TextBox || k == ControlKind::FlexGrid || k == ControlKind::PictureBox;
}

void setColours(QWidget* w, ControlKind kind, long back, long fore) {
  QPalette pal = w->palette();
  const QPalette base = QApplication::palette(w);
  const QColor b = back == kDefaultColour
                       ? base.color(boxKind(kind) ? QPalette::Base : QPalette::Window)
                       : colour(back);
  for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    if (back == kDefaultColour)
      pal.setColor(role, base.color(role));
    else
      pal.setColor(role, b);
  }
  for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    if (fore == kDefaultColour) {
      pal.setColor(QPalette::Active, role, base.color(QPalette::Active, role));
      pal.setColor(QPalette::Inactive, role, base.color(QPalette::Inactive, role));
    } else {
      pal.setColor(QPalette::Active, role, colour(fore));
      pal.setColor(QPalette::Inactive, role, colour(fore));
    }
  }
  w->setPalette(pal);
  // Labels and images are see-through unless given a colour of their own.
  if (kind == ControlKind::Label) w->setAutoFillBackground(back != kDefaultColour);
}

size_t drawingSignature(const std::vector<DrawOp>& ops) {
  size_t h = ops.size();
  const auto mix = [&h](size_t v) { h ^= v + 0x9e3779b97f4a7c15ULL + (h << 6) + (h >> 2); };
  for (const DrawOp& op : ops) {
    mix(static_cast<size_t>(op.kind));
    for (double v : {op.x1, op.y1, op.x2, op.y2, op.size}) mix(std::hash<double>{}(v));
    mix(static_cast<size_t>(op.colour));
    mix(static_cast<size_t>(op.width * 8 + op.style));
    mix(std::hash<std::string>{}(op.text));
  }
  return h;
}

Qt::Alignment cellAlignment(int a, const std::string& text) {
  switch (a) {
    case 0:
      return Qt::AlignLeft | Qt::AlignTop;
    case 1:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case 2:
      return Qt::AlignLeft | Qt::AlignBottom;
    case 3:
      return Qt::AlignHCenter | Qt::AlignTop;
    case 4:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case 5:
      return Qt::AlignHCenter | Qt::AlignBottom;
    case 6:
      return Qt::AlignRight | Qt::AlignTop;
    case 7:
      return Qt::AlignRight | Qt::AlignVCenter;
    case 8:
      return Qt::AlignRight | Qt::AlignBottom;
    default: {
      // The grid's own rule: numbers to the right, text to the left.
      // Grouped figures such as "2,849.04" are numbers too.
      bool number = false;
      QString::fromStdString(text).trimmed().remove(QLatin1Char(',')).toDouble(&number);
      return (number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    }
  }
}

}  // namespace

QSize FormWindow::clientSize() const {
  if (!form_) return size();
  return {std::max(1, px(form_->Width) - kFrameWidthPx),
          std::max(1, px(form_->Height) - kFrameHeightPx)};
}

void FormWindow::sync() {
  if (!form_) return;
  applying_ = true;
  syncForm();
  for (auto& item : items_) syncItem(*item);
  applying_ = false;
}

void FormWindow::syncForm() {
  Form& f = *form_;
  if (f.Caption != caption_) {
    caption_ = f.Caption;
    setWindowTitle(qs(caption_));
  }
  const QSize client = clientSize();
  if (client != size_) {
    size_ = client;
    if (f.design().fixedSize)
      setFixedSize(client);
    else
      resize(client);
  }
  const QPoint at(px(f.Left), px(f.Top));
  if (at != position_) {
    position_ = at;
    move(at);
  }
  if (f.BackColor != back_) {
    back_ = f.BackColor;
    QPalette pal = palette();
    pal.setColor(QPalette::Window, back_ == kDefaultColour
                                       ? QApplication::palette().color(QPalette::Window)
                                       : colour(back_));
    setPalette(pal);
    setAutoFillBackground(true);
  }
}

void FormWindow::syncItem(Item& item) {
  Control& c = *item.control;
  if (item.timer) {
    syncTimer(item);
    return;
  }
  QWidget* w = item.widget;
  const bool fresh = item.fresh;
  item.fresh = false;
  bool refit = fresh;  // the caption is laid into its box again

  if (c.kind() == ControlKind::Line) {
    if (fresh || c.X1 != item.x1 || c.Y1 != item.y1 || c.X2 != item.x2 || c.Y2 != item.y2 ||
        c.BorderColor != item.borderColour || c.BorderWidth != item.borderWidth) {
      item.x1 = c.X1, item.y1 = c.Y1, item.x2 = c.X2, item.y2 = c.Y2;
      item.borderColour = c.BorderColor;
      item.borderWidth = c.BorderWidth;
      const QPointF a(c.X1 / kTwipsPerPixel, c.Y1 / kTwipsPerPixel);
      const QPointF b(c.X2 / kTwipsPerPixel, c.Y2 / kTwipsPerPixel);
      const int pad = std::max(1, c.BorderWidth);
      const QRect box = QRectF(a, b).normalized().toAlignedRect().adjusted(-pad, -pad, pad, pad);
      w->setGeometry(box);
      static_cast<LineView*>(w)->setLine(a - box.topLeft(), b - box.topLeft(),
                                         colour(c.BorderColor), c.BorderWidth);
    }
  } else {
    const QRect g(px(c.Left), px(c.Top), px(c.Width), px(c.Height));
    if (fresh || g != item.geometry) {
      item.geometry = g;
      w->setGeometry(g);
      refit = true;
      if (auto* b = qobject_cast<QPushButton*>(w); b && hasArt(c.design().picture)) {
        const int side = std::max(8, std::min(g.width(), g.height()) - 8);
        const QSize icon = c.Caption.empty() ? QSize(g.width() - 8, g.height() - 8)
                                             : QSize(side * 2 / 3, side * 2 / 3);
        b->setIcon(artIcon(c.design().picture, icon));
        b->setIconSize(icon);
      }
    }
  }
  if (fresh || c.Visible != item.visible) {
    item.visible = c.Visible;
    w->setVisible(c.Visible);
  }
  if (fresh || c.Enabled != item.enabled) {
    item.enabled = c.Enabled;
    w->setEnabled(c.Enabled);
  }
  if (fresh || c.ToolTipText != item.tip || c.Caption != item.caption) {
    item.tip = c.ToolTipText;
    w->setToolTip(qs(c.ToolTipText));
    // A screen reader names each control by what a sighted user reads on it.
    const std::string& name = !c.ToolTipText.empty() ? c.ToolTipText
                              : !c.Caption.empty()   ? c.Caption
                                                     : c.name();
    w->setAccessibleName(shownText(name).simplified());
  }
  if (fresh || c.FontSize != item.fontSize || c.FontBold != item.bold) {
    item.fontSize = c.FontSize;
    item.bold = c.FontBold;
    w->setFont(formFont(c.FontSize, c.FontBold));
    refit = true;
  }
  if (fresh || c.BackColor != item.back || c.ForeColor != item.fore) {
    item.back = c.BackColor;
    item.fore = c.ForeColor;
    setColours(w, c.kind(), c.BackColor, c.ForeColor);
  }
  if (syncText(item) || refit) {
    const ControlKind k = c.kind();
    if (k == ControlKind::Label || k == ControlKind::CommandButton || k == ControlKind::Frame ||
        k == ControlKind::OptionButton || k == ControlKind::CheckBox)
      fitCaption(*w, shownText(c.Caption), formFont(c.FontSize, c.FontBold));
  }
  switch (c.kind()) {
    case ControlKind::OptionButton:
    case ControlKind::CheckBox: {
      auto* b = static_cast<QAbstractButton*>(w);
      const bool on = c.value() != Value(0) && c.value() != Value(false);
      if (b->isChecked() != on) b->setChecked(on);
      break;
    }
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar: {
      auto* bar = static_cast<QScrollBar*>(w);
      if (fresh || c.Min() != item.min || c.Max() != item.max) {
        item.min = c.Min();
        item.max = c.Max();
        // A bar whose Min is above its Max runs the other way.
        const bool inverted = c.Min() > c.Max();
        bar->setRange(std::min(c.Min(), c.Max()), std::max(c.Min(), c.Max()));
        bar->setInvertedAppearance(inverted);
        bar->setInvertedControls(inverted);
      }
      const int v = c.value().AsInt16();
      if (!bar->isSliderDown() && (bar->value() != v || bar->sliderPosition() != v)) {
        item.value = v;
        bar->setValue(v);
      }
      break;
    }
    case ControlKind::PictureBox: {
      const size_t sig = drawingSignature(c.picture().ops());
      if (fresh || sig != item.drawing) {
        item.drawing = sig;
        w->update();
      }
      break;
    }
    case ControlKind::FlexGrid:
      syncGrid(item);
      break;
    case ControlKind::OlePackage:
      static_cast<HelpIcon*>(w)->setPicture(c.design().picture);
      break;
    default:
      break;
  }
}

bool FormWindow::syncText(Item& item) {
  Control& c = *item.control;
  QWidget* w = item.widget;
  switch (c.kind()) {
    case ControlKind::Label:
    case ControlKind::CommandButton:
    case ControlKind::Frame:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox: {
      if (c.Caption == item.caption) return false;
      item.caption = c.Caption;
      return true;
    }
    case ControlKind::TextBox: {
      const QString t = shownText(c.Text);
      if (auto* e = qobject_cast<QLineEdit*>(w)) {
        if (e->text() != t) e->setText(t);
        if (c.SelLength > 0) {
          if (e->selectionStart() != c.SelStart || e->selectedText().size() != c.SelLength)
            e->setSelection(c.SelStart, c.SelLength);
        } else if (e->cursorPosition() != c.SelStart || e->hasSelectedText()) {
          e->setCursorPosition(std::min<int>(c.SelStart, static_cast<int>(t.size())));
        }
      } else if (auto* p = qobject_cast<QPlainTextEdit*>(w)) {
        if (p->toPlainText() != t) {
          p->setPlainText(t);
          p->moveCursor(QTextCursor::End);
        }
      }
      break;
    }
    default:
      break;
  }
  return false;
}

// Grows the table to the grid's row count; fixed cells wear the button face.
void FormWindow::addGridRows(QTableWidget& table, const Grid& g) {
  const int had = table.rowCount();
  table.setRowCount(g.Rows());
  for (int r = had; r < g.Rows(); ++r)
    for (int k = 0; k < g.Cols(); ++k) {
      auto* cell = new QTableWidgetItem;
      if (r < g.FixedRows() || k < g.FixedCols()) {
        cell->setBackground(QApplication::palette().color(QPalette::Button));
        cell->setForeground(QApplication::palette().color(QPalette::ButtonText));
      }
      table.setItem(r, k, cell);
    }
}

void FormWindow::syncGrid(Item& item) {
  const Grid& g = item.control->grid();
  auto* table = static_cast<QTableWidget*>(item.widget);
  // The logic may change the row count (a table as long as the loan's term).
  if (table->rowCount() != g.Rows()) {
    addGridRows(*table, g);
  }
  const size_t n = static_cast<size_t>(g.Rows()) * g.Cols();
  if (item.cells.size() != n) item.cells.assign(n, Grid::Cell{"", -2, -2});
  for (int r = 0; r < g.Rows(); ++r)
    for (int k = 0; k < g.Cols(); ++k) {
      const Grid::Cell& cell = g.cell(r, k);
      Grid::Cell& last = item.cells[static_cast<size_t>(r) * g.Cols() + k];
      if (cell.text == last.text && cell.fontSize == last.fontSize &&
          cell.alignment == last.alignment)
        continue;
      last = cell;
      QTableWidgetItem* it = table->item(r, k);
      it->setText(shownText(cell.text));
      if (r == 0 && g.FixedRows() == 1) {
        // The fixed row stands in the header, so it stays on view as the
        // rows scroll.
        auto* head = table->horizontalHeaderItem(k);
        if (!head) table->setHorizontalHeaderItem(k, head = new QTableWidgetItem);
        head->setText(shownText(cell.text));
        head->setFont(formFont(cell.fontSize > 0 ? cell.fontSize : item.control->FontSize));
      }
      it->setFont(formFont(cell.fontSize > 0 ? cell.fontSize : item.control->FontSize));
      it->setTextAlignment(cellAlignment(cell.alignment, cell.text));
    }
  if (item.colWidths.size() != static_cast<size_t>(g.Cols())) item.colWidths.assign(g.Cols(), -1);
  if (item.rowHeights.size() != static_cast<size_t>(g.Rows())) item.rowHeights.assign(g.Rows(), -1);
  for (int k = 0; k < g.Cols(); ++k)
    if (g.ColWidth(k) != item.colWidths[k]) {
      item.colWidths[k] = g.ColWidth(k);
      table->setColumnWidth(k, px(g.ColWidth(k)));
    }
  for (int r = 0; r < g.Rows(); ++r)
    if (g.RowHeight(r) != item.rowHeights[r]) {
      item.rowHeights[r] = g.RowHeight(r);
      table->setRowHeight(r, std::max(1, px(g.RowHeight(r))));
      if (r == 0 && g.FixedRows() == 1)
        table->horizontalHeader()->setFixedHeight(std::max(1, px(g.RowHeight(0))));
    }
  if (table->currentRow() != g.Row() || table->currentColumn() != g.Col()) {
    // The logic walks Row and Col to fill cells; that is no reason to scroll,
    // so the grid keeps showing the rows the user had on view.
    const int across = table->horizontalScrollBar()->value();
    const int down = table->verticalScrollBar()->value();
    table->setCurrentCell(g.Row(), g.Col(), QItemSelectionModel::NoUpdate);
    table->horizontalScrollBar()->setValue(across);
    table->verticalScrollBar()->setValue(down);
  }
}

void FormWindow::syncTimer(Item& item) {
  Control& c = *item.control;
  const bool run = view_.liveTimers() && c.Enabled && c.Interval > 0;
  if (c.Interval != item.interval) {
    item.interval = c.Interval;
    item.timer->setInterval(std::max(1, c.Interval));
  }
  if (run != item.running) {
    item.running = run;
    if (run)
      item.timer->start();
    else
      item.timer->stop();
  }
}

}  // namespace tessaron::view
