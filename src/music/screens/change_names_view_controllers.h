// Other names for the guests on songs and for the faces in videos.
#pragma once

#include <string>
#include <vector>

#include "core/screen.h"

namespace backbeat {

/// A table of people to choose one from, and a field for that one's name.
class ChangeNamesViewController : public Screen {
 public:
  /// `id` of the person to rename, or -1 to choose one first.
  ChangeNamesViewController(Game& game, int64_t id) : Screen(game), id_(id) {}

  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Keeps the name without the blanks around it. Refused when nothing is left.
  Outcome saveButton();

 protected:
  struct Person {
    int64_t id = 0;
    std::string name;
    int64_t cost = 0;  ///< dollars
  };

 private:
  virtual std::vector<Person> people() const = 0;
  virtual void rename(int64_t id, const std::string& name) = 0;
  virtual std::string title() const = 0;
  virtual std::string ownSegue() const = 0;

  int64_t id_;
  std::string typed_;
};

class ChangeFeaturedArtistNameViewController final : public ChangeNamesViewController {
 public:
  using ChangeNamesViewController::ChangeNamesViewController;

 private:
  std::vector<Person> people() const override;
  void rename(int64_t id, const std::string& name) override;
  std::string title() const override { return "Featured artists"; }
  std::string ownSegue() const override { return "goToChangeFeaturedArtistName"; }
};

class ChangeCameoNamesViewController final : public ChangeNamesViewController {
 public:
  using ChangeNamesViewController::ChangeNamesViewController;

 private:
  std::vector<Person> people() const override;
  void rename(int64_t id, const std::string& name) override;
  std::string title() const override { return "Cameos"; }
  std::string ownSegue() const override { return "goToChangeCameoNames"; }
};

}  // namespace backbeat
