#pragma once
// Plays scripts of user actions against the running forms and prints what the
// user would see. One Runner holds one session: several script files run one
// after the other against the same forms.
#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tools/player.h"
#include "tools/script_host.h"
#include "tools/script_parser.h"

namespace tessaron::script {

class Runner {
 public:
  // `registerForms` registers every form the scripts may name; it is also
  // used on a private, silent application that tells the names of a form's
  // controls without loading the form the script plays against.
  Runner(Application& app, Player& player, ScriptHost& host, std::ostream& out,
         std::function<void(Application&)> registerForms);
  ~Runner();

  // Plays one script; false once the run has to stop (a script error or a
  // run-time failure).
  bool play(std::istream& in);
  // 0 all went as scripted, 1 an expect failed, 2 a script error, 3 a
  // run-time failure ended the application.
  int status() const;

 private:
  struct Target {
    Form* form = nullptr;        // loaded, or nullptr
    Control* control = nullptr;  // on the loaded form
    std::string name;            // the control's name and index
    int index = -1;
  };
  using Args = std::vector<Token>;

  void execute(const Args& tokens);
  void show(const Args& a);
  void resize(const Args& a);
  void unload(const Args& a);
  void click(const Args& a, bool twice);
  void press(const Args& a);
  void keydown(const Args& a);
  void focus(const Args& a);
  void type(const Args& a);
  void scroll(const Args& a);
  void cell(const Args& a);
  void tick(const Args& a);
  void get(const Args& a);
  void expect(const Args& a);
  void dump(const Args& a);
  void snapshot(const Args& a);

  // The form a reference names: loaded or not, its name is checked.
  Form* formOf(const Reference& ref);
  // A control reference (FORM.NAME or FORM.NAME(INDEX)); with `load`, a form
  // that is not loaded is loaded first, as code naming it would.
  Target control(const Reference& ref, bool load);
  // A form whose controls can be looked up: the loaded one or a silent copy.
  const Form& design(const std::string& form);
  bool load(const std::string& form);
  // The value that `get` prints for PROPERTY, or the clipboard.
  // nullopt when loading the form ended the application.
  std::optional<std::string> read(const Token& token);
  // A user can reach the target: else `ignored REF` is printed.
  bool reachable(const Target& t, const Reference& ref);
  bool reachable(Form* form, const Reference& ref);

  struct Probe;
  Application& app_;
  Player& player_;
  ScriptHost& host_;
  std::ostream& out_;
  std::function<void(Application&)> registerForms_;
  std::unique_ptr<Probe> probe_;
  int line_ = 0;
  bool expectFailed_ = false;
  bool scriptError_ = false;
};

}  // namespace tessaron::script
