#include "live/festival_locations.h"

namespace backbeat {

// clang-format off
const std::array<FestivalLocation, 32> festivalLocations = {{
    {0, "Boston Calling", "Boston, Massachusetts", 40'000, 30, {"Alternative", "Rock", "Pop"}},
    {1, "III Points", "Miami, Florida", 40'000, 30, {"Electronic", "Hip-Hop"}},
    {2, "Firefly", "Dover, Delaware", 50'000, 30, {"Alternative", "Pop", "Electronic"}},
    {3, "Hangout", "Gulf Shores, Alabama", 50'000, 30, {"Pop", "Hip-Hop", "Rock"}},
    {4, "Austin City Limits", "Austin, Texas", 70'000, 30, {"Rock", "Country", "Alternative"}},
    {5, "Day N Vegas", "Las Vegas, Nevada", 75'000, 40, {"Hip-Hop", "R&B"}},
    {6, "Burning Man", "Black Rock Desert, Nevada", 80'000, 40, {"Electronic", "Alternative"}},
    {7, "Bonnaroo", "Manchester, Tennesse", 80'000, 40, {"Rock", "Folk", "Hip-Hop"}},
    {8, "Afropunk", "Brooklyn, New York", 80'000, 40, {"Punk", "R&B", "Hip-Hop"}},
    {9, "Stagecoach", "Indio, California", 90'000, 40, {"Country", "Folk"}},
    {10, "National Folk Festival", "Salisbury, Maryland", 150'000, 50, {"Folk", "Blues", "Gospel"}},
    {11, "Governors Ball", "Queens, New York", 150'000, 50, {"Pop", "Hip-Hop", "Alternative"}},
    {12, "Country Music Association", "Nashville, Tennessee", 200'000, 50, {"Country", "Folk"}},
    {13, "Outside Lands", "San Francisco, California", 220'000, 50, {"Alternative", "Electronic", "Folk"}},
    {14, "Montreux Jazz", "Lake Geneva, Switzerland", 250'000, 60, {"Jazz", "Blues", "R&B"}},
    {15, "South by Southwest", "Austin, Texas", 280'000, 60, {"Alternative", "Country", "Punk"}},
    {16, "Lollapalooza", "Chicago, Illinois", 400'000, 70, {"Rock", "Alternative", "Pop"}},
    {17, "Electric Daisy Carnvial", "Las Vegas, Nevada", 400'000, 70, {"Electronic", "Pop"}},
    {18, "Hellfest Open Air", "Clisson, France", 420'000, 70, {"Metal", "Punk", "Rock"}},
    {19, "Sziget", "Buda Island, Budapest", 450'000, 70, {"Pop", "Electronic", "Rock"}},
    {20, "Amsterdam Dance Event", "Amersterdam", 450'000, 70, {"Electronic", "Pop"}},
    {21, "Primavera Sound", "Sant Adrià del Besòs, Spain", 460'000, 70, {"Alternative", "Electronic", "Latin"}},
    {22, "New Orleans Jazz", "New Orleans, Louisiana", 475'000, 80, {"Jazz", "Blues", "Gospel"}},
    {23, "Essence Festival", "New Orleans, Louisiana", 500'000, 80, {"R&B", "Gospel", "Hip-Hop"}},
    {24, "Tommorrowland", "Boom, Belgium", 600'000, 80, {"Electronic", "Pop"}},
    {25, "Coachella", "Indio, CA", 750'000, 90, {"Pop", "Alternative", "Hip-Hop"}},
    {26, "Pol’and’Rock Festival", "Czaplinek, Poland", 750'000, 90, {"Rock", "Metal", "Punk"}},
    {27, "Summerfest", "Milwaukee, Wisconsin", 800'000, 93, {"Rock", "Country", "Pop"}},
    {28, "Rock in Rio", "Rio de Janeiro, Brazil", 1'500'000, 95, {"Rock", "Latin", "Metal"}},
    {29, "Mawazine", "Rabat, Morocco", 1'500'000, 95, {"Pop", "R&B", "Reggae"}},
    {30, "Donauinselfest", "Vienna, Austria", 3'000'000, 95, {"Pop", "Rock", "Classical"}},
    {31, "Halftime Show", "Super Bowl", 5'000'000, 97, {"Pop", "Hip-Hop", "R&B"}},
}};
// clang-format on

const std::array<std::string_view, 7> localFestivalNames = {"Sound Wave",  "Groove",   "Tune Town", "Vibin",
                                                            "The Palooza", "The Echo", "Tempo"};
const std::array<std::string_view, 7> localFestivalPlaces = {
    "Miami, Florida",   "Atlanta, Georgia",          "Chicago, Illinois",   "San Francisco, California",
    "Portland, Oregon", "Asheville, North Carolina", "Seattle, Washington",
};

}  // namespace backbeat
