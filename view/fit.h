#pragma once
// Whether the words on a window fit the boxes they are drawn in: captions of
// buttons, labels, choices and frames, and the cells of grids, measured in
// the font each widget really uses.
#include <string>
#include <vector>

class QFont;
class QString;
class QWidget;

namespace tessaron::view {

class FormWindow;

struct Unfit {
  std::string control;  // FORM.NAME or FORM.NAME(INDEX), a cell as NAME[ROW,COL]
  std::string text;
  int need = 0;  // pixels the words take, across or down
  int room = 0;  // pixels the box gives them
};

// Puts a caption on a button, label, choice or frame so that it fits its box:
// as given when it does; a button's or choice's words broken at blanks over
// the lines its height has room for, as the platform's buttons wrap; and where the words
// still do not fit, outer blanks dropped and the face made smaller, down to
// three fifths of its size, rather than cut.
void fitCaption(QWidget& widget, const QString& caption, const QFont& face);

// Every text on the window's visible controls that its box cuts.
std::vector<Unfit> unfitTexts(const FormWindow& window);

}  // namespace tessaron::view
