#include "shell/native/line_input.h"

#include <histedit.h>

#include <clocale>
#include <cstdio>
#include <istream>
#include <memory>

namespace backbeat {

namespace {

constexpr int linesRemembered = 200;

/// The editor's own way is bytes of the locale; names and Chirps need one that knows UTF-8.
void speakUtf8() {
  if (!std::setlocale(LC_CTYPE, "") || MB_CUR_MAX < 4) std::setlocale(LC_CTYPE, "C.UTF-8");
}

class TerminalLines {
 public:
  TerminalLines() : history_(history_init()) {
    speakUtf8();
    editor_ = el_init("backbeat", stdin, stdout, stderr);
    HistEvent event;
    history(history_, &event, H_SETSIZE, linesRemembered);
    el_set(editor_, EL_CLIENTDATA, this);
    el_set(editor_, EL_PROMPT, promptOf);
    el_set(editor_, EL_HIST, history, history_);
    el_set(editor_, EL_EDITOR, "emacs");
    el_set(editor_, EL_SIGNAL, 1);  // the terminal is given back as it was, also after an interruption
    el_source(editor_, nullptr);
  }
  ~TerminalLines() {
    el_end(editor_);
    history_end(history_);
  }
  TerminalLines(const TerminalLines&) = delete;
  TerminalLines& operator=(const TerminalLines&) = delete;

  std::optional<std::string> next(const std::string& prompt) {
    prompt_ = prompt;
    int count = 0;
    const char* typed = el_gets(editor_, &count);
    if (!typed || count <= 0) return std::nullopt;
    std::string line = typed;
    while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
    HistEvent event;
    if (!line.empty()) history(history_, &event, H_ENTER, line.c_str());
    return line;
  }

 private:
  static char* promptOf(EditLine* editor) {
    TerminalLines* lines = nullptr;
    el_get(editor, EL_CLIENTDATA, &lines);
    return lines->prompt_.data();
  }

  History* history_;
  EditLine* editor_;
  std::string prompt_;
};

}  // namespace

LineInput linesFrom(std::istream& in) {
  return [&in](const std::string&) -> std::optional<std::string> {
    std::string line;
    if (!std::getline(in, line)) return std::nullopt;
    if (line.ends_with('\r')) line.pop_back();
    return line;
  };
}

LineInput linesFromTerminal() {
  return [lines = std::make_shared<TerminalLines>()](const std::string& prompt) { return lines->next(prompt); };
}

}  // namespace backbeat
