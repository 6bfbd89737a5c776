// The house's rules about its own source texts, as functions of a text, so that they can be tried on small ones.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace backbeat::tree {

/// One broken rule: the line (from 1) and what is wrong with it.
struct Complaint {
  int line = 0;
  std::string what;
};

/// Everything that is wrong with the text of the file at `path` (relative to the root of the tree, with slashes).
std::vector<Complaint> complaintsAbout(std::string_view path, std::string_view text);

/// The text with the insides of literals blanked, and those of comments too unless `keepComments`; lines stay lines.
std::string withoutLiterals(std::string_view text, bool keepComments);

}  // namespace backbeat::tree
