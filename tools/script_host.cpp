#include "tools/script_host.h"

#include "surface/printer.h"
#include "tools/script_text.h"

namespace tessaron::script {

namespace {
constexpr int kYesNo = 4;
constexpr int kYes = 6;
constexpr int kOk = 1;

int nextReply(std::deque<int>& replies) {
  if (replies.empty()) return kYes;
  const int answer = replies.front();
  replies.pop_front();
  return answer;
}
}  // namespace

int ScriptHost::messageBox(const std::string& text, int flags, const std::string& title) {
  // Only a Yes/No box takes a scripted reply; an OK box has one answer.
  const int answer = flags == kYesNo ? nextReply(replies_) : kOk;
  out_ << "msgbox " << flags << ' ' << quoted(title) << ' ' << quoted(text) << " -> " << answer
       << '\n';
  return answer;
}

std::string ScriptHost::inputBox(const std::string& prompt) {
  std::string text;
  if (!inputs_.empty()) {
    text = std::move(inputs_.front());
    inputs_.pop_front();
  }
  out_ << "inputbox " << quoted(prompt) << " -> " << quoted(text) << '\n';
  return text;
}

void ScriptHost::beep() { out_ << "beep\n"; }

void ScriptHost::printed(const PrintJob& job) {
  out_ << "printout begin\n";
  int n = 0;
  for (const PrintedPage& page : job.pages) {
    out_ << "page " << ++n << '\n';
    for (const std::string& line : page.lines) out_ << "| " << line << '\n';
  }
  out_ << "printout end\n";
  if (alsoPrint) alsoPrint(job);
}

void ScriptHost::fatal(const std::string& words) {
  failed_ = true;
  out_ << "fatal " << quoted(words) << '\n';
}

void ScriptHost::ended() { out_ << "ended\n"; }

}  // namespace tessaron::script
