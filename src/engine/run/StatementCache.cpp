#include "engine/run/StatementCache.h"

#include <algorithm>

namespace engine {

namespace {

bool fits(const Plan& plan, const Shape& shape) {
    const auto literal = [&](int ordinal) -> const Literal& {
        return shape.literals[static_cast<std::size_t>(ordinal)];
    };
    const auto sameValue = [&](const auto& fixed) { return literal(fixed.first).text == fixed.second; };
    const auto sameDigits = [&](const auto& fixed) { return decimalOf(literal(fixed.first)) == fixed.second; };
    return std::all_of(plan.fixed.begin(), plan.fixed.end(), sameValue) &&
           std::all_of(plan.fixedDigits.begin(), plan.fixedDigits.end(), sameDigits);
}

} // namespace

PlanPtr StatementCache::find(const Shape& shape) {
    const auto [begin, end] = byKey_.equal_range(shape.key);
    for (auto candidate = begin; candidate != end; ++candidate) {
        const Entries::iterator entry = candidate->second;
        if (fits(*entry->plan, shape)) {
            entries_.splice(entries_.begin(), entries_, entry);
            return entry->plan;
        }
    }
    return nullptr;
}

void StatementCache::add(const Shape& shape, PlanPtr plan) {
    if (shape.key.size() > kLongestKey) {
        return;
    }
    entries_.push_front({shape.key, std::move(plan)});
    byKey_.emplace(entries_.front().key, entries_.begin());
    if (entries_.size() <= kMostPlans) {
        return;
    }
    const Entries::iterator oldest = std::prev(entries_.end());
    const auto [begin, end] = byKey_.equal_range(oldest->key);
    byKey_.erase(std::find_if(begin, end, [&](const auto& one) { return one.second == oldest; }));
    entries_.erase(oldest);
}

void StatementCache::clear() {
    byKey_.clear();
    entries_.clear();
}

} // namespace engine
