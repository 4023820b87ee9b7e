#pragma once

#include "engine/bind/BoundTree.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine::translate {

/// A text for SQLite while it is written. Its parameters are bare `?`: SQLite looks for a numbered one among all those
/// before it, which takes long where there are thousands.
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
    Text& operator+=(const Text& more);
    /// The parameter at a place of the binder's list.
    void parameter(int place);

    const std::string& sql() const { return sql_; }
    /// What is bound to the parameters of the text, in its order.
    std::vector<bound::Parameter> parameters(const std::vector<bound::Parameter>& all) const;

    /// SQLite compares each constant of an expression with all constants before it, which takes long where there are
    /// many. While this lives, parameters are written as calls, which aren't constants to it.
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
