// One artist of the label.
#pragma once

#include "label/screens/label_screen.h"

namespace backbeat {

class SignedArtistDetailViewController final : public LabelScreen {
 public:
  SignedArtistDetailViewController(Game& game, int64_t artistId) : LabelScreen(game), artistId_(artistId) {}

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  void describeContract(View& view, const SignedArtist& artist) const;
  void describeLevels(View& view, const SignedArtist& artist) const;
  void describeAlbum(View& view, const SignedArtist& artist) const;
  void describeWork(View& view, const SignedArtist& artist) const;
  void describeButtons(View& view, const SignedArtist& artist) const;

  int64_t artistId_;
  ListWindow songs_;
  ListWindow albums_;
};

}  // namespace backbeat
