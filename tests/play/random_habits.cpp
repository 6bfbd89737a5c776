#include "play/random_habits.h"

namespace backbeat {

using namespace std::string_literals;

const std::array<std::string, 6> sensibleTexts = {"Midnight Rivers", "Paper Lanterns", "Mara",
                                                  "Blue Hour",       "Sound & Sons",   "Thank you all!"};
const std::array<std::string, 18> absurdTexts = {"",
                                                 " ",
                                                 "0",
                                                 "-1",
                                                 "1e308",
                                                 "9223372036854775807",
                                                 "-9223372036854775808",
                                                 "99999999999999999999",
                                                 "0.5",
                                                 "nan",
                                                 "\u202Eשלום עולם",
                                                 "👩‍👩‍👧‍👦🏳️‍🌈🇳🇴",
                                                 "a\0b"s,
                                                 "<script>alert(1)</script>",
                                                 "\xFF\xFE broken",
                                                 "line\nbreak\r\n\ttab",
                                                 "Single",
                                                 "%s%n ${x} '; DROP TABLE kv; --"};

const std::array<std::string, 2> photos = {"data:image/png;base64,iVBORw0KGgo=",
                                           "data:image/jpeg;base64,/9j/4AAQSkZJRg=="};

}  // namespace backbeat
