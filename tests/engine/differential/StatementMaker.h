#pragma once

// Random statements over the tables `t` and `u` of Tables.h.

#include "engine/differential/Draft.h"

#include <string>
#include <utility>
#include <vector>

namespace engine::differential {

class StatementMaker {
public:
    StatementMaker(Dice& dice, Manner manner) : dice_(dice), manner_(manner), draft_(manner) {}

    /// A SELECT or a write.
    Draft any();
    Draft select();
    /// Changes `t` or adds to it.
    Draft write();
    /// Whether the rows of the last SELECT have one order only, texts that compare as equal being the same.
    bool inOrder() const { return inOrder_; }

    /// A condition over rows of these sources.
    std::string condition(std::vector<std::string> sources);
    /// The same condition twice, the second time in other words: `not (x = 1 or y = 2)` for `x <> 1 and y <> 2`.
    std::pair<std::string, std::string> inTwoWords(std::vector<std::string> sources);
    /// A condition over rows of `t` whose SELECT is first looked at when some rows were already found true.
    std::string lateSelect();
    /// A condition over groups by this column of the source `a1`, given with its alias.
    std::string groupCondition(const std::string& column);
    /// A sum that doesn't depend on the order of the rows.
    std::string exactNumber(std::vector<std::string> sources);
    /// What may be stored in the column.
    std::string valueFor(const std::string& column, std::vector<std::string> sources);
    std::string anyColumn(const std::string& source);

    /// What stands between two operands, and what does so for the opposite.
    struct Negatable {
        const char* usual;
        const char* opposite;
    };

private:
    using Slot = Draft::Slot;

    bool once(int in) { return dice_.once(in); }
    int below(int limit) { return dice_.below(limit); }
    bool wild() const { return manner_ == Manner::Wild; }
    void word(std::string text) { draft_.word(std::move(text)); }
    void slot(Slot kind) { draft_.slot(kind); }
    template<class... Choices>
    void anyWord(Choices... choices) {
        word(dice_.oneOf(choices...));
    }
    template<class Item>
    void list(int count, Item item, const char* between = ", ") {
        for (int i = 0; i < count; ++i) {
            word(i == 0 ? "" : between);
            item();
        }
    }
    Draft finished();

    // Expressions
    void column(std::string_view names);
    void value(int depth);
    void number(int depth);
    void plainNumber();
    void numberCall(int depth);
    void text(int depth);
    void plainText();
    void date(int depth);
    void type();
    void scalarSelect(int depth);

    // Conditions
    void condition(int depth);
    void comparison(int depth);
    void inList(int depth);
    void subselect(int depth);
    template<class Operand, class Rest>
    void negatable(const Negatable& words, Operand operand, Rest rest);
    void having(const std::vector<std::string>& columns, int depth);
    /// What stands between the brackets of a subselect: its source is visible in it.
    template<class Items>
    void inner(Items items, int depth);

    // Statements
    void from(int sources);
    void source(const std::string& alias);
    void meeting(std::size_t last);
    void where();
    void plainSelect();
    void groups();
    void whole();
    void unions();
    void distinct();
    void derived();
    void update();
    void updateFrom();
    void insertRows();
    void insertSelect();
    void assigned(const std::string& column);
    void aggregate();
    void top();

    Dice& dice_;
    Manner manner_;
    Draft draft_;
    std::vector<std::string> visible_; ///< aliases whose columns may stand here
    int inners_ = 0;
    bool exact_ = false;      ///< no float
    bool aggregated_ = false; ///< no SELECT
    bool inOrder_ = false;
    bool otherWords_ = false;
};

} // namespace engine::differential
