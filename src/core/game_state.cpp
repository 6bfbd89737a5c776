#include "core/game_state.h"

namespace backbeat {

GameState::GameState() = default;
GameState::GameState(const GameState&) = default;
GameState::GameState(GameState&&) noexcept = default;
GameState& GameState::operator=(const GameState&) = default;
GameState& GameState::operator=(GameState&&) noexcept = default;
GameState::~GameState() = default;

std::vector<NamedList<ChunkedList>> listsOf(GameState& state) {
  return fieldsOf<GameState>([&](const auto&... field) {
    return std::vector{NamedList<ChunkedList>{field.key, state.*field.member}...};
  });
}

std::vector<NamedList<const ChunkedList>> listsOf(const GameState& state) {
  return fieldsOf<GameState>([&](const auto&... field) {
    return std::vector{NamedList<const ChunkedList>{field.key, state.*field.member}...};
  });
}

std::string_view keyOf(const GameState& state, const ChunkedList& list) {
  std::string_view key;
  forEachField<GameState>([&](const auto& field) {
    if (&(state.*field.member) == &list) key = field.key;
  });
  return key;
}

}  // namespace backbeat
