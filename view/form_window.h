#pragma once
// One form's real window: a widget for every row of the design table, kept in
// step with the model by sync(), and every user input passed to the
// Application as a user action, so that no widget changes itself behind the
// model's back.
#include <QHash>
#include <QImage>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

class QTableWidget;

namespace tessaron {
class Form;
class Control;
class Grid;
}  // namespace tessaron

namespace tessaron::view {

class QtView;

class FormWindow : public QWidget {
 public:
  FormWindow(QtView& view, Form& form);
  ~FormWindow() override;

  // Nullptr once the form is unloading.
  Form* form() const { return form_; }
  // The form is going: the window stops speaking to the model.
  void detach();
  // Brings every widget in step with the model, touching only what changed.
  void sync();
  QWidget* widget(const Control& control) const;
  // The client area, in pixels, that the form's outer size in twips leaves.
  QSize clientSize() const;

  // A timer's tick; while an event runs it waits for the event's end.
  void tick(Control& timer);
  // Runs the ticks that waited; false when some still wait.
  bool runWaitingTicks();
  // The user drags the window's edge to this outer size in twips.
  void userResize(int width, int height);
  // The window as the user sees it, frame and title included, sized as the
  // form's Width and Height say.
  QImage snapshot();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  struct Item;
  void build();
  QWidget* create(Item& item);
  void syncForm();
  void syncItem(Item& item);
  // Brings a text box's text in step; true when a caption changed.
  bool syncText(Item& item);
  void syncGrid(Item& item);
  static void addGridRows(QTableWidget& table, const Grid& g);
  void syncTimer(Item& item);
  void key(Item* item, QKeyEvent* event);
  void clicked(Item& item);
  void scrolled(Item& item, int value);
  Item* itemOf(QObject* object) const;

  QtView& view_;
  Form* form_;
  std::vector<std::unique_ptr<Item>> items_;
  QHash<QObject*, Item*> byObject_;
  std::string caption_;
  QSize size_;
  QPoint position_{-1, -1};
  long back_ = -2;
  bool applying_ = false;
};

}  // namespace tessaron::view
