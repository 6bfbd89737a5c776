// The tables of what is on the glass around a view, as core/view_fields.h has those of the view.
#pragma once

#include "core/view_fields.h"
#include "shell/navigator.h"

namespace backbeat {

template <>
inline constexpr auto viewNames<Feedback> = std::to_array<std::string_view>({"none", "energyBounce", "success",
                                                                             "warning"});
template <>
inline constexpr auto viewNames<Request::Kind> =
    std::to_array<std::string_view>({"", "export", "import", "restore", "purchase", "review", "feedback", "replay"});
template <>
inline constexpr auto viewNames<AlertButton::Style> = std::to_array<std::string_view>({"normal", "cancel",
                                                                                       "destructive"});
template <>
inline constexpr auto viewFields<Header> = std::to_array(
    {viewField("cash", &Header::cash), viewField("cashTone", &Header::cashTone), viewField("energy", &Header::energy),
     viewField("energyShare", &Header::energyShare), viewField("date", &Header::date)});

}  // namespace backbeat
