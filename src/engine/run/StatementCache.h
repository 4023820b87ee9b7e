#pragma once

#include "engine/run/Plan.h"

#include <list>
#include <string>
#include <string_view>
#include <unordered_map>

namespace engine {

/// The prepared statements of one connection by their shape; the one unused for longest goes first.
class StatementCache {
public:
    static constexpr std::size_t kMostPlans = 256;
    /// Longer statements are not worth their place.
    static constexpr std::size_t kLongestKey = 65536;

    /// nullptr where no plan of this shape fits these literals.
    PlanPtr find(const Shape& shape);
    void add(const Shape& shape, PlanPtr plan);
    void clear();

private:
    struct Entry {
        std::string key;
        PlanPtr plan;
    };
    using Entries = std::list<Entry>;

    Entries entries_; ///< the one used last in front
    std::unordered_multimap<std::string_view, Entries::iterator> byKey_;
};

} // namespace engine
