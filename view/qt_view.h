#pragma once
// The one view of every form: a real window for each shown form, kept in step
// with the model after every event. The model's keyboard focus is the truth;
// the view shows it and passes on only the focus moves the user makes.
#include <QObject>
#include <QPointer>
#include <map>
#include <memory>
#include <string>

#include "surface/host.h"

#include <QTextBrowser>

namespace tessaron {
class Application;
}

namespace tessaron::view {

class FormWindow;

class QtView : public Observer {
 public:
  // liveTimers false leaves the timers still, for a driver that ticks them.
  explicit QtView(Application& app, bool liveTimers = true);
  ~QtView() override;
  QtView(const QtView&) = delete;
  QtView& operator=(const QtView&) = delete;

  void formShown(Form& form) override;
  void formUnloading(Form& form) override;
  void refresh() override;

  Application& app() const { return app_; }
  FormWindow* window(const Form& form) const;
  bool liveTimers() const { return liveTimers_; }
  bool applyingFocus() const { return applyingFocus_; }
  // Opens an embedded help page (":/help/NAME.html") in the help window.
  void showHelp(const std::string& page);
  QTextBrowser* helpWindow() const { return help_; }
  // A timer ticked while an event ran; its tick runs once the event ends.
  void tickWaiting();

 private:
  void showFocus();
  void runWaitingTicks();

  Application& app_;
  bool liveTimers_;
  std::map<const Form*, QPointer<FormWindow>> windows_;
  std::unique_ptr<QObject> context_;
  QPointer<QTextBrowser> help_;
  bool applyingFocus_ = false;
  bool ticksWaiting_ = false;
};

}  // namespace tessaron::view
