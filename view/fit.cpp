#include "view/fit.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTableWidget>
#include <algorithm>

#include "surface/form.h"
#include "view/form_window.h"
#include "view/metrics.h"

namespace tessaron::view {

namespace {

// Pixels a table leaves around a cell's text, as the item delegate draws it.
constexpr int kCellPadding = 3;
// Pixels a frame's title keeps clear of the frame's corners.
constexpr int kTitleInset = 16;
// The smallest face a caption is drawn in, as a share of its own: a long
// figure on a memory key still reads at three fifths of its size.
constexpr double kSmallest = 0.6;

int widestLine(const QFontMetrics& fm, const QString& text) {
  int widest = 0;
  for (const QString& line : text.split(QLatin1Char('\n')))
    widest = std::max(widest, fm.horizontalAdvance(line));
  return widest;
}

struct Check {
  std::vector<Unfit>& out;
  std::string name;
  void operator()(const QString& text, int need, int room) const {
    if (need > room) out.push_back({name, ss(text), need, room});
  }
};

// Where a button's words go: a push button's face, or beside the mark of an
// option or check box.
QStyle::SubElement textElement(const QAbstractButton& b) {
  if (qobject_cast<const QPushButton*>(&b)) return QStyle::SE_PushButtonContents;
  if (qobject_cast<const QRadioButton*>(&b)) return QStyle::SE_RadioButtonContents;
  return QStyle::SE_CheckBoxContents;
}

QRect contents(const QAbstractButton& b, QStyle::SubElement element) {
  QStyleOptionButton opt;
  opt.initFrom(&b);
  return b.style()->subElementRect(element, &opt, &b);
}

// Measures `text` in `face` against the box of a captioned widget.
void measure(const QWidget& w, const QString& text, const QFont& face, const Check& check) {
  const QFontMetrics fm(face);
  if (auto* b = qobject_cast<const QPushButton*>(&w)) {
    const QRect room = contents(*b, QStyle::SE_PushButtonContents);
    int need = widestLine(fm, text);
    if (!b->icon().isNull() && !text.isEmpty()) need += b->iconSize().width() + 4;
    check(text, need, room.width());
    // One line needs the height of its ink (a lone "." in a large face fits
    // a low key); more lines need their full spacing.
    const int lines = static_cast<int>(text.count(QLatin1Char('\n'))) + 1;
    check(text, lines == 1 ? fm.tightBoundingRect(text).height() : lines * fm.height(),
          room.height() + 2);
  } else if (auto* x = qobject_cast<const QAbstractButton*>(&w)) {
    const QRect room = contents(*x, textElement(*x));
    const int lines = static_cast<int>(text.count(QLatin1Char('\n'))) + 1;
    check(text, widestLine(fm, text), room.width());
    check(text, lines == 1 ? fm.tightBoundingRect(text).height() : lines * fm.height(), w.height());
  } else if (auto* l = qobject_cast<const QLabel*>(&w)) {
    const QRect room = l->contentsRect();
    const QRect need = fm.boundingRect(QRect(0, 0, room.width(), 1 << 20),
                                       Qt::TextWordWrap | int(l->alignment()), text);
    check(text, need.width(), room.width());
    // The last line may touch the box's foot: a label still shows it whole.
    check(text, need.height() - fm.descent(), room.height());
  } else if (qobject_cast<const QGroupBox*>(&w)) {
    check(text, fm.horizontalAdvance(text) + kTitleInset, w.width());
  }
}

bool fits(const QWidget& w, const QString& text, const QFont& face) {
  std::vector<Unfit> out;
  measure(w, text, face, Check{out, ""});
  return out.empty();
}

QString shown(const QWidget& w) {
  if (auto* l = qobject_cast<const QLabel*>(&w)) return l->text();
  if (auto* g = qobject_cast<const QGroupBox*>(&w)) return g->title();
  if (auto* b = qobject_cast<const QAbstractButton*>(&w)) return b->text();
  return {};
}

void put(QWidget& w, const QString& text, const QFont& face) {
  w.setFont(face);
  if (auto* l = qobject_cast<QLabel*>(&w))
    l->setText(text);
  else if (auto* g = qobject_cast<QGroupBox*>(&w))
    g->setTitle(text);
  else if (auto* b = qobject_cast<QAbstractButton*>(&w))
    b->setText(text);
}

// Breaks a button's or choice's caption at its runs of blanks into lines no
// wider than its room; a run at a break goes, a run inside a line stays.
QString wrapped(const QAbstractButton& b, const QString& text, const QFont& face) {
  const QFontMetrics fm(face);
  const int room = contents(b, textElement(b)).width();
  const QString t = text.trimmed();
  QStringList lines;
  QString line;
  for (int i = 0; i < t.size();) {
    int gap = i;
    while (gap < t.size() && t[gap] != QLatin1Char(' ')) ++gap;
    int next = gap;
    while (next < t.size() && t[next] == QLatin1Char(' ')) ++next;
    const QString word = t.mid(i, gap - i);
    if (!line.isEmpty() && fm.horizontalAdvance(line + word) > room) {
      lines << line.trimmed();
      line.clear();
    }
    line += word + t.mid(gap, next - gap);
    i = next;
  }
  if (!line.trimmed().isEmpty()) lines << line.trimmed();
  return lines.join(QLatin1Char('\n'));
}

void grid(const QTableWidget& t, const std::string& name, std::vector<Unfit>& out) {
  for (int r = 0; r < t.rowCount(); ++r) {
    // A hidden first row is the fixed row, shown as the header.
    if (t.isRowHidden(r) && r != 0) continue;
    for (int k = 0; k < t.columnCount(); ++k) {
      const QTableWidgetItem* it = t.isRowHidden(r) ? t.horizontalHeaderItem(k) : t.item(r, k);
      if (!it || it->text().isEmpty() || t.columnWidth(k) == 0) continue;
      Check{out, name + "[" + std::to_string(r) + "," + std::to_string(k) + "]"}(
          it->text(),
          QFontMetrics(it->font()).horizontalAdvance(it->text().trimmed()) + 2 * kCellPadding,
          t.columnWidth(k));
    }
  }
}

}  // namespace

void fitCaption(QWidget& w, const QString& caption, const QFont& face) {
  auto* button = qobject_cast<QAbstractButton*>(&w);
  const bool wraps = button && !caption.contains(QLatin1Char('\n'));
  for (const QString& t :
       {caption, wraps ? wrapped(*button, caption, face) : caption, caption.trimmed()})
    if (fits(w, t, face)) return put(w, t, face);
  QFont smaller = face;
  for (double size = face.pointSizeF() - 0.25; size >= face.pointSizeF() * kSmallest;
       size -= 0.25) {
    smaller.setPointSizeF(size);
    for (const QString& t :
         {caption.trimmed(), wraps ? wrapped(*button, caption, smaller) : caption.trimmed()})
      if (fits(w, t, smaller)) return put(w, t, smaller);
  }
  put(w, caption, face);
}

std::vector<Unfit> unfitTexts(const FormWindow& window) {
  std::vector<Unfit> out;
  const Form* form = window.form();
  if (!form) return out;
  for (const auto& c : form->controls()) {
    const QWidget* w = window.widget(*c);
    if (!w || !w->isVisibleTo(&window)) continue;
    if (auto* t = qobject_cast<const QTableWidget*>(w))
      grid(*t, c->path(), out);
    else if (const QString text = shown(*w); !text.isEmpty())
      measure(*w, text, w->font(), Check{out, c->path()});
  }
  return out;
}

}  // namespace tessaron::view
