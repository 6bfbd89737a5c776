#include "label/signed_artist_output.h"

namespace backbeat {

void simulateSignedArtistStreams(Game& /*game*/) {
  // No signed artist has a song yet.
}

void simulateSignedArtistAlbumSales(Game& /*game*/) {
  // No signed artist has an album yet.
}

}  // namespace backbeat
