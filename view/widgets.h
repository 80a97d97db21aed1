#pragma once
// The few widgets Qt lacks for the form surface: artwork, the line shape, the
// picture box painting its display list, the help icon, and choice buttons
// whose checked state only the model changes.
#include <QCheckBox>
#include <QFrame>
#include <QRadioButton>
#include <QWidget>
#include <string>

namespace tessaron {
class Control;
}

namespace tessaron::view {

class ArtView : public QWidget {
 public:
  explicit ArtView(QWidget* parent) : QWidget(parent) {}
  void setPicture(const std::string& name);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  std::string picture_;
};

// A line from one point to another, in pixels of the widget.
class LineView : public QWidget {
 public:
  explicit LineView(QWidget* parent);
  void setLine(QPointF from, QPointF to, QColor colour, int width);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QPointF from_, to_;
  QColor colour_;
  int width_ = 1;
};

class CanvasView : public QFrame {
 public:
  CanvasView(QWidget* parent, const Control* control);
  void detach() { control_ = nullptr; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  const Control* control_;
};

// The embedded help page: a small icon that opens it on a double click.
class HelpIcon : public QWidget {
 public:
  explicit HelpIcon(QWidget* parent) : QWidget(parent) {}
  void setPicture(const std::string& name) { picture_ = name; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  std::string picture_;
};

class ChoiceButton : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void nextCheckState() override {}
};

class ChoiceBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

}  // namespace tessaron::view
