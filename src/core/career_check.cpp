#include "core/career_check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <type_traits>

#include "core/numbers.h"
#include "core/sorting.h"
#include "core/text.h"

namespace backbeat {

namespace {

struct NamedBounds {
  std::string_view key;
  Bounds bounds;
};

// Whole numbers stay exact in a double up to 2^53, about 9e15.
constexpr Bounds anyWhole = {-1e12, 1e12};
constexpr Bounds anyReal = {-1e15, 1e15};

/// What is closer drawn than the rest. A calendar of a hundred thousand years is enough for any dynasty.
constexpr NamedBounds boundsOfScalars[] = {
    {"weekNumber", {1, 52}},
    {"yearNumber", {2023, 100'000}},
    {"weekNumberForTracking", {1, 5'200'000}},
    {"totalCashAvailable", {-1e18, 1e18}},
    {"totalEnergyAvailable", {-1e9, 1e9}},
    {"totalEnergyMax", {-1e9, 1e9}},
    {"permanentEnergyUpgrade", {0, 1e6}},
    {"totalFans", {0, 1e11}},
    {"merchWebsiteTransactionFee", {-1e3, 1e3}},
};

constexpr NamedBounds boundsOfFields[] = {
    {"year", {0, 100'000}},
    {"yearNumber", {0, 100'000}},
    {"releaseYear", {0, 100'000}},
    {"yearDebut", {0, 100'000}},
    {"yearCurrent", {0, 100'000}},
    {"weekNumber", {0, 5'200'000}},
    {"releaseWeek", {0, 5'200'000}},
    {"weekForTracking", {0, 5'200'000}},
    {"productionRating", {-1e4, 1e4}},
    {"viralityScore", {-300, 300}},
    {"marketingScore", {-1e4, 1e4}},
    {"viewBonus", {-100, 100}},
    {"streamPayRate", {-1e3, 1e3}},
    {"percentageOfEarnings", {-1e3, 1e3}},
    {"labelPercentageRate", {-1e3, 1e3}},
    {"labelStreamingRate", {-1e3, 1e3}},
    {"ticketPrice", {-1e8, 1e8}},
    {"seatsSold", {-1e10, 1e10}},
    {"seatCapacity", {-1e10, 1e10}},
    {"popularity", {-1e3, 1e3}},
    {"pricePerUnit", {-1e6, 1e6}},
    {"totalCostPerUnit", {-1e6, 1e6}},
    {"transactionFees", {-1e3, 1e3}},
    {"startingInventory", {-1e9, 1e9}},
    {"remainingInventory", {-1e9, 1e9}},
    {"followers", {0, 1e11}},  // of a child, who may become the artist
    {"totalEnergyMax", {-1e8, 1e8}},
    {"netWorth", {-9e15, 9e15}},
    {"figures", {-1e18, 1e18}},  // cash among them
};

template <size_t count>
Bounds boundsIn(const NamedBounds (&table)[count], std::string_view key, bool isWhole) {
  const auto found =
      std::find_if(std::begin(table), std::end(table), [&](const NamedBounds& each) { return each.key == key; });
  if (found != std::end(table)) return found->bounds;
  return isWhole ? anyWhole : anyReal;
}

/// One number of a record, wherever in it: its field and bounds.
struct Number {
  std::string_view key;
  size_t offset = 0;
  bool isWhole = false;
  Bounds bounds;

  double in(const void* record) const {
    const char* at = static_cast<const char*>(record) + offset;
    return isWhole ? static_cast<double>(*reinterpret_cast<const int64_t*>(at)) : *reinterpret_cast<const double*>(at);
  }
  void put(void* record, double value) const {
    char* at = static_cast<char*>(record) + offset;
    if (isWhole) {
      *reinterpret_cast<int64_t*>(at) = static_cast<int64_t>(value);
    } else {
      *reinterpret_cast<double*>(at) = value;
    }
  }
};

/// The number of that type which a field, or each item of its list, holds; nothing for another type.
std::optional<Number> numberOf(const ValueType& type, std::string_view key, size_t offset) {
  using Kind = ValueType::Kind;
  const bool isWhole = type.kind == Kind::integer;
  if (!isWhole && type.kind != Kind::real && type.kind != Kind::date) return std::nullopt;
  return Number{key, offset, isWhole, boundsOfField(key, isWhole)};
}

constexpr const char* holdsANul = " holds a character that is none (NUL)";

double nearest(const Bounds& bounds, double value) {
  return std::clamp(std::isnan(value) ? 0.0 : value, bounds.least, bounds.most);
}

bool holdsNul(const ValueType& type, const void* value) {
  switch (type.kind) {
    case ValueType::Kind::text: return static_cast<const std::string*>(value)->find('\0') != std::string::npos;
    case ValueType::Kind::list: {
      if (type.item->kind != ValueType::Kind::text) return false;
      const auto& texts = *static_cast<const std::vector<std::string>*>(value);
      return std::any_of(texts.begin(), texts.end(),
                         [&](const std::string& each) { return holdsNul(*type.item, &each); });
    }
    case ValueType::Kind::texts: {
      const auto& texts = *static_cast<const std::map<std::string, std::string>*>(value);
      return std::any_of(texts.begin(), texts.end(), [](const auto& each) {
        return each.first.find('\0') != std::string::npos || each.second.find('\0') != std::string::npos;
      });
    }
    default: return false;
  }
}

/// What is looked at in each record of a type: its numbers, its texts, and in the same way its lists of records and of
/// numbers, of which each is looked at as a record that holds nothing else.
struct Shape {
  struct Inner;

  explicit Shape(const ValueType& record);
  explicit Shape(const Number& only);

  std::vector<Number> numbers;
  std::vector<FieldType> texts;
  std::vector<Inner> lists;
};

struct Shape::Inner {
  FieldType field;
  Shape shape;
};

Shape::Shape(const Number& only) : numbers{only} {}

Shape::Shape(const ValueType& record) {
  using Kind = ValueType::Kind;
  for (const FieldType& field : record.fields) {
    const bool isList = field.type.kind == Kind::list;
    const ValueType& each = isList ? *field.type.item : field.type;
    if (each.kind == Kind::text) texts.push_back(field);
    if (isList && each.kind == Kind::record) lists.push_back({field, Shape(each)});
    if (const auto number = numberOf(each, field.key, isList ? 0 : field.offset)) {
      if (isList) lists.push_back({field, Shape(*number)});
      if (!isList) numbers.push_back(*number);
    }
  }
}

using Records = std::vector<const void*>;

/// The items of a list of records, a vector of type `list`.
Records itemsOf(const ValueType& list, const void* from) {
  Records records(list.count(from));
  const auto* first = static_cast<const char*>(list.items(from));
  for (size_t i = 0; i < records.size(); ++i) records[i] = first + i * list.item->size;
  return records;
}

const void* memberOf(const void* record, const FieldType& field) {
  return static_cast<const char*>(record) + field.offset;
}

/// Calls `visit` with each number that is out of its bounds, the record that holds it, and which of `records` that is
/// or is inside of.
void forEachUnbearable(const Shape& shape, const Records& records,
                       const std::function<void(const Number&, const void*, size_t)>& visit) {
  for (size_t i = 0; i < records.size(); ++i) {
    for (const Number& number : shape.numbers) {
      if (!number.bounds.hold(number.in(records[i]))) visit(number, records[i], i);
    }
    for (const auto& [field, inner] : shape.lists) {
      forEachUnbearable(inner, itemsOf(field.type, memberOf(records[i], field)),
                        [&](const Number& number, const void* where, size_t) { visit(number, where, i); });
    }
  }
}

/// Calls `visit` with the key of each text that holds a NUL, and which of `records` holds it.
void forEachNul(const Shape& shape, const Records& records,
                const std::function<void(std::string_view, size_t)>& visit) {
  for (size_t i = 0; i < records.size(); ++i) {
    for (const FieldType& field : shape.texts) {
      if (holdsNul(field.type, memberOf(records[i], field))) visit(field.key, i);
    }
    for (const auto& [field, inner] : shape.lists) {
      forEachNul(inner, itemsOf(field.type, memberOf(records[i], field)),
                 [&](std::string_view key, size_t) { visit(key, i); });
    }
  }
}

std::string readable(double value) {
  if (std::isnan(value)) return "not a number";
  if (std::trunc(value) == value && std::abs(value) < 1e15) return std::to_string(static_cast<int64_t>(value));
  return std::isinf(value) ? (value > 0 ? "endless" : "-endless") : std::to_string(value);
}

template <class T>
constexpr bool isNumber = std::is_same_v<T, int64_t> || std::is_same_v<T, double>;

/// Calls `visit(scalar, value&, bounds)` for each number among the scalars that is out of its bounds.
template <class State, class Visit>
void forEachUnbearableScalar(State& state, const Visit& visit) {
  for (const Scalar& scalar : scalars) {
    std::visit(
        [&](auto member) {
          using Value = std::remove_cvref_t<decltype(state.*member)>;
          if constexpr (isNumber<Value>) {
            const Bounds bounds = boundsOfScalar(scalar.key, std::is_same_v<Value, int64_t>);
            if (!bounds.hold(static_cast<double>(state.*member))) visit(scalar, state.*member, bounds);
          }
        },
        scalar.member);
  }
}

/// A list whose records have ids of their own, and the counter of those given out. Children and awards are not among
/// them: their counters begin anew with each launch.
template <class T>
struct Ids {
  const char* what;  ///< "songs"
  RecordList<T> GameState::*list;
  int64_t T::*id;
  int64_t GameState::*counter;
  int64_t firstOwn = 1;  ///< below it ids are shared: the built-in album of singles has 0
};

template <class T>
void reconcileIds(GameState& state, const Ids<T>& ids, Reconciled& found) {
  std::vector<int64_t> given;
  for (const T& record : state.*ids.list) {
    if (record.*ids.id < 0) found.refusal = std::string("One of the ") + ids.what + " has an id below 0.";
    if (record.*ids.id >= ids.firstOwn) given.push_back(record.*ids.id);
  }
  sortStably(given, std::less<>());
  const auto twice = std::adjacent_find(given.begin(), given.end());
  if (twice != given.end()) {
    found.refusal = std::string("Two of the ") + ids.what + " have the id " + std::to_string(*twice) + ".";
  }
  if (given.empty() || given.back() <= state.*ids.counter) return;
  state.*ids.counter = given.back();
  found.mended.push_back(std::string("The counter of the ") + ids.what + " stood behind them and was raised.");
}

/// An album in production holds the songs that are on it, and may count more: singles that were made when no other
/// album was there, songs that moved on to another one, songs lost to Optimize.
void countSongs(GameState& state, Reconciled& found) {
  std::map<int64_t, int64_t> songs;
  for (const Song& song : state.saveAllSongList) songs[song.albumId] += 1;
  constexpr size_t mostAlbumsNamed = 5;
  size_t recounted = 0;
  for (size_t i = 0; i < state.saveAllAlbumList.size(); ++i) {
    const Album& album = state.saveAllAlbumList[i];
    const int64_t counted = songs[album.albumId];
    if (album.isReleased || album.albumId == 0 || album.songCount >= counted) continue;
    if (++recounted <= mostAlbumsNamed) {
      found.mended.push_back("The songs on " + firstCharacters(album.title, 40) +
                             " were counted anew: " + std::to_string(counted) + ".");
    }
    state.saveAllAlbumList.update(i, [&](Album& changed) { changed.songCount = counted; });
  }
  if (recounted > mostAlbumsNamed) {
    found.mended.push_back("So were those on " + std::to_string(recounted - mostAlbumsNamed) + " more albums.");
  }
}

}  // namespace

Bounds boundsOfScalar(std::string_view key, bool isWhole) { return boundsIn(boundsOfScalars, key, isWhole); }
Bounds boundsOfField(std::string_view key, bool isWhole) { return boundsIn(boundsOfFields, key, isWhole); }

std::vector<std::string> unbearableValues(const GameState& state, size_t most) {
  std::vector<std::string> found;
  const auto tell = [&](std::string text) {
    if (found.size() < most) found.push_back(std::move(text));
  };
  forEachUnbearableScalar(state, [&](const Scalar& scalar, auto value, const Bounds&) {
    tell(std::string(scalar.key) + " is " + readable(static_cast<double>(value)));
  });
  for (const Scalar& scalar : scalars) {
    const auto nulIn = [&](auto member) {
      return holdsNul(typeOf<std::remove_cvref_t<decltype(state.*member)>>(), &(state.*member));
    };
    if (std::visit(nulIn, scalar.member)) tell(std::string(scalar.key) + holdsANul);
  }
  for (const auto& [key, list] : listsOf(state)) {
    const Shape shape(list.type());
    const Records records = list.records();
    const auto place = [name = std::string(key)](size_t i, std::string_view field) {
      return name + ", entry " + std::to_string(i + 1) + ": " + std::string(field);
    };
    forEachUnbearable(shape, records, [&](const Number& number, const void* at, size_t i) {
      tell(place(i, number.key) + " is " + readable(number.in(at)));
    });
    forEachNul(shape, records, [&](std::string_view field, size_t i) { tell(place(i, field) + holdsANul); });
  }
  return found;
}

size_t mendRecords(RecordBuffer& records) {
  const Shape shape(records.type());
  size_t mended = 0;
  const std::function<void(const Number&, const void*, size_t)> mend = [&](const Number& number, const void* at,
                                                                           size_t) {
    number.put(const_cast<void*>(at), nearest(number.bounds, number.in(at)));
    ++mended;
  };
  Records one(1);  // the places of a million would be felt
  for (size_t i = 0; i < records.size(); ++i) {
    one.front() = records.recordAt(i);
    forEachUnbearable(shape, one, mend);
  }
  return mended;
}

std::vector<std::string> mendScalars(GameState& state) {
  std::vector<std::string> keys;
  forEachUnbearableScalar(state, [&](const Scalar& scalar, auto& value, const Bounds& bounds) {
    value = static_cast<std::remove_cvref_t<decltype(value)>>(nearest(bounds, static_cast<double>(value)));
    keys.emplace_back(scalar.key);
  });
  return keys;
}

Reconciled reconcile(GameState& state) {
  Reconciled found;
  const auto check = [&](const auto&... ids) { (reconcileIds(state, ids, found), ...); };
  check(Ids<Song>{"songs", &GameState::saveAllSongList, &Song::songId, &GameState::songId},
        Ids<Album>{"albums", &GameState::saveAllAlbumList, &Album::albumId, &GameState::albumId},
        Ids<MusicVideo>{"videos", &GameState::saveAllMusicVideoList, &MusicVideo::videoId, &GameState::musicVideoId},
        Ids<FeaturedOn>{"verses", &GameState::saveAllFeaturedOnList, &FeaturedOn::songId, &GameState::featuredOnSongId},
        Ids<Festival>{"festivals", &GameState::saveAllFestivalList, &Festival::id, &GameState::festivalId},
        Ids<Merch>{"products", &GameState::saveAllMerchReleasedList, &Merch::merchId, &GameState::merchId},
        Ids<Employee>{"staff", &GameState::saveAllEmployeeList, &Employee::employeeId, &GameState::employeeId},
        Ids<SignedArtist>{"signed artists", &GameState::saveAllSignedArtistList, &SignedArtist::artistId,
                          &GameState::signedArtistId},
        Ids<SignedArtistSong>{"label's songs", &GameState::saveAllSignedArtistSongList, &SignedArtistSong::songId,
                              &GameState::signedArtistSongId},
        Ids<SignedArtistAlbum>{"label's albums", &GameState::saveAllSignedArtistAlbumList, &SignedArtistAlbum::albumId,
                               &GameState::signedArtistAlbumId},
        Ids<Matches>{"matches", &GameState::saveAllMatchesList, &Matches::matchId, &GameState::matchId},
        Ids<Chirp>{"Chirps", &GameState::saveAllChirpList, &Chirp::id, &GameState::chirpId});
  countSongs(state, found);
  return found;
}

}  // namespace backbeat
