#include "engine/translate/Text.h"

#include "engine/functions/Operators.h"

namespace engine::translate {

Text& Text::operator+=(const Text& more) {
    sql_ += more.sql_;
    places_.insert(places_.end(), more.places_.begin(), more.places_.end());
    return *this;
}

void Text::parameter(int place) {
    places_.push_back(place);
    sql_ += many_ ? std::string(operators::kLiteral) + "(?)" : "?";
}

std::vector<bound::Parameter> Text::parameters(const std::vector<bound::Parameter>& all) const {
    std::vector<bound::Parameter> result;
    result.reserve(places_.size());
    for (const int place : places_) {
        result.push_back(all[static_cast<std::size_t>(place)]);
    }
    return result;
}

} // namespace engine::translate
