#pragma once

#include "engine/values/Collation.h"

#include <span>
#include <string>
#include <string_view>

namespace engine {

/// The option that a name stands for, which may be any part of the option's own name.
template<typename Option>
struct OptionMatch {
    const Option* option = nullptr; ///< none when `count` isn't 1
    int count = 0;
};

/// An option whose whole name it is wins over options that only contain it. Options have a member `name`.
template<typename Option, typename Visible>
OptionMatch<Option> matchOption(std::span<const Option> options, std::string_view wanted, Visible visible) {
    OptionMatch<Option> match;
    const std::string part = lower(wanted);
    for (const Option& option : options) {
        if (!visible(option)) {
            continue;
        }
        const std::string name = lower(option.name);
        if (name == part) {
            return {&option, 1};
        }
        if (!part.empty() && name.find(part) != std::string::npos) {
            match.option = &option;
            ++match.count;
        }
    }
    if (match.count != 1) {
        match.option = nullptr;
    }
    return match;
}

} // namespace engine
