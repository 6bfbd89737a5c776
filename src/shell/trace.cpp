#include "shell/trace.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace backbeat {

namespace {

constexpr const char* foreignCareerLine = "another career";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

std::string escaped(std::string_view text) {
  if (text.empty()) return "%";
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > ' ' && byte != '%' && byte != 0x7F) {
      result += c;
    } else {
      result += '%';
      result += hexDigits[byte >> 4];
      result += hexDigits[byte & 15];
    }
  }
  return result;
}

template <class Number>
std::optional<Number> numberFrom(std::string_view text, int base = 10) {
  Number number = 0;
  const char* end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || last != end) return std::nullopt;
  return number;
}

std::optional<std::string> unescaped(std::string_view text) {
  if (text == "%") return std::string();
  std::string result;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      result += text[i];
      continue;
    }
    const auto byte = numberFrom<unsigned char>(text.substr(i + 1, 2), 16);
    if (!byte || text.size() < i + 3) return std::nullopt;
    result += static_cast<char>(*byte);
    i += 2;
  }
  return result;
}

std::vector<std::string_view> words(std::string_view line) {
  std::vector<std::string_view> result;
  for (size_t begin = 0; begin <= line.size();) {
    const size_t end = std::min(line.find(' ', begin), line.size());
    result.push_back(line.substr(begin, end - begin));
    begin = end + 1;
  }
  return result;
}

constexpr std::array<std::string_view, 3> resultWords = {"done", "refused", "failed"};

std::optional<TraceEvent> purchaseFrom(const std::vector<std::string_view>& parts) {
  const auto time = numberFrom<int64_t>(parts[1]);
  const auto result = purchaseResultFrom(parts[2]);
  auto product = unescaped(parts[3]);
  auto transaction = unescaped(parts[4]);
  const bool free = parts[5] == "free";
  if (!time || !result || !product || !transaction || (!free && parts[5] != "paid")) return std::nullopt;
  return purchaseEvent(*time, {*result, std::move(*product), std::move(*transaction), free});
}

std::optional<TraceEvent> eventFrom(std::string_view line) {
  const std::vector<std::string_view> parts = words(line);
  if (parts[0] == "launch" && parts.size() == 3) {
    const auto seed = numberFrom<uint64_t>(parts[1]);
    const auto time = numberFrom<int64_t>(parts[2]);
    if (seed && time) return launchEvent(*time, *seed);
  }
  if (parts[0] == "purchase" && parts.size() == 6) return purchaseFrom(parts);
  if (parts[0] == "act" && parts.size() == 5) {
    const auto time = numberFrom<int64_t>(parts[1]);
    auto screenKey = unescaped(parts[2]);
    auto id = unescaped(parts[3]);
    auto value = unescaped(parts[4]);
    if (time && screenKey && id && value) {
      return actEvent(*time, std::move(*screenKey), {std::move(*id), std::move(*value)});
    }
  }
  return std::nullopt;
}

}  // namespace

TraceEvent launchEvent(int64_t unixMilliseconds, uint64_t seed) {
  TraceEvent event;
  event.kind = TraceEvent::Kind::launch;
  event.unixMilliseconds = unixMilliseconds;
  event.seed = seed;
  return event;
}

TraceEvent actEvent(int64_t unixMilliseconds, std::string screenKey, Action action) {
  TraceEvent event;
  event.unixMilliseconds = unixMilliseconds;
  event.screenKey = std::move(screenKey);
  event.action = std::move(action);
  return event;
}

TraceEvent purchaseEvent(int64_t unixMilliseconds, PurchaseAnswer answer) {
  TraceEvent event;
  event.kind = TraceEvent::Kind::purchase;
  event.unixMilliseconds = unixMilliseconds;
  event.purchase = std::move(answer);
  return event;
}

std::string_view wordOf(PurchaseAnswer::Result result) { return resultWords[static_cast<size_t>(result)]; }

std::optional<PurchaseAnswer::Result> purchaseResultFrom(std::string_view word) {
  const auto found = std::find(resultWords.begin(), resultWords.end(), word);
  if (found == resultWords.end()) return std::nullopt;
  return static_cast<PurchaseAnswer::Result>(found - resultWords.begin());
}

std::string traceLine(const TraceEvent& event) {
  const std::string time = std::to_string(event.unixMilliseconds);
  if (event.kind == TraceEvent::Kind::launch) return "launch " + std::to_string(event.seed) + " " + time;
  if (event.kind == TraceEvent::Kind::purchase) {
    const PurchaseAnswer& answer = event.purchase;
    return "purchase " + time + " " + std::string(wordOf(answer.result)) + " " + escaped(answer.product) + " " +
           escaped(answer.transaction) + (answer.free ? " free" : " paid");
  }
  return "act " + time + " " + escaped(event.screenKey) + " " + escaped(event.action.id) + " " +
         escaped(event.action.value);
}

Trace readTrace(std::string_view text) {
  Trace trace;
  const auto refuse = [](int64_t number, const std::string& why) {
    return Trace{{}, "line " + std::to_string(number) + ": " + why};
  };
  for (int64_t number = 1; !text.empty(); ++number) {
    const size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty()) continue;
    if (line == foreignCareerLine) return refuse(number, "it goes on with a career that the trace does not hold");
    auto event = eventFrom(line);
    if (!event) return refuse(number, "this is neither a launch nor a press nor a shop's answer");
    if (trace.events.empty() && event->kind != TraceEvent::Kind::launch) {
      return refuse(number, "something happens before the first launch");
    }
    trace.events.push_back(std::move(*event));
  }
  if (trace.events.empty()) return refuse(1, "there is no launch");
  return trace;
}

std::string hashText(uint64_t hash) {
  std::string text(16, '0');
  for (size_t i = 16; i-- > 0; hash >>= 4) {
    const uint64_t digit = hash & 15;
    text[i] = static_cast<char>(digit < 10 ? '0' + digit : 'a' + digit - 10);
  }
  return text;
}

TraceRecorder::TraceRecorder(Store& store, Platform& platform, std::function<void(const std::string&)> record)
    : store_(store), platform_(platform), record_(std::move(record)) {}

void TraceRecorder::noteForeignCareer() {
  if (record_) record_(foreignCareerLine);
}

void TraceRecorder::play(const TraceEvent& event) {
  if (record_) record_(traceLine(event));
  const Date time{static_cast<double>(event.unixMilliseconds) / 1000};
  if (event.kind == TraceEvent::Kind::launch) {
    session_.reset();
    session_ = std::make_unique<Session>(store_, platform_, event.seed, time);
  } else if (session_ && event.kind == TraceEvent::Kind::purchase) {
    session_->takePurchase(time, event.purchase);
  } else if (session_) {
    session_->press(time, event.screenKey, event.action);
  }
}

}  // namespace backbeat
