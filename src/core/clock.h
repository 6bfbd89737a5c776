// Time, handed in.
#pragma once

#include "core/fields.h"

namespace backbeat {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date now() const = 0;
};

/// A clock that stands where it was put: each press carries its own time, so that a replay sees the same.
class SetClock final : public Clock {
 public:
  Date now() const override { return time_; }
  void set(Date time) { time_ = time; }

 private:
  Date time_;
};

}  // namespace backbeat
