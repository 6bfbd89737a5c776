#include "label/signed_artist_output.h"

namespace backbeat {

void simulateSignedArtistStreams(Game& /*game*/) {
  // No artist can be signed yet, so there is no song to stream.
}

void simulateSignedArtistAlbumSales(Game& /*game*/) {
  // No artist can be signed yet, so there is no album to sell.
}

}  // namespace backbeat
