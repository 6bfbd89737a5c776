// Every side gig, by kind; each kind has a file of its own.
#pragma once

#include "turn/gigs/gig.h"

namespace backbeat {

// Work: energy for cash.
extern const Gig oddJobs;
extern const Gig rentalInquiry;
extern const Gig ghostWriting;
extern const Gig dropShipping;
extern const Gig sellBeats;
extern const Gig musicLesson;

// Appearances: energy for listeners.
extern const Gig karaokeNight;
extern const Gig radioShow;
extern const Gig talentShow;
extern const Gig tikTak;
extern const Gig fanMeeting;

// What asks for cash.
extern const Gig annualCheckup;
extern const Gig goodCause;
extern const Gig familyRequest;

// Startups.
extern const Gig pitchDeck;
extern const Gig ventureRaise;
/// Whether a startup of the portfolio looks for money again.
bool anyRaise(const GameState& state);

// Verses for others.
extern const Gig featureRequest;
/// Whether somebody would want one from an artist of that skill.
bool skilledEnoughToFeature(const GameState& state);

// Festivals.
extern const Gig festivalInvite;

}  // namespace backbeat
