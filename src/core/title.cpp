#include "core/title.h"

namespace backbeat {

std::string TitleEntry::name() const { return *about_ ? std::string(text_) + " (" + about_ + ")" : std::string(text_); }

AlertTitle Title::with(std::string_view inserted) const {
  std::string words(text());
  const size_t star = words.find('*');
  if (star != std::string::npos) words.replace(star, 1, inserted);
  return {*this, std::move(words)};
}

}  // namespace backbeat
