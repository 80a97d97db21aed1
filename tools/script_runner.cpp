#include "tools/script_runner.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace tessaron::script {

struct Runner::Probe {
  QuietHost host;
  Application app{host};
};

Runner::Runner(Application& app, Player& player, ScriptHost& host, std::ostream& out,
               std::function<void(Application&)> registerForms)
    : app_(app),
      player_(player),
      host_(host),
      out_(out),
      registerForms_(std::move(registerForms)) {}

Runner::~Runner() = default;

int Runner::status() const {
  if (host_.failed() || app_.failed()) return 3;
  if (scriptError_) return 2;
  return expectFailed_ ? 1 : 0;
}

bool Runner::play(std::istream& in) {
  line_ = 0;
  std::string text;
  while (std::getline(in, text)) {
    ++line_;
    // An editor may start a UTF-8 file with a byte order mark.
    if (line_ == 1 && text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
    try {
      const std::vector<Token> tokens = tokenize(text);
      if (!tokens.empty()) execute(tokens);
    } catch (const ScriptError& e) {
      out_ << "error " << line_ << ": " << e.what() << '\n';
      scriptError_ = true;
      return false;
    }
    if (host_.failed() || app_.failed()) return false;
  }
  return true;
}

void Runner::execute(const Args& tokens) {
  using Command = void (Runner::*)(const Args&);
  static const std::map<std::string, std::pair<Command, std::pair<size_t, size_t>>> commands = {
      {"show", {&Runner::show, {1, 1}}},       {"resize", {&Runner::resize, {2, 3}}},
      {"unload", {&Runner::unload, {1, 1}}},   {"press", {&Runner::press, {2, 2}}},
      {"keydown", {&Runner::keydown, {2, 3}}}, {"focus", {&Runner::focus, {1, 1}}},
      {"type", {&Runner::type, {2, 2}}},       {"scroll", {&Runner::scroll, {2, 2}}},
      {"cell", {&Runner::cell, {3, 3}}},       {"tick", {&Runner::tick, {1, 2}}},
      {"get", {&Runner::get, {1, 1}}},         {"expect", {&Runner::expect, {2, 2}}},
      {"dump", {&Runner::dump, {1, 1}}},       {"snapshot", {&Runner::snapshot, {2, 2}}},
  };
  const Token& word = tokens.front();
  const Args args(tokens.begin() + 1, tokens.end());
  const auto arity = [&](size_t lo, size_t hi) {
    if (args.size() < lo || args.size() > hi)
      throw ScriptError(
          word.text + ": " +
          (lo == hi ? std::to_string(lo) : std::to_string(lo) + " to " + std::to_string(hi)) +
          " argument" + (hi == 1 ? "" : "s") + " expected");
  };
  if (word.quoted) throw ScriptError("command expected, not text");
  if (word.text == "click" || word.text == "dblclick") {
    arity(1, 1);
    click(args, word.text == "dblclick");
    return;
  }
  if (word.text == "reply") {
    arity(1, 1);
    const int answer = parseInt(args[0], "answer");
    // A Yes/No box has only these two answers.
    if (answer != 6 && answer != 7)
      throw ScriptError("reply: 6 or 7 expected, not " + args[0].text);
    host_.queueReply(answer);
    return;
  }
  if (word.text == "input" || word.text == "clipboard") {
    arity(1, 1);
    if (!args[0].quoted) throw ScriptError(word.text + ": text in quotes expected");
    if (word.text == "input")
      host_.queueInput(args[0].text);
    else
      host_.setClipboardText(args[0].text);
    return;
  }
  const auto it = commands.find(word.text);
  if (it == commands.end()) throw ScriptError("unknown command " + word.text);
  arity(it->second.second.first, it->second.second.second);
  (this->*it->second.first)(args);
}

Form* Runner::formOf(const Reference& ref) {
  if (!app_.knows(ref.form)) throw ScriptError("unknown form " + ref.form);
  return app_.loaded(ref.form);
}

const Form& Runner::design(const std::string& form) {
  if (const Form* f = app_.loaded(form)) return *f;
  if (!probe_) {
    probe_ = std::make_unique<Probe>();
    registerForms_(probe_->app);
  }
  if (!probe_->app.loaded(form)) {
    try {
      probe_->app.form(form);
    } catch (const std::exception&) {
      // Load failed on the silent copy; its controls were built all the same.
    }
  }
  const Form* f = probe_->app.loaded(form);
  if (!f) throw ScriptError("cannot inspect form " + form);
  return *f;
}

bool Runner::load(const std::string& form) {
  if (!app_.loaded(form)) app_.run([&] { app_.form(form); });
  return app_.loaded(form) != nullptr;
}

Runner::Target Runner::control(const Reference& ref, bool loadForm) {
  formOf(ref);
  if (ref.parts.size() != 1) throw ScriptError("control expected: " + ref.text);
  const Part& part = ref.parts.front();
  if (part.hasArgs && part.args.size() != 1) throw ScriptError("bad index in " + ref.text);
  Target t;
  t.name = part.name;
  t.index = part.hasArgs ? part.args.front() : -1;
  const Form& d = design(ref.form);
  if (!d.find(t.name, t.index)) {
    const bool named = std::any_of(d.controls().begin(), d.controls().end(),
                                   [&](const auto& c) { return c->name() == t.name; });
    throw ScriptError(std::string(named ? "no member " : "unknown control ") + ref.form + "." +
                      part.name +
                      (t.index >= 0 ? "(" + std::to_string(t.index) + ")" : std::string()));
  }
  if (loadForm) load(ref.form);
  t.form = app_.loaded(ref.form);
  if (t.form) t.control = t.form->find(t.name, t.index);
  return t;
}

bool Runner::reachable(const Target& t, const Reference& ref) {
  if (t.control && t.control->usable()) return true;
  out_ << "ignored " << ref.text << '\n';
  return false;
}

bool Runner::reachable(Form* form, const Reference& ref) {
  if (form && form->Visible() && !form->unloading()) return true;
  out_ << "ignored " << ref.text << '\n';
  return false;
}

}  // namespace tessaron::script
