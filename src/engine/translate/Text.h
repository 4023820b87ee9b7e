#pragma once

#include "engine/bind/BoundTree.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine::translate {

/// A text for the storage while it is written. Each parameter in it is a bare `?`, since the storage searches the
/// numbered ones from the first to the last whenever it meets one.
class Text {
public:
    Text() = default;
    explicit Text(std::string_view begin) : sql_(begin) {}

    Text& operator+=(std::string_view more) {
        sql_ += more;
        return *this;
    }
    Text& operator+=(char more) {
        sql_ += more;
        return *this;
    }
    /// The parameter at a place of the binder's list.
    void parameter(int place);

    const std::string& sql() const { return sql_; }
    /// What is bound to the parameters of the text, in its order.
    std::vector<bound::Parameter> parameters(const std::vector<bound::Parameter>& all) const;

    /// The storage compares each constant of an expression with all constants before it. While this lives the
    /// parameters aren't constants to it.
    class Many {
    public:
        static constexpr std::size_t kLeast = 100;

        Many(Text& text, bool many) : text_(text), outer_(text.many_) { text.many_ = outer_ || many; }
        ~Many() { text_.many_ = outer_; }
        Many(const Many&) = delete;
        Many& operator=(const Many&) = delete;

    private:
        Text& text_;
        bool outer_;
    };

private:
    std::string sql_;
    std::vector<int> places_;
    bool many_ = false;
};

} // namespace engine::translate
