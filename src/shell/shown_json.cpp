#include "shell/shown_json.h"

#include "core/json.h"
#include "core/money.h"
#include "shell/shown_fields.h"

namespace backbeat {

namespace {

template <class T>
const T& as(const void* value) {
  return *static_cast<const T*>(value);
}

/// Writes any word of a screen: walks its table and leaves out what stands on its default.
class ViewWriter {
 public:
  explicit ViewWriter(const Navigator& navigator) : navigator_(navigator) {}

  JsonWriter& json() { return json_; }

  /// The members of an object that is begun.
  void members(const ViewType& type, const void* owner) {
    for (const ViewField& field : type.fields) {
      const void* value = type.valueOf(field, owner);
      if (saysNothing(*field.type, value, field.standard)) continue;
      json_.key(field.name);
      write(*field.type, value);
    }
  }
  template <class T>
  void members(const T& owner) {
    members(viewType<T>, &owner);
  }

 private:
  void write(const ViewType& type, const void* value) {
    using enum ViewType::Kind;
    switch (type.kind) {
      case flag: json_.flag(as<bool>(value)); break;
      case integer: json_.number(as<int64_t>(value)); break;
      case real: json_.number(as<double>(value)); break;
      case text: json_.text(as<std::string>(value)); break;
      case name: json_.text(nameOf(type, value)); break;
      case price: writePrice(as<Price>(value)); break;
      case list: writeItems(type, value); break;
      case optional: write(*type.item, type.items(value).first); break;
      case record:
        json_.beginObject();
        members(type, value);
        json_.endObject();
        break;
      case block: writeBlock(as<Block>(value)); break;
    }
  }

  void writeItems(const ViewType& list, const void* value) {
    const ViewType::Items held = list.items(value);
    json_.beginArray();
    for (size_t i = 0; i < held.count; ++i) write(*list.item, list.itemAt(held, i));
    json_.endArray();
  }

  void writePrice(const Price& price) {
    json_.beginObject();
    if (price.energy != 0) json_.key("energy").number(price.energy);
    if (price.dollars != 0) json_.key("dollars").text(currency(price.dollars));
    json_.key("affordable").flag(navigator_.affordable(price));
    json_.endObject();
  }

  void writeBlock(const Block& block) {
    json_.beginObject();
    json_.key("kind").text(kindOf(block).name);
    members(*kindOf(block).type, contentOf(block));
    json_.endObject();
  }

  const Navigator& navigator_;
  JsonWriter json_;
};

template <class E>
std::string_view nameOf(E value) {
  return viewNames<E>[static_cast<size_t>(value)];
}

void writeTabs(JsonWriter& json, const Shown& shown) {
  json.key("tabs").beginArray();
  for (size_t i = 0; i < tabCount; ++i) {
    json.beginObject();
    json.key("label").text(tabs()[i].label);
    json.key("icon").text(tabs()[i].icon);
    json.key("badge").text(shown.badges[i]);
    json.endObject();
  }
  json.endArray();
  json.key("tab").number(static_cast<int64_t>(shown.tab));
}

void writeAlert(JsonWriter& json, const std::optional<Shown::ShownAlert>& shown) {
  json.key("alert");
  if (!shown) {
    json.null();
    return;
  }
  json.beginObject();
  json.key("key").number(shown->key);
  json.key("title").text(shown->alert.title);
  json.key("message").text(shown->alert.message);
  json.key("buttons").beginArray();
  for (const AlertButton& button : shown->alert.buttons) {
    json.beginObject();
    json.key("label").text(button.label);
    json.key("style").text(nameOf(button.style));
    json.endObject();
  }
  json.endArray();
  json.endObject();
}

void writeView(ViewWriter& writer, std::string_view screen, int64_t key, const View& view) {
  JsonWriter& json = writer.json();
  json.beginObject();
  json.key("screen").text(screen);
  json.key("key").number(key);
  writer.members(view);
  json.endObject();
}

}  // namespace

std::string shownAsJson(const Navigator& navigator, const Shown& shown) {
  ViewWriter writer(navigator);
  JsonWriter& json = writer.json();
  json.beginObject();
  json.key("header").beginObject();
  writer.members(shown.header);
  json.endObject();
  writeTabs(json, shown);
  json.key("stack").beginArray();
  for (const int64_t key : shown.stack) json.number(key);
  json.endArray();
  json.key("modal").flag(shown.modal);
  json.key("endWeek").flag(shown.endWeek);
  json.key("appearance").text(shown.appearance);
  json.key("feedback").text(nameOf(shown.feedback));
  writeAlert(json, shown.alert);
  json.key("notice").text(shown.notice);
  json.key("request").text(nameOf(shown.request.kind));
  if (!shown.request.snapshot.empty()) json.key("snapshot").text(shown.request.snapshot);
  if (!shown.request.product.empty()) json.key("product").text(shown.request.product);
  if (!shown.request.text.empty()) json.key("text").text(shown.request.text);
  json.key("view");
  writeView(writer, shown.screen, shown.key, shown.view);
  if (const auto& beside = shown.beside) {
    json.key("beside");
    writeView(writer, beside->screen, beside->key, beside->view);
  }
  json.endObject();
  return json.str();
}

std::string screenAsJson(const Navigator& navigator, const OtherScreen& other) {
  ViewWriter writer(navigator);
  writeView(writer, other.screen, other.key, other.view);
  return writer.json().str();
}

}  // namespace backbeat
