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

const std::vector<std::vector<Wish>> errands = {
    {{"Home"}, {"goToSettings"}, {"restartButton"}, {"Restart"}},
    {{"Home"}, {"goToSettings"}, {"goToRestore"}, {"ask"}, {"Restore"}},
    {{"Home"}, {"goToSettings"}, {"exportCareer"}},
    {{"Home"}, {"goToSettings"}, {"goToChangeCameoNames"}, {"person"}, {"name", " "}, {"saveButton"}},
    {{"Home"}, {"goToSettings"}, {"importCareer"}},
    {{"Home"}, {"goToContractOffer"}},
    {{"Home"}, {"goToSignedContract"}, {"endContract"}},
    {{"Home"}, {"goToArtistProfile"}, {"photo", "data:image/png;base64,iVBORw0KGgo="}, {"removePhoto"}},
    {{"Home"}, {"goToArtistProfile"}, {"photo", "data:image/png;base64," + std::string(300'000, 'A')}},
    {{"Music"}, {"createAlbumButton"}, {"title", "Night (Live)"}, {"createAlbumButton"}},
    {{"Music"}, {"createAlbumButton"}, {"title"}, {"createAlbumButton"}},
    {{"Music"}, {"createSongButton"}, {"goToFeaturedArtists"}, {"add"}, {"add"}, {"add"}, {"add"}, {"add"}},
    {{"Music"}, {"createSongButton"}, {"title"}, {"album"}, {"createSongButton"}},
    {{"Music"}, {"kind", "0"}, {"song"}, {"marketingButton"}, {"plan"}, {"setMarketingButton"}},
    {{"Music"}, {"kind", "0"}, {"song"}, {"announceButton"}, {"message"}, {"chirpButton"}, {"announceButton"}},
    {{"Music"}, {"createSongButton"}, {"title"}, {"createSongButton"}, {"Music"}, {"song"}, {"addToAlbumButton"}},
    {{"Life"}, {"goToJobBoardButton"}, {"jobButton4"}},
    {{"Life"}, {"goToJobBoardButton"}, {"jobButton5"}},
    {{"Music"}, {"kind", "0"}, {"song"}, {"releaseButton"}},
    {{"Music"}, {"kind", "1"}, {"album"}, {"pricingButton"}, {"price"}, {"setPricingButton"}},
    {{"Music"}, {"kind", "1"}, {"album"}, {"marketingButton"}, {"plan"}, {"setMarketingButton"}},
    {{"Music"}, {"kind", "1"}, {"album"}, {"releaseButton"}},
};

}  // namespace backbeat
